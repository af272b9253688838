#include "widgets/PopoverAppearance.h"

#include <QPainter>

#include <utility>

PopoverAppearance::PopoverAppearance(QWidget& window, Pictures pictures, int durationInMilliseconds)
    : QWidget(&window)
    , m_pictures(std::move(pictures))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_opacity.setDuration(durationInMilliseconds);
    m_opacity.setEasingCurve(QEasingCurve::OutQuad);
    m_opacity.setStartValue(0.0);
    m_opacity.setEndValue(1.0);
    connect(&m_opacity, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(&m_opacity, &QVariantAnimation::finished, this, &PopoverAppearance::finished);
    m_opacity.start();
}

void PopoverAppearance::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.drawPixmap(QPoint(), m_pictures.before);
    painter.setOpacity(m_opacity.currentValue().toDouble());
    painter.drawPixmap(QPoint(), m_pictures.after);
}

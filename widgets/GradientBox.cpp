#include "widgets/GradientBox.h"

#include "widgets/PixelSnapping.h"

#include <QLinearGradient>
#include <QPainter>

GradientBox::GradientBox(QWidget* parent)
    : QWidget(parent)
{}

void GradientBox::setHasGradient(bool hasGradient)
{
    m_hasGradient = hasGradient;
    update();
}

void GradientBox::setGradientStartColor(const QColor& color)
{
    m_gradientStartColor = color;
    update();
}

void GradientBox::setGradientEndColor(const QColor& color)
{
    m_gradientEndColor = color;
    update();
}

void GradientBox::setHasTopBorder(bool hasTopBorder)
{
    m_hasTopBorder = hasTopBorder;
    update();
}

void GradientBox::setTopBorderColor(const QColor& color)
{
    m_topBorderColor = color;
    update();
}

void GradientBox::setHasBottomBorder(bool hasBottomBorder)
{
    m_hasBottomBorder = hasBottomBorder;
    update();
}

void GradientBox::setBottomBorderColor(const QColor& color)
{
    m_bottomBorderColor = color;
    update();
}

void GradientBox::setBottomInsetAlpha(double alpha)
{
    m_bottomInsetAlpha = alpha > 0 ? qMin(alpha, 1.0) : 0.0;
    update();
}

void GradientBox::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const PixelSnapping snapping(painter);
    const QRectF box = snapping.snappedRect(rect());
    if (m_hasGradient) {
        QLinearGradient gradient(box.topLeft(), box.bottomLeft());
        gradient.setColorAt(0, m_gradientStartColor);
        gradient.setColorAt(1, m_gradientEndColor);
        painter.fillRect(box, gradient);
    }
    const QSizeF size(box.width(), snapping.lineWidth());
    if (m_hasTopBorder) {
        painter.fillRect(QRectF(box.topLeft(), size), m_topBorderColor);
    }
    if (m_hasBottomBorder) {
        QRectF line(box.bottomLeft() - QPointF(0, size.height()), size);
        painter.fillRect(line, m_bottomBorderColor);
        line.translate(0, -size.height());
        painter.fillRect(line, QColor::fromRgbF(1, 1, 1, static_cast<float>(m_bottomInsetAlpha)));
    }
}

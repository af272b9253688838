#include "widgets/DismissButton.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace {

// In points.
constexpr int diameter = 24;
constexpr double armLength = 4.0;
constexpr double strokeWidth = 1.5;

} // namespace

DismissButton::DismissButton(QWidget* parent)
    : QAbstractButton(parent)
{
    setAttribute(Qt::WA_Hover);
    // A click leaves the focus where it is.
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(tr("Dismiss"));
    setToolTip(tr("Dismiss"));
}

QSize DismissButton::sizeHint() const
{
    return {diameter, diameter};
}

bool DismissButton::event(QEvent* event)
{
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave) {
        update();
    }
    return QAbstractButton::event(event);
}

void DismissButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void DismissButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto ink = palette().color(QPalette::WindowText);
    if (isDown() || underMouse()) {
        auto shade = ink;
        shade.setAlphaF(isDown() ? 0.2F : 0.08F);
        painter.setPen(Qt::NoPen);
        painter.setBrush(shade);
        painter.drawEllipse(rect());
    }
    painter.setPen(QPen(ink, strokeWidth, Qt::SolidLine, Qt::RoundCap));
    painter.translate(QRectF(rect()).center());
    painter.drawLine(QPointF(-armLength, -armLength), QPointF(armLength, armLength));
    painter.drawLine(QPointF(-armLength, armLength), QPointF(armLength, -armLength));
    if (hasFocus()) {
        painter.resetTransform();
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

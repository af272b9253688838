#include "editors/OADateNavigationButton.h"

#include "editors/OADateInk.h"
#include "widgets/HighContrast.h"
#include "widgets/PixelSnapping.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include <array>

namespace {

// In points.
constexpr int sideLength = 24;
constexpr double cornerRadius = 4.0;
constexpr double arrowHalfHeight = 4.0;
constexpr double arrowWidth = 4.0;
constexpr double strokeWidth = 1.5;
constexpr double dotRadius = 2.5;

} // namespace

OADateNavigationButton::OADateNavigationButton(Sign sign, const QString& name, QWidget* parent)
    : QAbstractButton(parent)
    , m_sign(sign)
{
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(name);
    setToolTip(name);
}

QSize OADateNavigationButton::sizeHint() const
{
    return {sideLength, sideLength};
}

void OADateNavigationButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isEnabled() && (isDown() || underMouse())) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isDown() ? OADateInk::pressed : OADateInk::hover);
        painter.drawRoundedRect(PixelSnapping(painter).snappedRect(rect()), cornerRadius,
                                cornerRadius);
    }

    const auto ink = !isEnabled()   ? OADateInk::disabled
                     : underMouse() ? OADateInk::blue
                                    : HighContrast::ink(OADateInk::quiet);
    const auto middle = QRectF(rect()).center();
    if (m_sign == Sign::Dot) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        painter.drawEllipse(middle, dotRadius, dotRadius);
    } else {
        const bool pointsLeft = (m_sign == Sign::Back) == (layoutDirection() == Qt::LeftToRight);
        const double tip = pointsLeft ? -arrowWidth / 2.0 : arrowWidth / 2.0;
        const std::array arrow{middle + QPointF(-tip, -arrowHalfHeight), middle + QPointF(tip, 0.0),
                               middle + QPointF(-tip, arrowHalfHeight)};
        painter.setPen(QPen(ink, strokeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(arrow.data(), static_cast<int>(arrow.size()));
    }
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

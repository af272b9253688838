#include "editors/OADatePickerButton.h"

#include "editors/OADateInk.h"
#include "widgets/HighContrast.h"
#include "widgets/PixelSnapping.h"
#include "widgets/RoundedRing.h"

#include <QPainter>

namespace {

// In points. The button is larger than its sign, to be hit easily.
constexpr QSize buttonSize(22, 20);
constexpr QSizeF signSize(12.0, 11.0);
constexpr double cornerRadius = 1.5;
constexpr double headHeight = 3.0;
constexpr double dayLength = 2.0;
constexpr int columns = 3;
constexpr int rows = 2;

} // namespace

OADatePickerButton::OADatePickerButton(QWidget* parent)
    : QAbstractButton(parent)
{
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::ArrowCursor);
    setAccessibleName(tr("Choose Date"));
    setToolTip(tr("Choose Date"));
}

QSize OADatePickerButton::sizeHint() const
{
    return buttonSize;
}

void OADatePickerButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const PixelSnapping snapping(painter);
    const bool isStrong = underMouse() || isDown();
    const auto ink = !isEnabled() ? OADateInk::disabled
                     : isStrong   ? OADateInk::blue
                                  : HighContrast::ink(OADateInk::quiet);
    const QPointF corner((width() - signSize.width()) / 2.0, (height() - signSize.height()) / 2.0);
    const auto sign = snapping.snappedRect({corner, signSize});
    const auto page = RoundedRing::draw(painter, sign, cornerRadius, 1.0, ink);
    const double line = snapping.lineWidth();
    const auto head = snapping.snappedRect({page.x(), page.y(), page.width(), headHeight - line});
    painter.fillRect(head, ink);

    // Each day as large as the other: what is left over of the page goes around them.
    const auto days = QRectF(page.x(), head.bottom(), page.width(), page.bottom() - head.bottom());
    const QRectF anyDay(page.topLeft(), QSizeF(dayLength, dayLength));
    const auto day = snapping.snappedRect(anyDay).size();
    const QSizeF pitch(day.width() + line, day.height() + line);
    const QPointF extent(columns * pitch.width() - line, rows * pitch.height() - line);
    const auto first = snapping.snappedRect({days.center() - extent / 2.0, day}).topLeft();
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const QPointF offset(column * pitch.width(), row * pitch.height());
            painter.fillRect(QRectF(first + offset, day), ink);
        }
    }
}

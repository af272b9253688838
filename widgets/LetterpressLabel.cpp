#include "widgets/LetterpressLabel.h"

#include "widgets/VRLetterpress.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr double shadowAlpha = 0.75;

} // namespace

void LetterpressLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRect area = contentsRect();
    const auto line = fontMetrics().elidedText(text(), Qt::ElideRight, area.width());
    VRLetterpress::vr_drawLetterpressInRect(
        painter, line, area,
        {font(), palette().color(foregroundRole()),
         QStyle::visualAlignment(layoutDirection(), alignment())},
        shadowAlpha);
}

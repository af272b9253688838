#include "timeline/CVTimelineHeaderView.h"

#include "foundation/Log.h"
#include "store/NSManagedObjectContext.h"
#include "store/NSPersistentStoreCoordinator.h"
#include "store/ReadTransaction.h"
#include "timeline/CVAdditions.h"
#include "timeline/CVTimelineData.h"
#include "timeline/TimelineHeaderLabels.h"
#include "timeline/VerticalLines.h"
#include "widgets/HighContrast.h"
#include "widgets/PixelSnapping.h"
#include "widgets/VRLetterpress.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPaintEvent>
#include <QPainter>

#include <exception>

namespace {

constexpr int textSize = 9;
constexpr double textShadowAlpha = 0.75;

/// From the top of the strip to that of a year's tick, and from its bottom to the feet of all, in
/// points.
constexpr double yearTickTop = 2.0;
constexpr double tickFoot = 3.0;

QFont systemFont(QFont::Weight weight)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(textSize);
    font.setWeight(weight);
    return font;
}

CVTimelineData calculatedAxis(NSManagedObjectContext& context, const QRectF& frame)
{
    const ReadTransaction reading(context.persistentStoreCoordinator().store());
    CVTimelineData axis;
    axis.calculateTimelineWithContext(context, frame);
    return axis;
}

TimelineHeaderLabels::WidthOfText widthIn(const QFont& font)
{
    return [metrics = QFontMetricsF(font)](const QString& text) {
        return metrics.horizontalAdvance(text);
    };
}

void drawLabels(QPainter& painter, const std::vector<TimelineHeaderLabels::Label>& labels,
                const QRectF& exposed, const QRectF& frame, VRLetterpress::Attributes attributes)
{
    for (const auto& label : labels) {
        // In the middle of what the strip has of the place, so that both lines of text stand alike
        // in their halves.
        const QRectF rect = label.rect.intersected(frame);
        if (rect.adjusted(0.0, 0.0, 0.0, 1.0).intersects(exposed)) {
            attributes.alignment = label.horizontalAlignment | Qt::AlignAbsolute | Qt::AlignVCenter;
            VRLetterpress::vr_drawLetterpressInRect(painter, label.text, rect, attributes,
                                                    textShadowAlpha);
        }
    }
}

void drawTicksInFrame(QPainter& painter, const QRectF& exposed, const QRectF& frame,
                      const CVTimelineData& axis)
{
    const QColor color = HighContrast::ink(QColor::fromRgbF(2.0F / 3.0F, 2.0F / 3.0F, 2.0F / 3.0F));
    const QColor footColor = QColor::fromRgbF(1.0F, 1.0F, 1.0F, 0.95F);
    VerticalLines years(painter, exposed.left(), exposed.right());
    VerticalLines months = years;
    VerticalLines feet = years;
    for (const auto& tick : axis.tickOffsets()) {
        if (tick.isYear || !axis.monthTicksHidden()) {
            (tick.isYear ? years : months).addLine(tick.offset, color);
            feet.addLine(tick.offset, footColor);
        }
    }
    const double bottom = frame.bottom() - tickFoot;
    years.draw(painter, frame.top() + yearTickTop, bottom);
    months.draw(painter, frame.center().y(), bottom);
    const QRectF foot =
        PixelSnapping(painter).snappedLine(QRectF(exposed.left(), bottom, exposed.width(), 1.0));
    feet.draw(painter, foot.top(), foot.bottom());
}

} // namespace

CVTimelineHeaderView::CVTimelineHeaderView(QWidget* parent)
    : GradientBox(parent)
{
    // Time runs from left to right wherever the reader's text does not.
    setLayoutDirection(Qt::LeftToRight);
    setAccessibleName(tr("Timeline"));
    setHasGradient(true);
    setGradientStartColor(CVAdditions::cvPanelGradientStartColor());
    setGradientEndColor(CVAdditions::cvPanelGradientEndColor());
    setHasBottomBorder(true);
    setBottomBorderColor(CVAdditions::cvPanelDarkerBorderColor());
    setBottomInsetAlpha(0.0);
}

void CVTimelineHeaderView::setManagedObjectContext(NSManagedObjectContext* context)
{
    m_context = context;
    update();
}

QRect CVTimelineHeaderView::visibleRect() const
{
    // Not visibleRegion(): that is less by whatever lies over the strip, and the labels would make
    // way for each popover.
    QRect visible = rect();
    QPoint origin;
    for (const QWidget* widget = this; !widget->isWindow() && widget->parentWidget();
         widget = widget->parentWidget()) {
        origin += widget->pos();
        visible &= widget->parentWidget()->rect().translated(-origin);
    }
    return visible;
}

void CVTimelineHeaderView::changeEvent(QEvent* event)
{
    GradientBox::changeEvent(event);
    if (event->type() == QEvent::StyleChange) {
        setBottomBorderColor(CVAdditions::cvPanelDarkerBorderColor());
    }
}

void CVTimelineHeaderView::moveEvent(QMoveEvent* event)
{
    // Labels stay in view while their years scroll out of it.
    update();
    GradientBox::moveEvent(event);
}

void CVTimelineHeaderView::paintEvent(QPaintEvent* event)
{
    GradientBox::paintEvent(event);
    if (!m_context) {
        return;
    }
    try {
        const QRectF frame = rect();
        const auto axis = calculatedAxis(*m_context, frame);
        const QRectF exposed = event->rect();
        const QRectF visible = visibleRect();
        QPainter painter(this);

        const VRLetterpress::Attributes yearText{systemFont(QFont::Bold),
                                                 CVAdditions::cvTimelineHeaderYearTextColor()};
        drawLabels(painter, TimelineHeaderLabels::yearLabels(axis, visible, widthIn(yearText.font)),
                   exposed, frame, yearText);
        drawTicksInFrame(painter, exposed, frame, axis);
        const VRLetterpress::Attributes monthText{systemFont(QFont::Normal),
                                                  CVAdditions::cvTimelineHeaderTextColor()};
        drawLabels(painter,
                   TimelineHeaderLabels::monthTitles(axis, visible, widthIn(monthText.font)),
                   exposed, frame, monthText);
    } catch (const std::exception& exception) {
        Log::line(QString(u"Unable to draw the timeline's header: " +
                          QString::fromUtf8(exception.what())));
    }
}

#include "timeline/TimelineHeaderLabels.h"

#include "foundation/DateFormatter.h"
#include "timeline/CVTimelineData.h"

#include <QHash>

#include <algorithm>
#include <optional>

namespace {

using TimelineHeaderLabels::Label;
using TimelineHeaderLabels::WidthOfText;

/// Between the left end of a place and its text, and at both ends together, in points.
constexpr double leftPadding = 2.0;
constexpr double padding = 5.0;

/// How much lower the place of a title is than the axis, in points.
constexpr double titleHeightLoss = 4.0;

/// Measuring is the costly part, and most months of a long axis are called alike.
class MeasuredTexts
{
public:
    explicit MeasuredTexts(const WidthOfText& widthOfText)
        : m_widthOfText(widthOfText)
    {}

    double width(const QString& text)
    {
        const auto known = m_widths.constFind(text);
        return known != m_widths.cend() ? *known : *m_widths.insert(text, m_widthOfText(text));
    }

private:
    const WidthOfText& m_widthOfText;
    QHash<QString, double> m_widths;
};

struct Year
{
    Instant date;
    QRectF rect;
};

std::vector<Year> yearsOf(const CVTimelineData& axis)
{
    std::vector<Year> years;
    axis.enumerateYearsUsingBlock([&](Instant date, const QRectF& rect) {
        years.push_back({date, rect});
        return true;
    });
    return years;
}

Label yearLabel(const QString& text, double textWidth, const QRectF& year,
                const QRectF& visibleRect)
{
    const QRectF part = year.intersected(visibleRect);
    Label label{text, QRectF(part.x() + leftPadding, part.y(), part.width() - padding,
                             part.height() / 2.0)};
    const bool isCutAtLeft = year.left() < visibleRect.left();
    const bool isCutAtRight = year.right() > visibleRect.right();
    if (textWidth > label.rect.width() && isCutAtLeft != isCutAtRight) {
        // The last of it slides out of view. From the middle, "2024" would be cut to a "02".
        label.horizontalAlignment = isCutAtLeft ? Qt::AlignRight : Qt::AlignLeft;
    }
    return label;
}

/// Absent when one of all years does not fit.
std::optional<std::vector<Label>> yearLabelsWithPattern(const std::vector<Year>& years,
                                                        const QString& pattern,
                                                        const QRectF& visibleRect,
                                                        MeasuredTexts& texts)
{
    std::vector<Label> labels;
    for (const auto& year : years) {
        const QString text = DateFormatter::text(year.date, pattern);
        const double textWidth = texts.width(text);
        if (!(year.rect.width() - padding >= textWidth)) {
            return std::nullopt;
        }
        if (year.rect.intersects(visibleRect)) {
            labels.push_back(yearLabel(text, textWidth, year.rect, visibleRect));
        }
    }
    return labels;
}

QRectF titleRectOf(const QRectF& month)
{
    return {month.x() + leftPadding, month.y() + month.height() / 2.0, month.width() - padding,
            month.height() - titleHeightLoss};
}

/// Calls the block for each month, from left to right. False as soon as the block answers false.
template <typename Block>
bool enumerateMonthTitlesWithTimelineData(const CVTimelineData& axis, const QString& pattern,
                                          const Block& block)
{
    const auto& rects = axis.tickRectangles();
    const auto& dates = axis.tickDates();
    for (std::size_t month = 0; month < std::min(rects.size(), dates.size()); ++month) {
        if (!block(DateFormatter::text(dates[month], pattern), titleRectOf(rects[month]))) {
            return false;
        }
    }
    return true;
}

/// Whether the narrowest month has room for its title. Where any has none it is most often that
/// one, and the hundreds of others need not be asked.
bool doesNarrowestTitleFit(const CVTimelineData& axis, const QString& pattern, MeasuredTexts& texts)
{
    const auto& rects = axis.tickRectangles();
    const auto narrowest = std::ranges::min_element(rects, {}, &QRectF::width);
    const auto month = static_cast<std::size_t>(narrowest - rects.begin());
    return month >= axis.tickDates().size() ||
           titleRectOf(*narrowest).width() >=
               texts.width(DateFormatter::text(axis.tickDates()[month], pattern));
}

/// Absent when one of all titles does not fit.
std::optional<std::vector<Label>> monthTitlesWithPattern(const CVTimelineData& axis,
                                                         const QString& pattern,
                                                         const QRectF& visibleRect,
                                                         MeasuredTexts& texts)
{
    std::vector<Label> labels;
    const bool doAllFit = doesNarrowestTitleFit(axis, pattern, texts) &&
                          enumerateMonthTitlesWithTimelineData(
                              axis, pattern, [&](const QString& title, const QRectF& rect) {
                                  if (!(rect.width() >= texts.width(title))) {
                                      return false;
                                  }
                                  if (rect.intersects(visibleRect)) {
                                      labels.push_back({title, rect});
                                  }
                                  return true;
                              });
    return doAllFit ? std::optional(std::move(labels)) : std::nullopt;
}

} // namespace

std::vector<Label> TimelineHeaderLabels::yearLabels(const CVTimelineData& axis,
                                                    const QRectF& visibleRect,
                                                    const WidthOfText& widthOfText)
{
    const auto years = yearsOf(axis);
    MeasuredTexts texts(widthOfText);
    for (const auto& pattern : {QStringLiteral("YYYY"), QStringLiteral("YY")}) {
        if (const auto labels = yearLabelsWithPattern(years, pattern, visibleRect, texts)) {
            return *labels;
        }
    }
    return {};
}

std::vector<Label> TimelineHeaderLabels::monthTitles(const CVTimelineData& axis,
                                                     const QRectF& visibleRect,
                                                     const WidthOfText& widthOfText)
{
    if (axis.monthTicksHidden()) {
        return {};
    }
    MeasuredTexts texts(widthOfText);
    for (const auto& pattern :
         {QStringLiteral("MMMM"), QStringLiteral("MMM"), QStringLiteral("MM")}) {
        if (const auto titles = monthTitlesWithPattern(axis, pattern, visibleRect, texts)) {
            return *titles;
        }
    }
    return {};
}

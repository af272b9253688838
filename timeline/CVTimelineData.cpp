#include "timeline/CVTimelineData.h"

#include "foundation/Calendar.h"
#include "model/Calculations.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

namespace {

/// The tick at the left end of the axis: behind the margin, in the middle of its point.
constexpr double firstTick = TimelineScale::margin + 0.5;

/// Months narrower than this leave no room for a tick each, in points.
constexpr double narrowestMonth = 4.0;

constexpr double secondsPerDay = 86400.0;
constexpr int january = 1;
constexpr int december = 12;

/// Years are those of the Gregorian calendar, whatever calendar the person's months come from.
bool isInMonth(Instant date, int month)
{
    const auto components = Calendar::gregorian().components(date);
    return components && components->month == month;
}

QString textOf(const CVTickOffset& tick)
{
    return QString::number(tick.offset) + (tick.isYear ? u" (year)" : u"");
}

QString textOf(const QRectF& rect)
{
    return QStringLiteral("{{%1, %2}, {%3, %4}}")
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height());
}

QString textOf(Instant date)
{
    const auto components = Calendar::gregorian().components(date);
    return components ? QStringLiteral("%1-%2-%3")
                            .arg(components->year, 4, 10, QLatin1Char('0'))
                            .arg(components->month, 2, 10, QLatin1Char('0'))
                            .arg(components->day, 2, 10, QLatin1Char('0'))
                      : QString::number(date.secondsSince1970());
}

template <typename Value>
QString textOf(const std::vector<Value>& values)
{
    QStringList texts;
    std::ranges::transform(values, std::back_inserter(texts),
                           [](const Value& value) { return textOf(value); });
    return u'(' + texts.join(u", ") + u')';
}

} // namespace

void CVTimelineData::calculateTimelineWithContext(NSManagedObjectContext& context,
                                                  const QRectF& rect)
{
    const auto& scale = m_scale.emplace(context, rect);
    const auto first = scale.firstStatementDate();
    const auto last = scale.lastStatementDate();
    if (!first || !last) {
        return;
    }
    const Instant start = Calculations::beginningOfMonth(*first);
    const Instant end = Calculations::endOfMonth(*last);
    const auto addMonth = [&](Instant month, double left, double width) {
        m_tickRectangles.emplace_back(left + 0.5, rect.y(), width, rect.height());
        m_tickDates.push_back(month);
    };

    m_tickOffsets.push_back({firstTick, isInMonth(*first, january)});
    Instant month = start;
    double left = firstTick;
    Calendar::MonthStarts months(Calendar::current(), *first);
    months.next();
    for (auto next = months.next(); next && *next < end; next = months.next()) {
        const double right = scale.points(*next - start) + firstTick;
        m_tickOffsets.push_back({right, isInMonth(*next, january)});
        m_monthTicksHidden = m_monthTicksHidden || right - left < narrowestMonth;
        addMonth(month, left, right - left);
        month = *next;
        left = right;
    }
    // The last month is as wide as its own duration, which may end a point beside the last tick.
    m_tickOffsets.push_back({scale.points(end - start) + firstTick, isInMonth(end, december)});
    addMonth(month, left, scale.points(end - month));
}

bool CVTimelineData::enumerateYearsUsingBlock(
    const std::function<bool(Instant date, const QRectF& rect)>& block) const
{
    QRectF yearRect;
    int lastYear = 0;
    std::optional<Instant> previous;
    std::optional<Calendar::Components> previousDay;
    for (std::size_t index = 0; index < m_tickDates.size(); ++index) {
        // A day into the month, the date is in that month in any calendar and zone near by.
        const Instant date = m_tickDates[index] + secondsPerDay;
        const auto day = Calendar::gregorian().components(date);
        const QRectF rect = index < m_tickRectangles.size() ? m_tickRectangles[index] : QRectF();
        if (!previous) {
            yearRect = rect;
        } else if (previousDay && day && previousDay->month == december && day->month == january) {
            if (!block(*previous, yearRect)) {
                return false;
            }
            yearRect = rect;
            lastYear = previousDay->year;
        } else {
            yearRect.setWidth(yearRect.width() + rect.width());
        }
        previous = date;
        previousDay = day;
    }
    return !previousDay || previousDay->year <= lastYear || block(*previous, yearRect);
}

QString CVTimelineData::description() const
{
    return QStringLiteral("tickOffsets: %1, tickRectangles: %2, tickDates: %3")
        .arg(textOf(m_tickOffsets), textOf(m_tickRectangles), textOf(m_tickDates));
}

#include "editors/OADateGrid.h"

#include "editors/AccessibleDateGrid.h"
#include "editors/OADateInk.h"
#include "foundation/Calendar.h"
#include "foundation/Clock.h"
#include "foundation/DateFormatter.h"
#include "widgets/HighContrast.h"
#include "widgets/PixelSnapping.h"
#include "widgets/RoundedRing.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include <algorithm>
#include <cmath>

namespace {

// In points.
constexpr int smallestPlaceWidth = 32;
constexpr int smallestPlaceHeight = 26;
constexpr int placePadding = 4;
constexpr double cornerRadius = 4.0;

constexpr double weekdayFontScale = 0.85;
constexpr double secondsPerDay = 86'400.0;

/// How many days lie between those of two dates.
std::optional<std::int32_t> daysBetween(Instant from, Instant to)
{
    const auto& calendar = Calendar::current();
    const auto start = OADateMonth::startOfDay(calendar, from);
    const auto end = OADateMonth::startOfDay(calendar, to);
    if (!start || !end) {
        return std::nullopt;
    }
    // Rounded, as days with a change of the clocks are longer or shorter. Instants that a calendar
    // expresses are few enough days away from each other.
    return static_cast<std::int32_t>(std::lround((*end - *start) / secondsPerDay));
}

std::optional<Instant> dateAtPlace(const OADateMonth& month, std::optional<int> place)
{
    const auto& day = place ? month.dayAtPlace(*place) : std::nullopt;
    return day ? std::optional(day->start) : std::nullopt;
}

} // namespace

OADateGrid::OADateGrid(QWidget* parent)
    : QWidget(parent)
    , m_setDate(Clock::now())
    , m_date(m_setDate)
    , m_shownMonth(m_setDate)
{
    AccessibleDateGrid::installFactory();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void OADateGrid::setDateValue(Instant date)
{
    m_setDate = OADateMonth::isShowable(date) ? date : Clock::now();
    m_date = m_setDate;
    m_hoveredPlace.reset();
    showMonth(m_date);
}

void OADateGrid::showMonth(Instant date)
{
    const auto& calendar = Calendar::current();
    if (!OADateMonth(calendar, date, calendar.firstWeekday()).firstPlaceInMonth()) {
        return;
    }
    m_shownMonth = date;
    update();
    Q_EMIT shownMonthDidChange();
    if (const auto* const accessible = AccessibleDateGrid::listening(*this)) {
        accessible->daysDidChange();
    }
}

void OADateGrid::setFirstDayOfTheWeek(std::int64_t preference)
{
    m_firstDayOfTheWeek = preference;
    update();
}

OADateMonth OADateGrid::month() const
{
    return {Calendar::current(), m_shownMonth,
            OADateMonth::firstWeekdayForPreference(m_firstDayOfTheWeek)};
}

QRect OADateGrid::rectOfPlace(int place) const
{
    const auto size = placeSize();
    const QPoint topLeft(place % OADateMonth::daysPerWeek * size.width(),
                         weekdaysHeight() + place / OADateMonth::daysPerWeek * size.height());
    return QStyle::visualRect(layoutDirection(), rect(), {topLeft, size});
}

std::optional<int> OADateGrid::placeAtPoint(const QPoint& point) const
{
    const auto month = this->month();
    for (int place = 0; place < OADateMonth::numberOfPlaces; ++place) {
        if (month.dayAtPlace(place) && rectOfPlace(place).contains(point)) {
            return place;
        }
    }
    return std::nullopt;
}

std::optional<int> OADateGrid::selectedPlace() const
{
    return month().placeOfDate(m_date);
}

QString OADateGrid::nameOfPlace(int place) const
{
    const auto date = dateAtPlace(month(), place);
    return date ? DateFormatter::textOfFields(*date, u"yMMMMEEEEd"_qs) : QString();
}

void OADateGrid::pickPlace(int place)
{
    if (const auto date = dateAtPlace(month(), place)) {
        pickDayOf(*date);
    }
}

QSize OADateGrid::sizeHint() const
{
    const auto size = placeSize();
    return {size.width() * OADateMonth::daysPerWeek,
            weekdaysHeight() + size.height() * OADateMonth::numberOfWeeks};
}

void OADateGrid::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const auto month = this->month();
    drawWeekdays(painter, month);
    for (int place = 0; place < OADateMonth::numberOfPlaces; ++place) {
        if (month.dayAtPlace(place) && rectOfPlace(place).intersects(event->rect())) {
            drawDay(painter, month, place);
        }
    }
}

void OADateGrid::keyPressEvent(QKeyEvent* event)
{
    if ((event->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) {
        event->ignore();
        return;
    }
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Space:
        if (const auto date = dateForKey(*event)) {
            pickDayOf(*date);
        }
        break;
    default:
        event->ignore();
    }
}

void OADateGrid::mousePressEvent(QMouseEvent* event)
{
    const auto place = placeAtPoint(event->pos());
    if (place && event->button() == Qt::LeftButton) {
        pickPlace(*place);
        setHoveredPlace(placeAtPoint(event->pos()));
    }
}

void OADateGrid::mouseDoubleClickEvent(QMouseEvent* event)
{
    // Its first click picked the day, and may have turned the page under the second one.
    if (event->button() == Qt::LeftButton && placeAtPoint(event->pos())) {
        Q_EMIT dayDoubleClicked();
    }
}

void OADateGrid::mouseMoveEvent(QMouseEvent* event)
{
    setHoveredPlace(placeAtPoint(event->pos()));
}

void OADateGrid::leaveEvent(QEvent* /*event*/)
{
    setHoveredPlace(std::nullopt);
}

void OADateGrid::focusInEvent(QFocusEvent* /*event*/)
{
    update();
    // Qt will say that the grid has the focus; the day must be the last that is said to have it.
    QMetaObject::invokeMethod(this, &OADateGrid::announceFocus, Qt::QueuedConnection);
}

void OADateGrid::focusOutEvent(QFocusEvent* /*event*/)
{
    update();
}

std::optional<Instant> OADateGrid::dateForKey(const QKeyEvent& key) const
{
    const auto& calendar = Calendar::current();
    const int forward = layoutDirection() == Qt::RightToLeft ? -1 : 1;
    const OADateMonth month(calendar, m_date, calendar.firstWeekday());
    switch (key.key()) {
    case Qt::Key_Left:
        return calendar.adding(m_date, {.days = -forward});
    case Qt::Key_Right:
        return calendar.adding(m_date, {.days = forward});
    case Qt::Key_Up:
        return calendar.adding(m_date, {.weeks = -1});
    case Qt::Key_Down:
        return calendar.adding(m_date, {.weeks = 1});
    case Qt::Key_PageUp:
        return calendar.adding(m_date, {.months = -1});
    case Qt::Key_PageDown:
        return calendar.adding(m_date, {.months = 1});
    case Qt::Key_Home:
        return dateAtPlace(month, month.firstPlaceInMonth());
    case Qt::Key_End:
        return dateAtPlace(month, month.lastPlaceInMonth());
    case Qt::Key_Space:
        return m_date;
    default:
        return std::nullopt;
    }
}

void OADateGrid::pickDayOf(Instant date)
{
    const auto days = daysBetween(m_setDate, date);
    const auto picked =
        days ? Calendar::current().adding(m_setDate, {.days = *days}) : std::nullopt;
    if (!picked || !OADateMonth::isShowable(*picked)) {
        return;
    }
    m_date = *picked;
    showMonth(m_date);
    announceFocus();
    Q_EMIT datePicked(m_date);
}

void OADateGrid::setHoveredPlace(std::optional<int> place)
{
    if (place != m_hoveredPlace) {
        m_hoveredPlace = place;
        update();
    }
}

QSize OADateGrid::placeSize() const
{
    const QFontMetrics metrics(font());
    const int digits = metrics.horizontalAdvance(u"00"_qs);
    return {std::max(smallestPlaceWidth, digits + 3 * placePadding),
            std::max(smallestPlaceHeight, metrics.height() + 2 * placePadding)};
}

int OADateGrid::weekdaysHeight() const
{
    return QFontMetrics(weekdayFont()).height() + placePadding;
}

QFont OADateGrid::weekdayFont() const
{
    auto smaller = font();
    if (smaller.pixelSize() > 0) {
        smaller.setPixelSize(qRound(smaller.pixelSize() * weekdayFontScale));
    } else {
        smaller.setPointSizeF(smaller.pointSizeF() * weekdayFontScale);
    }
    return smaller;
}

void OADateGrid::drawWeekdays(QPainter& painter, const OADateMonth& month) const
{
    const QFontMetrics metrics(weekdayFont());
    painter.setFont(weekdayFont());
    painter.setPen(HighContrast::ink(OADateInk::weekday));
    for (int column = 0; column < OADateMonth::daysPerWeek; ++column) {
        // Any day of the column will do, the first ones may be missing.
        for (int place = column; place < OADateMonth::numberOfPlaces;
             place += OADateMonth::daysPerWeek) {
            if (const auto date = dateAtPlace(month, place)) {
                const auto below = rectOfPlace(column);
                const QRect rect(below.x(), 0, below.width(), weekdaysHeight());
                const auto name = DateFormatter::text(*date, u"cccccc"_qs);
                painter.drawText(rect, Qt::AlignCenter,
                                 metrics.elidedText(name, Qt::ElideRight, rect.width()));
                break;
            }
        }
    }
}

void OADateGrid::drawDay(QPainter& painter, const OADateMonth& month, int place) const
{
    const auto& day = *month.dayAtPlace(place);
    const bool isSelected = place == month.placeOfDate(m_date);
    const bool isToday = place == month.placeOfDate(Clock::now());
    const auto face = PixelSnapping(painter).snappedRect(
        QRectF(rectOfPlace(place)).adjusted(1.0, 1.0, -1.0, -1.0));

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (isSelected) {
        QLinearGradient gradient(face.topLeft(), face.bottomLeft());
        gradient.setColorAt(0.0, OADateInk::selectedTop);
        gradient.setColorAt(1.0, OADateInk::selectedBottom);
        painter.setBrush(gradient);
        painter.drawRoundedRect(face, cornerRadius, cornerRadius);
        RoundedRing::draw(painter, face, cornerRadius, 1.0, OADateInk::selectedBorder);
    } else if (place == m_hoveredPlace) {
        painter.setBrush(OADateInk::hover);
        painter.drawRoundedRect(face, cornerRadius, cornerRadius);
    }
    if (isToday && !isSelected) {
        RoundedRing::draw(painter, face, cornerRadius, 1.0, OADateInk::quiet);
    }

    auto numberFont = font();
    numberFont.setBold(isToday || isSelected);
    painter.setFont(numberFont);
    painter.setPen(isSelected      ? OADateInk::selectedDay
                   : isToday       ? OADateInk::blue
                   : day.isInMonth ? OADateInk::day
                                   : HighContrast::ink(OADateInk::otherDay));
    painter.drawText(rectOfPlace(place), Qt::AlignCenter, DateFormatter::text(day.start, u"d"_qs));
    painter.restore();

    if (isSelected && hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = rectOfPlace(place);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void OADateGrid::announceFocus()
{
    if (const auto* const accessible = AccessibleDateGrid::listening(*this)) {
        accessible->selectionDidChange();
    }
}

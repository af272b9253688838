#pragma once

#include "editors/OADateMonth.h"
#include "foundation/Instant.h"

#include <QWidget>

#include <cstdint>
#include <optional>

class AccessibleDateGrid;

/// The days of a month, for one of them to be picked with the mouse or the keyboard.
///
/// Keys go from the date that is held, also when another month is shown: the arrows by a day or a
/// week, Page Up and Page Down by a month, Home and End to the ends of the month. Space picks the
/// day that is held.
class OADateGrid : public QWidget
{
    Q_OBJECT

public:
    explicit OADateGrid(QWidget* parent = nullptr);

    /// The date that was set or picked last.
    Instant dateValue() const { return m_date; }
    /// Holds a date, and shows its month. Dates that are picked have its time of day. One outside
    /// the years 1 to 9999 counts as now.
    void setDateValue(Instant date);

    /// Some instant in the month that is shown.
    Instant shownMonth() const { return m_shownMonth; }
    /// Shows the month that `date` lies in, if it has days in the years 1 to 9999, and holds what
    /// was held.
    void showMonth(Instant date);

    /// The user default "FirstDayOfTheWeek"; 0 at first.
    void setFirstDayOfTheWeek(std::int64_t preference);

    /// The page that is shown.
    OADateMonth month() const;
    /// The rectangle of a place of the page, in points and the grid's coordinates.
    QRect rectOfPlace(int place) const;
    /// The place at a point; absent beside the places and where there is no day.
    std::optional<int> placeAtPoint(const QPoint& point) const;
    /// The place of the date that is held; absent when it is not on the page.
    std::optional<int> selectedPlace() const;
    /// The whole date of the day at a place, with its weekday; empty where there is no day.
    QString nameOfPlace(int place) const;

    /// Picks the day at a place; one without a day changes nothing.
    void pickPlace(int place);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// The person picked this date, which may be the one that was held.
    void datePicked(Instant date);
    void dayDoubleClicked();
    void shownMonthDidChange();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    /// The date that a key leads to; absent for a key that leads nowhere.
    std::optional<Instant> dateForKey(const QKeyEvent& key) const;
    void pickDayOf(Instant date);
    void setHoveredPlace(std::optional<int> place);
    QSize placeSize() const;
    int weekdaysHeight() const;
    QFont weekdayFont() const;
    void drawWeekdays(QPainter& painter, const OADateMonth& month) const;
    void drawDay(QPainter& painter, const OADateMonth& month, int place) const;
    void announceFocus();

    /// The date that was set: what is picked has its time of day, even when a day in between, which
    /// leaves that time out, could not.
    Instant m_setDate;
    Instant m_date;
    Instant m_shownMonth;
    std::int64_t m_firstDayOfTheWeek = 0;
    std::optional<int> m_hoveredPlace;
};

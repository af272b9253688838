#pragma once

#include "foundation/Instant.h"

#include <QWidget>

#include <cstdint>

class OADateGrid;
class OADateNavigationButton;
class QLabel;

/// A month calendar: the name of a month, the buttons that turn to another one, and its days.
///
/// Turning to another month picks nothing: the calendar goes on answering the date that it held,
/// until a day is picked.
class OADatePicker : public QWidget
{
    Q_OBJECT

public:
    explicit OADatePicker(QWidget* parent = nullptr);

    /// The date that was set or picked last.
    Instant dateValue() const;
    /// Holds a date, and shows its month. Dates that are picked have its time of day. One outside
    /// the years 1 to 9999 counts as now.
    void setDateValue(Instant date);

    /// The user default "FirstDayOfTheWeek"; 0 at first.
    void setFirstDayOfTheWeek(std::int64_t preference);

    OADateGrid& grid() const { return *m_grid; }

public Q_SLOTS:
    void showPreviousMonth();
    void showCurrentMonth();
    void showNextMonth();

Q_SIGNALS:
    /// The person picked this date, which may be the one that was held.
    void datePicked(Instant date);
    void dayDoubleClicked();

private:
    void showTitle();

    QLabel* m_title;
    OADateNavigationButton* m_previousMonth;
    OADateNavigationButton* m_currentMonth;
    OADateNavigationButton* m_nextMonth;
    OADateGrid* m_grid;
};

#pragma once

#include "foundation/Instant.h"

#include <QPointer>
#include <QWidget>

#include <optional>

class OADatePicker;
class OADatePickerTextField;

/// The calendar that drops down under a date field. There is one of it, open for one field at most.
///
/// Each day that is picked goes into the field at once. Return, a double click on a day and a press
/// outside close the calendar and keep that; Escape puts back what the field had.
class OAPopupDatePicker : public QWidget
{
    Q_OBJECT

public:
    /// Made on first use. It is a child of the field that it was open for last and goes with it;
    /// then the next use makes another.
    static OAPopupDatePicker& sharedPopupDatePicker();

    /// Closes the calendar where it is open, and opens it below `control`. It begins with the date
    /// of the control or, while that has none, with `defaultDate`, which is no pick. `title` is
    /// what assistive programs call the calendar. It closes when the control is hidden.
    void startPickingDateWithTitle(const QString& title, OADatePickerTextField& control,
                                   Instant defaultDate);

    /// The field that the calendar is open for; null while it is closed.
    OADatePickerTextField* control() const;
    OADatePicker& datePicker() const { return *m_datePicker; }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    OAPopupDatePicker();

    void pick(Instant date);
    void putBackOriginalValue();
    void placeBelowControl();

    OADatePicker* m_datePicker;
    // The rest counts while the calendar is open.
    QPointer<OADatePickerTextField> m_control;
    /// Absent when the control had no date.
    std::optional<Instant> m_originalValue;
    bool m_hasPicked = false;
};

#pragma once

#include "editors/OASteppableTextField.h"
#include "foundation/Instant.h"

#include <QPointer>

#include <optional>

class OADatePickerButton;

/// A text field for a date. It is typed, stepped by a day or a month with the arrow keys, or picked
/// from a calendar, which the button at the field's end and Alt with the Down key open.
///
/// Whoever types, steps to or picks today means the day and not an hour of it: a time of day that
/// is still to come becomes the present one.
class OADatePickerTextField : public OASteppableTextField
{
    Q_OBJECT

public:
    explicit OADatePickerTextField(QWidget* parent = nullptr);
    ~OADatePickerTextField() override;

    /// What objectValue() is, as a date; absent for no date.
    std::optional<Instant> date() const;
    /// Shows a date without announcing it; the rules are those of setObjectValue().
    void setDate(std::optional<Instant> date);
    /// Shows a date and announces it, as when the person typed it.
    void enterDate(std::optional<Instant> date);
    /// Enters a date that the person picked.
    void pickDate(Instant date);

    /// The first and the last date that a step may lead to; absent for none. What is typed or
    /// picked may lie beyond.
    std::optional<Instant> minDate() const { return m_minDate; }
    void setMinDate(std::optional<Instant> date) { m_minDate = date; }
    std::optional<Instant> maxDate() const { return m_maxDate; }
    void setMaxDate(std::optional<Instant> date) { m_maxDate = date; }

    /// The date that the calendar begins with while the field has none: that of the default text
    /// field, else today at the time of day that typed dates have.
    Instant defaultDate() const;
    /// Null for none. It may be destroyed at any time.
    void setDefaultTextField(const OASteppableTextField* field) { m_defaultTextField = field; }

    /// Whether the calendar button is taken away.
    bool isDatePickerHidden() const { return m_isDatePickerHidden; }
    void setDatePickerHidden(bool isHidden);
    OADatePickerButton& calendarButton() const { return *m_calendarButton; }

    /// Whether the value is a date within the bounds.
    bool validateSteppedObjectValue(const PropertyValue& value) const override;

    /// Where the calendar button lies in a field whose text runs from left to right, when its image
    /// has this size.
    static QRect calendarRectForFrame(const QRect& frame, const QSize& imageSize);

public Q_SLOTS:
    /// Opens the calendar, or closes it when it is open for this field.
    void toggleDatePicker();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    class Formatter;

    Instant withoutTimeToCome(Instant date) const;
    void layOutCalendarButton();

    std::optional<Instant> m_minDate;
    std::optional<Instant> m_maxDate;
    QPointer<const OASteppableTextField> m_defaultTextField;
    OADatePickerButton* m_calendarButton;
    QMargins m_ownTextMargins;
    bool m_isDatePickerHidden = false;
};

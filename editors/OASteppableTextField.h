#pragma once

#include "editors/OATextFieldFormatter.h"
#include "store/PropertyValue.h"
#include "widgets/StyledTextField.h"

#include <memory>

/// A text field that holds a value: what its formatter reads in its text. The arrow keys Up and
/// Down step the value, by more while Shift is held.
///
/// The value follows the text as it is typed. A text that cannot be read makes it absent and stays,
/// so that it can be corrected; one that can is written anew, in the formatter's own hand, when the
/// field loses the focus or Return is pressed. What the field wrote last stands for the value that
/// it was written for, also when it is typed again: a text need not say all of a value.
///
/// A field without a formatter has its text for a value, and does not step.
class OASteppableTextField : public StyledTextField
{
    Q_OBJECT

public:
    using Step = OATextFieldFormatter::Step;

    explicit OASteppableTextField(QWidget* parent = nullptr);
    ~OASteppableTextField() override;

    /// Null for none.
    const OATextFieldFormatter* formatter() const { return m_formatter.get(); }
    /// Reads a text anew that could not be read, and writes the value anew unless it is absent.
    void setFormatter(std::unique_ptr<const OATextFieldFormatter> formatter);

    const PropertyValue& objectValue() const { return m_objectValue; }
    /// Shows a value without announcing it. Handing the field's own value back to it from a slot of
    /// objectValueDidChange() leaves alone what is being typed.
    void setObjectValue(const PropertyValue& value);

    /// Whether the text can be read, or there is none.
    bool isReadable() const;

    QString settledText() const override;

    /// Whether a step may lead to this value. Here it may lead to any.
    virtual bool validateSteppedObjectValue(const PropertyValue& value) const;
    /// Steps once, as a key does. False, with nothing changed, when the field cannot be edited, its
    /// text cannot be read, the formatter does not step, or the step may not lead where it would.
    bool stepObjectValue(Step step);

    /// The value that stepperAction() was given last; 0 at first.
    double stepperTracking() const { return m_stepperTracking; }

public Q_SLOTS:
    /// Steps up when an attached stepper says more than it did the last time, else down.
    void stepperAction(double stepperValue);

Q_SIGNALS:
    /// The person typed, stepped or picked, and objectValue() is what came of it. It need not be
    /// another one than before.
    void objectValueDidChange();

protected:
    /// Shows a value and announces it, as when the person typed it.
    void enterObjectValue(const PropertyValue& value);

    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void readText(const QString& text);
    QString textOfObjectValue() const;
    void showObjectValue();
    void showReadableValueAnew();
    void announce();

    std::unique_ptr<const OATextFieldFormatter> m_formatter;
    PropertyValue m_objectValue;
    /// What the field wrote last, and for which value.
    QString m_writtenText;
    PropertyValue m_writtenValue;
    double m_stepperTracking = 0.0;
    bool m_isShowing = false;
    bool m_isAnnouncing = false;
};

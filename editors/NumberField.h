#pragma once

#include "editors/OASteppableTextField.h"
#include "foundation/NSDecimalNumber.h"

#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <string_view>

class TypedTextGuard;

/// A field for a number, which is typed and shown as people write numbers where the person is, and
/// kept exactly as it was typed. The arrow keys step it by 1, and by 10. Its value is an
/// NSDecimalNumber.
///
/// A text that is no number is marked with the reason, keeps the focus in the form and cannot be
/// stepped.
class NumberField : public OASteppableTextField
{
    Q_OBJECT

public:
    /// Finds the number in a text, in plain notation; absent when there is none.
    using Parser = std::optional<std::string> (*)(const QString& text);
    /// Writes a number, given in plain notation.
    using Writer = std::function<QString(std::string_view number)>;

    /// Absent while the field is empty, or its text no number.
    std::optional<NSDecimalNumber> number() const;
    void setNumber(const std::optional<NSDecimalNumber>& number);

    /// Whether the text is a number, or there is none.
    bool isReadable() const;

    TypedTextGuard& guard() const { return *m_guard; }

    bool validateSteppedObjectValue(const PropertyValue& value) const override;

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

    NumberField(Parser parser, const Writer& writer, QWidget* parent);

    /// The number is written anew, unless what was typed is none.
    void setWriter(const Writer& writer);

private:
    QString refusal() const;
    void showBeginning();

    Parser m_parser;
    TypedTextGuard* m_guard;
};

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
    /// What a text says.
    struct Reading
    {
        std::optional<NSDecimalNumber> number;
        /// Why there is no number, in one line.
        QString refusal;
    };
    using Parser = std::function<Reading(const QString& text)>;
    /// Writes a number, given in plain notation.
    using Writer = std::function<QString(std::string_view number)>;

    /// Absent while the field is empty, or its text no number.
    std::optional<NSDecimalNumber> number() const;
    void setNumber(const std::optional<NSDecimalNumber>& number);

    TypedTextGuard& guard() const { return *m_guard; }

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

    NumberField(const Parser& parser, const Writer& writer, QWidget* parent);

    /// The number is written anew, unless what was typed is none.
    void setParserAndWriter(const Parser& parser, const Writer& writer);

    /// The number that stands there in plain notation; refused when it has too many digits, or is
    /// absent.
    static Reading readingOfPlainNumber(const std::optional<std::string>& plain);

private:
    QString refusal() const;
    void showBeginning();

    Parser m_parser;
    TypedTextGuard* m_guard;
};

#include "editors/NumberField.h"

#include "editors/TypedTextGuard.h"
#include "foundation/OASteppableTextFieldFormatter.h"

#include <QFocusEvent>

#include <utility>

namespace {

class NumberTextFormatter : public OATextFieldFormatter
{
public:
    NumberTextFormatter(NumberField::Parser parser, NumberField::Writer writer)
        : m_parser(std::move(parser))
        , m_writer(std::move(writer))
    {}

    QString stringForObjectValue(const PropertyValue& value) const override
    {
        const auto number = propertyValueAs<NSDecimalNumber>(value);
        return number ? m_writer(number->toPlainText()) : QString();
    }

    PropertyValue objectValueForString(const QString& text) const override
    {
        return propertyValue(m_parser(text).number);
    }

    std::optional<PropertyValue> steppedValue(const PropertyValue& value, Step step) const override
    {
        using namespace OASteppableTextFieldFormatter;
        const auto number = propertyValueAs<NSDecimalNumber>(value);
        switch (step) {
        case Step::Up:
            return stepUpValue(number);
        case Step::LargeUp:
            return largeStepUpValue(number);
        case Step::Down:
            return stepDownValue(number);
        case Step::LargeDown:
            return largeStepDownValue(number);
        }
        return std::nullopt;
    }

private:
    NumberField::Parser m_parser;
    NumberField::Writer m_writer;
};

} // namespace

NumberField::NumberField(const Parser& parser, const Writer& writer, QWidget* parent)
    : OASteppableTextField(parent)
    , m_guard(new TypedTextGuard(*this, [this] { return refusal(); }))
{
    // Also for digits that read from the right: the decimals stand below each other.
    setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    setNumber(std::nullopt);
    setParserAndWriter(parser, writer);
}

std::optional<NSDecimalNumber> NumberField::number() const
{
    return propertyValueAs<NSDecimalNumber>(objectValue());
}

void NumberField::setNumber(const std::optional<NSDecimalNumber>& number)
{
    setObjectValue(propertyValue(number));
    if (!hasFocus()) {
        showBeginning();
    }
}

void NumberField::focusOutEvent(QFocusEvent* event)
{
    OASteppableTextField::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
        showBeginning();
    }
}

void NumberField::mouseDoubleClickEvent(QMouseEvent* event)
{
    OASteppableTextField::mouseDoubleClickEvent(event);
    // To a text field, the digits between two separators are a word; a person means the number.
    selectAll();
}

/// A number that is too long for the field would else show its last digits, without its sign.
void NumberField::showBeginning()
{
    setCursorPosition(0);
}

void NumberField::setParserAndWriter(const Parser& parser, const Writer& writer)
{
    m_parser = parser;
    setFormatter(std::make_unique<NumberTextFormatter>(parser, writer));
}

NumberField::Reading NumberField::readingOfPlainNumber(const std::optional<std::string>& plain)
{
    const auto number = plain ? NSDecimalNumber::fromText(*plain) : std::nullopt;
    if (number) {
        return {.number = number, .refusal = {}};
    }
    return {.number = std::nullopt,
            .refusal =
                plain ? tr("A number has at most %1 digits.").arg(NSDecimalNumber::maximumDigits)
                      : tr("This is not a number.")};
}

QString NumberField::refusal() const
{
    return isReadable() ? QString() : m_parser(text()).refusal;
}

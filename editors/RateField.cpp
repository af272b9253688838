#include "editors/RateField.h"

#include "foundation/NumberFormatter.h"
#include "foundation/NumberParser.h"

namespace {

/// Moves the decimal point by as many places as the exponent says: no digit changes.
std::optional<NSDecimalNumber> scaled(const NSDecimalNumber& number, const char* exponent)
{
    return NSDecimalNumber::fromText(number.toPlainText() + exponent);
}

} // namespace

RateField::RateField(QWidget* parent)
    : NumberField(
          [](const QString& text) { return readingOfPlainNumber(NumberParser::rate(text)); },
          &NumberFormatter::rateText, parent)
{}

std::optional<double> RateField::rate() const
{
    const auto percentage = number();
    if (!percentage) {
        return std::nullopt;
    }
    const auto fraction = scaled(*percentage, "e-2");
    return fraction ? fraction->doubleValue() : percentage->doubleValue() / 100.0;
}

void RateField::setRate(const std::optional<double>& rate)
{
    const auto fraction = rate ? NSDecimalNumber::fromDouble(*rate) : std::nullopt;
    setNumber(fraction ? scaled(*fraction, "e2") : std::nullopt);
}

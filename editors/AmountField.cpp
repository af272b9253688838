#include "editors/AmountField.h"

#include "foundation/NumberFormatter.h"
#include "foundation/NumberParser.h"

namespace {

NumberField::Writer writerForCurrency(const std::optional<QString>& code)
{
    return [code](std::string_view amount) {
        return NumberFormatter::amountText(amount, code);
    };
}

} // namespace

AmountField::AmountField(QWidget* parent)
    : NumberField(&NumberParser::amount, writerForCurrency(std::nullopt), parent)
{}

void AmountField::setCurrency(const std::optional<QString>& code)
{
    setWriter(writerForCurrency(code));
}

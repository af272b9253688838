#include "editors/AmountField.h"

#include "foundation/Currency.h"
#include "foundation/NumberFormatter.h"
#include "foundation/NumberParser.h"

#include <algorithm>

namespace {

int decimalsOf(const std::string& number)
{
    const auto point = number.find('.');
    return point == std::string::npos ? 0 : static_cast<int>(number.size() - point - 1);
}

} // namespace

AmountField::AmountField(QWidget* parent)
    : NumberField(parserForCurrency(std::nullopt), writerForCurrency(std::nullopt), parent)
{}

void AmountField::setCurrency(const std::optional<QString>& code)
{
    setParserAndWriter(parserForCurrency(code), writerForCurrency(code));
}

NumberField::Parser AmountField::parserForCurrency(const std::optional<QString>& code)
{
    return [code](const QString& text) {
        const auto amount = NumberParser::amount(text);
        const auto refused = amount ? refusal(*amount, code) : QString();
        return refused.isEmpty()
                   ? readingOfPlainNumber(amount ? std::optional(amount->number) : std::nullopt)
                   : Reading{.number = std::nullopt, .refusal = refused};
    };
}

NumberField::Writer AmountField::writerForCurrency(const std::optional<QString>& code)
{
    return [code](std::string_view amount) {
        return NumberFormatter::amountText(amount, code);
    };
}

/// Why the amount cannot be one in this currency; empty when it can.
QString AmountField::refusal(const NumberParser::Amount& amount, const std::optional<QString>& code)
{
    const auto own = code ? *code : Currency::localCode().value_or(QString());
    const auto foreign = std::ranges::find_if(amount.currencies, [&own](const QString& currency) {
        return Currency::isWellFormed(own) && !Currency::isSignOrCodeOf(currency, own);
    });
    if (foreign != amount.currencies.end()) {
        return tr("Amounts here are in %1, not in %2.").arg(own.toUpper(), *foreign);
    }
    const auto thousands = amount.numberInThousands
                               ? NumberFormatter::amountText(*amount.numberInThousands, code)
                               : QString();
    if (!amount.areDecimalsSure) {
        return tr("This can mean %1 or %2.")
            .arg(thousands, NumberFormatter::amountText(amount.number, code));
    }
    const int decimals = Currency::decimals(code);
    if (decimalsOf(amount.number) <= decimals) {
        return {};
    }
    const auto reason = decimals == 0
                            ? tr("An amount here has no decimals.")
                            : tr("An amount here has at most %n decimals.", nullptr, decimals);
    return amount.numberInThousands
               ? tr("%1 %2", "two sentences").arg(reason, tr("Did you mean %1?").arg(thousands))
               : reason;
}

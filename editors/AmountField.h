#pragma once

#include "editors/NumberField.h"
#include "foundation/NumberParser.h"

/// A field for an amount of money.
///
/// It shows the amount without a currency sign, with as many decimals as the currency has, or more
/// if the amount has more. What is typed may have a sign of the currency beside it. Refused are
/// another currency's, more decimals than the currency has, and a number that can mean two things:
/// an amount is never taken for a thousandth of what was meant.
class AmountField : public NumberField
{
    Q_OBJECT

public:
    explicit AmountField(QWidget* parent = nullptr);

    /// The currency's ISO code; absent, as at first, the one that is used where the person is. With
    /// a code that can be none, the sign of every currency is taken.
    void setCurrency(const std::optional<QString>& code);

private:
    static Parser parserForCurrency(const std::optional<QString>& code);
    static Writer writerForCurrency(const std::optional<QString>& code);
    static QString refusal(const NumberParser::Amount& amount, const std::optional<QString>& code);
};

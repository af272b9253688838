#pragma once

#include "editors/NumberField.h"

/// A field for an amount of money.
///
/// It shows the amount without a currency sign, with as many decimals as the currency has, or more
/// if the amount has more.
class AmountField : public NumberField
{
    Q_OBJECT

public:
    explicit AmountField(QWidget* parent = nullptr);

    /// The currency's ISO code; absent, as at first, the one that is used where the person is.
    void setCurrency(const std::optional<QString>& code);
};

#pragma once

#include "editors/NumberField.h"

/// A field for a rate, which is typed and shown as a percentage, with all its decimals. Its number
/// is the percentage.
class RateField : public NumberField
{
    Q_OBJECT

public:
    explicit RateField(QWidget* parent = nullptr);

    /// The rate as a fraction: the double nearest to the hundredth part of the percentage as it was
    /// typed. What setRate() was given comes back bit by bit. Absent when there is no number.
    std::optional<double> rate() const;
    /// A rate that is out of NSDecimalNumber's range is shown as none.
    void setRate(const std::optional<double>& rate);
};

#pragma once

#include "foundation/Instant.h"
#include "foundation/NSDecimalNumber.h"
#include "store/NSManagedObject.h"

#include <QString>

#include <optional>
#include <string_view>
#include <vector>

class CVCard;

/// A month's statement of a card.
///
/// Amounts are exact decimals in the card's currency; wherever they are compared or computed with
/// they become doubles first, an absent one becoming 0.
class CVStatement : public NSManagedObject
{
public:
    using NSManagedObject::NSManagedObject;

    /// The class for entities that name it.
    static ManagedObjectClass managedObjectClass();

    std::optional<Instant> date() const;
    void setDate(const std::optional<Instant>& date);
    /// The amount owed.
    std::optional<NSDecimalNumber> balance() const;
    void setBalance(const std::optional<NSDecimalNumber>& balance);
    /// The credit limit.
    std::optional<NSDecimalNumber> limit() const;
    void setLimit(const std::optional<NSDecimalNumber>& limit);
    /// What the person pays each month.
    std::optional<NSDecimalNumber> payment() const;
    void setPayment(const std::optional<NSDecimalNumber>& payment);
    /// A fraction per year: 0.199 is 19.9 %.
    std::optional<double> annualPercentageRate() const;
    void setAnnualPercentageRate(const std::optional<double>& rate);

    /// The monthly rate that compounds to the annual one: (1 + annual)^(1/12) - 1. The forecast
    /// uses another one, the twelfth part.
    double monthlyPercentageRate() const;
    /// Sets the annual rate to (1 + monthly)^12 - 1.
    void setMonthlyPercentageRate(double rate);

    /// Null when the statement belongs to no card.
    CVCard* card() const;
    void setCard(CVCard* card);

    /// The amount in the card's currency; in the currency of the person's locale when the statement
    /// has no card. Absent when the amount is.
    std::optional<QString> formattedBalance() const;
    std::optional<QString> formattedLimit() const;
    std::optional<QString> formattedPayment() const;
    /// "£500.00 ÷ £1,000.00 = 50.0%": the balance, the limit, and how much of it is used (0 % of a
    /// limit of 0).
    QString formattedBalanceAndLimit() const;
    /// "19.9% APR".
    QString formattedAPR() const;

    /// Takes the rate, the payment and the date of another statement, not its balance and limit.
    void updateAttributesWithStatement(const CVStatement& other);

    // The rules that keep the amounts consistent. Each looks at a proposed value, may correct it or
    // the statement, and always answers yes.

    /// A balance above the limit raises the limit to itself, at once.
    bool validateBalance(std::optional<NSDecimalNumber>& proposal);
    /// A limit below the balance becomes the balance.
    bool validateLimit(std::optional<NSDecimalNumber>& proposal) const;
    /// A payment of 0 means paying in full: it becomes the balance.
    bool validatePayment(std::optional<NSDecimalNumber>& proposal) const;

    /// What the three rules make of the amounts that a statement holds.
    struct Corrections
    {
        /// Absent when the amount stays as it is.
        std::optional<NSDecimalNumber> limit;
        std::optional<NSDecimalNumber> payment;
    };
    Corrections corrections() const;
    /// Makes the corrections. New statements are not asked: they are saved as they are.
    bool validateForUpdate() override;

    PropertyValue valueForKey(std::string_view key) const override;
    void setValueForKey(const PropertyValue& value, std::string_view key) override;
    std::vector<std::string_view>
    keyPathsForValuesAffectingValueForKey(std::string_view key) const override;

private:
    std::optional<QString> formattedAmount(const std::optional<NSDecimalNumber>& amount) const;
};

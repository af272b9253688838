#pragma once

#include "foundation/Instant.h"

#include <QString>

#include <cstdint>
#include <optional>

class CVStatement;
class NSManagedObjectContext;

/// The count of a balance that its payments never clear.
constexpr std::int64_t CVNeverClears = -1;

/// How long a debt takes to pay off at today's payments, and when a person is free of all of them.
namespace DebtForecast {

/// The number of monthly payments, the last one included, until the balance is cleared.
///
/// Each month a twelfth of the yearly rate is added as interest on what is left, and the payment
/// taken off. 0 when there is no payment or no balance; CVNeverClears when a payment does not lower
/// the balance, and when the count would not fit into 32 bits.
///
/// `balance` and `payment` in the card's currency, `annualRate` as a fraction per year.
std::int64_t numberOfPaymentsToClear(double balance, double annualRate, double payment);

/// The same for the numbers of a statement; absent ones count as 0.
std::int64_t numberOfPaymentsToClear(const CVStatement& statement);

/// What a number of monthly payments, reckoned from a date, means to a person: "4 m ⟶ 15/07/2013";
/// "never", also when it takes longer than calendars reach; or nothing when there is nothing to
/// forecast, or no date to reckon from.
QString formattedForecast(std::int64_t payments, const std::optional<Instant>& date);

/// The same for the numbers of a statement and its date.
QString formattedForecast(const CVStatement& statement);

/// "Debt-free 15/07/2013": the day on which the last of the cards is cleared, from each card's last
/// statement; one that is cleared already counts with that statement's date. "Debt-free never" when
/// one never is; nothing when no card has a dated statement, or on failure.
QString formattedDebtFreeDate(NSManagedObjectContext& context);

} // namespace DebtForecast

#include "model/DebtForecast.h"

#include "foundation/DateFormatter.h"
#include "foundation/Instant.h"
#include "model/Amounts.h"
#include "model/CVManagedObjectContext.h"
#include "model/CVStatement.h"
#include "model/Calculations.h"

#include <QCoreApplication>

#include <cmath>
#include <limits>
#include <optional>

namespace DebtForecast {

namespace {

/// Up to this many months the balance is followed month by month; beyond, the formula answers, so
/// that no read takes long.
constexpr double maximumSteps = 1'000'000;

constexpr double maximumCount = std::numeric_limits<std::int32_t>::max();

/// The number of payments by the formula of an annuity, n = -ln(1 - B m / P) / ln(1 + m), and
/// B / P without interest. Only for a payment that lowers the balance; not a whole number, and no
/// number at all when the balance falls towards an amount that it never passes.
double paymentsByFormula(double balance, double monthlyRate, double payment)
{
    if (monthlyRate == 0.0) {
        return balance / payment;
    }
    return -std::log1p(-balance * monthlyRate / payment) / std::log1p(monthlyRate);
}

std::int64_t countFromFormula(double payments)
{
    const double count = std::ceil(payments);
    return count <= maximumCount ? static_cast<std::int64_t>(count) : CVNeverClears;
}

/// When payments end that go on for ever, or for longer than any calendar reaches.
constexpr Instant never(std::numeric_limits<double>::infinity());

/// When payments reckoned from a date end; absent when that cannot be told without one.
std::optional<Instant> clearingDate(std::int64_t payments, const std::optional<Instant>& date)
{
    if (payments == CVNeverClears) {
        return never;
    }
    return date
               ? std::optional(Calculations::monthsSince(*date, static_cast<std::int32_t>(payments))
                                   .value_or(never))
               : std::nullopt;
}

} // namespace

std::int64_t numberOfPaymentsToClear(double balance, double annualRate, double payment)
{
    if (payment == 0.0 || !(balance > 0.0)) {
        return 0;
    }
    const double monthlyRate = annualRate / 12.0;
    std::int64_t count = 1;
    while (!(payment >= balance)) {
        const double rest = balance + (balance * monthlyRate - payment);
        if (!(rest > 0.0)) {
            return count;
        }
        if (rest >= balance) {
            return CVNeverClears;
        }
        if (count == 1) {
            const double payments = paymentsByFormula(balance, monthlyRate, payment);
            if (!(payments <= maximumSteps)) {
                return countFromFormula(payments);
            }
        }
        balance = rest;
        ++count;
    }
    return count;
}

std::int64_t numberOfPaymentsToClear(const CVStatement& statement)
{
    return numberOfPaymentsToClear(doubleValue(statement.balance()),
                                   statement.annualPercentageRate().value_or(0.0),
                                   doubleValue(statement.payment()));
}

QString formattedForecast(std::int64_t payments, const std::optional<Instant>& date)
{
    const auto end = clearingDate(payments, date);
    if (payments == 0 || !end) {
        return {};
    }
    if (*end == never) {
        return QCoreApplication::translate("DebtForecast", "never");
    }
    const int months = static_cast<int>(payments);
    //: In the space of a card's row: the months until it is paid off, and the day when it is. The
    //: arrow points where reading goes on.
    return QCoreApplication::translate("DebtForecast", "%n m ⟶ %1", nullptr, months)
        .arg(DateFormatter::shortText(*end));
}

QString formattedForecast(const CVStatement& statement)
{
    return formattedForecast(numberOfPaymentsToClear(statement), statement.date());
}

QString formattedDebtFreeDate(NSManagedObjectContext& context)
{
    std::optional<Instant> latest;
    for (const auto* const statement : CVManagecObjectContextInternal::lastStatements(context)) {
        const auto date = clearingDate(numberOfPaymentsToClear(*statement), statement->date());
        if (date && (!latest || *date > *latest)) {
            latest = date;
        }
    }
    if (!latest) {
        return {};
    }
    return *latest == never ? QCoreApplication::translate("DebtForecast", "Debt-free never")
                            : QCoreApplication::translate("DebtForecast", "Debt-free %1")
                                  .arg(DateFormatter::shortText(*latest));
}

} // namespace DebtForecast

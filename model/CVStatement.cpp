#include "model/CVStatement.h"

#include "foundation/NumberFormatter.h"
#include "model/Amounts.h"
#include "model/CVCard.h"

#include <QCoreApplication>

#include <array>
#include <cmath>
#include <memory>

namespace {

// The entity's attributes, in order.
enum Attribute : std::size_t
{
    Date,
    Balance,
    Limit,
    Payment,
    AnnualPercentageRate,
    MonthlyPercentageRate,
};

constexpr std::string_view monthlyPercentageRateKey = "monthlyPercentageRate";

/// Stands for an amount that is not known.
const QString absentAmount = QStringLiteral("–");

} // namespace

ManagedObjectClass CVStatement::managedObjectClass()
{
    return {
        "CVStatement",
        {"date", "balance", "limit", "payment", "annualPercentageRate", monthlyPercentageRateKey},
        [](RecordTable& table) {
            return std::make_unique<CVStatement>(table);
        }};
}

std::optional<Instant> CVStatement::date() const
{
    return attribute<Instant>(Date);
}

void CVStatement::setDate(const std::optional<Instant>& date)
{
    setAttribute(Date, propertyValue(date));
}

std::optional<NSDecimalNumber> CVStatement::balance() const
{
    return attribute<NSDecimalNumber>(Balance);
}

void CVStatement::setBalance(const std::optional<NSDecimalNumber>& balance)
{
    setAttribute(Balance, propertyValue(balance));
}

std::optional<NSDecimalNumber> CVStatement::limit() const
{
    return attribute<NSDecimalNumber>(Limit);
}

void CVStatement::setLimit(const std::optional<NSDecimalNumber>& limit)
{
    setAttribute(Limit, propertyValue(limit));
}

std::optional<NSDecimalNumber> CVStatement::payment() const
{
    return attribute<NSDecimalNumber>(Payment);
}

void CVStatement::setPayment(const std::optional<NSDecimalNumber>& payment)
{
    setAttribute(Payment, propertyValue(payment));
}

std::optional<double> CVStatement::annualPercentageRate() const
{
    return attribute<double>(AnnualPercentageRate);
}

void CVStatement::setAnnualPercentageRate(const std::optional<double>& rate)
{
    setAttribute(AnnualPercentageRate, propertyValue(rate));
}

double CVStatement::monthlyPercentageRate() const
{
    return std::pow(1.0 + annualPercentageRate().value_or(0.0), 1.0 / 12.0) - 1.0;
}

void CVStatement::setMonthlyPercentageRate(double rate)
{
    setAttribute(MonthlyPercentageRate, rate);
    setAnnualPercentageRate(std::pow(1.0 + rate, 12.0) - 1.0);
}

CVCard* CVStatement::card() const
{
    return static_cast<CVCard*>(relatedObject("card"));
}

void CVStatement::setCard(CVCard* card)
{
    setRelatedObject("card", card);
}

std::optional<QString>
CVStatement::formattedAmount(const std::optional<NSDecimalNumber>& amount) const
{
    if (!amount) {
        return std::nullopt;
    }
    const auto* const owner = card();
    return NumberFormatter::currencyText(amount->toPlainText(),
                                         owner ? owner->ccy() : std::nullopt);
}

std::optional<QString> CVStatement::formattedBalance() const
{
    return formattedAmount(balance());
}

std::optional<QString> CVStatement::formattedLimit() const
{
    return formattedAmount(limit());
}

std::optional<QString> CVStatement::formattedPayment() const
{
    return formattedAmount(payment());
}

QString CVStatement::formattedBalanceAndLimit() const
{
    const double limitAmount = doubleValue(limit());
    const double usage = limitAmount == 0.0 ? 0.0 : doubleValue(balance()) / limitAmount * 100.0;
    return QCoreApplication::translate("CVStatement", "%1 ÷ %2 = %3%")
        .arg(formattedBalance().value_or(absentAmount), formattedLimit().value_or(absentAmount),
             NumberFormatter::percentText(usage));
}

QString CVStatement::formattedAPR() const
{
    return QCoreApplication::translate("CVStatement", "%1% APR")
        .arg(NumberFormatter::percentText(annualPercentageRate().value_or(0.0) * 100.0));
}

void CVStatement::updateAttributesWithStatement(const CVStatement& other)
{
    setAnnualPercentageRate(other.annualPercentageRate());
    setPayment(other.payment());
    setDate(other.date());
}

bool CVStatement::validateBalance(std::optional<NSDecimalNumber>& proposal)
{
    if (proposal && doubleValue(proposal) > doubleValue(limit())) {
        setLimit(proposal);
    }
    return true;
}

bool CVStatement::validateLimit(std::optional<NSDecimalNumber>& proposal) const
{
    if (balance() && doubleValue(balance()) > doubleValue(proposal)) {
        proposal = balance();
    }
    return true;
}

bool CVStatement::validatePayment(std::optional<NSDecimalNumber>& proposal) const
{
    if (doubleValue(proposal) == 0.0 && doubleValue(balance()) > 0.0) {
        proposal = balance();
    }
    return true;
}

CVStatement::Corrections CVStatement::corrections() const
{
    // A balance above the limit needs no look of its own: the limit then lies below the balance.
    auto proposedLimit = limit();
    auto proposedPayment = payment();
    validateLimit(proposedLimit);
    validatePayment(proposedPayment);
    Corrections corrections;
    if (proposedLimit != limit()) {
        corrections.limit = proposedLimit;
    }
    if (proposedPayment != payment()) {
        corrections.payment = proposedPayment;
    }
    return corrections;
}

bool CVStatement::validateForUpdate()
{
    const bool isValid = NSManagedObject::validateForUpdate();
    const auto corrected = corrections();
    if (corrected.limit) {
        setLimit(corrected.limit);
    }
    if (corrected.payment) {
        setPayment(corrected.payment);
    }
    return isValid;
}

PropertyValue CVStatement::valueForKey(std::string_view key) const
{
    if (key == monthlyPercentageRateKey) {
        // By key an unknown rate is absent, so that a copy of it is none either.
        return annualPercentageRate() ? PropertyValue(monthlyPercentageRate()) : PropertyValue();
    }
    return NSManagedObject::valueForKey(key);
}

void CVStatement::setValueForKey(const PropertyValue& value, std::string_view key)
{
    if (const auto* const rate = std::get_if<double>(&value);
        rate && key == monthlyPercentageRateKey) {
        setMonthlyPercentageRate(*rate);
        return;
    }
    NSManagedObject::setValueForKey(value, key);
}

std::vector<std::string_view>
CVStatement::keyPathsForValuesAffectingValueForKey(std::string_view key) const
{
    static constexpr auto dependencies = std::to_array<KeyDependency>({
        {monthlyPercentageRateKey, "annualPercentageRate"},
        {"formattedBalance", "balance"},
        {"formattedLimit", "limit"},
        {"formattedBalanceAndLimit", "limit"},
        {"formattedBalanceAndLimit", "balance"},
    });
    auto paths = NSManagedObject::keyPathsForValuesAffectingValueForKey(key);
    addDependencies(paths, key, dependencies);
    return paths;
}

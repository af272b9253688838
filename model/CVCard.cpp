#include "model/CVCard.h"

#include "foundation/Log.h"
#include "model/CVStatement.h"
#include "model/Calculations.h"
#include "model/DebtForecast.h"
#include "store/NSManagedObjectContext.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <memory>

namespace {

// The entity's attributes, in order.
enum Attribute : std::size_t
{
    Name,
    Account,
    Ccy,
};

void logStatementNotFound(int line, const char* method)
{
    Log::line(QStringLiteral("%1(%2) %3: Statement not found")
                  .arg(QFileInfo(QStringLiteral(__FILE__)).fileName(), QString::number(line),
                       QLatin1String(method)));
}

} // namespace

ManagedObjectClass CVCard::managedObjectClass()
{
    return {"CVCard", {"name", "account", "ccy"}, [](RecordTable& table) {
                return std::make_unique<CVCard>(table);
            }};
}

std::optional<QString> CVCard::name() const
{
    return attribute<QString>(Name);
}

void CVCard::setName(const std::optional<QString>& name)
{
    setAttribute(Name, propertyValue(name));
}

QString CVCard::displayName() const
{
    if (isDeleted()) {
        return {};
    }
    const auto name = this->name().value_or(QString());
    return name.trimmed().isEmpty() ? QCoreApplication::translate("CVCard", "Unnamed card") : name;
}

std::optional<QString> CVCard::account() const
{
    return attribute<QString>(Account);
}

void CVCard::setAccount(const std::optional<QString>& account)
{
    setAttribute(Account, propertyValue(account));
}

std::optional<QString> CVCard::ccy() const
{
    return attribute<QString>(Ccy);
}

void CVCard::setCcy(const std::optional<QString>& ccy)
{
    setAttribute(Ccy, propertyValue(ccy));
}

std::vector<CVStatement*> CVCard::statements() const
{
    std::vector<CVStatement*> result;
    const auto& members = relatedObjects("statements");
    result.reserve(members.size());
    for (auto* const member : members) {
        result.push_back(static_cast<CVStatement*>(member));
    }
    return result;
}

std::vector<CVStatement*> CVCard::sortedStatements() const
{
    auto result = statements();
    // They come from the file in this order already.
    if (!std::ranges::is_sorted(result, {}, &CVStatement::date)) {
        std::ranges::stable_sort(result, {}, &CVStatement::date);
    }
    return result;
}

CVStatement& CVCard::firstStatement() const
{
    return *sortedStatements().at(0);
}

CVStatement* CVCard::lastStatement() const
{
    return static_cast<CVStatement*>(
        managedObjectContext().relatedObjectWithMaximum(*this, "statements", "date"));
}

std::optional<Instant> CVCard::firstStatementDate() const
{
    return firstStatement().date();
}

std::optional<Instant> CVCard::lastStatementDate() const
{
    const auto* const last = lastStatement();
    return last ? last->date() : std::nullopt;
}

double CVCard::timeIntervalBetweenFirstAndLastStatements() const
{
    const auto sorted = sortedStatements();
    const auto first = sorted.at(0)->date();
    const auto last = sorted.back()->date();
    return first && last ? *last - *first : 0.0;
}

CVStatement* CVCard::statementForDate(Instant date) const
{
    for (auto* const statement : sortedStatements()) {
        const auto statementDate = statement->date();
        if (statementDate && Calculations::isSameMonth(*statementDate, date)) {
            return statement;
        }
    }
    return nullptr;
}

CVStatement* CVCard::nextStatement(const CVStatement& statement) const
{
    const auto sorted = sortedStatements();
    const auto found = std::ranges::find(sorted, &statement);
    if (found == sorted.end()) {
        logStatementNotFound(__LINE__, "-[CVCard(Utilities) nextStatement:]");
        return nullptr;
    }
    const auto next = found + 1;
    return next == sorted.end() ? nullptr : *next;
}

CVStatement* CVCard::previousStatement(const CVStatement& statement) const
{
    const auto sorted = sortedStatements();
    const auto found = std::ranges::find(sorted, &statement);
    if (found == sorted.end()) {
        logStatementNotFound(__LINE__, "-[CVCard(Utilities) previousStatement:]");
        return nullptr;
    }
    return found == sorted.begin() ? nullptr : *(found - 1);
}

std::optional<NSDecimalNumber> CVCard::limit() const
{
    const auto* const last = lastStatement();
    return last ? last->limit() : std::nullopt;
}

std::optional<double> CVCard::lastStatementAPR() const
{
    const auto* const last = lastStatement();
    return last ? last->annualPercentageRate() : std::nullopt;
}

std::optional<QString> CVCard::formattedBalanceAndLimit() const
{
    const auto* const last = lastStatement();
    return last ? std::optional(last->formattedBalanceAndLimit()) : std::nullopt;
}

std::optional<QString> CVCard::formattedAPR() const
{
    const auto* const last = lastStatement();
    return last ? std::optional(last->formattedAPR()) : std::nullopt;
}

std::int64_t CVCard::numberOfPaymentsToClear() const
{
    const auto* const last = lastStatement();
    return last ? DebtForecast::numberOfPaymentsToClear(*last) : 0;
}

QString CVCard::formattedForecast() const
{
    const auto* const last = lastStatement();
    return last ? DebtForecast::formattedForecast(*last) : QString();
}

PropertyValue CVCard::valueForKey(std::string_view key) const
{
    return key == "displayName" ? displayName() : NSManagedObject::valueForKey(key);
}

std::vector<std::string_view>
CVCard::keyPathsForValuesAffectingValueForKey(std::string_view key) const
{
    static constexpr auto dependencies = std::to_array<KeyDependency>({
        {"displayName", "name"},
        {"firstStatement", "statements"},
        {"lastStatement", "statements"},
        {"sortedStatements", "statements"},
        {"timeIntervalBetweenFirstAndLastStatements", "statements"},
        {"formattedBalanceAndLimit", "statements"},
        {"numberOfPaymentsToClear", "statements"},
        {"formattedForecast", "statements"},
        {"formattedAPR", "statements"},
        {"firstStatementDate", "firstStatement"},
        {"limit", "lastStatement"},
        {"lastStatementDate", "lastStatement"},
        {"lastStatementAPR", "lastStatement"},
    });
    auto paths = NSManagedObject::keyPathsForValuesAffectingValueForKey(key);
    addDependencies(paths, key, dependencies);
    return paths;
}

KeyValueObservable* CVCard::observableValueForKey(std::string_view key)
{
    if (key == "lastStatement") {
        return lastStatement();
    }
    if (key == "firstStatement") {
        return statements().empty() ? nullptr : &firstStatement();
    }
    return NSManagedObject::observableValueForKey(key);
}

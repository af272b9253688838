#include "model/CVManagedObjectContext.h"

#include "foundation/Log.h"
#include "model/Amounts.h"
#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "model/Calculations.h"
#include "store/NSError.h"
#include "store/NSManagedObjectContext.h"
#include "store/ReadTransaction.h"

#include <QString>

#include <functional>

namespace {

/// The timeline's margins at both ends together, in points.
constexpr double margins = 16.0;

/// Seconds per point when there is no span to show.
constexpr double scaleWithoutSpan = 43200.0;

/// What `count` answers; nothing, that is 0 or false, when the store fails.
template <typename Count>
auto orNothing(const Count& count, const QString& plural) -> decltype(count())
{
    try {
        return count();
    } catch (const NSError& error) {
        Log::line(QString(u"Unable to count " + plural + u": " + error.description()));
        return {};
    }
}

void logUnfetchedCards(const NSError& error)
{
    Log::line(QString(u"Unable to fetch cards with statements: " + error.description()));
}

std::optional<Instant> savedStatementDate(NSManagedObjectContext& context, const char* keyPath,
                                          const char* name)
{
    return propertyValueAs<Instant>(
        CVManagecObjectContextInternal::fetchStatementAttributeWithKeyPathExpression(
            context, keyPath, NSAttributeType::Date, name));
}

/// The date, or that of a statement which could not be saved, whichever comes before all others.
template <typename ComesBefore>
std::optional<Instant> withUnsavedDates(std::optional<Instant> date,
                                        const NSManagedObjectContext& context,
                                        ComesBefore comesBefore)
{
    if (!context.didLastSaveFail()) {
        return date;
    }
    for (const auto& records : {context.insertedObjects(), context.updatedObjects()}) {
        for (const auto* const record : records) {
            const auto* const statement = dynamic_cast<const CVStatement*>(record);
            const auto unsaved = statement ? statement->date() : std::nullopt;
            if (unsaved && (!date || comesBefore(*unsaved, *date))) {
                date = unsaved;
            }
        }
    }
    return date;
}

} // namespace

namespace CVManagedObjectContext {

std::optional<Instant> firstStatementDate(NSManagedObjectContext& context)
{
    return withUnsavedDates(savedStatementDate(context, "@min.date", "minDate"), context,
                            std::less());
}

std::optional<Instant> lastStatementDate(NSManagedObjectContext& context)
{
    return withUnsavedDates(savedStatementDate(context, "@max.date", "maxDate"), context,
                            std::greater());
}

double timeIntervalBetweenFirstAndLastStatements(NSManagedObjectContext& context)
{
    const auto first = firstStatementDate(context);
    const auto last = lastStatementDate(context);
    return first && last ? *last - *first : 0.0;
}

double timeIntervalBetweenFirstAndLastStatementMonths(NSManagedObjectContext& context)
{
    const auto first = firstStatementDate(context);
    const auto last = lastStatementDate(context);
    return first && last ? Calculations::endOfMonth(*last) - Calculations::beginningOfMonth(*first)
                         : 0.0;
}

double timeIntervalPerPointInCellFrame(NSManagedObjectContext& context, const QRectF& frame)
{
    const double span = timeIntervalBetweenFirstAndLastStatementMonths(context);
    return span == 0.0 ? scaleWithoutSpan : span / (frame.width() - margins);
}

std::size_t cardCount(NSManagedObjectContext& context)
{
    return orNothing([&] { return context.countForFetchRequest({"Card"}); },
                     QStringLiteral("cards"));
}

std::size_t statementCount(NSManagedObjectContext& context)
{
    return orNothing([&] { return context.countForFetchRequest({"Statement"}); },
                     QStringLiteral("statements"));
}

bool hasStatements(NSManagedObjectContext& context)
{
    return orNothing([&] { return context.hasObjectsForFetchRequest({"Statement"}); },
                     QStringLiteral("statements"));
}

std::optional<std::vector<CVCard*>> allCardsWithStatements(NSManagedObjectContext& context)
{
    try {
        std::vector<CVCard*> cards;
        for (auto* const record : context.executeFetchRequest({"Card"})) {
            cards.push_back(static_cast<CVCard*>(record));
        }
        return cards;
    } catch (const NSError& error) {
        logUnfetchedCards(error);
        return std::nullopt;
    }
}

std::array<double, 2> totalDebtAndCredit(NSManagedObjectContext& context)
{
    double debt = 0.0;
    double credit = 0.0;
    for (const auto* const last : CVManagecObjectContextInternal::lastStatements(context)) {
        debt += doubleValue(last->balance());
        credit += doubleValue(last->limit());
    }
    return {debt, credit};
}

bool saveAndLogError(NSManagedObjectContext& context)
{
    try {
        context.save();
        return true;
    } catch (const NSError& error) {
        Log::line(u"Unable to save MOC");
        Log::line(QString(u"Error: " + error.description()));
        return false;
    }
}

} // namespace CVManagedObjectContext

namespace CVManagecObjectContextInternal {

PropertyValue fetchStatementAttributeWithKeyPathExpression(NSManagedObjectContext& context,
                                                           const std::string& keyPath,
                                                           NSAttributeType type,
                                                           const std::string& name)
{
    try {
        return context.executeDictionaryFetchRequest({"Statement"}, {{name, keyPath, type}})
            .at(name);
    } catch (const NSError& error) {
        Log::line(QString(u"Unable to fetch attribute: " + error.description()));
        return {};
    }
}

std::vector<CVStatement*> lastStatements(NSManagedObjectContext& context)
{
    try {
        const auto reading = context.readTransaction();
        std::vector<CVStatement*> statements;
        const auto cards = CVManagedObjectContext::allCardsWithStatements(context);
        for (const auto* const card : cards.value_or(std::vector<CVCard*>())) {
            if (auto* const last = card->lastStatement()) {
                statements.push_back(last);
            }
        }
        return statements;
    } catch (const NSError& error) {
        logUnfetchedCards(error);
        return {};
    }
}

} // namespace CVManagecObjectContextInternal

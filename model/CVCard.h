#pragma once

#include "foundation/Instant.h"
#include "foundation/NSDecimalNumber.h"
#include "store/NSManagedObject.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

class CVStatement;

/// A card: what it is called, and the statements of it, one a month.
///
/// A card's balance, limit and rate are those of its last statement. What derives from the
/// statements is computed at each read and is absent (0 for numbers) while the card has none,
/// unless the operation says otherwise. Observers of a derived value hear when statements join or
/// leave the card, not when one of them is edited. Reading throws NSError when the file cannot be
/// read.
class CVCard : public NSManagedObject
{
public:
    using NSManagedObject::NSManagedObject;

    /// The class for entities that name it.
    static ManagedObjectClass managedObjectClass();

    std::optional<QString> name() const;
    void setName(const std::optional<QString>& name);
    /// What the card is called wherever it is shown: its name, or, for one without a name, a text
    /// that says so. Empty when the card is deleted.
    QString displayName() const;
    /// The account number or label as the person typed it.
    std::optional<QString> account() const;
    void setAccount(const std::optional<QString>& account);
    /// The ISO 4217 code of the currency of all the card's amounts.
    std::optional<QString> ccy() const;
    void setCcy(const std::optional<QString>& ccy);

    /// In no particular order.
    std::vector<CVStatement*> statements() const;

    /// By date, the earliest first; statements without a date come before all others.
    std::vector<CVStatement*> sortedStatements() const;
    /// Throws std::out_of_range on a card without statements.
    CVStatement& firstStatement() const;
    /// Null on a card without statements. Cheap: it does not read the other statements.
    CVStatement* lastStatement() const;
    /// Throws std::out_of_range on a card without statements.
    std::optional<Instant> firstStatementDate() const;
    std::optional<Instant> lastStatementDate() const;
    /// Seconds; 0 for a single statement, and when either date is absent. Throws std::out_of_range
    /// on a card without statements.
    double timeIntervalBetweenFirstAndLastStatements() const;

    /// The first statement, in date order, that lies in the month of `date`; null when there is
    /// none.
    CVStatement* statementForDate(Instant date) const;
    /// The statement after (before) the given one in date order; null at the end (beginning). One
    /// of another card is logged and answered with null.
    CVStatement* nextStatement(const CVStatement& statement) const;
    CVStatement* previousStatement(const CVStatement& statement) const;

    /// The last statement's.
    std::optional<NSDecimalNumber> limit() const;
    std::optional<double> lastStatementAPR() const;
    std::optional<QString> formattedBalanceAndLimit() const;
    std::optional<QString> formattedAPR() const;

    /// How many monthly payments clear the last statement's balance; 0 when there is nothing to
    /// forecast, CVNeverClears when the balance does not fall (see DebtForecast).
    std::int64_t numberOfPaymentsToClear() const;
    /// The number of payments and the date of the last one ("4 m ⟶ 15/07/2013"), "never", or
    /// nothing.
    QString formattedForecast() const;

    /// The display name is a value by key too.
    PropertyValue valueForKey(std::string_view key) const override;
    std::vector<std::string_view>
    keyPathsForValuesAffectingValueForKey(std::string_view key) const override;
    KeyValueObservable* observableValueForKey(std::string_view key) override;
};

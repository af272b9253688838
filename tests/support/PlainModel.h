#pragma once

#include "foundation/Instant.h"
#include "foundation/NSDecimalNumber.h"

#include <QString>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

class CVCard;
class CVStatement;
class NSManagedObject;
class NSManagedObjectContext;

struct PlainCard
{
    std::optional<QString> name;
    std::optional<QString> account;
    std::optional<QString> ccy;
    bool operator==(const PlainCard&) const = default;

    static PlainCard of(const CVCard& card);
};

struct PlainStatement
{
    const NSManagedObject* card = nullptr;
    std::optional<Instant> date;
    std::optional<NSDecimalNumber> balance;
    std::optional<NSDecimalNumber> limit;
    std::optional<NSDecimalNumber> payment;
    std::optional<double> rate;
    bool operator==(const PlainStatement&) const = default;

    static PlainStatement of(const CVStatement& statement);
    /// A limit below the balance, and a payment of nothing, become the balance.
    PlainStatement corrected() const;
};

/// All records as plain values. The real records serve as names only, and are never asked again.
struct PlainRecords
{
    std::map<const NSManagedObject*, PlainCard> cards;
    std::map<const NSManagedObject*, PlainStatement> statements;
    bool operator==(const PlainRecords&) const = default;

    static PlainRecords of(NSManagedObjectContext& context);
    /// One line a record, as it must stand in the file.
    std::multiset<std::string> lines() const;
    /// The same, read from a store file by SQLite itself.
    static std::multiset<std::string> linesInFile(const QString& path);
};

/// What must become of the records: whole copies instead of records, and a list of copies instead
/// of an undo manager.
class PlainModel
{
public:
    struct Step
    {
        PlainRecords records;
        QString name;
    };

    explicit PlainModel(PlainRecords records = {})
        : now(records)
        , saved(std::move(records))
    {}

    /// The person changed the records into `after`, in one step of this name.
    void change(const PlainRecords& after, const QString& name);
    /// Takes the latest step back, and saves what was there before as it was.
    void undo() { swapWithLatest(m_undoSteps, m_redoSteps); }
    void redo() { swapWithLatest(m_redoSteps, m_undoSteps); }
    /// Statements that are in the file and are no longer as they are there are corrected.
    void save();

    QString undoName() const { return m_undoSteps.empty() ? QString() : m_undoSteps.back().name; }
    QString redoName() const { return m_redoSteps.empty() ? QString() : m_redoSteps.back().name; }
    bool canUndo() const { return !m_undoSteps.empty(); }
    bool canRedo() const { return !m_redoSteps.empty(); }

    PlainRecords now;
    PlainRecords saved;

private:
    void swapWithLatest(std::vector<Step>& from, std::vector<Step>& to);

    std::vector<Step> m_undoSteps;
    std::vector<Step> m_redoSteps;
};

#pragma once

#include "foundation/Instant.h"
#include "foundation/NSDecimalNumber.h"
#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "store/NSManagedObjectContext.h"
#include "store/NSManagedObjectModel.h"
#include "store/NSPersistentStoreCoordinator.h"

#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <optional>

/// What a statement says, as a test writes it: amounts in plain notation, the rate as a fraction
/// per year.
struct StatementFigures
{
    const char* balance = "0";
    const char* limit = "0";
    const char* payment = "0";
    double annualPercentageRate = 0.0;
};

/// A store of cards and their statements in a temporary folder, open from the start.
class CardStore
{
public:
    CardStore();

    QString path() const { return m_folder.filePath(QStringLiteral("storedata.sqlite")); }
    NSPersistentStoreCoordinator& coordinator() { return *m_coordinator; }
    NSManagedObjectContext& context() { return *m_context; }

    /// Inserts without saving.
    CVCard& insertCard(const QString& name, const QString& ccy = QStringLiteral("GBP"));
    /// Without a card, or without a date, the statement has none.
    CVStatement& insertStatement(CVCard* card, std::optional<Instant> date,
                                 const StatementFigures& figures = {});

    void save() { m_context->save(); }
    /// Closes the file and opens it again, in a new context; records of the old one are gone.
    void reopen();
    /// The card at this place in the store's order. Throws std::out_of_range when there is none.
    CVCard& cardAt(std::size_t index);

private:
    QTemporaryDir m_folder;
    NSManagedObjectModel m_model;
    std::unique_ptr<NSPersistentStoreCoordinator> m_coordinator;
    std::unique_ptr<NSManagedObjectContext> m_context;
};

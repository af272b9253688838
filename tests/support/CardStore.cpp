#include "tests/support/CardStore.h"

#include "model/CVManagedObjectContext.h"
#include "model/CVManagedObjectModel.h"

CardStore::CardStore()
    : m_model(CVManagedObjectModel::mergedModel().value())
{
    reopen();
}

void CardStore::reopen()
{
    m_context.reset();
    m_coordinator = std::make_unique<NSPersistentStoreCoordinator>(m_model);
    m_coordinator->addPersistentStore(path());
    m_context = std::make_unique<NSManagedObjectContext>(*m_coordinator);
}

CVCard& CardStore::insertCard(const QString& name, const QString& ccy)
{
    auto& card = static_cast<CVCard&>(m_context->insertNewObjectForEntityForName("Card"));
    card.setName(name);
    card.setCcy(ccy);
    return card;
}

CVStatement& CardStore::insertStatement(CVCard* card, std::optional<Instant> date,
                                        const StatementFigures& figures)
{
    auto& statement =
        static_cast<CVStatement&>(m_context->insertNewObjectForEntityForName("Statement"));
    statement.setDate(date);
    statement.setBalance(NSDecimalNumber::fromText(figures.balance).value());
    statement.setLimit(NSDecimalNumber::fromText(figures.limit).value());
    statement.setPayment(NSDecimalNumber::fromText(figures.payment).value());
    statement.setAnnualPercentageRate(figures.annualPercentageRate);
    statement.setCard(card);
    return statement;
}

CVCard& CardStore::cardAt(std::size_t index)
{
    return *CVManagedObjectContext::allCardsWithStatements(*m_context).value().at(index);
}

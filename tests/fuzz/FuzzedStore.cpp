#include "tests/fuzz/FuzzedStore.h"

#include "model/CVCard.h"
#include "model/CVManagedObjectContext.h"
#include "model/CVStatement.h"
#include "model/DebtForecast.h"
#include "tests/fuzz/FuzzTarget.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

/// In memory where there is such a place: thousands of inputs a minute are no work for a disk.
QString folderTemplate()
{
    const auto inMemory = QStringLiteral("/dev/shm");
    return (QFileInfo(inMemory).isWritable() ? inMemory : QDir::tempPath()) +
           QStringLiteral("/corvane-fuzz-XXXXXX");
}

} // namespace

FuzzedStore::FuzzedStore()
    : m_model(CVManagedObjectModel::mergedModel().value())
    , m_folder(folderTemplate())
    , m_path(m_folder.filePath(QStringLiteral("storedata.sqlite")))
{
    auto& context = open();
    for (const auto& name : {QStringLiteral("Aurora"), QStringLiteral("Borealis")}) {
        auto& card = static_cast<CVCard&>(context.insertNewObjectForEntityForName("Card"));
        card.setName(name);
        card.setAccount(QStringLiteral("•••• 4410"));
        card.setCcy(QStringLiteral("GBP"));
        for (int month = 0; month < 8; ++month) {
            auto& statement =
                static_cast<CVStatement&>(context.insertNewObjectForEntityForName("Statement"));
            statement.setDate(Instant(1.3e9 + month * 31 * 86400.0));
            statement.setBalance(NSDecimalNumber::fromText("412.07"));
            statement.setLimit(NSDecimalNumber(5000));
            statement.setPayment(NSDecimalNumber(150 - month));
            statement.setAnnualPercentageRate(0.189);
            statement.setCard(&card);
        }
    }
    context.save();
    close();
    m_original = read(QFileInfo(m_path).size());
}

void FuzzedStore::write(const QByteArray& content, qint64 size) const
{
    QFile::remove(m_path + QStringLiteral("-journal"));
    QFile file(m_path);
    require(file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
                file.write(content) == content.size() && file.resize(size),
            "the input can be written");
}

QByteArray FuzzedStore::read(qint64 size) const
{
    QFile file(m_path);
    require(file.open(QIODevice::ReadOnly), "the file is still there");
    return file.read(size);
}

bool FuzzedStore::hasJournal() const
{
    return QFileInfo::exists(m_path + QStringLiteral("-journal"));
}

NSManagedObjectContext& FuzzedStore::open()
{
    close();
    m_coordinator = std::make_unique<NSPersistentStoreCoordinator>(m_model);
    m_coordinator->addPersistentStore(m_path);
    m_context = std::make_unique<NSManagedObjectContext>(*m_coordinator);
    return *m_context;
}

void FuzzedStore::close()
{
    m_context.reset();
    m_coordinator.reset();
}

void FuzzedStore::readEverything() const
{
    auto& context = *m_context;
    CVManagedObjectContext::timeIntervalPerPointInCellFrame(context, QRectF(0, 0, 800, 90));
    CVManagedObjectContext::totalDebtAndCredit(context);
    CVManagedObjectContext::statementCount(context);
    DebtForecast::formattedDebtFreeDate(context);
    for (auto* const record : context.executeFetchRequest({"Card"})) {
        const auto& card = static_cast<const CVCard&>(*record);
        card.name();
        card.formattedBalanceAndLimit();
        card.formattedAPR();
        card.formattedForecast();
        const auto statements = card.sortedStatements();
        require(statements.size() == card.statements().size(), "a card has all its statements");
        for (const auto* const statement : statements) {
            statement->formattedBalanceAndLimit();
            statement->formattedPayment();
            statement->formattedAPR();
            statement->monthlyPercentageRate();
            DebtForecast::formattedForecast(*statement);
            card.nextStatement(*statement);
            if (const auto date = statement->date()) {
                require(date->isSupported(), "a date is one that calendars know");
                card.statementForDate(*date);
            }
        }
        if (!statements.empty()) {
            require(card.timeIntervalBetweenFirstAndLastStatements() >= 0.0, "time goes forward");
        }
    }
    for (auto* const record : context.executeFetchRequest({"Statement"})) {
        static_cast<const CVStatement&>(*record).formattedBalanceAndLimit();
    }
}

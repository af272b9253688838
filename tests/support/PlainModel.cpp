#include "tests/support/PlainModel.h"

#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "store/NSFetchRequest.h"
#include "store/NSManagedObjectContext.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <utility>

namespace {

std::string written(const std::optional<QString>& text)
{
    return text ? "'" + text->toStdString() + "'" : "–";
}

std::string written(const std::optional<NSDecimalNumber>& amount)
{
    return amount ? amount->toPlainText() : "–";
}

std::string written(const std::optional<double>& number)
{
    return number ? QByteArray::number(*number, 'g', 17).toStdString() : "–";
}

std::optional<QString> textIn(const SQLite::Column& column)
{
    return column.isNull() ? std::nullopt : std::optional(QString::fromUtf8(column.getText()));
}

std::optional<NSDecimalNumber> amountIn(const SQLite::Column& column)
{
    return column.isNull() ? std::nullopt : NSDecimalNumber::fromText(column.getText());
}

std::optional<double> numberIn(const SQLite::Column& column)
{
    return column.isNull() ? std::nullopt : std::optional(column.getDouble());
}

std::string line(const PlainCard& card)
{
    return "card " + written(card.name) + " " + written(card.account) + " " + written(card.ccy);
}

/// `date` in seconds.
std::string line(const PlainStatement& statement, const std::optional<double>& date,
                 const PlainCard* card)
{
    return "statement " + written(date) + " " + written(statement.balance) + " of " +
           written(statement.limit) + ", pays " + written(statement.payment) + " at " +
           written(statement.rate) + ", " + (card ? line(*card) : "no card");
}

} // namespace

PlainCard PlainCard::of(const CVCard& card)
{
    return {card.name(), card.account(), card.ccy()};
}

PlainStatement PlainStatement::of(const CVStatement& statement)
{
    return {statement.card(),  statement.date(),    statement.balance(),
            statement.limit(), statement.payment(), statement.annualPercentageRate()};
}

PlainStatement PlainStatement::corrected() const
{
    const auto value = [](const std::optional<NSDecimalNumber>& amount) {
        return amount ? amount->doubleValue() : 0.0;
    };
    auto result = *this;
    if (value(balance) > value(limit)) {
        result.limit = balance;
    }
    if (value(payment) == 0.0 && value(balance) > 0.0) {
        result.payment = balance;
    }
    return result;
}

PlainRecords PlainRecords::of(NSManagedObjectContext& context)
{
    PlainRecords records;
    for (const auto* const card : context.executeFetchRequest({"Card"})) {
        records.cards[card] = PlainCard::of(static_cast<const CVCard&>(*card));
    }
    for (const auto* const statement : context.executeFetchRequest({"Statement"})) {
        records.statements[statement] =
            PlainStatement::of(static_cast<const CVStatement&>(*statement));
    }
    return records;
}

std::multiset<std::string> PlainRecords::lines() const
{
    std::multiset<std::string> result;
    for (const auto& [record, card] : cards) {
        result.insert(line(card));
    }
    for (const auto& [record, statement] : statements) {
        const auto owner = cards.find(statement.card);
        result.insert(
            line(statement,
                 statement.date ? std::optional(statement.date->secondsSince1970()) : std::nullopt,
                 owner == cards.end() ? nullptr : &owner->second));
    }
    return result;
}

std::multiset<std::string> PlainRecords::linesInFile(const QString& path)
{
    std::multiset<std::string> result;
    const SQLite::Database file(path.toStdString());
    SQLite::Statement cardRows(file, "SELECT id, name, account, ccy FROM Card");
    std::map<std::int64_t, PlainCard> owners;
    while (cardRows.executeStep()) {
        auto& card = owners[cardRows.getColumn(0).getInt64()];
        card = {textIn(cardRows.getColumn(1)), textIn(cardRows.getColumn(2)),
                textIn(cardRows.getColumn(3))};
        result.insert(line(card));
    }
    SQLite::Statement rows(file, R"(SELECT card, date, balance, "limit", payment,
                                    annualPercentageRate FROM Statement)");
    while (rows.executeStep()) {
        const auto owner = owners.find(rows.getColumn(0).getInt64());
        const PlainStatement statement{nullptr,
                                       {},
                                       amountIn(rows.getColumn(2)),
                                       amountIn(rows.getColumn(3)),
                                       amountIn(rows.getColumn(4)),
                                       numberIn(rows.getColumn(5))};
        result.insert(line(statement, numberIn(rows.getColumn(1)),
                           owner == owners.end() ? nullptr : &owner->second));
    }
    return result;
}

void PlainModel::change(const PlainRecords& after, const QString& name)
{
    if (after == now) {
        return;
    }
    m_undoSteps.push_back({std::exchange(now, after), name});
    m_redoSteps.clear();
}

void PlainModel::swapWithLatest(std::vector<Step>& from, std::vector<Step>& to)
{
    if (!from.empty()) {
        auto step = std::move(from.back());
        from.pop_back();
        to.push_back({std::exchange(now, step.records), step.name});
        saved = now;
    }
}

void PlainModel::save()
{
    for (auto& [record, statement] : now.statements) {
        const auto before = saved.statements.find(record);
        if (before != saved.statements.end() && before->second != statement) {
            statement = statement.corrected();
        }
    }
    saved = now;
}

#include "tests/reliability/StoreContent.h"

#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "store/NSManagedObjectContext.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <vector>

namespace {

std::string sorted(std::vector<std::string> lines)
{
    std::ranges::sort(lines);
    std::string text;
    for (const auto& line : lines) {
        text += line + '\n';
    }
    return text;
}

std::string text(const std::optional<QString>& value)
{
    return value ? value->toStdString() : "-";
}

std::string text(const std::optional<NSDecimalNumber>& value)
{
    return value ? value->toPlainText() : "-";
}

std::string text(const std::optional<double>& value)
{
    return value ? QByteArray::number(*value, 'g', 17).toStdString() : "-";
}

std::string text(const SQLite::Column& column)
{
    return column.isNull()    ? "-"
           : column.isFloat() ? text(std::optional(column.getDouble()))
                              : column.getString();
}

} // namespace

std::string StoreContent::ofFile(const QString& path)
{
    SQLite::Database file(path.toStdString(), SQLite::OPEN_READWRITE);
    const auto integrity = file.execAndGet("PRAGMA integrity_check").getString();
    if (integrity != "ok") {
        throw std::runtime_error("the file is damaged: " + integrity);
    }
    if (SQLite::Statement(file, "PRAGMA foreign_key_check").executeStep()) {
        throw std::runtime_error("the file refers to a record that it does not hold");
    }
    std::vector<std::string> lines;
    for (const auto* const sql :
         {"SELECT name, account, ccy FROM Card",
          "SELECT name, date, balance, \"limit\", payment, annualPercentageRate"
          " FROM Statement LEFT JOIN Card ON Card.id = card"}) {
        for (SQLite::Statement row(file, sql); row.executeStep();) {
            lines.emplace_back();
            for (int i = 0; i < row.getColumnCount(); ++i) {
                lines.back() += text(row.getColumn(i)) + '|';
            }
        }
    }
    return sorted(std::move(lines));
}

std::string StoreContent::ofContext(NSManagedObjectContext& context)
{
    context.checkInvariants();
    std::vector<std::string> lines;
    std::size_t members = 0;
    for (auto* const record : context.executeFetchRequest({"Card"})) {
        const auto& card = static_cast<CVCard&>(*record);
        lines.push_back(text(card.name()) + '|' + text(card.account()) + '|' + text(card.ccy()) +
                        '|');
        members += card.statements().size();
    }
    const auto records = context.executeFetchRequest({"Statement"});
    for (auto* const record : records) {
        const auto& statement = static_cast<CVStatement&>(*record);
        const auto* const card = statement.card();
        const auto date = statement.date();
        members += card ? 0 : 1;
        lines.push_back(text(card ? card->name() : std::nullopt) + '|' +
                        text(date ? std::optional(date->secondsSince1970()) : std::nullopt) + '|' +
                        text(statement.balance()) + '|' + text(statement.limit()) + '|' +
                        text(statement.payment()) + '|' + text(statement.annualPercentageRate()) +
                        '|');
    }
    if (members != records.size()) {
        throw std::logic_error("a card does not have its statement");
    }
    return sorted(std::move(lines));
}

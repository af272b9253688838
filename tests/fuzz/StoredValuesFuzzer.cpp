// A whole store file with any values in it: whatever another program wrote is read without harm,
// and what the program cannot read is not lost when something else is changed.
//
// Input: rows. A row begins with a byte (odd for a card) and its key as another; its columns
// follow, each with a byte for its type: nothing, an integer, a number, a text, a long text, a
// blob.

#include "foundation/Log.h"
#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "tests/fuzz/FuzzTarget.h"
#include "tests/fuzz/FuzzedStore.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace {

constexpr int mostRows = 60;

void bindCell(SQLite::Statement& row, int parameter, FuzzInput& input)
{
    switch (input.take<std::uint8_t>() % 7) {
    case 0:
        row.bind(parameter);
        break;
    case 1:
        row.bind(parameter, input.take<std::int64_t>());
        break;
    case 2:
        row.bind(parameter, input.take<double>());
        break;
    case 3:
        row.bind(parameter, input.take<std::int8_t>());
        break;
    case 4:
        row.bind(parameter, std::string(input.takeText(input.take<std::uint8_t>())));
        break;
    case 5:
        row.bind(parameter, std::string(input.take<std::uint16_t>(), input.take<char>()));
        break;
    default: {
        const auto blob = input.takeText(input.take<std::uint8_t>());
        row.bind(parameter, blob.data(), static_cast<int>(blob.size()));
    }
    }
}

void writeRows(const QString& path, FuzzInput& input)
{
    SQLite::Database file(path.toStdString(), SQLite::OPEN_READWRITE);
    file.exec("PRAGMA synchronous = OFF; BEGIN");
    for (int count = 0; !input.isEmpty() && count < mostRows; ++count) {
        const bool isCard = input.take<std::uint8_t>() % 2 == 1;
        SQLite::Statement row(
            file, isCard ? "INSERT OR REPLACE INTO Card VALUES (?, ?, ?, ?)"
                         : "INSERT OR REPLACE INTO Statement VALUES (?, ?, ?, ?, ?, ?, ?)");
        row.bind(1, input.take<std::int8_t>());
        for (int column = 2; column <= (isCard ? 4 : 7); ++column) {
            bindCell(row, column, input);
        }
        row.exec();
    }
    file.exec("COMMIT");
}

/// Every cell that the change below leaves alone, with its type.
std::string otherCells(const QString& path)
{
    SQLite::Database file(path.toStdString(), SQLite::OPEN_READONLY);
    require(file.execAndGet("PRAGMA integrity_check").getString() == "ok", "the file is whole");
    return file
        .execAndGet("SELECT (SELECT group_concat(id || quote(account) || quote(ccy)) FROM Card) ||"
                    " (SELECT group_concat(id || quote(card) || quote(date) || quote(balance) ||"
                    " quote(\"limit\") || quote(payment)) FROM Statement)")
        .getString();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static FuzzedStore store;
    FuzzInput input(data, size);
    store.write(store.original(), store.original().size());
    writeRows(store.path(), input);
    const auto before = otherCells(store.path());

    const Log::Collector log;
    auto& context = store.open();
    store.readEverything();
    context.checkInvariants();
    for (auto* const record : context.executeFetchRequest({"Card"})) {
        static_cast<CVCard&>(*record).setName(QStringLiteral("Changed"));
    }
    context.save();
    require(otherCells(store.path()) == before, "what was not changed is as it was");

    for (auto* const record : context.executeFetchRequest({"Statement"})) {
        static_cast<CVStatement&>(*record).setAnnualPercentageRate(0.5);
    }
    context.save();
    context.undoManager().undo();
    context.save();
    for (auto* const record : context.executeFetchRequest({"Card"})) {
        context.deleteObject(*record);
    }
    context.save();
    context.checkInvariants();
    store.close();
    otherCells(store.path());
    return 0;
}

// A store file with any damage: it is refused and left as it is, or read without harm.
//
// Input: a byte of flags (1: larger than what is checked from end to end; 2: cut off), the place
// where it is cut off as two bytes, then patches: the offset as two bytes, the length as one, and
// the bytes that go there.

#include "foundation/Log.h"
#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "store/NSError.h"
#include "tests/fuzz/FuzzTarget.h"
#include "tests/fuzz/FuzzedStore.h"

#include <QtEndian>

namespace {

constexpr int pageSize = 4096;
constexpr qint64 uncheckedSize = (qint64(4) << 20) + pageSize;
constexpr qsizetype pageCountOffset = 28;

void change(NSManagedObjectContext& context)
{
    for (auto* const record : context.executeFetchRequest({"Card"})) {
        auto& card = static_cast<CVCard&>(*record);
        card.setName(QStringLiteral("Changed"));
        auto& statement =
            static_cast<CVStatement&>(context.insertNewObjectForEntityForName("Statement"));
        statement.setDate(Instant(1.4e9));
        statement.setCard(&card);
        if (auto* const last = card.lastStatement()) {
            last->setBalance(NSDecimalNumber(7));
        }
    }
    context.save();
    context.undoManager().undo();
    context.save();
    for (auto* const record : context.executeFetchRequest({"Card"})) {
        context.deleteObject(*record);
    }
    context.save();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static FuzzedStore store;
    FuzzInput input(data, size);
    const auto flags = input.take<std::uint8_t>();
    const auto cut = input.take<std::uint16_t>();
    auto content = store.original();
    auto fileSize = content.size();
    if ((flags & 1U) != 0) {
        fileSize = uncheckedSize;
        qToBigEndian(static_cast<quint32>(uncheckedSize / pageSize),
                     content.data() + pageCountOffset);
    }
    while (!input.isEmpty()) {
        const auto offset = input.take<std::uint16_t>() % content.size();
        const auto patch = input.takeText(input.take<std::uint8_t>());
        const auto length = std::min<qsizetype>(std::ssize(patch), content.size() - offset);
        std::memcpy(content.data() + offset, patch.data(), static_cast<std::size_t>(length));
    }
    if ((flags & 2U) != 0) {
        content.truncate(cut);
        fileSize = content.size();
    }
    store.write(content, fileSize);

    const Log::Collector log;
    try {
        store.open();
    } catch (const NSError&) {
        store.close();
        require(store.read(uncheckedSize).startsWith(content), "a refused file is not changed");
        require(QFileInfo(store.path()).size() == fileSize, "a refused file keeps its size");
        require(!store.hasJournal(), "a refused file has no journal");
        return 0;
    }
    try {
        store.readEverything();
        change(store.open());
    } catch (const NSError&) {
        // Damage that is met late is told late.
    }
    store.close();
    return 0;
}

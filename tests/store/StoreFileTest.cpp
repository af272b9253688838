#include "store/NSError.h"
#include "tests/support/LibraryStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <functional>

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(content);
}

SQLite::Database otherProgram(const LibraryStore& store)
{
    return {store.path().toStdString(), SQLite::OPEN_READWRITE};
}

/// A store with enough books that its middle lies in their table.
void fill(LibraryStore& store)
{
    store.open();
    auto& city = store.insertLibrary(QStringLiteral("City"));
    for (int i = 0; i < 400; ++i) {
        store.insertBook(&city, QStringLiteral("A book with a title of some length"));
    }
    store.context().save();
}

struct Refusal
{
    const char* name;
    std::function<void(const QString& path)> spoil;
    const char* description;
};

const Refusal refusals[] = {
    {"anEmptyDirectory",
     [](const QString& path) {
         QFile::remove(path);
         QDir().mkdir(path);
     },
     "could not be opened"},
    {"aText", [](const QString& path) { write(path, "Dear diary, today I owe nothing."); },
     "is not a Corvane data file"},
    {"aLongText",
     [](const QString& path) { write(path, QByteArray("Dear diary. ").repeated(999)); },
     "is not a Corvane data file"},
    {"aTruncatedFile",
     [](const QString& path) { write(path, contentOf(path).left(contentOf(path).size() / 2)); },
     "is damaged"},
    {"aHeaderAlone", [](const QString& path) { write(path, contentOf(path).left(100)); },
     "is damaged"},
    {"damageInTheMiddle",
     [](const QString& path) {
         auto content = contentOf(path);
         content.replace(content.size() / 2, 8192, QByteArray(8192, '\x5a'));
         write(path, content);
     },
     "is damaged"},
    {"anotherProgramsDatabase",
     [](const QString& path) {
         SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE)
             .exec("PRAGMA application_id = 7");
     },
     "is not a Corvane data file"},
    {"anotherFileFormat",
     [](const QString& path) {
         SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE)
             .exec("PRAGMA user_version = 2");
     },
     "was made by another version"},
    {"anotherModelVersion",
     [](const QString& path) {
         SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE)
             .exec("UPDATE Metadata SET value = '2'");
     },
     "was made by another version"},
    {"aWriteAheadLog",
     [](const QString& path) {
         SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE)
             .exec("PRAGMA journal_mode = WAL");
     },
     "was made by another version"},
    {"aMissingColumn",
     [](const QString& path) {
         SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE)
             .exec("ALTER TABLE Book DROP COLUMN weight");
     },
     "was made by another version"},
    {"aWriteProtectedFile",
     [](const QString& path) { QFile::setPermissions(path, QFileDevice::ReadOwner); },
     "could not be opened"},
};

class StoreFileRefusal : public testing::TestWithParam<Refusal>
{};

} // namespace

TEST_P(StoreFileRefusal, leavesTheFileAsItIs)
{
    LibraryStore store;
    fill(store);
    store.reopen();
    LibraryStore closed;
    ASSERT_TRUE(QFile::copy(store.path(), closed.path()));
    GetParam().spoil(closed.path());
    const auto before = contentOf(closed.path());
    for (int attempt = 0; attempt < 2; ++attempt) {
        try {
            closed.open();
            FAIL() << "it was opened";
        } catch (const NSError& error) {
            EXPECT_TRUE(
                error.localizedDescription().contains(QLatin1String(GetParam().description)))
                << error.what();
        }
    }
    EXPECT_EQ(contentOf(closed.path()), before);
    EXPECT_EQ(QFileInfo(closed.path())
                  .dir()
                  .entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot)
                  .size(),
              1);
}

INSTANTIATE_TEST_SUITE_P(StoreFile, StoreFileRefusal, testing::ValuesIn(refusals),
                         [](const auto& row) { return row.param.name; });

TEST(StoreFile, isMadeForItsOwnerOnlyAndMarkedAsOurs)
{
    LibraryStore store;
    store.open();
    const auto permissions = QFileInfo(store.path()).permissions();
    EXPECT_FALSE(permissions & (QFileDevice::ReadGroup | QFileDevice::ReadOther));
    auto other = otherProgram(store);
    EXPECT_EQ(other.execAndGet("PRAGMA application_id").getInt(), 0x436F7276);
    EXPECT_EQ(other.execAndGet("SELECT value FROM Metadata WHERE key = 'modelVersion'").getString(),
              "1");
    EXPECT_EQ(other.execAndGet("PRAGMA journal_mode").getString(), "delete");
}

TEST(StoreFile, isMadeOfAFileThatACrashLeftEmpty)
{
    LibraryStore store;
    write(store.path(), {});
    store.open();
    store.insertLibrary(QStringLiteral("City"));
    store.context().save();
    store.reopen();
    EXPECT_EQ(store.context().countForFetchRequest({"Library"}), 1);
}

TEST(StoreFile, isRefusedWhileAnotherProgramWritesIt)
{
    LibraryStore store;
    store.open();
    auto other = otherProgram(store);
    other.exec("BEGIN EXCLUSIVE");
    EXPECT_THROW(store.reopen(), NSError);
    other.exec("ROLLBACK");
    other.exec("BEGIN IMMEDIATE");
    EXPECT_THROW(store.reopen(), NSError);
    other.exec("ROLLBACK");
    EXPECT_NO_THROW(store.reopen());
}

TEST(StoreFile, aSaveThatAReaderHoldsUpIsNotTakenForDone)
{
    LibraryStore store;
    store.open();
    auto other = otherProgram(store);
    other.exec("BEGIN; SELECT count(*) FROM Library");
    store.insertLibrary(QStringLiteral("City"));
    EXPECT_THROW(store.context().save(), NSError);
    other.exec("COMMIT");
    EXPECT_EQ(other.execAndGet("SELECT count(*) FROM Library").getInt(), 0);
    store.context().save();
    EXPECT_EQ(other.execAndGet("SELECT count(*) FROM Library").getInt(), 1);
}

TEST(StoreFile, anyKeyThatAFileMayHoldCanBeChangedAndDeleted)
{
    LibraryStore store;
    store.open();
    otherProgram(store).exec("INSERT INTO Book (id, title) VALUES (0, 'none'), (-7, 'minus'),"
                             " (9223372036854775807, 'last')");
    auto& context = store.context();
    for (auto* const book : context.executeFetchRequest({"Book"})) {
        book->setValueForKey(QString(textOf(*book, "title") + u'!'), "title");
    }
    context.save();
    context.deleteObject(*context.objectWithID("Book", 0));
    context.save();
    EXPECT_EQ(otherProgram(store).execAndGet("SELECT group_concat(title) FROM Book").getString(),
              "minus!,last!");
    store.insertBook(nullptr, QStringLiteral("one too many"));
    EXPECT_THROW(context.save(), NSError);
    EXPECT_EQ(context.insertedObjects().size(), 1);
}

TEST(StoreFile, valuesOfTheWrongTypeReadAsAbsentAndAreNotLostByAnEdit)
{
    LibraryStore store;
    store.open();
    otherProgram(store).exec(
        "INSERT INTO Book (id, library, title, price, published, weight) VALUES"
        "(1, 999, x'00ff', 'a lot', 'yesterday', 'heavy'),"
        "(2, 'nowhere', 12, 12.5, 1e300, 9e999),"
        "(3, NULL, NULL, 1e200, -1e15, NULL),"
        "(4, NULL, 'zero', '12345678901234567890123456789012345678901', 0, 0)");
    const auto books = store.context().executeFetchRequest({"Book"});
    ASSERT_EQ(books.size(), 4);
    for (const auto* const book : books) {
        EXPECT_FALSE(book->relatedObject("library"));
    }
    EXPECT_EQ(books[0]->valueForKey("title"), PropertyValue());
    EXPECT_EQ(textOf(*books[1], "title"), QStringLiteral("12"));
    EXPECT_EQ(decimalOf(*books[1], "price"), "12.5");
    for (const auto index : {0U, 2U, 3U}) {
        EXPECT_EQ(decimalOf(*books[index], "price"), "absent");
    }
    for (const auto index : {0U, 1U, 2U}) {
        EXPECT_EQ(books[index]->valueForKey("published"), PropertyValue());
        EXPECT_EQ(books[index]->valueForKey("weight"), PropertyValue());
    }
    EXPECT_EQ(store.context()
                  .executeDictionaryFetchRequest(
                      {"Book"}, {{"latest", "@max.published", NSAttributeType::Date}})
                  .at("latest"),
              PropertyValue(Instant(0)));

    books[0]->setValueForKey(QStringLiteral("Emma"), "title");
    books[3]->setValueForKey(Instant(1e12), "published");
    EXPECT_EQ(books[3]->valueForKey("published"), PropertyValue()) << "as it would be read again";
    store.context().save();
    EXPECT_EQ(otherProgram(store)
                  .execAndGet("SELECT price || published || library FROM Book WHERE id = 1")
                  .getString(),
              "a lotyesterday999");
}

#include "store/NSError.h"
#include "tests/support/LibraryStore.h"

#include <QCoreApplication>
#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>

namespace {

class UndoAndSaveTest : public testing::Test
{
protected:
    UndoAndSaveTest() { store.open(); }

    NSManagedObjectContext& context() { return store.context(); }
    NSUndoManager& undoManager() { return context().undoManager(); }

    void endStep(const char* name = "Step")
    {
        undoManager().setActionName(QString::fromLatin1(name));
        context().save();
    }
    void undo()
    {
        undoManager().undo();
        context().save();
    }
    void redo()
    {
        undoManager().redo();
        context().save();
    }

    LibraryStore store;
};

/// Every record of a context with its values, its owner and its members, as text.
std::string snapshot(NSManagedObjectContext& context)
{
    const auto id = [](const NSManagedObject* record) {
        return record ? record->recordID().value_or(0) : 0;
    };
    std::vector<std::string> lines;
    for (const auto* const library : context.executeFetchRequest({"Library"})) {
        std::vector<std::int64_t> members;
        std::ranges::transform(library->relatedObjects("books"), std::back_inserter(members), id);
        std::ranges::sort(members);
        std::ostringstream line;
        line << "library " << id(library) << ' ' << textOf(*library, "name").toStdString();
        for (const auto member : members) {
            line << ' ' << member;
        }
        lines.push_back(line.str());
    }
    for (const auto* const book : context.executeFetchRequest({"Book"})) {
        std::ostringstream line;
        line << "book " << id(book) << ' ' << textOf(*book, "title").toStdString() << ' '
             << decimalOf(*book, "price") << " in " << id(book->relatedObject("library"));
        lines.push_back(line.str());
    }
    std::ranges::sort(lines);
    std::string result;
    for (const auto& line : lines) {
        result += line + '\n';
    }
    return result;
}

} // namespace

TEST_F(UndoAndSaveTest, undoReachesBackAcrossSavesAndRevivesTheSameRecords)
{
    auto& city = store.insertLibrary(QStringLiteral("City"));
    auto& book = store.insertBook(&city, QStringLiteral("Emma"), "5");
    endStep("Add");
    const auto bookID = book.recordID();
    context().deleteObject(city);
    endStep("Delete");
    EXPECT_EQ(undoManager().undoActionName(), QStringLiteral("Delete"));
    undo();
    EXPECT_FALSE(book.isDeleted());
    EXPECT_EQ(book.recordID(), bookID);
    EXPECT_EQ(book.relatedObject("library"), &city);
    EXPECT_EQ(city.relatedObjects("books"), std::vector<NSManagedObject*>{&book});
    EXPECT_EQ(decimalOf(book, "price"), "5");
    undo();
    EXPECT_TRUE(book.isDeleted());
    EXPECT_EQ(context().countForFetchRequest({"Library"}), 0);
    store.insertBook(nullptr, QStringLiteral("in between"));
    context().save();
    EXPECT_FALSE(undoManager().canRedo());
}

TEST_F(UndoAndSaveTest, aKeyIsNotUsedTwiceWhileItsRecordCanComeBack)
{
    auto& first = store.insertBook(nullptr, QStringLiteral("First"));
    endStep();
    context().deleteObject(first);
    endStep();
    auto& second = store.insertBook(nullptr, QStringLiteral("Second"));
    endStep();
    EXPECT_NE(first.recordID(), second.recordID());
    undo();
    undo();
    redo();
    redo();
    EXPECT_TRUE(first.isDeleted());
    EXPECT_EQ(textOf(second, "title"), QStringLiteral("Second"));
}

TEST_F(UndoAndSaveTest, validationCorrectsChangedRecordsInTheSameStep)
{
    auto& book = store.insertBook(nullptr, QStringLiteral("Emma"), "-1");
    endStep();
    EXPECT_EQ(decimalOf(book, "price"), "-1") << "a new record is saved as it is";
    book.setValueForKey(QStringLiteral("Persuasion"), "title");
    endStep();
    EXPECT_EQ(decimalOf(book, "price"), "0");
    EXPECT_FALSE(context().hasChanges());
    undo();
    EXPECT_EQ(textOf(book, "title"), QStringLiteral("Emma"));
    EXPECT_EQ(decimalOf(book, "price"), "-1") << "undo restores what was there";
    redo();
    EXPECT_EQ(textOf(book, "title"), QStringLiteral("Persuasion"));
    EXPECT_EQ(decimalOf(book, "price"), "0");
    undo();
    undo();
    EXPECT_TRUE(book.isDeleted());
    EXPECT_FALSE(undoManager().canUndo());
}

TEST_F(UndoAndSaveTest, undoAndRedoSaveWhatWasThereAlsoWhenTheEditWasNotSaved)
{
    auto& book = store.insertBook(nullptr, QStringLiteral("Emma"), "-1");
    auto& other = store.insertBook(nullptr, QStringLiteral("Other"), "-2");
    endStep();
    const auto edit = [this](NSManagedObject& record, const char* key, const PropertyValue& value) {
        const UndoGroup group(undoManager());
        record.setValueForKey(value, key);
    };
    const auto file = [this] {
        NSManagedObjectContext fresh(store.coordinator());
        return snapshot(fresh);
    };
    const auto before = file();
    // The save that would have corrected it failed, or there was none.
    SQLite::Database database(store.path().toStdString(), SQLite::OPEN_READWRITE);
    for (const bool failsToSave : {true, false}) {
        edit(book, "title", QStringLiteral("Persuasion"));
        if (failsToSave) {
            database.exec("CREATE TRIGGER refuse BEFORE UPDATE ON Book"
                          " BEGIN SELECT RAISE(ABORT, 'no'); END");
            EXPECT_THROW(context().save(), NSError);
            database.exec("DROP TRIGGER refuse");
        }
        undo();
        EXPECT_EQ(file(), before);
        redo();
        EXPECT_EQ(decimalOf(book, "price"), failsToSave ? "0" : "-1");
        undo();
        EXPECT_EQ(file(), before);
    }
    // An edit that is not taken back is still corrected.
    edit(other, "title", QStringLiteral("Sanditon"));
    undoManager().closeEventGroup();
    edit(book, "title", QStringLiteral("Persuasion"));
    undo();
    EXPECT_EQ(decimalOf(book, "price"), "-1");
    EXPECT_EQ(decimalOf(other, "price"), "0");
}

TEST_F(UndoAndSaveTest, aFailedSaveChangesNothingAndTheNextOneSucceeds)
{
    auto& city = store.insertLibrary(QStringLiteral("City"));
    auto& changed = store.insertBook(&city, QStringLiteral("Emma"));
    auto& deleted = store.insertBook(&city, QStringLiteral("Persuasion"));
    context().save();
    const auto before = snapshot(context());

    changed.setValueForKey(QStringLiteral("Emma II"), "title");
    context().deleteObject(deleted);
    auto& added = store.insertBook(&city, QStringLiteral("Sanditon"));
    SQLite::Database other(store.path().toStdString(), SQLite::OPEN_READWRITE);
    other.exec("CREATE TRIGGER refuse BEFORE UPDATE ON Book BEGIN SELECT RAISE(ABORT, 'no'); END");
    QStringList told;
    QObject::connect(&context(), &NSManagedObjectContext::didFailToSave,
                     [&told](const NSError& error) { told.append(error.description()); });
    QObject::connect(&context(), &NSManagedObjectContext::didSave,
                     [&told] { told.append(QStringLiteral("saved")); });
    try {
        context().save();
        FAIL() << "the save succeeded";
    } catch (const NSError& error) {
        EXPECT_EQ(told, QStringList(error.description()));
        EXPECT_TRUE(context().didLastSaveFail());
        EXPECT_EQ(error.domain(), QStringLiteral("NSSQLiteErrorDomain"));
        EXPECT_FALSE(QString::fromLatin1(error.what()).contains(QStringLiteral("Emma")));
    }
    {
        NSManagedObjectContext fresh(store.coordinator());
        EXPECT_EQ(snapshot(fresh), before);
    }
    EXPECT_TRUE(context().hasChanges());
    EXPECT_FALSE(added.recordID());
    EXPECT_EQ(context().countForFetchRequest({"Book"}), 2);
    context().checkInvariants();

    other.exec("DROP TRIGGER refuse");
    context().save();
    EXPECT_EQ(told.size(), 2);
    EXPECT_EQ(told.last(), QStringLiteral("saved"));
    EXPECT_FALSE(context().didLastSaveFail());
    NSManagedObjectContext fresh(store.coordinator());
    EXPECT_EQ(snapshot(fresh), snapshot(context()));
    EXPECT_EQ(textOf(changed, "title"), QStringLiteral("Emma II"));
}

TEST_F(UndoAndSaveTest, changesMadeWithRegistrationOffLeaveNoStep)
{
    auto& book = store.insertBook(nullptr, QStringLiteral("Emma"));
    {
        const UndoRegistrationDisabled off(undoManager());
        context().processPendingChanges();
    }
    EXPECT_FALSE(undoManager().canUndo());
    book.setValueForKey(QStringLiteral("Persuasion"), "title");
    context().processPendingChanges();
    EXPECT_TRUE(undoManager().canUndo());
    undoManager().undo();
    EXPECT_EQ(textOf(book, "title"), QStringLiteral("Emma"));
}

TEST_F(UndoAndSaveTest, thoseWhoFollowChangesMaySaveAndChangeMoreDuringAnUndo)
{
    auto& book = store.insertBook(nullptr, QStringLiteral("Emma"));
    endStep();
    book.setValueForKey(QStringLiteral("Persuasion"), "title");
    endStep();
    int changes = 0;
    QObject::connect(&context(), &NSManagedObjectContext::objectsDidChange, [&] {
        if (++changes == 1) {
            book.setValueForKey(2.0, "weight");
            context().save();
        }
    });
    undo();
    EXPECT_EQ(textOf(book, "title"), QStringLiteral("Emma"));
    EXPECT_EQ(book.valueForKey("weight"), PropertyValue(2.0));
    ASSERT_TRUE(undoManager().canRedo());
    redo();
    EXPECT_EQ(textOf(book, "title"), QStringLiteral("Persuasion"));
    EXPECT_EQ(book.valueForKey("weight"), PropertyValue());
}

TEST_F(UndoAndSaveTest, aRecordComesBackUnderAnotherKeyWhenItsOwnWasTaken)
{
    auto& book = store.insertBook(nullptr, QStringLiteral("Emma"));
    endStep();
    context().deleteObject(book);
    endStep();
    SQLite::Database(store.path().toStdString(), SQLite::OPEN_READWRITE)
        .exec("INSERT INTO Book (id, title) VALUES (1, 'taken')");
    undo();
    EXPECT_FALSE(context().hasChanges());
    EXPECT_EQ(book.recordID(), 2);
    NSManagedObjectContext fresh(store.coordinator());
    EXPECT_EQ(fresh.countForFetchRequest({"Book"}), 2);
}

TEST_F(UndoAndSaveTest, anyWalkOfChangesIsUndoneAndRedoneExactlyInMemoryAndInTheFile)
{
    const auto seed = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    const auto below = [&random](std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    };
    const auto any = [&](const char* entity) -> NSManagedObject* {
        const auto records = context().executeFetchRequest({entity});
        return records.empty() ? nullptr : records[below(records.size())];
    };
    std::vector<std::string> states = {snapshot(context())};
    std::size_t position = 0;
    for (int walk = 0; walk < 600; ++walk) {
        const auto choice = below(8);
        if (choice == 0 && position > 0) {
            undo();
            --position;
        } else if (choice == 1 && position + 1 < states.size()) {
            redo();
            ++position;
        } else {
            for (auto change = below(3) + 1; change > 0; --change) {
                auto* const library = any("Library");
                auto* const book = any("Book");
                const auto number = QString::number(below(1000));
                switch (below(7)) {
                case 0:
                    store.insertLibrary(number);
                    break;
                case 1:
                case 2:
                    store.insertBook(library, number, below(4) == 0 ? "-3" : "4.50");
                    break;
                case 3:
                    if (book) {
                        book->setRelatedObject("library", library);
                    }
                    break;
                case 4:
                    if (book) {
                        book->setValueForKey(number, "title");
                        book->setValueForKey(NSDecimalNumber(static_cast<int>(below(9)) - 3),
                                             "price");
                    }
                    break;
                case 5:
                    if (book) {
                        context().deleteObject(*book);
                    }
                    break;
                case 6:
                    if (library && below(3) == 0) {
                        context().deleteObject(*library);
                    }
                    break;
                }
            }
            const bool isStep = context().hasChanges();
            endStep();
            if (!isStep) {
                continue;
            }
            states.resize(position + 1);
            states.push_back(snapshot(context()));
            ++position;
        }
        ASSERT_EQ(snapshot(context()), states[position]) << "step " << walk;
        context().checkInvariants();
        ASSERT_FALSE(context().hasChanges());
        if (walk % 20 == 0) {
            NSManagedObjectContext fresh(store.coordinator());
            ASSERT_EQ(snapshot(fresh), snapshot(context())) << "step " << walk;
        }
    }
}

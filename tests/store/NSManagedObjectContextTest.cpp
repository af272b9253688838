#include "store/NSError.h"
#include "tests/support/LibraryStore.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <algorithm>

namespace {

class NSManagedObjectContextTest : public testing::Test
{
protected:
    NSManagedObjectContextTest() { store.open(); }

    NSManagedObjectContext& context() { return store.context(); }
    std::size_t count(const char* entity) { return context().countForFetchRequest({entity}); }

    LibraryStore store;
};

} // namespace

TEST_F(NSManagedObjectContextTest, savesEveryKindOfValueAndReadsItBackTheSame)
{
    auto& city = store.insertLibrary(QStringLiteral("City ÷ ⟶"));
    auto& book = store.insertBook(&city, QStringLiteral("Emma"), "12345678901234567890.10");
    book.setValueForKey(Instant(1'363'305'600.25), "published");
    book.setValueForKey(0.1 + 0.2, "weight");
    book.setValueForKey(QStringLiteral("not stored"), "note");
    auto& bare = context().insertNewObjectForEntityForName("Book");
    bare.setValueForKey({}, "price");
    context().save();

    store.reopen();
    const auto books = context().executeFetchRequest({"Book"});
    ASSERT_EQ(books.size(), 2);
    EXPECT_EQ(textOf(*books[0], "title"), QStringLiteral("Emma"));
    EXPECT_EQ(decimalOf(*books[0], "price"), "12345678901234567890.10");
    EXPECT_EQ(books[0]->valueForKey("published"), PropertyValue(Instant(1'363'305'600.25)));
    EXPECT_EQ(books[0]->valueForKey("weight"), PropertyValue(0.1 + 0.2));
    EXPECT_EQ(books[0]->valueForKey("note"), PropertyValue());
    EXPECT_EQ(textOf(*books[0]->relatedObject("library"), "name"), QStringLiteral("City ÷ ⟶"));
    for (const auto* const key : {"title", "price", "published", "weight"}) {
        EXPECT_EQ(books[1]->valueForKey(key), PropertyValue()) << key;
    }
    EXPECT_FALSE(books[1]->relatedObject("library"));
}

TEST_F(NSManagedObjectContextTest, holdsOneObjectPerRecordHoweverItIsReached)
{
    auto& city = store.insertLibrary(QStringLiteral("City"));
    store.insertBook(&city, QStringLiteral("Emma"));
    context().save();
    store.reopen();
    auto* const book = context().executeFetchRequest({"Book"}).front();
    auto* const library = context().executeFetchRequest({"Library"}).front();
    EXPECT_EQ(book->relatedObject("library"), library);
    EXPECT_EQ(library->relatedObjects("books"), std::vector{book});
    EXPECT_EQ(context().objectWithID("Book", *book->recordID()), book);
    EXPECT_FALSE(context().objectWithID("Book", 999));
}

TEST_F(NSManagedObjectContextTest, keepsBothSidesOfARelationshipInStep)
{
    auto& city = store.insertLibrary(QStringLiteral("City"));
    auto& village = store.insertLibrary(QStringLiteral("Village"));
    auto& book = store.insertBook(&city, QStringLiteral("Emma"));
    context().save();
    int cityChanges = 0;
    const auto observation = city.observe("books", [&](const ObservedChange&) { ++cityChanges; });
    village.addRelatedObject("books", book);
    EXPECT_TRUE(city.relatedObjects("books").empty());
    EXPECT_EQ(book.relatedObject("library"), &village);
    EXPECT_EQ(cityChanges, 1);
    context().checkInvariants();
    context().save();
    store.reopen();
    EXPECT_EQ(textOf(*context().executeFetchRequest({"Book"})[0]->relatedObject("library"), "name"),
              QStringLiteral("Village"));

    auto& newBook = context().insertNewObjectForEntityForName("Book");
    EXPECT_THROW(newBook.setRelatedObject("library", &newBook), std::invalid_argument);
    EXPECT_THROW(newBook.setValueForKey(1.0, "title"), std::invalid_argument);
    EXPECT_THROW(newBook.valueForKey("publisher"), std::invalid_argument);
}

TEST_F(NSManagedObjectContextTest, deletesWhatADeletedRecordOwns)
{
    auto& city = store.insertLibrary(QStringLiteral("City"));
    auto& kept = store.insertLibrary(QStringLiteral("Kept"));
    store.insertBook(&city, QStringLiteral("Emma"));
    store.insertBook(&kept, QStringLiteral("Persuasion"));
    context().save();
    store.reopen();
    auto* const doomed = context().executeFetchRequest({"Library"}).front();
    auto* const member = doomed->relatedObjects("books").front();
    context().deleteObject(*doomed);
    context().deleteObject(*doomed);
    EXPECT_TRUE(member->isDeleted());
    EXPECT_EQ(member->valueForKey("title"), PropertyValue());
    EXPECT_FALSE(member->relatedObject("library"));
    EXPECT_TRUE(doomed->relatedObjects("books").empty());
    member->setValueForKey(QStringLiteral("too late"), "title");
    context().checkInvariants();
    context().save();
    EXPECT_FALSE(context().hasChanges());
    store.reopen();
    ASSERT_EQ(count("Book"), 1);
    EXPECT_EQ(textOf(*context().executeFetchRequest({"Book"}).front(), "title"),
              QStringLiteral("Persuasion"));
}

TEST_F(NSManagedObjectContextTest, countsSeeUnsavedChangesAndComputedValuesDoNot)
{
    auto& early = store.insertBook(nullptr, QStringLiteral("Early"));
    early.setValueForKey(Instant(1000), "published");
    context().save();
    auto& late = store.insertBook(nullptr, QStringLiteral("Late"));
    late.setValueForKey(Instant(2000), "published");
    const auto latest = [this] {
        return context()
            .executeDictionaryFetchRequest({"Book"},
                                           {{"latest", "@max.published", NSAttributeType::Date}})
            .at("latest");
    };
    EXPECT_EQ(count("Book"), 2);
    EXPECT_EQ(latest(), PropertyValue(Instant(1000)));
    context().save();
    EXPECT_EQ(latest(), PropertyValue(Instant(2000)));
    context().deleteObject(late);
    EXPECT_EQ(count("Book"), 1);
    EXPECT_EQ(context().executeFetchRequest({"Book"}), std::vector<NSManagedObject*>{&early});
    EXPECT_EQ(latest(), PropertyValue(Instant(2000)));
    auto& brief = store.insertBook(nullptr, QStringLiteral("Brief"));
    context().deleteObject(brief);
    EXPECT_TRUE(context().insertedObjects().empty());
    EXPECT_EQ(count("Book"), 1);
}

TEST_F(NSManagedObjectContextTest, findsTheLargestMemberInTheFileAndAmongUnsavedChangesAlike)
{
    auto& city = store.insertLibrary(QStringLiteral("City"));
    for (const int year : {3, 1, 2}) {
        auto& book = store.insertBook(&city, QString::number(year));
        book.setValueForKey(Instant(year), "published");
    }
    store.insertBook(&city, QStringLiteral("undated"));
    auto& undatedOnly = store.insertLibrary(QStringLiteral("Undated"));
    auto& undated = store.insertBook(&undatedOnly, QStringLiteral("undated"));
    auto& empty = store.insertLibrary(QStringLiteral("Empty"));
    const auto latestTitle = [this](const NSManagedObject& library) {
        const auto* const book = context().relatedObjectWithMaximum(library, "books", "published");
        return book ? textOf(*book, "title") : QString();
    };
    EXPECT_EQ(latestTitle(city), QStringLiteral("3"));
    context().save();
    store.reopen();
    const auto libraries = context().executeFetchRequest({"Library"});
    EXPECT_EQ(latestTitle(*libraries[0]), QStringLiteral("3"));
    EXPECT_EQ(latestTitle(*libraries[1]), QStringLiteral("undated"));
    EXPECT_EQ(latestTitle(*libraries[2]), QString());
    auto* const latest = context().relatedObjectWithMaximum(*libraries[0], "books", "published");
    latest->setValueForKey(Instant(0), "published");
    EXPECT_EQ(latestTitle(*libraries[0]), QStringLiteral("2"));
    static_cast<void>(undated);
    static_cast<void>(empty);
}

TEST_F(NSManagedObjectContextTest, announcesTheNetChangesOfAnEventOnce)
{
    auto& city = store.insertLibrary(QStringLiteral("City"));
    auto& old = store.insertBook(&city, QStringLiteral("Old"));
    context().save();
    std::vector<ObjectChanges> announced;
    QObject::connect(&context(), &NSManagedObjectContext::objectsDidChange,
                     [&](const ObjectChanges& changes) { announced.push_back(changes); });
    auto& book = store.insertBook(&city, QStringLiteral("New"));
    auto& brief = store.insertBook(&city, QStringLiteral("Brief"));
    context().deleteObject(brief);
    context().deleteObject(old);
    EXPECT_TRUE(announced.empty());
    QCoreApplication::processEvents();
    ASSERT_EQ(announced.size(), 1);
    EXPECT_EQ(announced[0].inserted, std::vector<NSManagedObject*>{&book});
    EXPECT_EQ(announced[0].updated, std::vector<NSManagedObject*>{&city});
    EXPECT_EQ(announced[0].deleted, std::vector<NSManagedObject*>{&old});
}

TEST_F(NSManagedObjectContextTest, observersOfARecordHearOfValuesDeletionAndRevival)
{
    auto& city = store.insertLibrary(QStringLiteral("City"));
    auto& book = store.insertBook(&city, QStringLiteral("Emma"));
    context().save();
    int priceChanges = 0;
    int nameChanges = 0;
    const auto price = book.observe("price", [&](const ObservedChange&) { ++priceChanges; });
    const auto name = book.observe("library.name", [&](const ObservedChange&) { ++nameChanges; });
    book.setValueForKey(decimal("1"), "price");
    book.setValueForKey(decimal("1.00"), "price");
    EXPECT_EQ(priceChanges, 2);
    city.setValueForKey(QStringLiteral("Town"), "name");
    EXPECT_EQ(nameChanges, 1);
    context().deleteObject(book);
    EXPECT_EQ(priceChanges, 3);
    EXPECT_EQ(nameChanges, 2);
    context().undoManager().undo();
    EXPECT_GE(priceChanges, 4);
    EXPECT_GE(nameChanges, 3);
}

TEST_F(NSManagedObjectContextTest, anEqualValueIsNoChange)
{
    auto& book = store.insertBook(nullptr, QStringLiteral("Emma"), "1.0");
    context().save();
    book.setValueForKey(decimal("1.00"), "price");
    book.setValueForKey(QStringLiteral("Emma"), "title");
    book.setValueForKey(QStringLiteral("transient"), "note");
    EXPECT_FALSE(context().hasChanges());
    book.setValueForKey({}, "title");
    EXPECT_EQ(context().updatedObjects(), std::vector<NSManagedObject*>{&book});
}

TEST_F(NSManagedObjectContextTest, aSecondContextSeesTheFileAndIsNeverInTheWay)
{
    store.insertBook(nullptr, QStringLiteral("Emma"));
    context().save();
    EXPECT_FALSE(NSManagedObjectContext::makeContext());
    NSPersistentStoreCoordinator::MR_setDefaultStoreCoordinator(&store.coordinator());
    const auto scratch = NSManagedObjectContext::makeContext();
    auto* const copy = scratch->executeFetchRequest({"Book"}).front();
    EXPECT_NE(copy, context().executeFetchRequest({"Book"}).front());
    copy->setValueForKey(QStringLiteral("changed"), "title");
    scratch->insertNewObjectForEntityForName("Book");
    context().save();
    EXPECT_EQ(count("Book"), 1);
    EXPECT_EQ(textOf(*context().executeFetchRequest({"Book"}).front(), "title"),
              QStringLiteral("Emma"));
    EXPECT_THROW(context().deleteObject(*copy), std::invalid_argument);
}

TEST_F(NSManagedObjectContextTest, asksEveryEditorToHandOverWhatWasTyped)
{
    struct Editor : NSEditor
    {
        bool canCommit = true;
        int asked = 0;
        bool commitEditing() override
        {
            ++asked;
            return canCommit;
        }
    };
    Editor editor;
    EXPECT_TRUE(context().commitEditing());
    context().objectDidBeginEditing(editor);
    context().objectDidBeginEditing(editor);
    EXPECT_TRUE(context().commitEditing());
    EXPECT_EQ(editor.asked, 1);
    editor.canCommit = false;
    EXPECT_FALSE(context().commitEditing());
    context().objectDidEndEditing(editor);
    EXPECT_TRUE(context().commitEditing());
}

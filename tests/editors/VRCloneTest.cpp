#include "editors/VRClone.h"

#include "tests/support/CardStore.h"
#include "tests/support/Utc.h"

#include <gtest/gtest.h>

using namespace VRClone;

namespace {

/// A card with two statements, saved, and a second context on the store to copy into.
class VRCloneTest : public testing::Test
{
protected:
    VRCloneTest() { store.save(); }
    ~VRCloneTest() override
    {
        store.context().checkInvariants();
        scratch.checkInvariants();
    }

    CardStore store;
    CVCard& card = store.insertCard(u"Everyday"_qs);
    CVStatement& statement =
        store.insertStatement(&card, utc(2013, 1, 15), {"500.00", "1000", "50", 0.1 + 0.2});
    CVStatement& later = store.insertStatement(&card, utc(2013, 2, 15));
    NSManagedObjectContext scratch{store.coordinator()};
};

} // namespace

TEST_F(VRCloneTest, CopiesValuesThereAndBackAndNoRelationships)
{
    auto& copy = static_cast<CVStatement&>(vrShallowCloneInContext(statement, scratch));
    for (const auto& attribute : statement.entity().attributes()) {
        EXPECT_EQ(copy.valueForKey(attribute.name), statement.valueForKey(attribute.name))
            << attribute.name;
    }
    EXPECT_EQ(copy.balance()->toPlainText(), "500.00");
    EXPECT_EQ(copy.card(), nullptr);
    EXPECT_TRUE(static_cast<CVCard&>(vrShallowCloneInContext(card, scratch)).statements().empty());
    vrCopyAttributesFromObject(statement, copy, scratch);
    EXPECT_FALSE(store.context().hasChanges()) << "a copy of equal values changes nothing";
    copy.setBalance(NSDecimalNumber(7));
    copy.setAnnualPercentageRate(std::nullopt);

    vrCopyAttributesFromObject(statement, copy, scratch);
    EXPECT_EQ(statement.balance(), NSDecimalNumber(7));
    EXPECT_EQ(statement.annualPercentageRate(), std::nullopt);
    EXPECT_EQ(statement.card(), &card);
    store.context().undoManager().undo();
    EXPECT_EQ(statement.balance()->toPlainText(), "500.00");
    EXPECT_EQ(statement.annualPercentageRate(), 0.1 + 0.2);
}

TEST_F(VRCloneTest, DeepCopiesOwnCopiesOfTheirMembersAndShareToOneRecordsOfTheirContext)
{
    for (auto* const context : {&store.context(), &scratch}) {
        auto& copy = static_cast<CVCard&>(vrDeepCloneInContext(card, *context));
        EXPECT_EQ(copy.name(), card.name());
        const auto statements = copy.sortedStatements();
        ASSERT_EQ(statements.size(), 2U);
        EXPECT_EQ(statements[0]->balance(), statement.balance());
        EXPECT_EQ(statements[0]->card(), &copy);
        EXPECT_EQ(card.sortedStatements(), (std::vector{&statement, &later}));

        auto* const owner =
            static_cast<CVStatement&>(vrDeepCloneInContext(statement, *context)).card();
        EXPECT_EQ(owner, context == &scratch ? nullptr : &card);
        context->undoManager().undo();
    }
}

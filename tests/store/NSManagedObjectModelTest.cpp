#include "store/NSError.h"
#include "tests/support/LibraryStore.h"

#include <gtest/gtest.h>

TEST(NSManagedObjectModel, mergesDescriptionsWhoseEntitiesReferToEachOther)
{
    const auto model = NSManagedObjectModel::mergedModel(
        {R"({"version": "3", "entities": [ { "name": "Whole", "relationships": [
              { "name": "parts", "destination": "Part", "toMany": true, "inverse": "whole",
                "deleteRule": "cascade" } ] } ] })",
         R"({"version": "5", "entities": [ { "name": "Part", "relationships": [
              { "name": "whole", "destination": "Whole", "inverse": "parts",
                "deleteRule": "nullify" } ] } ] })"});
    EXPECT_EQ(model.versionIdentifier(), QStringLiteral("3+5"));
    const auto* const parts = model.entityNamed("Whole").relationshipNamed("parts");
    ASSERT_TRUE(parts);
    EXPECT_EQ(parts->destinationEntity, &model.entityNamed("Part"));
    EXPECT_EQ(parts->inverseRelationship, model.entityNamed("Part").relationshipNamed("whole"));
    EXPECT_THROW(model.entityNamed("Sum"), std::out_of_range);
}

TEST(NSManagedObjectModel, tellsEverythingThatIsWrongWithADescriptionAtOnce)
{
    try {
        NSManagedObjectModel::mergedModel({"no json", R"({"entities": [ { "name": "Book",
            "attributes": [ { "name": "title", "type": "poem" }, { "name": "a b", "type": "text" } ],
            "relationships": [ { "name": "library", "destination": "Nowhere" },
                               { "name": "sequels", "destination": "Book", "toMany": true,
                                 "deleteRule": "nullify" } ],
            "indexes": [ { "name": "lost", "properties": [ "missing" ] } ] } ] })"});
        FAIL() << "a broken description was taken";
    } catch (const NSError& error) {
        for (const auto* const mistake :
             {"no description", "title has no known type", "\"a b\" is no name",
              "library has no delete rule", "Book.library leads to no entity",
              "Book.sequels has no inverse", "names no column: missing"}) {
            EXPECT_TRUE(error.localizedFailureReason().contains(QLatin1String(mistake)))
                << mistake << " is missing in: " << error.what();
        }
    }
}

TEST(NSManagedObjectModel, refusesAClassWhoseAttributesAreOthers)
{
    LibraryStore store;
    EXPECT_THROW(store.model().bindClass({"Book", {"price", "title"}, nullptr}),
                 std::invalid_argument);
    EXPECT_FALSE(NSManagedObjectModel::mergedModelFromDirectory(QStringLiteral(":/none")));
}

#include "foundation/KeyValueObserving.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

class Person : public KeyValueObject
{
public:
    void setName(const std::string& name)
    {
        const KeyValueChange change(*this, "name");
        m_name = name;
    }
    void setFriend(Person* other)
    {
        const KeyValueChange change(*this, "friend");
        m_friend = other;
    }
    std::string greeting() const
    {
        return "I am " + m_name + (m_friend ? ", friend of " + m_friend->m_name : "");
    }

    std::vector<std::string_view>
    keyPathsForValuesAffectingValueForKey(std::string_view key) const override
    {
        static constexpr KeyDependency dependencies[] = {
            {"greeting", "signature"},
            {"signature", "name"},
            {"greeting", "friend.name"},
        };
        auto paths = KeyValueObject::keyPathsForValuesAffectingValueForKey(key);
        addDependencies(paths, key, dependencies);
        return paths;
    }

    KeyValueObservable* observableValueForKey(std::string_view key) override
    {
        return key == "friend" ? m_friend : nullptr;
    }

private:
    std::string m_name;
    Person* m_friend = nullptr;
};

/// Counts what an observer is told.
struct Counter
{
    int count = 0;
    KeyValueHandler handler()
    {
        return [this](const ObservedChange&) {
            ++count;
        };
    }
};

} // namespace

TEST(KeyValueObserving, tellsOfEachChangeEvenToAnEqualValueUntilTheTokenGoes)
{
    Person person;
    Counter counter;
    {
        const auto observation = person.observe("name", counter.handler());
        person.setName("Ada");
        person.setName("Ada");
        person.setFriend(nullptr);
        EXPECT_EQ(counter.count, 2);
    }
    person.setName("Grace");
    EXPECT_EQ(counter.count, 2);
}

TEST(KeyValueObserving, followsDeclaredDependenciesThroughOtherKeysAndOtherObjects)
{
    Person person;
    Person other;
    std::string greeting;
    const auto observation = person.observe("greeting", [&](const ObservedChange& change) {
        EXPECT_EQ(change.keyPath, "greeting");
        EXPECT_EQ(&change.object, &person);
        greeting = person.greeting();
    });
    person.setName("Ada");
    EXPECT_EQ(greeting, "I am Ada");
    other.setName("Grace");
    EXPECT_EQ(greeting, "I am Ada");
    person.setFriend(&other);
    EXPECT_EQ(greeting, "I am Ada, friend of Grace");
    other.setName("Joan");
    EXPECT_EQ(greeting, "I am Ada, friend of Joan");
    person.setFriend(nullptr);
    greeting.clear();
    other.setName("Barbara");
    EXPECT_EQ(greeting, "");
}

TEST(KeyValueObserving, aPathMovesWithTheObjectsOnIt)
{
    Person first;
    Person second;
    Person third;
    first.setFriend(&second);
    Counter counter;
    const auto observation = first.observe("friend.friend.name", counter.handler());
    second.setFriend(&third);
    third.setName("Ada");
    EXPECT_EQ(counter.count, 2);
    second.setFriend(nullptr);
    third.setName("Grace");
    EXPECT_EQ(counter.count, 3);
}

TEST(KeyValueObserving, observersMayComeAndGoInsideAHandler)
{
    Person person;
    Counter late;
    Counter removed;
    KeyValueObservation lateObservation;
    KeyValueObservation removedObservation;
    KeyValueObservation own;
    int ownCount = 0;
    own = person.observe("name", [&](const ObservedChange&) {
        ++ownCount;
        lateObservation = person.observe("name", late.handler());
        removedObservation = KeyValueObservation();
        own = KeyValueObservation();
    });
    removedObservation = person.observe("name", removed.handler());
    person.setName("Ada");
    EXPECT_EQ(ownCount, 1);
    EXPECT_EQ(late.count, 0);
    EXPECT_EQ(removed.count, 0);
    person.setName("Grace");
    EXPECT_EQ(ownCount, 1);
    EXPECT_EQ(late.count, 1);
}

TEST(KeyValueObserving, anObservationOutlivesWhatItObserves)
{
    Counter counter;
    KeyValueObservation observation;
    Person person;
    {
        Person other;
        person.setFriend(&other);
        observation = person.observe("friend.name", counter.handler());
    }
    person.setFriend(nullptr);
    EXPECT_EQ(counter.count, 1);
    {
        Person gone;
        observation = gone.observe("name", counter.handler());
    }
    observation = KeyValueObservation();
    EXPECT_EQ(counter.count, 1);
}

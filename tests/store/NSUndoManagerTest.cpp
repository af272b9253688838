#include "store/NSUndoManager.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <stdexcept>

namespace {

/// A number whose changes register their inverse.
class Counter
{
public:
    explicit Counter(NSUndoManager& undoManager)
        : m_undoManager(undoManager)
    {}

    int value() const { return m_value; }
    void set(int value)
    {
        m_undoManager.registerUndo([this, old = m_value] { set(old); });
        m_value = value;
    }
    void correct(int value)
    {
        m_undoManager.registerCorrection([this, old = m_value] { set(old); });
        m_value = value;
    }

private:
    NSUndoManager& m_undoManager;
    int m_value = 0;
};

class NSUndoManagerTest : public testing::Test
{
protected:
    void endEvent() { QCoreApplication::processEvents(); }

    NSUndoManager undoManager;
    Counter counter{undoManager};
};

} // namespace

TEST_F(NSUndoManagerTest, whatOneEventDoesIsOneStep)
{
    counter.set(1);
    {
        const UndoGroup outer(undoManager);
        counter.set(2);
        const UndoGroup inner(undoManager);
        counter.set(3);
    }
    undoManager.setActionName(QStringLiteral("Count"));
    endEvent();
    counter.set(4);
    endEvent();
    undoManager.undo();
    EXPECT_EQ(counter.value(), 3);
    EXPECT_EQ(undoManager.undoActionName(), QStringLiteral("Count"));
    undoManager.undo();
    EXPECT_EQ(counter.value(), 0);
    EXPECT_FALSE(undoManager.canUndo());
    EXPECT_EQ(undoManager.redoActionName(), QStringLiteral("Count"));
    undoManager.redo();
    EXPECT_EQ(counter.value(), 3);
    undoManager.redo();
    EXPECT_EQ(counter.value(), 4);
    undoManager.redo();
    EXPECT_EQ(counter.value(), 4);
}

TEST_F(NSUndoManagerTest, emptyGroupsAndNamesAloneMakeNoStep)
{
    counter.set(1);
    undoManager.setActionName(QStringLiteral("Count"));
    undoManager.closeEventGroup();
    {
        const UndoGroup group(undoManager);
    }
    undoManager.setActionName(QStringLiteral("Nothing"));
    undoManager.closeEventGroup();
    undoManager.setActionName(QStringLiteral("Nothing"));
    EXPECT_EQ(undoManager.undoActionName(), QStringLiteral("Count"));
    undoManager.undo();
    EXPECT_FALSE(undoManager.canUndo());
}

TEST_F(NSUndoManagerTest, aNewStepDiscardsTheRedoAndRegistrationCanBeOff)
{
    counter.set(1);
    undoManager.undo();
    {
        const UndoRegistrationDisabled outer(undoManager);
        const UndoRegistrationDisabled inner(undoManager);
        counter.set(7);
    }
    EXPECT_TRUE(undoManager.canRedo());
    EXPECT_FALSE(undoManager.canUndo());
    counter.set(8);
    EXPECT_FALSE(undoManager.canRedo());
    EXPECT_THROW(undoManager.enableUndoRegistration(), std::logic_error);
}

TEST_F(NSUndoManagerTest, correctionsJoinTheStepTheyCorrectAndKeepTheRedo)
{
    counter.set(1);
    counter.correct(10);
    endEvent();
    counter.set(2);
    endEvent();
    counter.correct(20);
    undoManager.undo();
    EXPECT_EQ(counter.value(), 10);
    counter.correct(11);
    undoManager.redo();
    EXPECT_EQ(counter.value(), 20);
    counter.correct(21);
    undoManager.undo();
    EXPECT_EQ(counter.value(), 11);
    undoManager.undo();
    EXPECT_EQ(counter.value(), 0);
}

TEST_F(NSUndoManagerTest, groupsMustMatch)
{
    EXPECT_THROW(undoManager.endUndoGrouping(), std::logic_error);
    undoManager.beginUndoGrouping();
    EXPECT_THROW(undoManager.undo(), std::logic_error);
    undoManager.endUndoGrouping();
    EXPECT_NO_THROW(undoManager.undo());
}

TEST_F(NSUndoManagerTest, aGroupThatOutlivesItsEventDoesNotSwallowTheNextOne)
{
    undoManager.beginUndoGrouping();
    counter.set(1);
    endEvent();
    undoManager.endUndoGrouping();
    endEvent();
    counter.set(2);
    endEvent();
    undoManager.undo();
    EXPECT_EQ(counter.value(), 1);
}

TEST_F(NSUndoManagerTest, anUndoThatFailsLeavesItsStepAsItWas)
{
    bool fails = true;
    undoManager.registerUndo([&fails] {
        if (fails) {
            throw std::runtime_error("broken");
        }
    });
    counter.set(1);
    endEvent();
    EXPECT_THROW(undoManager.undo(), std::runtime_error);
    EXPECT_EQ(counter.value(), 1);
    EXPECT_FALSE(undoManager.canRedo());
    fails = false;
    undoManager.undo();
    EXPECT_EQ(counter.value(), 0);
    EXPECT_FALSE(undoManager.canUndo());
}

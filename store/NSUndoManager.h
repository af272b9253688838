#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

/// Keeps the steps that a person can take back, and those taken back that can be done again.
///
/// A step is a group of inverse operations. Groups nest: what is registered in an inner group
/// belongs to the outer one when it closes. When no group is open, registering an operation or
/// opening a group opens one for the current event; it closes at the event's end, at undo, and when
/// the owner says so (a context does at each save), so all that one event did is one step. A group
/// that stayed empty makes no step. Operations registered while undoing make the step to redo.
class NSUndoManager
{
public:
    using Operation = std::function<void()>;

    NSUndoManager() = default;
    NSUndoManager(const NSUndoManager&) = delete;
    NSUndoManager& operator=(const NSUndoManager&) = delete;

    /// `handler` is called before a group opens or closes, before a step is named, and before and
    /// after an undo: the owner registers what it has put off so far.
    void setCheckpointHandler(std::function<void()> handler);

    /// Adds the inverse of what was just done to the open group. A new step discards what could be
    /// redone.
    void registerUndo(Operation operation);
    /// The same for a correction of what the latest step left: it joins that step (the step to redo
    /// when the latest was an undo), makes none of its own and discards nothing.
    void registerCorrection(Operation operation);

    void beginUndoGrouping();
    /// Throws std::logic_error without a beginUndoGrouping() of its own.
    void endUndoGrouping();
    /// Ends the event's group now. While an explicit group is open, or a step is being taken back
    /// or done again, does nothing.
    void closeEventGroup();

    /// Names the step that the current event is making. Without one, nothing happens.
    void setActionName(const QString& name);
    /// The name of the next step to undo (redo), empty when it has none or there is no step.
    QString undoActionName() const;
    QString redoActionName() const;

    bool canUndo() const;
    bool canRedo() const { return !m_redoSteps.empty(); }
    /// Takes back the latest step. Does nothing when there is none; throws std::logic_error while
    /// an explicit group is open.
    void undo();
    void redo();
    void removeAllActions();

    /// Counted: as many enable calls as disable calls bring registration back.
    void disableUndoRegistration() { ++m_disabled; }
    /// Throws std::logic_error when registration is enabled already.
    void enableUndoRegistration();
    bool isUndoRegistrationEnabled() const { return m_disabled == 0; }

private:
    struct Step
    {
        std::vector<Operation> operations;
        QString name;
    };
    enum class Activity
    {
        Doing,
        Undoing,
        Redoing,
    };

    void checkpoint() const;
    void openEventGroup();
    void closeAtEventEnd();
    void runLatest(std::vector<Step>& from, std::vector<Step>& to, Activity activity);

    std::function<void()> m_checkpointHandler;
    std::vector<Step> m_undoSteps;
    std::vector<Step> m_redoSteps;
    Step m_openStep;
    /// The groups open now; the outermost is the event's.
    int m_level = 0;
    int m_disabled = 0;
    Activity m_activity = Activity::Doing;
    Activity m_latestActivity = Activity::Doing;
    /// Receives the event's end; its destruction cancels that.
    QObject m_eventEnd;
};

/// Keeps a group open for the length of a scope.
class [[nodiscard]] UndoGroup
{
public:
    explicit UndoGroup(NSUndoManager& undoManager)
        : m_undoManager(undoManager)
    {
        m_undoManager.beginUndoGrouping();
    }
    UndoGroup(const UndoGroup&) = delete;
    UndoGroup& operator=(const UndoGroup&) = delete;
    // NOLINTNEXTLINE(bugprone-exception-escape): the group is open, as ending it requires.
    ~UndoGroup() { m_undoManager.endUndoGrouping(); }

private:
    NSUndoManager& m_undoManager;
};

/// Keeps registration off for the length of a scope.
class [[nodiscard]] UndoRegistrationDisabled
{
public:
    explicit UndoRegistrationDisabled(NSUndoManager& undoManager)
        : m_undoManager(undoManager)
    {
        m_undoManager.disableUndoRegistration();
    }
    UndoRegistrationDisabled(const UndoRegistrationDisabled&) = delete;
    UndoRegistrationDisabled& operator=(const UndoRegistrationDisabled&) = delete;
    // NOLINTNEXTLINE(bugprone-exception-escape): registration is off, as enabling it requires.
    ~UndoRegistrationDisabled() { m_undoManager.enableUndoRegistration(); }

private:
    NSUndoManager& m_undoManager;
};

#include "store/NSUndoManager.h"

#include <QMetaObject>
#include <QScopeGuard>

#include <algorithm>
#include <stdexcept>
#include <utility>

void NSUndoManager::setCheckpointHandler(std::function<void()> handler)
{
    m_checkpointHandler = std::move(handler);
}

void NSUndoManager::registerUndo(Operation operation)
{
    if (!isUndoRegistrationEnabled()) {
        return;
    }
    if (m_activity == Activity::Doing) {
        if (m_level == 0) {
            openEventGroup();
        }
        m_redoSteps.clear();
        m_latestActivity = Activity::Doing;
    }
    m_openStep.operations.push_back(std::move(operation));
}

void NSUndoManager::registerCorrection(Operation operation)
{
    if (!isUndoRegistrationEnabled()) {
        return;
    }
    if (m_level > 0 && !m_openStep.operations.empty()) {
        m_openStep.operations.push_back(std::move(operation));
        return;
    }
    auto& steps = m_latestActivity == Activity::Undoing ? m_redoSteps : m_undoSteps;
    if (!steps.empty()) {
        steps.back().operations.push_back(std::move(operation));
    }
}

void NSUndoManager::beginUndoGrouping()
{
    checkpoint();
    if (m_level == 0) {
        openEventGroup();
    }
    ++m_level;
}

void NSUndoManager::endUndoGrouping()
{
    if (m_level < 2) {
        throw std::logic_error("no undo group is open");
    }
    checkpoint();
    if (--m_level == 1) {
        // The event in which the group was opened may be over: a modal alert lets others pass.
        closeAtEventEnd();
    }
}

void NSUndoManager::closeEventGroup()
{
    checkpoint();
    if (m_level > 1 || m_activity != Activity::Doing) {
        return;
    }
    m_level = 0;
    if (!m_openStep.operations.empty()) {
        m_undoSteps.push_back(std::move(m_openStep));
    }
    m_openStep = {};
}

void NSUndoManager::setActionName(const QString& name)
{
    checkpoint();
    if (m_level > 0) {
        m_openStep.name = name;
    }
}

QString NSUndoManager::undoActionName() const
{
    if (!m_openStep.operations.empty()) {
        return m_openStep.name;
    }
    return m_undoSteps.empty() ? QString() : m_undoSteps.back().name;
}

QString NSUndoManager::redoActionName() const
{
    return m_redoSteps.empty() ? QString() : m_redoSteps.back().name;
}

bool NSUndoManager::canUndo() const
{
    return !m_undoSteps.empty() || !m_openStep.operations.empty();
}

void NSUndoManager::undo()
{
    closeEventGroup();
    runLatest(m_undoSteps, m_redoSteps, Activity::Undoing);
}

void NSUndoManager::redo()
{
    closeEventGroup();
    runLatest(m_redoSteps, m_undoSteps, Activity::Redoing);
}

void NSUndoManager::removeAllActions()
{
    checkpoint();
    m_undoSteps.clear();
    m_redoSteps.clear();
    m_openStep = {};
}

void NSUndoManager::enableUndoRegistration()
{
    if (m_disabled == 0) {
        throw std::logic_error("undo registration is enabled already");
    }
    --m_disabled;
}

void NSUndoManager::checkpoint() const
{
    if (m_checkpointHandler) {
        m_checkpointHandler();
    }
}

void NSUndoManager::openEventGroup()
{
    m_level = 1;
    closeAtEventEnd();
}

void NSUndoManager::closeAtEventEnd()
{
    QMetaObject::invokeMethod(
        &m_eventEnd, [this] { closeEventGroup(); }, Qt::QueuedConnection);
}

void NSUndoManager::runLatest(std::vector<Step>& from, std::vector<Step>& to, Activity activity)
{
    if (m_level > 0) {
        throw std::logic_error("an undo group is still open");
    }
    if (from.empty()) {
        return;
    }
    const auto step = std::move(from.back());
    from.pop_back();
    m_activity = activity;
    m_latestActivity = activity;
    const auto done = qScopeGuard([this] {
        m_activity = Activity::Doing;
        m_openStep = {};
    });
    const auto run = [](const std::vector<Operation>& operations) {
        std::for_each(operations.rbegin(), operations.rend(),
                      [](const Operation& operation) { operation(); });
    };
    try {
        run(step.operations);
        checkpoint();
    } catch (...) {
        // Half a step is worse than none: what was done of it is taken back.
        checkpoint();
        run(std::exchange(m_openStep.operations, {}));
        checkpoint();
        from.push_back(step);
        throw;
    }
    if (!m_openStep.operations.empty()) {
        m_openStep.name = step.name;
        to.push_back(std::move(m_openStep));
    }
}

#include "mainwindow/editing/OpenEditor.h"

#include "editors/VRClone.h"
#include "mainwindow/editing/EditorPlaces.h"
#include "store/NSManagedObjectContext.h"

#include <QLineEdit>

#include <utility>
#include <vector>

OpenEditor::OpenEditor(CVPopoverController& form, NSManagedObjectContext& scratchContext,
                       const EditorPlaces& places, NSPopoverDelegate& delegate,
                       const EditorTarget& target)
    : m_form(form)
    , m_scratchContext(scratchContext)
    , m_places(places)
    , m_target(target)
    , m_popover(form.view())
{
    m_popover.setAnimates(true);
    m_popover.setDelegate(&delegate);
}

OpenEditor::~OpenEditor() = default;

EditorDraft OpenEditor::draft() const
{
    return {m_target, m_form.typedTexts()};
}

void OpenEditor::fill()
{
    m_form.setContext(&m_scratchContext);
    rememberTarget();
    fillForm();
}

void OpenEditor::show()
{
    const auto anchor = place().value();
    m_popover.showRelativeToRect(anchor.rect, *anchor.view, anchor.preferredEdge);
    m_form.setPopover(&m_popover);
}

std::optional<PopoverAnchor> OpenEditor::place() const
{
    return m_places.placeOf(m_target);
}

EditorDraft OpenEditor::retarget(const EditorTarget& target)
{
    if (target == m_target) {
        return {m_target, {}};
    }
    auto given = draft();
    auto* const formerRecord = scratchRecord();
    m_target = target;
    m_hasRefused = false;
    try {
        rememberTarget();
        fillForm();
    } catch (...) {
        // A form that was filled in part must not be confirmed for either of the two.
        m_target = given.target;
        drop();
        throw;
    }
    // Typing goes on in the field that has the focus, in place of what stands there now.
    if (auto* const field = qobject_cast<QLineEdit*>(m_form.view().focusWidget())) {
        field->selectAll();
    }
    if (formerRecord) {
        m_scratchContext.deleteObject(*formerRecord);
        m_scratchContext.processPendingChanges();
    }
    m_popover.reposition();
    return given;
}

void OpenEditor::followTarget()
{
    if (m_target.isNew() || m_target.isGone()) {
        return;
    }
    std::vector<std::string> changed;
    for (auto& [name, known] : m_knownValues) {
        if (auto value = m_target.record->valueForKey(name); value != known) {
            known = std::move(value);
            changed.push_back(name);
        }
    }
    if (changed.empty()) {
        return;
    }
    m_form.changeRecord([this, &changed] {
        for (const auto& name : changed) {
            scratchRecord()->setValueForKey(m_knownValues.at(name), name);
        }
    });
}

void OpenEditor::rememberTarget()
{
    m_knownValues.clear();
    if (m_target.isNew()) {
        return;
    }
    for (const auto& attribute : m_target.record->entity().attributes()) {
        // One that is computed from another follows that.
        if (!attribute.isTransient) {
            m_knownValues.emplace(attribute.name, m_target.record->valueForKey(attribute.name));
        }
    }
}

bool OpenEditor::shouldClose()
{
    if (refusesFirst() && !m_hasRefused) {
        m_hasRefused = true;
        return false;
    }
    m_isClosingByItself = true;
    return true;
}

void OpenEditor::drop()
{
    m_form.setIsDirty(false);
    m_popover.close();
}

EditorOutcome OpenEditor::conclude(NSManagedObjectContext& context)
{
    EditorOutcome outcome{m_target, nullptr, {}, m_isClosingByItself};
    if (isConfirmed()) {
        outcome.written = &write(context);
    } else {
        outcome.dropped = m_form.typedTexts();
    }
    putAway();
    return outcome;
}

NSManagedObject* OpenEditor::copyOfTarget() const
{
    return m_target.isNew() ? nullptr
                            : &VRClone::vrShallowCloneInContext(*m_target.record, m_scratchContext);
}

bool OpenEditor::isConfirmed() const
{
    return m_form.isDirty() && scratchRecord() && !m_target.isGone() &&
           (!m_isClosingByItself || isWorthKeeping());
}

/// Everything that an editor ever changes passes here.
NSManagedObject& OpenEditor::write(NSManagedObjectContext& context)
{
    const auto& typed = *scratchRecord();
    auto& undoManager = context.undoManager();
    auto* record = m_target.isNew() ? nullptr : m_target.record;
    {
        const UndoGroup group(undoManager);
        const bool isNew = !record;
        if (isNew) {
            record = &context.insertNewObjectForEntityForName(typed.entity().name());
        }
        VRClone::vrCopyAttributesFromObject(*record, typed, m_scratchContext);
        if (isNew) {
            completeRecord(*record);
        }
    }
    undoManager.setActionName(actionName());
    settle(context);
    return *record;
}

void OpenEditor::putAway()
{
    auto* const record = scratchRecord();
    emptyForm();
    m_form.setPopover(nullptr);
    if (record && !leavesScratchRecord()) {
        m_scratchContext.deleteObject(*record);
        m_scratchContext.processPendingChanges();
    }
}

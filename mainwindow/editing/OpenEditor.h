#pragma once

#include "mainwindow/editing/EditorTarget.h"
#include "store/PropertyValue.h"
#include "widgets/NSPopover.h"
#include "widgets/PopoverAnchor.h"

#include <functional>
#include <map>
#include <optional>
#include <string>

class EditorPlaces;
class NSManagedObjectContext;
class NSPopoverDelegate;

/// What became of an editor that closed.
struct EditorOutcome
{
    EditorTarget target;
    /// The live record that was written; a new one if the target is new. Null when nothing was.
    NSManagedObject* written = nullptr;
    /// What was typed and written nowhere.
    CVPopoverController::TypedTexts dropped;
    /// Whether the popover closed by itself: neither the form nor a command closed it.
    bool isUnasked = false;
};

/// An editor while it is open: its popover, the form that is lent to it, and what it edits. Made
/// when the editor opens, gone when it has closed. Nothing else in the window knows which record an
/// editor writes to, or where it stands.
///
/// The transitions of each editor are listed at its class.
class OpenEditor
{
public:
    OpenEditor(const OpenEditor&) = delete;
    virtual ~OpenEditor();

    NSPopover& popover() { return m_popover; }
    const EditorTarget& target() const { return m_target; }
    /// What stands in the form, should it be given up now.
    EditorDraft draft() const;

    /// Fills the form. Throws NSError when what it needs cannot be read: the editor is of no use
    /// then.
    void fill();
    /// Shows the form, which is filled, at the target's place, which there must be.
    void show();
    /// Where it stands now; absent while that is nowhere.
    std::optional<PopoverAnchor> place() const;
    /// Edits something else from now on, at the place of that, and answers what is given up. When
    /// it is the same, nothing happens. When the other cannot be read, throws NSError, and the
    /// editor is dropped.
    EditorDraft retarget(const EditorTarget& target);

    /// The target may have other values than the form was filled with: undo, for one, works on. The
    /// form takes them over, but for what was typed; else a confirm would bring the old ones back.
    void followTarget();

    /// Whether the popover may close by itself. An editor that protects what it holds refuses the
    /// first time, so that a press that was meant for something else costs nothing.
    bool shouldClose();
    /// Closes the popover; nothing is written.
    void drop();

    /// To be called once, when the popover has closed: writes what was confirmed into the main
    /// context, as one step to undo, and puts the form away.
    EditorOutcome conclude(NSManagedObjectContext& context);

protected:
    /// All of them must outlive the editor. The delegate is the popover's.
    OpenEditor(CVPopoverController& form, NSManagedObjectContext& scratchContext,
               const EditorPlaces& places, NSPopoverDelegate& delegate, const EditorTarget& target);

    NSManagedObjectContext& scratchContext() const { return m_scratchContext; }
    /// A copy of the target's record, or none while that is still to be made.
    NSManagedObject* copyOfTarget() const;
    bool hasRefused() const { return m_hasRefused; }

    /// Hands the target's copy, or a new record, to the form; and takes it away again.
    virtual void fillForm() = 0;
    virtual void emptyForm() = 0;
    /// The record of the scratch context that is typed into; null while there is none.
    virtual NSManagedObject* scratchRecord() const = 0;

    /// Whether the popover has to ask twice before it closes by itself.
    virtual bool refusesFirst() const = 0;
    /// Whether a form that the popover took away by itself may be confirmed as it stands.
    virtual bool isWorthKeeping() const { return true; }
    /// Whether the record that was typed into stays in the scratch context, which is never saved.
    virtual bool leavesScratchRecord() const { return false; }
    /// Gives a new record what is no attribute.
    virtual void completeRecord(NSManagedObject& /*record*/) {}
    virtual QString actionName() const = 0;
    /// The step is made: brings it to where it has to be at once.
    virtual void settle(NSManagedObjectContext& context) = 0;

private:
    void rememberTarget();
    bool isConfirmed() const;
    NSManagedObject& write(NSManagedObjectContext& context);
    void putAway();

    CVPopoverController& m_form;
    NSManagedObjectContext& m_scratchContext;
    const EditorPlaces& m_places;
    EditorTarget m_target;
    /// The target's attributes as the form knows them; none while it is new.
    std::map<std::string, PropertyValue, std::less<>> m_knownValues;
    NSPopover m_popover;
    bool m_hasRefused = false;
    bool m_isClosingByItself = false;
};

#include "mainwindow/editing/OpenStatementEditor.h"

#include "editors/CVStatementPopoverController.h"
#include "editors/OADatePickerTextField.h"
#include "foundation/Clock.h"
#include "model/CVCard.h"
#include "model/CVManagedObjectContext.h"
#include "model/CVStatement.h"

OpenStatementEditor::OpenStatementEditor(CVStatementPopoverController& form,
                                         NSManagedObjectContext& scratchContext,
                                         const EditorPlaces& places, NSPopoverDelegate& delegate,
                                         const EditorTarget& target)
    : OpenEditor(form, scratchContext, places, delegate, target)
    , m_form(form)
{
    popover().setAccessibleName(tr("Statement"));
}

CVCard* OpenStatementEditor::cardForNewStatement() const
{
    return target().isNew() && !hasRefused() ? static_cast<CVCard*>(target().record) : nullptr;
}

void OpenStatementEditor::prepareForm()
{
    m_form.dateField().setMaxDate(Clock::now());
}

void OpenStatementEditor::beginTyping()
{
    m_form.dateField().setFocus();
}

void OpenStatementEditor::fillForm()
{
    if (target().isNew()) {
        m_form.setOriginalStatement(nullptr);
        m_form.setIsDirty(false);
        m_form.setCard(static_cast<CVCard*>(target().record));
        m_form.createNewStatement();
    } else {
        auto* const original = static_cast<CVStatement*>(target().record);
        m_form.setCard(original->card());
        m_form.setStatement(static_cast<CVStatement*>(copyOfTarget()));
        m_form.setOriginalStatement(original);
    }
}

void OpenStatementEditor::emptyForm()
{
    m_form.setOriginalStatement(nullptr);
    m_form.setStatement(nullptr);
    // What the card has decides about the date; nobody asks any more.
    m_form.setCard(nullptr);
}

NSManagedObject* OpenStatementEditor::scratchRecord() const
{
    return m_form.statement();
}

bool OpenStatementEditor::refusesFirst() const
{
    return target().isNew();
}

bool OpenStatementEditor::leavesScratchRecord() const
{
    return target().isNew();
}

void OpenStatementEditor::completeRecord(NSManagedObject& record)
{
    static_cast<CVStatement&>(record).setCard(static_cast<CVCard*>(target().record));
}

QString OpenStatementEditor::actionName() const
{
    return target().isNew() ? tr("Add Statement") : tr("Edit Statement");
}

void OpenStatementEditor::settle(NSManagedObjectContext& context)
{
    CVManagedObjectContext::saveAndLogError(context);
}

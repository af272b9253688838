#include "mainwindow/editing/OpenCardEditor.h"

#include "editors/CVCardPopoverController.h"
#include "model/CVCard.h"
#include "store/NSManagedObjectContext.h"

OpenCardEditor::OpenCardEditor(CVCardPopoverController& form,
                               NSManagedObjectContext& scratchContext, const EditorPlaces& places,
                               NSPopoverDelegate& delegate, const EditorTarget& target)
    : OpenEditor(form, scratchContext, places, delegate, target)
    , m_form(form)
{
    popover().setAccessibleName(tr("Card"));
    popover().setBehavior(NSPopover::Behavior::Semitransient);
}

CVCard* OpenCardEditor::editingCard() const
{
    if (target().isNew()) {
        return nullptr;
    }
    return hasRefused() ? m_form.card() : static_cast<CVCard*>(target().record);
}

void OpenCardEditor::fillForm()
{
    if (target().isNew()) {
        m_form.setOriginalCard(nullptr);
        m_form.createNewCard();
    } else {
        m_form.setOriginalCard(static_cast<CVCard*>(target().record));
        m_form.setCard(static_cast<CVCard*>(copyOfTarget()));
    }
}

void OpenCardEditor::emptyForm()
{
    m_form.setOriginalCard(nullptr);
    m_form.setCard(nullptr);
}

NSManagedObject* OpenCardEditor::scratchRecord() const
{
    return m_form.card();
}

bool OpenCardEditor::refusesFirst() const
{
    return !target().isNew();
}

/// Somebody who looks at an empty form and presses somewhere else does not mean to have a card
/// without a name; and of a card that is as it was, nothing would be there to take back.
bool OpenCardEditor::isWorthKeeping() const
{
    const auto& typed = *m_form.card();
    if (target().isNew()) {
        const auto isEmpty = [](const std::optional<QString>& text) {
            return text.value_or(QString()).isEmpty();
        };
        return !isEmpty(typed.name()) || !isEmpty(typed.account());
    }
    const auto& original = static_cast<const CVCard&>(*target().record);
    return typed.name() != original.name() || typed.account() != original.account() ||
           typed.ccy() != original.ccy();
}

QString OpenCardEditor::actionName() const
{
    return target().isNew() ? tr("Add Card") : tr("Edit Card");
}

void OpenCardEditor::settle(NSManagedObjectContext& context)
{
    context.processPendingChanges();
}

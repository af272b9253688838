#pragma once

#include "mainwindow/editing/OpenEditor.h"

#include <QCoreApplication>

class CVCard;
class CVCardPopoverController;

/// The editor of a card while it is open.
///
/// | transition  | when                                       | what                              |
/// |-------------|--------------------------------------------|-----------------------------------|
/// | open        | "+" below the list, New Card, a start      | a new card, at the list's title   |
/// |             | without cards                              |                                   |
/// |             | double click or Press on a row, Get Info   | that card, at its row             |
/// | retarget    | one of these for something else meanwhile  | that; what was typed is given up  |
/// |             | one of these for the same                  | nothing                           |
/// | refuse      | a press elsewhere, the first, over a card  | it stays, and the press does what |
/// |             | that exists                                | it does                           |
/// | confirm     | Add, Update, Return                        | one step to undo                  |
/// |             | a press elsewhere, while the form is as if | the same; not for a card that     |
/// |             | confirmed                                  | nobody touched                    |
/// | drop        | Escape, Cancel; a press elsewhere          | nothing is written                |
/// | target gone | the card was deleted or taken back         | nothing is written                |
///
/// What was typed and is not written is in the outcome, so that the person can go on with it.
class OpenCardEditor : public OpenEditor
{
    Q_DECLARE_TR_FUNCTIONS(OpenCardEditor)

public:
    OpenCardEditor(CVCardPopoverController& form, NSManagedObjectContext& scratchContext,
                   const EditorPlaces& places, NSPopoverDelegate& delegate,
                   const EditorTarget& target);

    /// The card whose editor this is; null while a new one is made. From when the popover was
    /// refused to close it is the copy that is typed into.
    CVCard* editingCard() const;

protected:
    void fillForm() override;
    void emptyForm() override;
    NSManagedObject* scratchRecord() const override;
    bool refusesFirst() const override;
    bool isWorthKeeping() const override;
    QString actionName() const override;
    void settle(NSManagedObjectContext& context) override;

private:
    CVCardPopoverController& m_form;
};

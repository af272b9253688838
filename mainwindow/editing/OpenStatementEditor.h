#pragma once

#include "mainwindow/editing/OpenEditor.h"

#include <QCoreApplication>

class CVCard;
class CVStatement;
class CVStatementPopoverController;

/// The editor of a statement while it is open.
///
/// | transition  | when                                                      | what |
/// |-------------|-----------------------------------------------------------|----------------------------------------------------------|
/// | open        | "+" of a row, Add Statement: nothing open, or another one | a new statement of
/// that card, at the "+"; what was open is dropped | |             | double click or Press on a
/// dot, Return, Get Info          | that statement, at its dot                               | |
/// retarget    | another statement is selected, or opened, meanwhile       | that one, at its dot;
/// what was typed is given up         | |             | the same one is opened again, or "+" in the
/// same row      | nothing                                                  | | refuse      | the
/// popover itself wants to close, the first time, over a new statement | it stays | | confirm     |
/// Add, Update, Return, while the button is enabled          | one step, "Add Statement" or "Edit
/// Statement", saved     | | drop        | Escape, Cancel, a press beside the dots, "+" in another
/// row, Delete | nothing is written                             | | target gone | the statement, or
/// the card that it is for, was deleted or taken back | nothing is written |
///
/// What was typed and is not written is in the outcome, so that the person can go on with it.
class OpenStatementEditor : public OpenEditor
{
    Q_DECLARE_TR_FUNCTIONS(OpenStatementEditor)

public:
    OpenStatementEditor(CVStatementPopoverController& form, NSManagedObjectContext& scratchContext,
                        const EditorPlaces& places, NSPopoverDelegate& delegate,
                        const EditorTarget& target);

    /// The card that will own the statement that is made; null while one is edited, and from when
    /// the popover was refused to close.
    CVCard* cardForNewStatement() const;

    /// To be called when the popover is about to show, and when it has: no date lies after now, and
    /// typing begins with the date.
    void prepareForm();
    void beginTyping();

protected:
    void fillForm() override;
    void emptyForm() override;
    NSManagedObject* scratchRecord() const override;
    bool refusesFirst() const override;
    bool leavesScratchRecord() const override;
    void completeRecord(NSManagedObject& record) override;
    QString actionName() const override;
    void settle(NSManagedObjectContext& context) override;

private:
    CVStatementPopoverController& m_form;
};

#pragma once

#include "mainwindow/editing/OpenEditor.h"

#include <QCoreApplication>

class CVCard;
class CVStatement;
class CVStatementPopoverController;

/// The editor of a statement while it is open.
///
/// | transition  | when                                    | what                                 |
/// |-------------|-----------------------------------------|--------------------------------------|
/// | open        | "+" of a row, Add Statement             | a new statement of that card, at the |
/// |             |                                         | "+"; one that was open is dropped    |
/// |             | double click or Press on a dot, Return, | that statement, at its dot           |
/// |             | Get Info                                |                                      |
/// | retarget    | another is selected or opened meanwhile | that one, at its dot; what was typed |
/// |             |                                         | is given up                          |
/// |             | the same is opened, "+" in its own row  | nothing                              |
/// | refuse      | the popover wants to close by itself,   | it stays                             |
/// |             | the first time, over a new statement    |                                      |
/// | confirm     | Add, Update, Return                     | one step to undo, saved at once      |
/// | drop        | Escape, Cancel, a press beside dots,    | nothing is written                   |
/// |             | "+" elsewhere, a card opened from its   |                                      |
/// |             | row, Delete                             |                                      |
/// | target gone | the statement, or the card that it is   | nothing is written                   |
/// |             | for, was deleted or taken back          |                                      |
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

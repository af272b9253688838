// How the main window's controller adds, edits and deletes cards and statements: it opens the
// editors, and shows what became of them. What each editor does meanwhile stands in editing/.

#include "editors/CVCardPopoverController.h"
#include "editors/CVStatementPopoverController.h"
#include "foundation/Log.h"
#include "mainwindow/DeleteKeyGuard.h"
#include "mainwindow/MainWindowController.h"
#include "mainwindow/NoticeText.h"
#include "mainwindow/WindowNotice.h"
#include "mainwindow/editing/EditorPlaces.h"
#include "mainwindow/editing/OpenCardEditor.h"
#include "mainwindow/editing/OpenStatementEditor.h"
#include "model/CVCard.h"
#include "model/CVManagedObjectContext.h"
#include "model/CVStatement.h"
#include "store/NSArrayController.h"
#include "store/NSManagedObjectContext.h"

#include "ui_MainWindow.h"

#include <QAbstractButton>

#include <algorithm>
#include <utility>

namespace {

using Kind = EditorTarget::Kind;

} // namespace

NSManagedObjectContext& MainWindowController::scratchContext()
{
    if (!m_scratchContext) {
        m_scratchContext =
            std::make_unique<NSManagedObjectContext>(m_context->persistentStoreCoordinator());
    }
    return *m_scratchContext;
}

CVCardPopoverController& MainWindowController::cardPopoverController()
{
    if (!m_cardPopoverController) {
        m_cardPopoverController = std::make_unique<CVCardPopoverController>();
    }
    return *m_cardPopoverController;
}

CVStatementPopoverController& MainWindowController::statementPopoverController()
{
    if (!m_statementPopoverController) {
        m_statementPopoverController = std::make_unique<CVStatementPopoverController>();
    }
    return *m_statementPopoverController;
}

NSPopover* MainWindowController::cardPopover() const
{
    return m_cardEditor ? &m_cardEditor->popover() : nullptr;
}

NSPopover* MainWindowController::statementPopover() const
{
    return m_statementEditor ? &m_statementEditor->popover() : nullptr;
}

CVCard* MainWindowController::editingCard() const
{
    return m_cardEditor ? m_cardEditor->editingCard() : nullptr;
}

CVCard* MainWindowController::cardForNewStatement() const
{
    return m_statementEditor ? m_statementEditor->cardForNewStatement() : m_cardOfComingStatement;
}

std::vector<OpenEditor*> MainWindowController::openEditors() const
{
    std::vector<OpenEditor*> editors{m_statementEditor.get(), m_cardEditor.get()};
    std::erase(editors, nullptr);
    return editors;
}

OpenEditor* MainWindowController::editorOf(const NSPopover& popover) const
{
    const auto editors = openEditors();
    const auto found = std::ranges::find_if(
        editors, [&popover](OpenEditor* editor) { return &editor->popover() == &popover; });
    return found == editors.end() ? nullptr : *found;
}

template <typename Editor, typename Form>
void MainWindowController::openEditor(std::unique_ptr<Editor>& open, Form& form,
                                      const EditorTarget& target)
{
    if (open) {
        tellDropped(open->retarget(target));
    } else if (m_editorPlaces->placeOf(target)) {
        auto editor =
            std::make_unique<Editor>(form, scratchContext(), *m_editorPlaces, *this, target);
        editor->fill();
        open = std::move(editor);
        open->show();
    }
}

void MainWindowController::openCardEditor(const EditorTarget& target)
{
    openEditor(m_cardEditor, cardPopoverController(), target);
    if (m_cardEditor) {
        const auto* const command = target.isNew() ? m_ui->addCard : m_ui->getSelectedCardInfo;
        m_cardEditor->popover().setOpener(m_ui->buttonBar->buttonForAction(command));
    }
}

void MainWindowController::openStatementEditor(const EditorTarget& target)
{
    openEditor(m_statementEditor, statementPopoverController(), target);
}

void MainWindowController::addCard()
{
    if (!m_context) {
        return;
    }
    m_notice->withdraw();
    m_ui->splitView->setPaneCollapsed(0, false);
    openCardEditor({Kind::NewCard, nullptr});
}

void MainWindowController::showNewCardPopoverIfNeeded()
{
    if (m_context && CVManagedObjectContext::cardCount(*m_context) == 0) {
        addCard();
    }
}

CVCard* MainWindowController::cardOfSender(QObject* sender) const
{
    const auto* const view = qobject_cast<QWidget*>(sender);
    const auto row = view ? m_ui->cardsTableView->rowForView(view) : std::nullopt;
    return row ? m_ui->cardsTableView->cardAtRow(*row) : nullptr;
}

void MainWindowController::addStatement(QObject* sender)
{
    if (!m_context) {
        return;
    }
    auto* card = cardOfSender(sender);
    if (!card) {
        card = selectedCard();
    }
    const EditorTarget target{Kind::NewStatement, card};
    if (!card || (m_statementEditor && m_statementEditor->target() == target)) {
        return;
    }
    // A second press within the event says nothing that the first one did not.
    if (!m_cardOfComingStatement) {
        m_notice->withdraw();
    }
    dismissStatementPopover();
    m_ui->splitView->setPaneCollapsed(0, false);
    selectCardAndMakeVisible(*card);
    m_cardOfComingStatement = card;
    m_notifications.enqueue(newStatementNotification);
}

void MainWindowController::showNewStatementPopoverForSelectedCard()
{
    // Another editor may have been opened since.
    auto* const card = std::exchange(m_cardOfComingStatement, nullptr);
    if (card && !m_statementEditor) {
        openStatementEditor({Kind::NewStatement, card});
    }
}

void MainWindowController::showSelectedStatementPopover()
{
    openStatementEditor({Kind::Statement, selectedStatement()});
}

void MainWindowController::dismissStatementPopover()
{
    if (m_statementEditor) {
        m_statementEditor->drop();
    }
}

bool MainWindowController::cancelOperation()
{
    const auto editors = openEditors();
    if (editors.empty()) {
        return false;
    }
    editors.front()->drop();
    return true;
}

void MainWindowController::getInfo(QObject* sender)
{
    auto* const card = cardOfSender(sender);
    if (!card) {
        getSelectedCardInfo();
        return;
    }
    m_notice->withdraw();
    dismissStatementPopover();
    openCardEditor({Kind::Card, card});
}

void MainWindowController::getSelectedCardInfo()
{
    if (!m_context) {
        return;
    }
    m_notice->withdraw();
    if (selectedStatement()) {
        showSelectedStatementPopover();
    } else {
        showSelectedCardPopover();
    }
}

void MainWindowController::showSelectedCardPopover()
{
    auto* const card = selectedCard();
    if (!card) {
        Log::line(u"Editing card and no selection");
        return;
    }
    m_ui->splitView->setPaneCollapsed(0, false);
    m_ui->cardsTableView->scrollRowToVisible(selectedRow().value());
    openCardEditor({Kind::Card, card});
}

void MainWindowController::delete_()
{
    if (!m_context) {
        return;
    }
    const KeyValueChange totals(*this, "formattedTotals");
    const auto draft = m_statementEditor ? m_statementEditor->draft() : EditorDraft{};
    QString text;
    if (auto* const statement = selectedStatement()) {
        text = NoticeText::deleted(*statement);
        dismissStatementPopover();
        m_context->deleteObject(*statement);
        m_context->undoManager().setActionName(tr("Delete Statement"));
    } else {
        if (const auto* const card = selectedCard()) {
            text = NoticeText::deleted(*card);
        }
        m_cardsController->remove();
        m_context->undoManager().setActionName(tr("Delete Card"));
    }
    CVManagedObjectContext::saveAndLogError(*m_context);
    tickleCanScale();
    redrawTimeline();
    if (text.isEmpty()) {
        m_notice->withdraw();
        return;
    }
    m_deleteKeyGuard->arm();
    if (m_statementEditor || draft.texts.empty() || draft.target.isGone()) {
        m_notice->tell(text, tr("Undo"), [this] { undo(); });
    } else {
        // Undo is in the menu as well; what was typed is nowhere else.
        //: Two notices in one: what was deleted, and what was not kept.
        m_notice->tell(tr("%1. %2").arg(text, NoticeText::dropped(draft.target)), tr("Continue"),
                       [this, draft] { continueEditing(draft); });
    }
}

void MainWindowController::placeEditors()
{
    for (auto* const editor : openEditors()) {
        editor->popover().reposition();
    }
}

/// What is written to a record that is gone would be lost without a word.
void MainWindowController::closeEditorsOfGoneRecords()
{
    for (auto* const editor : openEditors()) {
        if (editor->target().isGone()) {
            const auto target = editor->target();
            editor->drop();
            tellGone(target);
        }
    }
    if (m_cardOfComingStatement && m_cardOfComingStatement->isDeleted()) {
        m_cardOfComingStatement = nullptr;
    }
}

void MainWindowController::tellGone(const EditorTarget& target)
{
    if (!m_wayBack) {
        m_notice->tell(NoticeText::gone(target));
        return;
    }
    const bool isUndo = m_wayBack == &MainWindowController::undo;
    m_notice->tell(NoticeText::gone(target), isUndo ? tr("Undo") : tr("Redo"),
                   [this, wayBack = m_wayBack] { (this->*wayBack)(); });
}

void MainWindowController::popoverWillShow(NSPopover& popover)
{
    if (&popover == statementPopover()) {
        m_statementEditor->prepareForm();
    }
}

void MainWindowController::popoverDidShow(NSPopover& popover)
{
    if (&popover == statementPopover()) {
        m_statementEditor->beginTyping();
    }
}

std::optional<PopoverAnchor> MainWindowController::popoverWillReposition(NSPopover& popover)
{
    const auto* const editor = editorOf(popover);
    return editor ? editor->place() : std::nullopt;
}

bool MainWindowController::popoverShouldClose(NSPopover& popover)
{
    auto* const editor = editorOf(popover);
    return !editor || editor->shouldClose();
}

void MainWindowController::popoverDidClose(NSPopover& popover)
{
    // From here on it counts as closed: what is written and selected below opens nothing and
    // retargets nothing.
    if (&popover == statementPopover()) {
        statementEditorDidClose(std::exchange(m_statementEditor, nullptr));
    } else if (&popover == cardPopover()) {
        cardEditorDidClose(std::exchange(m_cardEditor, nullptr));
    }
}

void MainWindowController::statementEditorDidClose(std::unique_ptr<OpenStatementEditor> editor)
{
    const KeyValueChange totals(*this, "formattedTotals");
    const auto outcome = editor->conclude(*m_context);
    if (outcome.written) {
        m_notice->withdraw();
    }
    if (outcome.written && outcome.target.isNew()) {
        auto& statement = static_cast<CVStatement&>(*outcome.written);
        setSelectedStatement(&statement);
        selectCardAndMakeVisible(*statement.card());
        makeStatementVisible(statement);
    }
    tellDropped({outcome.target, outcome.dropped});
    redrawTimeline();
    tickleCanScale();
}

void MainWindowController::cardEditorDidClose(std::unique_ptr<OpenCardEditor> editor)
{
    const auto outcome = editor->conclude(*m_context);
    if (outcome.written) {
        auto& card = static_cast<CVCard&>(*outcome.written);
        // Another name may have taken the row elsewhere.
        if (outcome.target.isNew() || (selectedCard() == &card && !outcome.isUnasked)) {
            selectCardAndMakeVisible(card);
        }
        if (outcome.isUnasked) {
            m_notice->tell(NoticeText::written(card, outcome.target.isNew()), tr("Undo"),
                           [this] { undo(); });
        } else {
            m_notice->withdraw();
        }
    }
    tellDropped({outcome.target, outcome.dropped});
    redrawTimeline();
}

/// Whether something typed would go with the window. The person is told once: who closes the window
/// again means it, unless more was typed since.
bool MainWindowController::warnsOfUnconfirmed()
{
    std::vector<EditorDraft> drafts;
    for (const auto* const editor : openEditors()) {
        if (auto draft = editor->draft(); !draft.texts.empty()) {
            drafts.push_back(std::move(draft));
        }
    }
    if (drafts.empty() || drafts == m_warnedOf) {
        return false;
    }
    m_notice->tell(NoticeText::unconfirmed(drafts.front().target), tr("Quit"),
                   [this] { m_window->close(); });
    m_warnedOf = std::move(drafts);
    return true;
}

void MainWindowController::tellDropped(const EditorDraft& draft)
{
    if (!draft.texts.empty() && !draft.target.isGone()) {
        m_notice->tell(NoticeText::dropped(draft.target), tr("Continue"),
                       [this, draft] { continueEditing(draft); });
    }
}

void MainWindowController::continueEditing(const EditorDraft& draft)
{
    if (draft.target.isGone()) {
        return;
    }
    m_ui->splitView->setPaneCollapsed(0, false);
    switch (draft.target.kind) {
    case Kind::NewCard:
        break;
    case Kind::Card:
    case Kind::NewStatement:
        selectCardAndMakeVisible(static_cast<CVCard&>(*draft.target.record));
        break;
    case Kind::Statement:
        showStatement(static_cast<CVStatement&>(*draft.target.record));
        break;
    }
    if (draft.target.isStatement()) {
        openStatementEditor(draft.target);
        statementPopoverController().restoreTypedTexts(draft.texts);
    } else {
        openCardEditor(draft.target);
        cardPopoverController().restoreTypedTexts(draft.texts);
    }
}

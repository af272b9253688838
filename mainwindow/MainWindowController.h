#pragma once

#include "foundation/KeyValueObserving.h"
#include "foundation/NotificationCenter.h"
#include "foundation/NotificationQueue.h"
#include "mainwindow/CVCardTableViewDelegate.h"
#include "mainwindow/CVMainWindow.h"
#include "mainwindow/editing/EditorTarget.h"
#include "timeline/CVCardTimelineCellDelegate.h"
#include "timeline/CVTimelineTableViewDelegate.h"
#include "widgets/NSPopoverDelegate.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

class CVCardPopoverController;
class CVStatement;
class CVStatementPopoverController;
class DeleteKeyGuard;
class EditorPlaces;
class HorizontalScrollAnimation;
class MainWindowHost;
class NSArrayController;
class NSError;
class NSManagedObjectContext;
class NSUndoManager;
class OpenCardEditor;
class OpenEditor;
class OpenStatementEditor;
class WindowNotice;
struct ObjectChanges;

namespace Ui {
class MainWindow;
} // namespace Ui

/// The controller of the main window: it shows the cards of the store beside their timeline, and
/// carries out the commands that concern them.
///
/// Its duties stand in files of their own: this class's set-up in MainWindowController.cpp, the
/// list of cards and the two selections in ...CardList.cpp, zoom and what is remembered of the view
/// in ...Zoom.cpp, opening the editors, and deleting, in ...Editing.cpp, commands, keys and totals
/// in ...Commands.cpp. An editor that is open is an object of its own, in editing/.
class MainWindowController : public QObject,
                             public KeyValueObject,
                             public CVMainWindowDelegate,
                             public CVCardTableViewDelegate,
                             public CVTimelineTableViewDelegate,
                             public CVCardTimelineCellDelegate,
                             public NSPopoverDelegate
{
    Q_OBJECT

public:
    /// The host must outlive the controller.
    explicit MainWindowController(MainWindowHost& host);
    ~MainWindowController() override;

    /// The window, made from its description on first use, for the context set by then; without one
    /// the host is asked.
    CVMainWindow& window();
    /// Shows the window, as it is or from its description.
    void showWindow();

    /// The store's main context. Null while there is none: the window is empty then. It must
    /// outlive the controller.
    NSManagedObjectContext* context() const { return m_context; }
    void setContext(NSManagedObjectContext* context);

    /// Lets the timeline be drawn again.
    void redrawTimeline();
    /// Dates read differently from now on: everything that shows one is drawn again.
    void timeZoneDidChange();
    /// Whether the person was ever greeted. Nothing depends on it.
    bool didShowFirstRunPrompt() const;

    // The list of cards and the selections.

    /// The cards by name, and which of them is selected.
    NSArrayController& cardsController() { return *m_cardsController; }
    /// The last selected row; absent when none is selected.
    std::optional<int> selectedRow() const;
    /// Null when none is selected.
    CVCard* selectedCard() const;
    /// Selects the card alone, and scrolls the list to it.
    void selectCardAndMakeVisible(CVCard& card);

    /// The statement selected on the timeline, or null, also while that statement is deleted. It
    /// may be one of a card that is not selected.
    CVStatement* selectedStatement() const;
    /// An editor that is open for another statement goes on to this one.
    void setSelectedStatement(CVStatement* statement);
    /// Scrolls the timeline sideways, over a second, until the statement is in its middle; not at
    /// all when the statement is in view, or nowhere.
    void makeStatementVisible(const CVStatement& statement);

    // Adding and editing.

    /// The context of the copies that the editors work on; it is never saved. There must be a
    /// context.
    NSManagedObjectContext& scratchContext();
    CVCardPopoverController& cardPopoverController();
    CVStatementPopoverController& statementPopoverController();
    /// What is open; null while nothing is.
    NSPopover* cardPopover() const;
    NSPopover* statementPopover() const;
    /// The card whose editor is open; null while a new card is being made.
    CVCard* editingCard() const;
    /// The card that will own the statement that is being made.
    CVCard* cardForNewStatement() const;

    /// Closes the statement's editor, if it is open, and drops what was typed.
    void dismissStatementPopover();

    // Zoom.

    /// How many times the width of the view the timeline is wide; 0 until it is first set.
    double scale() const { return m_scale; }
    /// Zooms around the middle of the view. A scale that is not finite changes nothing.
    void setScale(double scale);
    /// Whether there is anything to zoom: cards, and statements of them.
    bool canScale() const;
    /// Announces "canScale".
    void tickleCanScale();
    /// Whether the store has no statement.
    bool timelineIsEmpty() const;

    // Commands and totals.

    /// Whether a statement can be added: there are cards, and one is selected.
    bool canAddStatement() const;
    /// The day on which the person is free of debt, as text; empty when nothing can be said.
    QString formattedTotals() const;
    /// The undo manager of the window's commands: the context's. Null without a context.
    NSUndoManager* windowWillReturnUndoManager() const;

    bool windowShouldClose() override;
    void windowWillClose() override;
    bool keyDown(const QKeyEvent& event) override;
    void magnifyWithEvent(double magnification) override;
    bool validateUserInterfaceItem(QAction& item) override;

    void cardTableViewDidSelectCard(CVCardTableView& table, CVCard& card, int index) override;
    void timelineTableViewDidSelectTimelineForCard(CVTimelineTableView& table, CVCard& card,
                                                   int index) override;
    void timelineTableViewDidSelectStatement(CVTimelineTableView& table, CVStatement* statement,
                                             const QPointF& point, int clickCount) override;
    void timelineTableViewDidCancelOperation(CVTimelineTableView& table) override;
    bool timelineCellSelectStatement(const CVCardTimelineCell& cell,
                                     const CVStatement& statement) const override;

    void popoverWillShow(NSPopover& popover) override;
    void popoverDidShow(NSPopover& popover) override;
    std::optional<PopoverAnchor> popoverWillReposition(NSPopover& popover) override;
    bool popoverShouldClose(NSPopover& popover) override;
    void popoverDidClose(NSPopover& popover) override;

    std::vector<std::string_view>
    keyPathsForValuesAffectingValueForKey(std::string_view key) const override;
    KeyValueObservable* observableValueForKey(std::string_view key) override;

public Q_SLOTS:
    /// Take back, or do again, the latest change of the records, and save what that leaves.
    void undo() override;
    void redo() override;

    /// Opens the editor for a new card.
    void addCard();
    /// Opens the editor for a new statement: of the card in whose row the sender, a widget, is;
    /// else of the selected card.
    void addStatement(QObject* sender);
    /// Opens the editor of the card in whose row the sender, a widget, is; else of what is
    /// selected.
    void getInfo(QObject* sender);
    /// Opens the editor of the selected statement; without one, of the selected card.
    void getSelectedCardInfo();
    /// Deletes the selected statement; without one, the selected card. Saved at once.
    void delete_();

    /// Zooms to the factor that the sender, a menu item, has as its property "tag".
    void applyScaleMultiplier(QObject* sender);
    /// To the next factor that the View menu offers.
    void zoomIn();
    void zoomOut();
    /// Shuts the list of cards, or opens it again.
    void toggleCardList();

    /// Select a statement of the selected card: the next or the previous one, the first or the last
    /// when none of this card is selected. They beep at the end.
    void selectNextStatement();
    void selectPreviousStatement();

private:
    static constexpr auto newStatementNotification = "CVShowNewStatementPopoverForSelectedCard";

    void loadWindow();
    void windowDidLoad();
    void handle(std::string_view notification, void (MainWindowController::*handler)());
    void observeSelectedStatement();
    void setUpPanels();
    void setUpOrder();
    void setUpTables();
    void setUpEditors();
    void setUpZoom();
    void setUpTotals();
    void showTotals();
    void restoreWindowFrame();
    void showContext();
    void contextObjectsDidChange();
    void contextDidSave();
    void contextDidFailToSave(const NSError& error);
    void showModified();
    void showInvitation();
    void selectionIndexDidChange();
    void restoreTimelineGeometry();
    void changeByUndoManager(void (NSUndoManager::*change)(),
                             void (MainWindowController::*wayBack)());
    void selectStatement(CVStatement* statement);

    void selectChanged(const ObjectChanges& changes);
    void showStatement(CVStatement& statement);

    void showNewCardPopoverIfNeeded();
    void showNewStatementPopoverForSelectedCard();
    void showStatementPopoverAtPoint(const QPointF& point);
    void showSelectedStatementPopover();
    void showSelectedCardPopover();
    /// What is open, in the order in which Escape closes it.
    std::vector<OpenEditor*> openEditors() const;
    /// Null for another popover.
    OpenEditor* editorOf(const NSPopover& popover) const;
    /// The card in whose row the sender, a widget, is; null when it is in none.
    CVCard* cardOfSender(QObject* sender) const;
    template <typename Editor, typename Form>
    void openEditor(std::unique_ptr<Editor>& open, Form& form, const EditorTarget& target);
    void openCardEditor(const EditorTarget& target);
    void openStatementEditor(const EditorTarget& target);
    void cardEditorDidClose(std::unique_ptr<OpenCardEditor> editor);
    void statementEditorDidClose(std::unique_ptr<OpenStatementEditor> editor);
    void closeEditorsOfGoneRecords();
    bool cancelOperation();
    /// Rows or dots may be somewhere else now.
    void placeEditors();
    void selectedStatementFiguresDidChange();
    bool warnsOfUnconfirmed();
    void tellDropped(const EditorDraft& draft);
    void tellGone(const EditorTarget& target);
    void continueEditing(const EditorDraft& draft);
    void insertNewline();

    MainWindowHost& m_host;
    NSManagedObjectContext* m_context = nullptr;
    bool m_wasContextSet = false;
    CVStatement* m_selectedStatement = nullptr;
    double m_scale = 0.0;
    bool m_wasSelectionRestored = false;
    std::unique_ptr<NSArrayController> m_cardsController;
    std::unique_ptr<CVMainWindow> m_window;
    std::unique_ptr<Ui::MainWindow> m_ui;
    HorizontalScrollAnimation* m_scrollAnimation = nullptr;
    std::unique_ptr<NSManagedObjectContext> m_scratchContext;
    std::unique_ptr<CVCardPopoverController> m_cardPopoverController;
    std::unique_ptr<CVStatementPopoverController> m_statementPopoverController;
    std::unique_ptr<EditorPlaces> m_editorPlaces;
    /// What is open; null while nothing is.
    std::unique_ptr<OpenCardEditor> m_cardEditor;
    std::unique_ptr<OpenStatementEditor> m_statementEditor;
    /// From the command until the editor opens, after the event: the card that it will be for.
    CVCard* m_cardOfComingStatement = nullptr;
    WindowNotice* m_notice = nullptr;
    /// What the person was last told would be lost by closing the window.
    std::vector<EditorDraft> m_warnedOf;
    DeleteKeyGuard* m_deleteKeyGuard = nullptr;
    /// While a step is taken back or done again: the other one of the two.
    void (MainWindowController::*m_wayBack)() = nullptr;
    NotificationQueue::Sender m_notifications;
    std::vector<NotificationCenter::Token> m_notificationObservers;
    std::vector<KeyValueObservation> m_observations;
};

#pragma once

#include "foundation/KeyValueObserving.h"
#include "foundation/NotificationCenter.h"
#include "foundation/NotificationQueue.h"
#include "mainwindow/CVCardTableViewDelegate.h"
#include "mainwindow/CVMainWindow.h"
#include "timeline/CVCardTimelineCellDelegate.h"
#include "timeline/CVTimelineTableViewDelegate.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

class CVStatement;
class HorizontalScrollAnimation;
class MainWindowHost;
class NSArrayController;
class NSManagedObjectContext;
class NSUndoManager;

namespace Ui {
class MainWindow;
} // namespace Ui

/// The controller of the main window: it shows the cards of the store beside their timeline, and
/// carries out the commands that concern them.
///
/// Its duties stand in files of their own: this class's set-up in MainWindowController.cpp, the
/// list of cards and the two selections in ...CardList.cpp, zoom and what is remembered of the view
/// in ...Zoom.cpp, commands, keys and totals in ...Commands.cpp.
class MainWindowController : public QObject,
                             public KeyValueObject,
                             public CVMainWindowDelegate,
                             public CVCardTableViewDelegate,
                             public CVTimelineTableViewDelegate,
                             public CVCardTimelineCellDelegate
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

    /// The statement selected on the timeline, or null. It may be one of a card that is not
    /// selected, or one that was deleted meanwhile.
    CVStatement* selectedStatement() const { return m_selectedStatement; }
    void setSelectedStatement(CVStatement* statement);
    /// Scrolls the timeline sideways, over a second, until the statement is in its middle; not at
    /// all when the statement is in view, or nowhere.
    void makeStatementVisible(const CVStatement& statement);

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

    std::vector<std::string_view>
    keyPathsForValuesAffectingValueForKey(std::string_view key) const override;
    KeyValueObservable* observableValueForKey(std::string_view key) override;

public Q_SLOTS:
    /// Take back, or do again, the latest change of the records, and save what that leaves.
    void undo() override;
    void redo() override;

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
    void loadWindow();
    void windowDidLoad();
    void setUpPanels();
    void setUpTables();
    void setUpZoom();
    void setUpTotals();
    void restoreWindowFrame();
    void showContext();
    void contextObjectsDidChange();
    void contextDidSave();
    void showModified();
    void showInvitation();
    void selectionIndexDidChange();
    void restoreTimelineGeometry();
    void changeByUndoManager(void (NSUndoManager::*change)());
    void selectStatement(CVStatement* statement);

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
    NotificationQueue::Sender m_notifications;
    std::vector<NotificationCenter::Token> m_notificationObservers;
    std::vector<KeyValueObservation> m_observations;
};

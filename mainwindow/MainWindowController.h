#pragma once

#include "foundation/KeyValueObserving.h"
#include "mainwindow/CVMainWindow.h"
#include "timeline/CVCardTimelineCellDelegate.h"

#include <QObject>
#include <QString>

#include <memory>
#include <string_view>
#include <vector>

class CVStatement;
class MainWindowHost;
class NSArrayController;
class NSManagedObjectContext;
class NSUndoManager;
struct ObjectChanges;

namespace Ui {
class MainWindow;
} // namespace Ui

/// The controller of the main window: it shows the cards of the store beside their timeline, and
/// carries out the commands that concern them.
class MainWindowController : public QObject,
                             public KeyValueObject,
                             public CVMainWindowDelegate,
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

    /// The cards by name, and which of them is selected.
    NSArrayController& cardsController() { return *m_cardsController; }

    /// The statement selected on the timeline, or null.
    CVStatement* selectedStatement() const { return m_selectedStatement; }
    void setSelectedStatement(CVStatement* statement);

    /// The day on which the person is free of debt, as text; empty when nothing can be said.
    QString formattedTotals() const;

    /// The undo manager of the window's commands: the context's. Null without a context.
    NSUndoManager* windowWillReturnUndoManager() const;

    /// Lets the timeline be drawn again.
    void redrawTimeline();
    /// Dates read differently from now on: everything that shows one is drawn again.
    void timeZoneDidChange();

    bool windowShouldClose() override;
    bool timelineCellSelectStatement(const CVCardTimelineCell& cell,
                                     const CVStatement& statement) const override;

    std::vector<std::string_view>
    keyPathsForValuesAffectingValueForKey(std::string_view key) const override;
    KeyValueObservable* observableValueForKey(std::string_view key) override;

public Q_SLOTS:
    /// Take back, or do again, the latest change of the records, and save what that leaves.
    void undo() override;
    void redo() override;

private:
    void loadWindow();
    void windowDidLoad();
    void showContext();
    void contextObjectsDidChange();
    void showModified();
    void changeByUndoManager(void (NSUndoManager::*change)());

    MainWindowHost& m_host;
    NSManagedObjectContext* m_context = nullptr;
    bool m_wasContextSet = false;
    CVStatement* m_selectedStatement = nullptr;
    std::unique_ptr<NSArrayController> m_cardsController;
    std::unique_ptr<CVMainWindow> m_window;
    std::unique_ptr<Ui::MainWindow> m_ui;
    KeyValueObservation m_totalsObservation;
};

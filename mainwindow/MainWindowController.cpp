// The controller's properties, its set-up when the window loads, and what it observes.

#include "mainwindow/MainWindowController.h"

#include "editors/CVCardPopoverController.h"
#include "editors/CVStatementPopoverController.h"
#include "foundation/Log.h"
#include "foundation/UserDefaults.h"
#include "mainwindow/CVCardTableRowView.h"
#include "mainwindow/DeleteKeyGuard.h"
#include "mainwindow/MainWindowHost.h"
#include "mainwindow/NoticeText.h"
#include "mainwindow/WindowNotice.h"
#include "mainwindow/editing/EditorPlaces.h"
#include "mainwindow/editing/OpenCardEditor.h"
#include "mainwindow/editing/OpenStatementEditor.h"
#include "model/CVManagedObjectContext.h"
#include "model/CVStatement.h"
#include "store/NSArrayController.h"
#include "store/NSError.h"
#include "store/NSManagedObjectContext.h"
#include "timeline/CVAdditions.h"
#include "timeline/HorizontalScrollAnimation.h"
#include "widgets/DesktopFont.h"
#include "widgets/NSPopover.h"

#include "ui_MainWindow.h"

#include <QAbstractButton>

namespace {

constexpr auto restoreTimelineGeometryNotification = "CVRestoreTimelineGeometryNotification";
constexpr auto totalsNotification = "CVShowTotals";
constexpr auto newCardNotification = "CVShowNewCardPopoverIfNeeded";

/// The height of every row, of the cards' list and of the timeline, in points.
constexpr int rowHeight = 96;

/// How much larger a large font of the desktop makes the texts of the panels, in points; more would
/// not fit.
constexpr int largestGrowth = 5;

/// The width that the list of cards has at first, and the least that it can have, in points.
constexpr int cardsPaneWidth = 272;
constexpr double minimumCardsPaneWidth = 200.0;

/// Where the command that asks for a newer version stands in the application's menu.
constexpr int checkForUpdatesIndex = 2;

void setUpPanel(GradientBox& box, const QColor& borderColor)
{
    box.setHasGradient(true);
    box.setGradientStartColor(CVAdditions::cvPanelGradientStartColor());
    box.setGradientEndColor(CVAdditions::cvPanelGradientEndColor());
    box.setHasBottomBorder(true);
    box.setBottomInsetAlpha(0.0);
    box.setBottomBorderColor(borderColor);
}

/// A panel along the bottom of the window has its border above.
void setUpBottomPanel(GradientBox& box)
{
    setUpPanel(box, CVAdditions::cvPanelDarkerBorderColor());
    box.setHasBottomBorder(false);
    box.setHasTopBorder(true);
    box.setTopBorderColor(CVAdditions::cvPanelDarkerBorderColor());
}

/// Text in one of the palette's own colours.
void setUpText(QWidget& label, const QColor& color, int pixelSize, QFont::Weight weight)
{
    QFont font = label.font();
    font.setPixelSize(DesktopFont::pixelSize(pixelSize, pixelSize + largestGrowth));
    font.setWeight(weight);
    label.setFont(font);
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, color);
    label.setPalette(palette);
}

} // namespace

MainWindowController::MainWindowController(MainWindowHost& host)
    : m_host(host)
    , m_cardsController(std::make_unique<NSArrayController>("Card", "name", "displayName"))
    , m_notifications(NotificationQueue::defaultQueue(), this)
{}

MainWindowController::~MainWindowController()
{
    m_notificationObservers.clear();
    m_observations.clear();
    if (m_window) {
        m_scrollAnimation->stop();
        m_ui->cardsScrollView->stopSync();
        m_ui->timelineScrollView->stopSync();
        m_ui->timelineHeaderScrollView->stopSync();
    }
}

CVMainWindow& MainWindowController::window()
{
    if (!m_window) {
        loadWindow();
        windowDidLoad();
    }
    return *m_window;
}

void MainWindowController::showWindow()
{
    window().show();
}

void MainWindowController::setContext(NSManagedObjectContext* context)
{
    const KeyValueChange change(*this, "context");
    if (m_context) {
        disconnect(m_context, nullptr, this, nullptr);
    }
    m_context = context;
    m_wasContextSet = true;
    if (m_window) {
        showContext();
    }
}

void MainWindowController::redrawTimeline()
{
    m_ui->timelineTableView->update();
    m_ui->timelineHeaderView->update();
}

void MainWindowController::timeZoneDidChange()
{
    const KeyValueChange totals(*this, "formattedTotals");
    m_ui->cardsTableView->redrawRows();
    redrawTimeline();
}

bool MainWindowController::didShowFirstRunPrompt() const
{
    return m_host.userDefaults().boolForKey(u"didShowFirstRunPrompt");
}

std::vector<std::string_view>
MainWindowController::keyPathsForValuesAffectingValueForKey(std::string_view key) const
{
    static constexpr KeyDependency dependencies[] = {
        {"formattedTotals", "context"},
        {"formattedTotals", "selectedStatement.balance"},
        {"formattedTotals", "selectedStatement.limit"},
        {"canAddStatement", "context.cardCount"},
    };
    auto paths = KeyValueObject::keyPathsForValuesAffectingValueForKey(key);
    addDependencies(paths, key, dependencies);
    return paths;
}

KeyValueObservable* MainWindowController::observableValueForKey(std::string_view key)
{
    if (key == "context") {
        return m_context;
    }
    if (key == "selectedStatement") {
        return selectedStatement();
    }
    return KeyValueObject::observableValueForKey(key);
}

void MainWindowController::loadWindow()
{
    m_window = std::make_unique<CVMainWindow>();
    m_ui = std::make_unique<Ui::MainWindow>();
    m_ui->setupUi(m_window.get());
    m_window->setDelegate(this);
    // A store that could not be opened a moment ago is not tried a second time.
    if (!m_wasContextSet) {
        m_context = m_host.managedObjectContext();
    }
}

void MainWindowController::windowDidLoad()
{
    auto* const applicationMenu = m_window->applicationMenu();
    auto* const checkForUpdates = new QAction(tr("Check for &Updates…"), m_window.get());
    checkForUpdates->setObjectName(QStringLiteral("checkForUpdates"));
    applicationMenu->insertAction(applicationMenu->actions().value(checkForUpdatesIndex),
                                  checkForUpdates);

    m_ui->splitView->setMinimumSizes({{0, minimumCardsPaneWidth}});
    m_ui->splitView->setCollapsible(1, false);
    m_ui->splitView->setSizes({cardsPaneWidth, m_window->width() - cardsPaneWidth});
    connect(m_ui->splitView, &SplitView::paneCollapsedChanged, m_window.get(),
            &CVMainWindow::userInterfaceItemsDidChange);
    m_ui->cardsScrollView->setVerticalSyncScrollView(m_ui->timelineScrollView);
    m_ui->timelineScrollView->setVerticalSyncScrollView(m_ui->cardsScrollView);
    m_observations.push_back(m_cardsController->observe(
        "selectionIndex", [this](const ObservedChange&) { selectionIndexDidChange(); }));
    m_editorPlaces = std::make_unique<EditorPlaces>(*m_ui->cardsTitleBox, *m_ui->cardsTableView,
                                                    *m_ui->timelineTableView);
    m_notice = new WindowNotice(*m_ui->noticeBar, m_window.get());
    m_deleteKeyGuard = new DeleteKeyGuard(m_window.get());
    setUpTables();
    setUpEditors();
    handle(restoreTimelineGeometryNotification, &MainWindowController::restoreTimelineGeometry);
    handle(newCardNotification, &MainWindowController::showNewCardPopoverIfNeeded);
    handle(newStatementNotification, &MainWindowController::showNewStatementPopoverForSelectedCard);
    m_ui->timelineHeaderScrollView->setHorizontalSyncScrollView(m_ui->timelineScrollView);
    m_ui->timelineScrollView->setHorizontalSyncScrollView(m_ui->timelineHeaderScrollView);
    m_scrollAnimation = new HorizontalScrollAnimation(
        *m_ui->timelineScrollView, *m_ui->timelineHeaderScrollView, m_window.get());
    setUpPanels();
    connect(m_window.get(), &CVMainWindow::appearanceDidChange, this,
            &MainWindowController::setUpPanels);
    setUpOrder();
    setUpZoom();
    setUpTotals();
    showContext();
    restoreWindowFrame();
    // Chosen here, so that no ring greets people who have not touched a key yet.
    m_ui->cardsTableView->setFocus(Qt::OtherFocusReason);
    observeSelectedStatement();
    m_notifications.enqueue(restoreTimelineGeometryNotification);
    if (m_host.isAttended()) {
        m_notifications.enqueue(newCardNotification);
    }
}

void MainWindowController::handle(std::string_view notification,
                                  void (MainWindowController::*handler)())
{
    m_notificationObservers.push_back(NotificationCenter::defaultCenter().addObserver(
        notification, this, [this, handler](const Notification&) { (this->*handler)(); }));
}

void MainWindowController::observeSelectedStatement()
{
    for (const auto* const keyPath : {"selectedStatement.balance", "selectedStatement.limit"}) {
        m_observations.push_back(observe(
            keyPath, [this](const ObservedChange&) { selectedStatementFiguresDidChange(); }));
    }
}

void MainWindowController::setUpTables()
{
    auto& cardsTable = *m_ui->cardsTableView;
    cardsTable.setRowHeight(rowHeight);
    cardsTable.setCardsController(*m_cardsController);
    cardsTable.setCardDelegate(this);
    cardsTable.setAddStatementAction(m_ui->addStatement);
    connect(&cardsTable, &CVCardTableView::doubleClicked, this, &MainWindowController::getInfo);
    connect(&cardsTable, &CVCardTableView::addStatement, this, &MainWindowController::addStatement);

    auto& timelineTable = *m_ui->timelineTableView;
    timelineTable.setRowHeight(rowHeight);
    timelineTable.setCardsController(*m_cardsController);
    timelineTable.setTimelineDelegate(this);
    timelineTable.setTimelineCellDelegate(this);

    // The header has no cloth of its own: what it does not fill shows the panel under it.
    m_ui->timelineHeaderScrollView->viewport()->setAutoFillBackground(false);
    m_ui->timelineHeaderScrollView->setLayoutDirection(Qt::LeftToRight);
    connect(m_ui->timelineScrollView, &CVTimelineScrollView::timelineWidthDidChange,
            m_ui->timelineHeaderView, [this](double width) {
                m_ui->timelineHeaderView->setFixedWidth(static_cast<int>(width));
            });
}

/// The editors stand at records: whatever moves those, moves them.
void MainWindowController::setUpEditors()
{
    const auto place = [this] {
        placeEditors();
    };
    connect(m_ui->cardsTableView, &CVCardTableView::didAddRowView, this, place);
    connect(m_ui->timelineScrollView, &CVTimelineScrollView::timelineWidthDidChange, this, place);
    connect(m_cardsController.get(), &QAbstractItemModel::rowsInserted, this, place);
    connect(m_cardsController.get(), &QAbstractItemModel::rowsRemoved, this, place);
    connect(m_cardsController.get(), &QAbstractItemModel::rowsMoved, this, place);
    connect(m_cardsController.get(), &QAbstractItemModel::layoutChanged, this, place);
    connect(m_cardsController.get(), &QAbstractItemModel::modelReset, this, place);
}

void MainWindowController::setUpOrder()
{
    // A splitter puts its latest pane below the others; readers of the screen go by that order.
    m_ui->cardsPane->lower();
    QWidget* before = m_ui->cardsTableView;
    for (const auto* const action : m_ui->buttonBar->actions()) {
        auto* const button = m_ui->buttonBar->buttonForAction(action);
        QWidget::setTabOrder(before, button);
        before = button;
    }
    QWidget::setTabOrder(before, m_ui->timelineTableView);
}

void MainWindowController::setUpPanels()
{
    setUpPanel(*m_ui->cardsTitleBox, CVAdditions::cvPanelDarkBorderColor());
    setUpPanel(*m_ui->timelineHeaderBaseBox, CVAdditions::cvPanelDarkerBorderColor());
    setUpBottomPanel(*m_ui->buttonBar);
    setUpBottomPanel(*m_ui->totalsBar);
    setUpBottomPanel(*m_ui->noticeBar);
    m_ui->noticeBar->setGradientEndColor(m_ui->noticeBar->gradientStartColor());
    m_ui->splitView->setDividerColor(CVAdditions::cvPanelDarkerBorderColor());

    const auto titleColor = CVAdditions::cvCardTitleColorForHighlightedState(false);
    const auto subtitleColor = CVAdditions::cvCardSubtitleColorForHighlightedState(false);
    setUpText(*m_ui->cardsTitle, titleColor, 13, QFont::DemiBold);
    setUpText(*m_ui->totalsLabel, CVAdditions::cvTimelineHeaderYearTextColor(), 15,
              QFont::DemiBold);
    setUpText(*m_ui->noticeBar, titleColor, 13, QFont::Normal);
    setUpText(*m_ui->minimumZoomLabel, subtitleColor, 12, QFont::Normal);
    setUpText(*m_ui->maximumZoomLabel, subtitleColor, 12, QFont::Normal);
    setUpText(*m_ui->invitationTitle, QColor(0xE6, 0xE6, 0xE6), 20, QFont::DemiBold);
    setUpText(*m_ui->invitationText, QColor(0xB4, 0xB4, 0xB4), 13, QFont::Normal);
}

void MainWindowController::setUpTotals()
{
    // One command announces them several times, and each reading asks every card.
    handle(totalsNotification, &MainWindowController::showTotals);
    m_observations.push_back(observe("formattedTotals", [this](const ObservedChange&) {
        m_notifications.enqueue(totalsNotification);
    }));
    for (const auto* const key : {"canAddStatement", "canScale", "selectedStatement"}) {
        m_observations.push_back(observe(key, [this](const ObservedChange&) {
            Q_EMIT m_window->userInterfaceItemsDidChange();
        }));
    }
    showTotals();
}

void MainWindowController::showTotals()
{
    m_ui->totalsLabel->setText(formattedTotals());
}

void MainWindowController::showContext()
{
    m_ui->timelineTableView->setManagedObjectContext(m_context);
    m_ui->timelineHeaderView->setManagedObjectContext(m_context);
    try {
        m_cardsController->setManagedObjectContext(m_context);
    } catch (const NSError& error) {
        Log::line(QString(u"Unable to list cards: " + error.description()));
    }
    if (m_context) {
        connect(m_context, &NSManagedObjectContext::objectsDidChange, this,
                &MainWindowController::contextObjectsDidChange);
        connect(m_context, &NSManagedObjectContext::didSave, this,
                &MainWindowController::contextDidSave);
        connect(m_context, &NSManagedObjectContext::didFailToSave, this,
                &MainWindowController::contextDidFailToSave);
    }
    showModified();
    tickleCanScale();
    showInvitation();
}

void MainWindowController::contextObjectsDidChange()
{
    // A statement shows in its card's row of the list as well.
    m_ui->cardsTableView->redrawRows();
    redrawTimeline();
    showModified();
    showInvitation();
    closeEditorsOfGoneRecords();
    for (auto* const editor : openEditors()) {
        editor->followTarget();
    }
    placeEditors();
}

void MainWindowController::contextDidSave()
{
    // The axis goes by what is in the file.
    redrawTimeline();
    showModified();
    tickleCanScale();
    showInvitation();
    placeEditors();
    if (m_notice->withdrawUnsaved()) {
        // A file that could not be written may have been one that could not be read either.
        const KeyValueChange totals(*this, "formattedTotals");
    }
}

void MainWindowController::contextDidFailToSave(const NSError& error)
{
    // What was confirmed shows all the same, on an axis that reaches to it.
    redrawTimeline();
    showModified();
    placeEditors();
    m_notice->tellUnsaved(NoticeText::unsaved(error), tr("Save Again"),
                          [this] { CVManagedObjectContext::saveAndLogError(*m_context); });
}

void MainWindowController::showModified()
{
    m_window->setWindowModified(m_context && m_context->hasChanges());
    Q_EMIT m_window->userInterfaceItemsDidChange();
}

void MainWindowController::showInvitation()
{
    const bool hasCards = m_cardsController->rowCount() > 0;
    m_ui->invitationTitle->setText(hasCards ? tr("No statements yet") : tr("No cards yet"));
    m_ui->invitationText->setText(
        hasCards ? tr("Add a card’s statement with the + in its row, and another each month.")
                 : tr("Add your first card with the + below the list, then a statement each "
                      "month, and see the day you will be debt-free."));
    // Nobody is invited to begin anew whose cards could not be read.
    const bool isInviting = m_cardsController->isFetched() && (!hasCards || timelineIsEmpty());
    m_ui->invitationTitle->setVisible(isInviting);
    m_ui->invitationText->setVisible(isInviting);
}

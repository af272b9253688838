#include "mainwindow/MainWindowController.h"

#include "foundation/Log.h"
#include "mainwindow/MainWindowHost.h"
#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "store/NSArrayController.h"
#include "store/NSError.h"
#include "store/NSManagedObjectContext.h"
#include "timeline/CVAdditions.h"

#include "ui_MainWindow.h"

#include <QScrollBar>

namespace {

/// The height of every row, of the cards' list and of the timeline, in points.
constexpr int rowHeight = 96;

/// The width that the list of cards has at first, in points.
constexpr int cardsPaneWidth = 272;

void setUpPanel(GradientBox& box, const QColor& borderColor)
{
    box.setHasGradient(true);
    box.setGradientStartColor(CVAdditions::cvPanelGradientStartColor());
    box.setGradientEndColor(CVAdditions::cvPanelGradientEndColor());
    box.setHasBottomBorder(true);
    box.setBottomInsetAlpha(0.0);
    box.setBottomBorderColor(borderColor);
}

/// A panel's title, in the palette's own colours.
void setUpTitle(LetterpressLabel& label, const QColor& color, int pixelSize)
{
    QFont font = label.font();
    font.setPixelSize(pixelSize);
    font.setWeight(QFont::DemiBold);
    label.setFont(font);
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, color);
    label.setPalette(palette);
}

} // namespace

MainWindowController::MainWindowController(MainWindowHost& host)
    : m_host(host)
    , m_cardsController(std::make_unique<NSArrayController>("Card", "name"))
{}

MainWindowController::~MainWindowController() = default;

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

void MainWindowController::setSelectedStatement(CVStatement* statement)
{
    const KeyValueChange change(*this, "selectedStatement");
    m_selectedStatement = statement;
}

void MainWindowController::redrawTimeline()
{
    m_ui->timelineTableView->update();
}

void MainWindowController::timeZoneDidChange()
{
    const KeyValueChange totals(*this, "formattedTotals");
    m_ui->cardsTableView->update();
    redrawTimeline();
}

bool MainWindowController::windowShouldClose()
{
    return m_host.mayTerminate();
}

bool MainWindowController::timelineCellSelectStatement(const CVCardTimelineCell& /*cell*/,
                                                       const CVStatement& statement) const
{
    return &statement == m_selectedStatement;
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
        return m_selectedStatement;
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
        setContext(m_host.managedObjectContext());
    } else {
        showContext();
    }
}

void MainWindowController::windowDidLoad()
{
    setUpPanel(*m_ui->cardsTitleBox, CVAdditions::cvPanelDarkBorderColor());
    setUpPanel(*m_ui->timelineHeaderBaseBox, CVAdditions::cvPanelDarkerBorderColor());
    setUpPanel(*m_ui->totalsBar, CVAdditions::cvPanelDarkBorderColor());
    m_ui->totalsBar->setHasBottomBorder(false);
    setUpTitle(*m_ui->cardsTitle, CVAdditions::cvCardTitleColorForHighlightedState(false), 13);
    setUpTitle(*m_ui->totalsLabel, CVAdditions::cvTimelineHeaderYearTextColor(), 15);
    m_ui->splitView->setStretchFactor(1, 1);
    m_ui->splitView->setSizes({cardsPaneWidth, m_window->width() - cardsPaneWidth});

    m_ui->cardsTableView->setRowHeight(rowHeight);
    m_ui->cardsTableView->setCardsController(*m_cardsController);
    m_ui->timelineTableView->setRowHeight(rowHeight);
    m_ui->timelineTableView->setCardsController(*m_cardsController);
    m_ui->timelineTableView->setTimelineCellDelegate(this);

    // The rows of list and timeline stay beside each other.
    auto* const cardsBar = m_ui->cardsScrollView->verticalScrollBar();
    auto* const timelineBar = m_ui->timelineScrollView->verticalScrollBar();
    connect(cardsBar, &QScrollBar::valueChanged, timelineBar, &QScrollBar::setValue);
    connect(timelineBar, &QScrollBar::valueChanged, cardsBar, &QScrollBar::setValue);

    const auto showTotals = [this] {
        m_ui->totalsLabel->setText(formattedTotals());
    };
    m_totalsObservation =
        observe("formattedTotals", [showTotals](const ObservedChange&) { showTotals(); });
    showTotals();
}

void MainWindowController::showContext()
{
    m_ui->timelineTableView->setManagedObjectContext(m_context);
    try {
        m_cardsController->setManagedObjectContext(m_context);
    } catch (const NSError& error) {
        Log::line(QString(u"Unable to list cards: " + error.description()));
    }
    if (m_context) {
        connect(m_context, &NSManagedObjectContext::objectsDidChange, this,
                &MainWindowController::contextObjectsDidChange);
        connect(m_context, &NSManagedObjectContext::didSave, this,
                &MainWindowController::showModified);
    }
    showModified();
}

void MainWindowController::contextObjectsDidChange()
{
    // A statement shows in its card's row of the list as well.
    m_ui->cardsTableView->update();
    redrawTimeline();
    showModified();
}

void MainWindowController::showModified()
{
    m_window->setWindowModified(m_context && m_context->hasChanges());
}

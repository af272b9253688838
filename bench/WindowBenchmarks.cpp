// What a person waits for: the window coming up, and being painted. And what it costs in memory.

#include "app/CVApplication.h"
#include "app/Corvane_AppDelegate.h"
#include "app/LogPresenter.h"
#include "editors/CVStatementPopoverController.h"
#include "mainwindow/MainWindowController.h"
#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "timeline/CVSyncScrollView.h"

#include "bench/Benchmarks.h"
#include "bench/Budget.h"
#include "bench/GeneratedStore.h"
#include "bench/SideBySide.h"

#include <QAbstractScrollArea>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QMainWindow>
#include <QPainter>
#include <QProcess>
#include <QScrollBar>
#include <QTemporaryDir>
#include <SQLiteCpp/SQLiteCpp.h>
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <functional>
#include <iostream>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

constexpr QSize windowSize(1400, 900);

/// The program with its window, as it starts on a store.
class Program
{
public:
    explicit Program(const QString& directory)
        : m_delegate(m_alerts, UserDefaults::volatileDefaults(), directory)
    {
        m_delegate.applicationDidFinishLaunching();
        window().resize(windowSize);
        QCoreApplication::processEvents();
    }

    MainWindowController& controller() { return *m_delegate.mainWindowController(); }
    QMainWindow& window() { return controller().window(); }

private:
    LogPresenter m_alerts;
    Corvane_AppDelegate m_delegate;
};

void paint(QWidget& window, QImage& image)
{
    window.render(&image);
    benchmark::DoNotOptimize(image.constBits());
}

/// Painting the whole visible window, beside painting an empty one.
void paintWindow(benchmark::State& state, const StoreGenerator::Size& size, int devicePixelRatio)
{
    Program program(GeneratedStore::directory(size));
    QMainWindow empty;
    empty.resize(windowSize);
    QImage image(windowSize * devicePixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    SideBySide::run(
        state, [&] { paint(program.window(), image); }, [&] { paint(empty, image); });
}

/// Paints at once what is due.
void paintUpdates(QWidget& window)
{
    QEvent due(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&window, &due);
}

using Step = std::function<void(MainWindowController& controller, int number)>;

/// A step of the person's, to the painted window, beside painting an empty one.
void step(benchmark::State& state, const StoreGenerator::Size& size, const Step& take)
{
    Program program(GeneratedStore::directory(size));
    program.controller().setScale(4.0);
    paintUpdates(program.window());
    QMainWindow empty;
    empty.resize(windowSize);
    empty.show();
    QCoreApplication::processEvents();
    int number = 0;
    SideBySide::run(
        state,
        [&] {
            take(program.controller(), ++number);
            paintUpdates(program.window());
        },
        [&] {
            empty.update();
            paintUpdates(empty);
        });
}

void zoom(MainWindowController& controller, int number)
{
    controller.setScale(number % 2 == 0 ? 4.0 : 4.2);
}

void scroll(MainWindowController& controller, int number)
{
    auto* const timeline =
        controller.window().findChild<CVSyncScrollView*>(QStringLiteral("timelineScrollView"));
    const int distance = 200 + (number % 2) * 40;
    timeline->setContentOrigin({distance, distance});
}

// Started as a child with one of these arguments and, but for the first, a directory, the benchmark
// brings up a window, writes how much memory it takes, and ends.
constexpr auto emptyWindow = "--empty-window";
constexpr auto firstFrame = "--first-frame";
constexpr auto everyRow = "--every-row";

/// The memory of this process that is in use, in KiB.
std::string residentKibibytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const auto& line : status.readAll().split('\n')) {
            if (line.startsWith("VmRSS:")) {
                return line.mid(6).simplified().split(' ').first().toStdString();
            }
        }
    }
    throw std::runtime_error("the memory in use is not known");
}

/// Ends the process as soon as the window that it watches was painted.
class FirstFrame : public QObject
{
public:
    explicit FirstFrame(QWidget& window) { window.installEventFilter(this); }

private:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        // The paint event itself is followed by the children's; what is posted now comes after.
        if (event->type() == QEvent::Paint) {
            QMetaObject::invokeMethod(
                this,
                [] {
                    std::cout << residentKibibytes() << std::endl;
                    std::_Exit(0);
                },
                Qt::QueuedConnection);
        }
        return false;
    }
};

void showEveryRow(QWidget& window)
{
    auto* const timeline =
        window.findChild<QAbstractScrollArea*>(QStringLiteral("timelineScrollView"));
    auto* const bar = timeline->verticalScrollBar();
    QImage image(windowSize, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y <= bar->maximum() + bar->pageStep(); y += bar->pageStep()) {
        bar->setValue(y);
        window.render(&image);
    }
    std::cout << residentKibibytes() << std::endl;
}

int bringUpWindow(const std::string& task, int argc, char** argv)
{
    CVApplication application(argc, argv);
    if (task == emptyWindow) {
        QMainWindow window;
        const FirstFrame frame(window);
        window.resize(windowSize);
        window.show();
        return QCoreApplication::exec();
    }
    LogPresenter alerts;
    Corvane_AppDelegate delegate(alerts, UserDefaults::volatileDefaults(),
                                 QString::fromLocal8Bit(argv[2]));
    delegate.applicationDidFinishLaunching();
    auto& window = delegate.mainWindowController()->window();
    window.resize(windowSize);
    if (task == everyRow) {
        QCoreApplication::processEvents();
        showEveryRow(window);
        return EXIT_SUCCESS;
    }
    const FirstFrame frame(window);
    return QCoreApplication::exec();
}

/// Starts the child for a task and waits for what it writes: its memory in MiB.
double runChild(const char* task, const QString& directory = {})
{
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(task), directory});
    while (!child.canReadLine() && child.waitForReadyRead()) {
    }
    const double kibibytes = child.readLine().trimmed().toDouble();
    child.waitForFinished();
    return kibibytes / 1024.0;
}

/// From the start of the process to the first painted frame, beside an empty window's.
void start(benchmark::State& state, const StoreGenerator::Size& size)
{
    const auto directory = GeneratedStore::directory(size);
    double memory = 0.0;
    double emptyMemory = 0.0;
    SideBySide::run(
        state, [&] { memory = runChild(firstFrame, directory); },
        [&] { emptyMemory = runChild(emptyWindow); });
    state.counters["MiB"] = memory;
    state.counters["emptyMiB"] = emptyMemory;
}

/// The memory after every row was shown.
void showAll(benchmark::State& state, const StoreGenerator::Size& size)
{
    const auto directory = GeneratedStore::directory(size);
    double memory = 0.0;
    while (state.KeepRunning()) {
        memory = runChild(everyRow, directory);
    }
    state.counters["MiB"] = memory;
}

/// Confirming the editor of a statement: copied, saved durably, redrawn, to the painted window.
/// Beside it SQLite alone inserting a row just as durably, painting the window, and the totals.
void confirm(benchmark::State& state, const StoreGenerator::Size& size)
{
    const QTemporaryDir folder;
    const auto copyOfStore = [&](const QString& name) {
        QDir(folder.path()).mkdir(name);
        const QString directory = folder.filePath(name);
        QFile::copy(GeneratedStore::path(size), directory + QStringLiteral("/storedata.sqlite"));
        return directory;
    };
    Program program(copyOfStore(QStringLiteral("ours")));
    auto& controller = program.controller();
    controller.setSelectedStatement(controller.selectedCard()->lastStatement());
    const QString barePath =
        copyOfStore(QStringLiteral("bare")) + QStringLiteral("/storedata.sqlite");
    SQLite::Database bare(barePath.toStdString(), SQLite::OPEN_READWRITE);
    bare.exec("PRAGMA synchronous = EXTRA");
    SQLite::Statement insertion(
        bare, "INSERT INTO Statement (card, date, balance, \"limit\", payment,"
              " annualPercentageRate) VALUES (1, 1750000000, '250.00', '5000', '50', 0.199)");
    QImage image(windowSize, QImage::Format_ARGB32_Premultiplied);
    int number = 0;
    SideBySide::run(
        state,
        [&] {
            controller.statementPopoverController().addOrUpdateStatement();
            QCoreApplication::sendPostedEvents();
            paintUpdates(program.window());
        },
        [&] {
            insertion.exec();
            insertion.reset();
            paint(program.window(), image);
            benchmark::DoNotOptimize(controller.formattedTotals());
        },
        [&] {
            controller.getSelectedCardInfo();
            controller.statementPopoverController().statement()->setBalance(
                NSDecimalNumber(100 + ++number % 2));
            QCoreApplication::processEvents();
        });
}

using Measurement = std::function<void(benchmark::State& state)>;

benchmark::internal::Benchmark* add(const std::string& name, const Measurement& measurement,
                                    const Budget& budget)
{
    BudgetReporter::setBudget(name, budget);
    return benchmark::RegisterBenchmark(name.c_str(), measurement)->Unit(benchmark::kMillisecond);
}

} // namespace

void Benchmarks::registerWindow()
{
    struct Row
    {
        StoreGenerator::Size size;
        Budget start;
        double mebibytes;
    };
    for (const auto& [size, startBudget, mebibytes] :
         {Row{StoreGenerator::everyday, {.ratio = 3.0, .mebibytes = 58.0}, 200.0},
          Row{StoreGenerator::lifetime, {.mebibytes = 70.0}, 200.0},
          Row{StoreGenerator::stress,
              {.ratio = 1.5, .relativeTo = "start/everyday", .mebibytes = 120.0},
              200.0}}) {
        const std::string name = size.name;
        for (const int ratio : {1, 2}) {
            add("paintWindow/" + name + '/' + std::to_string(ratio) + 'x',
                [size, ratio](benchmark::State& state) { paintWindow(state, size, ratio); },
                {.milliseconds = ratio == 1 ? 8.3 : 16.7})
                ->UseManualTime();
        }
        for (const auto& [what, take] : std::initializer_list<std::pair<const char*, Step>>{
                 {"zoomStep/", zoom}, {"scrollStep/", scroll}}) {
            add(what + name,
                [size, take = take](benchmark::State& state) { step(state, size, take); },
                {.milliseconds = 8.3})
                ->UseManualTime();
        }
        add("confirm/" + name, [size](benchmark::State& state) { confirm(state, size); },
            {.ratio = 2.0})
            ->UseManualTime();
        add(
            "start/" + name, [size](benchmark::State& state) { start(state, size); }, startBudget)
            ->UseManualTime()
            ->Iterations(15);
        add("showEveryRow/" + name, [size](benchmark::State& state) { showAll(state, size); },
            {.mebibytes = mebibytes})
            ->Iterations(1);
    }
}

std::optional<int> Benchmarks::runAsChild(int argc, char** argv)
{
    const std::string task = argc > 1 ? argv[1] : "";
    if (task == emptyWindow || ((task == firstFrame || task == everyRow) && argc > 2)) {
        return bringUpWindow(task, argc, argv);
    }
    return std::nullopt;
}

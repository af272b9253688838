// What a person waits for: the window coming up, and being painted. And what it costs in memory.

#include "app/CVApplication.h"
#include "app/Corvane_AppDelegate.h"
#include "app/LogPresenter.h"
#include "mainwindow/MainWindowController.h"
#include "timeline/CVSyncScrollView.h"

#include "bench/SideBySide.h"
#include "bench/StoreGenerator.h"

#include <QAbstractScrollArea>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QMainWindow>
#include <QPainter>
#include <QProcess>
#include <QScrollBar>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

constexpr QSize windowSize(1400, 900);

/// The directories of the stores of all sizes, each made when it is first asked for.
QString directoryOfStore(const StoreGenerator::Size& size)
{
    static const QTemporaryDir folder;
    static std::map<std::string, QString> directories;
    auto& directory = directories[size.name];
    if (directory.isEmpty()) {
        directory = folder.filePath(QString::fromLatin1(size.name));
        QDir().mkpath(directory);
        StoreGenerator::generate(size, directory + QStringLiteral("/storedata.sqlite"));
    }
    return directory;
}

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
    Program program(directoryOfStore(size));
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
    Program program(directoryOfStore(size));
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

int runAsChild(const std::string& task, int argc, char** argv)
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
    const auto directory = directoryOfStore(size);
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
    const auto directory = directoryOfStore(size);
    double memory = 0.0;
    while (state.KeepRunning()) {
        memory = runChild(everyRow, directory);
    }
    state.counters["MiB"] = memory;
}

void registerBenchmarks()
{
    for (const auto& size :
         {StoreGenerator::everyday, StoreGenerator::lifetime, StoreGenerator::stress}) {
        const std::string name = size.name;
        for (const int ratio : {1, 2}) {
            benchmark::RegisterBenchmark(
                ("paintWindow/" + name + '/' + std::to_string(ratio) + 'x').c_str(),
                [size, ratio](benchmark::State& state) { paintWindow(state, size, ratio); })
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond);
        }
        for (const auto& [what, take] : std::initializer_list<std::pair<const char*, Step>>{
                 {"zoomStep/", zoom}, {"scrollStep/", scroll}}) {
            benchmark::RegisterBenchmark(
                (what + name).c_str(),
                [size, take = take](benchmark::State& state) { step(state, size, take); })
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond);
        }
        benchmark::RegisterBenchmark(("start/" + name).c_str(),
                                     [size](benchmark::State& state) { start(state, size); })
            ->UseManualTime()
            ->Iterations(15)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(("showEveryRow/" + name).c_str(),
                                     [size](benchmark::State& state) { showAll(state, size); })
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond);
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::string task = argc > 1 ? argv[1] : "";
    if (task == emptyWindow || ((task == firstFrame || task == everyRow) && argc > 2)) {
        return runAsChild(task, argc, argv);
    }
    const CVApplication application(argc, argv);
    registerBenchmarks();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}

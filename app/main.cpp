#include "app/AssertionFailure.h"
#include "app/CVApplication.h"
#include "app/CommandLine.h"
#include "app/Corvane_AppDelegate.h"
#include "app/DemoStore.h"
#include "app/DialogPresenter.h"
#include "app/LogPresenter.h"
#include "app/Snapshot.h"
#include "app/StoreLock.h"
#include "app/SupportDirectory.h"
#include "app/TerminationSignals.h"
#include "app/Version.h"
#include "foundation/Log.h"
#include "foundation/RegionalSettings.h"
#include "mainwindow/MainWindowController.h"
#include "store/NSError.h"

#include <QScopeGuard>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <optional>

namespace {

void nameApplication()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Corvane"));
    QCoreApplication::setApplicationName(QStringLiteral("Corvane"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CORVANE_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Corvane"));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.corvane.Corvane"));
}

/// Makes the person's directory and locks the store in it. Absent when another instance has it.
std::unique_ptr<StoreLock> lockStore(const Corvane_AppDelegate& delegate)
{
    SupportDirectory::makeDataHome();
    delegate.makeApplicationSupportDirectory();
    auto lock = std::make_unique<StoreLock>(delegate.applicationSupportDirectory());
    return lock->state() == StoreLock::State::HeldByAnother ? nullptr : std::move(lock);
}

int runApplication(CVApplication& application, const CommandLine& commandLine)
{
    const bool isSnapshot = !commandLine.snapshotPath.isEmpty();
    const std::unique_ptr<AlertPresenter> alerts =
        isSnapshot ? std::unique_ptr<AlertPresenter>(std::make_unique<LogPresenter>())
                   : std::make_unique<DialogPresenter>();

    std::optional<QTemporaryDir> demoDirectory;
    std::optional<QString> supportDirectory;
    if (commandLine.isDemo) {
        supportDirectory = demoDirectory.emplace().path();
    }
    Corvane_AppDelegate delegate(*alerts, supportDirectory);
    application.setDelegate(&delegate);
    const auto done = qScopeGuard([&application] { application.setDelegate(nullptr); });

    std::unique_ptr<StoreLock> lock;
    if (!commandLine.isDemo && !isSnapshot) {
        lock = lockStore(delegate);
        if (!lock) {
            Log::line(u"Corvane is running already: its data are in use.");
            return 0;
        }
    }
    if (commandLine.isDemo) {
        if (auto* const context = delegate.managedObjectContext()) {
            DemoStore::fill(*context);
        }
    }
    // An alert that closes before the window is shown is not the last window.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    delegate.applicationDidFinishLaunching();
    auto& window = delegate.mainWindowController()->window();
    if (isSnapshot) {
        if (!Snapshot::draw(window, commandLine.snapshotPath)) {
            Log::line(QString(u"Unable to write " + commandLine.snapshotPath));
            return 1;
        }
        return 0;
    }

    application.connectActions(window);
    QGuiApplication::setQuitOnLastWindowClosed(
        delegate.applicationShouldTerminateAfterLastWindowClosed());
    auto& controller = *delegate.mainWindowController();
    QObject::connect(&application, &QGuiApplication::applicationStateChanged, &controller,
                     [&controller](Qt::ApplicationState state) {
                         // The person may have travelled, or the clocks changed, meanwhile.
                         if (state == Qt::ApplicationActive && RegionalSettings::rereadTimeZone()) {
                             controller.timeZoneDidChange();
                         }
                     });
    const TerminationSignals signals;
    QObject::connect(&signals, &TerminationSignals::received, &delegate, [&delegate] {
        delegate.sessionWillEnd();
        QCoreApplication::exit(0);
    });
    return QCoreApplication::exec();
}

int run(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    const auto parsed = CommandLine::parse(arguments);
    if (const auto* const answer = std::get_if<CommandLine::Answer>(&parsed)) {
        const auto text = QString(answer->text + u'\n').toLocal8Bit();
        std::fputs(text.constData(), answer->exitStatus == 0 ? stdout : stderr);
        return answer->exitStatus;
    }
    const auto& commandLine = std::get<CommandLine>(parsed);
    if (!commandLine.snapshotPath.isEmpty()) {
        // The picture does not depend on whether there is a screen.
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    nameApplication();
    CVApplication application(argc, argv);
    return runApplication(application, commandLine);
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (const std::exception& exception) {
        Log::line(QString::fromUtf8(exception.what()));
    } catch (...) {
        Log::line(u"Unable to go on");
    }
    return EXIT_FAILURE;
}

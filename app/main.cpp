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

#include <QFileInfo>
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

/// Makes the person's directory and locks the store in it.
std::unique_ptr<StoreLock> lockStore(const Corvane_AppDelegate& delegate)
{
    delegate.makeApplicationSupportDirectory();
    return std::make_unique<StoreLock>(delegate.applicationSupportDirectory());
}

/// Whether a store could be written in the directory, so that a lock that cannot be had there is
/// no side effect of a greater trouble that opening the store will tell.
bool isWritableDirectory(const QString& path)
{
    const QFileInfo info(path);
    return info.isDir() && info.isWritable();
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
    const bool isPersonal = !commandLine.isDemo && !isSnapshot;
    Corvane_AppDelegate delegate(*alerts,
                                 isPersonal ? UserDefaults::standardUserDefaults()
                                            : UserDefaults::volatileDefaults(),
                                 supportDirectory);
    application.setDelegate(&delegate);
    const auto done = qScopeGuard([&application] { application.setDelegate(nullptr); });

    if (!commandLine.isDemo) {
        SupportDirectory::makeDataHome();
    }
    std::unique_ptr<StoreLock> lock;
    if (isPersonal) {
        lock = lockStore(delegate);
        if (lock->state() == StoreLock::State::HeldByAnother) {
            Log::line(u"Corvane is running already: its data are in use.");
            return EXIT_SUCCESS;
        }
        if (lock->state() == StoreLock::State::Unavailable &&
            isWritableDirectory(delegate.applicationSupportDirectory())) {
            Log::line(u"Unable to lock the store: storedata.lock cannot be used.");
            return EXIT_FAILURE;
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
    application.connectActions(window);
    if (isSnapshot) {
        if (!Snapshot::draw(window, commandLine.snapshotPath)) {
            Log::line(QString(u"Unable to write " + commandLine.snapshotPath));
            return 1;
        }
        return 0;
    }

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
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &delegate,
        [&delegate] { delegate.sessionWillEnd(); }, Qt::DirectConnection);
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

#include "app/ActivationToken.h"
#include "app/ApplicationService.h"
#include "app/CVApplication.h"
#include "app/CommandLine.h"
#include "app/Corvane_AppDelegate.h"
#include "app/DemoStore.h"
#include "app/DesktopAppearance.h"
#include "app/DialogPresenter.h"
#include "app/LogPresenter.h"
#include "app/Snapshot.h"
#include "app/StoreLock.h"
#include "app/SupportDirectory.h"
#include "app/TerminationSignals.h"
#include "app/Version.h"
#include "app/WindowActivation.h"
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

/// Whether a store could be written in the directory, so that a lock that cannot be had there is
/// no side effect of a greater trouble that opening the store will tell.
bool isWritableDirectory(const QString& path)
{
    const QFileInfo info(path);
    return info.isDir() && info.isWritable();
}

/// What this instance has of the store: the lock on it, and, where there is a bus, the name by
/// which those who come for the same store reach whoever has it.
struct StoreClaim
{
    explicit StoreClaim(const QString& directory)
        : lock(directory)
    {
        const auto bus = ApplicationService::sessionBus();
        const auto storeName = lock.storeName();
        if (bus && !storeName.isEmpty()) {
            service.emplace(*bus, storeName);
        }
    }

    StoreLock lock;
    std::optional<ApplicationService> service;
};

/// Locks the store in `directory`; if another instance has it, that one comes forward. Answers the
/// status with which the program is to end, absent when it may go on.
std::optional<int> claimStore(StoreClaim& claim, const QString& directory,
                              const ActivationToken& token, AlertPresenter& alerts)
{
    const auto state = claim.lock.acquire();
    if (state == StoreLock::State::HeldByAnother) {
        if (!claim.service || !claim.service->activateOther(token)) {
            Log::line(u"Corvane is running already: its data are in use.");
        }
        return EXIT_SUCCESS;
    }
    if (state == StoreLock::State::Unavailable && isWritableDirectory(directory)) {
        const NSError error(
            QStringLiteral("CORVANE_ERROR_DOMAIN"), 9998,
            ErrorText(QT_TRANSLATE_NOOP("NSError",
                                        "The file “%1” could not be locked for Corvane alone."),
                      directory + u"/storedata.lock"),
            claim.lock.errorText());
        Log::line(error.description());
        alerts.presentError(error);
        return EXIT_FAILURE;
    }
    if (claim.service) {
        claim.service->serveApplication();
    }
    return std::nullopt;
}

/// The commands that may be asked for on the bus.
const QStringList offeredActions = {QStringLiteral("addCard"), QStringLiteral("addStatement")};

/// Lets what is asked for on the bus happen in the window.
void connectService(const ApplicationService& service, CVApplication& application,
                    Corvane_AppDelegate& delegate)
{
    QObject::connect(&service, &ApplicationService::activated, &delegate,
                     [&delegate](const ActivationToken& token) {
                         // What asks the person something comes before the window, which may not
                         // even be there yet.
                         auto* const window = QApplication::activeModalWidget();
                         auto* const controller = delegate.mainWindowController();
                         if (window) {
                             WindowActivation::bringForward(*window, token);
                         } else if (controller && delegate.applicationShouldHandleReopen()) {
                             WindowActivation::bringForward(controller->window(), token);
                         }
                     });
    QObject::connect(&service, &ApplicationService::actionActivated, &application,
                     [&application, &delegate](const QString& action) {
                         // As in the menu: only while it makes sense, and not over a question.
                         auto* const controller = delegate.mainWindowController();
                         if (controller && !QApplication::activeModalWidget() &&
                             offeredActions.contains(action)) {
                             application.performAction(controller->window(), action.toLatin1());
                         }
                     });
}

int runApplication(CVApplication& application, const CommandLine& commandLine,
                   const ActivationToken& token)
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
    std::optional<StoreClaim> claim;
    if (isPersonal) {
        delegate.makeApplicationSupportDirectory();
        const auto directory = delegate.applicationSupportDirectory();
        if (SupportDirectory::isTemporary()) {
            Log::line(QString(u"There is no home directory: the data are kept in " + directory));
        }
        if (const auto status = claimStore(claim.emplace(directory), directory, token, *alerts)) {
            return *status;
        }
        if (claim->service) {
            connectService(*claim->service, application, delegate);
        }
    }
    if (commandLine.isDemo) {
        if (auto* const context = delegate.managedObjectContext()) {
            DemoStore::fill(*context);
        }
    }
    std::optional<DesktopAppearance> appearance;
    if (const auto bus = isPersonal ? ApplicationService::sessionBus() : std::nullopt) {
        appearance.emplace(*bus);
        QObject::connect(&*appearance, &DesktopAppearance::didChange, &application,
                         [&application, &appearance] {
                             application.setAppearance(appearance->reducesMotion(),
                                                       appearance->hasHighContrast());
                         });
    }
    if (isSnapshot) {
        // A picture shows where a motion leads.
        application.setAppearance(true, false);
    }
    // An alert that closes before the window is shown is not the last window.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    delegate.applicationDidFinishLaunching();
    auto& window = delegate.mainWindowController()->window();
    application.connectActions(window);
    if (commandLine.isDemo) {
        window.setWindowTitle(DemoStore::windowTitle());
    }
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
    const auto endWithSession = [&delegate] {
        delegate.sessionWillEnd();
        QCoreApplication::exit(0);
    };
    const TerminationSignals signals;
    QObject::connect(&signals, &TerminationSignals::received, &delegate, endWithSession);
    QObject::connect(&application, &CVApplication::sessionEnded, &delegate, endWithSession);
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
    const auto token = ActivationToken::fromEnvironment();
    nameApplication();
    CVApplication application(argc, argv);
    return runApplication(application, commandLine, token);
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

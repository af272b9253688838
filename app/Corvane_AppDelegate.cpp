#include "app/Corvane_AppDelegate.h"

#include "app/AboutBox.h"
#include "app/AlertPresenter.h"
#include "app/AssertionFailure.h"
#include "app/SupportDirectory.h"
#include "app/UpdateWindow.h"
#include "foundation/Log.h"
#include "mainwindow/MainWindowController.h"
#include "model/CVManagedObjectModel.h"
#include "store/MagicalRecordHelpers.h"
#include "store/NSError.h"
#include "store/NSManagedObjectContext.h"
#include "store/NSPersistentStoreCoordinator.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <exception>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

const QString className = QStringLiteral("Corvane_AppDelegate");

/// Where everybody may make files, one that is there may be anybody's.
bool isDirectoryOfPerson(const QByteArray& path)
{
    struct stat status = {};
    return ::lstat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == ::geteuid();
}

} // namespace

Corvane_AppDelegate::Corvane_AppDelegate(AlertPresenter& alerts, UserDefaults userDefaults,
                                         std::optional<QString> supportDirectory)
    : m_alerts(alerts)
    , m_userDefaults(std::move(userDefaults))
    , m_supportDirectory(std::move(supportDirectory))
{}

Corvane_AppDelegate::~Corvane_AppDelegate() = default;

QString Corvane_AppDelegate::applicationSupportDirectory() const
{
    return m_supportDirectory ? *m_supportDirectory : SupportDirectory::path();
}

QString Corvane_AppDelegate::storePath() const
{
    return applicationSupportDirectory() + u"/storedata.sqlite";
}

QWidget* Corvane_AppDelegate::mainWindow() const
{
    return m_mainWindowController ? &m_mainWindowController->window() : nullptr;
}

void Corvane_AppDelegate::makeApplicationSupportDirectory() const
{
    const auto path = applicationSupportDirectory();
    const auto name = QFile::encodeName(path);
    const bool isShared = !m_supportDirectory && SupportDirectory::isTemporary();
    int failure = 0;
    if (QFileInfo::exists(path)) {
        failure = isShared && !isDirectoryOfPerson(name) ? EPERM : 0;
    } else if (::mkdir(name.constData(), S_IRWXU) != 0) {
        failure = errno;
    }
    if (failure != 0) {
        const auto error = qt_error_string(failure);
        Log::line(QStringLiteral("Error creating application support directory at %1 : %2")
                      .arg(path, error));
        throw AssertionFailure(
            QStringLiteral("Failed to create App Support directory %1 : %2").arg(path, error));
    }
}

NSManagedObjectModel* Corvane_AppDelegate::managedObjectModel()
{
    if (!m_managedObjectModel) {
        if (auto model = CVManagedObjectModel::mergedModel()) {
            m_managedObjectModel = std::make_unique<NSManagedObjectModel>(std::move(*model));
        }
    }
    return m_managedObjectModel.get();
}

NSPersistentStoreCoordinator* Corvane_AppDelegate::persistentStoreCoordinator()
{
    if (m_persistentStoreCoordinator) {
        return m_persistentStoreCoordinator.get();
    }
    const auto* const model = managedObjectModel();
    if (!model) {
        Log::line(QString(className + u": No model to generate a store from"));
        throw AssertionFailure(QStringLiteral("Managed object model is nil"));
    }
    makeApplicationSupportDirectory();
    m_persistentStoreCoordinator = std::make_unique<NSPersistentStoreCoordinator>(*model);
    try {
        m_persistentStoreCoordinator->addPersistentStore(storePath());
        NSPersistentStoreCoordinator::MR_setDefaultStoreCoordinator(
            m_persistentStoreCoordinator.get());
    } catch (const NSError& error) {
        m_persistentStoreCoordinator.reset();
        m_alerts.presentError(error);
    }
    return m_persistentStoreCoordinator.get();
}

NSManagedObjectContext* Corvane_AppDelegate::managedObjectContext()
{
    if (!m_managedObjectContext) {
        if (auto* const coordinator = persistentStoreCoordinator()) {
            m_managedObjectContext = std::make_unique<NSManagedObjectContext>(*coordinator);
            if (m_mainWindowController) {
                // The window has been up without data since the store failed to open.
                m_mainWindowController->setContext(m_managedObjectContext.get());
            }
        } else {
            m_alerts.presentError(
                NSError(QStringLiteral("CORVANE_ERROR_DOMAIN"), 9999,
                        ErrorText(QT_TRANSLATE_NOOP("NSError", "Failed to initialize the store")),
                        ErrorText(QT_TRANSLATE_NOOP(
                            "NSError", "There was an error building up the data file."))));
        }
    }
    return m_managedObjectContext.get();
}

void Corvane_AppDelegate::applicationDidFinishLaunching()
{
    m_mainWindowController = std::make_unique<MainWindowController>(*this);
    m_mainWindowController->setContext(managedObjectContext());
    m_mainWindowController->showWindow();
}

void Corvane_AppDelegate::saveAction()
{
    auto* const context = managedObjectContext();
    if (!context) {
        return;
    }
    if (!context->commitEditing()) {
        Log::line(QString(className + u": unable to commit editing before saving"));
    }
    try {
        context->save();
    } catch (const NSError& error) {
        m_alerts.presentError(error);
    }
}

void Corvane_AppDelegate::showAboutBox()
{
    if (!m_aboutBox) {
        m_aboutBox = new AboutBox(storePath(), mainWindow());
    }
    m_aboutBox->show();
    m_aboutBox->raise();
    m_aboutBox->activateWindow();
}

void Corvane_AppDelegate::checkForUpdates()
{
    if (!m_updateWindow) {
        m_updateWindow = new UpdateWindow(QDBusConnection::systemBus(), mainWindow());
    }
    m_updateWindow->check();
}

Corvane_AppDelegate::TerminateReply Corvane_AppDelegate::applicationShouldTerminate()
{
    if (!m_managedObjectContext) {
        return TerminateReply::Now;
    }
    if (!m_managedObjectContext->commitEditing()) {
        Log::line(QString(className + u": unable to commit editing to terminate"));
        return TerminateReply::Cancel;
    }
    if (!m_managedObjectContext->hasChanges()) {
        return TerminateReply::Now;
    }
    try {
        m_managedObjectContext->save();
    } catch (const NSError& error) {
        const AlertPresenter::Recovery recovery = {tr("Try Again"), [this] {
                                                       m_managedObjectContext->save();
                                                   }};
        // Whichever button answers the alert, the program quits: the person has been warned.
        const bool mayQuit =
            m_alerts.presentError(error, recovery)
                ? !m_managedObjectContext->hasChanges()
                : m_alerts.runModalAlert(
                      {tr("Could not save changes while quitting. Quit anyway?"),
                       tr("Quitting now will lose any changes you have made since the last "
                          "successful save"),
                       {tr("Quit anyway"), tr("Cancel")}}) != 0;
        if (!mayQuit) {
            return TerminateReply::Cancel;
        }
    }
    MagicalRecordHelpers::cleanUp();
    return TerminateReply::Now;
}

bool Corvane_AppDelegate::mayTerminate()
{
    return applicationShouldTerminate() == TerminateReply::Now;
}

bool Corvane_AppDelegate::isAttended() const
{
    return m_alerts.isAttended();
}

void Corvane_AppDelegate::sessionWillEnd()
{
    if (m_mainWindowController) {
        m_mainWindowController->windowWillClose();
    }
    if (!m_managedObjectContext) {
        return;
    }
    try {
        if (!m_managedObjectContext->commitEditing()) {
            Log::line(QString(className + u": unable to commit editing to terminate"));
        }
        m_managedObjectContext->save();
    } catch (const std::exception& exception) {
        Log::line(QString(u"Unable to save changes while quitting: " +
                          QString::fromUtf8(exception.what())));
    }
}

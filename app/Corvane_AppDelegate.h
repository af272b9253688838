#pragma once

#include "foundation/UserDefaults.h"
#include "mainwindow/MainWindowHost.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>
#include <optional>

class AboutBox;
class AlertPresenter;
class MainWindowController;
class NSManagedObjectContext;
class NSManagedObjectModel;
class NSPersistentStoreCoordinator;
class QWidget;
class UpdateWindow;

/// Opens the store, keeps its main context and the main window for the life of the program, saves,
/// and decides about quitting.
class Corvane_AppDelegate : public QObject, public MainWindowHost
{
    Q_OBJECT

public:
    enum class TerminateReply
    {
        Now,
        Cancel,
    };

    /// Works in `supportDirectory`; in the person's own where it is absent. The presenter must
    /// outlive the delegate.
    Corvane_AppDelegate(AlertPresenter& alerts, UserDefaults userDefaults,
                        std::optional<QString> supportDirectory = std::nullopt);
    ~Corvane_AppDelegate() override;

    /// The directory of the store file.
    QString applicationSupportDirectory() const;
    /// Makes that directory, but no parents of it, if nothing is there. Throws AssertionFailure
    /// when it cannot, or when it would be in the temporary directory and is somebody else's.
    void makeApplicationSupportDirectory() const;

    /// Made on first use. Null when no model is packaged; throws NSError when one is broken.
    NSManagedObjectModel* managedObjectModel();
    /// Made, with the store file attached, on first use. Null when the store cannot be attached:
    /// the person has been told why, and the next call tries again. Throws AssertionFailure without
    /// a model or a directory.
    NSPersistentStoreCoordinator* persistentStoreCoordinator();
    /// Made on first use. Null, told to the person, when there is no coordinator.
    NSManagedObjectContext* managedObjectContext() override;

    MainWindowController* mainWindowController() const { return m_mainWindowController.get(); }

    void applicationDidFinishLaunching();
    /// Saves what there is to save. When that fails, the person may try again, and is warned; the
    /// program stays when they leave the warning without pressing a button.
    TerminateReply applicationShouldTerminate();
    bool applicationShouldTerminateAfterLastWindowClosed() const { return true; }
    bool applicationShouldHandleReopen() const { return true; }
    UserDefaults& userDefaults() override { return m_userDefaults; }
    bool mayTerminate() override;
    bool isAttended() const override;

    /// The session or the system ends the program: saves, and remembers the view, without asking
    /// anybody. What fails is reported on standard error.
    void sessionWillEnd();

public Q_SLOTS:
    /// The Save command.
    void saveAction();
    /// The About command.
    void showAboutBox();
    /// The command that looks for a newer version of the program.
    void checkForUpdates();

private:
    QString storePath() const;
    QWidget* mainWindow() const;

    AlertPresenter& m_alerts;
    UserDefaults m_userDefaults;
    std::optional<QString> m_supportDirectory;
    // In the order in which each builds on the one before.
    std::unique_ptr<NSManagedObjectModel> m_managedObjectModel;
    std::unique_ptr<NSPersistentStoreCoordinator> m_persistentStoreCoordinator;
    std::unique_ptr<NSManagedObjectContext> m_managedObjectContext;
    std::unique_ptr<MainWindowController> m_mainWindowController;
    // The main window's, made on first use.
    QPointer<AboutBox> m_aboutBox;
    QPointer<UpdateWindow> m_updateWindow;
};

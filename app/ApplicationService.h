#pragma once

#include "app/ActivationToken.h"

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

/// The program on the session bus: what the desktop and later launches call, as
/// org.freedesktop.Application has it.
///
/// An instance goes by two names: one that it shares with whoever would work on the same store, by
/// which a later launch finds it, and the application's own, by which the desktop does. An instance
/// on another store has another name of the first kind, and does without the second while that is
/// taken.
class ApplicationService : public QObject
{
    Q_OBJECT

public:
    /// The person's session bus; absent where there is none. No bus is started for the program.
    static std::optional<QDBusConnection> sessionBus();

    /// Waits in line for the name of the store. To be made before the store is locked: whoever
    /// holds the lock is then in that line, and moves up when those who do not hold it leave.
    ApplicationService(QDBusConnection connection, const QString& storeName);
    ~ApplicationService() override;

    /// To be called by the instance that holds the store: takes the application's name too, if it
    /// is free. What was called meanwhile is answered as soon as events are handled.
    void serveApplication();
    /// To be called by one that does not: asks the instance that does to come forward, and waits
    /// some seconds at most. Whether it answered.
    bool activateOther(const ActivationToken& token);

public Q_SLOTS:
    // The names are those of the D-Bus interface.
    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
    /// The program has no files to open, so it only comes forward.
    Q_SCRIPTABLE void Open(const QStringList& locations, const QVariantMap& platformData);
    Q_SCRIPTABLE void ActivateAction(const QString& action, const QVariantList& parameters,
                                     const QVariantMap& platformData);

Q_SIGNALS:
    /// The window is to come forward.
    void activated(const ActivationToken& token);
    /// After that: a command is to be carried out.
    void actionActivated(const QString& action);

private:
    QDBusConnection m_connection;
    QString m_storeService;
};

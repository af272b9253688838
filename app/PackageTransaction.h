#pragma once

#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariantList>

class QDBusPendingCallWatcher;

/// A package as PackageKit names it.
struct PackageName
{
    QString name;
    QString version;
};

/// One question to PackageKit, the system's service for packages. Nothing here waits: the answer
/// comes as a signal, but for PackageKit not being there to give one.
class PackageTransaction : public QObject
{
    Q_OBJECT

public:
    /// Asks `method` of PackageKit's transactions at once. Its arguments are of the D-Bus types.
    PackageTransaction(QDBusConnection bus, QString method, QVariantList arguments);
    /// Cancels what is not finished.
    ~PackageTransaction() override;

    /// Those that the question found, so far.
    const QList<PackageName>& packages() const { return m_packages; }

Q_SIGNALS:
    /// It has ended, and found all packages there are.
    void succeeded();
    /// It will not; `reason` is a sentence for the person.
    void failed(const QString& reason);

private Q_SLOTS:
    void addPackage(uint info, const QString& packageID, const QString& summary);
    void noteError(uint code, const QString& details);
    void finish(uint exit, uint milliseconds);

private:
    using Handler = void (PackageTransaction::*)(const QDBusPendingCallWatcher& watcher);

    void call(const QDBusMessage& message, Handler handler);
    void runTransaction(const QDBusPendingCallWatcher& watcher);
    void checkStart(const QDBusPendingCallWatcher& watcher);
    QDBusMessage transactionCall(const QString& method) const;
    void fail(const QString& reason);

    QDBusConnection m_bus;
    QString m_method;
    QVariantList m_arguments;
    /// Of the instance of PackageKit that made the transaction.
    QString m_service;
    QString m_path;
    QList<PackageName> m_packages;
    QString m_error;
    bool m_isOver = false;
};

#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QPauseAnimation>
#include <QScopedPointer>
#include <QString>

#include <memory>

class PackageTransaction;

/// Finds out whether there is a newer version of the program, from the system's packages.
class UpdateCheck : public QObject
{
    Q_OBJECT

public:
    enum class Result
    {
        NewerVersion,
        UpToDate,
        /// Nobody knows.
        Unknown,
    };
    struct Answer
    {
        Result result;
        /// Empty for Unknown.
        QString installedVersion;
        /// For NewerVersion only.
        QString newerVersion;
        /// A sentence for the person; for Unknown only.
        QString reason;
    };

    /// Asks on `bus`, and waits `patience` milliseconds for everything together.
    explicit UpdateCheck(QDBusConnection bus, int patience = 60000);
    ~UpdateCheck() override;

    /// Starts to ask, unless that is under way.
    void start();
    /// Takes the question back: no answer comes.
    void cancel();
    bool isUnderWay() const { return m_transaction != nullptr; }

Q_SIGNALS:
    /// Once for each start, at the end. It may come before start() returns.
    void answered(const UpdateCheck::Answer& answer);

private:
    using Handler = void (UpdateCheck::*)();

    void ask(const QString& method, const QVariantList& arguments, Handler handler);
    void readInstalledVersion();
    void readNewerVersion();
    void answer(const Answer& answer);
    void giveUp(const QString& reason);
    /// The version of the program's package among those that were found; empty without one.
    QString foundVersion() const;

    QDBusConnection m_bus;
    /// Runs out when it is time to give up.
    QPauseAnimation m_patience;
    /// Let go in the middle of what it says, so it goes a little later.
    std::unique_ptr<PackageTransaction, QScopedPointerDeleteLater> m_transaction;
    QString m_installedVersion;
};

#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>
#include <gtest/gtest.h>

/// A message bus that only the test and those it tells are on.
class PrivateBus
{
public:
    PrivateBus()
    {
        m_daemon.setReadChannel(QProcess::StandardOutput);
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--nopidfile"), QStringLiteral("--print-address")});
        EXPECT_TRUE(m_daemon.waitForReadyRead()) << m_daemon.errorString().toStdString();
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    }
    ~PrivateBus()
    {
        for (int i = 1; i <= m_connections; ++i) {
            QDBusConnection::disconnectFromBus(connectionName(i));
        }
        // It takes its socket away.
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    const QString& address() const { return m_address; }
    /// A new connection each time.
    QDBusConnection connect()
    {
        return QDBusConnection::connectToBus(m_address, connectionName(++m_connections));
    }

private:
    QString connectionName(int number) const { return m_address + QString::number(number); }

    QProcess m_daemon;
    QString m_address;
    int m_connections = 0;
};

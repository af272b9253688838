#pragma once

#include <QObject>

/// Turns the signals by which a session or a system asks a program to end (SIGTERM, SIGINT, SIGHUP)
/// into a Qt signal on the event loop. At most one exists at a time.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    TerminationSignals();
    /// The signals do again what they did before.
    ~TerminationSignals() override;

Q_SIGNALS:
    void received();

private:
    int m_reader = -1;
};

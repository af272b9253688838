#pragma once

#include <QObject>

/// Keeps the Delete key from taking a second thing that the person has not looked at: when
/// something went away, what is selected then was not chosen by anyone. The key means something
/// again as soon as the person does anything else.
class DeleteKeyGuard : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Something went away.
    void arm();
    /// The person did something else. Keys, presses and the wheel are noticed by themselves.
    void disarm();
    bool isArmed() const { return m_isArmed; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_isArmed = false;
};

#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class NSError;

/// Tells the person what needs an answer at once, in dialogs that the program waits for. Replaced
/// where nobody is there to answer.
class AlertPresenter
{
public:
    struct Alert
    {
        QString message;
        QString informativeText;
        /// From the first, which Return presses, to the last.
        QStringList buttonTitles;
    };

    /// A way out of an error.
    struct Recovery
    {
        /// Of the button that tries it.
        QString title;
        /// Throws NSError when it fails as well.
        std::function<void()> attempt;
    };

    /// What runModalAlert() answers for the first button; the others follow.
    static constexpr int firstButton = 1000;

    virtual ~AlertPresenter() = default;

    /// Whether somebody is there to answer.
    virtual bool isAttended() const { return true; }
    virtual void presentError(const NSError& error) = 0;
    /// Shows the error, and lets the person try the recovery as often as they like. Answers whether
    /// it succeeded.
    virtual bool presentError(const NSError& error, const Recovery& recovery) = 0;
    /// The button that was pressed: firstButton, firstButton + 1 ... 0 when the person left the
    /// alert without pressing any.
    virtual int runModalAlert(const Alert& alert) = 0;
};

#pragma once

#include <QString>
#include <QStringList>

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

    /// What runModalAlert() answers for the first button; the others follow.
    static constexpr int firstButton = 1000;

    virtual ~AlertPresenter() = default;

    /// Shows the error. Answers whether it was recovered from meanwhile.
    virtual bool presentError(const NSError& error) = 0;
    /// The button that was pressed: firstButton, firstButton + 1 ...
    virtual int runModalAlert(const Alert& alert) = 0;
};

#pragma once

#include "app/AlertPresenter.h"

/// Shows alerts as dialogs.
class DialogPresenter : public AlertPresenter
{
public:
    bool presentError(const NSError& error) override;
    /// Escape, and closing the dialog, press the last button.
    int runModalAlert(const Alert& alert) override;
};

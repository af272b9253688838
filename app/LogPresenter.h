#pragma once

#include "app/AlertPresenter.h"

/// Reports on standard error what would be an alert, for when nobody is there to read one. Of the
/// buttons it presses the last.
class LogPresenter : public AlertPresenter
{
public:
    bool presentError(const NSError& error) override;
    int runModalAlert(const Alert& alert) override;
};

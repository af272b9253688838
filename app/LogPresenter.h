#pragma once

#include "app/AlertPresenter.h"

/// Reports on standard error what would be an alert, for when nobody is there to read one. Of the
/// buttons it presses the last.
class LogPresenter : public AlertPresenter
{
public:
    bool isAttended() const override { return false; }
    void presentError(const NSError& error) override;
    bool presentError(const NSError& error, const Recovery& recovery) override;
    int runModalAlert(const Alert& alert) override;
};

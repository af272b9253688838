#pragma once

#include "app/AlertPresenter.h"

/// Shows alerts as dialogs. Escape, and closing a dialog, press no button of it; nor does the end
/// of the program's event loop, after which no further dialog is shown.
class DialogPresenter : public AlertPresenter
{
public:
    void presentError(const NSError& error) override;
    bool presentError(const NSError& error, const Recovery& recovery) override;
    int runModalAlert(const Alert& alert) override;

private:
    bool m_wasBrokenOff = false;
};

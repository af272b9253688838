#pragma once

#include "app/AlertPresenter.h"
#include "store/NSError.h"

#include <vector>

/// A person who reads every alert and presses the button that the test says.
class Person : public AlertPresenter
{
public:
    bool presentError(const NSError& error) override
    {
        errors.push_back(error);
        return recovers;
    }
    int runModalAlert(const Alert& alert) override
    {
        alerts.push_back(alert);
        return button;
    }

    std::vector<NSError> errors;
    std::vector<Alert> alerts;
    bool recovers = false;
    int button = firstButton + 1;
};

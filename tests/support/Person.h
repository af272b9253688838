#pragma once

#include "app/AlertPresenter.h"
#include "store/NSError.h"

#include <functional>
#include <vector>

/// A person who reads every alert, and does about it what the test says.
class Person : public AlertPresenter
{
public:
    void presentError(const NSError& error) override { errors.push_back(error); }
    bool presentError(const NSError& error, const Recovery& recovery) override
    {
        presentError(error);
        return recover(recovery);
    }
    int runModalAlert(const Alert& alert) override
    {
        alerts.push_back(alert);
        return button;
    }

    std::vector<NSError> errors;
    std::vector<Alert> alerts;
    /// Answers whether it succeeded.
    std::function<bool(const Recovery&)> recover = [](const Recovery&) {
        return false;
    };
    int button = firstButton + 1;
};

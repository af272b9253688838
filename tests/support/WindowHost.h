#pragma once

#include "foundation/UserDefaults.h"
#include "mainwindow/MainWindowHost.h"

/// Lends a context and settings to a main window.
class WindowHost : public MainWindowHost
{
public:
    explicit WindowHost(NSManagedObjectContext& context)
        : m_context(context)
    {}
    NSManagedObjectContext* managedObjectContext() override { return &m_context; }
    UserDefaults& userDefaults() override { return m_userDefaults; }
    bool mayTerminate() override
    {
        ++asked;
        return answer;
    }
    bool isAttended() const override { return true; }

    /// What it says when it is asked whether the program may end, and how often it was.
    bool answer = true;
    int asked = 0;

private:
    NSManagedObjectContext& m_context;
    UserDefaults m_userDefaults = UserDefaults::volatileDefaults();
};

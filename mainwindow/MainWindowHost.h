#pragma once

class NSManagedObjectContext;
class UserDefaults;

/// What the main window needs of the application that it lives in.
class MainWindowHost
{
public:
    virtual ~MainWindowHost() = default;

    /// The store's main context; null when the store cannot be opened, which the person has been
    /// told by then. Asking again tries again.
    virtual NSManagedObjectContext* managedObjectContext() = 0;
    /// Where the window remembers how the person left it.
    virtual UserDefaults& userDefaults() = 0;
    /// Closing the window ends the program: whether it may end now.
    virtual bool mayTerminate() = 0;
    /// Whether somebody is there, who can be asked to begin with a first card.
    virtual bool isAttended() const = 0;
};

#pragma once

#include <QString>
#include <QStringList>

#include <variant>

/// What the program was asked to do when it was started.
struct CommandLine
{
    /// Shows invented cards from a store that is thrown away.
    bool isDemo = false;
    /// Where to draw the window to instead of showing it; empty to show it.
    QString snapshotPath;

    /// Says this and ends.
    struct Answer
    {
        QString text;
        /// 0 when it was asked for, 2 when the arguments make no sense.
        int exitStatus;
    };

    /// Reads the arguments, the program's name not among them.
    static std::variant<CommandLine, Answer> parse(const QStringList& arguments);
};

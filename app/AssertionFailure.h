#pragma once

#include <QString>

#include <stdexcept>

/// Something without which the program cannot start is not there. It ends the program.
class AssertionFailure : public std::logic_error
{
public:
    explicit AssertionFailure(const QString& description)
        : std::logic_error(description.toStdString())
    {}
};

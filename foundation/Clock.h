#pragma once

#include "foundation/Instant.h"

#include <QtGlobal>

#include <optional>

/// The program's only source of the current time, so that a test can hold it still.
class Clock
{
public:
    static Instant now();

private:
    friend class FixedClock;

    static std::optional<Instant> s_fixed;
};

/// While one lives, Clock::now() answers what it was told and moves only when it is moved. What it
/// replaced, the running clock or another fixed one, is back when it goes.
class FixedClock
{
public:
    explicit FixedClock(Instant now);
    ~FixedClock();
    Q_DISABLE_COPY_MOVE(FixedClock)

    void moveTo(Instant now);
    /// Negative seconds move the clock back.
    void advance(double seconds);

private:
    std::optional<Instant> m_replaced;
};

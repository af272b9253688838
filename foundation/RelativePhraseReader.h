#pragma once

#include "foundation/Instant.h"
#include "foundation/TypedText.h"

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

/// Reads a text that names a day by its distance from today: "yesterday", "last Monday",
/// "3 weeks ago", "-2d".
///
/// The phrases are those of a translatable table, in English as well as in translation, and those
/// that the locale itself has for the past.
class RelativePhraseReader
{
public:
    /// `text` is in comparable form and outlives the reader; `today` is noon of the day that the
    /// text is relative to.
    RelativePhraseReader(std::u32string_view text, Instant today);

    /// About noon of the day that the text names in a phrase of the table; absent when it names
    /// none.
    std::optional<Instant> read() const;

    /// The same for the phrases of the locale, which take longer to look through.
    std::optional<Instant> readPhraseOfLocale() const;

private:
    enum class Unit
    {
        Day,
        Week,
        Month,
        Year
    };

    /// Takes what a phrase leaves open; false when the text says something else there.
    using Slot = std::function<bool(TypedText& text)>;

    /// Whether the text is one of the phrases of the table's entry; %1 and %2 in them are the
    /// first and the second slot.
    bool isPhrase(const char* entry, const std::vector<Slot>& slots = {}) const;

    std::optional<Unit> takeUnit(TypedText& text) const;

    std::optional<Instant> wordDate() const;
    std::optional<Instant> agoDate() const;
    std::optional<Instant> signedDate() const;

    /// The day so many units after today.
    std::optional<Instant> distant(int amount, Unit unit) const;
    /// The latest such weekday that is today or before, or at least so many days before.
    std::optional<Instant> latestWeekday(int weekday, int daysBefore) const;

    std::u32string_view m_text;
    Instant m_today;
    TypedText::Names m_units;
};

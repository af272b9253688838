#pragma once

#include "foundation/RegionalSettings.h"

#include <array>
#include <optional>

/// Puts one of some very different locales in force, until the next call.
inline void useLocale(unsigned number)
{
    static constexpr std::array names = {"en_GB", "de_DE", "ar_EG", "zh_CN",
                                         "fa_IR", "th_TH", "de_CH", "hi_IN"};
    static std::optional<ScopedRegionalSettings> settings;
    static std::optional<unsigned> current;
    number %= names.size();
    if (current != number) {
        settings.reset();
        settings.emplace(RegionalSettings(names.at(number), names.at(number), "Europe/Berlin"));
        current = number;
    }
}

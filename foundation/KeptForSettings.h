#pragma once

#include "foundation/RegionalSettings.h"

#include <map>
#include <optional>
#include <utility>

/// Things that follow from the regional settings and are costly to build, each kept under its key
/// until the settings change.
template <typename Key, typename Thing>
class KeptForSettings
{
public:
    /// The thing under `key`; made by `make(settings)` when there is none for these settings yet.
    template <typename Make>
    Thing& get(const Key& key, const Make& make)
    {
        const auto& settings = RegionalSettings::current();
        if (m_settings != settings) {
            m_things.clear();
            m_settings = settings;
        }
        auto found = m_things.find(key);
        if (found == m_things.end()) {
            found = m_things.emplace(key, make(settings)).first;
        }
        return found->second;
    }

private:
    std::optional<RegionalSettings> m_settings;
    std::map<Key, Thing> m_things;
};

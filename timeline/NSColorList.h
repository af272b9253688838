#pragma once

#include <QColor>

#include <string>
#include <string_view>
#include <vector>

/// Colours that belong together, each under a key, in the order in which they were added.
class NSColorList
{
public:
    /// Adds a colour, or replaces the one under the same key.
    void setColor(const QColor& color, std::string_view key);

    /// Throws `std::out_of_range` when there is no such key.
    QColor colorWithKey(std::string_view key) const;

private:
    struct Entry
    {
        std::string key;
        QColor color;
    };

    std::vector<Entry> m_colors;
};

#include "timeline/NSColorList.h"

#include <algorithm>
#include <stdexcept>

void NSColorList::setColor(const QColor& color, std::string_view key)
{
    const auto found = std::ranges::find(m_colors, key, &Entry::key);
    if (found == m_colors.end()) {
        m_colors.push_back({std::string(key), color});
    } else {
        found->color = color;
    }
}

QColor NSColorList::colorWithKey(std::string_view key) const
{
    const auto found = std::ranges::find(m_colors, key, &Entry::key);
    if (found == m_colors.end()) {
        throw std::out_of_range("No colour has the key " + std::string(key));
    }
    return found->color;
}

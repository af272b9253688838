#pragma once

#include <QString>

#include <optional>

/// Fills store files with the invented cards of a person who has kept books for years.
class StoreGenerator
{
public:
    struct Size
    {
        const char* name;
        int cards;
        /// Each card has a statement for every one of them.
        int months;

        int statements() const { return cards * months; }
    };
    static constexpr Size everyday{"everyday", 10, 120};
    static constexpr Size lifetime{"lifetime", 100, 600};
    static constexpr Size stress{"stress", 1000, 600};

    /// Absent when no size has this name.
    static std::optional<Size> sizeNamed(const QString& name);

    /// Writes a store of this size to `path`, where no file may be. The content is the same each
    /// time. Throws NSError or SQLite::Exception when the file cannot be written.
    static void generate(const Size& size, const QString& path);
};

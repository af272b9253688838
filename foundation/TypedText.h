#pragma once

#include <QString>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A text that somebody typed, read from left to right.
///
/// It is read in a comparable form, in which spellings that mean the same are equal: without case,
/// accents, apostrophes and marks of the writing direction, with digits of any script as 0 to 9,
/// any kind of blank or bracket as one space, and dashes, stops and commas of any script as these.
/// A copy keeps its place, so that something else can be tried from there.
class TypedText
{
public:
    struct Number
    {
        int value;
        int digits; ///< As typed, leading zeros included.
    };

    /// A name in comparable form and what it stands for.
    struct Name
    {
        std::u32string text;
        int value;
    };
    using Names = std::vector<Name>;

    /// The comparable form of the text; it neither begins nor ends with a space.
    static std::u32string comparable(const QString& text);

    /// Begins at the start of the text, which must be in comparable form and outlive this.
    explicit TypedText(std::u32string_view text)
        : m_text(text)
    {}

    bool isAtEnd() const { return m_position == m_text.size(); }

    /// The number that stands here, which is then passed. Absent, and nothing is passed, when there
    /// is none or it has more than nine digits.
    std::optional<Number> takeNumber();

    /// What the longest of the names that stand here stands for; it is then passed. A name may be
    /// typed without its stops, and its numbers with leading zeros.
    std::optional<int> takeName(const Names& names);

    /// Passes the word, which is in comparable form, if it stands here.
    bool takeWord(std::u32string_view word);

    /// Passes the spaces, dashes, stops, commas, slashes and plus signs that stand here, and
    /// answers them without the spaces.
    std::u32string takeMarks();

    /// How many characters of the text the longest of the names that stand here takes; 0 for none.
    std::size_t lengthOfName(const Names& names) const;

private:
    std::size_t endOf(const Name& name) const;

    std::u32string_view m_text;
    std::size_t m_position = 0;
};

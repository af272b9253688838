#include "foundation/TypedText.h"

#include <unicode/uscript.h>

#include <algorithm>

namespace {

constexpr std::u32string_view marks = U".,-/+";

bool isDigit(char32_t character)
{
    return character >= U'0' && character <= U'9';
}

/// Accents of the alphabets that people leave out when they are in a hurry. The vowel signs of
/// other scripts are marks too, but without them nothing is left of a word.
bool isAccent(char32_t character)
{
    const bool isOfAlphabet = character >= 0x0300 && character <= 0x036F;
    const bool isOfArabic = character >= 0x064B && character <= 0x0655;
    return isOfAlphabet || isOfArabic;
}

bool isApostrophe(char32_t character)
{
    return std::u32string_view(U"'`\u2018\u2019\u02BB\u02BC\u05F3").find(character) !=
           std::u32string_view::npos;
}

/// The character's comparable form; nothing for one that does not count.
std::optional<char32_t> comparableCharacter(char32_t character)
{
    if (isAccent(character) || isApostrophe(character)) {
        return std::nullopt;
    }
    if (QChar::isSpace(character)) {
        return U' ';
    }
    switch (QChar::category(character)) {
    case QChar::Other_Format:
        return std::nullopt;
    case QChar::Number_DecimalDigit:
        return U'0' + static_cast<char32_t>(QChar::digitValue(character));
    case QChar::Punctuation_Open:
    case QChar::Punctuation_Close:
        return U' ';
    case QChar::Punctuation_Dash:
        return U'-';
    default:
        break;
    }
    switch (character) {
    case U'\u2212': // minus sign
        return U'-';
    case U'\u3002': // ideographic
    case U'\u06D4': // Urdu
        return U'.';
    case U'\u060C': // Arabic
    case U'\u3001': // ideographic
    case U'\u104A': // Myanmar
    case U'\u1363': // Ethiopic
    case U'\u2E41': // reversed
        return U',';
    case U'\u0131': // Turkish, whose capital is everybody's I
        return U'i';
    default:
        return character;
    }
}

bool isOfWord(char32_t character)
{
    return QChar::isLetter(character) || QChar::isMark(character);
}

/// Whether words of the character's script follow each other without a space.
bool needsNoSpaces(char32_t character)
{
    UErrorCode status = U_ZERO_ERROR;
    const auto script = uscript_getScript(static_cast<UChar32>(character), &status);
    return U_SUCCESS(status) && uscript_breaksBetweenLetters(script) != 0;
}

/// Whether a word or a number can end between the two characters.
bool canEndBetween(char32_t before, char32_t after)
{
    if (isDigit(before) && isDigit(after)) {
        return false;
    }
    return !isOfWord(before) || !isOfWord(after) || needsNoSpaces(before) || needsNoSpaces(after);
}

} // namespace

std::u32string TypedText::comparable(const QString& text)
{
    const auto decomposed = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    std::u32string kept;
    for (const char32_t character : decomposed.toStdU32String()) {
        const auto form = comparableCharacter(character);
        if (form && !(*form == U' ' && (kept.empty() || kept.back() == U' '))) {
            kept += *form;
        }
    }
    if (kept.ends_with(U' ')) {
        kept.pop_back();
    }
    // Put together again, a syllable of Hangul does not begin with another one.
    return QString::fromStdU32String(kept)
        .normalized(QString::NormalizationForm_C)
        .toStdU32String();
}

std::optional<TypedText::Number> TypedText::takeNumber()
{
    constexpr int mostDigits = 9;
    Number number{.value = 0, .digits = 0};
    auto position = m_position;
    for (; position < m_text.size() && isDigit(m_text[position]); ++position) {
        if (++number.digits > mostDigits) {
            return std::nullopt;
        }
        number.value = number.value * 10 + static_cast<int>(m_text[position] - U'0');
    }
    m_position = position;
    return number.digits > 0 ? std::optional(number) : std::nullopt;
}

/// Where the text goes on behind the name; the place itself if the name does not stand here.
std::size_t TypedText::endOf(const Name& name) const
{
    auto position = m_position;
    const auto isWordEdge = [&](std::size_t place) {
        return place == 0 || place == m_text.size() ||
               canEndBetween(m_text[place - 1], m_text[place]);
    };
    char32_t before = U' ';
    for (const char32_t character : name.text) {
        if (isDigit(character) && character != U'0' && !isDigit(before)) {
            position = std::min(m_text.find_first_not_of(U'0', position), m_text.size());
        }
        if (position < m_text.size() && m_text[position] == character) {
            ++position;
        } else if (character != U'.') {
            return m_position;
        }
        before = character;
    }
    return isWordEdge(m_position) && isWordEdge(position) ? position : m_position;
}

std::optional<int> TypedText::takeName(const Names& names)
{
    std::optional<int> value;
    auto end = m_position;
    for (const auto& name : names) {
        if (const auto nameEnd = endOf(name); nameEnd > end) {
            end = nameEnd;
            value = name.value;
        }
    }
    m_position = end;
    return value;
}

std::size_t TypedText::lengthOfName(const Names& names) const
{
    auto behind = *this;
    behind.takeName(names);
    return behind.m_position - m_position;
}

bool TypedText::takeWord(std::u32string_view word)
{
    return takeName({{.text = std::u32string(word), .value = 0}}).has_value();
}

std::u32string TypedText::takeMarks()
{
    std::u32string taken;
    for (; m_position < m_text.size(); ++m_position) {
        const auto character = m_text[m_position];
        if (marks.find(character) != std::u32string_view::npos) {
            taken += character;
        } else if (character != U' ') {
            break;
        }
    }
    return taken;
}

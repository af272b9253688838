#pragma once

#include <QString>

/// What an error says: in the language of the interface for the person, in English for the log.
class ErrorText
{
public:
    ErrorText() = default;
    /// A text of the source, marked for translation in the context "NSError". %1 in it stands for
    /// `value`.
    explicit ErrorText(const char* source, const QString& value = {});
    /// A text that came from elsewhere, in whatever language.
    static ErrorText verbatim(const QString& text);

    const QString& localized() const { return m_localized; }
    const QString& english() const { return m_english; }

private:
    QString m_localized;
    QString m_english;
};

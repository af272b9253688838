#include "store/ErrorText.h"

#include <QCoreApplication>

ErrorText::ErrorText(const char* source, const QString& value)
    : m_localized(QCoreApplication::translate("NSError", source))
    , m_english(QString::fromUtf8(source))
{
    for (auto* const text : {&m_localized, &m_english}) {
        text->replace(u"%1"_qs, value);
    }
}

ErrorText ErrorText::verbatim(const QString& text)
{
    ErrorText result;
    result.m_localized = text;
    result.m_english = text;
    return result;
}

#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

/// Puts the texts of a language in the place of the English ones for as long as it lives. What the
/// window shows has to be made while it does. The application's layout goes from right to left
/// where the language is written so.
class Translation
{
public:
    /// The languages that the program speaks besides English, by name: "de", "zh_CN".
    static QStringList languages();

    /// An empty name, or one that is not in languages(), leaves English. Qt's own texts (the
    /// context menus of fields, the names of keys) come from the system's translations of Qt and
    /// stay English where these are not installed.
    explicit Translation(const QString& language);

    /// Of the person's language, if the program speaks it.
    static QString preferredLanguage();

private:
    QTranslator m_ofQt;
    QTranslator m_own;
};

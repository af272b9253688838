#pragma once

#include <QStringList>

/// The language of the program's texts. It is chosen apart from the formats of dates and amounts,
/// for which see RegionalSettings.
namespace InterfaceLanguage {

/// The languages that the person reads, the preferred one first, named as in the environment but
/// without codeset and modifier ("de_AT", "fr"). They are those of LANGUAGE, a list that ':'
/// separates, followed by that of LC_ALL, LC_MESSAGES or LANG, whichever is set first; an empty
/// variable counts as unset. Where that one is plain "C" or "POSIX", programs are to speak as
/// written: the answer is empty, whatever LANGUAGE says. Whether the system has the locale does
/// not matter.
QStringList preferred();

/// The first of `available` that serves one of the languages `preferred`, in their order: the one
/// of that name, else the one of the language without the country. Chinese without a country, and
/// that of Singapore, is read as "zh_CN"; others do not stand in for each other. Empty when none
/// does, or when English, the language of the source, comes before.
QString best(const QStringList& preferred, const QStringList& available);

} // namespace InterfaceLanguage

#include "app/Translation.h"

#include "foundation/InterfaceLanguage.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>

namespace {

const QString folder = QStringLiteral(":/translations");
const QString prefix = QStringLiteral("corvane_");

//: "RTL" where the language is written from right to left, else "LTR". Qt asks for it when a
//: translation is installed, and mirrors the layouts.
[[maybe_unused]] constexpr auto layoutDirection =
    QT_TRANSLATE_NOOP("QGuiApplication", "QT_LAYOUT_DIRECTION");

} // namespace

QStringList Translation::languages()
{
    auto names = QDir(folder).entryList({prefix + u"*.qm"}, QDir::Files, QDir::Name);
    for (auto& name : names) {
        name = name.section(u'.', 0, 0).mid(prefix.size());
    }
    return names;
}

QString Translation::preferredLanguage()
{
    return InterfaceLanguage::best(InterfaceLanguage::preferred(), languages());
}

Translation::Translation(const QString& language)
{
    if (!languages().contains(language)) {
        return;
    }
    // The latest is asked first.
    if (m_ofQt.load(u"qtbase_" + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&m_ofQt);
    }
    if (m_own.load(prefix + language, folder)) {
        QCoreApplication::installTranslator(&m_own);
    }
}

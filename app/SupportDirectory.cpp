#include "app/SupportDirectory.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

namespace {

QString environmentPath(const char* name)
{
    const auto path = QFile::decodeName(qgetenv(name));
    return QDir::isAbsolutePath(path) ? QDir::cleanPath(path) : QString();
}

} // namespace

QString SupportDirectory::dataHome()
{
    auto dataHome = environmentPath("XDG_DATA_HOME");
    const auto home = environmentPath("HOME");
    if (!dataHome.isEmpty() || home.isEmpty()) {
        return dataHome;
    }
    return home + u"/.local/share";
}

QString SupportDirectory::path()
{
    return (isTemporary() ? QDir::tempPath() : dataHome()) + u"/Corvane";
}

bool SupportDirectory::isTemporary()
{
    return dataHome().isEmpty();
}

bool SupportDirectory::makeDataHome()
{
    const auto path = dataHome();
    for (qsizetype end = path.indexOf(u'/', 1);; end = path.indexOf(u'/', end + 1)) {
        const auto part = end < 0 ? path : path.left(end);
        // One that is there already stays as it is.
        ::mkdir(QFile::encodeName(part).constData(), S_IRWXU);
        if (end < 0) {
            return QDir(path).exists();
        }
    }
}

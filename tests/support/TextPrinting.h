#pragma once

#include <QByteArray>
#include <QDebug>
#include <QString>

#include <ostream>

// Failures show a text as it reads, in quotes, and escape what cannot be seen, such as isolating
// marks; also in lists and optionals.

inline void PrintTo(const QString& text, std::ostream* stream)
{
    QString quoted;
    QDebug(&quoted).nospace() << text;
    *stream << quoted.toStdString();
}

inline void PrintTo(const QByteArray& text, std::ostream* stream)
{
    QString quoted;
    QDebug(&quoted).nospace() << text;
    *stream << quoted.toStdString();
}

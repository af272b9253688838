#include "foundation/Log.h"

#include <algorithm>
#include <cstdio>

namespace {

Log::Collector* s_collector = nullptr;

bool breaksLine(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

} // namespace

void Log::line(QStringView text)
{
    QString plain = text.toString();
    std::replace_if(plain.begin(), plain.end(), breaksLine, QLatin1Char(' '));
    if (s_collector) {
        s_collector->m_lines.append(plain);
        return;
    }
    plain.append(QLatin1Char('\n'));
    // In one piece: the lines of several programs may share this stream.
    const QByteArray bytes = plain.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
}

Log::Collector::Collector()
    : m_outer(s_collector)
{
    s_collector = this;
}

Log::Collector::~Collector()
{
    s_collector = m_outer;
}

#pragma once

#include <QStringList>
#include <QStringView>

/// The program's log: plain English lines on standard error.
namespace Log {

/// Writes `text` as one line. Line breaks and control characters in it become blanks, so that
/// nothing a person typed can start a line of its own or steer a terminal.
void line(QStringView text);

/// Keeps the lines that are logged while it lives instead of writing them, for a test that expects
/// them. Of several, the one made last keeps them.
class Collector
{
public:
    Collector();
    Collector(const Collector&) = delete;
    Collector& operator=(const Collector&) = delete;
    ~Collector();

    const QStringList& lines() const { return m_lines; }

private:
    friend void line(QStringView text);

    QStringList m_lines;
    Collector* m_outer;
};

} // namespace Log

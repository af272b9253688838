#include "app/CommandLine.h"

#include "app/Version.h"

namespace {

const char* const help = "Usage: corvane [--demo] [--snapshot FILE.png] [--version] [--help]\n"
                         "Keeps track of credit-card debt, and of the day it is gone.\n"
                         "\n"
                         "  --demo               show invented cards from a throw-away store\n"
                         "  --snapshot FILE.png  draw the main window into a picture and end\n"
                         "  --version            say which version this is\n"
                         "  --help               say this";

} // namespace

std::variant<CommandLine, CommandLine::Answer> CommandLine::parse(const QStringList& arguments)
{
    CommandLine commandLine;
    const auto mistake = [](const QString& text) {
        return Answer{u"corvane: " + text + u" (try --help)", 2};
    };
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        if (*argument == u"--demo") {
            commandLine.isDemo = true;
        } else if (*argument == u"--snapshot") {
            if (++argument == arguments.end() || argument->isEmpty()) {
                return mistake(QStringLiteral("--snapshot needs the name of a file"));
            }
            commandLine.snapshotPath = *argument;
        } else if (*argument == u"--version") {
            return Answer{QStringLiteral("Corvane " CORVANE_VERSION), 0};
        } else if (*argument == u"--help") {
            return Answer{QString::fromUtf8(help), 0};
        } else {
            return mistake(u"unknown argument " + *argument);
        }
    }
    return commandLine;
}

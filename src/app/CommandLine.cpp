#include "app/CommandLine.h"

#include <optional>

namespace tarvelo::app {

namespace {

const QByteArray Help = "Usage: Tarvelo [--new-lecture | --preferences]\n"
                        "\n"
                        "Records lectures and finds them under their day.\n"
                        "\n"
                        "  --new-lecture  open the window of a new lecture\n"
                        "  --preferences  open the preferences\n"
                        "  --version      print the version and end\n"
                        "  --help         print this and end\n";

} // namespace

CommandLine questionIn(const QStringList &arguments)
{
    if (arguments.contains(QStringLiteral("--help")))
        return {.answer = Help};
    if (arguments.contains(QStringLiteral("--version")))
        return {.answer = "Tarvelo " TARVELO_VERSION "\n"};
    return {};
}

CommandLine commandLineOf(const QStringList &arguments)
{
    CommandLine line;
    for (const QString &argument : arguments.mid(1)) {
        const auto request = argument.startsWith(QStringLiteral("--"))
                                 ? requestOf(argument.mid(2).toUtf8())
                                 : std::nullopt;
        if (!request)
            return {.answer = "Tarvelo: unknown argument " + argument.toUtf8() + "\n\n" + Help,
                    .status = 2};
        line.request = *request;
    }
    return line;
}

} // namespace tarvelo::app

#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QTest>

namespace tarvelo::tests {

// What students may write into a subject, notes or a file's name, and what a shell, a command's
// options or an address could take for something of their own. Rows for a test that fetches
// (QString, text); those that would run something make a file called "RAN" in the current folder.
// None of them has a slash, so that each can be the name of a file.
inline void addHostileTexts()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const char *text) {
        QTest::newRow(name) << QString::fromUtf8(text);
    };
    row("quotes", "It's \"Optics\" and `more`");
    row("command", "$(touch RAN) ${HOME} $HOME");
    row("backquotes", "`touch RAN`");
    row("command after the end", "'; touch RAN; \"; touch RAN; #");
    row("pipes", "a | touch RAN & touch RAN > RAN < b");
    row("line ends", "first\nsecond\n\n\tthird");
    row("emoji and scripts", "\xF0\x9F\x93\x9A r\xC3\xA9sum\xC3\xA9 \xE6\x95\xB0\xE5\xAD\xA6 "
                             "\xD8\xB9\xD8\xB1\xD8\xA8\xD9\x8A");
    row("option", "--help");
    row("option with a value", "--attach=RAN");
    row("dash", "-");
    row("end of options", "--");
    row("backslashes", "\\nabla f \\cos x \\t \\0101 \\\\ \\");
    row("percent signs", "100 % %s %n %20 %00");
    row("address", "&attach=RAN&cc=a@b.c?body=x#y+z");
    row("patterns", "* ? [a-z] {a,b} ~ !");
    row("spaces", "two  spaces   and\tmore");
}

// Whether one of them was run in the current folder.
inline bool hasAnythingRun()
{
    return QFile::exists(QDir::current().filePath(QStringLiteral("RAN")));
}

} // namespace tarvelo::tests

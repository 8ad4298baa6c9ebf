#include "app/CommandLine.h"

#include "support/TestCase.h"

using namespace Qt::StringLiterals;
using namespace tarvelo::app;

class CommandLineTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aPlainStartAsksForTheProgram()
    {
        const CommandLine line = commandLineOf({u"Tarvelo"_s});

        QVERIFY(!line.endsAtOnce());
        QCOMPARE(line.request, Request::Reopen);
    }

    void aStartMayAskForMore_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::addColumn<Request>("request");
        QTest::newRow("a new lecture") << u"--new-lecture"_s << Request::NewLecture;
        QTest::newRow("the preferences") << u"--preferences"_s << Request::ShowPreferences;
    }

    void aStartMayAskForMore()
    {
        QFETCH(QString, argument);
        QFETCH(Request, request);

        const CommandLine line = commandLineOf({u"Tarvelo"_s, argument});

        QVERIFY(!line.endsAtOnce());
        QCOMPARE(line.request, request);
    }

    void whatIsNotKnownIsSaidWithTheHelp_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::newRow("an option") << u"--dance"_s;
        QTest::newRow("a file") << u"lecture.m4a"_s;
        QTest::newRow("a word that only looks like one") << u"new-lecture"_s;
        QTest::newRow("nothing") << u""_s;
    }

    void whatIsNotKnownIsSaidWithTheHelp()
    {
        QFETCH(QString, argument);

        const CommandLine line = commandLineOf({u"Tarvelo"_s, argument});

        QVERIFY(line.endsAtOnce());
        QCOMPARE(line.status, 2);
        QVERIFY(line.answer.startsWith("Tarvelo: unknown argument " + argument.toUtf8()));
        QVERIFY(line.answer.contains("--new-lecture"));
    }

    void questionsAreAnswered()
    {
        QVERIFY(questionIn({u"Tarvelo"_s, u"--version"_s}).answer.startsWith("Tarvelo 0."));
        QVERIFY(questionIn({u"Tarvelo"_s, u"--help"_s}).answer.startsWith("Usage: Tarvelo"));
        QCOMPARE(questionIn({u"Tarvelo"_s, u"--help"_s}).status, 0);
        QVERIFY(!questionIn({u"Tarvelo"_s, u"--new-lecture"_s}).endsAtOnce());
        QVERIFY(!questionIn({}).endsAtOnce());
    }

    void everyRequestHasAWordOfItsOwn()
    {
        for (const Request request :
             {Request::Reopen, Request::NewLecture, Request::ShowPreferences})
            QCOMPARE(requestOf(wordOf(request)), request);
        QVERIFY(!requestOf("dance"));
        QVERIFY(!requestOf(""));
    }
};

QTEST_GUILESS_MAIN(CommandLineTest)
#include "CommandLineTest.moc"

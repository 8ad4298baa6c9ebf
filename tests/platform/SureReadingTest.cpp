#include "platform/SureReading.h"

#include "support/FileContent.h"
#include "support/FolderCase.h"
#include "support/RefusedCalls.h"

using namespace Qt::StringLiterals;
using namespace tarvelo::platform;
using tarvelo::tests::refuse;
using tarvelo::tests::writeContent;
using State = WholeFile::State;

class SureReadingTest final : public tarvelo::tests::FolderCase
{
    Q_OBJECT

private Q_SLOTS:
    void aFolderHasItsNamesInOrderHiddenOnesToo()
    {
        QVERIFY(writeContent(path("b"), ""));
        QVERIFY(writeContent(path(".a"), ""));

        QCOMPARE(namesIn(m_folder->path()).value(), QStringList({u".a"_s, u"b"_s}));
    }

    void aFolderThatIsMissingOrCannotBeReadHasNoKnownNames()
    {
        QVERIFY(!namesIn(path("missing")));
        refuse("opendir", qPrintable(m_folder->path()));
        QVERIFY(!namesIn(m_folder->path()));
    }

    void whetherAFileIsThereIsKnownByItsFolderAlone()
    {
        QVERIFY(writeContent(path("a"), ""));

        QVERIFY(isThere(path("a")) == true);
        QVERIFY(isThere(path("b")) == false);
        QVERIFY(!isThere(path("missing/b")));
    }

    void aFileIsReadWhole()
    {
        const QByteArray bytes(200'000, 'n');
        QVERIFY(writeContent(path("a"), bytes));

        const WholeFile file = readWhole(path("a"), bytes.size());

        QVERIFY(file.state == State::Read);
        QCOMPARE(file.bytes, bytes);
        QVERIFY(readWhole(path("a"), bytes.size() - 1).state == State::TooLarge);
    }

    void whatCannotBeReadIsNotTakenForMissingOrEmpty()
    {
        QVERIFY(writeContent(path("a"), "content"));
        refuse("read", "/a");

        QVERIFY(readWhole(path("a"), 100).state == State::Unreadable);
        QVERIFY(readWhole(m_folder->path(), 100).state == State::Unreadable);
        QVERIFY(readWhole(path("b"), 100).state == State::Missing);
    }

protected:
    void finish() override
    {
        tarvelo::tests::refuseNothing();
        FolderCase::finish();
    }

private:
    QString path(const char *name) const { return m_folder->filePath(QLatin1StringView(name)); }
};

QTEST_GUILESS_MAIN(SureReadingTest)
#include "SureReadingTest.moc"

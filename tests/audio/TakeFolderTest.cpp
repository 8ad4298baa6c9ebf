#include "audio/TakeFolder.h"

#include "support/FolderCase.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using tarvelo::audio::TakeFolder;

class TakeFolderTest final : public tarvelo::tests::FolderCase
{
    Q_OBJECT

private Q_SLOTS:
    void theUsualFolderHasOneProcessAndStays()
    {
        auto first = TakeFolder::own(usual());
        QVERIFY(first);
        QVERIFY(!TakeFolder::own(usual()));

        first.reset();

        QVERIFY(TakeFolder::own(usual()));
    }

    void oneOfItsOwnIsForItsUserAloneAndKnownBelowTheUsualOne()
    {
        const auto made = TakeFolder::makeBelow(usual());

        QVERIFY(made);
        QCOMPARE(TakeFolder::below(usual()), QStringList({made->path()}));
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(made->path()).constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777, 0700U);
    }

    void nobodyElseGetsItOrTakesItAway()
    {
        const auto made = TakeFolder::makeBelow(usual());

        QVERIFY(!TakeFolder::own(made->path()));
        QVERIFY(QFile::exists(made->path() + u"/.owner"_s));
    }

    void emptyItGoesWithItsProcess()
    {
        auto made = TakeFolder::makeBelow(usual());
        write(made->path() + u"/.tempAudioFile.reserve"_s);

        made.reset();

        QCOMPARE(TakeFolder::below(usual()), QStringList());
    }

    void whatIsInItStays()
    {
        auto made = TakeFolder::makeBelow(usual());
        const QString take = made->path() + u"/tempAudioFile.m4a"_s;
        write(take);

        made.reset();

        QVERIFY(QFile::exists(take));
        QVERIFY(TakeFolder::own(TakeFolder::below(usual()).value(0)));
    }

    void whereNoneCanBeMadeThereIsNone()
    {
        QVERIFY(!TakeFolder::makeBelow(usual() + u"/missing"_s));
    }

private:
    QString usual() const { return m_folder->path(); }
    static void write(const QString &path)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("content");
    }
};

QTEST_GUILESS_MAIN(TakeFolderTest)
#include "TakeFolderTest.moc"

#include "platform/Descriptor.h"

#include "support/TestCase.h"

#include <QTemporaryDir>

using tarvelo::platform::Descriptor;
using tarvelo::platform::inFull;

class DescriptorTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatTheSystemGivesInPiecesIsWhole()
    {
        QList<qint64> places;

        const auto all = inFull(10, [&](qint64 done, size_t rest) {
            places.append(done);
            return static_cast<ssize_t>(qMin<size_t>(rest, 4));
        });

        QCOMPARE(all.size, 10);
        QVERIFY(!all.hasFailed);
        QCOMPARE(places, QList<qint64>({0, 4, 8}));
    }

    void anInterruptionIsNoFailure()
    {
        int calls = 0;

        const auto all = inFull(10, [&calls](qint64, size_t rest) {
            errno = EINTR;
            return ++calls < 3 ? -1 : static_cast<ssize_t>(rest);
        });

        QCOMPARE(all.size, 10);
        QVERIFY(!all.hasFailed);
        QCOMPARE(calls, 3);
    }

    void aFailureLeavesWhatWasDoneBefore()
    {
        const auto all = inFull(10, [](qint64 done, size_t) {
            errno = ENOSPC;
            return done == 0 ? 6 : -1;
        });

        QCOMPARE(all.size, 6);
        QVERIFY(all.hasFailed);
        QCOMPARE(errno, ENOSPC);
    }

    void theEndIsNoFailure()
    {
        const auto all = inFull(10, [](qint64 done, size_t) { return done == 0 ? 6 : 0; });

        QCOMPARE(all.size, 6);
        QVERIFY(!all.hasFailed);
    }

    void whatIsWrittenIsReadAtItsPlaceAsFarAsThereIsSome()
    {
        const QTemporaryDir folder;
        const Descriptor file(folder.filePath(QStringLiteral("file")), O_RDWR | O_CREAT);
        QByteArray piece(6, 'x');

        QVERIFY(file.write("optics", 0));
        QVERIFY(file.write("ph", 6));

        QCOMPARE(file.read(piece, 2)->toByteArray(), QByteArray("ticsph"));
        QCOMPARE(file.read(piece, 6)->toByteArray(), QByteArray("ph"));
        QCOMPARE(file.read(piece, 99)->size(), 0);
    }

    void whatIsNotOpenGivesAndTakesNothing()
    {
        const Descriptor none(QStringLiteral("/nowhere/file"), O_RDWR);
        QByteArray piece(6, 'x');

        QVERIFY(!none.isOpen());
        QVERIFY(!none.write("optics", 0));
        QVERIFY(!none.read(piece, 0));
    }
};

QTEST_GUILESS_MAIN(DescriptorTest)
#include "DescriptorTest.moc"

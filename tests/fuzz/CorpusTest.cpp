#include "audio/engine/DecodedSource.h"
#include "fuzz/SoundFileFuzz.h"
#include "support/FileContent.h"
#include "support/StderrCatcher.h"
#include "support/TestCase.h"

#include <QDir>

using namespace tarvelo;
using tarvelo::tests::contentOf;

// The files from which the fuzzer starts, and those that it found trouble with.
class CorpusTest final : public tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyFileIsOpenedAndReadWithoutHarm_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QDir folder(QStringLiteral(CORPUS));
        const auto names = folder.entryList(QDir::Files);
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << contentOf(folder.filePath(name));
        QVERIFY(names.size() > 30);
    }
    void everyFileIsOpenedAndReadWithoutHarm()
    {
        QFETCH(QByteArray, bytes);
        const tests::StderrCatcher stderrCatcher;

        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                               static_cast<std::size_t>(bytes.size()));

        QCOMPARE(stderrCatcher.caught(), QByteArray());
    }

    void someFilesPlayAndOthersDoNot_data()
    {
        QTest::addColumn<bool>("plays");
        for (const char *name :
             {"take.m4a", "take-index-first.m4a", "take-fragmented.m4a", "take-cut-in-sound.m4a",
              "take-cut-in-fragment.m4a", "take-cut-in-last-sound.m4a", "lie-durations.m4a",
              "tiny.wav", "much-promised.wav", "tiny.mp3", "titled.mp3", "garbage.mp3", "tiny.aac",
              "tiny.flac", "tiny.ogg", "tiny.opus", "tiny.aiff", "tiny.caf", "lossless.m4a"})
            QTest::newRow(name) << true;
        for (const char *name : {"take-cut-in-index.m4a", "take-cut-in-header.m4a", "film.mp4",
                                 "head-only.wav", "no-rate.wav", "many-channels.wav"})
            QTest::newRow(name) << false;
    }
    void someFilesPlayAndOthersDoNot()
    {
        QFETCH(bool, plays);
        const QByteArray bytes =
            contentOf(QStringLiteral(CORPUS "/") + QLatin1String(QTest::currentDataTag()));

        QVERIFY(!bytes.isEmpty());
        QCOMPARE(engine::DecodedSource::open(bytes) != nullptr, plays);
    }
};

QTEST_GUILESS_MAIN(CorpusTest)
#include "CorpusTest.moc"

#include "audio/engine/AudioEngine.h"
#include "audio/engine/Settings.h"
#include "audio/engine/SoundBytes.h"
#include "support/StderrCatcher.h"
#include "support/TestCase.h"

#include <QFileInfo>
#include <QTemporaryDir>

using namespace tarvelo::engine;
using tarvelo::tests::lectureSettings;

class SoundServerEngineTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aRecorderIsMadeWithoutTouchingTheFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("take.aac"));

        QVERIFY(makeSoundServerEngine()->makeRecorder(path, lectureSettings()));

        QVERIFY(!QFileInfo::exists(path));
    }

    void aFolderThatIsMissingIsNoticedLater()
    {
        const QString path = QStringLiteral("/missing/take.aac");

        QVERIFY(makeSoundServerEngine()->makeRecorder(path, lectureSettings()));
    }

    void withoutAPathThereIsNoRecorder()
    {
        QVERIFY(!makeSoundServerEngine()->makeRecorder({}, lectureSettings()));
    }

    void settingsThatCannotBeMetGiveNoRecorder()
    {
        auto settings = lectureSettings();
        settings.insert(RecorderSettingKeys::Format, 0x6c70636d);

        QVERIFY(!makeSoundServerEngine()->makeRecorder(QStringLiteral("/tmp/take.aac"), settings));
        QVERIFY(!makeSoundServerEngine()->makeRecorder(QStringLiteral("/tmp/take.aac"), {}));
    }

    void aRecorderThatWasNeverPreparedDoesNothing()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("take.aac"));
        const auto recorder = makeSoundServerEngine()->makeRecorder(path, lectureSettings());

        QVERIFY(!recorder->record());
        recorder->pause();
        recorder->stop();

        QCOMPARE(recorder->currentTime(), 0.0);
        QVERIFY(!QFileInfo::exists(path));
    }

    void aFileThatIsNoSoundHasNoPlayerAndNobodySaysAWord_data()
    {
        QTest::addColumn<QByteArray>("head");
        QTest::addColumn<qint64>("size");
        QTest::newRow("empty") << QByteArray() << qint64(0);
        QTest::newRow("zeros") << QByteArray(1, '\0') << qint64(100'000);
        QTest::newRow("4 GiB of zeros") << QByteArray(1, '\0') << (qint64(4) << 30);
        QTest::newRow("text") << QByteArray("Lenses and mirrors\n").repeated(5000)
                              << qint64(90'000);
        QTest::newRow("a picture")
            << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) << qint64(9000);
        QTest::newRow("pages") << QByteArray("%PDF-1.7\n1 0 obj\n") << qint64(90'000);
        QTest::newRow("a database") << QByteArray("SQLite format 3\0\x10", 17) << qint64(65536);
        QTest::newRow("only a head") << QByteArray("RIFF\xff\xff\xff\x7fWAVEfmt ") << qint64(16);
        QTest::newRow("a film") << QByteArray("\x1a\x45\xdf\xa3") << qint64(90'000);
    }
    void aFileThatIsNoSoundHasNoPlayerAndNobodySaysAWord()
    {
        QFETCH(QByteArray, head);
        QFETCH(qint64, size);
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("lecture.aac")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(head) == head.size() &&
                file.flush() && file.resize(size));
        const auto engine = makeSoundServerEngine();
        const tarvelo::tests::StderrCatcher stderrCatcher;

        QVERIFY(!engine->makePlayer(soundBytesOf(file.fileName())));
        QVERIFY(!engine->makePlayer(soundBytesOf(folder.filePath(QStringLiteral("missing")))));

        QCOMPARE(stderrCatcher.caught(), QByteArray());
    }
};

QTEST_GUILESS_MAIN(SoundServerEngineTest)
#include "SoundServerEngineTest.moc"

#include "audio/engine/Settings.h"
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
        settings.insert(RecorderSetting::Format, 0x6c70636d);

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
};

QTEST_GUILESS_MAIN(SoundServerEngineTest)
#include "SoundServerEngineTest.moc"

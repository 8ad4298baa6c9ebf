#include "audio/engine/TakeWriter.h"
#include "audio/engine/PcmFormat.h"
#include "support/DecodedAudio.h"
#include "support/FolderCase.h"
#include "support/OrdinaryUser.h"
#include "support/SmallFiles.h"
#include "support/StderrCatcher.h"
#include "support/TestSound.h"

#include <QDir>
#include <QFile>

#include <limits>

using namespace tarvelo::engine;
using namespace tarvelo::tests;

constexpr PcmFormat Mono{44100, 1};

// Samples in, a file out: without a sound server everything is exact to the sample.
class TakeWriterTest final : public FolderCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyMicrophoneGivesTheSameTake_data()
    {
        QTest::addColumn<int>("rate");
        QTest::addColumn<int>("channels");
        for (const int rate : {8000, 16000, 22050, 44100, 48000, 96000})
            for (const int channels : {1, 2})
                QTest::addRow("%d hertz, %d channels", rate, channels) << rate << channels;
    }
    void everyMicrophoneGivesTheSameTake()
    {
        QFETCH(int, rate);
        QFETCH(int, channels);
        const auto writer = TakeWriter::create(path(), {rate, channels}, {});
        QVERIFY(writer);

        writeInBlocks(*writer, onAllChannels(tune(rate, 3.3), channels));
        QVERIFY(writer->finish());

        const auto take = DecodedAudio::read(name());
        QVERIFY(take);
        QCOMPARE(take->channels, 2);
        QVERIFY(std::abs(take->seconds() - 3.3) < 0.025);
        const auto original = tune(44100, 3.3);
        for (int channel = 0; channel < 2; ++channel) {
            const double same = correlation(original, take->channel(channel));
            QVERIFY2(same >= 0.98, qPrintable(QString::number(same)));
        }
    }

    void oneMicrophoneIsHeardAtItsFullLevelOnBothSides()
    {
        const auto writer = TakeWriter::create(path(), Mono, {});

        writer->write(tone(44100, 1, 1000));
        QVERIFY(writer->finish());

        const auto take = DecodedAudio::read(name());
        for (int channel = 0; channel < 2; ++channel) {
            const auto sound = take->channel(channel);
            const float highest = std::ranges::max(std::span(sound).subspan(10000, 20000));
            QVERIFY(highest > 0.9F && highest < 1.1F);
        }
    }

    void theSidesStayApart()
    {
        const auto writer = TakeWriter::create(path(), {44100, 2}, {});
        const auto left = tone(44100, 1, 700);
        std::vector<float> both;
        for (const float sample : left)
            both.insert(both.end(), {sample, 0.0F});

        writer->write(both);
        QVERIFY(writer->finish());

        const auto take = DecodedAudio::read(name());
        QVERIFY(correlation(left, take->channel(0)) > 0.98);
        QVERIFY(std::ranges::max(take->channel(1)) < 0.02F);
    }

    void theFileIsAnIndexedMovieWhateverItsName()
    {
        for (const QString &extension :
             {QStringLiteral("m4a"), QStringLiteral("aac"), QStringLiteral("a:b %20 ü")}) {
            m_name = QStringLiteral("take.") + extension;
            const auto writer = TakeWriter::create(path(), Mono, {});

            writer->write(tune(44100, 2));
            QVERIFY(writer->finish());

            const auto facts = MovieFacts::read(name());
            QVERIFY(facts);
            QCOMPARE(facts->codec, QStringLiteral("aac"));
            QVERIFY(!facts->isFragmented);
            QVERIFY(std::abs(facts->seconds - 2) < 0.05);
            QCOMPARE(others(), QStringList());
            QFile::remove(name());
        }
    }

    void theFileIsForItsOwnerAlone()
    {
        const auto writer = TakeWriter::create(path(), Mono, {});
        const auto owner =
            QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;

        writer->write(tune(44100, 1));
        QCOMPARE(QFile::permissions(name()), owner);
        QVERIFY(writer->finish());

        QCOMPARE(QFile::permissions(name()), owner);
    }

    void allButTheLastMomentPlaysWhileTheTakeGrows()
    {
        const auto sound = tune(44100, 5);
        const auto writer = TakeWriter::create(path(), Mono, {});

        for (std::size_t at = 0; at < sound.size(); at += 4410) {
            writer->write(std::span(sound).subspan(at, 4410));
            const double written = static_cast<double>(at + 4410) / 44100;
            const auto take = DecodedAudio::read(name());
            const double playing = take ? take->seconds() : 0;
            QVERIFY2(playing > written - 0.7, qPrintable(QString::number(written)));
            QVERIFY(std::abs(playing - writer->secondsInFile()) < 0.001);
            QVERIFY(playing == 0 || correlation(sound, take->channel(1)) > 0.98);
        }
    }

    void aTakeWithoutSoundIsAFileThatPlays()
    {
        QVERIFY(TakeWriter::create(path(), Mono, {})->finish());

        const auto take = DecodedAudio::read(name());
        QVERIFY(take);
        QVERIFY(take->seconds() < 0.05);
    }

    void theEndOfTheWriterIsTheEndOfTheTake()
    {
        TakeWriter::create(path(), Mono, {})->write(tune(44100, 2));

        QVERIFY(!MovieFacts::read(name())->isFragmented);
    }

    void finishingTwiceIsFinishingOnce()
    {
        const auto writer = TakeWriter::create(path(), Mono, {});
        writer->write(tune(44100, 1));
        QVERIFY(writer->finish());
        QFile::remove(name());

        QVERIFY(writer->finish());
        QVERIFY(!writer->write(tune(44100, 1)));

        QVERIFY(!QFile::exists(name()));
    }

    void whatIsNoNumberDoesNotEndTheTake()
    {
        auto sound = tune(44100, 3);
        sound[44100] = std::numeric_limits<float>::quiet_NaN();
        sound[44200] = std::numeric_limits<float>::infinity();
        sound[44300] = -1e30F;
        const auto writer = TakeWriter::create(path(), Mono, {});

        writeInBlocks(*writer, sound);
        QVERIFY(writer->finish());

        QVERIFY(std::abs(DecodedAudio::read(name())->seconds() - 3) < 0.05);
    }

    void aFullDiskKeepsWhatWasWritten()
    {
        const auto sound = tune(44100, 10);
        const auto writer = TakeWriter::create(path(), Mono, {});
        const SmallFiles disk(30000);

        writeInBlocks(*writer, sound);
        QVERIFY(writer->isDiskFailing());
        QVERIFY(!writer->finish());

        const auto take = DecodedAudio::read(name());
        QVERIFY(take);
        QVERIFY(take->seconds() > 1);
        QVERIFY(std::abs(take->seconds() - writer->secondsInFile()) < 0.05);
        QVERIFY(correlation(sound, take->channel(0)) > 0.98);
        QCOMPARE(others(), QStringList());
    }

    void aDiskThatIsFullFromTheFirstMomentIsBornWithPatience()
    {
        const SmallFiles disk(0);
        const auto writer = TakeWriter::create(path(), Mono, {});
        QVERIFY(writer);

        writeInBlocks(*writer, tune(44100, 2));

        QVERIFY(!writer->finish());
        QCOMPARE(writer->secondsInFile(), 0.0);
    }

    void roomThatComesBackInTimeLosesNothing()
    {
        const auto sound = tune(44100, 9);
        const auto writer = TakeWriter::create(path(), Mono, {});
        {
            const SmallFiles disk(30000);
            writeInBlocks(*writer, std::span(sound).first(6 * 44100));
            QVERIFY(writer->isDiskFailing());
        }

        writeInBlocks(*writer, std::span(sound).subspan(6 * 44100));
        QVERIFY(writer->finish());

        QVERIFY(correlation(sound, DecodedAudio::read(name())->channel(0)) > 0.98);
        QVERIFY(std::abs(DecodedAudio::read(name())->seconds() - 9) < 0.05);
    }

    void aDiskThatStaysFullIsNotWaitedForInMemoryWithoutEnd()
    {
        const auto sound = tune(44100, 10);
        const auto writer = TakeWriter::create(path(), Mono, {});
        const SmallFiles disk(30000);

        int taken = 0;
        while (taken < 60 && writer->write(sound))
            ++taken;

        QVERIFY(taken > 1 && taken < 60);
    }

    void withoutRoomForTheIndexedFormTheFragmentedOneStays()
    {
        // A folder where the copy is to be written: no file can be made there.
        QDir(m_folder->path()).mkdir(QStringLiteral(".take.m4a.indexed"));
        const auto sound = tune(44100, 3);
        const auto writer = TakeWriter::create(path(), Mono, {});

        writeInBlocks(*writer, sound);
        QVERIFY(writer->finish());

        QVERIFY(MovieFacts::read(name())->isFragmented);
        QVERIFY(correlation(sound, DecodedAudio::read(name())->channel(0)) > 0.98);
    }

    void whereNothingCanBeWrittenThereIsNoWriter()
    {
        QVERIFY(!TakeWriter::create(path() + "/missing/take.m4a", Mono, {}));
        QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::ExeOwner);
        const OrdinaryUser user;

        QVERIFY(!TakeWriter::create(path(), Mono, {}));
    }

    void whatTheEncoderRefusesLeavesNoFile()
    {
        QVERIFY(!TakeWriter::create(path(), Mono, {.sampleRate = 44000}));

        QVERIFY(!QFile::exists(name()));
    }

    void nothingIsSaidOnStderr()
    {
        const StderrCatcher catcher;
        auto writer = TakeWriter::create(path(), Mono, {});
        {
            const SmallFiles disk(20000);
            writeInBlocks(*writer, tune(44100, 5));
        }
        writer.reset();
        TakeWriter::create(path(), Mono, {.sampleRate = 44000});

        QCOMPARE(catcher.caught(), QByteArray());
    }

private:
    void prepare() override
    {
        FolderCase::prepare();
        m_name = QStringLiteral("take.m4a");
    }
    void finish() override
    {
        QFile::setPermissions(m_folder->path(),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        FolderCase::finish();
    }

    static std::vector<float> onAllChannels(const std::vector<float> &sound, int channels)
    {
        std::vector<float> all;
        for (const float sample : sound)
            all.insert(all.end(), static_cast<std::size_t>(channels), sample);
        return all;
    }
    // As a server gives them: in blocks that fit no frame of the encoder.
    static void writeInBlocks(TakeWriter &writer, std::span<const float> sound)
    {
        for (std::size_t at = 0; at < sound.size(); at += 1764)
            writer.write(sound.subspan(at, std::min<std::size_t>(1764, sound.size() - at)));
    }

    QString name() const { return m_folder->filePath(m_name); }
    std::string path() const { return QFile::encodeName(name()).toStdString(); }
    QStringList others() const
    {
        auto names = QDir(m_folder->path())
                         .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        names.removeAll(m_name);
        return names;
    }

    QString m_name;
};

QTEST_GUILESS_MAIN(TakeWriterTest)
#include "TakeWriterTest.moc"

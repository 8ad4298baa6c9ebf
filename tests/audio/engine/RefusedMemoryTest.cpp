#include "audio/engine/DecodedSource.h"
#include "audio/engine/LittleMemory.h"
#include "audio/engine/Recordings.h"
#include "audio/engine/SoundAhead.h"
#include "audio/engine/Take.h"
#include "support/DecodedAudio.h"
#include "support/TestCase.h"
#include "support/TestSound.h"

#include <QDir>

using namespace tarvelo::engine;
using namespace tarvelo::tests;

constexpr PcmFormat Mono{44100, 1};

// Machines refuse memory and threads in the middle of a lecture. What was recorded until then stays
// and plays, and nothing half-made is left behind.
class RefusedMemoryTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aTakeBeginsWholeOrNotAtAll()
    {
        int refused = 0;
        for (const std::size_t largest : everySize()) {
            std::unique_ptr<TakeWriter> writer;
            {
                const LittleMemory memory(largest);
                writer = TakeWriter::create(path(), Mono, {});
            }

            QCOMPARE(QFile::exists(name()), writer != nullptr);
            refused += writer ? 0 : 1;
            QVERIFY(!writer || (writer->write(m_sound) && writer->finish()));
            QVERIFY(!writer || secondsPlaying() > 0.95);
            QFile::remove(name());
        }

        QVERIFY(refused > 0);
    }

    void whatWasRecordedBeforeMemoryRanOutPlays()
    {
        for (const std::size_t largest : everySize()) {
            const auto writer = TakeWriter::create(path(), Mono, {});
            QVERIFY(writer->write(m_sound));
            {
                const LittleMemory memory(largest);
                writer->write(m_sound);
            }
            writer->finish();

            QVERIFY2(secondsPlaying() > 0.45, qPrintable(QString::number(largest)));
        }
    }

    void aTakeWithoutTheMemoryToBeFinishedPlays()
    {
        for (const std::size_t largest : everySize()) {
            const auto writer = TakeWriter::create(path(), Mono, {});
            QVERIFY(writer->write(m_sound));
            {
                const LittleMemory memory(largest);
                writer->finish();
            }

            QVERIFY2(secondsPlaying() > 0.45, qPrintable(QString::number(largest)));
            QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
        }
    }

    void soundThatCannotBeHeldIsNotPlayedOrEndsEarly()
    {
        const QByteArray recording = recordingOf(m_sound);
        QVERIFY(DecodedSource::open(recording)); // sets the program's own bound, once
        std::vector<float> heard(m_sound.size() * 4);
        int refused = 0;
        for (const std::size_t largest : everySize()) {
            const LittleMemory memory(largest);

            const auto source = DecodedSource::open(recording);

            refused += source ? 0 : 1;
            QVERIFY(!source || source->read(heard) <= 44100 + 1024);
        }

        QVERIFY(refused > 0);
    }

    void whatIsHeardGoesOnWhenMemoryIsThereAgain()
    {
        const QByteArray recording = recordingOf(m_sound);
        std::vector<float> heard(44100);
        for (const std::size_t largest : everySize()) {
            const auto source = DecodedSource::open(recording);
            {
                const LittleMemory memory(largest);
                source->read(heard);
                source->seek(22050);
                source->read(heard);
            }

            source->seek(11025);
            QVERIFY(source->read(std::span(heard).first(8820)) > 0);
        }
    }

    void withoutAThreadThereIsNoTakeAndNoFile()
    {
        const NoMoreThreads none;

        QVERIFY(!Take::start(path(), Mono, {}));

        QVERIFY(!QFile::exists(name()));
    }

    void withoutAThreadNothingIsPlayed()
    {
        SoundAhead ahead(DecodedSource::open(recordingOf(m_sound)));
        {
            const NoMoreThreads none;

            QVERIFY(!ahead.start(0, 1));
        }

        QVERIFY(ahead.start(0, 1));
    }

private:
    // From nothing at all to more than anything here asks for at once.
    static std::vector<std::size_t> everySize()
    {
        std::vector<std::size_t> sizes;
        for (std::size_t size = 1; size < (std::size_t{1} << 22); size += 1 + size / 2)
            sizes.push_back(size);
        return sizes;
    }
    QString name() const { return m_folder.filePath(QStringLiteral("take.m4a")); }
    std::string path() const { return QFile::encodeName(name()).toStdString(); }
    double secondsPlaying() const
    {
        const auto heard = DecodedAudio::read(name());
        return heard ? heard->seconds() : 0;
    }

    const QTemporaryDir m_folder;
    const std::vector<float> m_sound = tune(44100, 1);
};

QTEST_GUILESS_MAIN(RefusedMemoryTest)
#include "RefusedMemoryTest.moc"

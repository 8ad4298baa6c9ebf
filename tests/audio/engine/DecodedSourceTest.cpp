#include "audio/engine/DecodedSource.h"
#include "audio/engine/Recordings.h"
#include "support/TestCase.h"
#include "support/TestSound.h"

#include <random>

using namespace tarvelo::engine;
using namespace tarvelo::tests;

class DecodedSourceTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aRecordingIsHeardFromItsFirstSampleToItsLast_data()
    {
        QTest::addColumn<bool>("isCutOff");
        QTest::newRow("stopped") << false;
        QTest::newRow("cut off") << true;
    }
    void aRecordingIsHeardFromItsFirstSampleToItsLast()
    {
        QFETCH(bool, isCutOff);
        const auto sound = tune(44100, 4.2);

        const auto source =
            DecodedSource::open(recordingOf(sound, isCutOff ? Ending::CutOff : Ending::Stopped));
        const auto heard = readAll(*source);

        QCOMPARE(source->format(), (PcmFormat{44100, 2}));
        QVERIFY(correlation(sound, heard) > 0.98);
        QVERIFY(correlation(std::span(sound).first(400), std::span(heard).first(400)) > 0.9);
        const double seconds = static_cast<double>(heard.size()) / 44100;
        QVERIFY2(std::abs(seconds - source->seconds()) < 0.001,
                 qPrintable(QString::number(seconds)));
        QVERIFY2(seconds > (isCutOff ? 3.6 : 4.199), qPrintable(QString::number(seconds)));
        QVERIFY2(seconds < 4.225, qPrintable(QString::number(seconds)));
    }

    void readingGoesOnAtTheSampleThatWasSought_data()
    {
        QTest::addColumn<bool>("isCutOff");
        QTest::newRow("stopped") << false;
        QTest::newRow("cut off") << true;
    }
    void readingGoesOnAtTheSampleThatWasSought()
    {
        QFETCH(bool, isCutOff);
        const auto source = DecodedSource::open(
            recordingOf(tune(44100, 4), isCutOff ? Ending::CutOff : Ending::Stopped));
        const auto all = readAll(*source);

        for (const std::int64_t place : {100000, 7, 44100, 0, 130001, 1024}) {
            source->seek(place);
            QCOMPARE(source->position(), place);
            std::vector<float> piece(2 * 8000);
            QCOMPARE(source->read(piece), 8000U);
            const auto there = std::span(all).subspan(static_cast<std::size_t>(place), 8000);
            QVERIFY2(correlation(there, left(piece)) > 0.9999, qPrintable(QString::number(place)));
        }
    }

    void nothingIsReadBehindTheEnd()
    {
        const auto source = DecodedSource::open(recordingOf(tune(44100, 1)));
        std::vector<float> piece(2 * 8000);

        source->seek(10 * 44100);
        QCOMPARE(source->read(piece), 0U);

        source->seek(0);
        QCOMPARE(source->read(piece), 8000U);
    }

    void otherFilesOfSoundAreReadToo_data()
    {
        QTest::addColumn<int>("rate");
        QTest::addColumn<int>("channels");
        QTest::newRow("mono 16000") << 16000 << 1;
        QTest::newRow("stereo 48000") << 48000 << 2;
        QTest::newRow("six channels") << 44100 << 6;
    }
    void otherFilesOfSoundAreReadToo()
    {
        QFETCH(int, rate);
        QFETCH(int, channels);
        const auto sound = tune(rate, 2);

        const auto source = DecodedSource::open(exactRecordingOf(sound, rate, channels));

        QVERIFY(source);
        QCOMPARE(source->format(), (PcmFormat{rate, std::min(channels, 2)}));
        QCOMPARE(source->seconds(), 2.0);
        QVERIFY(correlation(sound, readAll(*source)) > 0.99);
    }

    void whatIsNoSoundHasNoSource_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("one byte") << QByteArray("a");
        QTest::newRow("text") << QByteArray("A shopping list:\n- bread\n").repeated(1000);
        QTest::newRow("zeros") << QByteArray(10'000'000, '\0');
        QTest::newRow("a play list") << QByteArray("#EXTM3U\n#EXT-X-TARGETDURATION:1\n"
                                                   "#EXTINF:1,\nfile:///etc/passwd\n");
        QTest::newRow("a list of files") << QByteArray("ffconcat version 1.0\nfile /etc/passwd\n");
        QTest::newRow("a movie of nothing") << QByteArray("\0\0\0\x10"
                                                          "ftypisom\0\0\0\0",
                                                          16);
        QTest::newRow("a rate of a few sounds") << exactRecordingOf(tune(1000, 1), 1000, 1);
        QTest::newRow("a rate beyond all players")
            << exactRecordingOf(tune(384000, 0.1), 384000, 1);
        QTest::newRow("a tone of no length") << exactRecordingOf({}, 44100, 1);
    }
    void whatIsNoSoundHasNoSource()
    {
        QFETCH(QByteArray, bytes);

        QVERIFY(!DecodedSource::open(bytes));
    }

    void noiseHasNoSource()
    {
        std::mt19937 random(1);
        for (int size = 1; size < 3'000'000; size = size * 3 / 2 + 1) {
            QByteArray bytes(size, '\0');
            for (char &byte : bytes)
                byte = static_cast<char>(random());

            QVERIFY2(!DecodedSource::open(bytes), qPrintable(QString::number(size)));
        }
    }

    void aRecordingCutAnywherePlaysAsFarAsItGoes()
    {
        const auto sound = tune(44100, 3);
        const auto whole = recordingOf(sound, Ending::CutOff);
        double secondsBefore = 0;

        for (qsizetype size = 0; size <= whole.size(); size += 97) {
            const auto source = DecodedSource::open(whole.first(size));
            const double seconds = source ? source->seconds() : 0;
            QVERIFY2(seconds >= secondsBefore,
                     qPrintable(QStringLiteral("%1: %2").arg(size).arg(seconds)));
            secondsBefore = seconds;
            if (!source || size % 11 != 0)
                continue;
            const auto heard = readAll(*source);
            QVERIFY2(std::abs(static_cast<double>(heard.size()) / 44100 - seconds) < 0.025,
                     qPrintable(QString::number(size)));
            QVERIFY2(heard.size() < 5000 || correlation(sound, heard) > 0.95,
                     qPrintable(QString::number(size)));
        }
        QVERIFY(secondsBefore > 2.4);
    }

    void aRecordingWithSpoiltBytesDoesNoHarm()
    {
        const auto whole = recordingOf(tune(44100, 2));
        std::mt19937 random(1);
        for (int round = 0; round < 200; ++round) {
            QByteArray bytes = whole;
            for (int spoilt = 0; spoilt < 20; ++spoilt)
                bytes[static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()))] =
                    static_cast<char>(random());

            const auto source = DecodedSource::open(bytes);

            // The length that the bytes tell may be any; there is not more sound than that.
            std::vector<float> samples(44100 * 4);
            QVERIFY(!source || source->read(samples) <= samples.size());
        }
    }

    void theBytesAreSharedNotCopied()
    {
        const auto bytes = recordingOf(tune(44100, 1));
        const auto *before = bytes.constData();

        const auto source = DecodedSource::open(bytes);

        QVERIFY(source && !bytes.isDetached());
        QCOMPARE(bytes.constData(), before);
    }

    void aCancelledSourceComesToItsEnd()
    {
        const auto source = DecodedSource::open(recordingOf(tune(44100, 3)));

        source->cancel();

        QVERIFY(readAll(*source).size() < 44100);
    }

private:
    static std::vector<float> left(std::span<const float> samples, int channels = 2)
    {
        std::vector<float> one;
        for (std::size_t at = 0; at < samples.size(); at += static_cast<std::size_t>(channels))
            one.push_back(samples[at]);
        return one;
    }

    // The first channel.
    static std::vector<float> readAll(DecodedSource &source)
    {
        const auto channels = static_cast<std::size_t>(source.format().channels);
        std::vector<float> all;
        std::vector<float> block(3000 * channels);
        while (const std::size_t count = source.read(block)) {
            const auto one =
                left(std::span(block).first(count * channels), source.format().channels);
            all.insert(all.end(), one.begin(), one.end());
        }
        return all;
    }
};

QTEST_GUILESS_MAIN(DecodedSourceTest)
#include "DecodedSourceTest.moc"

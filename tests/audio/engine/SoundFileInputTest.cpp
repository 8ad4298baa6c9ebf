#include "audio/engine/Boxes.h"
#include "audio/engine/DecodedSource.h"
#include "audio/engine/Recordings.h"
#include "support/TestCase.h"
#include "support/TestSound.h"

#include <algorithm>
#include <random>
#include <set>

using namespace tarvelo::engine;
using namespace tarvelo::tests;

namespace {

constexpr int Rate = 44100;
constexpr double Frame = 1024.0 / Rate; // seconds in a packet of AAC

} // namespace

// A file that ends before its end: a full disk, a stick that was pulled out, a copy that broke off.
class SoundFileInputTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aGrowingTakeCutAnywherePlaysAsFarAsItGoes()
    {
        const auto whole = recordingOf(tune(Rate, 3.2), Ending::CutOff);
        const auto ends = packetEnds(whole);
        double before = 0;

        for (const qsizetype size : cutsOf(whole)) {
            const double seconds = playableSeconds(whole.first(size));
            const double expected = secondsBefore(ends, size);
            QVERIFY2(std::abs(seconds - expected) < Frame, described(size, seconds, expected));
            QVERIFY2(seconds >= before, described(size, seconds, before));
            before = seconds;
        }
        QVERIFY(before > 2.4);
    }

    // Its length is found without reading all of it.
    void aLongTakeCutAnywherePlaysAsFarAsItGoes()
    {
        const auto whole = recordingOf(tune(Rate, 16), Ending::CutOff);
        const auto ends = packetEnds(whole);
        const Box last = boxesOf(whole).back();

        for (qsizetype size = last.at - 3000; size <= whole.size(); size += 61) {
            const auto source = DecodedSource::open(whole.first(size));
            const double expected = secondsBefore(ends, size);
            QVERIFY2(source && std::abs(source->seconds() - expected) < Frame,
                     described(size, source ? source->seconds() : 0, expected));
        }
    }

    void anIndexedFileCutInItsSoundPlaysAsFarAsItGoes()
    {
        const auto whole = withIndexFirst(recordingOf(tune(Rate, 2)));
        const auto ends = packetEnds(whole);
        const qsizetype indexEnd = boxOf(whole, "moov").end();

        for (const qsizetype size : cutsOf(whole)) {
            const double seconds = playableSeconds(whole.first(size));
            const double expected = size < indexEnd ? 0 : secondsBefore(ends, size);
            QVERIFY2(std::abs(seconds - expected) < Frame, described(size, seconds, expected));
        }
    }

    void anIndexedFileWithoutItsIndexHasNothingToPlay()
    {
        const auto whole = recordingOf(tune(Rate, 0.5));
        const qsizetype soundEnd = boxOf(whole, "mdat").end();
        QCOMPARE(boxesOf(whole).back().type, QByteArray("moov"));

        // All of the sound, and not the table that says where its packets are.
        for (qsizetype size = 0; size < whole.lastIndexOf("stsz"); ++size)
            QVERIFY2(playableSeconds(whole.first(size)) == 0, described(size, 1, 0));

        QVERIFY(whole.lastIndexOf("stsz") > soundEnd);
    }

    void anIndexCutBehindItsTablesPlaysAllOrNothing()
    {
        const auto whole = recordingOf(tune(Rate, 0.5));

        for (qsizetype size = whole.lastIndexOf("stsz"); size <= whole.size(); ++size) {
            const double seconds = playableSeconds(whole.first(size));
            QVERIFY2(seconds == 0 || std::abs(seconds - 0.5) < Frame,
                     described(size, seconds, 0.5));
        }
    }

    void plainSamplesCutAnywherePlayToTheLastWhole()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("sound.wav")));
        QVERIFY(writeWav(file.fileName(), tune(Rate, 0.3), Rate) && file.open(QIODevice::ReadOnly));
        const QByteArray whole = file.readAll();
        constexpr qsizetype Head = 44;

        for (const qsizetype size : cutsOf(whole)) {
            const double seconds = playableSeconds(whole.first(size));
            const double expected =
                static_cast<double>(std::max<qsizetype>(size - Head, 0) / 2) / Rate;
            QVERIFY2(std::abs(seconds - expected) < 2.0 / Rate, described(size, seconds, expected));
        }
    }

    void afterTheSignatureOfAnythingNoiseIsNoSound_data()
    {
        QTest::addColumn<QByteArray>("head");
        QTest::newRow("MPEG-4") << QByteArray("\0\0\0\x18"
                                              "ftypM4A \0\0\0\0isomM4A ",
                                              24);
        QTest::newRow("index") << QByteArray("\0\0\x10\x18moov", 8);
        QTest::newRow("WAV") << QByteArray("RIFF\xff\xff\xff\x7fWAVE");
        QTest::newRow("AIFF") << QByteArray("FORM\x7f\xff\xff\xff"
                                            "AIFF");
        QTest::newRow("MP3") << QByteArray("\xff\xfb\x90\x64");
        QTest::newRow("MP3 with a title") << QByteArray("ID3\3\0\0\0\0\1\0", 10);
        QTest::newRow("AAC in a stream") << QByteArray("\xff\xf1\x50\x80");
        QTest::newRow("FLAC") << QByteArray("fLaC");
        QTest::newRow("Ogg") << QByteArray("OggS\0\2", 6);
        QTest::newRow("CAF") << QByteArray("caff\0\1\0\0", 8);
        QTest::newRow("PNG") << QByteArray("\x89PNG\r\n\x1a\n");
        QTest::newRow("PDF") << QByteArray("%PDF-1.7\n");
        QTest::newRow("SQLite") << QByteArray("SQLite format 3\0", 16);
        QTest::newRow("Matroska") << QByteArray("\x1a\x45\xdf\xa3");
        QTest::newRow("AVI") << QByteArray("RIFF\xff\xff\xff\x7f"
                                           "AVI LIST");
    }
    void afterTheSignatureOfAnythingNoiseIsNoSound()
    {
        QFETCH(QByteArray, head);
        std::mt19937 random(1);
        QByteArray noise(300'000, '\0');
        for (char &byte : noise)
            byte = static_cast<char>(random());

        QVERIFY(!DecodedSource::open(head + noise));
        QVERIFY(!DecodedSource::open(head + QByteArray(300'000, '\0')));
        QVERIFY(!DecodedSource::open(head));
    }

private:
    struct PacketEnd
    {
        std::int64_t byte;
        double second;
    };

    // Where in the file every packet ends, and how far the sound goes with it.
    static std::vector<PacketEnd> packetEnds(const QByteArray &bytes)
    {
        std::vector<PacketEnd> ends;
        const auto input = SoundFileInput::open(bytes);
        const PacketPointer packet(av_packet_alloc());
        for (; input->read(*packet); av_packet_unref(packet.get())) {
            const auto end = packet->pts + packet->duration - input->origin();
            ends.push_back({packet->pos + packet->size,
                            static_cast<double>(end) * av_q2d(input->track().time_base)});
        }
        return ends;
    }
    static double secondsBefore(const std::vector<PacketEnd> &ends, qsizetype size)
    {
        double seconds = 0;
        for (const PacketEnd &end : ends)
            if (end.byte <= size)
                seconds = std::max(seconds, end.second);
        return seconds;
    }

    // Every byte of the first kibibytes, all around the boxes and their contents' beginnings, and
    // anywhere.
    static std::set<qsizetype> cutsOf(const QByteArray &whole)
    {
        std::set<qsizetype> cuts;
        const auto add = [&](qsizetype at) {
            if (at >= 0 && at <= whole.size())
                cuts.insert(at);
        };
        for (qsizetype at = 0; at < 3072; ++at)
            add(at);
        for (const Box &box : boxesOf(whole))
            for (qsizetype off = -9; off < (box.type == "moof" ? box.size : 40); ++off)
                add(box.at + off);
        std::mt19937 random(1);
        for (int count = 0; count < 300; ++count)
            add(static_cast<qsizetype>(random() % static_cast<unsigned>(whole.size())));
        add(whole.size());
        return cuts;
    }

    // What the player says, provided that so much can be read; 0 without a player.
    static double playableSeconds(const QByteArray &bytes)
    {
        const auto source = DecodedSource::open(bytes);
        if (!source)
            return 0;
        std::vector<float> block(4096 * static_cast<std::size_t>(source->format().channels));
        while (source->read(block) > 0) {
        }
        const double read = static_cast<double>(source->position()) / source->format().rate;
        return std::abs(read - source->seconds()) < Frame ? source->seconds() : -1;
    }

    static const char *described(qsizetype size, double seconds, double expected)
    {
        static QByteArray text;
        text = QStringLiteral("%1 bytes: %2 s, not %3 s")
                   .arg(size)
                   .arg(seconds)
                   .arg(expected)
                   .toLatin1();
        return text.constData();
    }
};

QTEST_GUILESS_MAIN(SoundFileInputTest)
#include "SoundFileInputTest.moc"

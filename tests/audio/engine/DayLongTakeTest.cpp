#include "audio/engine/AacEncoder.h"
#include "audio/engine/DecodedSource.h"
#include "audio/engine/FragmentedFile.h"
#include "audio/engine/IndexedCopy.h"
#include "audio/engine/TakeCase.h"
#include "support/DecodedAudio.h"

#include <QFile>

#include <algorithm>
#include <cmath>

using namespace tarvelo::engine;
using namespace tarvelo::tests;

class DayLongTakeTest final : public TakeCase
{
    Q_OBJECT

private Q_SLOTS:
    // 32 bits count the samples of 27 hours, and in a table of them there is no room for more than
    // so many packets either. The build says how many hours it is; less than that where a sanitizer
    // looks on.
    void itIsWholeToTheLastSample()
    {
        constexpr std::int64_t Samples = TAKE_HOURS * 3600LL * 44100 + 123;
        writeSilence(44100);
        QVERIFY(DecodedSource::open(content())); // somebody listened to another one before
        const auto extent = writeSilence(Samples);

        QVERIFY(replaceWithIndexedCopy(file(), extent));

        QVERIFY(!MovieFacts::read(path())->isFragmented);
        const auto take = DecodedSource::open(content());
        QVERIFY(take);
        QCOMPARE(std::llround(take->seconds() * 44100), Samples);
        take->seek(Samples - 1000);
        std::vector<float> sound(2 * 44100);
        QCOMPARE(take->read(sound), 1000U);
    }

private:
    // One and the same packet, again and again.
    TakeExtent writeSilence(std::int64_t samples) const
    {
        const auto encoder = AacEncoder::create({});
        const PacketPointer silence(av_packet_alloc());
        const auto keep = [&](const AVPacket &packet) {
            av_packet_unref(silence.get());
            av_packet_ref(silence.get(), &packet);
        };
        for (int frame = 0; frame < 4; ++frame) {
            AVFrame *quiet = encoder->frame();
            av_samples_set_silence(quiet->extended_data, 0, encoder->frameLength(), 2,
                                   AV_SAMPLE_FMT_FLTP);
            encoder->encode(encoder->frameLength(), keep);
        }
        const auto take = FragmentedFile::create(OutputFile::create(file()), encoder->codec());
        for (std::int64_t at = -encoder->frameLength(); at < samples; at += silence->duration) {
            silence->pts = silence->dts = at;
            silence->duration = std::min<std::int64_t>(encoder->frameLength(), samples - at);
            take->add(*silence);
        }
        take->finish();
        return take->extentInFile();
    }
};

QTEST_GUILESS_MAIN(DayLongTakeTest)
#include "DayLongTakeTest.moc"

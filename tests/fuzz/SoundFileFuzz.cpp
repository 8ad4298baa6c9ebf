// What a player does with the bytes of a file, before anything of it is heard: opens it, reads from
// the beginning, from the middle, from behind the end, and from the beginning again. Any bytes may
// come; a promise of the source that does not hold ends the program. Called by the fuzzer with what
// it thinks up, and by CorpusTest with the files that are kept.

#include "fuzz/SoundFileFuzz.h"

#include "audio/engine/DecodedSource.h"

#include <cmath>
#include <cstdlib>

namespace {

constexpr std::size_t BlockFrames = 2048;
constexpr int Blocks = 12;

void promise(bool holds)
{
    if (!holds)
        std::abort();
}

void readSome(tarvelo::engine::DecodedSource &source)
{
    const auto channels = static_cast<std::size_t>(source.format().channels);
    std::vector<float> samples(BlockFrames * channels);
    for (int block = 0; block < Blocks; ++block) {
        const std::int64_t before = source.position();
        const std::size_t count = source.read(samples);
        promise(count <= BlockFrames);
        promise(source.position() == before + static_cast<std::int64_t>(count));
        for (std::size_t at = 0; at < count * channels; ++at)
            promise(std::abs(samples[at]) <= 4.0F);
        if (count < BlockFrames)
            return;
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto bytes =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto source = tarvelo::engine::DecodedSource::open(bytes);
    if (!source)
        return 0;
    const auto [rate, channels] = source->format();
    promise(rate >= 4000 && rate <= 192000);
    promise(channels == 1 || channels == 2);
    promise(source->seconds() > 0 && source->seconds() <= 1e7);
    readSome(*source);
    for (const double place : {0.5, 1.5, 0.0}) {
        source->seek(std::llround(source->seconds() * rate * place));
        readSome(*source);
    }
    return 0;
}

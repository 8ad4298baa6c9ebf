#include "audio/engine/SoundSignature.h"

#include "audio/engine/MovieOutline.h"

#include <algorithm>
#include <array>

namespace tarvelo::engine {

namespace {

struct Signature
{
    qsizetype at;
    QByteArrayView text;
    qsizetype alsoAt = 0;
    QByteArrayView also = {};
};

constexpr std::array<Signature, 7> Signatures{{
    {0, "RIFF", 8, "WAVE"},
    {0, "FORM", 8, "AIFF"},
    {0, "FORM", 8, "AIFC"},
    {0, "caff"},
    {0, "fLaC"},
    {0, "OggS"},
    {0, "ID3"}, // MP3 with a title
}};

// The beginning of a frame of MP3, or of AAC in a stream.
bool isFrame(QByteArrayView head)
{
    return head.size() >= 2 && static_cast<unsigned char>(head[0]) == 0xFF &&
           (static_cast<unsigned char>(head[1]) & 0xE0U) == 0xE0;
}

} // namespace

bool beginsLikeSound(QByteArrayView head)
{
    const auto has = [head](qsizetype at, QByteArrayView text) {
        return head.size() >= at + text.size() && head.sliced(at, text.size()) == text;
    };
    return beginsLikeMovie(head) || isFrame(head) ||
           std::ranges::any_of(Signatures, [&](const Signature &it) {
               return has(it.at, it.text) && has(it.alsoAt, it.also);
           });
}

} // namespace tarvelo::engine

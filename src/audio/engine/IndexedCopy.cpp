#include "audio/engine/IndexedCopy.h"

#include "audio/engine/ByteSource.h"
#include "audio/engine/Ffmpeg.h"
#include "audio/engine/MovieOutput.h"
#include "audio/engine/OutputFile.h"
#include "audio/engine/SoundFileInput.h"
#include "audio/engine/TakeExtent.h"
#include "platform/DurableFiles.h"

#include <QFile>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <unistd.h>

namespace tarvelo::engine {

namespace {

using Kind = SoundFileInput::Kind;

// What two ways of measuring may differ by: less than a packet, of which one may be missing.
constexpr double PartOfPacket = 0.5;

// FFmpeg's own way to a file asks the system for the size of it with each packet, which for a long
// lecture is half of all that keeping it costs.
std::unique_ptr<SoundFileInput> openTake(const std::string &path, SoundFileInput::Kind kind)
{
    return SoundFileInput::open(ByteSource::ofFile(QFile::decodeName(path.c_str())), kind);
}

// Hidden, and always the same for one take: what a crash left is written over, not gathered.
std::string siblingOf(const std::string &path)
{
    const auto slash = path.rfind('/');
    const auto nameAt = slash == std::string::npos ? 0 : slash + 1;
    return path.substr(0, nameAt) + "." + path.substr(nameAt) + ".indexed";
}

// How long a packet is, is known from where the next one begins: the reader is wrong about it where
// one fragment ends and the next begins. Gives what was copied.
std::optional<TakeExtent> copyPackets(SoundFileInput &input, MovieOutput &movie,
                                      const std::optional<TakeExtent> &extent)
{
    PacketPointer packet(av_packet_alloc());
    PacketPointer next(av_packet_alloc());
    if (!packet || !next || !input.read(*packet))
        return std::nullopt;
    TakeExtent copied;
    for (bool isLast = false; !isLast; std::swap(packet, next)) {
        isLast = !input.read(*next);
        const std::int64_t last = extent ? extent->samples - packet->pts : packet->duration;
        const std::int64_t length = isLast ? last : next->pts - packet->pts;
        packet->duration = std::clamp<std::int64_t>(length, 0, SamplesInPacket);
        copied = {copied.packets + 1, packet->pts + packet->duration};
        const bool isAdded = movie.add(*packet);
        av_packet_unref(packet.get());
        if (!isAdded)
            return std::nullopt;
    }
    return movie.finish() ? std::optional(copied) : std::nullopt;
}

std::optional<TakeExtent> writeCopy(const std::string &from, const std::string &to,
                                    const std::optional<TakeExtent> &extent)
{
    const auto input = openTake(from, extent ? Kind::Take : Kind::Strange);
    const auto file = input ? OutputFile::create(to) : nullptr;
    if (!file)
        return std::nullopt;
    const AVStream &track = input->track();
    const auto movie = MovieOutput::create(
        MovieOutput::Form::Indexed, *track.codecpar, track.time_base,
        [&file](std::int64_t offset, auto bytes) { return file->writeAt(offset, bytes); });
    const auto copied = movie ? copyPackets(*input, *movie, extent) : std::nullopt;
    const bool isAll = copied && !input->hasFailed() &&
                       copied->packets == extent.value_or(*copied).packets && file->sync();
    return isAll ? copied : std::nullopt;
}

// A writer that was refused memory does not always say so: then the index lacks something.
bool holds(const std::string &copy, const TakeExtent &extent)
{
    const auto input = openTake(copy, Kind::Take);
    if (!input)
        return false;
    const AVStream &track = input->track();
    return input->packetsIndexed() == extent.packets &&
           av_rescale_q(track.duration, track.time_base, {1, track.codecpar->sample_rate}) >=
               extent.samples;
}

// Where nobody knows how long a take is, a reader that was refused memory may have ended early.
bool isAsLong(const std::string &copy, const std::string &take)
{
    const auto copied = openTake(copy, Kind::Strange);
    const auto input = openTake(take, Kind::Strange);
    if (!copied || !input || copied->track().codecpar->sample_rate <= 0)
        return false;
    const double margin = PartOfPacket * SamplesInPacket / copied->track().codecpar->sample_rate;
    return copied->seconds() + margin >= input->seconds();
}

} // namespace

bool replaceWithIndexedCopy(const std::string &path, const std::optional<TakeExtent> &extent)
{
    const std::string sibling = siblingOf(path);
    const auto copied = writeCopy(path, sibling, extent);
    if (copied && holds(sibling, *copied) && (extent || isAsLong(sibling, path)) &&
        platform::renameDurably(QFile::decodeName(sibling.c_str()),
                                QFile::decodeName(path.c_str())))
        return true;
    ::unlink(sibling.c_str());
    return false;
}

} // namespace tarvelo::engine

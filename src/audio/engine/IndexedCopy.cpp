#include "audio/engine/IndexedCopy.h"

#include "audio/engine/MovieOutput.h"
#include "audio/engine/OutputFile.h"
#include "platform/DurableFiles.h"

#include <QFile>

#include <algorithm>
#include <unistd.h>

namespace tarvelo::engine {

namespace {

constexpr std::int64_t SamplesInPacket = 1024; // in all of AAC's low complexity profile

struct InputCloser
{
    void operator()(AVFormatContext *input) const { avformat_close_input(&input); }
};
using InputPointer = std::unique_ptr<AVFormatContext, InputCloser>;

// Hidden, and always the same for one take: what a crash left is written over, not gathered.
std::string siblingOf(const std::string &path)
{
    const auto slash = path.rfind('/');
    const auto nameAt = slash == std::string::npos ? 0 : slash + 1;
    return path.substr(0, nameAt) + "." + path.substr(nameAt) + ".indexed";
}

InputPointer openTake(const std::string &path)
{
    AVFormatContext *input = nullptr;
    // The prefix keeps a colon in the name from being taken for a protocol's.
    if (avformat_open_input(&input, ("file:" + path).c_str(), nullptr, nullptr) < 0)
        return nullptr;
    return InputPointer(input);
}

bool copySound(AVFormatContext &input, OutputFile &file, const TakeExtent &extent)
{
    if (input.nb_streams != 1)
        return false;
    const AVStream &track = *input.streams[0];
    const auto movie = MovieOutput::create(
        MovieOutput::Form::Indexed, *track.codecpar, track.time_base,
        [&file](std::int64_t offset, auto bytes) { return file.writeAt(offset, bytes); });
    PacketPointer packet(av_packet_alloc());
    if (!movie || !packet)
        return false;
    std::int64_t packets = 0;
    for (; av_read_frame(&input, packet.get()) >= 0; ++packets) {
        // The reader is wrong about lengths where one fragment ends and the next begins.
        packet->duration =
            std::clamp<std::int64_t>(extent.samples - packet->pts, 0, SamplesInPacket);
        const bool added = movie->add(*packet);
        av_packet_unref(packet.get());
        if (!added)
            return false;
    }
    return packets == extent.packets && movie->finish();
}

bool writeCopy(const std::string &from, const std::string &to, const TakeExtent &extent)
{
    const InputPointer input = openTake(from);
    const auto file = input ? OutputFile::create(to) : nullptr;
    return file && copySound(*input, *file, extent) && file->sync();
}

} // namespace

bool replaceWithIndexedCopy(const std::string &path, const TakeExtent &extent)
{
    keepFfmpegQuiet();
    const std::string sibling = siblingOf(path);
    if (writeCopy(path, sibling, extent) &&
        platform::renameDurably(QFile::decodeName(sibling.c_str()),
                                QFile::decodeName(path.c_str())))
        return true;
    ::unlink(sibling.c_str());
    return false;
}

} // namespace tarvelo::engine

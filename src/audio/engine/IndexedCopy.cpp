#include "audio/engine/IndexedCopy.h"

#include "audio/engine/MovieOutput.h"
#include "audio/engine/OutputFile.h"

#include <cstdio>
#include <unistd.h>

namespace tarvelo::engine {

namespace {

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

bool copySound(AVFormatContext &input, OutputFile &file, std::int64_t packets)
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
    for (; av_read_frame(&input, packet.get()) >= 0; --packets) {
        const bool added = movie->add(*packet);
        av_packet_unref(packet.get());
        if (!added)
            return false;
    }
    return packets == 0 && movie->finish();
}

bool writeCopy(const std::string &from, const std::string &to, std::int64_t packets)
{
    const InputPointer input = openTake(from);
    const auto file = input ? OutputFile::create(to) : nullptr;
    return file && copySound(*input, *file, packets) && file->sync();
}

} // namespace

bool replaceWithIndexedCopy(const std::string &path, std::int64_t packets)
{
    keepFfmpegQuiet();
    const std::string sibling = siblingOf(path);
    if (!writeCopy(path, sibling, packets) || std::rename(sibling.c_str(), path.c_str()) != 0) {
        ::unlink(sibling.c_str());
        return false;
    }
    syncFolderOf(path);
    return true;
}

} // namespace tarvelo::engine

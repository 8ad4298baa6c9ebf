// How long does it take to keep what a killed program left of a lecture of three hours (or as many
// as are given), beside a plain copy of the file that is forced to the disk as well?

#include "audio/engine/AacEncoder.h"
#include "audio/engine/FragmentedFile.h"
#include "audio/engine/LeftTake.h"
#include "support/TestSound.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>
#include <vector>

using namespace tarvelo;
using namespace tarvelo::engine;

namespace {

constexpr int Rate = 44100;
constexpr double MostSeconds = 2;

std::vector<PacketPointer> encodeMinute(AacEncoder &encoder)
{
    const auto sound = tests::tune(Rate, 60);
    std::vector<PacketPointer> packets;
    const auto keep = [&](const AVPacket &packet) {
        packets.emplace_back(av_packet_clone(&packet));
    };
    const auto length = static_cast<std::size_t>(encoder.frameLength());
    for (std::size_t at = 0; at + length <= sound.size(); at += length) {
        for (int channel = 0; channel < 2; ++channel)
            std::copy_n(sound.data() + at, length,
                        reinterpret_cast<float *>(encoder.frame()->extended_data[channel]));
        encoder.encode(encoder.frameLength(), keep);
    }
    return packets;
}

// One and the same minute again and again, and no end.
void writeLeftTake(const std::string &path, double hours)
{
    const auto encoder = AacEncoder::create({});
    const auto minute = encodeMinute(*encoder);
    const auto take = FragmentedFile::create(OutputFile::create(path), encoder->codec());
    const auto samples = static_cast<std::int64_t>(hours * 3600 * Rate);
    std::int64_t at = -encoder->frameLength();
    for (std::size_t number = 0; at < samples; ++number) {
        AVPacket &packet = *minute[number % minute.size()];
        packet.pts = packet.dts = at;
        packet.duration = encoder->frameLength();
        take->add(packet);
        at += packet.duration;
    }
}

bool copyToDisk(const QString &from, const QString &to)
{
    QFile copy(to);
    return QFile::copy(from, to) && copy.open(QIODevice::ReadWrite) &&
           ::fdatasync(copy.handle()) == 0;
}

template <typename Work>
double secondsOf(Work work)
{
    const auto began = std::chrono::steady_clock::now();
    if (!work())
        return -1;
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
}

} // namespace

int main(int argc, char **argv)
{
    const double hours = argc > 1 ? std::atof(argv[1]) : 3;
    const QTemporaryDir folder;
    const QString take = folder.filePath(QStringLiteral("take.m4a"));
    writeLeftTake(take.toStdString(), hours);
    const double heard = secondsOf([&] { return secondsOfLeftTake(take) > hours * 3600 - 1; });
    const double copied =
        secondsOf([&] { return copyToDisk(take, folder.filePath(QStringLiteral("copy.m4a"))); });
    const double kept = secondsOf([&] { return finishLeftTake(take); });
    std::printf("a take of %-24.1f %10s\n", hours, "seconds");
    std::printf("%-34s %10.2f\n", "its length is found", heard);
    std::printf("%-34s %10.2f   (at most %.2f wanted)\n", "it is kept", kept, MostSeconds);
    std::printf("%-34s %10.2f\n", "it is copied", copied);
    return heard >= 0 && copied >= 0 && kept >= 0 && kept <= MostSeconds ? 0 : 1;
}

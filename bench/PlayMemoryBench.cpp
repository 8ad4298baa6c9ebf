// How much memory does a player hold with a lecture of three hours, which it has in memory as a
// whole? Beside one with a minute, and beside `ffplay`, which reads the file as it goes.

#include "Lecture.h"
#include "Playing.h"

#include <QFileInfo>
#include <QThread>

using namespace tarvelo;

namespace {

constexpr int SettlingSeconds = 5; // until as much sound is ready as ever
constexpr double MostBesides = 60; // MiB

struct Memory
{
    double now = -1;
    double most = -1;
};

Memory memoryOf(const QStringList &command)
{
    const bench::Playing playing(command);
    if (!playing.isHeard())
        return {};
    QThread::sleep(SettlingSeconds);
    return {playing.mebibytes("VmRSS"), playing.mebibytes("VmHWM")};
}

bool compare(const QString &folder)
{
    std::printf("%-24s %8s %10s %10s %10s\n", "memory while playing", "lecture", "file MiB",
                "now MiB", "most MiB");
    bool isAsWanted = true;
    for (const int minutes : {1, 180}) {
        const QString file = bench::lectureOf(minutes, folder);
        const double size = static_cast<double>(QFileInfo(file).size()) / (1 << 20);
        const auto print = [&](const char *what, const Memory &memory) {
            std::printf("%-24s %4d min %10.1f %10.1f %10.1f\n", what, minutes, size, memory.now,
                        memory.most);
        };
        const Memory ours = memoryOf(bench::ourPlayer(file, 0.2));
        print("a player, rate 0.2", ours);
        print("ffplay", memoryOf(bench::ffplay(file)));
        isAsWanted = isAsWanted && ours.now > 0 && ours.now <= size + MostBesides;
    }
    std::printf("(at most the file and %.0f MiB wanted)\n", MostBesides);
    return isAsWanted;
}

} // namespace

int main(int argc, char **argv)
{
    return bench::comparePlayers(argc, argv, compare);
}

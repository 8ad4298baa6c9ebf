// How long does it take from the click to the first sound, for a minute and for three hours? From
// the reading of the file to the first sample that leaves the speaker of a private sound server;
// beside `ffplay`, which is started for every file, as is our own player in a second row.

#include "Lecture.h"
#include "Playing.h"

#include <QThread>

#include <algorithm>
#include <functional>
#include <optional>

using namespace tarvelo;

namespace {

constexpr int Rounds = 7;
constexpr double Most = 0.1;

// In seconds. The best is that of a machine with nothing else to do.
struct Times
{
    double best = -1;
    double median = -1;
};

// Nothing when it is not heard.
std::optional<Times> timesOf(const QStringList &command,
                             const std::function<double(bench::Playing &)> &measure)
{
    std::vector<double> times;
    for (int round = 0; round < Rounds; ++round) {
        bench::Playing playing(command);
        if (!playing.isHeard())
            return std::nullopt;
        times.push_back(measure(playing));
        QThread::msleep(20);
    }
    std::ranges::sort(times);
    return Times{times.front(), times[Rounds / 2]};
}

std::optional<Times> fromStart(const QStringList &command)
{
    return timesOf(command, [](bench::Playing &it) { return it.secondsFromStart(); });
}

void print(const char *what, int minutes, std::optional<Times> seconds)
{
    const Times times = seconds.value_or(Times());
    std::printf("%-40s %4d min %10.0f %10.0f\n", what, minutes, times.best * 1000,
                times.median * 1000);
}

bool compare(const QString &folder)
{
    std::printf("%-40s %8s %10s %10s\n", "to the first sound, of 7", "lecture", "best, ms",
                "median, ms");
    bool isAsWanted = true;
    for (const int minutes : {1, 180}) {
        const QString file = bench::lectureOf(minutes, folder);
        const QStringList ours = bench::ourPlayer(file);
        const auto clicked =
            timesOf(ours, [](bench::Playing &it) { return it.secondsFromClick(); });
        print("from the click in the program", minutes, clicked);
        print("from the start of our player's process", minutes, fromStart(ours));
        print("from the start of ffplay", minutes, fromStart(bench::ffplay(file)));
        isAsWanted = isAsWanted && clicked && clicked->best <= Most;
    }
    std::printf("(at most %.0f ms wanted from the click)\n", Most * 1000);
    return isAsWanted;
}

} // namespace

int main(int argc, char **argv)
{
    return bench::comparePlayers(argc, argv, compare);
}

// How much processor time does playing take, at each of the rates, when it has run for some time?
// Beside `ffplay`, which slows down with the same library's older and coarser engine. The time of
// the sound server is nobody's.

#include "Lecture.h"
#include "Playing.h"

#include <QThread>

using namespace tarvelo;

namespace {

constexpr int SettlingSeconds = 6; // until as much sound is ready as ever
constexpr int Seconds = 15;
constexpr double Most = 15; // percent of a core

double percentOfACore(const QStringList &command)
{
    const bench::Playing playing(command);
    if (!playing.isHeard())
        return -1;
    QThread::sleep(SettlingSeconds);
    const double timeBefore = bench::now();
    const double before = playing.processorSeconds();
    QThread::sleep(Seconds);
    const double spent = playing.processorSeconds() - before;
    return 100 * spent / (bench::now() - timeBefore);
}

QStringList ffplay(const QString &file, double rate)
{
    QStringList slowing;
    if (rate != 1)
        slowing = {QStringLiteral("-af"), QStringLiteral("rubberband=tempo=%1").arg(rate)};
    return bench::ffplay(file, slowing);
}

bool compare(const QString &folder)
{
    const QString file = bench::lectureOf(5, folder);
    std::printf("%-10s %18s %18s\n", "rate", "a player, % of a core", "ffplay, %");
    bool isAsWanted = true;
    for (const double rate : {1.0, 0.5, 1.0 / 3, 0.25, 0.2}) {
        const double ours = percentOfACore(bench::ourPlayer(file, rate));
        std::printf("%-10.3f %18.2f %18.2f\n", rate, ours, percentOfACore(ffplay(file, rate)));
        std::fflush(stdout);
        isAsWanted = isAsWanted && ours >= 0 && ours < Most;
    }
    std::printf("(below %.0f %% wanted)\n", Most);
    return isAsWanted;
}

} // namespace

int main(int argc, char **argv)
{
    return bench::comparePlayers(argc, argv, compare);
}

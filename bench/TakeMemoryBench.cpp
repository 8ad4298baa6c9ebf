// Does memory grow with a take? Eight hours (or as many as are given) are written as fast as the
// machine can; what the process holds after one minute of sound is laid beside what it holds at the
// end.

#include "audio/engine/PcmFormat.h"
#include "audio/engine/TakeWriter.h"
#include "support/ResidentMemory.h"
#include "support/TestSound.h"

#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

using namespace tarvelo;

int main(int argc, char **argv)
{
    const double hours = argc > 1 ? std::atof(argv[1]) : 8;
    const QTemporaryDir folder;
    const auto minute = tests::tune(44100, 60);
    const auto writer = engine::TakeWriter::create(
        folder.filePath(QStringLiteral("take.m4a")).toStdString(), {44100, 1}, {});
    double first = 0;
    for (int minutes = 0; minutes < hours * 60; ++minutes) {
        for (std::size_t at = 0; at < minute.size(); at += 2205)
            if (!writer->write(std::span(minute).subspan(at, 2205)))
                return 2;
        if (minutes == 0)
            first = tests::residentMebibytes();
    }
    const double last = tests::residentMebibytes();
    std::printf("%-34s %10s\n", "memory of a take in the making", "MiB");
    std::printf("%-34s %10.2f\n", "after one minute", first);
    std::printf("after %-4.1f hours %30.2f\n", hours, last);
    std::printf("%-34s %10.2f   (at most 4.00 wanted)\n", "growth", last - first);
    std::fflush(stdout);
    const bool completed = writer->finish();
    return completed && last - first <= 4 ? 0 : 1;
}

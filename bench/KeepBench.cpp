// How long does it take to keep what a killed program left of a lecture of three hours (or as many
// as are given), with everything from the click to the stored row, for which the windows wait? And
// how long a plain copy of the file that is forced to the disk as well?

#include "audio/AudioFileLocations.h"
#include "audio/LeftLectures.h"
#include "audio/engine/AacEncoder.h"
#include "audio/engine/FragmentedFile.h"
#include "platform/Clock.h"
#include "platform/Dates.h"
#include "platform/UserDefaults.h"
#include "store/LectureDatabase.h"
#include "store/LectureJournal.h"
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
using audio::LeftLectures;

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

void writeJournal(const QString &folder)
{
    QFile journal(folder + QStringLiteral("/lecture.journal"));
    if (journal.open(QIODevice::WriteOnly))
        journal.write(store::toBytes({.id = QStringLiteral("20240304T080000000"),
                                      .subject = QStringLiteral("wave optics"),
                                      .notes = QStringLiteral("Huygens"),
                                      .day = QStringLiteral("2024-03-04"),
                                      .date = QStringLiteral("2024-03-04"),
                                      .take = QStringLiteral("tempAudioFile.m4a")}));
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

// A home in which a program was killed that recorded a new lecture.
class Home final
{
public:
    explicit Home(double hours)
    {
        m_defaults.setValue(QStringLiteral("fileFormat"), 1);
        m_locations.createFolders();
        m_locations.setTempAudioSavePathWithFormat();
        writeLeftTake(m_locations.tempAudioSavePath().toStdString(), hours);
        writeJournal(m_locations.temporaryFolder());
        m_lectures.setAside(m_locations.temporaryFolder());
    }

    QString folder() const { return m_folder.path(); }
    QList<LeftLectures::LeftLecture> undecided() const { return m_lectures.undecided(); }
    bool keep(const LeftLectures::LeftLecture &left)
    {
        return m_lectures.keep(left) == LeftLectures::Kept::Stored;
    }

private:
    QTemporaryDir m_folder;
    platform::SystemClock m_clock;
    platform::Places m_places{m_folder.path(), QStringLiteral("Tarvelo")};
    platform::Dates m_dates{m_clock, {"en_US", QStringLiteral("UTC")}};
    platform::UserDefaults m_defaults{m_folder.filePath(QStringLiteral("Tarvelo.conf"))};
    store::LectureDatabase m_database{m_places, m_clock};
    audio::AudioFileLocations m_locations{m_places, m_defaults, m_dates};
    LeftLectures m_lectures{m_locations, m_dates, m_database};
};

} // namespace

int main(int argc, char **argv)
{
    const double hours = argc > 1 ? std::atof(argv[1]) : 3;
    Home home(hours);
    QList<LeftLectures::LeftLecture> left;
    const double heard = secondsOf([&] {
        left = home.undecided();
        return left.size() == 1 && left.first().seconds > hours * 3600 - 1;
    });
    if (heard < 0)
        return 1;
    const double copied = secondsOf([&] {
        return copyToDisk(left.first().takePath, home.folder() + QStringLiteral("/copy.m4a"));
    });
    const double kept = secondsOf([&] { return home.keep(left.first()); });
    std::printf("a take of %-24.1f %10s\n", hours, "seconds");
    std::printf("%-34s %10.2f\n", "its length is found", heard);
    std::printf("%-34s %10.2f   (at most %.2f wanted)\n", "it is kept and its row stored", kept,
                MostSeconds);
    std::printf("%-34s %10.2f\n", "it is copied", copied);
    return copied >= 0 && kept >= 0 && kept <= MostSeconds ? 0 : 1;
}

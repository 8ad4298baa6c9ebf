#include "audio/engine/AacEncoder.h"
#include "audio/engine/FragmentedFile.h"
#include "audio/engine/PcmFormat.h"
#include "audio/engine/TakeWriter.h"
#include "store/FullDisk.h"
#include "support/DecodedAudio.h"
#include "support/FolderCase.h"
#include "support/TestSound.h"

#include <QDir>

#include <vector>

using namespace Qt::StringLiterals;
using namespace tarvelo::engine;
using namespace tarvelo::tests;

namespace {

constexpr int Rate = 44100;
constexpr int Kibibyte = 1024;
// As many bits as the coder can make of a sound, so that the disk is soon full.
const RecorderSettings ManyBits{.bitRate = 320000};

// Noise as it comes from the coder: large packets, which can be added again and again.
std::vector<PacketPointer> packetsOfNoise()
{
    std::vector<PacketPointer> packets;
    const auto encoder = AacEncoder::create(ManyBits);
    for (int frame = 0; frame < 40; ++frame) {
        AVFrame *const sound = encoder->frame();
        for (int channel = 0; channel < 2; ++channel) {
            auto *samples = reinterpret_cast<float *>(sound->data[channel]);
            for (int sample = 0; sample < encoder->frameLength(); ++sample)
                samples[sample] = static_cast<float>(std::rand() % 2000 - 1000) / 1100;
        }
        encoder->encode(encoder->frameLength(), [&packets](const AVPacket &packet) {
            packets.emplace_back(av_packet_clone(&packet));
        });
    }
    return packets;
}

} // namespace

// Real disks, of which there is too little.
class FullDiskRecordingTest final : public FolderCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_packets = packetsOfNoise();
        m_first = m_packets.front()->pts;
    }

    void onADiskOfAnySizeAllThatCountsIsInTheFile_data()
    {
        QTest::addColumn<int>("kibibytes");
        QTest::addRow("nothing") << 0;
        for (int size = 128; size <= 4096; size += 248)
            QTest::addRow("%d KiB", size) << size;
    }
    void onADiskOfAnySizeAllThatCountsIsInTheFile()
    {
        QFETCH(const int, kibibytes);
        SmallDisk disk(m_folder->path(), std::max(kibibytes, 4));
        if (kibibytes == 0 || !disk.isMounted())
            disk.fill();
        const auto take = newTake();
        QVERIFY(take);

        const double added = addUntilFull(*take);
        const double safe = std::min(take->secondsSafe(), added);
        const bool isComplete = take->finish();

        QVERIFY2(take->secondsInFile() >= safe, qPrintable(QString::number(safe)));
        QCOMPARE(isComplete, take->secondsInFile() == added);
        QVERIFY(!disk.isMounted() || isComplete || kibibytes < 3800);
        QVERIFY(filesBesides().isEmpty());
        const auto heard = DecodedAudio::read(name());
        const double seconds = heard ? heard->seconds() : 0;
        QVERIFY2(std::abs(seconds - take->secondsInFile()) < 0.05,
                 qPrintable(u"%1 of %2"_s.arg(seconds).arg(take->secondsInFile())));
    }

    void theTimeThatCountsNeverStepsBackAndIsInTheFile()
    {
        const SmallDisk disk(m_folder->path(), 4096);
        const auto noise = noiseOf(1);
        const auto writer = TakeWriter::create(path(), {Rate, 2}, ManyBits);

        double counted = 0;
        int taken = 0;
        while (taken < 200 && writer->write(noise)) {
            const double now = std::min<double>(writer->secondsSafe(), ++taken);
            QVERIFY(now >= counted);
            counted = now;
        }
        const bool isComplete = writer->finish();

        QCOMPARE(taken < 200, disk.isMounted());
        QVERIFY(isComplete);
        QVERIFY(counted >= taken - 1);
        QVERIFY(std::abs(DecodedAudio::read(name())->seconds() - taken) < 0.05);
    }

    void theDiskOfAFinishedTakeHasRoomForItsLecture()
    {
        SmallDisk disk(m_folder->path(), 16 * Kibibyte);
        const auto take = newTake();
        disk.fill();

        const double added = addUntilFull(*take);
        const bool isComplete = take->finish();

        if (disk.isMounted()) {
            QVERIFY(isComplete);
            QCOMPARE(take->secondsInFile(), added);
            QFile row(m_folder->filePath(u"row"_s));
            QVERIFY(row.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
            QCOMPARE(row.write(QByteArray(500 * Kibibyte, 'r')), 500 * Kibibyte);
        }
    }

    // So that who kills it then takes no more of it than at any other time.
    void onADiskThatFillsUpTheSoundGoesOnIntoTheFile()
    {
        SmallDisk disk(m_folder->path(), 16 * Kibibyte);
        const auto take = newTake();
        disk.fill();
        if (!disk.isMounted())
            return;

        for (int second = 1; second <= 20; ++second) {
            const double added = addUntil(*take, second);
            QVERIFY(!take->isDiskFailing());
            QVERIFY(added - take->secondsInFile() <= FragmentedFile::FragmentSeconds);
        }
        const auto heard = DecodedAudio::read(name());

        QVERIFY(heard && std::abs(heard->seconds() - take->secondsInFile()) < 0.05);
    }

    void whatIsNotHadOfTheReserveIsAskedForOnce()
    {
        SmallDisk disk(m_folder->path(), 16 * Kibibyte);
        const auto take = newTake();
        const qint64 held = QFileInfo(reserve()).size();
        disk.fill();

        // Somebody takes all that becomes free, before the sound does.
        for (int second = 1; second <= 10; ++second) {
            addUntil(*take, second);
            disk.fill();
        }

        QVERIFY(held - QFileInfo(reserve()).size() <= 10 * 64 * Kibibyte);
        take->finish();
        QVERIFY(std::abs(DecodedAudio::read(name())->seconds() - take->secondsInFile()) < 0.05);
    }

    void roomThatComesBackIsHeldForTheNextTime()
    {
        SmallDisk disk(m_folder->path(), 16 * Kibibyte);
        const auto take = newTake();
        const qint64 held = QFileInfo(reserve()).size();
        disk.fill();
        addUntil(*take, 10);
        QVERIFY(!disk.isMounted() || QFileInfo(reserve()).size() < held);

        disk.emptyAgain();

        const auto holdsAgain = [&] {
            addNext(*take);
            take->syncNowAndThen();
            return QFileInfo(reserve()).size() == held;
        };
        QTRY_VERIFY_WITH_TIMEOUT(holdsAgain(), 20000);
        QVERIFY(!take->isDiskFailing());
    }

    void roomThatComesBackIsUsedBeforeTheEnd()
    {
        SmallDisk disk(m_folder->path(), 8 * Kibibyte);
        const auto take = newTake();
        disk.fill();
        const double added = addUntilFull(*take);

        disk.emptyAgain();
        take->retry();

        QVERIFY(!take->isDiskFailing());
        QVERIFY(take->secondsInFile() > added - FragmentedFile::FragmentSeconds - 0.1);
    }

private:
    void prepare() override
    {
        FolderCase::prepare();
        m_next = 0;
    }

    std::unique_ptr<FragmentedFile> newTake() const
    {
        return FragmentedFile::create(OutputFile::create(path()),
                                      AacEncoder::create(ManyBits)->codec());
    }
    QString reserve() const { return m_folder->filePath(u".take.reserve"_s); }
    QString name() const { return m_folder->filePath(u"take.m4a"_s); }
    std::string path() const { return name().toStdString(); }
    QStringList filesBesides() const
    {
        QStringList names =
            QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden | QDir::System);
        names.removeAll(u"take.m4a"_s);
        names.removeAll(u"filler"_s);
        return names;
    }

    void addNext(FragmentedFile &take)
    {
        const auto &packet = m_packets[m_next % m_packets.size()];
        packet->pts = packet->dts = m_first + static_cast<std::int64_t>(m_next++) * 1024;
        take.add(*packet);
    }
    double added() const
    {
        return static_cast<double>(m_first + static_cast<std::int64_t>(m_next) * 1024) / Rate;
    }
    // Seconds that went in until no more did.
    double addUntilFull(FragmentedFile &take)
    {
        while (!take.isFull())
            addNext(take);
        return added();
    }
    // The seconds that are in it then: these or a little more.
    double addUntil(FragmentedFile &take, double seconds)
    {
        while (added() < seconds)
            addNext(take);
        return added();
    }

    static std::vector<float> noiseOf(int seconds)
    {
        std::vector<float> noise(static_cast<std::size_t>(2 * Rate * seconds));
        for (float &sample : noise)
            sample = static_cast<float>(std::rand() % 2000 - 1000) / 1100;
        return noise;
    }

    std::vector<PacketPointer> m_packets;
    std::int64_t m_first = 0; // the time of the first
    std::size_t m_next = 0;
};

QTEST_GUILESS_MAIN(FullDiskRecordingTest)
#include "FullDiskRecordingTest.moc"

// usage: MakeCorpus FOLDER
// Writes the small files from which the fuzzer starts: what our own recorder makes, whole, cut and
// spoilt, and a moment of sound in every other form that a player opens (for which it needs the
// ffmpeg command). Called by scripts/fuzz-corpus.

#include "audio/engine/Boxes.h"
#include "audio/engine/Recordings.h"
#include "support/TestSound.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

using namespace tarvelo::tests;

namespace {

// Mostly silence, which takes few bytes.
std::vector<float> sound(double seconds)
{
    auto samples = tune(44100, seconds);
    for (std::size_t at = 2000; at < samples.size(); ++at)
        samples[at] = 0;
    return samples;
}

QByteArray changed(QByteArray bytes, qsizetype at, quint32 number)
{
    qToBigEndian(number, bytes.data() + at);
    return bytes;
}

// The place of a number, counted in bytes behind the box's type.
qsizetype inBox(const QByteArray &bytes, const char *type, qsizetype offset)
{
    return bytes.indexOf(type) + 4 + offset;
}

QByteArray withFlippedBits(QByteArray bytes, qsizetype every)
{
    for (qsizetype at = every; at < bytes.size(); at += every)
        bytes[at] = static_cast<char>(bytes[at] ^ (1 << (at % 8)));
    return bytes;
}

class Corpus final
{
public:
    explicit Corpus(const QString &folder)
        : m_folder(folder)
    {
    }

    bool isComplete() const { return m_isComplete; }

    void keep(const char *name, const QByteArray &bytes)
    {
        QFile file(m_folder.filePath(QLatin1String(name)));
        m_isComplete = m_isComplete && !bytes.isEmpty() && file.open(QIODevice::WriteOnly) &&
                       file.write(bytes) == bytes.size();
    }

    void keepRecordings()
    {
        const QByteArray whole = recordingOf(sound(0.2));
        const QByteArray indexFirst = withIndexFirst(whole);
        const QByteArray fragmented = recordingOf(sound(1.7), Ending::CutOff);
        const auto parts = boxesOf(fragmented);
        keep("take.m4a", whole);
        keep("take-index-first.m4a", indexFirst);
        keep("take-fragmented.m4a", fragmented);
        keep("take-cut-in-sound.m4a", indexFirst.chopped(150));
        keep("take-cut-in-index.m4a", whole.first(inBox(whole, "stsz", 20)));
        keep("take-cut-in-header.m4a", fragmented.first(parts[1].at + parts[1].size / 2));
        keep("take-cut-in-fragment.m4a", fragmented.first(fragmented.lastIndexOf("moof") + 40));
        keep("take-cut-in-last-sound.m4a", fragmented.chopped(20));
        keep("take-flipped.m4a", withFlippedBits(whole, 101));
        keep("take-fragmented-flipped.m4a", withFlippedBits(fragmented, 197));
    }

    void keepLies()
    {
        const QByteArray file = withIndexFirst(recordingOf(sound(0.2)));
        keep("lie-samples.m4a",
             changed(changed(file, inBox(file, "stsz", 4), 1), inBox(file, "stsz", 8), 0x7FFFFFFF));
        keep("lie-durations.m4a", changed(file, inBox(file, "stts", 8), 0x7FFFFFFF));
        keep("lie-chunks.m4a", changed(file, inBox(file, "stsc", 12), 0x7FFFFFFF));
        keep("lie-place.m4a", changed(file, inBox(file, "stco", 8), 0xFFFFFFF0));
        keep("lie-edits.m4a", changed(file, inBox(file, "elst", 12), 0x7FFFFFFF));
        keep("lie-rate.m4a", changed(file, inBox(file, "mp4a", 24), 0xFFFFFFFF));
        keep("lie-track.m4a", changed(file, file.indexOf("trak") - 4, 0x7FFFFFFF));
        keep("lie-no-size.m4a", changed(file, file.indexOf("trak") - 4, 0));
        keep("lie-large-size.m4a", changed(file, file.indexOf("mdat") - 4, 1));
    }

    // Empty ones, and those whose header promises what cannot be.
    void keepWavs()
    {
        const QByteArray wav = converted("wav", {"-c:a", "pcm_s16le", "-t", "0.02"});
        const auto with = [&wav](qsizetype at, const char *bytes, qsizetype count) {
            return QByteArray(wav).replace(at, count, bytes, count);
        };
        keep("tiny.wav", wav);
        keep("head-only.wav", wav.first(44));
        keep("much-promised.wav", with(40, "\xff\xff\xff\x7f", 4));
        keep("no-rate.wav", with(24, "\0\0\0\0", 4));
        keep("many-channels.wav", with(22, "\xff\xff", 2));
        keep("no-width.wav", with(32, "\0\0\0\0", 4));
    }

    void keepOthers()
    {
        keep("tiny.mp3", converted("mp3", {"-b:a", "32k"}));
        keep("titled.mp3", converted("mp3", {"-b:a", "32k", "-metadata", "title=Optics"}));
        keep("garbage.mp3", converted("mp3", {"-b:a", "32k"}).first(1200) +
                                withFlippedBits(QByteArray(2000, 'x'), 3));
        keep("tiny.aac", converted("aac", {"-b:a", "32k"}, "adts"));
        keep("tiny.flac", converted("flac", {"-t", "0.1", "-metadata_header_padding", "16"}));
        keep("tiny.ogg", converted("ogg", {"-c:a", "libvorbis", "-q:a", "0"}));
        keep("tiny.opus", converted("opus", {"-b:a", "16k"}));
        keep("tiny.aiff", converted("aiff", {"-t", "0.02"}));
        keep("tiny.caf", converted("caf", {"-t", "0.1", "-c:a", "alac"}));
        keep("lossless.m4a", converted("m4a", {"-t", "0.1", "-c:a", "alac"}));
        keep("film.mp4", converted("mp4", {"-t", "0.1", "-f", "lavfi", "-i", "color=s=16x16:d=0.1",
                                           "-c:a", "aac"}));
    }

private:
    // The moment of sound in another form, by the ffmpeg command.
    static QByteArray converted(const char *extension, std::initializer_list<const char *> options,
                                const char *format = nullptr)
    {
        const QTemporaryDir folder;
        const QString wav = folder.filePath(QStringLiteral("in.wav"));
        QFile out(folder.filePath(QLatin1String("out.") + QLatin1String(extension)));
        QStringList arguments{QStringLiteral("-nostdin"), QStringLiteral("-v"),
                              QStringLiteral("quiet"), QStringLiteral("-i"), wav};
        for (const char *option : options)
            arguments += QString::fromLatin1(option);
        arguments += {QStringLiteral("-bitexact")};
        if (format)
            arguments += {QStringLiteral("-f"), QString::fromLatin1(format)};
        const bool isMade = writeWav(wav, sound(0.4), 44100) &&
                            QProcess::execute(QStringLiteral("ffmpeg"),
                                              arguments + QStringList{out.fileName()}) == 0;
        return isMade && out.open(QIODevice::ReadOnly) ? out.readAll() : QByteArray();
    }

    QDir m_folder;
    bool m_isComplete = true;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 2)
        return 2;
    Corpus corpus(QCoreApplication::arguments().at(1));
    corpus.keepRecordings();
    corpus.keepLies();
    corpus.keepWavs();
    corpus.keepOthers();
    return corpus.isComplete() ? 0 : 1;
}

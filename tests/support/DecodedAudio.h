#pragma once

#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

namespace tarvelo::tests {

// What a player hears of a sound file. Reads any form that FFmpeg reads, also a file that was cut
// short.
struct DecodedAudio
{
    int rate = 0;
    int channels = 0;
    std::vector<float> samples; // interleaved

    // Nothing when the file cannot be opened as sound.
    static std::optional<DecodedAudio> read(const QString &path);

    std::size_t frames() const { return samples.size() / static_cast<std::size_t>(channels); }
    double seconds() const { return static_cast<double>(frames()) / rate; }
    std::vector<float> channel(int number) const;
};

// What a reader takes the length of a file for without decoding it, and how the file is built.
struct MovieFacts
{
    double seconds = 0;
    QString codec;
    int rate = 0;
    int channels = 0;
    bool isFragmented = false;

    static std::optional<MovieFacts> read(const QString &path);
};

} // namespace tarvelo::tests

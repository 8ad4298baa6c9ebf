#include "support/TestSound.h"

#include <QByteArray>
#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace tarvelo::tests {

namespace {

constexpr double Turn = 2 * std::numbers::pi;

template <typename T>
void put(QByteArray &bytes, T value)
{
    value = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char *>(&value), sizeof value);
}

std::span<const float> piece(std::span<const float> sound, std::ptrdiff_t from, std::size_t length)
{
    if (from < 0 || static_cast<std::size_t>(from) >= sound.size())
        return {};
    const auto start = static_cast<std::size_t>(from);
    return sound.subspan(start, std::min(length, sound.size() - start));
}

struct Place
{
    std::ptrdiff_t at = -1;
    double correlation = -2;
};

// The place of `what` in `sound` among `from`, `from` + 1 ... `to`.
Place bestPlace(std::span<const float> sound, std::span<const float> what, std::ptrdiff_t from,
                std::ptrdiff_t to)
{
    Place best;
    for (std::ptrdiff_t at = std::max<std::ptrdiff_t>(from, 0); at <= to; ++at) {
        const auto there = piece(sound, at, what.size());
        if (there.size() < what.size())
            break;
        const double found = correlation(there, what);
        if (found > best.correlation)
            best = {at, found};
    }
    return best;
}

std::vector<float> coarse(std::span<const float> sound, std::size_t factor)
{
    std::vector<float> result;
    for (std::size_t at = 0; at + factor <= sound.size(); at += factor) {
        float sum = 0;
        for (std::size_t i = 0; i < factor; ++i)
            sum += sound[at + i];
        result.push_back(sum);
    }
    return result;
}

// Where the recording's first seconds lie in what was played: coarsely over all of the search, then
// to the sample.
std::ptrdiff_t findStart(std::span<const float> played, std::span<const float> recorded, int rate,
                         double searchSeconds)
{
    constexpr std::size_t Factor = 12;
    const auto search = piece(played, 0, static_cast<std::size_t>(rate * (searchSeconds + 1)));
    const auto head = piece(recorded, 0, static_cast<std::size_t>(rate));
    const auto roughPlayed = coarse(search, Factor);
    const auto roughHead = coarse(head, Factor);
    const auto end = static_cast<std::ptrdiff_t>(roughPlayed.size());
    const auto rough = bestPlace(roughPlayed, roughHead, 0, end).at;
    const auto about = rough * static_cast<std::ptrdiff_t>(Factor);
    return rough < 0 ? -1 : bestPlace(played, head, about - 12, about + 12).at;
}

} // namespace

std::vector<float> tune(int rate, double seconds, unsigned seed)
{
    constexpr double NoteSeconds = 0.125;
    constexpr double GlideRate = 50; // a note is reached after some twentieths of a second
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> pitch(180, 1400);
    std::vector<float> sound(static_cast<std::size_t>(rate * seconds));
    // In closed form from the time alone, so that it is the same tune at every rate.
    double noteStart = 0;
    double turnsBefore = 0;
    double from = 440;
    double to = pitch(random);
    const auto turns = [&](double t) {
        return turnsBefore + to * t + (from - to) * (1 - std::exp(-GlideRate * t)) / GlideRate;
    };
    for (std::size_t at = 0; at < sound.size(); ++at) {
        const double time = static_cast<double>(at) / rate;
        for (; time >= noteStart + NoteSeconds; noteStart += NoteSeconds) {
            turnsBefore = turns(NoteSeconds);
            from = to + (from - to) * std::exp(-GlideRate * NoteSeconds);
            to = pitch(random);
        }
        const double phase = Turn * turns(time - noteStart);
        const double swell = 0.7 + 0.3 * std::sin(Turn * 3.1 * time);
        sound[at] = static_cast<float>(swell * (0.7 * std::sin(phase) + 0.2 * std::sin(2 * phase) +
                                                0.1 * std::sin(3 * phase)));
    }
    return sound;
}

std::vector<float> tone(int rate, double seconds, double hertz)
{
    std::vector<float> sound(static_cast<std::size_t>(rate * seconds));
    for (std::size_t at = 0; at < sound.size(); ++at)
        sound[at] = static_cast<float>(std::sin(Turn * hertz * static_cast<double>(at) / rate));
    return sound;
}

bool writeWav(const QString &path, std::span<const float> sound, int rate, int channels)
{
    const auto dataSize =
        static_cast<quint32>(sound.size() * static_cast<std::size_t>(channels)) * 2;
    QByteArray bytes("RIFF");
    put<quint32>(bytes, 36 + dataSize);
    bytes.append("WAVEfmt ");
    put<quint32>(bytes, 16);
    put<quint16>(bytes, 1);
    put<quint16>(bytes, static_cast<quint16>(channels));
    put<quint32>(bytes, static_cast<quint32>(rate));
    put<quint32>(bytes, static_cast<quint32>(rate * channels * 2));
    put<quint16>(bytes, static_cast<quint16>(channels * 2));
    put<quint16>(bytes, 16);
    bytes.append("data");
    put<quint32>(bytes, dataSize);
    for (const float sample : sound)
        for (int channel = 0; channel < channels; ++channel)
            put<qint16>(bytes, static_cast<qint16>(sample * 16384));
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

double correlation(std::span<const float> one, std::span<const float> other)
{
    const std::size_t length = std::min(one.size(), other.size());
    double together = 0;
    double oneAlone = 0;
    double otherAlone = 0;
    for (std::size_t i = 0; i < length; ++i) {
        together += static_cast<double>(one[i]) * static_cast<double>(other[i]);
        oneAlone += static_cast<double>(one[i]) * static_cast<double>(one[i]);
        otherAlone += static_cast<double>(other[i]) * static_cast<double>(other[i]);
    }
    return together / (std::sqrt(oneAlone * otherAlone) + 1e-12);
}

Likeness compare(std::span<const float> original, std::span<const float> recorded, int rate,
                 double searchSeconds)
{
    Likeness likeness;
    // An encoder lets a sound be heard some samples before it begins, and after its end.
    const std::ptrdiff_t lead = rate / 100;
    std::vector<float> played(original.size() + 2 * static_cast<std::size_t>(lead));
    std::ranges::copy(original, played.begin() + lead);
    // The player may have begun after the recorder.
    const auto loud = std::ranges::find_if(recorded, [](float it) { return std::abs(it) > 0.01F; });
    recorded = recorded.subspan(static_cast<std::size_t>(loud - recorded.begin()));
    const auto start = findStart(played, recorded, rate, searchSeconds);
    if (start < 0)
        return likeness;
    likeness.start = static_cast<double>(std::max<std::ptrdiff_t>(start - lead, 0)) / rate;
    likeness.correlation = correlation(piece(played, start, recorded.size()), recorded);
    const auto second = static_cast<std::size_t>(rate);
    const std::ptrdiff_t reach = rate / 40;
    for (std::size_t at = 0; at + second <= recorded.size(); at += second) {
        const auto window = recorded.subspan(at, second);
        const auto expected = start + static_cast<std::ptrdiff_t>(at);
        const double here = correlation(piece(played, expected, second), window);
        likeness.worstCorrelation = std::min(likeness.worstCorrelation, here);
        const auto shortWindow = window.first(second / 8);
        const Place best = bestPlace(played, shortWindow, expected - reach, expected + reach);
        const double off = std::abs(static_cast<double>(best.at - expected)) / rate;
        likeness.drift = std::max(likeness.drift, off);
    }
    return likeness;
}

double longestDisturbance(std::span<const float> recordedTone, int rate, double hertz)
{
    // Two periods at a time: short enough to see a gap of a millisecond, long enough for a level.
    const auto window = static_cast<std::size_t>(2 * rate / hertz);
    std::vector<double> levels(recordedTone.size() > window ? recordedTone.size() - window : 0);
    double energy = 0;
    for (std::size_t at = 0; at < recordedTone.size(); ++at) {
        energy += std::pow(static_cast<double>(recordedTone[at]), 2);
        if (at < window)
            continue;
        energy -= std::pow(static_cast<double>(recordedTone[at - window]), 2);
        levels[at - window] = std::sqrt(std::max(energy, 0.0));
    }
    if (levels.empty())
        return 0;
    auto sorted = levels;
    std::ranges::nth_element(sorted,
                             sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2));
    const double usual = sorted[sorted.size() / 2];
    std::size_t longest = 0;
    std::size_t current = 0;
    for (const double level : levels) {
        current = level < usual / 2 || level > usual * 1.5 ? current + 1 : 0;
        longest = std::max(longest, current);
    }
    return static_cast<double>(longest) / rate;
}

} // namespace tarvelo::tests

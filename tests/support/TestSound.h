#pragma once

#include <QString>

#include <cstddef>
#include <span>
#include <vector>

namespace tarvelo::tests {

// A tune in which every moment differs from every other, so that a recording of it can be laid on
// exactly one place. The same seed gives the same tune.
std::vector<float> tune(int rate, double seconds, unsigned seed = 1);
std::vector<float> tone(int rate, double seconds, double hertz);

// The same sound on every channel, 16 bits, half of full level.
bool writeWav(const QString &path, std::span<const float> sound, int rate, int channels = 1);

double correlation(std::span<const float> one, std::span<const float> other);

// How a recording, from its first sound on, lies on what was played; both mono, at the same rate.
struct Likeness
{
    double start = -1;           // second of the original at which the recording begins
    double correlation = 0;      // of all the recording, laid there once
    double worstCorrelation = 1; // of the worst second of it
    double drift = 0;            // seconds by which the worst second lies off that place
};

// Looks for the beginning within the first `searchSeconds` of what was played.
Likeness compare(std::span<const float> original, std::span<const float> recorded, int rate,
                 double searchSeconds = 60);

// The longest time, in seconds, for which the level of a steady tone is not within half and one and
// a half times of its usual one: a gap or a click.
double longestDisturbance(std::span<const float> recordedTone, int rate, double hertz);

} // namespace tarvelo::tests

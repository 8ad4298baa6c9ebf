#pragma once

#include <array>

namespace tarvelo::audio {

// A format in which the user can have the next recording. It decides what the file is called: what
// is in it is MPEG-4 with AAC, whatever its name.
struct FileFormat
{
    const char *extension;
    const char *nameKey; // of the text that names it in the preferences
    bool isForMusicLibrary;
};

// In the order in which the preferences offer them; the preference keeps the place in here.
inline constexpr std::array FileFormats{
    FileFormat{"aac", "FILEFORMAT_AAC", false},
    FileFormat{"m4a", "FILEFORMAT_M4A", true},
};

inline constexpr const char *FileFormatKey = "fileFormat";

// Of who has never chosen, and of whoever's number stands for none.
inline constexpr int UsualFileFormat = 1;

constexpr int fileFormatOf(int stored)
{
    return stored >= 0 && stored < static_cast<int>(FileFormats.size()) ? stored : UsualFileFormat;
}
static_assert(UsualFileFormat < static_cast<int>(FileFormats.size()));

} // namespace tarvelo::audio

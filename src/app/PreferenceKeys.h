#pragma once

#include "audio/FileFormats.h"

#include <QHash>
#include <QString>
#include <QVariant>

#include <array>
#include <cstddef>
#include <optional>

namespace tarvelo::app {

enum class Preference { ShowWindowAtLogin, WindowOnTop, FileFormat, StatusBar, DockIcon, Count };

struct PreferenceKey
{
    Preference preference;
    const char *name;
    // What a key reads as that nobody has set; without one it reads as 0.
    std::optional<int> registered;
};

// Integers, but for DockIcon, which is a boolean.
inline constexpr std::array PreferenceKeys{
    PreferenceKey{Preference::ShowWindowAtLogin, "showWindowAtLogin", 1},
    PreferenceKey{Preference::WindowOnTop, "windowOnTop", 1},
    PreferenceKey{Preference::FileFormat, audio::FileFormatKey, audio::UsualFileFormat},
    PreferenceKey{Preference::StatusBar, "StatusBar", {}},
    PreferenceKey{Preference::DockIcon, "DockIcon", {}},
};
static_assert(PreferenceKeys.size() == static_cast<std::size_t>(Preference::Count));

inline QString keyOf(Preference preference)
{
    return QLatin1String(PreferenceKeys[static_cast<std::size_t>(preference)].name);
}

inline QHash<QString, QVariant> registeredDefaults()
{
    QHash<QString, QVariant> defaults;
    for (const PreferenceKey &key : PreferenceKeys) {
        if (key.registered)
            defaults.insert(keyOf(key.preference), *key.registered);
    }
    return defaults;
}

} // namespace tarvelo::app

#pragma once

#include <QFont>
#include <QList>
#include <QString>

#include <optional>

namespace tarvelo::platform {

// A stretch of text in one font; without one it takes that of its surroundings.
struct TextRun
{
    QString text;
    std::optional<QFont> font = std::nullopt;

    bool operator==(const TextRun &) const = default;
};

using StyledText = QList<TextRun>;

inline QString plainText(const StyledText &text)
{
    QString plain;
    for (const TextRun &run : text)
        plain += run.text;
    return plain;
}

} // namespace tarvelo::platform

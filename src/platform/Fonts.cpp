#include "platform/Fonts.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QHash>
#include <QString>

#include <algorithm>

namespace tarvelo::platform {

namespace {

// Ten points of print, as large as desktops write that have nothing set otherwise.
constexpr double OrdinarySize = 40.0 / 3;
// The windows have fixed widths.
constexpr double LargestScale = 1.35;

// To ask for one takes longer than to lay out a row of buttons, and every control asks. A face that
// comes while the program runs is there at its next start.
bool hasFace(const QString &face)
{
    static QHash<QString, bool> known;
    auto answer = known.constFind(face);
    if (answer == known.constEnd())
        answer = known.insert(face, QFontDatabase::hasFamily(face));
    return *answer;
}

} // namespace

QFont fontNamed(const QString &face, double size)
{
    QFont font = QGuiApplication::font();
    if (hasFace(face))
        font.setFamilies({face});
    font.setWeight(QFont::Medium);
    font.setPixelSize(qRound(size));
    return font;
}

double textScale()
{
    return std::clamp(QFontInfo(QGuiApplication::font()).pixelSize() / OrdinarySize, 1.0,
                      LargestScale);
}

QFont scaledFontNamed(const QString &face, double size)
{
    return fontNamed(face, size * textScale());
}

QFont systemFontOfSize(double points)
{
    QFont font = QGuiApplication::font();
    font.setPointSizeF(points);
    return font;
}

} // namespace tarvelo::platform

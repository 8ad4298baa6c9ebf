#include "platform/Fonts.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QString>

namespace tarvelo::platform {

QFont fontNamed(const QString &face, double size)
{
    QFont font = QGuiApplication::font();
    if (QFontDatabase::hasFamily(face))
        font.setFamilies({face});
    font.setWeight(QFont::Medium);
    font.setPixelSize(qRound(size));
    return font;
}

QFont systemFontOfSize(double points)
{
    QFont font = QGuiApplication::font();
    font.setPointSizeF(points);
    return font;
}

} // namespace tarvelo::platform

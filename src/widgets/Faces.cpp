#include "widgets/Faces.h"

#include "platform/Fonts.h"

#include <QFont>
#include <QString>

namespace tarvelo::widgets {

namespace {

const QString Face = QStringLiteral("Helvetica Neue Medium");

} // namespace

QFont scaledFace(double size)
{
    return platform::scaledFontNamed(Face, size);
}

QFont fixedFace(double size)
{
    return platform::fontNamed(Face, size);
}

} // namespace tarvelo::widgets

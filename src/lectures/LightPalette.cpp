#include "lectures/LightPalette.h"

#include <QPalette>
#include <QWidget>

namespace tarvelo::lectures {

void setLightPalette(QWidget &window)
{
    const QColor ink(43, 41, 48);
    const QColor faint(113, 109, 121);
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(247, 247, 249));
    palette.setColor(QPalette::Button, QColor(246, 246, 248));
    palette.setColor(QPalette::Light, Qt::white);
    palette.setColor(QPalette::Midlight, QColor(240, 240, 243));
    palette.setColor(QPalette::Mid, QColor(220, 219, 224));
    palette.setColor(QPalette::Dark, QColor(180, 178, 186));
    palette.setColor(QPalette::Shadow, QColor(140, 138, 146));
    palette.setColor(QPalette::ToolTipBase, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(252, 39, 52));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::BrightText, QPalette::ToolTipText})
        palette.setColor(role, ink);
    palette.setColor(QPalette::PlaceholderText, faint);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(220, 219, 224));
    window.setPalette(palette);
}

} // namespace tarvelo::lectures

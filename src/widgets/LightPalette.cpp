#include "widgets/LightPalette.h"

#include "widgets/Colours.h"

#include <QColor>
#include <QPalette>
#include <QWidget>

namespace tarvelo::widgets {

void setLightPalette(QWidget &window)
{
    const Colours its = colours();
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, its.panel);
    palette.setColor(QPalette::Button, QColor(246, 246, 248));
    palette.setColor(QPalette::Light, Qt::white);
    palette.setColor(QPalette::Midlight, its.turnedTo);
    palette.setColor(QPalette::Mid, its.hairline);
    palette.setColor(QPalette::Dark, its.outline);
    palette.setColor(QPalette::Shadow, its.outline);
    palette.setColor(QPalette::ToolTipBase, Qt::white);
    palette.setColor(QPalette::Highlight, its.accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::BrightText, QPalette::ToolTipText})
        palette.setColor(role, its.ink);
    palette.setColor(QPalette::PlaceholderText, its.placeholder);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, its.disabled);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, its.disabledOutline);
    palette.setColor(QPalette::Disabled, QPalette::Shadow, its.disabledOutline);
    window.setPalette(palette);
}

} // namespace tarvelo::widgets

#include "widgets/Colours.h"

#include "platform/HighContrast.h"

#include <QWidget>

namespace tarvelo::widgets {

namespace {

constexpr Colours Ordinary{.ink = {43, 41, 48},
                           .faint = {105, 101, 113},
                           .placeholder = {105, 101, 113},
                           .disabled = {113, 109, 121},
                           .hairline = {228, 227, 232},
                           .outline = {140, 138, 146},
                           .disabledOutline = {228, 227, 232},
                           .panel = {247, 247, 249},
                           .tile = {239, 237, 241},
                           .turnedTo = {240, 240, 243},
                           .warning = {163, 18, 32},
                           .accent = {214, 22, 38},
                           .chosen = {253, 232, 234},
                           .onChosen = {43, 41, 48},
                           .isBold = false};

constexpr Colours Strong{.ink = {0, 0, 0},
                         .faint = {0, 0, 0},
                         .placeholder = {85, 85, 85},
                         .disabled = {85, 85, 85},
                         .hairline = {0, 0, 0},
                         .outline = {0, 0, 0},
                         .disabledOutline = {85, 85, 85},
                         .panel = {255, 255, 255},
                         .tile = {255, 255, 255},
                         .turnedTo = {224, 224, 224},
                         .warning = {140, 0, 16},
                         .accent = {176, 0, 20},
                         .chosen = {176, 0, 20},
                         .onChosen = {255, 255, 255},
                         .isBold = true};

} // namespace

Colours colours()
{
    return platform::isContrastHigh() ? Strong : Ordinary;
}

void setColour(QWidget &view, QPalette::ColorRole role, const QColor &colour)
{
    QPalette palette = view.palette();
    palette.setColor(role, colour);
    view.setPalette(palette);
}

} // namespace tarvelo::widgets

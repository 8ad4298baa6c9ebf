#include "platform/HighContrast.h"

#include <QColor>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QObject>
#include <QPalette>

#include <algorithm>
#include <cmath>
#include <optional>

namespace tarvelo::platform {

namespace {

constexpr double HighContrast = 20;

double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(double(colour.redF())) + 0.7152 * linear(double(colour.greenF())) +
           0.0722 * linear(double(colour.blueF()));
}

std::optional<bool> &whatWasRead()
{
    static std::optional<bool> isHigh;
    return isHigh;
}

} // namespace

double contrastOf(const QColor &one, const QColor &other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

bool isContrastHigh()
{
    if (!whatWasRead())
        readContrast();
    return whatWasRead().value_or(false);
}

void readContrast()
{
    // Without a screen there is no palette either, not even to ask for.
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return;
    const QPalette palette = QGuiApplication::palette();
    const auto isHigh = [&](QPalette::ColorRole ink, QPalette::ColorRole ground) {
        return contrastOf(palette.color(ink), palette.color(ground)) >= HighContrast;
    };
    whatWasRead() =
        isHigh(QPalette::WindowText, QPalette::Window) && isHigh(QPalette::Text, QPalette::Base);
}

} // namespace tarvelo::platform

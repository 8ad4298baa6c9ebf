#include "platform/HighContrast.h"

#include <QColor>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <cmath>

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

} // namespace

double contrastOf(const QColor &one, const QColor &other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

bool isContrastHigh()
{
    // Without a screen there is no palette either, not even to ask for.
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return false;
    const QPalette palette = QGuiApplication::palette();
    return contrastOf(palette.color(QPalette::WindowText), palette.color(QPalette::Window)) >=
               HighContrast &&
           contrastOf(palette.color(QPalette::Text), palette.color(QPalette::Base)) >= HighContrast;
}

} // namespace tarvelo::platform

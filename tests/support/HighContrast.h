#pragma once

#include "platform/HighContrast.h"

#include <QGuiApplication>
#include <QImage>
#include <QPalette>

namespace tarvelo::tests {

// As long as it lives, the desktop asks for high contrast: black on white.
class HighContrast final
{
public:
    HighContrast()
        : m_usual(QGuiApplication::palette())
    {
        QPalette strong(Qt::black);
        for (const auto role : {QPalette::Window, QPalette::Base})
            strong.setColor(role, Qt::white);
        for (const auto role : {QPalette::WindowText, QPalette::Text})
            strong.setColor(role, Qt::black);
        dress(strong);
    }
    ~HighContrast() { dress(m_usual); }
    HighContrast(const HighContrast &) = delete;
    HighContrast &operator=(const HighContrast &) = delete;

private:
    static void dress(const QPalette &palette)
    {
        QGuiApplication::setPalette(palette);
        platform::readContrast();
    }

    QPalette m_usual;
};

// How many pixels differ by 3 to 1.
inline int pixelsApart(const QImage &one, const QImage &other)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            count += platform::contrastOf(one.pixelColor(x, y), other.pixelColor(x, y)) >= 3;
    return count;
}

} // namespace tarvelo::tests

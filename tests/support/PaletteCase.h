#pragma once

#include "platform/HighContrast.h"
#include "support/TestCase.h"

#include <QGuiApplication>
#include <QPalette>

namespace tarvelo::tests {

// The base of tests that give the desktop other colours: after each they are as they were.
class PaletteCase : public TestCase
{
protected:
    void prepare() override { m_before = QGuiApplication::palette(); }
    void finish() override
    {
        QGuiApplication::setPalette(m_before);
        platform::readContrast();
    }

private:
    QPalette m_before;
};

} // namespace tarvelo::tests

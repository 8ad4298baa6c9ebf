// usage: Gallery FOLDER LANGUAGE light|dark|contrast [large]
// Takes a picture of every window of the program in every state: FOLDER/NAME.png. The number of
// pixels a point is Qt's QT_SCALE_FACTOR. It ends with 1 when one is missing.

#include "gallery/Scenes.h"
#include "widgets/ControlStyle.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QPixmap>

using namespace tarvelo;

namespace {

// What desktops have who call themselves dark.
QPalette dark()
{
    QPalette palette(QColor(0x35, 0x35, 0x35), QColor(0x35, 0x35, 0x35));
    palette.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xda));
    return palette;
}

// White on black, and what is marked, black on yellow.
QPalette highContrast()
{
    QPalette palette(Qt::black, Qt::black);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, Qt::white);
    palette.setColor(QPalette::Base, Qt::black);
    palette.setColor(QPalette::Highlight, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    return palette;
}

// The screen of the pictures is one in memory, which complains that it can place no windows.
void ignore(QtMsgType, const QMessageLogContext &, const QString &) {}

void dress(const QString &theme)
{
    QApplication::setStyle(new widgets::ControlStyle);
    QApplication::setCursorFlashTime(0);
    if (theme == u"dark")
        QApplication::setPalette(dark());
    if (theme == u"contrast")
        QApplication::setPalette(highContrast());
}

// As it lies on a screen: nothing of it where its shape is not.
QPixmap pictureOf(QWidget &window)
{
    const QPixmap whole = window.grab();
    if (window.mask().isEmpty())
        return whole;
    QPixmap shaped(whole.size());
    shaped.setDevicePixelRatio(whole.devicePixelRatio());
    shaped.fill(Qt::transparent);
    QPainter painter(&shaped);
    painter.setClipRegion(window.mask());
    painter.drawPixmap(0, 0, whole);
    return shaped;
}

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(ignore);
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 4 || !QDir().mkpath(arguments[1]))
        return 2;
    dress(arguments[3]);
    if (arguments.contains(QStringLiteral("large"))) {
        QFont font = QApplication::font();
        font.setPointSizeF(font.pointSizeF() * 1.5);
        QApplication::setFont(font);
    }
    tests::speak(arguments[2]);

    tests::Application program(arguments[2].toLatin1());
    bool areSaved = true;
    const bool isAllShown = tests::goThrough(program, [&](const QString &name, QWidget &window) {
        const QString path = arguments[1] + u'/' + name + QStringLiteral(".png");
        areSaved = pictureOf(window).save(path) && areSaved;
    });
    return isAllShown && areSaved ? 0 : 1;
}

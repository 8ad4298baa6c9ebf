#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

// usage: tarvelo_draw_icon DRAWING.svg SIZE PICTURE.png
// Draws a square picture of an SVG drawing. It runs while the program is built and is not
// installed.
int main(int argc, char **argv)
{
    if (argc != 4)
        return 2;
    const int size = QString::fromLocal8Bit(argv[2]).toInt();
    QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
    QImage picture(size, size, QImage::Format_ARGB32);
    if (!drawing.isValid() || picture.isNull())
        return 1;

    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
    painter.end();
    return picture.save(QString::fromLocal8Bit(argv[3]), "PNG") ? 0 : 1;
}

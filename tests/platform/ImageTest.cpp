#include "platform/Images.h"

#include "platform/HighContrast.h"
#include "support/HighContrast.h"
#include "support/TestCase.h"

#include <QImage>
#include <QPainter>

using namespace tarvelo::platform;

namespace {

constexpr QColor Red(252, 39, 52);

QImage canvas(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

} // namespace

class ImageTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNullImageHasNoNameNoSizeAndDrawsNothing()
    {
        const Image none = imageNamed(QString());
        QImage target = canvas(20, 20);
        QPainter painter(&target);

        none.paint(painter, {0, 0, 20, 20});

        QVERIFY(none.isNull());
        QVERIFY(none.name().isEmpty());
        QVERIFY(none.size().isEmpty());
        QVERIFY(none.icon().isNull());
        QCOMPARE(target, canvas(20, 20));
    }

    void anImageFillsItsTargetStretchingBothAxes()
    {
        QImage target = canvas(200, 20);
        QPainter painter(&target);

        imageNamed(QStringLiteral("recordbox")).paint(painter, {0, 0, 200, 20});

        QCOMPARE(target.pixelColor(100, 8), Red);
        QCOMPARE(target.pixelColor(30, 8), Red);
        QCOMPARE(target.pixelColor(100, 19), QColor(Qt::white));
    }

    void aViewBetweenPixelsOfItsWindowShowsItAsSharp()
    {
        QImage exact = canvas(60, 60);
        QImage between = canvas(60, 60);
        QPainter onExact(&exact);
        QPainter onBetween(&between);
        onExact.scale(1.25, 1.25);
        onBetween.translate(1.25 * 3, 1.25 * 3); // as in a view that is 3 points further in
        onBetween.scale(1.25, 1.25);

        imageNamed(QStringLiteral("timetag")).paint(onExact, {0, 0, 24, 24});
        imageNamed(QStringLiteral("timetag")).paint(onBetween, {0, 0, 24, 24});

        QCOMPARE(between.copy(4, 4, 30, 30), exact.copy(0, 0, 30, 30));
    }

    void itIsDrawnInThePixelsOfADevice()
    {
        const QPixmap fine = imageNamed(QStringLiteral("timetag")).pixmap({24, 24}, 1.5);

        QCOMPARE(fine.size(), QSize(36, 36));
        QCOMPARE(fine.devicePixelRatio(), 1.5);
        QVERIFY(Image().pixmap({24, 24}, 1.5).isNull());
    }

    void aDrawingOnADiscIsRound()
    {
        QVERIFY(imageNamed(QStringLiteral("close")).isRound());
        QVERIFY(imageNamed(QStringLiteral("play")).isRound());
        QVERIFY(!imageNamed(QStringLiteral("timetag")).isRound());
        QVERIFY(!Image().isRound());
    }

    void aTargetBetweenPixelsIsMovedToWholeOnes()
    {
        QImage exact = canvas(60, 60);
        QImage between = canvas(60, 60);
        QPainter onExact(&exact);
        QPainter onBetween(&between);

        imageNamed(QStringLiteral("recordbox")).paint(onExact, {4, 4, 51, 51});
        imageNamed(QStringLiteral("recordbox")).paint(onBetween, {4.3, 3.8, 51, 51});

        QCOMPARE(between, exact);
    }

    void inHighContrastTheGreysOfADrawingAreBlack()
    {
        const QPalette usual = QGuiApplication::palette();
        QPalette palette(Qt::black);
        for (const auto role : {QPalette::Window, QPalette::Base})
            palette.setColor(role, Qt::white);
        for (const auto role : {QPalette::WindowText, QPalette::Text})
            palette.setColor(role, Qt::black);
        const auto drawn = [] {
            QImage canvas(24, 24, QImage::Format_ARGB32_Premultiplied);
            canvas.fill(Qt::white);
            QPainter painter(&canvas);
            imageNamed(QStringLiteral("menu")).paint(painter, canvas.rect());
            return canvas;
        };
        const QImage grey = drawn();

        QGuiApplication::setPalette(palette);
        tarvelo::platform::readContrast();
        const QImage black = drawn();
        QGuiApplication::setPalette(usual);
        tarvelo::platform::readContrast();

        QCOMPARE(grey.pixelColor(12, 12), QColor(0x60, 0x5c, 0x66));
        QCOMPARE(black.pixelColor(12, 12), QColor(Qt::black));
        QCOMPARE(black.pixelColor(12, 0), QColor(Qt::black));
        QCOMPARE(drawn(), grey);
    }

    void inHighContrastAWarningHasTheRedOfTheWindowsAndARowALineAround()
    {
        const auto drawn = [](const QString &name, const QSize &size) {
            QImage canvas(size, QImage::Format_ARGB32_Premultiplied);
            canvas.fill(Qt::white);
            QPainter painter(&canvas);
            imageNamed(name).paint(painter, canvas.rect());
            return canvas;
        };
        const tarvelo::tests::HighContrast contrast;

        const QImage warning = drawn(QStringLiteral("warning"), {48, 48});
        const QImage row = drawn(QStringLiteral("cellimageH"), {381, 64});

        QCOMPARE(warning.pixelColor(24, 12), QColor(0xb0, 0, 0x14));
        QCOMPARE(row.pixelColor(5, 32), QColor(Qt::black));
        QCOMPARE(row.pixelColor(190, 32), QColor(Qt::white));
    }

    void anIconHasTheSizesThatDesktopsAskFor()
    {
        const QIcon icon = imageNamed(QStringLiteral("recordbox")).icon();

        QVERIFY(icon.availableSizes().contains(QSize(22, 22)));
        QVERIFY(icon.availableSizes().contains(QSize(256, 256)));
    }
};

QTEST_MAIN(ImageTest)
#include "ImageTest.moc"

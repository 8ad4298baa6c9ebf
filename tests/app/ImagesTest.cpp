#include "platform/Images.h"

#include "support/TestCase.h"

#include <QDirIterator>
#include <QImage>
#include <QPainter>

using tarvelo::platform::imageNamed;

class ImagesTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyDrawingIsKnownByItsNameAndDrawsSomething()
    {
        const QStringList names = QDir(QStringLiteral(":/images")).entryList();
        QVERIFY(names.size() > 20);

        for (const QString &file : names) {
            const auto image = imageNamed(file.chopped(4));
            QImage canvas(image.size().toSize(), QImage::Format_ARGB32_Premultiplied);
            QVERIFY2(!canvas.isNull(), qPrintable(file));
            canvas.fill(Qt::transparent);
            QPainter painter(&canvas);
            image.paint(painter, canvas.rect());
            painter.end();

            QImage nothing(canvas.size(), canvas.format());
            nothing.fill(Qt::transparent);
            QVERIFY2(canvas != nothing, qPrintable(file));
        }
    }

    void theRecordingControlsHaveOneSize_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"record", "recordH", "stop", "stopH", "stopRed", "stopRedH",
                                 "BtnPause", "BtnPauseH", "play", "playH", "pause", "pauseH"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void theRecordingControlsHaveOneSize()
    {
        QFETCH(QString, name);

        QCOMPARE(imageNamed(name).size(), QSizeF(44, 44));
    }

    void theApplicationImageIsKnownUnderBothItsNames()
    {
        QVERIFY(!imageNamed(QStringLiteral("icon")).isNull());
        QVERIFY(!imageNamed(QStringLiteral("icon.icns")).isNull());
    }

    void anUnknownOrEmptyNameIsNoImage()
    {
        QVERIFY(imageNamed(QStringLiteral("nothingHasThisName")).isNull());
        QVERIFY(imageNamed(QString()).isNull());
    }
};

QTEST_MAIN(ImagesTest)
#include "ImagesTest.moc"

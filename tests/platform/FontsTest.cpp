#include "platform/Fonts.h"

#include "support/TestCase.h"

#include <QFontDatabase>
#include <QGuiApplication>

using tarvelo::platform::fontNamed;
using tarvelo::platform::scaledFontNamed;
using tarvelo::platform::systemFontOfSize;

class FontsTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aFaceThatIsMissingGivesTheSystemFontInTheSize()
    {
        const QFont font = fontNamed(QStringLiteral("No Face Has This Name"), 18);

        QCOMPARE(font.families(), QGuiApplication::font().families());
        QCOMPARE(font.pixelSize(), 18);
    }

    void theSystemFontHasTheSizeInPointsOfPrint()
    {
        const QFont font = systemFontOfSize(15.0);

        QCOMPARE(font.families(), QGuiApplication::font().families());
        QCOMPARE(font.pointSizeF(), 15.0);
    }

    void textsGrowWithTheDesktopsAndNoFurtherThanThereIsRoom()
    {
        const QFont usual = QGuiApplication::font();
        const auto sizeAt = [&](double pixels) {
            QFont font = usual;
            font.setPixelSize(qRound(pixels));
            QGuiApplication::setFont(font);
            return scaledFontNamed(QStringLiteral("No Face Has This Name"), 20).pixelSize();
        };

        QCOMPARE(sizeAt(10), 20);
        QCOMPARE(sizeAt(13), 20);
        QCOMPARE(sizeAt(16), 24);
        QCOMPARE(sizeAt(40), 27);
        QGuiApplication::setFont(usual);
    }

    void aFaceThatIsThereIsTaken()
    {
        const QString family = QFontDatabase::families().constLast();

        QCOMPARE(fontNamed(family, 14).families(), QStringList{family});
    }
};

QTEST_MAIN(FontsTest)
#include "FontsTest.moc"

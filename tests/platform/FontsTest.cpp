#include "platform/Fonts.h"

#include "support/TestCase.h"

#include <QFontDatabase>
#include <QGuiApplication>

using tarvelo::platform::fontNamed;

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

    void aFaceThatIsThereIsTaken()
    {
        const QString family = QFontDatabase::families().constLast();

        QCOMPARE(fontNamed(family, 14).families(), QStringList{family});
    }
};

QTEST_MAIN(FontsTest)
#include "FontsTest.moc"

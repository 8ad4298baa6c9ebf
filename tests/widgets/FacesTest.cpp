#include "widgets/Faces.h"

#include "support/TestCase.h"

#include <QFont>
#include <QGuiApplication>

using tarvelo::widgets::fixedFace;
using tarvelo::widgets::scaledFace;

class FacesTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void oneFaceFollowsTheDesktopsLettersAndTheOtherDoesNot()
    {
        setLetters(13);
        QCOMPARE(scaledFace(20), fixedFace(20));

        setLetters(16);

        QCOMPARE(scaledFace(20).pixelSize(), 24);
        QCOMPARE(fixedFace(20).pixelSize(), 20);
        QCOMPARE(scaledFace(20).families(), fixedFace(20).families());
    }

private:
    void prepare() override { m_usual = QGuiApplication::font(); }
    void finish() override { QGuiApplication::setFont(m_usual); }
    void setLetters(int pixels) const
    {
        QFont font = m_usual;
        font.setPixelSize(pixels);
        QGuiApplication::setFont(font);
    }

    QFont m_usual;
};

QTEST_MAIN(FacesTest)
#include "FacesTest.moc"

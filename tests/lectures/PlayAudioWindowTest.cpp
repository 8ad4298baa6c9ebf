#include "lectures/PlayAudioWindow.h"

#include "lectures/ProgramCase.h"
#include "widgets/CustomWindow.h"

using namespace Qt::StringLiterals;

class PlayAudioWindowTest final : public tarvelo::tests::ProgramCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tarvelo::platform::installTexts(); }

    void thePlayWindowIsACardWithoutABorder()
    {
        QWidget &window = *windows().playAudioOutlets().playAudioWindow;
        m_program->start();
        window.show();

        QVERIFY(qobject_cast<tarvelo::widgets::CustomWindow *>(&window));
        QVERIFY(!window.mask().contains(QPoint(0, 0)));
        QVERIFY(window.mask().contains(window.rect().center()));
        QCOMPARE(window.findChild<QWidget *>(u"playPanel"_s)->size(), window.size());
    }
};

QTEST_MAIN(PlayAudioWindowTest)
#include "PlayAudioWindowTest.moc"

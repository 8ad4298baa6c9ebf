#include "lectures/PlayAudioWindow.h"

#include "support/LectureProgram.h"
#include "support/TestCase.h"
#include "widgets/CustomWindow.h"

using namespace Qt::StringLiterals;
using tarvelo::tests::LectureProgram;

class PlayAudioWindowTest final : public tarvelo::tests::TestCase
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

private:
    void prepare() override { m_program = std::make_unique<LectureProgram>(); }
    void finish() override { m_program.reset(); }

    const tarvelo::lectures::LectureWindows &windows() const { return m_program->windows; }

    std::unique_ptr<LectureProgram> m_program;
};

QTEST_MAIN(PlayAudioWindowTest)
#include "PlayAudioWindowTest.moc"

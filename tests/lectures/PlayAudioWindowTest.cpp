#include "lectures/PlayAudioWindow.h"

#include "lectures/ProgramCase.h"
#include "widgets/CustomWindow.h"

#include <QStyle>

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

    void whatStandsAtItsEdgesStandsOnOneLine_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("left to right") << Qt::LeftToRight;
        QTest::newRow("right to left") << Qt::RightToLeft;
    }
    void whatStandsAtItsEdgesStandsOnOneLine()
    {
        QFETCH(const Qt::LayoutDirection, direction);
        QWidget &window = *windows().playAudioOutlets().playAudioWindow;
        window.setLayoutDirection(direction);
        window.show();
        const auto place = [&](const QString &name) {
            auto *view = window.findChild<QWidget *>(name);
            const QRect inWindow({view->mapTo(&window, QPoint()), view->size()});
            return QStyle::visualRect(direction, window.rect(), inWindow);
        };

        QCOMPARE(place(u"btnPlayLecture"_s).left(), 20);
        QCOMPARE(place(u"lblSpeed"_s).left(), 20);
        // The title is written 2 points further in than it stands.
        QCOMPARE(place(u"txtSubjectName"_s).left(), 20 - 2);
        const int end = window.width() - 20 - 1;
        QCOMPARE(place(u"sliderPlayProgress"_s).right(), end);
        QCOMPARE(place(u"segPlaySpeed"_s).right(), end);
        // The drawing lies 2 points further in than its button.
        QCOMPARE(place(u"btnClosePlayAudio"_s).right(), end + 2);
    }
};

QTEST_MAIN(PlayAudioWindowTest)
#include "PlayAudioWindowTest.moc"

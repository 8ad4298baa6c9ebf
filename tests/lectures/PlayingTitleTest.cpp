#include "lectures/PlayingTitle.h"

#include "support/TestCase.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using tarvelo::lectures::keepTitleInSight;

class PlayingTitleTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whileTheSubjectIsHiddenTheTitleOfTheWindowShowsInItsPlace()
    {
        QVERIFY(title().isHidden());

        m_subject->hide();
        m_window->setWindowTitle(u"Waves & <b>sound</b>"_s);

        QVERIFY(title().isVisible());
        QCOMPARE(title().text(), u"Waves & <b>sound</b>"_s);
        QCOMPARE(title().toolTip(), u"<qt>Waves &amp; &lt;b&gt;sound&lt;/b&gt;</qt>"_s);
        m_window->setWindowTitle(u"Maths & Physics"_s);
        QCOMPARE(title().toolTip(), u"Maths & Physics"_s);
        m_subject->show();
        QVERIFY(title().isHidden());
    }

    void itTakesTheRoomAndALongTitleNoMore()
    {
        m_subject->hide();
        const int width = m_window->width();

        m_window->setWindowTitle(QString(500, u'x'));
        QCoreApplication::processEvents();

        QCOMPARE(m_window->width(), width);
        QVERIFY(title().width() > 200);
        QVERIFY(m_window->rect().contains(title().geometry()));
    }

private:
    void prepare() override
    {
        m_window = std::make_unique<QWidget>();
        m_window->resize(300, 60);
        auto *row = new QHBoxLayout(m_window.get());
        row->addWidget(m_subject = new QLineEdit);
        row->addWidget(new QWidget);
        keepTitleInSight(*m_subject);
        m_window->show();
    }
    void finish() override { m_window.reset(); }

    QLabel &title() const { return *m_window->findChild<QLabel *>(u"lblPlaying"_s); }

    std::unique_ptr<QWidget> m_window;
    QLineEdit *m_subject = nullptr;
};

QTEST_MAIN(PlayingTitleTest)
#include "PlayingTitleTest.moc"

#include "lectures/LectureHeading.h"

#include "platform/Texts.h"
#include "support/TestCase.h"

#include <QLabel>

using namespace Qt::StringLiterals;
using tarvelo::lectures::putHeadingOver;

class LectureHeadingTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tarvelo::platform::installTexts(); }

    void itFillsTheRoomOverTheViewWhereverThatGoes()
    {
        QCOMPARE(heading().text(), u"Lecture"_s);
        QCOMPARE(heading().geometry(), QRect(834, 0, 400, 51));

        m_view->setGeometry(200, 101, 450, 489);

        QCOMPARE(heading().geometry(), QRect(201, 0, 400, 102));
    }

    void itsLineGoesOnFromThatOfTheList()
    {
        m_view->setGeometry(0, 101, 450, 489);
        m_window->resize(400, 540);

        const QImage drawn = heading().grab().toImage();

        QVERIFY(drawn.pixelColor(200, 50) != QColor(Qt::white));
        QCOMPARE(drawn.pixelColor(200, 101), QColor(Qt::white));
    }

    void itComesAndGoesWithTheView()
    {
        QVERIFY(heading().isVisible());

        m_view->hide();
        QVERIFY(heading().isHidden());
        m_view->show();
        QVERIFY(heading().isVisible());
        m_view->move(833, 0);

        QVERIFY(heading().isHidden());
    }

private:
    void prepare() override
    {
        m_window = std::make_unique<QWidget>();
        m_window->resize(1234, 540);
        m_window->setPalette(QPalette(Qt::white));
        m_view = new QWidget(m_window.get());
        m_view->setGeometry(833, 50, 401, 540);
        putHeadingOver(*m_view);
        m_window->show();
    }
    void finish() override { m_window.reset(); }

    QLabel &heading() const { return *m_window->findChild<QLabel *>(u"lectureHeading"_s); }

    std::unique_ptr<QWidget> m_window;
    QWidget *m_view = nullptr;
};

QTEST_MAIN(LectureHeadingTest)
#include "LectureHeadingTest.moc"

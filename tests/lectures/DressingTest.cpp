#include "lectures/Dressing.h"

#include "support/TestCase.h"
#include "widgets/Faces.h"
#include "widgets/ImageButton.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QTextDocument>
#include <QTextEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using tarvelo::widgets::ImageButton;

class DressingTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aTextHasItsSizeAndItsColour()
    {
        QLabel label;

        tarvelo::lectures::style(label, 13, Qt::red);

        QCOMPARE(label.font(), tarvelo::widgets::scaledFace(13));
        QCOMPARE(label.palette().color(QPalette::WindowText), QColor(Qt::red));
    }

    void aHiddenControlKeepsItsRoom()
    {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *control = new QLabel(u"control"_s, &window);
        layout->addWidget(control);
        const QSize room = layout->sizeHint();

        tarvelo::lectures::keepRoom(*control);
        control->hide();

        QCOMPARE(layout->sizeHint(), room);
    }

    void aLongTitleMakesItsButtonWider()
    {
        ImageButton button;
        button.setMinimumSize(84, 32);
        button.setText(u"a title that is much longer than eighty-four points are"_s);

        tarvelo::lectures::giveRoomToTitle(button);

        QCOMPARE(button.minimumWidth(),
                 button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width() + 28);
    }

    void aShortTitleLeavesItsButtonAsItIs()
    {
        ImageButton button;
        button.setMinimumSize(284, 132);
        button.setText(u"Done"_s);

        tarvelo::lectures::giveRoomToTitle(button);

        QCOMPARE(button.minimumSize(), QSize(284, 132));
    }

    void whatIsTypedKeepsItsDistanceFromTheEdge()
    {
        QLineEdit field;
        QTextEdit notes;

        tarvelo::lectures::giveMargins(field, notes);

        QCOMPARE(field.textMargins(), QMargins(8, 0, 8, 0));
        QCOMPARE(notes.document()->documentMargin(), 8.0);
    }

    void aSubjectTakes255Characters()
    {
        QLineEdit field;
        tarvelo::lectures::limitSubject(field);

        field.setText(QString(254, u'x'));
        QTest::keyClicks(&field, u"yz"_s);

        QCOMPARE(field.text(), QString(254, u'x') + u'y');
    }
};

QTEST_MAIN(DressingTest)
#include "DressingTest.moc"

#include "lectures/LectureView.h"

#include "platform/Texts.h"
#include "support/TestCase.h"
#include "widgets/ImageButton.h"

#include <QApplication>
#include <QLayout>

using tarvelo::lectures::buildLectureView;
using tarvelo::lectures::LectureView;

class LectureViewTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tarvelo::platform::installTexts(); }

    void theButtonsUnderTheNotesStandInOneRow()
    {
        QWidget pane;
        const LectureView view = buildLectureView(pane);

        QCOMPARE(rowsOfButtons(pane, view), 1);
    }

    void titlesThatAreTooLongForOneRowGetTwo()
    {
        const QFont usual = QApplication::font();
        QFont large = usual;
        large.setPointSize(36);
        QApplication::setFont(large);
        QWidget pane;
        const LectureView view = buildLectureView(pane);
        QApplication::setFont(usual);

        QCOMPARE(rowsOfButtons(pane, view), 2);
    }

private:
    static int rowsOfButtons(const QWidget &pane, const LectureView &view)
    {
        const int rows = pane.layout()->count();
        const auto rowOf = [&pane, rows](QWidget *button) {
            for (int row = 0; row < rows; ++row) {
                const QLayout *layout = pane.layout()->itemAt(row)->layout();
                if (layout && layout->indexOf(button) >= 0)
                    return row;
            }
            return -1;
        };
        return rowOf(view.outlets.btnDoneEditLecture) - rowOf(view.outlets.btnSlidetoView) + 1;
    }
};

QTEST_MAIN(LectureViewTest)
#include "LectureViewTest.moc"

#include "lectures/RowLookup.h"

#include "lectures/CustomTableCellView.h"
#include "lectures/ProgramCase.h"

using tarvelo::lectures::rowOfSender;
using tarvelo::tests::aLecture;
using tarvelo::tests::theDay;

class RowLookupTest final : public tarvelo::tests::ProgramCase
{
    Q_OBJECT

private Q_SLOTS:
    void aControlInARowGivesItsRow()
    {
        showLectures(3);

        QCOMPARE(rowOfSender(table(), row(0)->btnEdit()), 0);
        QCOMPARE(rowOfSender(table(), row(2)->btnInfo()), 2);
    }

    void onlyTheParentOfTheSenderCounts()
    {
        showLectures(1);
        auto *deeper = new QWidget(row(0)->btnEdit());
        QWidget loose;

        QCOMPARE(rowOfSender(table(), row(0)), -1);
        QCOMPARE(rowOfSender(table(), deeper), -1);
        QCOMPARE(rowOfSender(table(), &loose), -1);
        QCOMPARE(rowOfSender(table(), nullptr), -1);
    }

    void anEmptyListHasNoRow()
    {
        showLectures(1);
        QWidget *edit = row(0)->btnEdit();

        m_program->controller.prepareViewForDate(theDay("2024-03-06"));

        QCOMPARE(rowOfSender(table(), edit), -1);
    }

    void lookingMakesNoRowAndScrollsNowhere()
    {
        showLectures(100);
        QWidget *edit = row(99)->btnEdit();
        table().scrollRowToVisible(0);
        const int views = table().viewCount();

        rowOfSender(table(), edit);

        QCOMPARE(table().viewCount(), views);
        QVERIFY(table().viewAtColumnRowMakeIfNecessary(0, 0, false));
    }

private:
    void showLectures(int count)
    {
        for (int i = 0; i < count; ++i)
            aLecture().insertInto(m_program->database);
        m_program->showDay(m_program->today());
    }
};

QTEST_MAIN(RowLookupTest)
#include "RowLookupTest.moc"

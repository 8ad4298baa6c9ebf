#include "lectures/RowLookup.h"

#include "lectures/CustomTableCellView.h"
#include "support/LectureProgram.h"
#include "support/TestCase.h"

using tarvelo::lectures::rowOfSender;
using tarvelo::tests::aLecture;
using tarvelo::tests::LectureProgram;
using tarvelo::tests::theDay;

class RowLookupTest final : public tarvelo::tests::TestCase
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
    void prepare() override { m_program = std::make_unique<LectureProgram>(); }
    void finish() override { m_program.reset(); }

    void showLectures(int count)
    {
        for (int i = 0; i < count; ++i)
            aLecture().insertInto(m_program->database);
        m_program->showDay(m_program->today());
    }
    tarvelo::lectures::LectureTable &table() const
    {
        return *m_program->windows.mainOutlets().tblRecordSubjectList;
    }
    tarvelo::lectures::CustomTableCellView *row(int row) const
    {
        return table().viewAtColumnRowMakeIfNecessary(0, row, true);
    }

    std::unique_ptr<LectureProgram> m_program;
};

QTEST_MAIN(RowLookupTest)
#include "RowLookupTest.moc"

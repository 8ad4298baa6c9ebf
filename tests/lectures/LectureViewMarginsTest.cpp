#include "lectures/LectureViewMargins.h"

#include "lectures/ProgramCase.h"

class LectureViewMarginsTest final : public tarvelo::tests::TodayCase
{
    Q_OBJECT

private Q_SLOTS:
    void besideTheListEveryControlIsInSight()
    {
        m_program->controller.onExpandView(nullptr);

        expectControlsInSight();
    }

    void aloneEveryControlIsInSight()
    {
        m_program->controller.viewEditView(nullptr);

        expectControlsInSight();
    }

    void besideTheListAfterItStoodAloneEveryControlIsInSight()
    {
        m_program->controller.viewEditView(nullptr);
        m_program->controller.onExpandView(nullptr);

        expectControlsInSight();
    }

private:
    void expectControlsInSight() const
    {
        const auto &window = m_program->windows.mainWindow();
        QTRY_COMPARE(window.width(), window.frameWidth());
        const auto &view = m_program->windows.lectureViewOutlets();
        for (const QWidget *control : QList<const QWidget *>{
                 view.tSubjectName, view.tViewNoteForEdit, view.btnDoneEditLecture}) {
            QTRY_VERIFY2(
                window.rect().contains(QRect(control->mapTo(&window, QPoint()), control->size())),
                qPrintable(control->objectName()));
        }
    }
};

QTEST_MAIN(LectureViewMarginsTest)
#include "LectureViewMarginsTest.moc"

#pragma once

#include "support/LectureProgram.h"
#include "support/TestCase.h"

#include <memory>

namespace tarvelo::tests {

// The base of tests of the lecture windows and their controller: every test has a program of its
// own.
class ProgramCase : public TestCase
{
protected:
    void prepare() override { m_program = std::make_unique<LectureProgram>(); }
    void finish() override { m_program.reset(); }

    lectures::MediaLinksArrayController &controller() const { return m_program->controller; }
    const lectures::LectureWindows &windows() const { return m_program->windows; }
    widgets::SlidingWindow &window() const { return windows().mainWindow(); }
    lectures::LectureTable &table() const { return *windows().mainOutlets().tblRecordSubjectList; }
    lectures::CustomTableCellView *row(int row) const
    {
        return table().viewAtColumnRowMakeIfNecessary(0, row, true);
    }

    std::unique_ptr<LectureProgram> m_program;
};

// The same, with the list of today, in which there is nothing yet.
class TodayCase : public ProgramCase
{
protected:
    void prepare() override
    {
        ProgramCase::prepare();
        m_program->showDay(m_program->today());
    }
};

} // namespace tarvelo::tests

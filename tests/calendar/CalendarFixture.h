#pragma once

#include "calendar/CKCalendarView.h"
#include "calendar/CalendarDouble.h"
#include "calendar/DateButton.h"
#include "platform/Dates.h"
#include "platform/Frames.h"
#include "platform/Region.h"
#include "support/FakeClock.h"
#include "support/TestCase.h"
#include "widgets/CustomButton.h"

namespace tarvelo::tests {

// A calendar in a window, in a region and at a moment of the test's choice: 5 March 2024 at first.
class CalendarFixture : public TestCase
{
protected:
    static QDateTime day(int year, int month, int number)
    {
        return {QDate(year, month, number), QTime(0, 0), Qt::UTC};
    }

    FakeClock m_clock;
    std::unique_ptr<platform::Dates> m_dates;
    CalendarDouble m_delegate;
    std::unique_ptr<QWidget> m_window;
    calendar::CKCalendarView *m_view = nullptr;

    void makeCalendar(const char *locale = "en_US", int width = 450)
    {
        m_window.reset();
        m_dates = std::make_unique<platform::Dates>(
            m_clock, platform::Region{locale, QStringLiteral("UTC")});
        m_window = std::make_unique<QWidget>();
        m_window->resize(600, 500);
        m_view = new calendar::CKCalendarView(*m_dates, QRectF(-2, 0, width, 320), m_window.get());
        m_view->setDelegate(&m_delegate);
    }
    void showWindow()
    {
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }
    calendar::DateButton *cell(int index) const
    {
        return m_view->dateButtons().at(static_cast<size_t>(index));
    }
    int shownCells() const
    {
        int count = 0;
        for (const calendar::DateButton *button : m_view->dateButtons())
            count += button->isHidden() ? 0 : 1;
        return count;
    }
    widgets::CustomButton *button(const char *name) const
    {
        return m_view->findChild<widgets::CustomButton *>(QLatin1String(name));
    }
    QRectF frameOfPart(const char *name) const
    {
        return platform::frameOf(*m_view->findChild<QWidget *>(QLatin1String(name)));
    }

    void prepare() override
    {
        m_clock.set(day(2024, 3, 5).addSecs(9 * 3600));
        m_delegate.listShows = false;
        m_delegate.records = false;
        m_delegate.selected.clear();
        m_delegate.databaseAsked = 0;
        makeCalendar();
    }
    void finish() override { m_window.reset(); }
};

} // namespace tarvelo::tests

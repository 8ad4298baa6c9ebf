// One whole redraw of the month calendar as the user sees it: the layout, which asks the store for
// every day's lectures, and the painting of all cells, each of which asks again; by the number of
// lectures kept and with or without the indexes. With them the time must not depend on the number.

#include "MonthOfLectures.h"
#include "calendar/CKCalendarView.h"
#include "calendar/CalendarDelegate.h"
#include "platform/Dates.h"

#include <QApplication>
#include <QImage>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <map>

using namespace tarvelo;
using store::Sqlite;

namespace {

class StandingClock final : public platform::Clock
{
public:
    QDateTime now() const override { return {bench::LastDay.addDays(-26), QTime(9, 0), Qt::UTC}; }
    std::unique_ptr<Pending> callAfter(std::chrono::milliseconds, std::function<void()>) override
    {
        return nullptr;
    }
    std::unique_ptr<Pending> callEvery(std::chrono::milliseconds, std::function<void()>) override
    {
        return nullptr;
    }
};

class StoreOnly final : public calendar::CalendarDelegate
{
public:
    explicit StoreOnly(Sqlite &database)
        : m_database(database)
    {
    }
    bool isTarveloViewShowing() const override { return false; }
    bool isRecordingNow() const override { return false; }
    Sqlite *getTheDB() override { return &m_database; }
    void calendarDidSelectDate(calendar::CKCalendarView *, const QDateTime &) override {}

private:
    Sqlite &m_database;
};

// Made once a kind and kept for the run.
QString fileWith(int lectures, bool indexes)
{
    static const QTemporaryDir folder;
    static std::map<std::pair<int, bool>, QString> files;
    QString &file = files[{lectures, indexes}];
    if (file.isEmpty()) {
        file = folder.filePath(QStringLiteral("%1-%2").arg(lectures).arg(indexes));
        Sqlite database(file);
        database.executeNonQuery(store::statements::CreateAfterInsert);
        if (indexes)
            database.executeNonQuery(store::statements::IndexByDay);
        bench::fill(database, lectures);
    }
    return file;
}

class Month final
{
public:
    Month()
        : m_dates(m_clock, {"en_US", QStringLiteral("UTC")})
        , m_view(m_dates, QRectF(0, 0, 450, 490), nullptr)
        , m_image(m_view.size(), QImage::Format_ARGB32_Premultiplied)
    {
    }
    calendar::CKCalendarView &view() { return m_view; }
    void paint() { m_view.render(&m_image); }

private:
    StandingClock m_clock;
    platform::Dates m_dates;
    calendar::CKCalendarView m_view;
    QImage m_image;
};

void monthRedraw(benchmark::State &state)
{
    Sqlite database(fileWith(static_cast<int>(state.range(0)), state.range(1) != 0));
    StoreOnly delegate(database);
    Month month;
    month.view().setDelegate(&delegate);

    for (auto _ : state) {
        month.view().layoutSubviews();
        month.paint();
    }
}

// What of it is not the store's.
void monthRedrawWithoutStore(benchmark::State &state)
{
    Month month;
    for (auto _ : state) {
        month.view().layoutSubviews();
        month.paint();
    }
}

} // namespace

BENCHMARK(monthRedraw)
    ->ArgNames({"lectures", "indexes"})
    ->ArgsProduct({{10, 1000, 100000}, {0, 1}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(monthRedrawWithoutStore)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

// What a redraw of one month asks of the store: the day query for each of its 31 days, twice (once
// for the day's count, once for its badge), by the number of lectures kept and with or without the
// indexes.

#include "MonthOfLectures.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <map>
#include <memory>

using namespace tarvelo;
using namespace tarvelo::store;

namespace {

// A file with as many lectures, the way an older run left it: without indexes. Made once a size and
// kept for the run.
QString fileWith(int lectures)
{
    static const QTemporaryDir folder;
    static std::map<int, QString> files;
    QString &file = files[lectures];
    if (file.isEmpty()) {
        file = folder.filePath(QString::number(lectures));
        Sqlite database(file);
        database.executeNonQuery(statements::CreateAfterInsert);
        bench::fill(database, lectures);
    }
    return file;
}

void makeIndexes(Sqlite &database)
{
    database.executeNonQuery(statements::IndexByDay);
    database.executeNonQuery(statements::IndexByMonth);
}

void dropIndexes(Sqlite &database)
{
    database.executeNonQuery(QStringLiteral("DROP INDEX IF EXISTS audioDataByDay"));
    database.executeNonQuery(QStringLiteral("DROP INDEX IF EXISTS audioDataByMonth"));
}

qint64 askMonth(Sqlite &database)
{
    qint64 found = 0;
    for (int ask = 0; ask < 62; ++ask) {
        const QString day = bench::LastDay.addDays(-(ask / 2)).toString(Qt::ISODate);
        found += database.executeQueryArguments(statements::DayQuery, {day})->size();
    }
    return found;
}

void dayQueriesOfAMonth(benchmark::State &state)
{
    Sqlite database(fileWith(static_cast<int>(state.range(0))));
    if (state.range(1) != 0)
        makeIndexes(database);
    else
        dropIndexes(database);

    qint64 found = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(found = askMonth(database));
    state.counters["rows"] = static_cast<double>(found);
}

// The price of the indexes, on the first start with a file that has none.
void indexingAnOlderFile(benchmark::State &state)
{
    Sqlite database(fileWith(static_cast<int>(state.range(0))));
    for (auto _ : state) {
        state.PauseTiming();
        dropIndexes(database);
        state.ResumeTiming();
        makeIndexes(database);
    }
}

} // namespace

BENCHMARK(dayQueriesOfAMonth)
    ->ArgNames({"lectures", "indexes"})
    ->ArgsProduct({{10, 1000, 100000}, {0, 1}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(indexingAnOlderFile)->ArgName("lectures")->Arg(100000)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();

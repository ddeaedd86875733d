// Reading and printing dates, times and durations, per value.

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "DateTimeSpan.h"

using VxXmlLib16::CDateTime;
using VxXmlLib16::CDateTimeSpan;

namespace {

const std::vector<std::string> dateTimeTexts = {
    "2001-10-26T21:32:52",          "2001-10-26T21:32:52.12679-05:00", "-0044-03-15T12:00:00Z",
    "1999-12-31T23:59:59.999999999", "2024-02-29T00:00:00+14:00",      "0001-01-01T00:00:00.5",
};
const std::vector<std::string> dateTexts = {"2001-10-26", "2001-10-26Z", "-0001-01-01+02:00", "2001-10", "--05-01",
                                            "---15"};
const std::vector<std::string> timeTexts = {"12:00:00", "23:59:59.999", "00:00:00.000000001Z", "12:30:00-05:00"};
const std::vector<std::string> durationTexts = {"P1Y2M3DT4H5M6.5S", "-P1D", "PT1.123456789S", "P14M", "PT36H",
                                                "P1Y"};

template <class Read>
void ReadAll(benchmark::State &state, const std::vector<std::string> &texts, Read read)
{
    for (auto _ : state)
        for (const std::string &text : texts)
            read(text.c_str());
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * texts.size()));
}

template <class Value, class Read>
void PrintAll(benchmark::State &state, const std::vector<std::string> &texts, Read read)
{
    std::vector<Value> values;
    for (const std::string &text : texts)
        values.push_back(read(text.c_str()));
    for (auto _ : state)
        for (const Value &value : values)
            benchmark::DoNotOptimize(value.ToString());
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * values.size()));
}

CDateTime DateTime(const char *text) { return CDateTime(text); }

CDateTime Date(const char *text)
{
    CDateTime value;
    value.ParseXSDDate(text);
    return value;
}

CDateTime Time(const char *text)
{
    CDateTime value;
    value.ParseXSDTime(text);
    return value;
}

CDateTimeSpan Duration(const char *text)
{
    CDateTimeSpan value;
    value.ParseXSDDuration(text);
    return value;
}

void BM_ParseDateTime(benchmark::State &state)
{
    ReadAll(state, dateTimeTexts, [](const char *t) { benchmark::DoNotOptimize(DateTime(t)); });
}
void BM_ParseDate(benchmark::State &state)
{
    ReadAll(state, dateTexts, [](const char *t) { benchmark::DoNotOptimize(Date(t)); });
}
void BM_ParseTime(benchmark::State &state)
{
    ReadAll(state, timeTexts, [](const char *t) { benchmark::DoNotOptimize(Time(t)); });
}
void BM_ParseDuration(benchmark::State &state)
{
    ReadAll(state, durationTexts, [](const char *t) { benchmark::DoNotOptimize(Duration(t)); });
}
void BM_PrintDateTime(benchmark::State &state) { PrintAll<CDateTime>(state, dateTimeTexts, DateTime); }
void BM_PrintDate(benchmark::State &state) { PrintAll<CDateTime>(state, dateTexts, Date); }
void BM_PrintDuration(benchmark::State &state) { PrintAll<CDateTimeSpan>(state, durationTexts, Duration); }

} // namespace

BENCHMARK(BM_ParseDateTime);
BENCHMARK(BM_ParseDate);
BENCHMARK(BM_ParseTime);
BENCHMARK(BM_ParseDuration);
BENCHMARK(BM_PrintDateTime);
BENCHMARK(BM_PrintDate);
BENCHMARK(BM_PrintDuration);

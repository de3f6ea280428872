// A whole check in memory of one process: reading, loading, validating, the detail table.
#include <KZEkaMok/KZEkaMok.h>
#include <benchmark/benchmark.h>

#include <string>

#include "BenchInput.h"
#include "KZCCsvConvMokEka.h"

namespace {

void Check(benchmark::State& state, const std::string& strCsv, const char* szExpected)
{
    KZCCsvConvMokEka converter;
    for (auto _ : state) {
        if (converter.CsvCheck(strCsv.c_str())->GetResult() != szExpected) {
            state.SkipWithError("the check had another outcome than its input calls for");
            break;
        }
    }
    converter.Terminate();
    state.SetItemsProcessed(state.iterations() * state.range(0) *
                            static_cast<std::int64_t>(BenchInput::COLUMN_COUNT));
}

std::size_t RecordCount(const benchmark::State& state)
{
    return static_cast<std::size_t>(state.range(0));
}

void CheckClean(benchmark::State& state)
{
    const BenchInput::Folder folder;
    Check(state, folder.WriteCsv("check.csv", {RecordCount(state), BenchInput::Cells::CLEAN}),
          PROCESS_OK);
}

void CheckEveryCellWrong(benchmark::State& state)
{
    const BenchInput::Folder folder;
    Check(state, folder.WriteCsv("check.csv", {RecordCount(state), BenchInput::Cells::WRONG}),
          PROCESS_FAIL);
}

void CheckDates(benchmark::State& state)
{
    const BenchInput::Folder folder;
    const std::string strCsv = folder.Path("dates.csv").string();
    BenchInput::WriteFile(strCsv, BenchInput::DateCsvText(RecordCount(state)));
    Check(state, strCsv, PROCESS_OK);
}

// The argument is the number of records; items are cells.
BENCHMARK(CheckClean)->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(CheckDates)->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(CheckEveryCellWrong)->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);

}  // namespace

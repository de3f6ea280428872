// A whole check in memory of one process: reading, loading, validating, the detail table.
#include <KZEkaMok/KZEkaMok.h>
#include <benchmark/benchmark.h>

#include "BenchInput.h"
#include "KZCCsvConvMokEka.h"

namespace {

void Check(benchmark::State& state, BenchInput::Cells eCells, const char* szExpected)
{
    const BenchInput::Folder folder;
    const auto nRecords = static_cast<std::size_t>(state.range(0));
    const std::string strCsv = folder.WriteCsv("check.csv", {nRecords, eCells});
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

void CheckClean(benchmark::State& state)
{
    Check(state, BenchInput::Cells::CLEAN, PROCESS_OK);
}

void CheckEveryCellWrong(benchmark::State& state)
{
    Check(state, BenchInput::Cells::WRONG, PROCESS_FAIL);
}

// The argument is the number of records; items are cells.
BENCHMARK(CheckClean)->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(CheckEveryCellWrong)->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);

}  // namespace

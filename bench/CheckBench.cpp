// A whole check in memory of one process: reading, loading, validating, the detail table.
#include <KZEkaMok/KZEkaMok.h>
#include <benchmark/benchmark.h>

#include <string>

#include "BenchInput.h"
#include "KZCCsvConvMokEka.h"

namespace {

using Operation = KZCConvertResultEka* (KZCCsvConvMokEka::*)(const char*);

void Check(benchmark::State& state,
           const std::string& strCsv,
           const char* szExpected,
           Operation pCheck = &KZCCsvConvMokEka::CsvCheck)
{
    KZCCsvConvMokEka converter;
    for (auto _ : state) {
        if ((converter.*pCheck)(strCsv.c_str())->GetResult() != szExpected) {
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

void CheckFinance(benchmark::State& state, BenchInput::Cells eCells, const char* szExpected)
{
    const BenchInput::Folder folder;
    const BenchInput::CsvShape shape = {RecordCount(state), eCells, 0, BenchInput::FINANCE_TYPE_ID};
    Check(state, folder.WriteCsv("check.csv", shape), szExpected,
          &KZCCsvConvMokEka::CsvCheckFinance);
}

void CheckFinanceClean(benchmark::State& state)
{
    CheckFinance(state, BenchInput::Cells::CLEAN, PROCESS_OK);
}

void CheckFinanceEveryCellWrong(benchmark::State& state)
{
    CheckFinance(state, BenchInput::Cells::WRONG, PROCESS_FAIL);
}

// The argument is the number of records; items are cells.
BENCHMARK(CheckClean)->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(CheckDates)->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(CheckEveryCellWrong)->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(CheckFinanceClean)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(CheckFinanceEveryCellWrong)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace

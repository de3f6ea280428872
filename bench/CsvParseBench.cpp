// Splitting and trimming of a CSV text in both encodings, without the file.
#include <benchmark/benchmark.h>

#include "BenchInput.h"
#include "KZCEkaCommon.h"
#include "KZCEkaCsvFile.h"
#include "text/ShiftJis.h"

namespace {

void Parse(benchmark::State& state, const std::string& strText, bool bDuringCheck)
{
    const BenchInput::Folder folder;
    KZCEkaCommon::SetCsvCheckFlag(bDuringCheck);
    for (auto _ : state) {
        KZCEkaCsvFile csv;
        if (csv.Parse(strText.c_str(), /*bQuote=*/false) != 0) {
            state.SkipWithError("the text was refused");
            break;
        }
        benchmark::DoNotOptimize(csv.GetItem(0, 1));
    }
    KZCEkaCommon::SetCsvCheckFlag(false);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(strText.size()));
}

std::string CsvText(const benchmark::State& state)
{
    return BenchInput::CsvText({static_cast<std::size_t>(state.range(0))});
}

void CsvParseOfShiftJis(benchmark::State& state)
{
    Parse(state, CsvText(state), /*bDuringCheck=*/true);
}

void CsvParseOfUtf8(benchmark::State& state)
{
    Parse(state, ShiftJis::ToUtf8(CsvText(state)).value(), /*bDuringCheck=*/false);
}

// The argument is the number of records.
BENCHMARK(CsvParseOfShiftJis)->Arg(500)->Arg(5000)->Unit(benchmark::kMicrosecond);
BENCHMARK(CsvParseOfUtf8)->Arg(500)->Arg(5000)->Unit(benchmark::kMicrosecond);

}  // namespace

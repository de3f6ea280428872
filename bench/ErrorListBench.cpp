// The list of errors: recording, dropping of repeated entries, questions, the detail table.
#include <benchmark/benchmark.h>

#include "KZCValidResult.h"

namespace {

constexpr long COLUMNS = 20;

void RecordDistinctErrors(KZCValidResult& result, long lCount)
{
    for (long i = 0; i < lCount; ++i)
        result.SetResult(HE70001E, i / COLUMNS + 1, i % COLUMNS + 1, SINGLE_COLUMN);
}

void RecordAndRender(benchmark::State& state)
{
    KZCValidResult& result = *KZCValidResult::instance();
    for (auto _ : state) {
        RecordDistinctErrors(result, state.range(0));
        benchmark::DoNotOptimize(result.MakeResult());
    }
    KZCValidResult::destroy();
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void RecordAndDropRepeatedErrors(benchmark::State& state)
{
    KZCValidResult& result = *KZCValidResult::instance();
    for (auto _ : state) {
        result.ClearResult();
        RecordDistinctErrors(result, state.range(0));
        result.AlignErrCode();
    }
    KZCValidResult::destroy();
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// Each error is asked for as soon as it is recorded, which is how checks on other columns' errors
/// behave.
void RecordAndAsk(benchmark::State& state)
{
    KZCValidResult& result = *KZCValidResult::instance();
    for (auto _ : state) {
        result.ClearResult();
        for (long i = 0; i < state.range(0); ++i) {
            result.SetResult(HE70001E, i / COLUMNS + 1, i % COLUMNS + 1, SINGLE_COLUMN);
            benchmark::DoNotOptimize(result.IsExistErr(i / COLUMNS + 1, COLUMNS + 1));
        }
    }
    KZCValidResult::destroy();
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// The argument is the number of errors, all distinct.
BENCHMARK(RecordAndRender)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(RecordAndDropRepeatedErrors)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(RecordAndAsk)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

}  // namespace

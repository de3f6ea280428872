// Escaping of cell texts on their way into the document.
#include <benchmark/benchmark.h>

#include <string>

#include "KZCEkaCommon.h"

namespace {

std::string Repeat(const std::string& strPiece, std::int64_t nBytes)
{
    std::string strText;
    while (strText.size() < static_cast<std::size_t>(nBytes))
        strText += strPiece;
    return strText;
}

void Escape(benchmark::State& state, const std::string& strPiece)
{
    const std::string strText = Repeat(strPiece, state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(KZCEkaCommon::SpecialEncoding(strText));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(strText.size()));
}

void SpecialEncodingOfPlainText(benchmark::State& state)
{
    Escape(state, "青葉市中央一丁目二番三号");
}

void SpecialEncodingOfSpecialCharacters(benchmark::State& state)
{
    Escape(state, "<a b=\"c\">&'</a>");
}

/// Many blocks of one kind: a look-out for the other kinds must not start anew at each.
void SpecialEncodingOfBlocks(benchmark::State& state)
{
    Escape(state, "<?x?>&");
}

/// Many starts without an end.
void SpecialEncodingOfTornBlocks(benchmark::State& state)
{
    Escape(state, "<!--<![CDATA[<?");
}

// The argument is the length in bytes. A short cell, and texts whose ratio shows the growth.
BENCHMARK(SpecialEncodingOfPlainText)->Arg(40)->Arg(10000)->Arg(100000);
BENCHMARK(SpecialEncodingOfSpecialCharacters)->Arg(40)->Arg(10000)->Arg(100000);
BENCHMARK(SpecialEncodingOfBlocks)->Arg(40)->Arg(10000)->Arg(100000);
BENCHMARK(SpecialEncodingOfTornBlocks)->Arg(40)->Arg(10000)->Arg(100000);

}  // namespace

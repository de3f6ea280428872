// The checks that look at every character of a value, on Shift_JIS cells.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "KZCEkaCommon.h"
#include "fault/Fault.h"
#include "text/ShiftJis.h"
#include "validator/KZCEkaValidItem.h"

namespace {

/// A value of nCharacters full-width characters that both checks pass, as Shift_JIS.
std::string Value(std::int64_t nCharacters)
{
    constexpr std::u16string_view CHARACTERS = u"青葉市中央一丁目二番三号";
    std::u16string strUnits;
    for (std::int64_t i = 0; i < nCharacters; ++i)
        strUnits += CHARACTERS[static_cast<std::size_t>(i) % CHARACTERS.size()];
    return ShiftJis::Encode(strUnits).value();
}

void CheckCharacters(benchmark::State& state, const char* szKeyword, const char* szMax)
{
    const std::string strValue = Value(state.range(0));
    const std::unique_ptr<KZCEkaValidItem> pItem =
        KZCEkaValidItem::CreateItem(0, szKeyword, "", "", szMax, MSG_NONE);
    KZCEkaCommon::SetCsvCheckFlag(true);
    for (auto _ : state) {
        if (pItem->Validate(strValue.c_str(), 0, 0) != STATUS_OK) {
            state.SkipWithError("the value was refused");
            break;
        }
    }
    KZCEkaCommon::SetCsvCheckFlag(false);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void Istring(benchmark::State& state)
{
    CheckCharacters(state, "istring", "");
}

void Lvystring(benchmark::State& state)
{
    CheckCharacters(state, "lvystring", "");
}

void Multibyte(benchmark::State& state)
{
    CheckCharacters(state, "multibyte", "");
}

void Charlength(benchmark::State& state)
{
    CheckCharacters(state, "charlength", "1000000");
}

// The argument is the number of characters. A usual cell, and two whose ratio shows the growth.
BENCHMARK(Istring)->Arg(12)->Arg(10000)->Arg(100000);
BENCHMARK(Lvystring)->Arg(12)->Arg(10000)->Arg(100000);
BENCHMARK(Multibyte)->Arg(12)->Arg(10000)->Arg(100000);
BENCHMARK(Charlength)->Arg(12)->Arg(10000)->Arg(100000);

}  // namespace

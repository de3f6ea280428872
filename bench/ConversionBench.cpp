// A whole conversion in memory of one process, the document's file included.
#include <KZEkaMok/KZEkaMok.h>
#include <benchmark/benchmark.h>

#include "BenchFiler.h"
#include "BenchInput.h"
#include "KZCCsvConvMokEka.h"

namespace {

void Conversion(benchmark::State& state)
{
    const BenchInput::Folder folder;
    const auto nRecords = static_cast<std::size_t>(state.range(0));
    const std::string strCsv = folder.WriteCsv("convert.csv", {nRecords});
    const std::string strMok = folder.Path("convert.mok").string();
    KZCCsvConvMokEka converter;
    for (auto _ : state) {
        const KZCConvertResultEka* pResult = converter.CsvConvMok(
            strCsv.c_str(), strMok.c_str(), BenchFiler::ZEIMUSHO_CD, BenchFiler::NOZEISHA_ID,
            BenchFiler::KOJIN_BANGO, BenchFiler::HOJIN_BANGO, BenchFiler::NOZEISHA_NM,
            BenchFiler::NOZEISHA_ADR, BenchFiler::DAIHYO_NM, BenchFiler::DAIRI_ID,
            BenchFiler::DAIRI_NM, BenchFiler::DAIRI_ADR, BenchFiler::TETSUZUKI,
            BenchFiler::SOFT_NAME);
        if (pResult->GetResult() != PROCESS_OK) {
            state.SkipWithError("the conversion failed");
            break;
        }
    }
    converter.Terminate();
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void ConversionFinance(benchmark::State& state, const char* szTypeId, const char* szProcedureId)
{
    const BenchInput::Folder folder;
    const auto nRecords = static_cast<std::size_t>(state.range(0));
    const std::string strCsv =
        folder.WriteCsv("convert.csv", {nRecords, BenchInput::Cells::CLEAN, 0, szTypeId});
    const std::string strMok = folder.Path("convert.mok").string();
    KZCCsvConvMokEka converter;
    for (auto _ : state) {
        const KZCConvertResultEka* pResult = converter.CsvConvMokFinance(
            strCsv.c_str(), strMok.c_str(), BenchFiler::ZEIMUSHO_CD, BenchFiler::NOZEISHA_ID,
            BenchFiler::KOJIN_BANGO, BenchFiler::HOJIN_BANGO, BenchFiler::NOZEISHA_NM,
            BenchFiler::NOZEISHA_ADR, BenchFiler::DAIHYO_NM, BenchFiler::DAIRI_ID,
            BenchFiler::DAIRI_NM, BenchFiler::DAIRI_ADR, szProcedureId, BenchFiler::TEISHUTSU_ERA,
            BenchFiler::TEISHUTSU_YEAR, BenchFiler::TEISHUTSU_MONTH, BenchFiler::TEISHUTSU_DAY,
            BenchFiler::SOFT_NAME, BenchFiler::NOZEISHA_ZIP1, BenchFiler::NOZEISHA_ZIP2);
        if (pResult->GetResult() != PROCESS_OK) {
            state.SkipWithError("the conversion failed");
            break;
        }
    }
    converter.Terminate();
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void ConversionFinanceOfAPageEach(benchmark::State& state)
{
    ConversionFinance(state, BenchInput::FINANCE_TYPE_ID, BenchInput::FINANCE_PROCEDURE_ID);
}

void ConversionFinanceOfFullPages(benchmark::State& state)
{
    ConversionFinance(state, BenchInput::PAGED_TYPE_ID, BenchInput::PAGED_PROCEDURE_ID);
}

// The argument is the number of records; items are records.
BENCHMARK(Conversion)->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(ConversionFinanceOfAPageEach)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(ConversionFinanceOfFullPages)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace

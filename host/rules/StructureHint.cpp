#include "rules/StructureHint.h"

#include <algorithm>
#include <cstdlib>

#include "base/Language.h"
#include "base/SafeText.h"

namespace host {
namespace {

constexpr std::size_t SHOWN_CHARACTERS = 40;

constexpr Text QUOTED = {"\"{1}\"", "「{1}」"};
constexpr Text RECORD = {"Record {1}", "レコード{1}"};
constexpr Text RECORD_AND_LINE = {"Record {1} (line {2})", "レコード{1}（{2}行目）"};
constexpr Text COLUMNS = {"{1} has {2} columns, a record of type {3} has {4}.",
                          "{1}の項目数は{2}ですが、申請区分{3}のレコードの項目数は{4}です。"};
constexpr Text COLUMNS_THERE = {"{1} has {2} columns, a record there has {3}.",
                                "{1}の項目数は{2}ですが、その位置のレコードの項目数は{3}です。"};
constexpr Text NO_COLUMN_COUNT = {"The definition of the form doesn't say how many columns it has.",
                                  "帳票の定義ファイルに項目数がありません。"};
constexpr Text FOLLOWS = {"This follows from the error above and goes with it.",
                          "上のエラーに伴うもので、上のエラーを直せば出なくなります。"};
constexpr Text UNKNOWN_TYPE_ID = {"{1} begins with {2}; the definitions know {3}.",
                                  "{1}は{2}で始まっています。定義にある申請区分は{3}です。"};
constexpr Text OTHER_TYPE_ID = {"{1} begins with {2}, the file with {3}.",
                                "{1}は{2}で始まっていますが、ファイルは{3}で始まっています。"};
constexpr Text TO = {"{1} to {2}", "{1}～{2}"};
constexpr Text SEPARATOR = {", ", "、"};
constexpr Text LINES = {"It has {1} lines.", "{1}行あります。"};
constexpr Text TOO_MANY = {"It has {1} records, procedure {2} allows {3}.",
                           "レコードは{1}件ですが、手続{2}では{3}件までです。"};
constexpr Text TOO_FEW = {
    "Type {1} has {2} kinds of records and needs one of each; the file has {3}.",
    "申請区分{1}には{2}種類のレコードがあり、少なくとも1件ずつ必要ですが、{3}件しかありません。"};

std::string Quoted(const std::string& strText)
{
    return Say(QUOTED, {MakeSafeAndShort(strText, SHOWN_CHARACTERS)});
}

/// "Record 3", with its line where that has another number.
std::string RecordName(const CsvCells& cells, std::size_t nRecord)
{
    const std::size_t nLine = cells.Line(nRecord);
    const std::string strRecord = std::to_string(nRecord);
    return nLine == nRecord || nLine == 0
               ? Say(RECORD, {strRecord})
               : Say(RECORD_AND_LINE, {strRecord, std::to_string(nLine)});
}

bool HasFilledColumn(const CsvCells& cells, std::size_t nRecord)
{
    for (std::size_t n = 1; n <= cells.ColumnCount(nRecord); ++n)
        if (!cells.Cell(nRecord, n).empty())
            return true;
    return false;
}

/// The library looks at the record's number of columns. In files of several forms it doesn't pass
/// over any record.
bool IsCounted(const CsvCells& cells, const ProcedureDefinition& procedure, std::size_t nRecord)
{
    if (procedure.eFamily == Family::Base)
        return !cells.IsBlank(nRecord);
    return procedure.vecForm.size() > 1 || HasFilledColumn(cells, nRecord);
}

std::string ColumnCountHint(const CsvCells& cells, const ProcedureDefinition& procedure)
{
    for (std::size_t n = 1; n <= cells.RecordCount(); ++n) {
        const FormDefinition* pForm = procedure.FormAt(n, cells.RecordCount());
        if (pForm == nullptr || !IsCounted(cells, procedure, n))
            continue;
        if (pForm->lColumnNum < 1)
            return Say(NO_COLUMN_COUNT);
        const auto lColumns = static_cast<long>(cells.ColumnCount(n));
        if (lColumns == pForm->lColumnNum)
            continue;
        const std::string strRecord = RecordName(cells, n);
        const std::string strColumns = std::to_string(lColumns);
        const std::string strWanted = std::to_string(pForm->lColumnNum);
        return procedure.vecForm.size() == 1
                   ? Say(COLUMNS, {strRecord, strColumns, procedure.strTypeId, strWanted})
                   : Say(COLUMNS_THERE, {strRecord, strColumns, strWanted});
    }
    return {};
}

/// "001, 002, 101 to 116"
std::string Listed(const std::vector<std::string>& vecTypeId)
{
    const auto follows = [&](std::size_t n) {
        return std::atol(vecTypeId[n].c_str()) == std::atol(vecTypeId[n - 1].c_str()) + 1;
    };
    std::string strList;
    for (std::size_t nFirst = 0; nFirst < vecTypeId.size();) {
        std::size_t nEnd = nFirst + 1;
        while (nEnd < vecTypeId.size() && follows(nEnd))
            ++nEnd;
        if (nEnd - nFirst < 3)
            nEnd = nFirst + 1;
        strList += strList.empty() ? "" : Say(SEPARATOR);
        strList += nEnd - nFirst == 1 ? vecTypeId[nFirst]
                                      : Say(TO, {vecTypeId[nFirst], vecTypeId[nEnd - 1]});
        nFirst = nEnd;
    }
    return strList;
}

/// Those that the file could have. A file that no family knows is the base family's.
std::string TypeIds(const CsvCells& cells, const Definitions& definitions)
{
    std::vector<std::string> vecAll = definitions.TypeIds(cells.FamilyOfCells());
    if (cells.FamilyOfCells() == Family::Base && FamilyOfTypeId(cells.TypeId()) == Family::Base)
        for (const Family eFamily : {Family::Finance, Family::CrossBorder})
            std::ranges::copy(definitions.TypeIds(eFamily), std::back_inserter(vecAll));
    return Listed(vecAll);
}

std::string TypeIdHint(const CsvCells& cells, const Definitions& definitions)
{
    const std::string strTypeId = cells.TypeId();
    if (definitions.Find(cells.FamilyOfCells(), strTypeId) == nullptr)
        return Say(UNKNOWN_TYPE_ID, {RecordName(cells, cells.FirstRecord().value_or(1)),
                                     Quoted(strTypeId), TypeIds(cells, definitions)});
    for (std::size_t n = 1; n <= cells.RecordCount(); ++n)
        if (!cells.IsBlank(n) && cells.Cell(n, 1) != strTypeId)
            return Say(OTHER_TYPE_ID,
                       {RecordName(cells, n), Quoted(cells.Cell(n, 1)), Quoted(strTypeId)});
    return {};
}

std::string RecordCountHint(KZCEkaMessage_t eMessage,
                            const CsvCells& cells,
                            const ProcedureDefinition& procedure)
{
    if (eMessage == HE70029E)
        return Say(TOO_MANY, {std::to_string(cells.LimitedRecordCount()), procedure.strProcId,
                              std::to_string(procedure.lMaxRecord)});
    std::size_t nFilled = 0;
    for (std::size_t n = 1; n <= cells.RecordCount(); ++n)
        nFilled += HasFilledColumn(cells, n) ? 1U : 0U;
    return Say(TOO_FEW, {procedure.strTypeId, std::to_string(procedure.vecForm.size()),
                         std::to_string(nFilled)});
}

}  // namespace

std::string StructureHint(KZCEkaMessage_t eMessage,
                          const CsvCells& cells,
                          const Definitions& definitions)
{
    if (eMessage == HE70020E)
        return Say(LINES, {std::to_string(cells.RecordCount())});
    if (cells.FamilyOfCells() == Family::Base && !definitions.HasBase())
        return {};
    if (eMessage == HE70021E)
        return TypeIdHint(cells, definitions);
    const ProcedureDefinition* pProcedure = definitions.Find(cells.FamilyOfCells(), cells.TypeId());
    if (pProcedure == nullptr)
        return {};
    if (eMessage == HE70019E)
        return ColumnCountHint(cells, *pProcedure);
    return eMessage == HE70029E || eMessage == HE70033E
               ? RecordCountHint(eMessage, cells, *pProcedure)
               : std::string();
}

std::string FollowingHint()
{
    return Say(FOLLOWS);
}

}  // namespace host

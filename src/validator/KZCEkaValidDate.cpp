#include "KZCEkaValidDate.h"

#include <algorithm>
#include <array>
#include <limits>

#include "KZCDebugDump.h"
#include "KZCEkaCommon.h"
#include "KZCEkaCsvFile.h"
#include "KZCMacOSNative.h"
#include "calendar/EraTable.h"
#include "fault/Fault.h"
#include "text/ByteClass.h"
#include "text/CText.h"
#include "validator/KZCEkaValidCharlength.h"
#include "validator/RangeVerdict.h"
#include "validator/Wrapping.h"

namespace {

constexpr std::size_t DATE_BUFFER_SIZE = 64;
constexpr const char* BAD_ERA = "元号の指定が不正です。";

/// Places in a date text, in characters.
constexpr unsigned long ERA_LENGTH = 2;
constexpr unsigned long YEAR_AT = 2;
constexpr unsigned long HEAD_LENGTH = 4;  // era and year
constexpr unsigned long MONTH_AT = 5;
constexpr unsigned long FIELD_LENGTH = 2;
constexpr unsigned long TO_THE_END = std::numeric_limits<unsigned long>::max();

/// Kinds of records in which the date that begins at a column (from 0) is optional as a whole.
struct OptionalDate
{
    std::string_view strKind;
    long lColumn;
};

constexpr std::array<OptionalDate, 3> OPTIONAL_DATES = {{
    {"003", 10},
    {"004", 14},
    {"005", 16},
}};

const OptionalDate* FindOptionalDate(const char* szKind)
{
    const auto* pDate =
        std::ranges::find(OPTIONAL_DATES, CText::OrEmpty(szKind), &OptionalDate::strKind);
    return pDate != OPTIONAL_DATES.end() ? pDate : nullptr;
}

/// A field of a date text: padded in front to two bytes.
std::string Field(const char* szCell)
{
    std::string strField = szCell;
    if (strField.size() < FIELD_LENGTH)
        strField.insert(0, FIELD_LENGTH - strField.size(), ' ');
    return strField;
}

std::string EraText(int nEra, const KZCEkaCsvFile& csv, long lRow, long lColumn)
{
    const auto field = [&](long lOffset) {
        return Field(csv.GetItem(lRow, WrappingSum(lColumn, lOffset)));
    };
    return CText::CutToBuffer(EraTable::Name(nEra) + field(1) + "/" + field(2) + "/" + field(3),
                              DATE_BUFFER_SIZE);
}

bool BeginsWithDigit(const char* szText)
{
    return ByteClass::IsDigit(*CText::OrEmpty(szText));
}

std::string Part(const std::string& strText, unsigned long nStart, unsigned long nLength)
{
    return KZCMacOSNative::subStringWithCharacterLength(strText, nStart, nLength);
}

int NumberPart(const std::string& strText, unsigned long nStart)
{
    return CText::ReadInt(Part(strText, nStart, FIELD_LENGTH).c_str());
}

}  // namespace

int KZCEkaValidDate::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn)
{
    RequireCsv(pCsv, "KZCEkaValidDate::ValidateCsv");
    if (!OuterItemsHold(pCsv, lRow))
        return STATUS_OK;
    const long lDateColumn = CheckedColumn(lColumn);
    const std::string strDate = GetDateString(pCsv, lRow, lDateColumn);
    const KZCEkaMessage_t eRefusal = strDate.empty() ? HE70012E : _validate(strDate.c_str());
    if (eRefusal == MSG_NONE)
        return STATUS_OK;
    return RecordDate(eRefusal, WrappingSum(lRow, 1), ColumnsFrom(lDateColumn, DATE_LAST_CELL),
                      strDate);
}

int KZCEkaValidDate::ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long /*lColumn*/)
{
    RequireCsv(pCsv, "KZCEkaValidDate::ValidateOuter");
    return _validate(GetDateString(pCsv, lRow, m_lColumn).c_str()) == MSG_NONE ? STATUS_OK
                                                                               : OuterRefused();
}

std::string KZCEkaValidDate::GetDateString(const KZCEkaCsvFile* pCsv, long lRow, long lColumn)
{
    const int nEra = CText::ReadInt(pCsv->GetItem(lRow, lColumn));
    const char* szKind = pCsv->GetItem(lRow, 0);
    if (CheckTargetColumn(pCsv, lRow, lColumn, szKind) &&
        CheckCalulationConfig(pCsv, lRow, lColumn, szKind))
        return {};
    if (!EraTable::IsEra(nEra)) {
        KZCDebugDump::Log("KZCEkaValidDate::GetDateString", BAD_ERA);
        return {};
    }
    std::string strDate = ConvEraString(EraText(nEra, *pCsv, lRow, lColumn).c_str());
    return m_bKeepEra ? strDate : WarekiToSeireki(strDate);
}

std::string KZCEkaValidDate::GetDateString2(const KZCEkaCsvFile* pCsv, long lRow, long lColumn)
{
    struct CellRule
    {
        unsigned long nMaxLength;
        int nMin;
        int nMax;
    };
    constexpr int ANY = std::numeric_limits<int>::max();
    constexpr std::array<CellRule, 4> RULES = {{{1, 0, ANY}, {2, 1, 99}, {2, 1, 12}, {2, 1, 31}}};
    for (std::size_t nCell = 0; nCell < RULES.size(); ++nCell) {
        const CellRule& rule = RULES[nCell];
        const char* szCell = pCsv->GetItem(lRow, WrappingSum(lColumn, static_cast<long>(nCell)));
        const int nNumber = CText::ReadInt(szCell);
        if (*szCell == '\0' || !isNumber(szCell) || strcount(szCell) > rule.nMaxLength ||
            nNumber < rule.nMin || nNumber > rule.nMax)
            return {};
    }
    const int nEra = CText::ReadInt(pCsv->GetItem(lRow, lColumn));
    if (!EraTable::IsEra(nEra)) {
        KZCDebugDump::Log("KZCEkaValidDate::GetDateString2", BAD_ERA);
        return {};
    }
    try {
        const std::string strEra = ConvEraString(EraText(nEra, *pCsv, lRow, lColumn).c_str());
        const std::string strWestern = WarekiToSeireki(strEra);
        if (!KZCMacOSNative::dateTimeChange(strWestern.c_str()))
            return {};
        return m_bKeepEra ? strEra : strWestern;
    } catch (...) {
        return {};
    }
}

bool KZCEkaValidDate::isNumber(const char* szValue)
{
    return ByteClass::AllOf(szValue, ByteClass::IsDigit);
}

std::string KZCEkaValidDate::GetYearString(const KZCEkaCsvFile* pCsv, long lRow, long lColumn)
{
    const int nEra = CText::ReadInt(pCsv->GetItem(lRow, lColumn));
    if (EraTable::IsEra(nEra))
        return CText::CutToBuffer(
            EraTable::Name(nEra) + Field(pCsv->GetItem(lRow, WrappingSum(lColumn, 1))),
            DATE_BUFFER_SIZE);
    KZCDebugDump::Log("KZCEkaValidDate::GetYearString", BAD_ERA);
    return {};
}

long KZCEkaValidDate::_rangeDate(const char* szValue,
                                 const char* szMin,
                                 const char* szMax,
                                 bool bRequired)
{
    constexpr const char* FUNCTION = "KZCEkaValidDate::_rangeDate";
    const RangeVerdict verdict(
        KZCMacOSNative::rangeDate(WarekiToSeireki(CText::OrEmpty(szValue)).c_str(),
                                  WarekiToSeireki(CText::OrEmpty(szMin)).c_str(),
                                  WarekiToSeireki(CText::OrEmpty(szMax)).c_str(), bRequired));
    verdict.LogFailure(FUNCTION);
    if (verdict.HasNoBound())
        return 1;
    return verdict.IsBeforeMin() || verdict.IsAfterMax() ? -1 : verdict.Code();
}

std::string KZCEkaValidDate::ConvEraString(const char* szDate)
{
    constexpr int LAST_MONTH_OF_31 = 4;
    constexpr int LAST_MONTH_OF_32 = 3;
    std::string strDate = CText::OrEmpty(szDate);
    if (m_bKeepEraName || !strDate.starts_with("平成3"))
        return strDate;
    const std::string strHead = Part(strDate, 0, HEAD_LENGTH);
    const int nMonth = NumberPart(strDate, MONTH_AT);
    if (strHead == "平成31" && nMonth > LAST_MONTH_OF_31)
        return "新号01" + Part(strDate, HEAD_LENGTH, TO_THE_END);
    // Behind March it stays in the old era, on purpose: the checks of existence refuse it there.
    if (strHead == "平成32" && nMonth <= LAST_MONTH_OF_32)
        return "新号02" + Part(strDate, HEAD_LENGTH, TO_THE_END);
    return strDate;
}

std::string KZCEkaValidDate::WarekiToSeireki(const std::string& strDate)
{
    if (strDate.empty() || BeginsWithDigit(strDate.c_str()))
        return strDate;
    if (const auto pEra = EraTable::FindPrefix(strDate)) {
        // The usual text: everything behind the name is ASCII, a byte a character.
        const std::string_view strRest = std::string_view(strDate).substr(pEra->strName.size());
        if (strRest.size() > FIELD_LENGTH && ByteClass::IsAscii(strRest))
            return std::to_string(CText::ReadInt(std::string(strRest, 0, FIELD_LENGTH).c_str()) +
                                  pEra->nBase)
                .append(strRest.substr(FIELD_LENGTH));
    }
    const int nYear = NumberPart(strDate, YEAR_AT) + EraTable::Base(Part(strDate, 0, ERA_LENGTH));
    return std::to_string(nYear) + Part(strDate, HEAD_LENGTH, TO_THE_END);
}

bool KZCEkaValidDate::CheckCalulationConfig(const KZCEkaCsvFile* pCsv,
                                            long lRow,
                                            long lColumn,
                                            const char* szKind)
{
    if (FindOptionalDate(szKind) == nullptr)
        return true;
    for (long lOffset = 0; lOffset <= DATE_LAST_CELL; ++lOffset)
        if (*pCsv->GetItem(lRow, WrappingSum(lColumn, lOffset)) == '\0')
            return true;
    return false;
}

bool KZCEkaValidDate::CheckTargetColumn(const KZCEkaCsvFile* /*pCsv*/,
                                        long /*lRow*/,
                                        long lColumn,
                                        const char* szKind)
{
    const OptionalDate* pDate = FindOptionalDate(szKind);
    return pDate != nullptr && pDate->lColumn == lColumn;
}

unsigned long KZCEkaValidDate::strcount(const char* szValue)
{
    return static_cast<unsigned long>(KZCEkaValidCharlength::CountCharacters(szValue));
}

bool KZCEkaValidDate::StringToSystemTime(const char* szValue, stSYSTEMTIME& stTime)
{
    constexpr const char* FUNCTION = "KZCEkaValidDate::StringToSystemTime";
    if (szValue == nullptr) {
        KZCDebugDump::Log(FUNCTION, "引数エラー");
        return false;
    }
    long lYear = 0;
    long lMonth = 0;
    long lDay = 0;
    if (!KZCMacOSNative::dateTimeChange(WarekiToSeireki(szValue).c_str(), lYear, lMonth, lDay)) {
        KZCDebugDump::Log(FUNCTION,
                          (std::string("日付の変換に失敗しました。:szValue=") + szValue).c_str());
        return false;
    }
    stTime = {static_cast<std::uint16_t>(lYear), static_cast<std::uint16_t>(lMonth),
              static_cast<std::uint16_t>(lDay)};
    return true;
}

std::optional<std::string> KZCEkaValidDate::ReadReferred(
    const KZCEkaCsvFile* pCsv, const DateLiteral::CellReference& reference)
{
    const long lRow = WrappingSum(reference.lRow, -1);
    const long lColumn = WrappingSum(reference.lColumn, -1);
    if (*pCsv->GetItem(lRow, WrappingSum(lColumn, DATE_LAST_CELL)) == '\0')
        return std::nullopt;
    std::string strDate = GetDateString2(pCsv, lRow, lColumn);
    if (strDate.empty())
        return std::nullopt;
    return strDate;
}

KZCEkaValidDate::ErrorColumns KZCEkaValidDate::ReportedColumns(long lColumn, long lMore) const
{
    if (m_strErrColumn.empty())
        return ColumnsFrom(lColumn, lMore);
    const long lFirst = CText::ReadLong(m_strErrColumn.c_str());
    return {lFirst, WrappingSum(lFirst, DATE_LAST_CELL)};
}

KZCEkaValidDate::ErrorColumns KZCEkaValidDate::ColumnsFrom(long lColumn, long lMore)
{
    const long lFirst = WrappingSum(lColumn, 1);
    return {lFirst, WrappingSum(lFirst, lMore)};
}

int KZCEkaValidDate::RecordDate(KZCEkaMessage_t eRefusal,
                                long lRecord,
                                const ErrorColumns& columns,
                                const std::string& strText) const
{
    if (m_bErrOutput)
        Record(ReportedCode(eRefusal), lRecord, columns.lFirst, columns.lLast, strText.c_str(),
               true);
    return STATUS_NG;
}

// Record generations: worked out from the cells, by rules of each type id.
#include <algorithm>
#include <array>
#include <initializer_list>
#include <span>
#include <string_view>

#include "CText.h"
#include "KZCDebugDump.h"
#include "KZCEkaCsvFile.h"
#include "validator/KZCEkaValidCheckDigit.h"
#include "validator/KZCEkaValidDigitEquality.h"
#include "validator/KZCEkaValidExist.h"
#include "validator/KZCEkaValidLength.h"
#include "validator/KZCEkaValidNumber.h"

namespace {

constexpr const char* JUNIOR = "junior";
constexpr const char* SENIOR = "senior";

enum class Rule
{
    ALWAYS_SENIOR,
    DATE,       ///< senior up to the end of the old era, with two columns filled
    REFERENCE,  ///< junior with a reference number of the new form, other columns empty
};

constexpr std::array<long, 7> EMPTY_OF_007 = {7, 19, 20, 21, 22, 28, 29};
constexpr std::array<long, 5> EMPTY_OF_008 = {2, 14, 15, 16, 17};

/// Columns count from 1.
struct GenerationRule
{
    std::string_view strTypeId;
    Rule eRule;
    long lReferenceColumn = 0;
    std::span<const long> emptyColumns = {};
};

constexpr std::array<GenerationRule, 9> GENERATION_RULES = {{
    {"001", Rule::DATE},
    {"002", Rule::REFERENCE, 19},
    {"003", Rule::ALWAYS_SENIOR},
    {"004", Rule::ALWAYS_SENIOR},
    {"005", Rule::ALWAYS_SENIOR},
    {"006", Rule::ALWAYS_SENIOR},
    {"007", Rule::REFERENCE, 24, EMPTY_OF_007},
    {"008", Rule::REFERENCE, 19, EMPTY_OF_008},
    {"009", Rule::ALWAYS_SENIOR},
}};

/// The era date in columns 2 to 5 lies before April of year 3 of the fifth era. Read as plain
/// numbers: nothing tells whether the date exists.
bool IsBeforeLimit(const KZCEkaCsvFile& csv, long lRecord)
{
    constexpr int LAST_ERA = 5;
    constexpr std::array<int, 3> LIMIT = {3, 3, 31};  // year, month, day
    const int nEra = CText::ReadInt(csv.GetItem(lRecord, 1));
    if (nEra != LAST_ERA)
        return nEra >= 1 && nEra < LAST_ERA;
    const std::array<int, 3> date = {CText::ReadInt(csv.GetItem(lRecord, 2)),
                                     CText::ReadInt(csv.GetItem(lRecord, 3)),
                                     CText::ReadInt(csv.GetItem(lRecord, 4))};
    return date <= LIMIT;
}

/// Columns that only senior records of type "001" fill.
bool HasSeniorColumns(const KZCEkaCsvFile& csv, long lRecord)
{
    return !csv.checkEmpty(lRecord, 23) && !csv.checkEmpty(lRecord, 24);
}

/// The checks of a reference number as plain predicates. They record nothing and keep nothing of
/// the values that they see, so one set serves every record.
struct ReferenceChecks
{
    static ReferenceChecks& Get()
    {
        static ReferenceChecks checks;
        return checks;
    }

    KZCEkaValidExist exist{-1, MSG_NONE};
    KZCEkaValidNumber number{-1, MSG_NONE};
    KZCEkaValidLength length{-1, MSG_NONE};
    KZCEkaValidCheckDigit checkDigit{-1, MSG_NONE};
    KZCEkaValidDigitEquality firstDigit{-1, MSG_NONE};

private:
    ReferenceChecks()
    {
        for (KZCEkaValidItem* pItem : std::initializer_list<KZCEkaValidItem*>{
                 &exist, &number, &length, &checkDigit, &firstDigit})
            pItem->SetErrOutput(false);
        length.SetParam("14", "");
        checkDigit.SetParam("seiri");
        firstDigit.SetParam("1", "", "4 5 6 7 8 9");
    }
};

bool Passes(KZCEkaValidItem& item, const char* szCell, long lRecord, long lColumn)
{
    return item.Validate(szCell, lRecord, lColumn) == 0;
}

bool HasNewFirstDigit(const KZCEkaCsvFile& csv, long lRecord, long lColumn)
{
    return Passes(ReferenceChecks::Get().firstDigit, csv.GetItem(lRecord, lColumn - 1), lRecord,
                  lColumn);
}

bool IsJuniorByReference(const KZCEkaCsvFile& csv, long lRecord, const GenerationRule& rule)
{
    return csv.preCheckNumber(lRecord, rule.lReferenceColumn) &&
           HasNewFirstDigit(csv, lRecord, rule.lReferenceColumn) &&
           std::ranges::all_of(rule.emptyColumns,
                               [&](long lColumn) { return csv.checkEmpty(lRecord, lColumn); });
}

bool IsJunior(const KZCEkaCsvFile& csv, long lRecord, const GenerationRule& rule)
{
    switch (rule.eRule) {
        case Rule::DATE:
            return !IsBeforeLimit(csv, lRecord) || !HasSeniorColumns(csv, lRecord);
        case Rule::REFERENCE:
            return IsJuniorByReference(csv, lRecord, rule);
        case Rule::ALWAYS_SENIOR:
            break;
    }
    return false;
}

}  // namespace

void KZCEkaCsvFile::checkGeneration(long lRecord)
{
    if (!IsValidRecord(lRecord) || m_mapGeneration.contains(lRecord))
        return;
    const auto* pRule =
        std::ranges::find(GENERATION_RULES, GetItem(lRecord, 0), &GenerationRule::strTypeId);
    if (pRule == GENERATION_RULES.end()) {
        KZCDebugDump::Log("KZCEkaDefinition::checkGeneration", "想定していない帳票IDです");
        return;
    }
    m_mapGeneration.emplace(lRecord, IsJunior(*this, lRecord, *pRule) ? JUNIOR : SENIOR);
}

bool KZCEkaCsvFile::preCheckNumber(long lRecord, long lColumn) const
{
    const char* szCell = GetItem(lRecord, lColumn - 1);
    ReferenceChecks& checks = ReferenceChecks::Get();
    const std::initializer_list<KZCEkaValidItem*> order = {&checks.exist, &checks.number,
                                                           &checks.length, &checks.checkDigit};
    return std::ranges::all_of(
        order, [&](KZCEkaValidItem* pItem) { return Passes(*pItem, szCell, lRecord, lColumn); });
}

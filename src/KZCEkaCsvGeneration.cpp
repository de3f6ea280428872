// Record generations: worked out from the cells, by rules of each type id.
#include <algorithm>
#include <array>
#include <initializer_list>

#include "KZCDebugDump.h"
#include "KZCEkaCsvFile.h"
#include "family/GenerationRules.h"
#include "text/CText.h"
#include "validator/CheckDigit.h"
#include "validator/KZCEkaValidCheckDigit.h"
#include "validator/KZCEkaValidDigitEquality.h"
#include "validator/KZCEkaValidExist.h"
#include "validator/KZCEkaValidLength.h"
#include "validator/KZCEkaValidNumber.h"

namespace {

using GenerationRules::Kind;
using GenerationRules::Rule;

/// The era date in columns 2 to 5 lies before April of year 3 of the fifth era. Read as plain
/// numbers: nothing tells whether the date exists.
bool IsBeforeLimit(const KZCEkaCsvFile& csv, long lRecord)
{
    constexpr long FIRST = GenerationRules::DATE_COLUMN - 1;
    constexpr int LAST_ERA = 5;
    constexpr std::array<int, 3> LIMIT = {3, 3, 31};  // year, month, day
    const int nEra = CText::ReadInt(csv.GetItem(lRecord, FIRST));
    if (nEra != LAST_ERA)
        return nEra >= 1 && nEra < LAST_ERA;
    const std::array<int, 3> date = {CText::ReadInt(csv.GetItem(lRecord, FIRST + 1)),
                                     CText::ReadInt(csv.GetItem(lRecord, FIRST + 2)),
                                     CText::ReadInt(csv.GetItem(lRecord, FIRST + 3))};
    return date <= LIMIT;
}

/// Columns that only senior records of type "001" fill.
bool HasSeniorColumns(const KZCEkaCsvFile& csv, long lRecord)
{
    return std::ranges::none_of(GenerationRules::SENIOR_COLUMNS,
                                [&](long lColumn) { return csv.checkEmpty(lRecord, lColumn); });
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
        checkDigit.SetParam(CheckDigit::REFERENCE);
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

bool IsJuniorByReference(const KZCEkaCsvFile& csv, long lRecord, const Rule& rule)
{
    return csv.preCheckNumber(lRecord, rule.lReferenceColumn) &&
           HasNewFirstDigit(csv, lRecord, rule.lReferenceColumn) &&
           std::ranges::all_of(rule.emptyColumns,
                               [&](long lColumn) { return csv.checkEmpty(lRecord, lColumn); });
}

bool IsJunior(const KZCEkaCsvFile& csv, long lRecord, const Rule& rule)
{
    switch (rule.eKind) {
        case Kind::DATE:
            return !IsBeforeLimit(csv, lRecord) || !HasSeniorColumns(csv, lRecord);
        case Kind::REFERENCE:
            return IsJuniorByReference(csv, lRecord, rule);
        case Kind::ALWAYS_SENIOR:
            break;
    }
    return false;
}

}  // namespace

void KZCEkaCsvFile::checkGeneration(long lRecord)
{
    if (!IsValidRecord(lRecord) || m_mapGeneration.contains(lRecord))
        return;
    const Rule* pRule = GenerationRules::Find(GetItem(lRecord, 0));
    if (pRule == nullptr) {
        KZCDebugDump::Log("KZCEkaDefinition::checkGeneration", "想定していない帳票IDです");
        return;
    }
    m_mapGeneration.emplace(lRecord, IsJunior(*this, lRecord, *pRule) ? GenerationRules::JUNIOR
                                                                      : GenerationRules::SENIOR);
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

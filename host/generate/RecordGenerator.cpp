#include "generate/RecordGenerator.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "KZCEkaCommon.h"
#include "KZCEkaTaxOffices.h"
#include "KZCEkaXDOM.h"
#include "KZCValidResult.h"
#include "generate/EraDate.h"
#include "rules/CheckShape.h"
#include "text/ShiftJis.h"
#include "validator/AgeWord.h"
#include "validator/CheckDigit.h"

namespace host {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;
using std::chrono::years;

namespace {

constexpr int CANDIDATES = 12;       // draws of a unit, of which the best is kept
constexpr int MENDING_STEPS = 1500;  // units drawn anew before a record is given up
constexpr int RECORD_ATTEMPTS = 8;   // records begun afresh before the form is given up
constexpr long LONGEST_DRAWN = 16;   // characters of a text that isn't drawn to its limit
constexpr sys_days EARLIEST = year{1930} / 1 / 1;
constexpr sys_days RECENT = year{2010} / 1 / 1;
constexpr sys_days LATEST = year{2031} / 12 / 31;

constexpr const char* DIGITS = "0123456789";
constexpr const char* LETTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

/// Characters of a set, none of which only a wider set has.
const char* CharactersOf(CellContent eContent)
{
    switch (eContent) {
        case CellContent::Digits:
            return DIGITS;
        case CellContent::Letters:
            return LETTERS;
        case CellContent::LettersAndDigits:
        // A cell of which nothing is known holds what people would write.
        case CellContent::Filled:
        case CellContent::Empty:
        case CellContent::OfficeCode:
        case CellContent::Any:
            break;
        case CellContent::Katakana:
            return "アイウエオカキクケコサシスセソタチツテトナニヌネノハヒフヘホマミムメモヤユヨラ"
                   "リ"
                   "ルレロワヲンガギグゲゴパピプペポッャュョー";
        case CellContent::JisCharacters:
            return "見本例題甲乙丙丁東西南北山川田中町村県市一二三四五六七八九十株式会社ひらがなカ"
                   "タカナ"
                   "０１２３ＡＢＣ－";
        case CellContent::FullWidth:
            return "見本例題甲乙丙丁東西南北山川田中町村県市ひらがなカタカナ０１２３ＡＢＣ";
        case CellContent::KatakanaAndAscii:
            return "アカサタナハマヤラワガパーＡＢＣ１２３abcXYZ0123456789&-.";
        case CellContent::AsciiAndLineFeeds:
            return "ABCDEFGHJKLMNPQRSTUVWXYZabcdefghkmnprstuvwxyz0123456789-_.@/+";
        case CellContent::FilingCharacters:
            return "見本例題甲乙丙丁東西南北ひらがなカタカナ０１２ＡＢＣabcXYZ0123456789-./";
    }
    return "ABCDEFGHJKLMNPQRSTUVWXYZabcdefghkmnprstuvwxyz0123456789-";
}

/// The text for people.
std::string ToDisplay(const std::string& strShiftJis)
{
    return ShiftJis::ToUtf8(strShiftJis).value_or("?");
}

/// A UTF-8 text as the bytes of a CSV file. Throws std::runtime_error if it has no place there.
std::string ToShiftJis(const std::string& strUtf8)
{
    const auto strUnits = Utf8::Decode(strUtf8);
    auto strBytes = strUnits ? ShiftJis::Encode(*strUnits) : std::nullopt;
    if (!strBytes)
        throw std::runtime_error("not a text of Shift_JIS: " + strUtf8);
    return std::move(*strBytes);
}

/// Columns that tell the generation. The reference number, where there is one, stands first.
std::vector<long> GenerationColumns(const std::string& strTypeId)
{
    const GenerationRules::Rule* pRule = GenerationRules::Find(strTypeId);
    std::vector<long> vecColumn;
    if (pRule == nullptr || !pRule->HasBoth())
        return vecColumn;
    if (pRule->eKind == GenerationRules::Kind::REFERENCE) {
        vecColumn.push_back(pRule->lReferenceColumn);
        vecColumn.insert(vecColumn.end(), pRule->emptyColumns.begin(), pRule->emptyColumns.end());
        return vecColumn;
    }
    for (long lCell = 0; lCell < DATE_CELLS; ++lCell)
        vecColumn.push_back(GenerationRules::DATE_COLUMN + lCell);
    vecColumn.insert(vecColumn.end(), GenerationRules::SENIOR_COLUMNS.begin(),
                     GenerationRules::SENIOR_COLUMNS.end());
    return vecColumn;
}

/// The characters of a UTF-8 text, each in Shift_JIS.
std::vector<std::string> Characters(const std::string& strUtf8)
{
    std::vector<std::string> vecCharacter;
    for (std::size_t nStart = 0; nStart < strUtf8.size();) {
        std::size_t nEnd = nStart + 1;
        while (nEnd < strUtf8.size() && (static_cast<unsigned char>(strUtf8[nEnd]) & 0xc0) == 0x80)
            ++nEnd;
        vecCharacter.push_back(ToShiftJis(strUtf8.substr(nStart, nEnd - nStart)));
        nStart = nEnd;
    }
    return vecCharacter;
}

/// A literal "YYYYMMDD" or "YYYY/MM/DD".
std::optional<sys_days> LiteralDay(std::string strDate)
{
    std::erase(strDate, '/');
    if (strDate.size() != 8)
        return std::nullopt;
    return DayOf(static_cast<int>(NumberOf(strDate.substr(0, 4))), NumberOf(strDate.substr(4, 2)),
                 NumberOf(strDate.substr(6, 2)));
}

int YearOf(sys_days day)
{
    return static_cast<int>(year_month_day{day}.year());
}

std::vector<std::string> AgeWords(const CheckRule& rule)
{
    return SplitTokens(AttributeText(rule, AttributeOf(*rule.pRow, AttributeKind::AgeColumns)));
}

bool Intersects(const std::set<long>& setColumn, const std::vector<long>& vecColumn)
{
    return std::ranges::any_of(vecColumn,
                               [&](long lColumn) { return setColumn.contains(lColumn); });
}

bool Reads(const CheckRule& rule, const std::vector<long>& vecColumn)
{
    return Intersects(rule.setReads, vecColumn) ||
           std::ranges::any_of(rule.vecConditionRule, [&](const CheckRule& condition) {
               return Intersects(condition.setReads, vecColumn);
           });
}

bool Holds(const CheckRule& condition, const RecordTable& table, long lRow)
{
    return condition.pItem->ValidateOuter(&table, lRow, -1) == 0;
}

}  // namespace

std::vector<TaxOffice> ReadTaxOffices(const std::string& strPath)
{
    KZCEkaXDOM dom;
    if (!dom.Initialize() || !dom.Parse(strPath.c_str()) || dom.MoveFirstChild() != 0)
        throw std::runtime_error("can't read " + strPath);
    std::vector<TaxOffice> vecOffice;
    do {
        if (dom.GetAttribute("OfficeType") == "5")
            vecOffice.push_back({dom.GetAttribute("OfficeCode"), dom.GetAttribute("OfficeName")});
    } while (dom.MoveNextSibling() == 0);
    return vecOffice;
}

CheckPhase::CheckPhase(KZCEkaCommon::EXEC_MODE eMode)
{
    KZCEkaCommon::setExecMode(eMode);
    KZCEkaTaxOffices::instance()->Initialize();
    KZCEkaCommon::SetCsvCheckFlag(true);
}

CheckPhase::~CheckPhase()
{
    KZCEkaCommon::SetCsvCheckFlag(false);
    KZCValidResult::instance()->ClearResult();
}

void RecordGenerator::DayRange::Narrow(sys_days newFirst, sys_days newLast)
{
    // A bound that leaves nothing is left to the mending.
    if (std::max(first, newFirst) > std::min(last, newLast))
        return;
    first = std::max(first, newFirst);
    last = std::min(last, newLast);
}

/// What the active checks of a cell ask of it.
struct RecordGenerator::CellShape
{
    std::optional<CellContent> characters;
    bool bLineFeeds = false;
    bool bNumeric = false;
    std::optional<long> bytes;
    std::optional<long> characterCount;
    long lMaxBytes = 200;
    long lMaxCharacters = 100;
    std::optional<std::pair<long, long>> range;
    std::optional<std::vector<std::string>> tokens;
    std::vector<std::string> vecNumberKind;
    std::vector<const CheckRule*> vecDigitRule;
    std::optional<std::string> fixed;
    bool bOffice = false;
    bool bPath = false;
    std::string strExtension;
};

RecordGenerator::RecordGenerator(const FormRules& form,
                                 RecordTable& table,
                                 std::vector<TaxOffice> vecOffice,
                                 std::string strFolder,
                                 unsigned nSeed)
    : m_form(form),
      m_table(table),
      m_vecOffice(std::move(vecOffice)),
      m_strFolder(std::move(strFolder)),
      m_random(nSeed)
{
    const std::vector<long> vecColumn = GenerationColumns(form.strTypeId);
    m_setGenerationColumn.insert(vecColumn.begin(), vecColumn.end());
    if (const GenerationRules::Rule* pRule = GenerationRules::Find(form.strTypeId))
        m_lReferenceColumn = pRule->lReferenceColumn;
    MakeUnits();
}

// --- units ---

void RecordGenerator::MakeUnits()
{
    for (const CheckRule& rule : m_form.vecCheck) {
        if (rule.pRow->shape.eCells == OwnCells::Date)
            AddSpan(UnitKind::DATE, rule.lColumn, DATE_CELLS);
        for (const AttributeKind eKind : KindsOf(*rule.pRow))
            if (eKind == AttributeKind::AgeColumns && !AgeWords(rule).empty())
                AddSpan(UnitKind::DATE, NumberOf(AgeWords(rule)[AgeWord::BIRTH_COLUMN]),
                        DATE_CELLS);
    }
    for (const ItemRule& item : m_form.vecItem) {
        if (item.strType != "Date")
            continue;
        std::set<long> setColumn;
        for (const ItemRule& child : m_form.vecItem)
            if (child.strParent == item.strId && child.lColumn > 0)
                setColumn.insert(child.lColumn);
        if (setColumn.size() == 4 && *setColumn.rbegin() - *setColumn.begin() == 3)
            AddSpan(UnitKind::DATE, *setColumn.begin(), 4);
    }
    for (const CheckRule& rule : m_form.vecCheck)
        AddUnitsOf(rule);
    for (long lColumn = m_form.FirstFreeColumn(); lColumn <= m_form.lColumnCount; ++lColumn)
        AddUnit(UnitKind::CELL, {lColumn});
    for (Unit& unit : m_vecUnit)
        for (const CheckRule& rule : m_form.vecCheck)
            if (Reads(rule, unit.vecColumn))
                unit.vecCheck.push_back(&rule);
}

void RecordGenerator::AddUnitsOf(const CheckRule& rule)
{
    switch (rule.pRow->shape.eCells) {
        case OwnCells::None:
        case OwnCells::Cell:
        case OwnCells::Date:
            break;
        case OwnCells::OfficeName:
            AddSpan(UnitKind::OFFICE, rule.lColumn, 2);
            break;
        case OwnCells::Year:
        case OwnCells::GroupOfKind:
            AddSpan(UnitKind::YEAR, rule.lColumn, YEAR_CELLS);
            break;
    }
    for (const Attribute eAttribute : ATTRIBUTES) {
        const std::string& strText = AttributeText(rule, eAttribute);
        const AttributeKind eKind = ShapeOf(*rule.pRow, eAttribute).eKind;
        if (eKind == AttributeKind::WesternDateColumns) {
            std::vector<long> vecColumn;
            for (const std::string& strToken : SplitTokens(strText))
                vecColumn.push_back(NumberOf(strToken));
            AddUnit(UnitKind::WESTERN_DATE, vecColumn);
        }
        if (eKind == AttributeKind::EqualYearColumn || eKind == AttributeKind::FiscalYearColumn)
            AddSpan(UnitKind::YEAR, NumberOf(strText), YEAR_CELLS);
        if (eKind == AttributeKind::AgeColumns && AgeWords(rule).size() > AgeWord::YEAR_COLUMN)
            AddSpan(UnitKind::YEAR, NumberOf(AgeWords(rule)[AgeWord::YEAR_COLUMN]), YEAR_CELLS);
    }
}

void RecordGenerator::AddSpan(UnitKind eKind, long lFirst, long lCount)
{
    std::vector<long> vecColumn;
    for (long lColumn = lFirst; lColumn < lFirst + lCount; ++lColumn)
        vecColumn.push_back(lColumn);
    AddUnit(eKind, vecColumn);
}

/// Columns that belong to a unit already keep it: the widest kinds come first.
void RecordGenerator::AddUnit(UnitKind eKind, const std::vector<long>& vecColumn)
{
    for (const long lColumn : vecColumn) {
        if (lColumn < m_form.FirstFreeColumn() || lColumn > m_form.lColumnCount)
            return;
        for (const Unit& unit : m_vecUnit)
            if (std::ranges::find(unit.vecColumn, lColumn) != unit.vecColumn.end())
                return;
    }
    m_vecUnit.push_back({eKind, vecColumn, {}});
}

// --- records ---

void RecordGenerator::Make(long lRow, std::size_t nTurn)
{
    const std::vector<std::string> vecGeneration = m_form.Generations();
    m_strGeneration = vecGeneration[nTurn % vecGeneration.size()];
    for (int nAttempt = 0; nAttempt < RECORD_ATTEMPTS; ++nAttempt) {
        Record record(static_cast<std::size_t>(m_form.lColumnCount));
        if (m_form.bTypeIdFirst)
            record.front() = m_form.strTypeId;
        m_table.Put(lRow, record);
        for (const Unit& unit : m_vecUnit)
            Redraw(unit, lRow);
        for (int nStep = 0; nStep < MENDING_STEPS; ++nStep) {
            const auto vecRefusal = Refusals(lRow);
            const bool bGeneration = HasGeneration(lRow);
            if (vecRefusal.empty() && bGeneration)
                return;
            if (vecRefusal.empty() || (!bGeneration && Chance(50))) {
                std::vector<const Unit*> vecUnit;
                for (const Unit& unit : m_vecUnit)
                    if (Intersects(m_setGenerationColumn, unit.vecColumn))
                        vecUnit.push_back(&unit);
                if (vecUnit.empty())
                    break;
                Redraw(*vecUnit[static_cast<std::size_t>(
                           Random(0, static_cast<long>(vecUnit.size()) - 1))],
                       lRow);
                continue;
            }
            const long lLast = static_cast<long>(vecRefusal.size()) - 1;
            Redraw(RandomUnitOf(*vecRefusal[static_cast<std::size_t>(Random(0, lLast))]), lRow);
        }
    }
    throw std::runtime_error(Complaint(lRow));
}

bool RecordGenerator::IsActive(const CheckRule& rule, const RecordTable& table, long lRow)
{
    return std::ranges::all_of(rule.vecConditionRule, [&](const CheckRule& condition) {
        return Holds(condition, table, lRow);
    });
}

bool RecordGenerator::Passes(const CheckRule& rule, const RecordTable& table, long lRow)
{
    const bool bPasses = rule.pItem->ValidateCsv(&table, lRow, -1) == 0;
    // Some classes record whatever they are told; a condition on errors would see it.
    if (!bPasses)
        KZCValidResult::instance()->ClearResult();
    return bPasses;
}

std::vector<const CheckRule*> RecordGenerator::Refusals(long lRow) const
{
    std::vector<const CheckRule*> vecRefusal;
    for (const CheckRule& rule : m_form.vecCheck)
        if (m_form.vecItem[rule.nItem].FitsGeneration(m_strGeneration) &&
            IsActive(rule, m_table, lRow) && !Passes(rule, m_table, lRow))
            vecRefusal.push_back(&rule);
    return vecRefusal;
}

bool RecordGenerator::HasGeneration(long lRow) const
{
    return m_table.GetRecordGeneration(lRow) == m_strGeneration;
}

std::string RecordGenerator::Complaint(long lRow) const
{
    std::ostringstream stream;
    stream << "no passing " << m_strGeneration << (m_strGeneration.empty() ? "" : " ")
           << "record found for type id " << m_form.strTypeId << ":";
    for (const CheckRule* pRule : Refusals(lRow)) {
        stream << "\n  " << pRule->Description() << " of item "
               << m_form.vecItem[pRule->nItem].strId << " refuses";
        for (const long lColumn : pRule->setReads)
            stream << " [" << lColumn << "]=" << ToDisplay(m_table.Cell(lRow, lColumn));
    }
    if (!HasGeneration(lRow))
        stream << "\n  the record is " << m_table.GetRecordGeneration(lRow);
    return stream.str();
}

void RecordGenerator::Redraw(const Unit& unit, long lRow)
{
    std::optional<std::size_t> best;
    std::vector<std::string> vecBest;
    const auto put = [&](const std::vector<std::string>& vecCell) {
        for (std::size_t n = 0; n < vecCell.size(); ++n)
            m_table.PutCell(lRow, unit.vecColumn[n], vecCell[n]);
    };
    for (int n = 0; n < CANDIDATES; ++n) {
        const auto vecCell = Draw(unit, lRow);
        put(vecCell);
        const std::size_t nRefusals = CountRefusals(unit, lRow);
        if (!best || nRefusals < *best) {
            best = nRefusals;
            vecBest = vecCell;
        }
        if (nRefusals == 0)
            return;
    }
    put(vecBest);
}

std::size_t RecordGenerator::CountRefusals(const Unit& unit, long lRow) const
{
    const auto nCount =
        static_cast<std::size_t>(std::ranges::count_if(unit.vecCheck, [&](const CheckRule* pRule) {
            return m_form.vecItem[pRule->nItem].FitsGeneration(m_strGeneration) &&
                   IsActive(*pRule, m_table, lRow) && !Passes(*pRule, m_table, lRow);
        }));
    const bool bWrongGeneration =
        Intersects(m_setGenerationColumn, unit.vecColumn) && !HasGeneration(lRow);
    return nCount + (bWrongGeneration ? 1 : 0);
}

const RecordGenerator::Unit& RecordGenerator::RandomUnitOf(const CheckRule& rule)
{
    std::vector<const Unit*> vecUnit;
    for (const Unit& unit : m_vecUnit)
        if (Reads(rule, unit.vecColumn))
            vecUnit.push_back(&unit);
    if (vecUnit.empty())
        throw std::runtime_error("type id " + m_form.strTypeId + ": nothing to draw for " +
                                 rule.Description());
    return *vecUnit[static_cast<std::size_t>(Random(0, static_cast<long>(vecUnit.size()) - 1))];
}

// --- groups of cells ---

std::vector<std::string> RecordGenerator::Draw(const Unit& unit, long lRow)
{
    if (unit.eKind == UnitKind::CELL)
        return {DrawCell(unit, lRow)};
    if (DrawsEmpty(unit, lRow))
        return std::vector<std::string>(unit.vecColumn.size());
    switch (unit.eKind) {
        case UnitKind::DATE:
            return DrawDate(unit, lRow);
        case UnitKind::YEAR:
            return DrawYear(unit, lRow);
        case UnitKind::OFFICE: {
            const TaxOffice& office = m_vecOffice[static_cast<std::size_t>(
                Random(0, static_cast<long>(m_vecOffice.size()) - 1))];
            return {ToShiftJis(office.strName), office.strCode};
        }
        default: {
            const year_month_day date{DrawDay({EARLIEST, LATEST})};
            return {std::to_string(static_cast<int>(date.year())),
                    PadNumber(static_cast<unsigned>(date.month())),
                    PadNumber(static_cast<unsigned>(date.day()))};
        }
    }
}

bool RecordGenerator::DrawsEmpty(const Unit& unit, long lRow)
{
    for (const CheckRule* pRule : unit.vecCheck) {
        if (!m_form.vecItem[pRule->nItem].FitsGeneration(m_strGeneration) ||
            !Intersects(pRule->setReported, unit.vecColumn) || !IsActive(*pRule, m_table, lRow))
            continue;
        if (pRule->pRow->shape.eContent == CellContent::Filled)
            return Chance(5);
        if (pRule->pRow->shape.eContent == CellContent::Empty)
            return Chance(95);
    }
    return Chance(30);
}

sys_days RecordGenerator::DrawDay(const DayRange& range)
{
    return range.first + days{Random(0, (range.last - range.first).count())};
}

std::vector<std::string> RecordGenerator::DrawDate(const Unit& unit, long lRow)
{
    const sys_days day = DrawDay(DrawRange(unit, lRow));
    const year_month_day date{day};
    const EraYears era = EraOf(day);
    int nEra = era.nCode;
    int nYear = static_cast<int>(date.year()) - era.nYearBase;
    // The fourth era may be written on for a while after the fifth has begun.
    if (const auto before = EraBefore(day); before && Chance(10)) {
        nEra = before->nCode;
        nYear = static_cast<int>(date.year()) - before->nYearBase;
    }
    return {std::to_string(nEra), PadNumber(nYear), PadNumber(static_cast<unsigned>(date.month())),
            PadNumber(static_cast<unsigned>(date.day()))};
}

std::vector<std::string> RecordGenerator::DrawYear(const Unit& unit, long lRow)
{
    const sys_days day = DrawDay(DrawRange(unit, lRow));
    const EraYears era = EraOf(day);
    return {std::to_string(era.nCode), PadNumber(YearOf(day) - era.nYearBase)};
}

/// Days from which a date or the day of a year is drawn.
RecordGenerator::DayRange RecordGenerator::DrawRange(const Unit& unit, long lRow)
{
    DayRange range{Chance(60) ? RECENT : EARLIEST, LATEST};
    const bool bBound = std::ranges::any_of(unit.vecCheck, [](const CheckRule* pRule) {
        return HasKind(*pRule->pRow, AttributeKind::AgeColumns) ||
               HasKind(*pRule->pRow, AttributeKind::Years) ||
               HasKind(*pRule->pRow, AttributeKind::ComparedDay);
    });
    if (bBound)
        range.first = EARLIEST;
    for (const CheckRule* pRule : unit.vecCheck)
        if (m_form.vecItem[pRule->nItem].FitsGeneration(m_strGeneration) && Chance(85))
            NarrowByCheck(range, *pRule, unit.vecColumn.front(), lRow);
    return range;
}

void RecordGenerator::NarrowByCheck(DayRange& range, const CheckRule& rule, long lColumn, long lRow)
{
    const bool bConditions = IsActive(rule, m_table, lRow);
    if (!bConditions && Chance(50))
        return;
    for (const AttributeKind eKind : KindsOf(*rule.pRow))
        NarrowByKind(range, eKind, rule, lColumn, lRow);
}

void RecordGenerator::NarrowByKind(
    DayRange& range, AttributeKind eKind, const CheckRule& rule, long lColumn, long lRow)
{
    const auto value = LiteralDay(rule.strValue);
    const auto min = LiteralDay(rule.strMin);
    const auto max = LiteralDay(rule.strMax);
    switch (eKind) {
        case AttributeKind::FirstDay: {
            // Beside a year's column it is told with that.
            const auto first = LiteralDay(AttributeText(rule, AttributeOf(*rule.pRow, eKind)));
            if (first && !HasKind(*rule.pRow, AttributeKind::FiscalYearColumn))
                range.Narrow(*first, range.last);
            break;
        }
        case AttributeKind::ComparedDay:
            if (value)
                range.Narrow(*value, *value);
            else if (min)
                range.Narrow(*min, range.last);
            else if (max)
                range.Narrow(range.first, *max);
            break;
        case AttributeKind::Periods:
        case AttributeKind::Period:
            NarrowByPair(range, rule);
            break;
        case AttributeKind::Years: {
            const auto vecYear = SplitTokens(rule.strValue);
            if (vecYear.empty())
                break;
            const year chosen{static_cast<int>(NumberOf(vecYear[static_cast<std::size_t>(
                Random(0, static_cast<long>(vecYear.size()) - 1))]))};
            range.Narrow(chosen / 1 / 1, chosen / 12 / 31);
            break;
        }
        case AttributeKind::EqualYearColumn: {
            const bool bOwn = rule.lColumn == lColumn;
            const long lOffset = NumberOf(rule.strMax) - NumberOf(rule.strMin);
            const auto other = YearAt(lRow, bOwn ? NumberOf(rule.strValue) : rule.lColumn);
            if (!other)
                break;
            const year wanted{*other + static_cast<int>(bOwn ? lOffset : -lOffset)};
            range.Narrow(wanted / 1 / 1, wanted / 12 / 31);
            break;
        }
        case AttributeKind::FiscalYearColumn:
            NarrowByFiscalYear(range, rule, lColumn, lRow);
            break;
        case AttributeKind::AgeColumns:
            NarrowByAge(range, rule, lColumn, lRow);
            break;
        case AttributeKind::BaseDate:
        case AttributeKind::BaseDateOrCell:
            NarrowByBaseDate(range, rule, lColumn, lRow);
            break;
        // Told with the base dates, the ages or the year beside them.
        case AttributeKind::DateCell:
        case AttributeKind::LimitsIncluded:
        case AttributeKind::AgeLimit:
        case AttributeKind::Offset:
        // Of no date.
        case AttributeKind::None:
        case AttributeKind::Texts:
        case AttributeKind::ForbiddenTexts:
        case AttributeKind::Extensions:
        case AttributeKind::Positions:
        case AttributeKind::Characters:
        case AttributeKind::PathKind:
        case AttributeKind::NumberKind:
        case AttributeKind::LineFeeds:
        case AttributeKind::ByteCount:
        case AttributeKind::CharacterCount:
        case AttributeKind::Limit:
        case AttributeKind::Record:
        case AttributeKind::EqualColumn:
        case AttributeKind::UnequalColumn:
        case AttributeKind::AnyColumn:
        case AttributeKind::ErrorColumns:
        case AttributeKind::WesternDateColumns:
            break;
    }
}

/// From the first day, where there is one, or within the one year that ends in September.
void RecordGenerator::NarrowByFiscalYear(DayRange& range,
                                         const CheckRule& rule,
                                         long lColumn,
                                         long lRow)
{
    const bool bOneYear = !HasKind(*rule.pRow, AttributeKind::FirstDay);
    const auto first =
        bOneYear
            ? std::nullopt
            : LiteralDay(AttributeText(rule, AttributeOf(*rule.pRow, AttributeKind::FirstDay)));
    const Attribute eYear = AttributeOf(*rule.pRow, AttributeKind::FiscalYearColumn);
    if (rule.lColumn == lColumn) {
        if (const auto other = YearAt(lRow, NumberOf(AttributeText(rule, eYear))))
            range.Narrow(first.value_or(sys_days{year{*other - 1} / 10 / 1}),
                         year{*other} / 9 / 30);
    } else if (const auto day = DayAt(lRow, rule.lColumn)) {
        const year last{YearOf(*day + days{92})};
        range.Narrow(last / 1 / 1, bOneYear ? sys_days{last / 12 / 31} : range.last);
    }
}

void RecordGenerator::NarrowByPair(DayRange& range, const CheckRule& rule)
{
    const auto vecMin = SplitTokens(rule.strMin);
    const auto vecMax = SplitTokens(rule.strMax);
    const long lPairs = HasKind(*rule.pRow, AttributeKind::Period)
                            ? 1
                            : static_cast<long>(std::min(vecMin.size(), vecMax.size()));
    if (vecMin.empty() || vecMax.empty())
        return;
    const auto nPair = static_cast<std::size_t>(Random(0, lPairs - 1));
    std::string strMin = vecMin[nPair];
    std::string strMax = vecMax[nPair];
    if (strMin.starts_with("****") && strMax.starts_with("****")) {
        const std::string strYear = std::to_string(Random(YearOf(range.first), YearOf(range.last)));
        strMin.replace(0, 4, strYear);
        strMax.replace(0, 4, strYear);
    }
    const auto min = LiteralDay(strMin);
    const auto max = LiteralDay(strMax);
    if (min && max)
        range.Narrow(*min, *max);
}

void RecordGenerator::NarrowByAge(DayRange& range, const CheckRule& rule, long lColumn, long lRow)
{
    constexpr long OLDEST = 95;
    const auto vecToken = AgeWords(rule);
    if (vecToken.size() < AgeWord::LEAST)
        return;
    const int nAdded = static_cast<int>(NumberOf(vecToken[AgeWord::ADDED_YEARS]));
    const long lAge =
        Random(NumberOf(rule.strMin), rule.strMax.empty() ? OLDEST : NumberOf(rule.strMax));
    if (NumberOf(vecToken[AgeWord::BIRTH_COLUMN]) == lColumn) {
        const auto reference = YearAt(lRow, NumberOf(vecToken[AgeWord::YEAR_COLUMN]));
        const auto day =
            reference ? DayOf(*reference + nAdded - static_cast<int>(lAge),
                              NumberOf(vecToken[AgeWord::MONTH]), NumberOf(vecToken[AgeWord::DAY]))
                      : std::nullopt;
        if (day)
            range.Narrow(*day - days{364}, *day);
    } else if (NumberOf(vecToken[AgeWord::YEAR_COLUMN]) == lColumn) {
        if (const auto birth = DayAt(lRow, NumberOf(vecToken[AgeWord::BIRTH_COLUMN]))) {
            const year wanted{YearOf(*birth) + static_cast<int>(lAge) - nAdded};
            range.Narrow(wanted / 1 / 1, wanted / 12 / 31);
        }
    }
}

void RecordGenerator::NarrowByBaseDate(DayRange& range,
                                       const CheckRule& rule,
                                       long lColumn,
                                       long lRow)
{
    const bool bOther = HasKind(*rule.pRow, AttributeKind::DateCell);
    const bool bInclude = bOther || !rule.strValue.empty();
    const days gap{bInclude ? 0 : 1};
    if (bOther && !rule.strValue.empty()) {
        const CellSpan referred = ReferredDate(rule.strValue);
        if (referred.lRecord == lRow + 1 && referred.lColumn == lColumn) {
            range.Narrow(LiteralDay(rule.strMin).value_or(range.first),
                         LiteralDay(rule.strMax).value_or(range.last));
        }
        return;
    }
    if (rule.lColumn == lColumn) {
        if (const auto min = BaseDate(rule.strMin, lRow))
            range.Narrow(*min + gap, range.last);
        if (const auto max = BaseDate(rule.strMax, lRow))
            range.Narrow(range.first, *max - gap);
        return;
    }
    const auto day = DayAt(lRow, rule.lColumn);
    if (day && NumberOf(rule.strMin) == lColumn)
        range.Narrow(range.first, *day - gap);
    if (day && NumberOf(rule.strMax) == lColumn)
        range.Narrow(*day + gap, range.last);
}

std::optional<sys_days> RecordGenerator::BaseDate(const std::string& strBound, long lRow) const
{
    const CellSpan referred = ReferredDate(strBound);
    if (referred.lRecord > 0)
        return DayAt(referred.lRecord - 1, referred.lColumn);
    return DayAt(lRow, NumberOf(strBound));
}

std::optional<sys_days> RecordGenerator::DayAt(long lRow, long lColumn) const
{
    const auto nYear = YearAt(lRow, lColumn);
    if (!nYear)
        return std::nullopt;
    return DayOf(*nYear, NumberOf(m_table.Cell(lRow, lColumn + 2)),
                 NumberOf(m_table.Cell(lRow, lColumn + 3)));
}

std::optional<int> RecordGenerator::YearAt(long lRow, long lColumn) const
{
    return WesternYear(NumberOf(m_table.Cell(lRow, lColumn)),
                       NumberOf(m_table.Cell(lRow, lColumn + 1)));
}

std::string RecordGenerator::PadNumber(long lNumber)
{
    std::string strNumber = std::to_string(lNumber);
    return strNumber.size() == 1 && Chance(10) ? "0" + strNumber : strNumber;
}

// --- single cells ---

std::string RecordGenerator::DrawCell(const Unit& unit, long lRow)
{
    const long lColumn = unit.vecColumn.front();
    if (m_strGeneration == JUNIOR && lColumn == m_lReferenceColumn)
        return DrawNumbered(CheckDigit::REFERENCE);
    if (DrawsEmpty(unit, lRow))
        return "";
    const CellShape shape = Shape(unit, lRow);
    if (shape.fixed)
        return *shape.fixed;
    if (shape.bOffice)
        return m_vecOffice[static_cast<std::size_t>(
                               Random(0, static_cast<long>(m_vecOffice.size()) - 1))]
            .strCode;
    if (shape.bPath || !shape.strExtension.empty())
        return DrawPath(shape);
    if (shape.tokens && !shape.tokens->empty())
        return (*shape.tokens)[static_cast<std::size_t>(
            Random(0, static_cast<long>(shape.tokens->size()) - 1))];
    if (!shape.vecNumberKind.empty())
        return DrawNumbered(shape.vecNumberKind[static_cast<std::size_t>(
            Random(0, static_cast<long>(shape.vecNumberKind.size()) - 1))]);
    if (shape.range && shape.range->first <= shape.range->second)
        return std::to_string(Random(shape.range->first, shape.range->second));
    return DrawText(shape);
}

RecordGenerator::CellShape RecordGenerator::Shape(const Unit& unit, long lRow)
{
    CellShape shape;
    const long lColumn = unit.vecColumn.front();
    for (const CheckRule* pRule : unit.vecCheck) {
        if (!m_form.vecItem[pRule->nItem].FitsGeneration(m_strGeneration) ||
            !pRule->setReads.contains(lColumn))
            continue;
        // A condition on the cell itself isn't known before the cell is drawn.
        const bool bActive =
            std::ranges::all_of(pRule->vecConditionRule, [&](const CheckRule& condition) {
                return condition.setReads == std::set{lColumn}
                           ? condition.pRow->shape.eContent == CellContent::Filled || Chance(50)
                           : Holds(condition, m_table, lRow);
            });
        if (bActive)
            AddToShape(shape, *pRule, lColumn, lRow);
    }
    return shape;
}

void RecordGenerator::AddToShape(CellShape& shape, const CheckRule& rule, long lColumn, long lRow)
{
    const CellContent eContent = rule.pRow->shape.eContent;
    if (IsCharacterSet(eContent))
        shape.characters = std::min(shape.characters.value_or(eContent), eContent);
    shape.bOffice = shape.bOffice || eContent == CellContent::OfficeCode;
    for (const AttributeKind eKind : KindsOf(*rule.pRow))
        AddKindToShape(shape, eKind, rule, lColumn, lRow);
}

void RecordGenerator::AddKindToShape(
    CellShape& shape, AttributeKind eKind, const CheckRule& rule, long lColumn, long lRow)
{
    switch (eKind) {
        case AttributeKind::LineFeeds:
            shape.bLineFeeds = shape.bLineFeeds || !rule.strValue.empty();
            break;
        case AttributeKind::Texts: {
            std::vector<std::string> vecToken;
            for (const std::string& strToken : SplitTokens(rule.strValue))
                vecToken.push_back(ToShiftJis(strToken));
            if (shape.tokens) {
                std::erase_if(*shape.tokens, [&](const std::string& strToken) {
                    return std::ranges::find(vecToken, strToken) == vecToken.end();
                });
            } else {
                shape.tokens = vecToken;
            }
            break;
        }
        case AttributeKind::Limit: {
            // Of several columns one suffices.
            if (HasKind(*rule.pRow, AttributeKind::AnyColumn) && !Chance(70))
                break;
            const long lMin = NumberOf(rule.strMin);
            const long lMax = NumberOf(rule.strMax);
            shape.range = shape.range ? std::pair(std::max(shape.range->first, lMin),
                                                  std::min(shape.range->second, lMax))
                                      : std::pair(lMin, lMax);
            break;
        }
        case AttributeKind::ByteCount:
            if (!rule.strValue.empty())
                shape.bytes = NumberOf(rule.strValue);
            else
                shape.lMaxBytes = std::min(shape.lMaxBytes, NumberOf(rule.strMax));
            break;
        case AttributeKind::CharacterCount:
            if (!rule.strValue.empty())
                shape.characterCount = NumberOf(rule.strValue);
            else
                shape.lMaxCharacters = std::min(shape.lMaxCharacters, NumberOf(rule.strMax));
            break;
        case AttributeKind::NumberKind:
            shape.vecNumberKind.push_back(rule.strValue);
            break;
        case AttributeKind::Positions:
            shape.vecDigitRule.push_back(&rule);
            break;
        case AttributeKind::PathKind:
            shape.bPath = true;
            break;
        case AttributeKind::Extensions:
            if (const auto vecToken = SplitTokens(rule.strValue); !vecToken.empty())
                shape.strExtension = vecToken.front();
            break;
        case AttributeKind::EqualColumn:
            if (Chance(80))
                FixByColumn(shape, rule, lColumn, lRow);
            break;
        // Told with the kind beside them.
        case AttributeKind::Characters:
        case AttributeKind::AnyColumn:
        case AttributeKind::Offset:
        // Nearly every cell that is drawn otherwise keeps to them.
        case AttributeKind::ForbiddenTexts:
        case AttributeKind::UnequalColumn:
        // Of errors and of dates, which are drawn as a whole.
        case AttributeKind::None:
        case AttributeKind::ErrorColumns:
        case AttributeKind::Record:
        case AttributeKind::LimitsIncluded:
        case AttributeKind::AgeLimit:
        case AttributeKind::Years:
        case AttributeKind::WesternDateColumns:
        case AttributeKind::EqualYearColumn:
        case AttributeKind::FiscalYearColumn:
        case AttributeKind::AgeColumns:
        case AttributeKind::DateCell:
        case AttributeKind::BaseDate:
        case AttributeKind::BaseDateOrCell:
        case AttributeKind::FirstDay:
        case AttributeKind::ComparedDay:
        case AttributeKind::Periods:
        case AttributeKind::Period:
            break;
    }
}

/// What makes the cell agree with the other one of its pair, unless that is empty.
void RecordGenerator::FixByColumn(CellShape& shape,
                                  const CheckRule& rule,
                                  long lColumn,
                                  long lRow) const
{
    const bool bOwn = rule.lColumn == lColumn;
    const std::string strOther = m_table.Cell(lRow, bOwn ? NumberOf(rule.strValue) : rule.lColumn);
    if (strOther.empty())
        return;
    const bool bNumbers = !rule.strMin.empty() || !rule.strMax.empty();
    const long lOffset = NumberOf(rule.strMin) - NumberOf(rule.strMax);
    shape.fixed =
        bNumbers ? std::to_string(NumberOf(strOther) + (bOwn ? lOffset : -lOffset)) : strOther;
}

std::string RecordGenerator::DrawText(const CellShape& shape)
{
    const CellContent eContent = shape.characters.value_or(CellContent::Any);
    std::string strCharacters = CharactersOf(eContent);
    if (m_form.bQuoted && eContent == CellContent::FilingCharacters)
        strCharacters += shape.bLineFeeds ? ",\"\n" : ",\"";
    const auto vecCharacter = Characters(strCharacters);
    const auto lWidest =
        static_cast<long>(std::ranges::max(vecCharacter, {}, [](const std::string& strCharacter) {
                              return strCharacter.size();
                          }).size());
    const long lMost = std::min(shape.lMaxCharacters, shape.lMaxBytes / lWidest);
    long lCharacters = Chance(5) ? lMost : Random(1, std::max(1L, std::min(lMost, LONGEST_DRAWN)));
    if (shape.characterCount)
        lCharacters = *shape.characterCount;
    if (shape.bytes)
        lCharacters = *shape.bytes / lWidest;
    std::string strText;
    for (long l = 0; l < lCharacters; ++l)
        strText += vecCharacter[static_cast<std::size_t>(
            Random(0, static_cast<long>(vecCharacter.size()) - 1))];
    // Digits of an amount seldom begin with 0.
    if (eContent == CellContent::Digits && strText.size() > 1 && strText.front() == '0' &&
        Chance(80))
        strText.front() = '1';
    if (eContent == CellContent::Digits && !shape.bytes && Chance(50))
        strText.resize(
            static_cast<std::size_t>(Random(1, std::max(1L, static_cast<long>(strText.size())))));
    for (const CheckRule* pRule : shape.vecDigitRule) {
        for (const std::string& strPosition : SplitTokens(pRule->strValue)) {
            const auto nPosition = static_cast<std::size_t>(NumberOf(strPosition));
            const auto vecAllowed = SplitTokens(pRule->strMax);
            if (nPosition < 1 || nPosition > strText.size())
                continue;
            if (vecAllowed.empty())
                strText[nPosition - 1] = DIGITS[Random(0, 9)];
            else
                strText[nPosition - 1] = vecAllowed[static_cast<std::size_t>(
                    Random(0, static_cast<long>(vecAllowed.size()) - 1))][0];
        }
    }
    return strText;
}

std::string RecordGenerator::DrawNumbered(const std::string& strKind)
{
    const bool bReference = strKind == CheckDigit::REFERENCE;
    const bool bCorporate = strKind == CheckDigit::CORPORATE;
    const std::size_t nDigits = bReference   ? CheckDigit::REFERENCE_DIGITS
                                : bCorporate ? CheckDigit::CORPORATE_DIGITS
                                             : CheckDigit::PERSONAL_DIGITS;
    std::string strDigits;
    for (std::size_t n = 0; n < nDigits; ++n)
        strDigits += DIGITS[Random(0, 9)];
    if (bReference) {
        if (m_lReferenceColumn > 0 && m_strGeneration == JUNIOR)
            strDigits[0] = DIGITS[Random(4, 9)];
        return strDigits + DIGITS[CheckDigit::OfReference(strDigits)];
    }
    if (bCorporate)
        return DIGITS[CheckDigit::OfCorporate(strDigits)] + strDigits;
    const std::string strNumber = strDigits + DIGITS[CheckDigit::OfPersonal(strDigits)];
    return strKind == CheckDigit::PERSONAL_BEHIND_ONE ? "0" + strNumber : strNumber;
}

/// The path of a file that is there and isn't empty if the cell is to name one, else a name alone.
std::string RecordGenerator::DrawPath(const CellShape& shape)
{
    std::string strName =
        std::string(1, LETTERS[Random(0, 51)]) + std::to_string(Random(1, 99)) + shape.strExtension;
    if (!shape.bPath)
        return strName;
    std::string strPath = m_strFolder + "/" + strName;
    std::ofstream(strPath) << "x";
    return strPath;
}

long RecordGenerator::Random(long lFirst, long lLast)
{
    // The library's distributions differ between systems; this one doesn't.
    if (lLast <= lFirst)
        return lFirst;
    const auto nSpan = static_cast<unsigned long>(lLast - lFirst) + 1;
    const std::uint64_t nHigh = m_random();
    const std::uint64_t nLow = m_random();
    const std::uint64_t nDrawn = nHigh << 32U | nLow;
    return lFirst + static_cast<long>(nDrawn % nSpan);
}

}  // namespace host

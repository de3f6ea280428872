// Makes records that pass the checks of a form, from the definition file alone.
#pragma once

#include <chrono>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "KZCEkaCommon.h"
#include "generate/FormRules.h"
#include "generate/RecordTable.h"

namespace host {

/// Name (UTF-8) and code of a tax office.
struct TaxOffice
{
    std::string strCode;
    std::string strName;
};

/// The offices of type 5 of a TaxOffices.xml.
std::vector<TaxOffice> ReadTaxOffices(const std::string& strPath);

/// Has the library read cells as a check of the mode's families does for as long as the object
/// lives.
class CheckPhase
{
public:
    explicit CheckPhase(KZCEkaCommon::EXEC_MODE eMode = KZCEkaCommon::EXEC_MODE_ZEKA);
    ~CheckPhase();
    CheckPhase(const CheckPhase&) = delete;
    CheckPhase& operator=(const CheckPhase&) = delete;
};

/// Draws cells from the keywords and parameters that watch them, then mends what relations between
/// columns still refuse. The library's check items are asked which candidate to keep, one by one;
/// whether a whole record passes is for the test to find out. The same seed gives the same records.
/// Works inside a CheckPhase only. Cells are Shift_JIS.
class RecordGenerator
{
public:
    using Record = KZCEkaCsvFile::Record;

    /// \param form  Looked at until destruction. \param table  Where records are put, and where
    /// checks find the other records of the file; looked at until destruction. \param strFolder
    /// Where files that cells name are made.
    RecordGenerator(const FormRules& form,
                    RecordTable& table,
                    std::vector<TaxOffice> vecOffice,
                    std::string strFolder,
                    unsigned nSeed);

    /// Puts a record into the table, in place of another or behind the last. Throws
    /// std::runtime_error that names column and check if no passing record was found.
    /// \param lRow  From 0. \param nTurn  The generations of the form take turns.
    void Make(long lRow, std::size_t nTurn);

    /// The checks of a generation whose conditions hold for a record.
    static bool IsActive(const CheckRule& rule, const RecordTable& table, long lRow);
    /// The check passes, its conditions left aside.
    static bool Passes(const CheckRule& rule, const RecordTable& table, long lRow);

private:
    enum class UnitKind
    {
        CELL,
        DATE,          ///< era, year, month, day
        YEAR,          ///< era, year
        WESTERN_DATE,  ///< year, month, day
        OFFICE,        ///< name, code
    };
    /// Columns that are drawn together.
    struct Unit
    {
        UnitKind eKind;
        std::vector<long> vecColumn;
        std::vector<const CheckRule*> vecCheck;  ///< that read one of the columns
    };
    struct DayRange
    {
        std::chrono::sys_days first;
        std::chrono::sys_days last;
        void Narrow(std::chrono::sys_days newFirst, std::chrono::sys_days newLast);
    };
    struct CellShape;

    void MakeUnits();
    void AddUnitsOf(const CheckRule& rule);
    void AddUnit(UnitKind eKind, const std::vector<long>& vecColumn);
    void AddSpan(UnitKind eKind, long lFirst, long lCount);

    std::vector<const CheckRule*> Refusals(long lRow) const;
    bool HasGeneration(long lRow) const;
    std::string Complaint(long lRow) const;
    void Redraw(const Unit& unit, long lRow);
    std::size_t CountRefusals(const Unit& unit, long lRow) const;
    const Unit& RandomUnitOf(const CheckRule& rule);

    std::vector<std::string> Draw(const Unit& unit, long lRow);
    bool DrawsEmpty(const Unit& unit, long lRow);
    std::vector<std::string> DrawDate(const Unit& unit, long lRow);
    std::vector<std::string> DrawYear(const Unit& unit, long lRow);
    DayRange DrawRange(const Unit& unit, long lRow);
    void NarrowByCheck(DayRange& range, const CheckRule& rule, long lColumn, long lRow);
    void NarrowByKind(
        DayRange& range, AttributeKind eKind, const CheckRule& rule, long lColumn, long lRow);
    void NarrowByFiscalYear(DayRange& range, const CheckRule& rule, long lColumn, long lRow);
    void NarrowByPair(DayRange& range, const CheckRule& rule);
    void NarrowByAge(DayRange& range, const CheckRule& rule, long lColumn, long lRow);
    void NarrowByBaseDate(DayRange& range, const CheckRule& rule, long lColumn, long lRow);
    std::chrono::sys_days DrawDay(const DayRange& range);

    std::string DrawCell(const Unit& unit, long lRow);
    CellShape Shape(const Unit& unit, long lRow);
    void AddToShape(CellShape& shape, const CheckRule& rule, long lColumn, long lRow);
    void AddKindToShape(
        CellShape& shape, AttributeKind eKind, const CheckRule& rule, long lColumn, long lRow);
    void FixByColumn(CellShape& shape, const CheckRule& rule, long lColumn, long lRow) const;
    std::string DrawText(const CellShape& shape);
    std::string DrawNumbered(const std::string& strKind);
    std::string DrawPath(const CellShape& shape);

    std::optional<std::chrono::sys_days> DayAt(long lRow, long lColumn) const;
    std::optional<int> YearAt(long lRow, long lColumn) const;
    std::optional<std::chrono::sys_days> BaseDate(const std::string& strBound, long lRow) const;
    std::string PadNumber(long lNumber);

    long Random(long lFirst, long lLast);
    bool Chance(int nPercent) { return Random(1, 100) <= nPercent; }

    const FormRules& m_form;
    RecordTable& m_table;
    std::vector<TaxOffice> m_vecOffice;
    std::string m_strFolder;
    std::mt19937 m_random;
    std::vector<Unit> m_vecUnit;
    std::set<long> m_setGenerationColumn;  ///< columns that tell the generation
    long m_lReferenceColumn = 0;           ///< of them the one with the reference number
    std::string m_strGeneration;           ///< that the next record is to have
};

}  // namespace host

// Reports of made-up files, for the tests of the formats.
#pragma once

#include <memory>
#include <string>

#include "base/Language.h"
#include "request/FileReport.h"

namespace host {

/// Speaks Japanese for as long as it lives.
class InJapanese
{
public:
    InJapanese() { SetLanguage(Language::Japanese); }
    ~InJapanese() { SetLanguage(Language::English); }
    InJapanese(const InJapanese&) = delete;
    InJapanese& operator=(const InJapanese&) = delete;
};

/// The record stands one line below its number.
inline ReportedError CellError(long lRecord, long lColumn, KZCEkaMessage_t eMessage)
{
    ReportedError error;
    error.entry = {lRecord, lColumn, SINGLE_COLUMN, EkaMsgTable[eMessage].szCode, eMessage};
    error.eScope = ErrorScope::Cell;
    error.nLine = static_cast<std::size_t>(lRecord) + 1;
    error.strName = "氏名";
    error.value = "abc";
    return error;
}

/// Two errors in record 3, columns 5 and 6, and one in record 4, column 5.
inline FileReport RefusedReport()
{
    FileReport report;
    report.strFile = "a.csv";
    report.eOutcome = Outcome::Refused;
    report.eStatus = ExitStatus::Refused;
    report.strProcedure = "PGE5020";
    report.records = 20;
    report.vecError = {CellError(3, 5, HE70003E), CellError(3, 6, HE70001E),
                       CellError(4, 5, HE70003E)};
    return report;
}

/// The same with the cells of its file, four records of seven columns.
inline FileReport RefusedReportWithCells()
{
    FileReport report = RefusedReport();
    report.pCells = std::make_shared<CsvCells>(
        "002,1,2,3,4,5,6\r\n002,1,2,3,4,5,6\r\n002,1,2,3,abc,,6\r\n002,1,2,3,<i>,5,6\r\n");
    report.vecForm = {{1, 5, "様式", {"申請区分", "甲", "乙", "丙", "氏名", "", "<b>"}}};
    return report;
}

}  // namespace host

// The smallest definition files of the Finance and CrossBorder families.
#pragma once

#include <optional>
#include <string>

#include "Bundle.h"

/// Attributes of a small report that tell its rows, such as ` startRow="0" endRow="0"`, and what it
/// is called.
struct SmallReport
{
    std::string strProcId;
    std::string strReportId;
    std::string strRows;
    std::string strReportVR = "1.0";
    std::string strProcVR = "231.0";
};

/// A number in column 2, which has to be there, and a text of at most 10 bytes in column 3. The
/// record `101,12,ab` of report GEZ035 passes and its nodes write
/// <GEZ03500><GEZ03510>12</GEZ03510><GEZ03520>ab</GEZ03520></GEZ03500>.
inline std::string SmallReportElement(const SmallReport& report)
{
    const std::string& strId = report.strReportId;
    return R"(<report columnNum="3" procId=")" + report.strProcId + R"(" procVR=")" +
           report.strProcVR + R"(" reportId=")" + strId + R"(" reportVR=")" + report.strReportVR +
           "\"" + report.strRows + R"(><item type="TAG" id=")" + strId + R"(00" parent=")" + strId +
           R"("/><item type="Normal" id=")" + strId + R"(10" parent=")" + strId +
           R"(00" column="2"><valid id="exist"/><valid id="number"/></item>)" +
           R"(<item type="Normal" id=")" + strId + R"(20" parent=")" + strId +
           R"(00" column="3"><valid id="length" max="10"/></item></report>)";
}

/// A definition file around report elements.
inline std::string DefinitionFile(const std::string& strReports)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?><definitions>)" + strReports + "</definitions>";
}

/// What the nodes of a small report write for a record.
inline std::string SmallBody(const std::string& strReportId,
                             const std::string& strFirst,
                             const std::string& strSecond)
{
    return "<" + strReportId + "00><" + strReportId + "10>" + strFirst + "</" + strReportId +
           "10><" + strReportId + "20>" + strSecond + "</" + strReportId + "20></" + strReportId +
           "00>";
}

/// A resource folder with the small base form and these procedures:
/// - 101 (PGE2015, GEZ035) and 301 (PGE1650, GEZ850): each record is a report;
/// - 103 (PGE2030): records 1 to 4 are pages of two of GEZ050, the others a page of GEZ051;
/// - 108 (PGE2080, GEZ100): one record;
/// - 202 (PGE1640, GEZ750): two records make a page; only the first begins with the type id.
class FamilyBundle : public Bundle
{
public:
    FamilyBundle()
    {
        constexpr const char* EACH_RECORD = R"( startRow="0" endRow="0")";
        WriteBoth("Finance/PGE2015", {"PGE2015", "GEZ035", EACH_RECORD});
        WriteBoth("Finance/PGE2080", {"PGE2080", "GEZ100", EACH_RECORD, "2.0"});
        Write("Finance/PGE1640_vld.xml",
              DefinitionFile(
                  SmallReportElement({"PGE1640", "GEZ750", R"( startRow="1" endRow="1")"}) +
                  SmallReportElement({"PGE1640", "GEZ750", R"( startRow="2" endRow="-1")"})));
        Write("Finance/PGE1640_tpl.xml",
              DefinitionFile(SmallReportElement(
                  {"PGE1640", "GEZ750", R"( startRow="1" endRow="-1" stepRow="2")"})));
        WriteBoth("CrossBorder/PGE1650", {"PGE1650", "GEZ850", EACH_RECORD, "1.0", "240.0"});
        const std::string strTwoForms = DefinitionFile(
            SmallReportElement(
                {"PGE2030", "GEZ050", R"( startRow="1" endRow="4" stepRow="2")", "5.0"}) +
            SmallReportElement({"PGE2030", "GEZ051", R"( startRow="5" endRow="-1")", "5.0"}));
        Write("Finance/PGE2030_vld.xml", strTwoForms);
        Write("Finance/PGE2030_tpl.xml", strTwoForms);
    }

    /// Both files of a procedure with the one report.
    void WriteBoth(const std::string& strName, const SmallReport& report) const
    {
        const std::string strDefinition = DefinitionFile(SmallReportElement(report));
        Write(strName + "_vld.xml", strDefinition);
        Write(strName + "_tpl.xml", strDefinition);
    }
};

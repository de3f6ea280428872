#include "FamilyRequest.h"

#include <filesystem>
#include <ostream>

const FamilyForms BASE_FORMS = {Family::BASE, "Base",    nullptr,  "002", "PGE5020", "GEZ902",
                                "008",        "PGE5080", "GEZ908", 5,     6,         12};
const FamilyForms FINANCE_FORMS = {Family::FINANCE, "Finance", "Finance", "101",
                                   "PGE2015",       "GEZ035",  "102",     "PGE2025",
                                   "GEZ045",        16,        6,         12};
const FamilyForms CROSSBORDER_FORMS = {Family::CROSSBORDER,
                                       "CrossBorder",
                                       "CrossBorder",
                                       "301",
                                       "PGE1650",
                                       "GEZ850",
                                       "302",
                                       "PGE1660",
                                       "GEZ860",
                                       10,
                                       10,
                                       18};

namespace {

const char* Pointer(const std::optional<std::string>& strValue)
{
    return strValue ? strValue->c_str() : nullptr;
}

std::string FilePath(const std::string& strBundle,
                     const FamilyForms& forms,
                     const std::string& strProcId,
                     const char* szEnding)
{
    return strBundle + "/" + forms.szFolder + "/" + strProcId + szEnding;
}

std::string Checks(long lColumn)
{
    switch (lColumn) {
        case 2:
            return R"(<valid id="exist"/><valid id="number"/>)";
        case 3:
            return R"(<valid id="exist"/><valid id="length" max="20"/>)";
        case 4:
            return R"(<valid id="range" min="1" max="99"><outer id="exist" column="4"/></valid>)";
        default:
            return R"(<valid id="contain" value="1 2"><outer id="exist" column="5"/></valid>)";
    }
}

}  // namespace

std::ostream& operator<<(std::ostream& stream, const FamilyForms& forms)
{
    return stream << forms.szName;
}

std::string ReportXml(const std::string& strProcId,
                      const std::string& strReportId,
                      const std::string& strItems,
                      const std::string& strAttributes)
{
    return R"(<report columnNum="5" procId=")" + strProcId + R"(" procVR="7.0" reportId=")" +
           strReportId + R"(" reportVR="1.0" )" + strAttributes + ">" + strItems + "</report>";
}

std::string ItemXml(const std::string& strReportId, long lColumn, const std::string& strChecks)
{
    const std::string strColumn = std::to_string(lColumn);
    return "<item type=\"Normal\" id=\"" + strReportId + strColumn + "\" parent=\"" + strReportId +
           "\" column=\"" + strColumn + "\">" + strChecks + "</item>";
}

std::string DefinitionXml(const std::string& strReports)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?><definitions>)" + strReports + "</definitions>";
}

std::string ValidationPath(const std::string& strBundle,
                           const FamilyForms& forms,
                           const std::string& strProcId)
{
    return FilePath(strBundle, forms, strProcId, "_vld.xml");
}

std::string TemplatePath(const std::string& strBundle,
                         const FamilyForms& forms,
                         const std::string& strProcId)
{
    return FilePath(strBundle, forms, strProcId, "_tpl.xml");
}

void WriteProcedure(const std::string& strBundle,
                    const FamilyForms& forms,
                    const std::string& strProcId,
                    const std::string& strValidation,
                    const std::string& strTemplate)
{
    std::filesystem::create_directories(strBundle + "/" + forms.szFolder);
    WriteBytes(ValidationPath(strBundle, forms, strProcId), strValidation);
    WriteBytes(TemplatePath(strBundle, forms, strProcId), strTemplate);
}

void WriteFamilies(const std::string& strBundle)
{
    for (const FamilyForms* pForms : {&FINANCE_FORMS, &CROSSBORDER_FORMS}) {
        std::string strChecked;
        std::string strWritten;
        std::string strFree;
        for (long lColumn = 2; lColumn <= 5; ++lColumn) {
            strChecked += ItemXml(pForms->szReportId, lColumn, Checks(lColumn));
            strWritten += ItemXml(pForms->szReportId, lColumn, "");
            strFree += ItemXml(pForms->szFreeReportId, lColumn, "");
        }
        WriteProcedure(strBundle, *pForms, pForms->szProcId,
                       DefinitionXml(ReportXml(pForms->szProcId, pForms->szReportId, strChecked)),
                       DefinitionXml(ReportXml(pForms->szProcId, pForms->szReportId, strWritten)));
        const std::string strFreeDefinition =
            DefinitionXml(ReportXml(pForms->szFreeProcId, pForms->szFreeReportId, strFree));
        WriteProcedure(strBundle, *pForms, pForms->szFreeProcId, strFreeDefinition,
                       strFreeDefinition);
    }
}

Outcome Check(Family eFamily, const std::string& strCsvPath)
{
    KZICsvConvMokEka api;
    switch (eFamily) {
        case Family::FINANCE:
            return OutcomeOf(api.CsvCheckFinance(strCsvPath.c_str()));
        case Family::CROSSBORDER:
            return OutcomeOf(api.CsvCheckCrossBorder(strCsvPath.c_str()));
        default:
            return OutcomeOf(api.CsvCheck(strCsvPath.c_str()));
    }
}

Outcome ElCheck(Family eFamily, const std::string& strCsvPath, std::int64_t lKey)
{
    KZICsvConvMokEka api;
    switch (eFamily) {
        case Family::FINANCE:
            return OutcomeOf(api.ELCsvCheckFinance(strCsvPath.c_str(), lKey));
        case Family::CROSSBORDER:
            return OutcomeOf(api.ELCsvCheckCrossBorder(strCsvPath.c_str(), lKey));
        default:
            return OutcomeOf(api.ELCsvCheck(strCsvPath.c_str(), lKey));
    }
}

Outcome Convert(Family eFamily, const FilingArguments& a)
{
    KZICsvConvMokEka api;
    switch (eFamily) {
        case Family::FINANCE:
            return OutcomeOf(api.CsvConvMokFinance(
                Pointer(a.csvPath), Pointer(a.mokPath), Pointer(a.zeimushoCD),
                Pointer(a.nozeishaId), Pointer(a.kojinBango), Pointer(a.hojinBango),
                Pointer(a.nozeishaNm), Pointer(a.nozeishaAdr), Pointer(a.daihyoNm),
                Pointer(a.dairiId), Pointer(a.dairiNm), Pointer(a.dairiAdr), Pointer(a.tetsuzuki),
                Pointer(a.teishutsuEra), Pointer(a.teishutsuYear), Pointer(a.teishutsuMonth),
                Pointer(a.teishutsuDay), Pointer(a.softName), Pointer(a.zip1), Pointer(a.zip2)));
        case Family::CROSSBORDER:
            return OutcomeOf(api.CsvConvMokCrossBorder(
                Pointer(a.csvPath), Pointer(a.mokPath), Pointer(a.zeimushoCD),
                Pointer(a.teishutsuEra), Pointer(a.teishutsuYear), Pointer(a.teishutsuMonth),
                Pointer(a.teishutsuDay), Pointer(a.nozeishaId), Pointer(a.kojinBango),
                Pointer(a.hojinBango), Pointer(a.nozeishaNm), Pointer(a.zip1), Pointer(a.zip2),
                Pointer(a.nozeishaAdr), Pointer(a.daihyoNm), Pointer(a.dairiId), Pointer(a.dairiNm),
                Pointer(a.dairiAdr), Pointer(a.tetsuzuki), Pointer(a.softName)));
        default:
            return OutcomeOf(
                api.CsvConvMok(Pointer(a.csvPath), Pointer(a.mokPath), Pointer(a.zeimushoCD),
                               Pointer(a.nozeishaId), Pointer(a.kojinBango), Pointer(a.hojinBango),
                               Pointer(a.nozeishaNm), Pointer(a.nozeishaAdr), Pointer(a.daihyoNm),
                               Pointer(a.dairiId), Pointer(a.dairiNm), Pointer(a.dairiAdr),
                               Pointer(a.tetsuzuki), Pointer(a.softName)));
    }
}

Outcome ElConvert(Family eFamily, std::int64_t lKey, const FilingArguments& a)
{
    KZICsvConvMokEka api;
    switch (eFamily) {
        case Family::FINANCE:
            return OutcomeOf(api.ELCsvConvMokFinance(
                lKey, Pointer(a.zeimushoCD), Pointer(a.nozeishaId), Pointer(a.kojinBango),
                Pointer(a.hojinBango), Pointer(a.nozeishaNm), Pointer(a.nozeishaAdr),
                Pointer(a.daihyoNm), Pointer(a.dairiId), Pointer(a.dairiNm), Pointer(a.dairiAdr),
                Pointer(a.tetsuzuki), Pointer(a.teishutsuEra), Pointer(a.teishutsuYear),
                Pointer(a.teishutsuMonth), Pointer(a.teishutsuDay), Pointer(a.softName),
                Pointer(a.zip1), Pointer(a.zip2)));
        case Family::CROSSBORDER:
            return OutcomeOf(api.ELCsvConvMokCrossBorder(
                lKey, Pointer(a.zeimushoCD), Pointer(a.teishutsuEra), Pointer(a.teishutsuYear),
                Pointer(a.teishutsuMonth), Pointer(a.teishutsuDay), Pointer(a.nozeishaId),
                Pointer(a.kojinBango), Pointer(a.hojinBango), Pointer(a.nozeishaNm),
                Pointer(a.zip1), Pointer(a.zip2), Pointer(a.nozeishaAdr), Pointer(a.daihyoNm),
                Pointer(a.dairiId), Pointer(a.dairiNm), Pointer(a.dairiAdr), Pointer(a.tetsuzuki),
                Pointer(a.softName)));
        default:
            return OutcomeOf(api.ELCsvConvMok(
                lKey, Pointer(a.zeimushoCD), Pointer(a.nozeishaId), Pointer(a.kojinBango),
                Pointer(a.hojinBango), Pointer(a.nozeishaNm), Pointer(a.nozeishaAdr),
                Pointer(a.daihyoNm), Pointer(a.dairiId), Pointer(a.dairiNm), Pointer(a.dairiAdr),
                Pointer(a.tetsuzuki)));
    }
}

FilingArguments FamilyTest::Arguments(const FamilyForms& forms,
                                      const std::string& strCsvPath,
                                      bool bFree) const
{
    FilingArguments arguments;
    arguments.csvPath = strCsvPath;
    arguments.mokPath = m_strMok;
    arguments.tetsuzuki = bFree ? forms.szFreeProcId : forms.szProcId;
    return arguments;
}

std::string FamilyTest::GoodCsv(const FamilyForms& forms) const
{
    return MakeFile(std::string("good") + forms.szName + ".csv", forms.Record("1,a,,") + "\r\n");
}

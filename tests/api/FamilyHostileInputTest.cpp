// Bad input of every kind for the Finance and CrossBorder families, each with its exact outcome;
// behind each one the next request works.
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "FamilyRequest.h"

namespace {

namespace fs = std::filesystem;

constexpr unsigned HANG_SECONDS = 240;  // a request that takes longer ends the test program
constexpr std::size_t MEBIBYTE = 1 << 20;

/// What a row works on. A row changes it before its request.
struct Scene
{
    const FamilyForms& forms;
    std::string strFolder;
    std::string strBundle;      ///< the resource folder in use; good at first
    std::string strCsv;         ///< the file of the request; nothing stands there at first
    FilingArguments arguments;  ///< of the form without checks

    void Csv(const std::string& strBytes) const { WriteBytes(strCsv, strBytes); }
    /// Of the form without checks.
    std::string Validation() const { return ValidationPath(strBundle, forms, forms.szFreeProcId); }
    std::string Template() const { return TemplatePath(strBundle, forms, forms.szFreeProcId); }
    const std::string& Output() const { return *arguments.mokPath; }
};

Outcome RunCheck(Scene& scene)
{
    return Check(scene.forms.eFamily, scene.strCsv);
}

Outcome RunElCheck(Scene& scene)
{
    return ElCheck(scene.forms.eFamily, scene.strCsv, 1);
}

Outcome RunConvert(Scene& scene)
{
    return Convert(scene.forms.eFamily, scene.arguments);
}

/// The EL conversion of a file that passes its check.
Outcome RunElBoth(Scene& scene)
{
    const Outcome check = RunElCheck(scene);
    return check.strResult == "S_OK" ? ElConvert(scene.forms.eFamily, 1, scene.arguments) : check;
}

// --- rows ---

struct HostileCase
{
    const FamilyForms* pForms;
    std::string strName;
    Outcome (*request)(Scene& scene);
    std::function<void(Scene& scene)> prepare;
    Outcome expected;
    /// Stands in the document at the output path; empty: there must be none.
    std::string strDocumentHolds = {};
};

std::ostream& operator<<(std::ostream& stream, const HostileCase& testCase)
{
    return stream << testCase.pForms->szName << testCase.strName;
}

const Outcome FAULT_OUTCOME = Failed("0000-00000-HE70018E");
const Outcome WRONG_COLUMNS = Failed("0000-00000-HE70019E");
const Outcome ONLY_BLANK = Failed("0000-00000-HE70024E");
const Outcome TOO_MANY = Failed("0000-00000-HE70029E");
const Outcome NO_DOCUMENT = Failed("0000-00000-HE70016E");

/// A file that was refused while it was read: Finance adds that the file is at fault.
Outcome WrongType(const FamilyForms& forms)
{
    return Failed(forms.eFamily == Family::FINANCE ? "0000-00001-HE70021E,0000-00000-HE70019E"
                                                   : "0000-00001-HE70021E");
}

/// A literal with all its NUL bytes.
template <std::size_t nSize>
std::string Bytes(const char (&literal)[nSize])
{
    return {literal, nSize - 1};
}

/// Collects the rows of one family.
class Rows
{
public:
    explicit Rows(const FamilyForms& forms) : m_forms(forms) {}

    void Add(const std::string& strName,
             Outcome (*request)(Scene& scene),
             std::function<void(Scene& scene)> prepare,
             const Outcome& expected,
             const std::string& strDocumentHolds = "")
    {
        m_vecCase.push_back(
            {&m_forms, strName, request, std::move(prepare), expected, strDocumentHolds});
    }
    void Check(const char* szName, const std::string& strBytes, const Outcome& expected)
    {
        Add(
            szName, RunCheck, [strBytes](Scene& scene) { scene.Csv(strBytes); }, expected);
    }
    void ElCheck(const char* szName, const std::string& strBytes, const char* szRecordCount)
    {
        Add(
            szName, RunElCheck, [strBytes](Scene& scene) { scene.Csv(strBytes); },
            ElCheckPassed(m_forms.szProcId, szRecordCount));
    }
    /// A plain conversion of the form without checks, by the cell as it stands in the file; no
    /// text: the document isn't well-formed.
    void Cell(const char* szName, const std::string& strCell, const std::string& strText)
    {
        const std::string strTag = std::string(m_forms.szFreeReportId) + "2>";
        Add(
            szName, RunConvert,
            [strCell](Scene& scene) { scene.Csv(scene.forms.FreeRecord(strCell) + "\r\n"); },
            strText.empty() ? NO_DOCUMENT : Done(),
            strText.empty() ? "" : "<" + strTag + strText + "</" + strTag);
    }
    /// A request whose definition files are damaged behind the making of a good file.
    void Damaged(const std::string& strName,
                 Outcome (*request)(Scene& scene),
                 const std::function<void(Scene& scene)>& damage,
                 const Outcome& expected,
                 const std::string& strDocumentHolds = "")
    {
        const auto prepare = [damage](Scene& scene) {
            scene.Csv(Repeat(scene.forms.FreeRecord("a") + "\r\n", 3));
            damage(scene);
        };
        Add(strName, request, prepare, expected, strDocumentHolds);
    }

    const FamilyForms& Forms() const { return m_forms; }
    std::vector<HostileCase> Take() { return std::move(m_vecCase); }

private:
    const FamilyForms& m_forms;
    std::vector<HostileCase> m_vecCase;
};

// --- bytes ---

std::vector<HostileCase> EncodingCases(const FamilyForms& forms)
{
    Rows rows(forms);
    const std::string strRecord = forms.Record("1,a,,") + "\r\n";
    const std::string strOpenRecord = forms.Record("1,a,,");
    rows.Add(
        "MissingFile", RunCheck, [](Scene&) {}, Failed("9999-00001-HE70013E"));
    rows.Add(
        "FolderForAFile", RunCheck, [](Scene& scene) { fs::create_directory(scene.strCsv); },
        Failed("9999-00001-HE70013E"));
    rows.Add(
        "Pipe", RunCheck, [](Scene& scene) { mkfifo(scene.strCsv.c_str(), 0600); },
        Failed("9999-00001-HE70024E"));
    rows.Check("EmptyFile", "", Failed("9999-00001-HE70024E"));
    rows.Check("NulAtTheBeginning", Bytes("\0") + strRecord, FAULT_OUTCOME);
    rows.Check("NulInTheTypeId", std::string(forms.szTypeId, 2) + Bytes("\0") + strRecord,
               WrongType(forms));
    rows.Check("NulInTheFirstRecord", forms.Record("1") + Bytes("\0") + ",a,,\r\n", WRONG_COLUMNS);
    rows.Check("NulInTheSecondRecord", strRecord + forms.Record("1") + Bytes("\0") + ",a,,\r\n",
               WRONG_COLUMNS);
    rows.ElCheck("NulBehindALineEndHidesTheRest", strRecord + Bytes("\0") + "999,garbage\n", "1");
    rows.ElCheck("NulInTheLastCellCutsIt", forms.Record("1,a,1,1") + Bytes("\0") + "9,,\n", "1");
    rows.Check("LoneLeadByteAtTheEnd", strRecord + "\x82", FAULT_OUTCOME);
    rows.Check("LeadByteBeforeAComma", forms.Record("1,\x82,,"), FAULT_OUTCOME);
    rows.Check("Byte80", forms.Record("1,\x80,,"), FAULT_OUTCOME);
    rows.Check("ByteFF", forms.Record("1,\xff,,"), FAULT_OUTCOME);
    rows.Check("UnassignedDoubleByteCode", forms.Record("1,\x81\xad,,"), FAULT_OUTCOME);
    rows.Check("InvalidByteInTheLastOfManyRecords",
               Repeat(strRecord, 999) + forms.Record("\xff,a,,"), FAULT_OUTCOME);
    rows.Check("Utf8WithByteOrderMark", "\xef\xbb\xbf" + strRecord, FAULT_OUTCOME);
    rows.Check("Utf8ThatIsNoShiftJis", forms.Record("1,あ,,"), FAULT_OUTCOME);
    rows.Add(
        "InvalidByteFailsTheElCheck", RunElCheck,
        [](Scene& scene) { scene.Csv(scene.forms.FreeRecord("\xff")); }, FAULT_OUTCOME);
    rows.Add(
        "InvalidByteFailsTheConversion", RunConvert,
        [](Scene& scene) { scene.Csv(scene.forms.FreeRecord("\xff")); }, FAULT_OUTCOME);
    rows.Cell("TrailBytesThatLookLikeSyntax", "\x83\x5c\x81\x5b\x83\x7c\x83\x40", "ソーポァ");
    rows.Cell("CdataSection", "x<![CDATA[a<b]]>y&z", "x<![CDATA[a<b]]>y&amp;z");
    rows.Cell("Element", "<a/></b>", "&lt;a/&gt;&lt;/b&gt;");
    rows.Cell("EntityReference", "&lt;&#1;", "&amp;lt;&amp;#1;");
    rows.Cell("ControlCharacter", "a\x01z", "");
    rows.Cell("CommentWithTwoHyphens", "<!-- a--b -->", "");
    rows.Add(
        "ControlCharacterOnTheElPath", RunElBoth,
        [](Scene& scene) { scene.Csv(scene.forms.FreeRecord("a\x01z")); }, NO_DOCUMENT);
    return rows.Take();
}

// --- structure ---

std::vector<HostileCase> StructureCases(const FamilyForms& forms)
{
    Rows rows(forms);
    const std::string strRecord = forms.Record("1,a,,") + "\r\n";
    const Outcome wrongType = WrongType(forms);
    const Outcome passed = CheckPassed(forms.szProcId);
    rows.ElCheck("ThousandRecordsClosed", Repeat(strRecord, 1000), "1000");
    rows.ElCheck("ThousandRecordsOpen", Repeat(strRecord, 999) + forms.Record("1,a,,"), "1000");
    rows.ElCheck("ThousandRecordsAmongBlankLines", Repeat(strRecord + "\r\n \r\n", 1000), "1000");
    rows.Check("ThousandAndOneRecords", Repeat(strRecord, 1001), TOO_MANY);
    rows.Check("ThousandAndOneRecordsOpen", Repeat(strRecord, 1000) + forms.Record("1,a,,"),
               TOO_MANY);
    rows.Check("HundredThousandRecords", Repeat(strRecord, 100000), TOO_MANY);
    rows.Check("BadCellsInTooMany", Repeat(forms.Record("x,a,,") + "\n", 1001), TOO_MANY);
    rows.Check("WrongColumnsInTooMany", Repeat(forms.Record("1") + "\n", 1001), TOO_MANY);
    rows.Check("OtherTypeIdBehindTooMany", Repeat(strRecord, 1001) + "999,1,a,,\n", wrongType);
    rows.Add(
        "ThousandAndOneRecordsFailTheElCheck", RunElCheck,
        [](Scene& scene) { scene.Csv(Repeat(scene.forms.FreeRecord("a") + "\n", 1001)); },
        TOO_MANY);
    rows.Add(
        "ThousandAndOneRecordsFailTheConversion", RunConvert,
        [](Scene& scene) { scene.Csv(Repeat(scene.forms.FreeRecord("a") + "\n", 1001)); },
        TOO_MANY);
    rows.Check("OneLineFeed", "\n", ONLY_BLANK);
    rows.Check("OneBlank", " ", ONLY_BLANK);
    rows.Check("FullWidthBlanks", "\x81\x40\x81\x40\r\n", ONLY_BLANK);
    rows.Check("AFewLineEnds", "\r\n\r\n\n\r", ONLY_BLANK);
    rows.Check("AMillionLineEnds", std::string(1000000, '\n'), ONLY_BLANK);
    rows.Add(
        "BlankLinesFailTheElCheck", RunElCheck, [](Scene& scene) { scene.Csv("\n\n"); },
        ONLY_BLANK);
    rows.Add(
        "BlankLinesFailTheConversion", RunConvert, [](Scene& scene) { scene.Csv("\n\n"); },
        ONLY_BLANK);
    rows.ElCheck("RecordBehindAMillionLineEnds", std::string(1000000, '\n') + strRecord, "1");
    rows.Check("BlankLinesDoNotCountInRecordNumbers",
               "\n\n" + strRecord + "\r\r\n" + forms.Record("x,a,,"),
               Failed("0002-00002-HE70004E"));
    rows.Check("HeaderLineAlone", ToShiftJis("種別,番号,氏名,額,区分\r\n"), wrongType);
    rows.Check("HeaderLineBeforeARecord", ToShiftJis("種別,番号,氏名,額,区分\r\n") + strRecord,
               wrongType);
    rows.Check("TooFewColumns", forms.Record("1,a,"), WRONG_COLUMNS);
    rows.Check("TooManyColumns", forms.Record("1,a,,,"), WRONG_COLUMNS);
    rows.Check("TypeIdAlone", forms.szTypeId, WRONG_COLUMNS);
    rows.Check("WrongColumnsInTheLastRecord", Repeat(strRecord, 99) + forms.Record("1"),
               WRONG_COLUMNS);
    rows.Check("WrongColumnsInManyRecordsAreToldOnce", Repeat(forms.Record("1") + "\n", 100),
               WRONG_COLUMNS);
    rows.Add(
        "WrongColumnsFailTheElCheck", RunElCheck,
        [](Scene& scene) { scene.Csv(scene.forms.Record("1")); }, WRONG_COLUMNS);
    rows.Add(
        "WrongColumnsFailTheConversion", RunConvert,
        [](Scene& scene) { scene.Csv(scene.forms.Record("1")); }, WRONG_COLUMNS);
    rows.Check("HundredThousandCommas", std::string(100000, ','), wrongType);
    rows.Check("HundredThousandCommasBehindATypeId", forms.szTypeId + std::string(100000, ','),
               WRONG_COLUMNS);
    rows.Check("HundredThousandCommasInTheSecondRecord", strRecord + std::string(100000, ','),
               wrongType);
    rows.Check("LineOfCommas", strRecord + ",,,,\r\n", wrongType);
    rows.Check("UnknownTypeId", "999,1,a,,\r\n", wrongType);
    rows.Check("TypeIdOfTheBaseFamily", "002,1,a,,\r\n", wrongType);
    rows.Check("MixedTypeIds", strRecord + forms.FreeRecord("a"), wrongType);
    rows.Check("TypeIdWithoutADefinitionFile",
               forms.eFamily == Family::FINANCE ? "103,1,a,,\r\n" : "303,1,a,,\r\n",
               forms.eFamily == Family::FINANCE ? FAULT_OUTCOME : wrongType);
    rows.Check("TypeIdOfAMebibyte", std::string(MEBIBYTE, '1') + ",1,a,,\r\n", wrongType);
    rows.Check("CellOfAMebibyte", forms.Record("1," + std::string(MEBIBYTE, 'a') + ",,"),
               Failed("0001-00003-HE70008E"));
    rows.Check("NumberOfAMebibyte", forms.Record(std::string(MEBIBYTE, '1') + ",a,,"), passed);
    rows.Cell("CellOfAMebibyteInADocument", std::string(MEBIBYTE, 'a'), std::string(MEBIBYTE, 'a'));
    rows.Add(
        "DocumentOverTenMebibytes", RunConvert,
        [](Scene& scene) { scene.Csv(scene.forms.FreeRecord(std::string(10 * MEBIBYTE, 'a'))); },
        Failed("0000-00000-HE70023E"));
    return rows.Take();
}

// --- quotes: characters like others in Finance, syntax in CrossBorder ---

std::vector<HostileCase> FinanceQuoteCases()
{
    const FamilyForms& forms = FINANCE_FORMS;
    Rows rows(forms);
    rows.Check("OpenQuoteIsACharacter",
               forms.Record("1,\"a,,") + "\r\n" + forms.Record("x,a,,") + "\r\n",
               Failed("0002-00002-HE70004E"));
    rows.Check("QuotedComma", forms.Record("1,\"a,b\",,"), WRONG_COLUMNS);
    rows.Check("QuotedLineEnd", forms.Record("1,\"a\nb\",,"), WrongType(forms));
    rows.Check("QuotedTypeId", "\"101\",1,a,,", WrongType(forms));
    rows.Check("QuotedNumber", forms.Record("\"1\",a,,"), Failed("0001-00002-HE70004E"));
    rows.Check("OneQuoteAlone", "\"", WrongType(forms));
    rows.Check("QuotedCellOfAMebibyte", forms.Record("1,\"" + std::string(MEBIBYTE, 'a') + "\",,"),
               Failed("0001-00003-HE70008E"));
    rows.Cell("QuotesStayInTheCell", "\"a\"\"b\"", "\"a\"\"b\"");
    return rows.Take();
}

std::vector<HostileCase> CrossBorderQuoteCases()
{
    const FamilyForms& forms = CROSSBORDER_FORMS;
    Rows rows(forms);
    const std::string strRecord = forms.Record("1,a,,") + "\r\n";
    const Outcome passed = CheckPassed(forms.szProcId);
    const Outcome tooLong = Failed("0001-00003-HE70008E");
    rows.Check("OpenQuoteSwallowsTheRest",
               forms.Record("1,\"a,,") + "\r\n" + forms.Record("x,a,,") + "\r\n", WRONG_COLUMNS);
    rows.Check("OpenQuoteInTheLastCellPasses", forms.Record("1,a,,\""), passed);
    rows.Check("OpenQuoteInTheTypeId", "\"" + strRecord, WrongType(forms));
    rows.Check("OpenQuoteBeforeANul", forms.Record("1,a,,\"1") + Bytes("\0") + "\",\"", passed);
    rows.Check("OpenQuoteBeforeAMebibyteOfRecords",
               forms.Record("1,\"") + Repeat(strRecord, MEBIBYTE / strRecord.size()),
               WRONG_COLUMNS);
    rows.Check("OpenQuoteBehindTooManyRecords", Repeat(strRecord, 1001) + forms.Record("1,\"a,,"),
               TOO_MANY);
    rows.Check("QuotedComma", forms.Record("1,\"a,b\",,"), passed);
    rows.Check("QuotedLineEnd", forms.Record("1,\"a\nb\",,"), passed);
    rows.Check("QuotedTypeId", "\"301\",1,a,,", passed);
    rows.Check("QuotedTypeIdWithAComma", "\"301,1\",a,,", WrongType(forms));
    rows.Check("QuotedNumber", forms.Record("\"1\",\"a\",\"99\",\"2\""), passed);
    rows.Check("BlankBeforeTheQuoteMakesItACharacter", forms.Record("1, \"a,b\",,"), WRONG_COLUMNS);
    rows.Check("OneQuoteAlone", "\"", ONLY_BLANK);
    rows.Check("QuotedBlanksAlone", "\" \n \"", ONLY_BLANK);
    rows.Check("LinesOfTwoQuotes", Repeat("\"\"\r\n", 1000), ONLY_BLANK);
    rows.Check("HundredThousandQuotes", std::string(100000, '"'), WrongType(forms));
    rows.Check("QuotedCellOfAMebibyte", forms.Record("1,\"" + std::string(MEBIBYTE, 'a') + "\",,"),
               tooLong);
    rows.Check("QuotedCellOfAMebibyteOfCommas",
               forms.Record("1,\"" + std::string(MEBIBYTE, ',') + "\",,"), tooLong);
    rows.Check("QuotedCellOfAMebibyteOfQuotes",
               forms.Record("1,\"" + std::string(MEBIBYTE, '"') + "\",,"), tooLong);
    rows.Check("QuotedCellOfAMebibyteOfLineEnds",
               forms.Record("1,\"a" + std::string(MEBIBYTE, '\n') + "z\",,"), tooLong);
    rows.Check("QuotedLineEndsAtTheEdgesAreTrimmed",
               forms.Record("1,\"" + std::string(MEBIBYTE, '\n') + "a\n\",,"), passed);
    rows.Cell("QuotedTextInADocument", "\"a,b\"", "a,b");
    rows.Cell("QuotedLineEndInADocument", "\"a\nb\"", "a\nb");
    rows.Cell("QuotedLineEndPairInADocument", "\"a\r\nb\"", "a\nb");
    rows.Cell("DoubledQuoteInADocument", "\"a\"\"b\"", "a\"b");
    rows.Cell("TextBehindAClosingQuote", "\"a\"b\"c", "ab\"c");
    rows.Cell("QuoteInsideACell", "a\"b\"", "a\"b\"");
    rows.Cell("QuotedMebibyteInADocument", "\"" + std::string(MEBIBYTE, ',') + "\"",
              std::string(MEBIBYTE, ','));
    rows.Cell("QuotedControlCharacter", "\"a\x01,z\"", "");
    return rows.Take();
}

// --- definition files ---

/// Ten entities, each ten of the one before: ten thousand million letters in all.
std::string EntityBomb()
{
    std::string strText = "<!DOCTYPE d [<!ENTITY e0 \"aaaaaaaaaa\">";
    for (int n = 1; n < 10; ++n)
        strText += "<!ENTITY e" + std::to_string(n) + " \"" +
                   Repeat("&e" + std::to_string(n - 1) + ";", 10) + "\">";
    return strText + "]><d>&e9;</d>";
}

struct Damage
{
    std::string strName;
    std::function<void(const std::string& strPath)> work;
};

/// What can be wrong with any file.
std::vector<Damage> Damages()
{
    const auto rewrite = [](const std::string& strText) {
        return [strText](const std::string& strPath) { WriteBytes(strPath, strText); };
    };
    return {
        {"Missing", [](const std::string& strPath) { fs::remove(strPath); }},
        {"MissingFolderOf",
         [](const std::string& strPath) { fs::remove_all(fs::path(strPath).parent_path()); }},
        {"FolderFor",
         [](const std::string& strPath) {
             fs::remove(strPath);
             fs::create_directory(strPath);
         }},
        {"PipeFor",
         [](const std::string& strPath) {
             fs::remove(strPath);
             mkfifo(strPath.c_str(), 0600);
         }},
        {"ZeroDeviceFor",
         [](const std::string& strPath) {
             fs::remove(strPath);
             fs::create_symlink("/dev/zero", strPath);
         }},
        {"LinkToNothingFor",
         [](const std::string& strPath) {
             fs::remove(strPath);
             fs::create_symlink(strPath + ".nothing", strPath);
         }},
        {"Empty", rewrite("")},
        {"Truncated",
         [](const std::string& strPath) { fs::resize_file(strPath, fs::file_size(strPath) / 2); }},
        {"TruncatedByOneByte",
         [](const std::string& strPath) { fs::resize_file(strPath, fs::file_size(strPath) - 1); }},
        {"TextFor", rewrite("no markup")},
        {"TwoRootsIn", rewrite("<a/><b/>")},
        {"InvalidUtf8In", rewrite("<a b=\"\xff\"/>")},
        {"NulIn", rewrite(Bytes("<a b=\"\0\"/>"))},
        {"UnknownEntityIn", rewrite("<a>&x;</a>")},
        {"EntityBombIn", rewrite(EntityBomb())},
        {"EntityThatNamesItselfIn", rewrite("<!DOCTYPE d [<!ENTITY e \"&e;\">]><d>&e;</d>")},
        {"DeepNestingIn", rewrite(Repeat("<a>", 200000) + Repeat("</a>", 200000))},
        {"ExternalEntityIn",
         [](const std::string& strPath) {
             // Fetched, it would block for ever.
             mkfifo((strPath + ".pipe").c_str(), 0600);
             WriteBytes(strPath, "<!DOCTYPE d [<!ENTITY e SYSTEM \"file://" + strPath +
                                     ".pipe\">]><d>&e;</d>");
         }},
    };
}

std::vector<HostileCase> DamageCases(const FamilyForms& forms)
{
    Rows rows(forms);
    for (const Damage& damage : Damages()) {
        const auto onValidation = [work = damage.work](Scene& scene) { work(scene.Validation()); };
        const auto onTemplate = [work = damage.work](Scene& scene) { work(scene.Template()); };
        const std::string strValidation = damage.strName + "ValidationFile";
        const std::string strTemplate = damage.strName + "TemplateFile";
        rows.Damaged(strValidation + "FailsTheCheck", RunCheck, onValidation, FAULT_OUTCOME);
        rows.Damaged(strValidation + "FailsTheElCheck", RunElCheck, onValidation, FAULT_OUTCOME);
        rows.Damaged(strValidation + "FailsTheConversion", RunConvert, onValidation, FAULT_OUTCOME);
        // A folder that is missing takes the validation file with it.
        if (damage.strName == "MissingFolderOf")
            continue;
        rows.Damaged(strTemplate + "IsNotSeenByTheCheck", RunCheck, onTemplate,
                     CheckPassed(forms.szFreeProcId));
        rows.Damaged(strTemplate + "FailsTheConversion", RunConvert, onTemplate, FAULT_OUTCOME);
        rows.Damaged(strTemplate + "FailsTheElConversion", RunElBoth, onTemplate, FAULT_OUTCOME);
    }
    rows.Damaged(
        "MissingBundleFailsTheCheck", RunCheck,
        [](Scene& scene) { fs::remove_all(scene.strBundle); }, FAULT_OUTCOME);
    rows.Damaged(
        "MissingBundleFailsTheConversion", RunConvert,
        [](Scene& scene) { fs::remove_all(scene.strBundle); }, FAULT_OUTCOME);
    return rows.Take();
}

/// Definitions that can be read but are at fault. Files have three records of the form without
/// checks.
std::vector<HostileCase> DefinitionCases(const FamilyForms& forms)
{
    Rows rows(forms);
    const std::string strProcId = forms.szFreeProcId;
    const std::string strReportId = forms.szFreeReportId;
    const std::string strItem = ItemXml(strReportId, 2, "");
    const auto report = [=](const std::string& strItems, const std::string& strRows = "") {
        return ReportXml(strProcId, strReportId, strItems, strRows);
    };
    const auto validation = [&rows](const char* szName, const std::string& strReports,
                                    const Outcome& expected) {
        rows.Damaged(
            szName, RunCheck,
            [strReports](Scene& scene) {
                WriteBytes(scene.Validation(), DefinitionXml(strReports));
            },
            expected);
    };
    const auto filled = [&rows](const char* szName, const std::string& strReports,
                                const Outcome& expected, const std::string& strHolds = "") {
        rows.Damaged(
            szName, RunConvert,
            [strReports](Scene& scene) { WriteBytes(scene.Template(), DefinitionXml(strReports)); },
            expected, strHolds);
    };
    const std::string strCheckedItem =
        ItemXml(strReportId, 2, R"(<valid id="number"/>)");  // the cells are "a"

    validation("NoReportInTheValidationFile", "", WrongType(forms));
    validation("ReportBelowAnotherElement", "<e>" + report(strItem) + "</e>", WrongType(forms));
    validation("ReportWithoutAColumnNumber",
               "<report procId=\"" + strProcId + "\" reportId=\"R\"/>", WRONG_COLUMNS);
    validation("ReportWithoutAProcedure", R"(<report columnNum="5" reportId="R"/>)", FAULT_OUTCOME);
    validation("ColumnNumberOfAnotherForm",
               R"(<report columnNum="6" procId=")" + strProcId + R"(" reportId="R"/>)",
               WRONG_COLUMNS);
    validation("ReportWithoutItems", report(""), CheckPassed(strProcId));
    validation("UnknownItemType", report(R"(<item id="A" parent="" type="normal" column="2"/>)"),
               FAULT_OUTCOME);
    validation("UnknownKeyword", report(ItemXml(strReportId, 2, R"(<valid id="Exist"/>)")),
               FAULT_OUTCOME);
    validation("ListWithoutValues", report(ItemXml(strReportId, 2, R"(<valid id="contain"/>)")),
               FAULT_OUTCOME);
    validation("ParentThatIsNotThere",
               report(R"(<item id="A" parent="B" type="Normal" column="2"/>)"), FAULT_OUTCOME);
    validation("FaultBehindErrorsReplacesThem",
               report(strCheckedItem + ItemXml(strReportId, 3, R"(<valid id="contain"/>)")),
               FAULT_OUTCOME);
    validation("NegativeFirstRecord", report(strItem, R"(startRow="-1")"), FAULT_OUTCOME);
    validation("FirstRecordBehindTheLast", report(strCheckedItem, R"(startRow="4")"),
               CheckPassed(strProcId));
    validation("LastRecordBeyondTheFile", report(strCheckedItem, R"(startRow="3" endRow="99")"),
               Failed("0003-00002-HE70004E"));
    validation("LastRecordBeyondAllLimits",
               report(strCheckedItem, R"(startRow="3" endRow="99999999999999999999")"),
               Failed("0003-00002-HE70004E"));
    validation("SecondReportWithoutAFirstRecord",
               report(strItem, R"(startRow="1" endRow="1")") + report(strItem),
               Failed("0000-00000-HE70017E"));
    validation("SecondReportBeyondTheFile",
               report(strItem, R"(startRow="1" endRow="99")") +
                   report(strCheckedItem, R"(startRow="50" endRow="-1")"),
               CheckPassed(strProcId));
    validation("MoreReportsThanRecords",
               report(strItem, R"(startRow="1" endRow="1")") +
                   report(strItem, R"(startRow="2" endRow="2")") +
                   report(strItem, R"(startRow="3" endRow="3")") +
                   report(strItem, R"(startRow="4" endRow="-1")"),
               Failed("0002-00000-HE70033E"));

    const Outcome otherProcedure =
        Failed(forms.eFamily == Family::FINANCE ? "9999-00013-HE70010E" : "9999-00019-HE70010E");
    filled("NoReportInTheTemplateFile", "", otherProcedure);
    filled("TemplateOfAnotherProcedure", ReportXml("PGE9999", strReportId, strItem),
           otherProcedure);
    filled("TemplateWithAnUnknownItemType", report(R"(<item id="A" parent="R" type="x"/>)"),
           FAULT_OUTCOME);
    filled("TemplateWithAParentThatIsNotThere",
           report(R"(<item id="A" parent="" type="Normal" column="2"/>)"), FAULT_OUTCOME);
    filled("TemplateWithAnUnknownKeywordThatItDoesNotRead",
           report(ItemXml(strReportId, 2, R"(<valid id="Exist"/>)")), Done(),
           "<" + strReportId + "2>a</" + strReportId + "2>");
    filled("TemplateWithoutItemsWritesNoReport", report(""), Done(), "</IT></CONTENTS>");
    filled("TemplateWithANameThatIsNone",
           report("<item id=\"A B/\" parent=\"" + strReportId + R"(" type="Normal" column="2"/>)"),
           NO_DOCUMENT);
    filled("TemplateWithAPrefixThatIsNotBound",
           report("<item id=\"no:A\" parent=\"" + strReportId + R"(" type="Normal" column="2"/>)"),
           NO_DOCUMENT);
    filled("TemplateWithANameBeyondItsBuffer",
           report("<item id=\"" + std::string(120, 'A') + "\" parent=\"" + strReportId +
                  R"(" type="Normal" column="2"/>)"),
           NO_DOCUMENT);
    filled("TemplateThatRunsOutOfReports",
           report(strItem, R"(startRow="1" endRow="2" stepRow="2")"), NO_DOCUMENT);
    filled("TemplateOfOnePageThatNeverCloses",
           report(strItem, R"(startRow="1" endRow="99" stepRow="99")"), Done(),
           "</" + strReportId + "></CONTENTS>");
    filled("TemplateThatOpensAPageInAPage",
           report(strItem, R"(startRow="1" endRow="3" stepRow="1")"), NO_DOCUMENT);
    filled("TemplateThatLeavesATagOpen",
           report("<item type=\"TAG\" id=\"T\" parent=\"" + strReportId +
                  R"(" startRow="1" endRow="1"/><item type="Normal" id="B" parent="T" column="2"/>)"
                  R"(<item type="TAG" id="U" parent="T" startRow="2" endRow="2"/>)"
                  R"(<item type="Normal" id="A" parent="U" column="2"/>)"),
           NO_DOCUMENT);
    filled("TemplateOfReportsWithoutRows", report(strItem) + report(strItem), Done(),
           "id=\"" + strReportId + "-3\" page=\"3\"");
    return rows.Take();
}

// --- procedures whose files are counted in another way ---

std::vector<HostileCase> FinanceCountCases()
{
    Rows rows(FINANCE_FORMS);
    const auto add = [&rows](const char* szName, Outcome (*request)(Scene & scene),
                             const char* szProcId, const std::string& strBytes,
                             const std::string& strTemplateRows, const Outcome& expected) {
        const std::string strProcId = szProcId;
        const std::string strItem = ItemXml("R", 2, "");
        const std::string strValidation =
            strProcId == "PGE1640"
                ? ReportXml(strProcId, "R", strItem, R"(startRow="1" endRow="1")") +
                      ReportXml(strProcId, "R", strItem, R"(startRow="2" endRow="-1")")
                : ReportXml(strProcId, "R", strItem);
        const std::string strTemplate = ReportXml(strProcId, "R", strItem, strTemplateRows);
        rows.Add(
            szName, request,
            [=](Scene& scene) {
                scene.Csv(strBytes);
                scene.arguments.tetsuzuki = strProcId;
                WriteProcedure(scene.strBundle, scene.forms, strProcId,
                               DefinitionXml(strValidation), DefinitionXml(strTemplate));
            },
            expected, expected == Done() ? "</R></CONTENTS>" : "");
    };
    const std::string strHead = "202,a,b,c,d\n";
    add("OneRecordOfAOneRecordProcedure", RunCheck, "PGE2080", "108,a,b,c,d\n\n", "",
        CheckPassed("PGE2080"));
    add("TwoRecordsOfAOneRecordProcedure", RunCheck, "PGE2080", Repeat("108,a,b,c,d\n", 2), "",
        TOO_MANY);
    add("EmptyRecordsCountWhereTheFirstColumnIsFree", RunElCheck, "PGE1640",
        strHead + Repeat(",,,,\n", 999), "", ElCheckPassed("PGE1640", "1000"));
    add("ThousandAndOneRecordsWhereTheFirstColumnIsFree", RunCheck, "PGE1640",
        strHead + Repeat(",,,,\n", 1000), "", TOO_MANY);
    add("OneRecordWhereTwoAreNeeded", RunCheck, "PGE1640", strHead, "",
        Failed("0002-00000-HE70033E"));
    add("PagesWithoutAStepAreNotSeenByTheCheck", RunCheck, "PGE1640", strHead + ",a,,,\n",
        R"(startRow="1" endRow="-1")", CheckPassed("PGE1640"));
    add("PagesWithoutAStepFailTheConversion", RunConvert, "PGE1640", strHead + ",a,,,\n",
        R"(startRow="1" endRow="-1")", FAULT_OUTCOME);
    add("PagesOfOneRecordDoNotClose", RunConvert, "PGE1640", strHead + Repeat(",a,,,\n", 2),
        R"(startRow="1" endRow="-1" stepRow="1")", NO_DOCUMENT);
    add("PagesOfThousandEmptyRecords", RunConvert, "PGE1640", strHead + Repeat(",,,,\n", 999),
        R"(startRow="1" endRow="-1" stepRow="1000")", Done());
    return rows.Take();
}

template <class... Lists>
std::vector<HostileCase> Joined(Lists... lists)
{
    std::vector<HostileCase> vecCase;
    (vecCase.insert(vecCase.end(), lists.begin(), lists.end()), ...);
    return vecCase;
}

}  // namespace

class FamilyHostileInputTest : public FamilyTest, public testing::WithParamInterface<HostileCase>
{
protected:
    FamilyHostileInputTest() : m_scene{*GetParam().pForms, File("scene"), "", "", {}}
    {
        alarm(HANG_SECONDS);
        fs::create_directory(m_scene.strFolder);
        m_scene.strBundle = m_scene.strFolder + "/scene.bundle";
        WriteBundle(m_scene.strBundle, GoodDefinition(), GoodOffices());
        WriteFamilies(m_scene.strBundle);
        m_scene.strCsv = m_scene.strFolder + "/input.csv";
        m_scene.arguments = Arguments(m_scene.forms, m_scene.strCsv, true);
        m_scene.arguments.mokPath = m_scene.strFolder + "/output.mok";
    }
    ~FamilyHostileInputTest() override { alarm(0); }

    Scene m_scene;
};

TEST_P(FamilyHostileInputTest, GivesItsOutcomeAndTheNextRequestWorks)
{
    const FamilyForms& forms = *GetParam().pForms;
    GetParam().prepare(m_scene);
    UseBundle(m_scene.strBundle);
    const Outcome outcome = GetParam().request(m_scene);

    EXPECT_EQ(outcome, GetParam().expected);
    const bool bDocument = !GetParam().strDocumentHolds.empty();
    EXPECT_EQ(Exists(m_scene.Output()), bDocument);
    const std::string strDocument = ReadBytes(m_scene.Output());
    EXPECT_NE(strDocument.find(GetParam().strDocumentHolds), std::string::npos)
        << strDocument.substr(0, 4000);

    UseBundle(m_strBundle);
    EXPECT_EQ(Check(forms.eFamily, GoodCsv(forms)), CheckPassed(forms.szProcId));
    EXPECT_EQ(Convert(forms.eFamily, Arguments(forms, GoodCsv(forms))), Done());
}

INSTANTIATE_TEST_SUITE_P(Encodings,
                         FamilyHostileInputTest,
                         testing::ValuesIn(Joined(EncodingCases(FINANCE_FORMS),
                                                  EncodingCases(CROSSBORDER_FORMS))),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Structures,
                         FamilyHostileInputTest,
                         testing::ValuesIn(Joined(StructureCases(FINANCE_FORMS),
                                                  StructureCases(CROSSBORDER_FORMS))),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Quotes,
                         FamilyHostileInputTest,
                         testing::ValuesIn(Joined(FinanceQuoteCases(), CrossBorderQuoteCases())),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Damages,
                         FamilyHostileInputTest,
                         testing::ValuesIn(Joined(DamageCases(FINANCE_FORMS),
                                                  DamageCases(CROSSBORDER_FORMS))),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Definitions,
                         FamilyHostileInputTest,
                         testing::ValuesIn(Joined(DefinitionCases(FINANCE_FORMS),
                                                  DefinitionCases(CROSSBORDER_FORMS))),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Counts,
                         FamilyHostileInputTest,
                         testing::ValuesIn(FinanceCountCases()),
                         testing::PrintToStringParamName());

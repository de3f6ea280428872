// All rules but those of check parameters: a folder without a mistake, an edit, what is found.
#include <gtest/gtest.h>

#include "support/LintFolder.h"

namespace host {
namespace {

struct FolderCase
{
    std::string strName;
    std::vector<std::string> vecTypeId;
    std::vector<LintEdit> vecEdit;
    std::vector<LintExpected> vecExpected;
};

void PrintTo(const FolderCase& testCase, std::ostream* pOut)
{
    for (const LintEdit& edit : testCase.vecEdit)
        *pOut << edit.strFile << ": " << edit.strReplace << '\n';
}

class LintFolderTest : public testing::TestWithParam<FolderCase>
{};

TEST_P(LintFolderTest, FindsWhatIsWrongAndNothingElse)
{
    LintFolderText folder;
    for (const LintEdit& edit : GetParam().vecEdit)
        folder.Edit(edit);
    EXPECT_EQ(Brief(folder.Lint(GetParam().vecTypeId)), Brief(folder, GetParam().vecExpected));
}

std::string CaseName(const testing::TestParamInfo<FolderCase>& testCase)
{
    return testCase.param.strName;
}

const std::vector<std::string> BASE = {"002"};
const std::vector<std::string> ONE = {"101"};
const std::vector<std::string> TWO = {"103"};
const std::vector<std::string> MULTI = {"202"};

const FolderCase CLEAN[] = {
    {"Base", BASE, {}, {}},
    {"OneForm", ONE, {}, {}},
    {"TwoForms", TWO, {}, {}},
    {"ManyRecords", MULTI, {}, {}},
    {"AllAtOnce", {"002", "101", "103", "202"}, {}, {}},
};
INSTANTIATE_TEST_SUITE_P(Clean, LintFolderTest, testing::ValuesIn(CLEAN), CaseName);

const std::string XML_LINE = R"(<?xml version="1.0" encoding="UTF-8"?>)"
                             "\n";

const FolderCase FILES[] = {
    {"CommentBeforeRoot",
     BASE,
     {{LINT_BASE, XML_LINE, XML_LINE + "<!-- made by hand -->\n"}},
     {{"prolog", LINT_BASE, "made by hand"}}},
    {"InstructionBeforeRoot",
     BASE,
     {{LINT_OFFICES, XML_LINE, XML_LINE + "<?style none?>\n"}},
     {{"prolog", LINT_OFFICES, "<?style"}}},
    {"CommentBehindRoot", BASE, {{LINT_BASE, "</define>", "</define>\n<!-- the end -->"}}, {}},
    {"DocumentType",
     ONE,
     {{LINT_TPL, XML_LINE, XML_LINE + "<!DOCTYPE define>\n"}},
     {{"doctype", LINT_TPL, "<!DOCTYPE"}}},
    {"TagNotClosed",
     BASE,
     {{LINT_BASE, "</define>\n", "</defines>\n"}},
     {{"not-xml", LINT_BASE, "</defines>"}}},
    {"NoReport",
     ONE,
     {{LINT_VLD, "<report", "<reports"}, {LINT_VLD, "</report>", "</reports>"}},
     {{"no-report", LINT_VLD, "<define>"}, {"unknown-element", LINT_VLD, "<reports"}}},
    {"RepeatedReport",
     BASE,
     {{LINT_BASE, "</define>",
       R"(<report id="002" columnNum="1" procId="P" procVR="1.0" reportId="R" reportVR="1.0" label="x"/></define>)"}},
     {{"duplicate-report", LINT_BASE, R"(reportId="R")"}}},
    {"ReportOfAnotherId",
     {"002", "901"},
     {{LINT_BASE, "</define>",
       R"(<report id="901" columnNum="1" procId="P" procVR="1.0" reportId="R" reportVR="1.0" label="x"/></define>)"}},
     {{"unexpected-report", LINT_BASE, R"(id="901")"}}},
};
INSTANTIATE_TEST_SUITE_P(Files, LintFolderTest, testing::ValuesIn(FILES), CaseName);

const FolderCase ELEMENTS[] = {
    {"UnknownElementBelowRoot",
     BASE,
     {{LINT_BASE, "</define>", "<note/></define>"}},
     {{"unknown-element", LINT_BASE, "<note/>"}}},
    {"MisspeltItem",
     BASE,
     {{LINT_BASE, R"(<item type="IdRef")", R"(<Item type="IdRef")"}},
     {{"unknown-element", LINT_BASE, "<Item"}}},
    {"OuterOutsideCheck",
     BASE,
     {{LINT_BASE, R"(<valid id="number"/>)", R"(<outer id="exist" column="7"/>)"}},
     {{"unknown-element", LINT_BASE, "<outer"}}},
    {"MisspeltAttribute",
     BASE,
     {{LINT_BASE, R"(column="9")", R"(column="9" zerosuppress="true")"}},
     {{"unknown-attribute", LINT_BASE, "zerosuppress"}}},
    {"MisspeltColumn",
     BASE,
     {{LINT_BASE, R"(column="9")", R"(colum="9")"}},
     {{"unused-column", LINT_BASE, "<report"},
      {"unknown-attribute", LINT_BASE, "colum=\""},
      {"missing-column", LINT_BASE, "colum=\""}}},
    {"ReportRowsInBase",
     BASE,
     {{LINT_BASE, R"(id="002")", R"(id="002" startRow="1")"}},
     {{"unread-attribute", LINT_BASE, "startRow"}}},
    {"ColumnNumInTemplate",
     ONE,
     {{LINT_TPL, "<report ", R"(<report columnNum="3" )"}},
     {{"unread-attribute", LINT_TPL, "<report"}}},
    {"ItemRowsInValidationFile",
     ONE,
     {{LINT_VLD, R"(column="2")", R"(column="2" startRow="1")"}},
     {{"unread-attribute", LINT_VLD, "startRow"}}},
    {"ValueOfPlainItem",
     BASE,
     {{LINT_BASE, R"(column="9")", R"(column="9" value="x")"}},
     {{"unread-attribute", LINT_BASE, R"(value="x")"}}},
    {"StepOfItem",
     MULTI,
     {{LINT_MULTI_TPL, R"(id="LINE")", R"(id="LINE" stepRow="2")"}},
     {{"unread-attribute", LINT_MULTI_TPL, R"(id="LINE" stepRow)"}}},
    {"ColumnIsNoNumber",
     BASE,
     {{LINT_BASE, R"(column="9")", R"(column="9a")"}},
     {{"bad-number", LINT_BASE, "9a"}}},
    {"NegativeColumnNum",
     BASE,
     {{LINT_BASE, R"(columnNum="10")", R"(columnNum="-10")"}},
     {{"bad-number", LINT_BASE, "<report"}}},
    {"SwitchInCapitals",
     BASE,
     {{LINT_BASE, R"(column="9")", R"(column="9" zeroSuppress="TRUE")"}},
     {{"bad-flag", LINT_BASE, "TRUE"}}},
    {"SwitchOff", BASE, {{LINT_BASE, R"(column="9")", R"(column="9" zeroSuppress="false")"}}, {}},
    {"RepeatedHeadMisspelt",
     MULTI,
     {{LINT_MULTI_TPL, R"(repeatTopTag="1")", R"(repeatTopTag="true")"}},
     {{"bad-flag", LINT_MULTI_TPL, R"(repeatTopTag)"},
      {"never-written", LINT_MULTI_TPL, R"(id="NAME")"}}},
    {"ReportWithoutLabel",
     BASE,
     {{LINT_BASE, R"( label="様式")", ""}},
     {{"missing-label", LINT_BASE, "<report"}}},
    {"ColumnWithoutLabel",
     BASE,
     {{LINT_BASE, R"( label="額")", ""}},
     {{"missing-label", LINT_BASE, "GEZ52040"}}},
    {"ReportWithoutVersion",
     BASE,
     {{LINT_BASE, R"( reportVR="1.0")", ""}},
     {{"missing-attribute", LINT_BASE, "<report"}}},
    {"ReportWithoutProcedure",
     BASE,
     {{LINT_BASE, R"( procId="PGE5020")", ""}},
     {{"missing-attribute", LINT_BASE, "<report"}}},
    {"ReportWithoutColumns",
     ONE,
     {{LINT_VLD, R"(columnNum="3" )", ""}},
     {{"missing-attribute", LINT_VLD, "<report"}}},
};
INSTANTIATE_TEST_SUITE_P(Elements, LintFolderTest, testing::ValuesIn(ELEMENTS), CaseName);

const FolderCase ITEMS[] = {
    {"UnknownType",
     BASE,
     {{LINT_BASE, R"(type="Normal" id="GEZ52060")", R"(type="normal" id="GEZ52060")"}},
     {{"unknown-type", LINT_BASE, "GEZ52060"}}},
    {"MissingParent",
     BASE,
     {{LINT_BASE, R"(parent="GEZ52000" column="9")", R"(parent="GEZ52009" column="9")"}},
     {{"missing-parent", LINT_BASE, R"(column="9")"}}},
    {"EmptyParentInTemplate",
     ONE,
     {{LINT_TPL, R"(parent="GEZ03500" column="2")", R"(column="2")"}},
     {{"missing-parent", LINT_TPL, R"(column="2")"}}},
    {"LaterParent",
     BASE,
     {{LINT_BASE, R"(parent="GEZ52000" column="2")", R"(parent="GEZ52030" column="2")"}},
     {{"later-parent", LINT_BASE, R"(column="2")"}}},
    {"ChildrenOfAMisplacedItemAreNotToldAgain",
     BASE,
     {{LINT_BASE, R"(id="GEZ52030" parent="GEZ52000")", R"(id="GEZ52030" parent="NONE")"}},
     {{"missing-parent", LINT_BASE, R"(id="GEZ52030")"}}},
    {"ParentOfAnotherGeneration",
     BASE,
     {{LINT_BASE, R"(id="GEZ52030")", R"(id="GEZ52030" generation="junior")"},
      {LINT_BASE, R"(column="7")", R"(column="7" generation="senior")"}},
     {{"bad-generation", LINT_BASE, R"(id="GEZ52030")"},
      {"missing-parent", LINT_BASE, R"(column="7")"}}},
    {"TwoParentsOfOneName",
     BASE,
     {{LINT_BASE, R"(<item type="Normal" id="GEZ52030" parent="GEZ52000"/>)",
       R"(<item type="Normal" id="GEZ52030" parent="GEZ52000" column="2" label="x"/>)"
       "\n"
       R"(<item type="Normal" id="GEZ52030" parent="GEZ52000"/>)"}},
     {{"shared-column", LINT_BASE, R"(label="x")"},
      {"ambiguous-parent", LINT_BASE, "GEZ52040"},
      {"ambiguous-parent", LINT_BASE, "GEZ52050"}}},
    {"ParentOncePerGeneration",
     BASE,
     {{LINT_BASE, R"(<item type="Normal" id="GEZ52030" parent="GEZ52000"/>)",
       R"(<item type="Normal" id="ROOT" parent="GEZ52000"/>)"
       R"(<item type="Normal" id="GEZ52030" parent="ROOT" generation="junior"/>)"
       "\n"
       R"(<item type="Normal" id="GEZ52030" parent="ROOT" generation="senior"/>)"}},
     {}},
    {"ItemNamedAsTheReport",
     BASE,
     {{LINT_BASE, R"(id="GEZ52060")", R"(id="GEZ520")"}},
     {{"ambiguous-parent", LINT_BASE, R"(column="9")"}}},
    {"UnknownGeneration",
     BASE,
     {{LINT_BASE, R"(column="7")", R"(column="7" generation="elder")"}},
     {{"bad-generation", LINT_BASE, "elder"}}},
    {"GenerationThatFilters",
     BASE,
     {{LINT_BASE, R"(column="7")", R"(column="7" generation="junior")"}},
     {}},
    {"GenerationBelowATag",
     BASE,
     {{LINT_BASE, R"(column="9")", R"(column="9" generation="junior")"}},
     {{"bad-generation", LINT_BASE, R"(column="9")"}}},
    {"GenerationInFinance",
     ONE,
     {{LINT_VLD, R"(column="2")", R"(column="2" generation="senior")"}},
     {{"bad-generation", LINT_VLD, "senior"}}},
    {"ItemWithoutId",
     ONE,
     {{LINT_TPL, R"(id="GEZ03520" )", ""}},
     {{"bad-tag-name", LINT_TPL, R"(column="3")"}}},
    {"IdIsNoName", ONE, {{LINT_TPL, "GEZ03520", "3520"}}, {{"bad-tag-name", LINT_TPL, "3520"}}},
    {"PrefixNotDeclared",
     ONE,
     {{LINT_TPL, "GEZ03520", "abc:name"}},
     {{"bad-tag-name", LINT_TPL, "abc:name"}}},
    {"PrefixDeclared", ONE, {{LINT_TPL, "GEZ03520", "kyo:name"}}, {}},
    {"IdIsNoNameInValidationFile", ONE, {{LINT_VLD, R"(id="A")", R"(id="1")"}}, {}},
    {"TagOf96Bytes", ONE, {{LINT_TPL, "GEZ03520", std::string(96, 'A')}}, {}},
    {"TagOf97Bytes",
     ONE,
     {{LINT_TPL, "GEZ03520", std::string(97, 'A')}},
     {{"long-tag", LINT_TPL, std::string(97, 'A')}}},
    {"LongReportVersion",
     BASE,
     {{LINT_BASE, R"(reportVR="1.0")", R"(reportVR=")" + std::string(300, '1') + "\""}},
     {{"long-tag", LINT_BASE, "<report"}}},
    {"LongReference",
     BASE,
     {{LINT_BASE, "GEZ52080", std::string(90, 'A')}},
     {{"long-tag", LINT_BASE, R"(type="IdRef")"}}},
    {"ReferenceToNothing",
     BASE,
     {{LINT_BASE, R"( value="NOZEISHA_NM")", ""}},
     {{"bad-idref", LINT_BASE, R"(type="IdRef")"}}},
    {"ReferenceToUnknownElement",
     BASE,
     {{LINT_BASE, "NOZEISHA_NM", "NOZEISHA_ZIP"}},
     {{"bad-idref", LINT_BASE, "NOZEISHA_ZIP"}}},
    {"ReferenceOfTheOtherFamily",
     ONE,
     {{LINT_TPL, "</report>",
       R"(<item type="IdRef" id="R" parent="GEZ035" value="NOZEISHA_ZIP"/></report>)"}},
     {}},
};
INSTANTIATE_TEST_SUITE_P(Items, LintFolderTest, testing::ValuesIn(ITEMS), CaseName);

const FolderCase COLUMNS[] = {
    {"LeafWithoutColumn",
     BASE,
     {{LINT_BASE, R"(parent="GEZ52000" column="9")", R"(parent="GEZ52000")"}},
     {{"unused-column", LINT_BASE, "<report"}, {"missing-column", LINT_BASE, "GEZ52060"}}},
    {"CheckWithoutColumn",
     BASE,
     {{LINT_BASE, R"(<item type="Normal" id="GEZ52030" parent="GEZ52000"/>)",
       R"(<item type="Normal" id="GEZ52030" parent="GEZ52000"><valid id="exist"/></item>)"}},
     {{"missing-column", LINT_BASE, R"(id="GEZ52030")"}}},
    {"PlainCheckOfADate",
     BASE,
     {{LINT_BASE, R"(<valid id="existdate"/>)", R"(<valid id="alnum"/>)"}},
     {{"missing-column", LINT_BASE, R"("alnum")"}}},
    {"PlainCheckOfADateWithColumn",
     BASE,
     {{LINT_BASE, R"(<valid id="existdate"/>)", R"(<valid id="alnum" column="3"/>)"}},
     {}},
    {"ItemBeyond",
     BASE,
     {{LINT_BASE, R"(column="10")", R"(column="11")"}},
     {{"unused-column", LINT_BASE, "<report"}, {"column-beyond", LINT_BASE, R"(column="11")"}}},
    {"TemplateItemBeyond",
     ONE,
     {{LINT_TPL, R"(column="3")", R"(column="4")"}},
     {{"column-beyond", LINT_TPL, R"(column="4")"}}},
    {"DateOutOfOrder",
     BASE,
     {{LINT_BASE, R"(id="gen:mm" parent="GEZ52020" column="5")",
       R"(id="gen:mm" parent="GEZ52020" column="6")"},
      {LINT_BASE, R"(id="gen:dd" parent="GEZ52020" column="6")",
       R"(id="gen:dd" parent="GEZ52020" column="5")"}},
     {{"date-group", LINT_BASE, "gen:mm"}, {"date-group", LINT_BASE, "gen:dd"}}},
    {"DateWithoutChildren",
     BASE,
     {{LINT_BASE, R"(<item type="Normal" id="GEZ52060")",
       R"(<item type="Date" id="D" parent="GEZ52000" column="3" label="x"><valid id="existdate"/></item>)"
       "\n"
       R"(<item type="Normal" id="GEZ52060")"}},
     {{"check-never-runs", LINT_BASE, R"(id="D")"}, {"shared-column", LINT_BASE, R"(id="D")"}}},
    {"OfficeWithoutColumn",
     BASE,
     {{LINT_BASE, R"(<item type="Normal" id="GEZ52060")",
       R"(<item type="Zeimusho" id="Z" parent="GEZ52000"><valid id="taxofficenm"/></item>)"
       "\n"
       R"(<item type="Normal" id="ZZ" parent="Z" label="x"/>)"
       "\n"
       R"(<item type="Normal" id="GEZ52060")"}},
     {{"check-never-runs", LINT_BASE, R"(id="Z")"}, {"missing-column", LINT_BASE, R"(id="ZZ")"}}},
    {"UnusedColumns",
     BASE,
     {{LINT_BASE, R"(columnNum="10")", R"(columnNum="12")"}},
     {{"unused-column", LINT_BASE, "<report"}}},
    {"ColumnThatOnlyACheckReads",
     BASE,
     {{LINT_BASE, R"(columnNum="10")", R"(columnNum="11")"},
      {LINT_BASE, R"(<valid id="number"/>)", R"(<valid id="anyexist" value="10 11"/>)"}},
     {}},
    {"UncheckedColumn",
     ONE,
     {{LINT_VLD, R"(<valid id="istring"/>)", ""}},
     {{"unchecked-column", LINT_TPL, R"(column="3")"}}},
    {"TypeIdNeedsNoCheck", ONE, {{LINT_TPL, R"(column="3")", R"(column="1")"}}, {}},
    {"ColumnWrittenTwice",
     ONE,
     {{LINT_TPL, R"(column="3")", R"(column="2")"}, {LINT_TPL, R"(label="番号")", R"(label="a")"}},
     {{"shared-column", LINT_TPL, "GEZ03520"}}},
};
INSTANTIATE_TEST_SUITE_P(Columns, LintFolderTest, testing::ValuesIn(COLUMNS), CaseName);

const FolderCase CHECKED_RANGES[] = {
    {"StartMissing",
     TWO,
     {{LINT_TWO_VLD, R"(startRow="3" )", ""}},
     {{"bad-range", LINT_TWO_VLD, "明細書"}}},
    {"NegativeStart",
     ONE,
     {{LINT_VLD, "<report ", R"(<report startRow="-1" )"}},
     {{"bad-range", LINT_VLD, "<report"}}},
    {"NegativeEnd",
     ONE,
     {{LINT_VLD, "<report ", R"(<report startRow="1" endRow="-2" )"}},
     {{"bad-range", LINT_VLD, "<report"}}},
    {"ReversedRange",
     ONE,
     {{LINT_VLD, "<report ", R"(<report startRow="2" endRow="1" )"}},
     {{"bad-range", LINT_VLD, "<report"}}},
    {"GapBetweenReports",
     TWO,
     {{LINT_TWO_VLD, R"(startRow="3")", R"(startRow="4")"}},
     {{"range-gap", LINT_TWO_VLD, "明細書"}}},
    {"GapAtTheEnd",
     TWO,
     {{LINT_TWO_VLD, R"(endRow="-1")", R"(endRow="999")"}},
     {{"range-gap", LINT_TWO_VLD, "明細書"}}},
    {"EndAtTheMostRecords", TWO, {{LINT_TWO_VLD, R"(endRow="-1")", R"(endRow="1000")"}}, {}},
    {"Overlap",
     TWO,
     {{LINT_TWO_VLD, R"(endRow="2")", R"(endRow="3")"}},
     {{"pair-mismatch", LINT_TWO_TPL, "明細書"}, {"range-overlap", LINT_TWO_VLD, "明細書"}}},
    {"OpenEndBeforeAnother",
     TWO,
     {{LINT_TWO_VLD, R"(endRow="2")", R"(endRow="-1")"}},
     {{"pair-mismatch", LINT_TWO_TPL, "明細書"}, {"range-overlap", LINT_TWO_VLD, "明細書"}}},
    {"TrailerBeforeAnother",
     MULTI,
     {{LINT_MULTI_VLD, R"( lastRecord="1")", R"( startRow="2" endRow="2")"},
      {LINT_MULTI_VLD, R"(startRow="2" endRow="-1")", R"(lastRecord="1")"}},
     {{"trailer-not-last", LINT_MULTI_VLD, R"(label="明細")"},
      {"range-gap", LINT_MULTI_VLD, R"(label="合計")"}}},
};
INSTANTIATE_TEST_SUITE_P(CheckedRanges,
                         LintFolderTest,
                         testing::ValuesIn(CHECKED_RANGES),
                         CaseName);

const FolderCase WRITTEN_RANGES[] = {
    {"OnlyStart",
     ONE,
     {{LINT_TPL, "<report ", R"(<report startRow="1" )"}},
     {{"bad-range", LINT_TPL, "<report"}}},
    {"OnlyEnd",
     ONE,
     {{LINT_TPL, "<report ", R"(<report endRow="-1" )"}},
     {{"bad-range", LINT_TPL, "<report"}}},
    {"ReachesToTheEnd",
     ONE,
     {{LINT_TPL, "<report ", R"(<report startRow="1" endRow="-1" stepRow="4" )"}},
     {}},
    {"RunsOut",
     ONE,
     {{LINT_TPL, "<report ", R"(<report startRow="1" endRow="999" )"}},
     {{"range-gap", LINT_TPL, "<report"}}},
    {"EndsAtTheFirstRecord",
     ONE,
     {{LINT_TPL, "<report ", R"(<report startRow="1" endRow="1" )"}},
     {{"range-gap", LINT_TPL, "<report"}}},
    {"NeverHandsOver",
     TWO,
     {{LINT_TWO_TPL, R"(endRow="2" stepRow="2")", R"(endRow="1")"}},
     {{"unreachable-report", LINT_TWO_TPL, "明細書"}}},
    {"TakesAll",
     TWO,
     {{LINT_TWO_TPL, R"(endRow="2")", R"(endRow="-1")"}},
     {{"pair-mismatch", LINT_TWO_TPL, "合計表"}, {"unreachable-report", LINT_TWO_TPL, "明細書"}}},
    {"SecondPageOpensTooLate",
     TWO,
     {{LINT_TWO_TPL, R"(reportVR="5.0" label="明細書")",
       R"(reportVR="5.0" startRow="4" endRow="-1" stepRow="2" label="明細書")"}},
     {{"range-overlap", LINT_TWO_TPL, "明細書"}}},
    {"RecordsBetweenReports",
     TWO,
     {{LINT_TWO_TPL, R"(reportVR="5.0" label="明細書")",
       R"(reportVR="5.0" startRow="4" endRow="1000" stepRow="2" label="明細書")"}},
     {{"range-gap", LINT_TWO_TPL, "明細書"}}},
    {"StepOfOne",
     TWO,
     {{LINT_TWO_TPL, R"(stepRow="2")", R"(stepRow="1")"}},
     {{"bad-step", LINT_TWO_TPL, "合計表"}}},
    {"NegativeStep",
     TWO,
     {{LINT_TWO_TPL, R"(stepRow="2")", R"(stepRow="-2")"}},
     {{"bad-step", LINT_TWO_TPL, "合計表"}}},
    {"NoStep", TWO, {{LINT_TWO_TPL, R"( stepRow="2")", ""}}, {}},
    {"NoStepOfPages",
     MULTI,
     {{LINT_MULTI_TPL, R"( stepRow="3")", ""}},
     {{"bad-step", LINT_MULTI_TPL, "<report"}}},
    {"SecondReportOfPages",
     MULTI,
     {{LINT_MULTI_TPL, "</define>",
       R"(<report procId="PGE1640" procVR="231.0" reportId="GEZ750" reportVR="1.0" label="x"/></define>)"}},
     {{"unreachable-report", LINT_MULTI_TPL, R"(label="x")"}}},
    {"OtherRowsThanChecked",
     TWO,
     {{LINT_TWO_TPL, R"(endRow="2")", R"(endRow="3")"}},
     {{"pair-mismatch", LINT_TWO_TPL, "合計表"}}},
};
INSTANTIATE_TEST_SUITE_P(WrittenRanges,
                         LintFolderTest,
                         testing::ValuesIn(WRITTEN_RANGES),
                         CaseName);

const FolderCase WRITING[] = {
    {"HalfRange",
     ONE,
     {{LINT_TPL, R"(column="3")", R"(column="3" startRow="1")"}},
     {{"bad-item-range", LINT_TPL, R"(column="3")"}}},
    {"ReversedItemRange",
     ONE,
     {{LINT_TPL, R"(column="3")", R"(column="3" startRow="3" endRow="2")"}},
     {{"open-group", LINT_TPL, R"(type="TAG")"}, {"bad-item-range", LINT_TPL, R"(column="3")"}}},
    {"NegativeRangeOfPlainItem",
     ONE,
     {{LINT_TPL, R"(parent="GEZ03500" column="3")",
       R"(parent="GEZ035" column="3" startRow="1" endRow="-1")"}},
     {{"bad-item-range", LINT_TPL, R"(column="3")"}}},
    {"LastRecordOfPlainItem",
     ONE,
     {{LINT_TPL, R"(column="3")", R"(column="3" lastRecord="1")"}},
     {{"bad-item-range", LINT_TPL, R"(column="3")"}}},
    {"LastRecordOfTag", ONE, {{LINT_TPL, R"(type="TAG")", R"(type="TAG" lastRecord="1")"}}, {}},
    {"RepeatedHeadElsewhere",
     ONE,
     {{LINT_TPL, R"(type="TAG")", R"(type="TAG" repeatTopTag="1")"}},
     {{"bad-repeat", LINT_TPL, "repeatTopTag"}}},
    {"RepeatedHeadUpToAMillion",
     MULTI,
     {{LINT_MULTI_TPL, R"(startRow="1" endRow="1")", R"(startRow="999990" endRow="1000000")"}},
     {{"never-written", LINT_MULTI_TPL, R"(id="NAME")"}}},
    {"RepeatedHeadBehindAMillion",
     MULTI,
     {{LINT_MULTI_TPL, R"(startRow="1" endRow="1")", R"(startRow="1000001" endRow="1000001")"}},
     {{"beyond-limit", LINT_MULTI_TPL, R"(id="HEAD")"},
      {"never-written", LINT_MULTI_TPL, R"(id="NAME")"}}},
    {"RepeatedHeadBeforeMinusAMillion",
     MULTI,
     {{LINT_MULTI_TPL, R"(startRow="1" endRow="1")", R"(startRow="-1000001" endRow="1")"}},
     {{"beyond-limit", LINT_MULTI_TPL, R"(id="HEAD")"}}},
    // A thousand records make 333 pages, and the head is six items.
    {"RepeatedHeadOfAlmostTooManyItems",
     MULTI,
     {{LINT_MULTI_TPL, R"(startRow="1" endRow="1")", R"(startRow="1001" endRow="51050")"}},
     {{"never-written", LINT_MULTI_TPL, R"(id="NAME")"}}},
    {"RepeatedHeadOfTooManyItems",
     MULTI,
     {{LINT_MULTI_TPL, R"(startRow="1" endRow="1")", R"(startRow="1001" endRow="51051")"}},
     {{"beyond-limit", LINT_MULTI_TPL, "<report"},
      {"never-written", LINT_MULTI_TPL, R"(id="NAME")"}}},
    {"RepeatedHeadInside",
     MULTI,
     {{LINT_MULTI_TPL, R"(id="NAME")", R"(id="NAME" repeatTopTag="1")"}},
     {{"bad-repeat", LINT_MULTI_TPL, R"(id="NAME")"}}},
    {"RepeatedHeadWithoutRows",
     MULTI,
     {{LINT_MULTI_TPL, R"(startRow="1" endRow="1" )", ""}},
     {{"bad-repeat", LINT_MULTI_TPL, R"(id="HEAD")"},
      {"shared-column", LINT_MULTI_TPL, R"(id="SUM")"},
      {"never-written", LINT_MULTI_TPL, R"(id="TOTAL")"}}},
    {"GroupLeftOpen",
     ONE,
     {{LINT_TPL, R"(column="3")", R"(column="3" startRow="2" endRow="2")"}},
     {{"open-group", LINT_TPL, R"(type="TAG")"}}},
    {"RangeBelowTheReport",
     ONE,
     {{LINT_TPL, R"(parent="GEZ03500" column="3")",
       R"(parent="GEZ035" column="3" startRow="2" endRow="2")"}},
     {}},
    {"BodyAndHeadLeftOpen",
     MULTI,
     {{LINT_MULTI_TPL, R"(<item type="TAG" id="LAST")",
       R"(<item type="TAG" id="NOTE" parent="LINE" startRow="3" endRow="3"/>)"
       "\n"
       R"(<item type="Normal" id="TEXT" parent="NOTE" column="1" label="x"/>)"
       "\n"
       R"(<item type="TAG" id="LAST")"}},
     {{"close-order", LINT_MULTI_TPL, R"(id="LINE")"},
      {"unchecked-column", LINT_MULTI_TPL, R"(id="TEXT")"}}},
    {"PageOfAnEmptyRecord",
     MULTI,
     {{LINT_MULTI_TPL, R"(startRow="2" endRow="-2")", R"(startRow="3" endRow="-2")"}},
     {{"broken-page", LINT_MULTI_TPL, "<report"}}},
    {"LastRecordOfAPageWritesNothing",
     TWO,
     {{LINT_TWO_TPL, R"(column="2" label="件数")",
       R"(column="2" startRow="1" endRow="1" label="件数")"}},
     {{"broken-page", LINT_TWO_TPL, "合計表"}}},
    {"FirstRecordOfAPageWritesNothing",
     TWO,
     {{LINT_TWO_TPL, R"(column="2" label="件数")",
       R"(column="2" startRow="2" endRow="2" label="件数")"}},
     {{"broken-page", LINT_TWO_TPL, "合計表"}}},
    {"NeverWritten",
     MULTI,
     {{LINT_MULTI_TPL, R"(parent="LINE" column="2")", R"(parent="HEAD" column="2")"},
      {LINT_MULTI_TPL, R"(<item type="TAG" id="LINE" parent="HEAD" startRow="2" endRow="-2"/>)",
       R"(<item type="TAG" id="LINE" parent="HEAD" startRow="2" endRow="-2"/>)"
       R"(<item type="Normal" id="S2" parent="LINE" column="2" label="x"/>)"}},
     {{"never-written", LINT_MULTI_TPL, R"(id="SUM")"}}},
};
INSTANTIATE_TEST_SUITE_P(Writing, LintFolderTest, testing::ValuesIn(WRITING), CaseName);

const FolderCase CATALOGUE[] = {
    {"OtherProcedure",
     ONE,
     {{LINT_VLD, R"(procId="PGE2015")", R"(procId="PGE2025")"}},
     {{"catalogue-mismatch", LINT_VLD, "<report"}}},
    {"OtherProcedureInTheTemplate",
     ONE,
     {{LINT_TPL, R"(procId="PGE2015")", R"(procId="PGE2025")"}},
     {{"catalogue-mismatch", LINT_TPL, "<report"}}},
    {"OtherProcedureInTheLastReportAlone",
     TWO,
     {{LINT_TWO_TPL, R"(procId="PGE2030" procVR="231.0" reportId="GEZ051")",
       R"(procId="PGE2015" procVR="231.0" reportId="GEZ051")"}},
     {{"catalogue-mismatch", LINT_TWO_TPL, "明細書"}}},
    {"ProcedureThatSpreadsInAFileOfAnother",
     ONE,
     {{LINT_TPL, R"(procId="PGE2015")", R"(procId="PGE1640")"}},
     {{"catalogue-mismatch", LINT_TPL, "<report"}}},
    {"OtherProcedureVersion",
     ONE,
     {{LINT_TPL, "231.0", "230.0"}},
     {{"catalogue-mismatch", LINT_TPL, "<report"}}},
    {"OtherReportVersion",
     ONE,
     {{LINT_TPL, R"(reportVR="1.0")", R"(reportVR="2.0")"}},
     {{"catalogue-mismatch", LINT_TPL, "<report"}}},
    {"OtherReport",
     ONE,
     {{LINT_VLD, R"(reportId="GEZ035")", R"(reportId="GEZ045")"},
      {LINT_VLD, R"(parent="GEZ035")", R"(parent="GEZ045")"}},
     {{"pair-mismatch", LINT_TPL, "<report"},
      {"catalogue-mismatch", LINT_VLD, "<define>"},
      {"catalogue-mismatch", LINT_VLD, "<report"}}},
    {"ReportsInAnotherOrder",
     TWO,
     {{LINT_TWO_VLD, R"(reportId="GEZ050")", R"(reportId="GEZ05X")"},
      {LINT_TWO_VLD, R"(reportId="GEZ051")", R"(reportId="GEZ050")"},
      {LINT_TWO_VLD, R"(reportId="GEZ05X")", R"(reportId="GEZ051")"}},
     {{"pair-mismatch", LINT_TWO_TPL, "合計表"},
      {"pair-mismatch", LINT_TWO_TPL, "明細書"},
      {"catalogue-mismatch", LINT_TWO_VLD, "明細書"}}},
};
INSTANTIATE_TEST_SUITE_P(Catalogue, LintFolderTest, testing::ValuesIn(CATALOGUE), CaseName);

const FolderCase OFFICES[] = {
    {"NoOfficeThatCounts",
     BASE,
     {{LINT_OFFICES, R"("5" OfficeCode="00101")", R"("4" OfficeCode="00101")"},
      {LINT_OFFICES, R"("5" OfficeCode="00103")", R"("4" OfficeCode="00103")"}},
     {{"no-office", LINT_OFFICES, "<TaxOffices>"}}},
    {"CodeOfFourDigits",
     BASE,
     {{LINT_OFFICES, "00103", "0103"}},
     {{"bad-office", LINT_OFFICES, "0103"}}},
    {"CodeOfAnotherTypeOfOffice", BASE, {{LINT_OFFICES, "00102", "0102"}}, {}},
    {"OfficeWithoutName",
     BASE,
     {{LINT_OFFICES, R"( OfficeName="紅葉")", ""}},
     {{"bad-office", LINT_OFFICES, "00103"}}},
    {"NameNotInShiftJis",
     BASE,
     {{LINT_OFFICES, "紅葉", "한국"}},
     {{"bad-office", LINT_OFFICES, "00103"}}},
    {"NameWithBlank",
     BASE,
     {{LINT_OFFICES, "紅葉", "紅葉　"}},
     {{"bad-office", LINT_OFFICES, "00103"}}},
    {"RepeatedCode",
     BASE,
     {{LINT_OFFICES, "00103", "00101"}},
     {{"duplicate-office", LINT_OFFICES, "紅葉"}}},
    {"RepeatedCodeOfAnotherType", BASE, {{LINT_OFFICES, "00102", "00101"}}, {}},
    {"MisspeltOffice",
     BASE,
     {{LINT_OFFICES, R"(<TaxOffice OfficeType="1")", R"(<Taxoffice OfficeType="1")"}},
     {{"unknown-element", LINT_OFFICES, "<Taxoffice"}}},
    {"MisspeltOfficeAttribute",
     BASE,
     {{LINT_OFFICES, R"(OfficeType="1")", R"(OfficeKind="1")"}},
     {{"unknown-attribute", LINT_OFFICES, "OfficeKind"}}},
};
INSTANTIATE_TEST_SUITE_P(Offices, LintFolderTest, testing::ValuesIn(OFFICES), CaseName);

// What an edit can't bring in

TEST(LintFilesTest, MissingBaseFileIsFound)
{
    LintFolderText folder;
    folder.Remove(LINT_BASE);
    EXPECT_EQ(Brief(folder.Lint({"002"})),
              std::vector<std::string>{"missing-file KZEkaDefine.xml:0"});
}

TEST(LintFilesTest, MissingTableOfOfficesIsFound)
{
    LintFolderText folder;
    folder.Remove(LINT_OFFICES);
    EXPECT_EQ(Brief(folder.Lint({"002"})),
              std::vector<std::string>{"missing-file TaxOffices.xml:0"});
}

TEST(LintFilesTest, MissingFileOfAProcedureIsFound)
{
    LintFolderText folder;
    folder.Remove(LINT_TPL);
    EXPECT_EQ(Brief(folder.Lint({"101"})),
              std::vector<std::string>{"missing-file Finance/PGE2015_tpl.xml:0"});
}

TEST(LintFilesTest, MissingFolderIsFoundOnce)
{
    const LintFolderText folder;
    EXPECT_EQ(Brief(folder.Lint({"301", "302"})),
              std::vector<std::string>{"missing-file CrossBorder:0"});
}

TEST(LintFilesTest, SecondFileOfAProcedureIsAmbiguous)
{
    LintFolderText folder;
    folder.Write("Finance/PGE2015_vld.xml.old", "");
    EXPECT_EQ(Brief(folder.Lint({"101"})),
              std::vector<std::string>{"ambiguous-file Finance/PGE2015_vld.xml.old:0"});
}

TEST(LintFilesTest, BaseOfOneFormLacksTheOthers)
{
    const LintFolderText folder;
    std::vector<std::string> vecMissing;
    for (const host::LintFinding& finding : folder.Lint({}))
        if (finding.strRule == "missing-report")
            vecMissing.push_back(finding.strMessage.substr(0, 27));
    const std::vector<std::string> EXPECTED = {
        "No report has the id 001: f", "No report has the id 003: f", "No report has the id 004: f",
        "No report has the id 005: f", "No report has the id 006: f", "No report has the id 007: f",
        "No report has the id 008: f", "No report has the id 009: f"};
    EXPECT_EQ(vecMissing, EXPECTED);
}

TEST(LintFilesTest, TypeIdThatIsAskedForHasToBeThere)
{
    const LintFolderText folder;
    EXPECT_EQ(Brief(folder.Lint({"002", "005"})),
              std::vector<std::string>{"missing-report KZEkaDefine.xml:2"});
}

TEST(LintFilesTest, FileOfNoProcedureIsStray)
{
    LintFolderText folder;
    folder.Write("Finance/PGE9999_vld.xml", "<define/>");
    folder.Write("Finance/readme.txt", "text");
    std::vector<std::string> vecStray;
    for (const host::LintFinding& finding : folder.Lint({}))
        if (finding.strRule == "stray-file")
            vecStray.push_back(finding.strFile);
    EXPECT_EQ(vecStray, std::vector<std::string>{"Finance/PGE9999_vld.xml"});
}

/// The form of "002" with that many items below each other; the last one has no column.
LintFolderText FolderWithChain(int nItems, const std::string& strLeaf)
{
    LintFolderText folder;
    std::string strItems;
    std::string strParent = "GEZ52000";
    for (int nItem = 1; nItem < nItems; ++nItem) {
        const std::string strId = "L" + std::to_string(nItem);
        strItems.append(R"(<item type="TAG" id=")").append(strId);
        strItems.append(R"(" parent=")").append(strParent).append("\"/>\n");
        strParent = strId;
    }
    strItems.append(R"(<item type="Normal" id="E" parent=")").append(strParent);
    strItems.append("\"").append(strLeaf).append("/>");
    folder.Edit({LINT_BASE, R"(<item type="IdRef")", strItems + R"(<item type="IdRef")"});
    return folder;
}

TEST(LintLoadTest, TreeTooDeepForTheLibraryIsBeyondTheLimit)
{
    const std::vector<LintFinding> vecFinding =
        FolderWithChain(600, R"( column="2" label="x")").Lint({"002"});
    ASSERT_EQ(vecFinding.size(), 1U);
    EXPECT_EQ(vecFinding.front().strRule, "beyond-limit");
    EXPECT_EQ(vecFinding.front().strMessage,
              "The item hangs more than 500 levels below the report: the load fails.");
}

TEST(LintLoadTest, LeafOfATreeThatTheLibraryTakesIsLookedAt)
{
    const LintFolderText folder = FolderWithChain(450, "");
    EXPECT_EQ(Brief(folder.Lint({"002"})),
              std::vector<std::string>{"missing-column KZEkaDefine.xml:" +
                                       std::to_string(folder.LineOf(LINT_BASE, R"(id="E")"))});
}

// The report, the item that every form begins with, and the chain but its leaf are searched.
TEST(LintLoadTest, DeepestTreeThatTheLibraryTakesLoads)
{
    const LintFolderText folder = FolderWithChain(499, R"( column="2" label="x")");
    EXPECT_EQ(Brief(folder.Lint({"002"})),
              std::vector<std::string>{"shared-column KZEkaDefine.xml:" +
                                       std::to_string(folder.LineOf(LINT_BASE, R"(id="E")"))});
    const LintFolderText tooDeep = FolderWithChain(500, R"( column="2" label="x")");
    EXPECT_EQ(Brief(tooDeep.Lint({"002"})),
              Brief(tooDeep, {{"beyond-limit", LINT_BASE, R"(id="E")"}}));
}

TEST(LintUnusedColumnTest, ColumnsOfAgeAndOfBaseDatesAreUsed)
{
    LintFolderText folder;
    folder.Edit({LINT_BASE, R"(columnNum="10")", R"(columnNum="28")"});
    folder.Edit({LINT_BASE, R"(<valid id="number"/>)",
                 R"(<valid id="age" value="11 15 0 4 1" min="20"/>)"
                 R"(<valid id="rangebasedate" column="3" min="17" max="21"/>)"
                 R"(<valid id="rangebasedate_2" column="3" min="1_3" max="25"/>)"});
    EXPECT_EQ(Brief(folder.Lint({"002"})), std::vector<std::string>());
}

TEST(LintUnusedColumnTest, ColumnsBehindThoseOfAgeAreUnused)
{
    LintFolderText folder;
    folder.Edit({LINT_BASE, R"(columnNum="10")", R"(columnNum="17")"});
    folder.Edit({LINT_BASE, R"(<valid id="number"/>)",
                 R"(<valid id="age" value="11 15 0 4 1" min="20"/>)"});
    const std::vector<LintFinding> vecFinding = folder.Lint({"002"});
    ASSERT_EQ(vecFinding.size(), 1U);
    EXPECT_EQ(vecFinding.front().strMessage, "No item and no check has column 17.");
}

TEST(LintUnknownKeywordTest, AdviceNamesTheCommandThatListsTheKeywords)
{
    LintFolderText folder;
    folder.Edit({LINT_BASE, R"(<valid id="number"/>)", R"(<valid id="quux"/>)"});
    const std::vector<LintFinding> vecFinding = folder.Lint({"002"});
    ASSERT_EQ(vecFinding.size(), 1U);
    EXPECT_EQ(vecFinding.front().strAdvice,
              "\"kzekamok rules --format markdown\" lists the keywords.");
}

TEST(LintLimitTest, SearchThatNeverEndsIsNamedAtItsItem)
{
    // Each level stands once per generation, and a child of both: ways to it double at each.
    LintFolderText folder;
    std::string strItems = R"(<item type="TAG" id="C0" parent="GEZ520"/>)";
    for (int nLevel = 1; nLevel <= 20; ++nLevel) {
        const std::string strLevel = std::to_string(nLevel);
        for (const char* szGeneration : {"junior", "senior"})
            strItems += "\n<item type=\"TAG\" id=\"P" + strLevel + "\" parent=\"C" +
                        std::to_string(nLevel - 1) + "\" generation=\"" + szGeneration + "\"/>";
        strItems += "\n<item type=\"TAG\" id=\"C" + strLevel + "\" parent=\"P" + strLevel + "\"/>";
    }
    folder.Edit({LINT_BASE, R"(<item type="IdRef")", strItems + R"(<item type="IdRef")"});
    std::vector<std::string> vecMessage;
    for (const LintFinding& finding : folder.Lint({"002"})) {
        EXPECT_NE(finding.strRule, "load-failure");
        if (finding.strRule == "beyond-limit")
            vecMessage.push_back(finding.strMessage);
    }
    ASSERT_EQ(vecMessage.size(), 1u);
    EXPECT_TRUE(vecMessage.front().ends_with("passes more than 100000 items: the load fails."))
        << vecMessage.front();
}

TEST(LintLimitTest, ProcedureOfAnotherTypeIdIsToldWithBothProcedures)
{
    LintFolderText folder;
    folder.Edit({LINT_TPL, R"(procId="PGE2015")", R"(procId="PGE2025")"});
    const std::vector<LintFinding> vecFinding = folder.Lint({"101"});
    ASSERT_EQ(vecFinding.size(), 1u);
    EXPECT_EQ(vecFinding.front().eSeverity, LintSeverity::Error);
    EXPECT_EQ(vecFinding.front().strMessage,
              "procId is \"PGE2025\", but type id 101 is procedure \"PGE2015\": what a check and a "
              "document tell comes from their files, so the two tell different procedures.");
    EXPECT_EQ(vecFinding.front().strAdvice, "Write \"PGE2015\".");
}

TEST(LintLimitTest, ProcedureOfACrossBorderFileIsComparedToo)
{
    LintFolderText folder;
    for (const char* szEnd : {"vld", "tpl"})
        folder.Write(std::string("CrossBorder/PGE1650_") + szEnd + ".xml",
                     R"(<define><report procId="PGE1660" procVR="240.0" reportId="GEZ850")"
                     R"( reportVR="1.0" columnNum="2" label="x"/></define>)");
    std::vector<std::string> vecFile;
    for (const LintFinding& finding : folder.Lint({"301"}))
        if (finding.strRule == "catalogue-mismatch")
            vecFile.push_back(finding.strFile);
    EXPECT_EQ(vecFile, (std::vector<std::string>{"CrossBorder/PGE1650_tpl.xml",
                                                 "CrossBorder/PGE1650_vld.xml"}));
}

}  // namespace
}  // namespace host

// Ids against the library's catalogue of procedures, and the type ids of the base family.
#include <algorithm>
#include <map>
#include <set>
#include <string_view>

#include "base/JoinedText.h"
#include "family/GenerationRules.h"
#include "lint/LintTopics.h"

namespace host {
namespace {

constexpr LintTexts DIFFERENT = {
    {R"({1} is "{2}"; the library's catalogue has "{3}" for type id {4}.)",
     "{1}は「{2}」ですが、ライブラリの一覧では申請区分{4}は「{3}」です。"},
    {"Write \"{3}\".", "「{3}」と書いてください。"}};
constexpr LintTexts OTHER_PROCEDURE = {
    {"procId is \"{1}\", but type id {3} is procedure \"{2}\": what a check and a document tell "
     "comes "
     "from their files, so the two tell different procedures.",
     "procIdは「{1}」ですが、申請区分{3}の手続は「{2}」です。"
     "チェックと文書はそれぞれのファイルの値を使うため、手続が食い違います。"},
    {"Write \"{2}\".", "「{2}」と書いてください。"}};
constexpr LintTexts UNKNOWN_REPORT = {
    {"The report \"{1}\" isn't one of the catalogue's for type id {2}: {3}.",
     "report「{1}」は、一覧にある申請区分{2}のもの（{3}）ではありません。"},
    {"Correct reportId.", "reportIdを直してください。"}};
constexpr LintTexts ABSENT_REPORT = {
    {"The catalogue's report \"{1}\" of type id {2} has no report element.",
     "一覧にある申請区分{2}の「{1}」のreportがありません。"},
    {"Add it.", "追加してください。"}};
constexpr LintTexts OUT_OF_ORDER = {
    {R"(The report "{1}" stands before "{2}"; the catalogue has them the other way round.)",
     "report「{1}」が「{2}」の前にありますが、一覧では逆の順です。"},
    {"Change their order.", "順を入れ替えてください。"}};
constexpr LintTexts MISSING_REPORT = {
    {"No report has the id {1}: files of this type id are refused.",
     "idが{1}のreportがありません。この申請区分のファイルは受け付けられません。"},
    {"Add the report.", "reportを追加してください。"}};
constexpr LintTexts DUPLICATE_REPORT = {
    {"The report in line {2} has the id {1} already: this one is never read.",
     "{2}行目のreportのidも{1}です。このreportは読まれません。"},
    {"Remove one of the two, or correct its id.", "どちらかを削除するか、idを直してください。"}};
constexpr LintTexts UNEXPECTED_REPORT = {
    {"The id {1} isn't a type id of the base family, 001 to 009.",
     "{1}は001～009の申請区分ではありません。"},
    {"Correct the id, or remove the report.", "idを直すか、reportを削除してください。"}};

void LookAtTypeIds(const LintFile& file,
                   const std::vector<std::string>& vecTypeId,
                   LintReport& report)
{
    std::map<std::string_view, const LintForm*> mapFirst;  // by type id
    for (const LintForm& form : file.vecForm) {
        const auto [first, bNew] = mapFirst.try_emplace(form.strTypeId, &form);
        if (!bNew)
            report.Add(LintRule::DuplicateReport, form.At(file.strName), DUPLICATE_REPORT,
                       {form.strTypeId, std::to_string(first->second->pElement->lLine)});
        else if (GenerationRules::Find(form.strTypeId) == nullptr)
            report.Add(LintRule::UnexpectedReport, form.At(file.strName), UNEXPECTED_REPORT,
                       {form.strTypeId});
    }
    std::vector<std::string> vecWanted = vecTypeId;
    if (vecTypeId.empty()) {
        for (const GenerationRules::Rule& rule : GenerationRules::RULES)
            vecWanted.emplace_back(rule.strTypeId);
    } else {
        std::erase_if(vecWanted, [](const std::string& strTypeId) {
            return FamilyOfTypeId(strTypeId) != Family::Base;
        });
    }
    for (const std::string& strTypeId : vecWanted)
        if (!mapFirst.contains(strTypeId))
            report.Add(LintRule::MissingReport, {file.strName, file.xml.root->lLine},
                       MISSING_REPORT, {strTypeId});
}

void CompareProcedure(const LintFile& file, const LintForm& form, LintReport& report)
{
    const std::string& strProcId = form.pElement->Attribute("procId");
    // What is missing has a rule of its own.
    if (!strProcId.empty() && strProcId != file.info.procId)
        report.Add(LintRule::CatalogueMismatch, form.At(file.strName), OTHER_PROCEDURE,
                   {strProcId, file.info.procId, file.strTypeId});
}

void Compare(const LintFile& file,
             const LintForm& form,
             const char* szAttribute,
             const std::string& strExpected,
             LintReport& report)
{
    const std::string& strValue = form.pElement->Attribute(szAttribute);
    // What is missing has a rule of its own.
    if (!strValue.empty() && strValue != strExpected)
        report.Add(LintRule::CatalogueMismatch, form.At(file.strName), DIFFERENT,
                   {szAttribute, strValue, strExpected, file.strTypeId});
}

void LookAtReports(const LintFile& file, LintReport& report)
{
    const auto& listReport = file.info.listReport;
    const std::string strKnown = JoinedText(listReport, ", ", &REPORT_INFO::strReportId);
    auto latest = listReport.begin();
    std::set<std::string> setSeen;
    for (const LintForm& form : file.vecForm) {
        CompareProcedure(file, form, report);
        Compare(file, form, "procVR", file.info.strVR, report);
        setSeen.insert(form.strReportId);
        const auto known =
            std::ranges::find(listReport, form.strReportId, &REPORT_INFO::strReportId);
        if (known == listReport.end()) {
            if (!form.strReportId.empty())
                report.Add(LintRule::CatalogueMismatch, form.At(file.strName), UNKNOWN_REPORT,
                           {form.strReportId, file.strTypeId, strKnown});
            continue;
        }
        Compare(file, form, "reportVR", known->strVR, report);
        if (known < latest)
            report.Add(LintRule::CatalogueMismatch, form.At(file.strName), OUT_OF_ORDER,
                       {latest->strReportId, known->strReportId});
        latest = std::max(latest, known);
    }
    for (const REPORT_INFO& info : listReport)
        if (!setSeen.contains(info.strReportId))
            report.Add(LintRule::CatalogueMismatch, {file.strName, file.xml.root->lLine},
                       ABSENT_REPORT, {info.strReportId, file.strTypeId});
}

}  // namespace

void LintCatalogue(const LintFile& file,
                   const std::vector<std::string>& vecTypeId,
                   LintReport& report)
{
    if (file.eFamily == Family::Base)
        LookAtTypeIds(file, vecTypeId, report);
    else if (!file.vecForm.empty())
        LookAtReports(file, report);
}

}  // namespace host

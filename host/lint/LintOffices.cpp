// The table of tax offices.
#include <algorithm>
#include <map>
#include <set>

#include "family/BundleFiles.h"
#include "lint/LintTopics.h"
#include "text/ShiftJis.h"

namespace host {
namespace {

constexpr const char* COUNTING_TYPE = "5";
constexpr std::size_t CODE_LENGTH = 5;

constexpr LintTexts NO_OFFICE = {
    {"No TaxOffice has OfficeType 5: every office's code and name is refused.",
     "OfficeTypeが5のTaxOfficeがありません。どの局署番号・局署名称も通りません。"},
    {"Add the offices; entries of other types don't count.",
     "局署を追加してください。他の種別の行は使われません。"}};
constexpr LintTexts BAD_CODE = {
    {"OfficeCode \"{1}\" isn't five digits: no request with it passes.",
     "OfficeCode「{1}」は5桁の数字ではありません。この番号は通りません。"},
    {"Write five half-width digits.", "半角数字5桁で書いてください。"}};
constexpr LintTexts NO_NAME = {{"The office {1} has no OfficeName: its name is refused everywhere.",
                                "局署{1}にOfficeNameがありません。この局署の名称は通りません。"},
                               {"Add the name.", "名称を書いてください。"}};
constexpr LintTexts BAD_NAME = {
    {"OfficeName \"{1}\" can't be written in Shift_JIS: no CSV file can hold it.",
     "OfficeName「{1}」はShift_JISで書けません。CSVに書くことができません。"},
    {"Write it with characters of code page 932.", "コードページ932の文字で書いてください。"}};
constexpr LintTexts BLANK_NAME = {
    {"OfficeName \"{1}\" begins or ends with a blank: a cell's blanks are cut off, so none is "
     "equal "
     "to it.",
     "OfficeName「{1}」の前後に空白があります。CSVの値の空白は除かれるため一致しません。"},
    {"Remove the blank.", "空白を削除してください。"}};
constexpr LintTexts DUPLICATE = {
    {"The code {1} stands in line {2} already: this entry is never used.",
     "局署番号{1}は{2}行目にあります。この行は使われません。"},
    {"Remove one of the two, or correct its code.",
     "どちらかを削除するか、番号を直してください。"}};
constexpr LintTexts UNKNOWN = {
    {"<{1}> isn't known here: it is skipped.",
     "ここでは<{1}>は知られていません。読み飛ばされます。"},
    {"Only <TaxOffice> is read. Correct the name, or remove the element.",
     "読まれるのは<TaxOffice>だけです。名前を直すか、要素を削除してください。"}};
constexpr LintTexts UNKNOWN_ATTRIBUTE = {
    {"<TaxOffice> has no attribute \"{1}\": it is skipped.",
     "<TaxOffice>に属性「{1}」はありません。読み飛ばされます。"},
    {"The library reads OfficeType, OfficeCode and OfficeName.",
     "読まれるのはOfficeType、OfficeCode、OfficeNameです。"}};

bool IsCode(const std::string& strCode)
{
    return strCode.size() == CODE_LENGTH &&
           std::ranges::all_of(strCode, [](char c) { return '0' <= c && c <= '9'; });
}

void LookAtName(const XmlElement& office, const LintPlace& place, LintReport& report)
{
    const std::string& strName = office.Attribute("OfficeName");
    const auto strUnits = Utf8::Decode(strName);
    const auto isBlank = [](char16_t c) { return c <= u' ' || c == u'\u3000'; };
    if (strName.empty() || !strUnits)
        report.Add(LintRule::BadOffice, place, NO_NAME, {office.Attribute("OfficeCode")});
    else if (!ShiftJis::Encode(*strUnits))
        report.Add(LintRule::BadOffice, place, BAD_NAME, {strName});
    else if (isBlank(strUnits->front()) || isBlank(strUnits->back()))
        report.Add(LintRule::BadOffice, place, BLANK_NAME, {strName});
}

}  // namespace

void LintOffices(const LintBundle& bundle, LintReport& report)
{
    if (!bundle.offices.root)
        return;
    static const std::set<std::string> KNOWN = {"OfficeType", "OfficeCode", "OfficeName"};
    std::map<std::string, long> mapLine;  // by code
    for (const XmlElement& office : bundle.offices.root->vecChild) {
        const LintPlace place = {BundleFiles::TAX_OFFICES, office.lLine};
        if (office.strName != "TaxOffice") {
            report.Add(LintRule::UnknownElement, place, UNKNOWN, {office.strName});
            continue;
        }
        for (const auto& [strName, strValue] : office.mapAttribute)
            if (!KNOWN.contains(strName) && !strName.starts_with("xml"))
                report.Add(LintRule::UnknownAttribute, place, UNKNOWN_ATTRIBUTE, {strName});
        if (office.Attribute("OfficeType") != COUNTING_TYPE)
            continue;
        const std::string& strCode = office.Attribute("OfficeCode");
        const auto [it, bNew] = mapLine.try_emplace(strCode, office.lLine);
        if (!bNew) {
            report.Add(LintRule::DuplicateOffice, place, DUPLICATE,
                       {strCode, std::to_string(it->second)});
            continue;
        }
        if (!IsCode(strCode))
            report.Add(LintRule::BadOffice, place, BAD_CODE, {strCode});
        LookAtName(office, place, report);
    }
    if (mapLine.empty())
        report.Add(LintRule::NoOffice, {BundleFiles::TAX_OFFICES, bundle.offices.root->lLine},
                   NO_OFFICE);
}

}  // namespace host

// Elements and attributes: unknown, misspelt, missing, not read, not numbers.
#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "lint/LintTopics.h"
#include "rules/CheckShape.h"

namespace host {
namespace {

using Names = std::vector<std::string>;

/// Where an attribute is read.
enum Reader : unsigned
{
    BASE = 1,
    CHECKS = 2,
    DOCUMENT = 4,
    ALL = BASE | CHECKS | DOCUMENT,
};

struct AttributeRow
{
    std::string_view strElement;
    std::string_view strName;
    unsigned eReaders;
    bool bNumber = false;
};

/// The base family's nodes read the steps and repeated heads of items, too, though without effect.
constexpr auto ELEMENT_ATTRIBUTES = std::to_array<AttributeRow>({
    {"report", "id", BASE},
    {"report", "columnNum", BASE | CHECKS, true},
    {"report", "procId", ALL},
    {"report", "procVR", ALL},
    {"report", "reportId", ALL},
    {"report", "reportVR", ALL},
    {"report", "startRow", CHECKS | DOCUMENT, true},
    {"report", "endRow", CHECKS | DOCUMENT, true},
    {"report", "stepRow", DOCUMENT, true},
    {"report", "lastRecord", CHECKS, true},
    {"report", "label", ALL},
    {"item", "type", ALL},
    {"item", "id", ALL},
    {"item", "parent", ALL},
    {"item", "column", ALL, true},
    {"item", "generation", ALL},
    {"item", "startRow", BASE | DOCUMENT, true},
    {"item", "endRow", BASE | DOCUMENT, true},
    {"item", "stepRow", BASE, true},
    {"item", "value", ALL},
    {"item", "lastRecord", BASE | DOCUMENT, true},
    {"item", "repeatTopTag", BASE | DOCUMENT},
    {"item", "zeroSuppress", ALL},
    {"item", "label", ALL},
    {"valid", "id", ALL},
    {"valid", "column", ALL, true},
    {"valid", "value", ALL},
    {"valid", "min", ALL},
    {"valid", "max", ALL},
    {"valid", "errcolumn", ALL, true},
    {"valid", "errrow", ALL, true},
    {"valid", "message", ALL},
    {"outer", "id", ALL},
    {"outer", "column", ALL, true},
    {"outer", "value", ALL},
    {"outer", "min", ALL},
    {"outer", "max", ALL},
    {"outer", "errcolumn", 0, true},
    {"outer", "errrow", 0, true},
    {"outer", "message", 0},
});

struct LevelRow
{
    std::string_view strElement;
    const char* szChild;  ///< the one kind of element that is read in it, or null
};

constexpr auto LEVELS = std::to_array<LevelRow>({
    {"report", "item"},
    {"item", "valid"},
    {"valid", "outer"},
    {"outer", nullptr},
});

constexpr LintTexts UNKNOWN_ELEMENT = {
    {"<{1}> isn't known below <{2}>: it is skipped with all that is in it.",
     "<{2}>の下の<{1}>は知られていません。中身ごと読み飛ばされます。"},
    {"Only <{3}> is read here. Correct the name, or remove the element.",
     "ここで読まれるのは<{3}>だけです。名前を直すか、要素を削除してください。"}};
constexpr LintTexts NOTHING_BELOW = {
    {"<{1}> stands below <{2}>, where nothing is read: it is skipped.",
     "<{2}>の下では何も読まれません。<{1}>は読み飛ばされます。"},
    {"Remove the element, or move it.", "要素を削除するか、移してください。"}};
constexpr LintTexts UNKNOWN_ATTRIBUTE = {
    {"<{1}> has no attribute \"{2}\": it is skipped.",
     "<{1}>に属性「{2}」はありません。読み飛ばされます。"},
    {"Remove it, or correct its name.", "削除するか、名前を直してください。"}};
constexpr LintTexts MISSPELT_ATTRIBUTE = {
    {"<{1}> has no attribute \"{2}\": it is skipped.",
     "<{1}>に属性「{2}」はありません。読み飛ばされます。"},
    {"Is \"{3}\" meant? Attribute names are told apart by case.",
     "「{3}」のことですか。大文字と小文字は区別されます。"}};
constexpr LintTexts UNREAD = {
    {"\"{1}\" of <{2}> isn't read in this file.", "このファイルでは<{2}>の「{1}」は読まれません。"},
    {"Remove it; it has no effect.", "削除してください。効果がありません。"}};
constexpr LintTexts UNREAD_VALUE = {
    {"\"value\" isn't read by an item of type {1}; only IdRef reads it.",
     "種別{1}のitemは「value」を読みません。読むのはIdRefだけです。"},
    {"Remove it; it has no effect.", "削除してください。効果がありません。"}};
constexpr LintTexts UNREAD_BY_KEYWORD = {
    {R"("{1}" isn't read by the check "{2}".)", "チェック「{2}」は「{1}」を読みません。"},
    {"Remove it; it has no effect. The check reads: {3}.",
     "削除してください。効果がありません。このチェックが読むもの：{3}。"}};
constexpr LintTexts BAD_NUMBER = {{"{1}=\"{2}\" isn't a whole number: it is read as {3}.",
                                   "{1}=\"{2}\"は整数ではありません。{3}と読まれます。"},
                                  {"Write digits only.", "数字だけを書いてください。"}};
constexpr LintTexts BAD_FLAG = {
    {R"({1}="{2}" counts as off; only "{3}" switches it on.)",
     "{1}=\"{2}\"はオフとみなされます。オンになるのは\"{3}\"だけです。"},
    {"Write \"{3}\", or remove the attribute.", "\"{3}\"と書くか、属性を削除してください。"}};
constexpr LintTexts MISSING_ATTRIBUTE = {
    {"The report has no {1}: {2}.", "reportに{1}がありません（{2}）。"},
    {"Add {1}.", "{1}を追加してください。"}};
constexpr LintTexts NO_COLUMNS = {
    {"columnNum has to be 1 or more: otherwise every file is refused.",
     "columnNumは1以上でなければなりません。そうでないとどのファイルも受け付けられません。"},
    {"Write the number of columns that each record has.", "各レコードの項目数を書いてください。"}};
constexpr LintTexts NO_REPORT_LABEL = {
    {"The report has no label.", "reportにlabelがありません。"},
    {"Add label, the name of the form for people.", "様式の名前をlabelに書いてください。"}};
constexpr LintTexts NO_ITEM_LABEL = {
    {"The item of column {1} has no label.", "項目{1}のitemにlabelがありません。"},
    {"Add label, the name of the column for people.", "項目の名前をlabelに書いてください。"}};

unsigned ReaderOf(LintRole eRole)
{
    switch (eRole) {
        case LintRole::Both:
            return BASE;
        case LintRole::Checks:
            return CHECKS;
        case LintRole::Document:
            return DOCUMENT;
    }
    return BASE;
}

const AttributeRow* FindAttribute(std::string_view strElement, std::string_view strName)
{
    const auto pRow = std::ranges::find_if(ELEMENT_ATTRIBUTES, [&](const AttributeRow& row) {
        return row.strElement == strElement && row.strName == strName;
    });
    return pRow != ELEMENT_ATTRIBUTES.end() ? &*pRow : nullptr;
}

Names AttributesOf(std::string_view strElement)
{
    Names names;
    for (const AttributeRow& row : ELEMENT_ATTRIBUTES)
        if (row.strElement == strElement)
            names.emplace_back(row.strName);
    return names;
}

/// atol takes the text whole.
bool IsWholeNumber(std::string_view strText)
{
    constexpr std::size_t MOST_DIGITS = 9;
    if (strText.starts_with('-'))
        strText.remove_prefix(1);
    return !strText.empty() && strText.size() <= MOST_DIGITS &&
           std::ranges::all_of(strText, [](char c) { return '0' <= c && c <= '9'; });
}

class ElementWalk
{
public:
    ElementWalk(const LintFile& file, LintReport& report) : m_file(file), m_report(report) {}

    /// The element's attributes and what stands below it.
    void Look(const XmlElement& element, const std::string& strLevel)
    {
        for (const auto& [strName, strValue] : element.mapAttribute)
            LookAtAttribute(element, strLevel, strName, strValue);
        const auto pLevel = std::ranges::find(LEVELS, strLevel, &LevelRow::strElement);
        LookBelow(element, strLevel, pLevel->szChild);
    }

    /// \param szChild  The one kind of element that is read there, or null.
    void LookBelow(const XmlElement& element, const std::string& strName, const char* szChild)
    {
        for (const XmlElement& child : element.vecChild) {
            const LintPlace place = {m_file.strName, child.lLine};
            if (szChild == nullptr)
                m_report.Add(LintRule::UnknownElement, place, NOTHING_BELOW,
                             {child.strName, strName});
            else if (child.strName != szChild)
                m_report.Add(LintRule::UnknownElement, place, UNKNOWN_ELEMENT,
                             {child.strName, strName, szChild});
            else
                Look(child, szChild);
        }
    }

private:
    void LookAtAttribute(const XmlElement& element,
                         const std::string& strLevel,
                         const std::string& strName,
                         const std::string& strValue)
    {
        const LintPlace place = {m_file.strName, element.lLine};
        const AttributeRow* pRow = FindAttribute(strLevel, strName);
        if (pRow == nullptr) {
            // A name of the XML itself, such as xml:space, is nobody's mistake.
            if (strName.starts_with("xml"))
                return;
            const std::string strMeant = Resembling(strName, AttributesOf(strLevel));
            m_report.Add(LintRule::UnknownAttribute, place,
                         strMeant.empty() ? UNKNOWN_ATTRIBUTE : MISSPELT_ATTRIBUTE,
                         {strLevel, strName, strMeant});
            return;
        }
        if ((pRow->eReaders & ReaderOf(m_file.eRole)) == 0)
            m_report.Add(LintRule::UnreadAttribute, place, UNREAD, {strName, strLevel});
        else if (pRow->bNumber && !strValue.empty() && !IsWholeNumber(strValue))
            m_report.Add(
                LintRule::BadNumber, place, BAD_NUMBER,
                {strName, strValue, std::to_string(std::strtol(strValue.c_str(), nullptr, 10))});
    }

    const LintFile& m_file;
    LintReport& m_report;
};

void LookAtFlag(const LintPlace& place,
                const XmlElement& element,
                const char* szAttribute,
                std::string_view strOn,
                std::string_view strOff,
                LintReport& report)
{
    const std::string& strValue = element.Attribute(szAttribute);
    if (!strValue.empty() && strValue != strOn && strValue != strOff)
        report.Add(LintRule::BadFlag, place, BAD_FLAG, {szAttribute, strValue, strOn});
}

/// What a check reads, in words for people.
std::string AttributesReadBy(const CatalogueItem& keyword)
{
    std::string strNames = "column";
    for (const Attribute eAttribute : ATTRIBUTES)
        if (ShapeOf(keyword, eAttribute).IsRead())
            strNames += std::string(", ") + AttributeName(eAttribute);
    return strNames;
}

/// Attributes that the keyword drops.
void LookAtCheck(const std::string& strFile, const LintCheck& check, LintReport& report)
{
    for (const LintCheck& outer : check.vecOuter)
        LookAtCheck(strFile, outer, report);
    if (check.pKeyword == nullptr)
        return;
    const CatalogueItem& keyword = *check.pKeyword;
    const std::string strRead = AttributesReadBy(keyword);
    const std::pair<const char*, bool> attributes[] = {
        {"value", keyword.shape.value.IsRead()},
        {"min", keyword.shape.min.IsRead()},
        {"max", keyword.shape.max.IsRead()},
        {"errcolumn", check.bOuter || ReadsErrColumn(keyword.shape.ePlace)},
        {"errrow", check.bOuter || ReadsErrRow(keyword.shape.ePlace)},
        {"message", check.bOuter || ReadsMessage(keyword.shape.ePlace)},
    };
    for (const auto& [szName, bRead] : attributes)
        if (!bRead && !check.pElement->Attribute(szName).empty())
            report.Add(LintRule::UnreadAttribute, {strFile, check.pElement->lLine},
                       UNREAD_BY_KEYWORD, {szName, keyword.strKeyword, strRead});
}

void LookAtReport(const LintFile& file, const LintForm& form, LintReport& report)
{
    const LintPlace place = form.At(file.strName);
    struct Wanted
    {
        const char* szName;
        bool bWanted;
        Text effect;
    };
    constexpr Text NOT_FOUND = {"the procedure counts as unknown", "手続が不明とみなされます"};
    constexpr Text NO_DOCUMENT = {"no document can be made", "文書を作成できません"};
    constexpr Text EMPTY_VERSION = {"the document has an empty version", "文書の版が空になります"};
    constexpr Text REFUSED = {"every file is refused", "どのファイルも受け付けられません"};
    const Wanted wanted[] = {
        {"procId", true, NOT_FOUND},
        {"procVR", file.HasDocument(), EMPTY_VERSION},
        {"reportId", file.HasDocument(), NO_DOCUMENT},
        {"reportVR", file.HasDocument(), EMPTY_VERSION},
        {"columnNum", file.HasChecks(), REFUSED},
    };
    for (const Wanted& attribute : wanted)
        if (attribute.bWanted && form.pElement->Attribute(attribute.szName).empty())
            report.Add(LintRule::MissingAttribute, place, MISSING_ATTRIBUTE,
                       {attribute.szName, Say(attribute.effect)});
    if (file.HasChecks() && form.lColumnNum < 1 && !form.pElement->Attribute("columnNum").empty())
        report.Add(LintRule::BadNumber, place, NO_COLUMNS);
    if (form.pElement->Attribute("label").empty())
        report.Add(LintRule::MissingLabel, place, NO_REPORT_LABEL);
}

void LookAtItem(const LintFile& file, const LintItem& item, LintReport& report)
{
    const LintPlace place = item.At(file.strName);
    LookAtFlag(place, *item.pElement, "zeroSuppress", "true", "false", report);
    if (file.eRole == LintRole::Document)
        LookAtFlag(place, *item.pElement, "repeatTopTag", "1", "0", report);
    if (file.HasDocument())
        LookAtFlag(place, *item.pElement, "lastRecord", "1", "0", report);
    if (item.strType != "IdRef" && item.pElement->Has("value"))
        report.Add(LintRule::UnreadAttribute, place, UNREAD_VALUE, {item.strType});
    if (item.lColumn > 0 && item.pElement->Attribute("label").empty())
        report.Add(LintRule::MissingLabel, place, NO_ITEM_LABEL, {std::to_string(item.lColumn)});
    for (const LintCheck& check : item.vecCheck)
        LookAtCheck(file.strName, check, report);
}

}  // namespace

void LintElements(const LintFile& file, LintReport& report)
{
    ElementWalk walk(file, report);
    const XmlElement& root = *file.xml.root;
    // Only the reports that are asked for; beside them everything that isn't a report.
    for (const XmlElement& child : root.vecChild)
        if (child.strName != "report")
            report.Add(LintRule::UnknownElement, {file.strName, child.lLine}, UNKNOWN_ELEMENT,
                       {child.strName, root.strName, "report"});
    for (const LintForm& form : file.vecForm) {
        walk.Look(*form.pElement, "report");
        LookAtReport(file, form, report);
        for (const LintItem& item : form.vecItem)
            LookAtItem(file, item, report);
    }
}

}  // namespace host

// Items: type, generation, tag name, reference, row range.
#include <algorithm>
#include <array>
#include <set>
#include <string_view>

#include "base/JoinedText.h"
#include "definition/DefinitionLimits.h"
#include "definition/KZCEkaMOKDefineNode.h"
#include "family/GenerationRules.h"
#include "family/ITDataTables.h"
#include "lint/LintTopics.h"

namespace host {
namespace {

constexpr std::array<const char*, 8> TYPES = {"Normal",   "TAG", "Date",  "Kubun",
                                              "Zeimusho", "Zip", "Bango", "IdRef"};
/// Prefixes that a document declares.
constexpr std::array<std::string_view, 3> PREFIXES = {"gen", "kyo", "xsi"};

/// "</" and ">" with the buffer's last byte.
constexpr std::size_t TAG_NAME_MAX = TAG_BUFFER_SIZE - 4;

constexpr LintTexts UNKNOWN_TYPE = {
    {"The type \"{1}\" isn't known: the load fails.",
     "種別「{1}」は不明です。読み込みに失敗します。"},
    {"Write one of {2}, in this spelling.", "{2}のどれかを、この綴りで書いてください。"}};
constexpr LintTexts WRONG_GENERATION = {
    {"The generation \"{1}\" matches no record: the item is skipped.",
     "世代「{1}」はどのレコードにも当たりません。itemは飛ばされます。"},
    {"Write junior or senior, or remove the attribute for all records.",
     "juniorかseniorと書くか、全レコード用なら属性を削除してください。"}};
constexpr LintTexts NO_GENERATION = {
    {"Records of this form have no generation \"{1}\": the item is skipped.",
     "この様式のレコードに世代「{1}」はありません。itemは飛ばされます。"},
    {"Remove the attribute, or the item.", "属性かitemを削除してください。"}};
constexpr LintTexts NO_NAME = {
    {"The item has no id: its tag would have no name, and no document can be made.",
     "idがありません。タグに名前がなく、文書を作成できません。"},
    {"Add id, the name of the tag.", "タグの名前をidに書いてください。"}};
constexpr LintTexts BAD_NAME = {
    {"\"{1}\" isn't an XML name: no document can be made.",
     "「{1}」はXMLの名前ではありません。文書を作成できません。"},
    {"Begin with a letter, and use letters, digits, '-', '_' and '.' only.",
     "英字で始め、英数字と「-」「_」「.」だけを使ってください。"}};
constexpr LintTexts BAD_PREFIX = {
    {"The document doesn't declare the prefix of \"{1}\": no document can be made.",
     "「{1}」の接頭辞は文書で宣言されません。文書を作成できません。"},
    {"Use the prefix gen or kyo, or none.", "接頭辞はgenかkyoにするか、外してください。"}};
constexpr LintTexts LONG_NAME = {
    {"The tag \"{1}\" has {2} bytes; more than {3} are cut, and no document can be made.",
     "タグ「{1}」は{2}バイトです。{3}バイトを超えると切り詰められ、文書を作成できません。"},
    {"Shorten the name.", "名前を短くしてください。"}};
constexpr LintTexts LONG_REFERENCE = {
    {"The reference to \"{1}\" makes a tag of {2} bytes; more than {3} are cut, and no document "
     "can be made.",
     "「{1}」への参照のタグは{2}バイトです。{3}バイトを超えると切り詰められ、"
     "文書を作成できません。"},
    {"Shorten the id.", "idを短くしてください。"}};
constexpr LintTexts LONG_START = {
    {"The start tag of the report takes up to {1} bytes; more than {2} are cut, and no document "
     "can be made.",
     "reportの開始タグは最大{1}バイトになります。{2}バイトを超えると切り詰められ、"
     "文書を作成できません。"},
    {"Shorten reportId or reportVR.", "reportIdかreportVRを短くしてください。"}};
constexpr LintTexts NO_REFERENCE = {
    {"The IdRef has no value: it writes nothing.", "IdRefにvalueがありません。何も書かれません。"},
    {"Write the name of an element of the IT section: {1}.",
     "IT部の要素名を書いてください：{1}。"}};
constexpr LintTexts UNKNOWN_REFERENCE = {
    {"The IT section has no \"{2}\": the IdRef writes nothing.",
     "IT部に「{2}」はありません。IdRefは何も書きません。"},
    {"Write one of {1}.", "{1}のどれかを書いてください。"}};
constexpr LintTexts HALF_RANGE = {
    {"Only {1} is given: the range isn't in force, and the item is written at every record.",
     "{1}だけでは範囲は有効になりません。itemはすべてのレコードで書かれます。"},
    {"Give startRow and endRow, both from 1.",
     "startRowとendRowの両方を1から数えて書いてください。"}};
constexpr LintTexts REVERSED_RANGE = {
    {"startRow {1} lies behind endRow {2}: the item is never written.",
     "startRow {1}がendRow {2}より後です。itemは書かれません。"},
    {"Correct one of the two.", "どちらかを直してください。"}};
constexpr LintTexts NEGATIVE_RANGE = {
    {"Only items of type TAG count rows from the end: this one, of type {1}, is never written.",
     "末尾から数えられるのは種別TAGだけです。種別{1}のこのitemは書かれません。"},
    {"Put the item into a TAG that has the range.", "範囲を持つTAGの中に入れてください。"}};
constexpr LintTexts LAST_ON_OTHER = {
    {"lastRecord has no effect on an item of type {1}; only TAG items wait for the last record.",
     "種別{1}のitemではlastRecordは効きません。最後のレコードを待つのはTAGだけです。"},
    {"Put the item into a TAG with lastRecord.", "lastRecordを持つTAGの中に入れてください。"}};
constexpr LintTexts REPEAT_ELSEWHERE = {
    {"repeatTopTag has no effect here: only procedure PGE1640 repeats a head.",
     "ここではrepeatTopTagは効きません。先頭を繰り返すのは手続PGE1640だけです。"},
    {"Remove it.", "削除してください。"}};
constexpr LintTexts REPEAT_BELOW = {
    {"repeatTopTag works only on a direct child of the report: nothing is repeated.",
     "repeatTopTagはreportの直下でだけ効きます。何も繰り返されません。"},
    {"Set it on the item directly below the report.", "reportの直下のitemに付けてください。"}};
constexpr LintTexts REPEAT_NO_ROWS = {
    {"The repeated head needs startRow and endRow, both from 1: nothing is repeated.",
     "繰り返す先頭にはstartRowとendRow（どちらも1以上）が必要です。何も繰り返されません。"},
    {"Give the records that the head is made of.", "先頭を作るレコードを書いてください。"}};

constexpr LintTexts HEAD_ROWS = {
    {"The rows {1} to {2} of the repeated head lie beyond {3}: the conversion fails.",
     "繰り返す先頭の行{1}～{2}が上限{3}を超えています。変換に失敗します。"},
    {"Give the records that the head is made of.", "先頭を作るレコードを書いてください。"}};
constexpr LintTexts HEAD_NODES = {
    {"The repeated heads of a full file write {1} items, more than {2}: its conversion fails.",
     "最大件数のファイルでは、繰り返す先頭が{1}個のitemを書き、上限{2}"
     "を超えます。変換に失敗します。"},
    {"Let the heads have fewer rows, or the pages more records.",
     "先頭の行を減らすか、1ページのレコードを増やしてください。"}};

/// Elements of the IT section with an ID.
template <class Table>
std::set<std::string> Identifiers(const Table& table)
{
    std::set<std::string> setId;
    for (const ITDataRow& row : table)
        if (row.szOwnTag != nullptr)
            setId.insert(row.szOwnTag);
    return setId;
}

bool IsNamePart(std::string_view strName)
{
    const auto isLetter = [](char c) {
        return ('a' <= c && c <= 'z') || ('A' <= c && c <= 'Z') || c == '_' ||
               static_cast<unsigned char>(c) >= 0x80;
    };
    const auto isOther = [&](char c) {
        return isLetter(c) || ('0' <= c && c <= '9') || c == '-' || c == '.';
    };
    return !strName.empty() && isLetter(strName.front()) && std::ranges::all_of(strName, isOther);
}

class ItemWalk
{
public:
    ItemWalk(const LintFile& file, const LintForm& form, LintReport& report)
        : m_file(file), m_form(form), m_report(report)
    {
    }

    void Look()
    {
        if (m_file.HasDocument())
            LookAtReport();
        for (const LintItem& item : m_form.vecItem) {
            LookAtType(item);
            LookAtGeneration(item);
            if (m_file.HasDocument()) {
                LookAtName(item);
                LookAtReference(item);
                LookAtRange(item);
                LookAtRepeat(item);
            }
        }
        LookAtHeads();
    }

private:
    void LookAtReport()
    {
        // The rest of the start tag: names of its attributes, three numbers, the day, and two texts
        // of 30 characters of three bytes.
        constexpr std::size_t REST = 2 * 90 + 10 + 2 * 4 + 65;
        constexpr std::size_t MOST = 499;
        const std::size_t nLength =
            2 * m_form.strReportId.size() + m_form.pElement->Attribute("reportVR").size() + REST;
        const LintPlace place = m_form.At(m_file.strName);
        if (nLength > MOST)
            m_report.Add(LintRule::LongTag, place, LONG_START,
                         {std::to_string(nLength), std::to_string(MOST)});
        if (!m_form.strReportId.empty())
            LookAtTag(m_form.strReportId, place);
    }

    void LookAtType(const LintItem& item)
    {
        if (std::ranges::find(TYPES, item.strType) != TYPES.end())
            return;
        Add(LintRule::UnknownType, item, UNKNOWN_TYPE, {item.strType, JoinedText(TYPES)});
    }

    void LookAtGeneration(const LintItem& item)
    {
        const std::string& strGeneration = item.strGeneration;
        if (strGeneration.empty())
            return;
        if (strGeneration != GenerationRules::JUNIOR && strGeneration != GenerationRules::SENIOR) {
            Add(LintRule::BadGeneration, item, WRONG_GENERATION, {strGeneration});
            return;
        }
        const GenerationRules::Rule* pRule = GenerationRules::Find(m_form.strTypeId);
        const bool bCanBe =
            pRule != nullptr && (pRule->HasBoth() || strGeneration == GenerationRules::SENIOR);
        if (m_file.eFamily != Family::Base || !bCanBe)
            Add(LintRule::BadGeneration, item, NO_GENERATION, {strGeneration});
    }

    void LookAtName(const LintItem& item)
    {
        if (item.strId.empty())
            Add(LintRule::BadTagName, item, NO_NAME, {});
        else
            LookAtTag(item.strId, item.At(m_file.strName));
    }

    void LookAtTag(const std::string& strName, const LintPlace& place)
    {
        const std::size_t nColon = strName.find(':');
        const bool bPrefixed = nColon != std::string::npos;
        const std::string_view strAll = strName;
        const std::string_view strPrefix = bPrefixed ? strAll.substr(0, nColon) : "";
        const std::string_view strLocal = bPrefixed ? strAll.substr(nColon + 1) : strAll;
        if (!IsNamePart(strLocal) || (bPrefixed && !IsNamePart(strPrefix)))
            m_report.Add(LintRule::BadTagName, place, BAD_NAME, {strName});
        else if (bPrefixed && std::ranges::find(PREFIXES, strPrefix) == PREFIXES.end())
            m_report.Add(LintRule::BadTagName, place, BAD_PREFIX, {strName});
        if (strName.size() > TAG_NAME_MAX)
            m_report.Add(LintRule::LongTag, place, LONG_NAME,
                         {strName, std::to_string(strName.size()), std::to_string(TAG_NAME_MAX)});
    }

    void LookAtReference(const LintItem& item)
    {
        if (item.strType != "IdRef")
            return;
        const std::set<std::string> setId = m_file.eFamily == Family::Base
                                                ? Identifiers(ITDataTable)
                                                : Identifiers(ITDataTableFINANCE);
        const std::string& strValue = item.pElement->Attribute("value");
        if (strValue.empty())
            Add(LintRule::BadIdRef, item, NO_REFERENCE, {JoinedText(setId)});
        else if (!setId.contains(strValue))
            Add(LintRule::BadIdRef, item, UNKNOWN_REFERENCE, {JoinedText(setId), strValue});
        const std::size_t nLength =
            std::string_view("< IDREF=\"\"/>").size() + item.strId.size() + strValue.size();
        if (nLength >= TAG_BUFFER_SIZE)
            Add(LintRule::LongTag, item, LONG_REFERENCE,
                {strValue, std::to_string(nLength), std::to_string(TAG_BUFFER_SIZE - 1)});
    }

    void LookAtRange(const LintItem& item)
    {
        // The row of a trailer's first item stands alone: it tells where the trailer begins.
        const bool bTrailer = m_file.IsMulti() && item.lLastRecord == 1;
        if ((item.lStartRow != 0) != (item.lEndRow != 0) && !bTrailer)
            Add(LintRule::BadItemRange, item, HALF_RANGE,
                {item.lStartRow != 0 ? "startRow" : "endRow"});
        if (item.lLastRecord == 1 && item.strType != "TAG" && !bTrailer)
            Add(LintRule::BadItemRange, item, LAST_ON_OTHER, {item.strType});
        if (!item.HasRange())
            return;
        if (item.strType != "TAG" && item.lEndRow < 0)
            Add(LintRule::BadItemRange, item, NEGATIVE_RANGE, {item.strType});
        else if ((item.lStartRow < 0) == (item.lEndRow < 0) && item.lStartRow > item.lEndRow)
            Add(LintRule::BadItemRange, item, REVERSED_RANGE,
                {std::to_string(item.lStartRow), std::to_string(item.lEndRow)});
    }

    /// \return Whether the library refuses to write the rows.
    static bool IsHeadBeyondLimit(const LintItem& item)
    {
        using DefinitionLimits::HEAD_ROW;
        return item.lStartRow <= item.lEndRow &&
               (item.lStartRow < -HEAD_ROW || item.lEndRow > HEAD_ROW);
    }

    long CountNodes(const LintItem& item) const
    {
        long lNodes = 1;
        for (const std::size_t nChild : item.vecChild)
            lNodes += CountNodes(m_form.vecItem[nChild]);
        return lNodes;
    }

    /// What the heads of all pages write for a file of as many records as there may be.
    void LookAtHeads()
    {
        if (m_file.eRole != LintRole::Document || !m_file.IsMulti() || m_form.bTooDeep)
            return;
        long lNodes = 0;
        for (const std::size_t nItem : m_form.vecTop) {
            const LintItem& item = m_form.vecItem[nItem];
            if (item.pElement->Attribute("repeatTopTag") == "1" && item.lStartRow <= item.lEndRow &&
                !IsHeadBeyondLimit(item))
                lNodes += (item.lEndRow - item.lStartRow + 1) * CountNodes(item);
        }
        const long lMax = m_file.MaxRecord();
        const long lFirst = std::clamp(m_form.lStartRow, 1L, lMax);
        const long lLast = m_form.lEndRow > 0 ? std::min(m_form.lEndRow, lMax) : lMax;
        const long lStep = m_form.lStartRow != 0 ? std::max(m_form.lStepRow, 1L) : 1;
        lNodes *= std::max(lLast - lFirst, 0L) / lStep + 1;
        if (lNodes > DefinitionLimits::HEAD_NODES)
            m_report.Add(LintRule::BeyondLimit, m_form.At(m_file.strName), HEAD_NODES,
                         {std::to_string(lNodes), std::to_string(DefinitionLimits::HEAD_NODES)});
    }

    void LookAtRepeat(const LintItem& item)
    {
        if (m_file.eRole != LintRole::Document || item.pElement->Attribute("repeatTopTag") != "1")
            return;
        if (!m_file.IsMulti())
            Add(LintRule::BadRepeat, item, REPEAT_ELSEWHERE, {});
        else if (!item.bTop)
            Add(LintRule::BadRepeat, item, REPEAT_BELOW, {});
        else if (IsHeadBeyondLimit(item))
            Add(LintRule::BeyondLimit, item, HEAD_ROWS,
                {std::to_string(item.lStartRow), std::to_string(item.lEndRow),
                 std::to_string(DefinitionLimits::HEAD_ROW)});
        else if (item.lStartRow < 1 || item.lEndRow < 1)
            Add(LintRule::BadRepeat, item, REPEAT_NO_ROWS, {});
    }

    void Add(LintRule eRule,
             const LintItem& item,
             const LintTexts& texts,
             std::initializer_list<std::string_view> listArgument)
    {
        m_report.Add(eRule, item.At(m_file.strName), texts, listArgument);
    }

    const LintFile& m_file;
    const LintForm& m_form;
    LintReport& m_report;
};

}  // namespace

void LintItems(const LintFile& file, LintReport& report)
{
    for (const LintForm& form : file.vecForm)
        ItemWalk(file, form, report).Look();
}

}  // namespace host

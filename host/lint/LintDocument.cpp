// What a template writes at which record, and whether the checks agree.
#include <algorithm>
#include <map>
#include <set>
#include <tuple>

#include "base/JoinedText.h"
#include "family/GenerationRules.h"
#include "lint/CheckColumns.h"
#include "lint/LintPages.h"
#include "lint/LintTopics.h"
#include "lint/LintWriting.h"

namespace host {
namespace {

constexpr LintTexts LEFT_OPEN = {
    {"\"{1}\" stays open at record {2} of {3}, as its child in line {4} is for other records: "
     "nothing closes it.",
     "「{1}」は、{4}行目の子が他のレコード用のため、{3}件中レコード{2}で開いたままになり、"
     "閉じられません。"},
    {"Give the group the range of its children, or hang the child directly below the report.",
     "子と同じ範囲をこのTAGに付けるか、子をreportの直下に移してください。"}};
constexpr LintTexts CLOSED_WRONGLY = {
    {"At record {1} of {2} the page's head leaves \"{3}\" open and the record itself \"{4}\": they "
     "are closed in the wrong order.",
     "{2}件中レコード{1}で、ページの先頭が「{3}」を、レコードが「{4}」を開いたままにします。"
     "閉じる順が誤りになります。"},
    {"Let at most one of the two stay open: give one a range that its last child shares.",
     "開いたままにするのはどちらか一方にしてください。"}};
constexpr LintTexts NEVER_WRITTEN = {
    {"No record writes this item, whatever their number.",
     "レコードの件数にかかわらず、このitemは書かれません。"},
    {"Look at the ranges of the item and its parents, and at siblings before it that are for other "
     "records.",
     "itemとその親の範囲、および前にある他のレコード用の兄弟を確認してください。"}};
constexpr LintTexts SHARED = {
    {"Column {1} is written by the item in line {2} too, at the same record.",
     "項目{1}は、同じレコードで{2}行目のitemにも書かれます。"},
    {"Correct the column if one of the two is meant for another.",
     "どちらかが別の項目なら、columnを直してください。"}};
constexpr LintTexts BEYOND = {
    {"Column {1} lies beyond the last column, {2}, of the records that write the item: it reads as "
     "empty.",
     "項目{1}は、このitemを書くレコードの最後の項目{2}より後です。空と読まれます。"},
    {"Correct the column, or columnNum in {3}.", "columnか、{3}のcolumnNumを直してください。"}};
constexpr LintTexts UNCHECKED = {
    {"Nothing in {2} checks column {1} for the records that write the item: any value gets into "
     "the "
     "document.",
     "このitemを書くレコードの項目{1}を、{2}は確かめていません。どんな値も文書に入ります。"},
    {"Add checks for it there.", "そこにチェックを追加してください。"}};
constexpr LintTexts OTHER_REPORT = {
    {R"(Record {1} of {2} is checked as "{3}" ({4}) and written as "{5}".)",
     "{2}件中レコード{1}は「{3}」として確かめられ（{4}）、「{5}」として書かれます。"},
    {"Let the rows of both files agree.", "両方のファイルの行を合わせてください。"}};
constexpr LintTexts OTHER_ORDER = {
    {"The file has the reports {1}; {2} has {3}.",
     "このファイルのreportは{1}ですが、{2}では{3}です。"},
    {"Let both have the same reports in the same order.", "同じreportを同じ順にしてください。"}};
constexpr LintTexts UNFILTERED_GENERATION = {
    {"The item is for \"{1}\" records, but is written for others too: the group above it writes "
     "all "
     "its children.",
     "世代「{1}」のitemですが、他の世代でも書かれます。上のグループは子をすべて書くためです。"},
    {"Hang it below an item of type Normal, Kubun or Date; only these tell generations apart when "
     "they write.",
     "種別Normal、KubunまたはDateのitemの下に移してください。"
     "書くときに世代を見るのはこれらだけです。"}};

using ItemKey = const LintItem*;

/// What is known of an item after all sample files.
struct Seen
{
    long lMostColumns = 0;                ///< that a record writing it has
    std::set<const LintForm*> setChecks;  ///< forms by which such records are checked
};

class DocumentWalk
{
public:
    DocumentWalk(const LintFile& document, const LintFile* pChecks, LintReport& report)
        : m_document(document), m_pChecks(pChecks), m_report(report)
    {
    }

    void Look()
    {
        if (m_document.vecForm.empty() ||
            std::ranges::any_of(m_document.vecForm, &LintForm::bTooDeep))
            return;
        if (m_document.eFamily == Family::Base)
            for (const LintForm& form : m_document.vecForm)
                LookAtBase(form);
        else
            LookAtProcedure();
        for (const LintForm& form : m_document.vecForm)
            if (m_setForm.contains(&form))
                for (const LintItem& item : form.vecItem)
                    LookAtItem(item);
    }

private:
    void LookAtBase(const LintForm& form)
    {
        const bool bBoth = std::ranges::any_of(form.vecItem, [](const LintItem& item) {
            return item.strGeneration == GenerationRules::JUNIOR;
        });
        for (const long lCount : SampleCounts(m_document, 1))
            for (long lRecord = 1; lRecord <= lCount; ++lRecord) {
                if (!IsSampleRecord(m_document, lRecord, lCount))
                    continue;
                WriteOne(form, GenerationRules::SENIOR, lRecord, lCount);
                if (bBoth)
                    WriteOne(form, GenerationRules::JUNIOR, lRecord, lCount);
            }
    }

    void LookAtProcedure()
    {
        // Fewer records than forms are refused before anything is written.
        const std::size_t nForms =
            m_pChecks != nullptr ? m_pChecks->vecForm.size() : m_document.vecForm.size();
        PageTurner turner(m_document, m_report);
        for (const long lCount : SampleCounts(m_document, static_cast<long>(nForms))) {
            ForEachWrittenRecord(m_document, lCount, [&](const LintForm& form, long lRecord) {
                if (IsSampleRecord(m_document, lRecord, lCount))
                    WriteOne(form, "", lRecord, lCount);
                turner.Turn(form, lRecord, lCount);
            });
            turner.Finish(lCount);
        }
        if (m_pChecks != nullptr && !m_pChecks->vecForm.empty())
            CompareReports();
    }

    void WriteOne(const LintForm& form, const char* szGeneration, long lRecord, long lCount)
    {
        m_setForm.insert(&form);
        LintWriter writer(form, szGeneration, lCount);
        writer.WriteRecord(lRecord);
        const std::vector<std::size_t> vecOpen = writer.Open();
        NoteWritten(form, writer.Written(), szGeneration, lRecord, lCount);
        if (!m_document.IsMulti()) {
            for (const std::size_t nItem : vecOpen)
                TellOpen(form, form.vecItem[nItem], lRecord, lCount);
        } else if (OpensPage(m_document, form, lRecord, lCount)) {
            writer.WriteHead();
            NoteHead(form, writer.Written(), lCount);
            if (!vecOpen.empty() && !writer.Open().empty())
                TellOrder(form.vecItem[writer.Open().front()], form.vecItem[vecOpen.front()],
                          lRecord, lCount);
        }
        if (m_pChecks != nullptr)
            CompareRecord(form, lRecord, lCount);
    }

    void NoteWritten(const LintForm& form,
                     const std::vector<std::size_t>& vecWritten,
                     const std::string& strGeneration,
                     long lRecord,
                     long lCount)
    {
        std::map<long, ItemKey> mapColumn;
        for (const std::size_t nItem : vecWritten) {
            const LintItem& item = form.vecItem[nItem];
            Note(item, lRecord, lCount);
            if (m_document.eFamily == Family::Base && IsGeneration(item.strGeneration) &&
                item.strGeneration != strGeneration && m_setUnfiltered.insert(&item).second)
                Add(LintRule::BadGeneration, item, UNFILTERED_GENERATION, {item.strGeneration});
            if (item.lColumn == 0 || item.strType == "IdRef" || item.strType == "Zeimusho")
                continue;
            const auto [it, bNew] = mapColumn.try_emplace(item.lColumn, &item);
            if (bNew || it->second == &item)
                continue;
            const LintItem& later = std::max(*it->second, item, IsBefore);
            const LintItem& earlier = std::min(*it->second, item, IsBefore);
            if (m_setShared.insert(&later).second)
                Add(LintRule::SharedColumn, later, SHARED,
                    {std::to_string(item.lColumn), std::to_string(earlier.pElement->lLine)});
        }
    }

    void NoteHead(const LintForm& form, const std::vector<std::size_t>& vecWritten, long lCount)
    {
        for (const std::size_t nItem : vecWritten) {
            const LintItem& item = form.vecItem[nItem];
            // The head's records stand in the top item's own range.
            for (const std::size_t nTop : form.vecTop)
                if (form.vecItem[nTop].pElement->Attribute("repeatTopTag") == "1")
                    Note(item, std::max(form.vecItem[nTop].lStartRow, 1L), lCount);
        }
    }

    void Note(const LintItem& item, long lRecord, long lCount)
    {
        Seen& seen = m_mapSeen[&item];
        if (m_pChecks == nullptr)
            return;
        const LintForm* pForm = FormOfRecord(*m_pChecks, lRecord, lCount);
        if (pForm == nullptr)
            return;
        seen.lMostColumns = std::max(seen.lMostColumns, pForm->lColumnNum);
        seen.setChecks.insert(pForm);
    }

    void LookAtItem(const LintItem& item)
    {
        if (!item.bPlaced)
            return;
        const auto seen = m_mapSeen.find(&item);
        if (seen == m_mapSeen.end()) {
            const bool bLeaf =
                item.vecChild.empty() && (item.lColumn > 0 || item.strType == "IdRef");
            // A generation that no record has, and a row range that can't be, are told already.
            const auto told =
                m_report.HasError(m_document.strName, item.pElement->lLine, item.pElement->lLine);
            if (bLeaf && item.strGeneration.empty() && !told)
                Add(LintRule::NeverWritten, item, NEVER_WRITTEN, {});
            return;
        }
        if (m_pChecks == nullptr || item.lColumn == 0 || seen->second.setChecks.empty())
            return;
        const std::string strColumn = std::to_string(item.lColumn);
        if (item.lColumn > seen->second.lMostColumns) {
            if (seen->second.lMostColumns > 0)
                Add(LintRule::ColumnBeyond, item, BEYOND,
                    {strColumn, std::to_string(seen->second.lMostColumns), m_pChecks->strName});
        } else if (!std::ranges::any_of(seen->second.setChecks, [&](const LintForm* pForm) {
                       return CheckedColumns(*pForm).contains(item.lColumn);
                   })) {
            Add(LintRule::UncheckedColumn, item, UNCHECKED, {strColumn, m_pChecks->strName});
        }
    }

    /// Column 1 of the first record is the type id, which the library checks itself.
    bool HasTypeId(const LintForm& form) const
    {
        return m_pChecks->vecForm.size() == 1 || (form.lStartRow <= 1 && form.lEndRow == 1);
    }

    const std::set<long>& CheckedColumns(const LintForm& form)
    {
        const auto [it, bNew] = m_mapChecked.try_emplace(&form);
        if (bNew && HasTypeId(form))
            it->second.insert(1);
        if (bNew)
            for (const LintItem& item : form.vecItem)
                for (const LintCheck& check : item.vecCheck)
                    AddCheckedColumns(form, item, check, it->second);
        return it->second;
    }

    void TellOpen(const LintForm& form, const LintItem& item, long lRecord, long lCount)
    {
        if (!m_setOpen.insert(&item).second)
            return;
        long lChild = item.pElement->lLine;
        for (const std::size_t nChild : item.vecChild) {
            const LintItem& child = form.vecItem[nChild];
            const bool bWithin =
                !child.HasRange() || (RowFromFront(child.lStartRow, lCount) <= lRecord &&
                                      lRecord <= RowFromFront(child.lEndRow, lCount));
            if (!bWithin) {
                lChild = child.pElement->lLine;
                break;
            }
        }
        Add(LintRule::OpenGroup, item, LEFT_OPEN,
            {item.strId, std::to_string(lRecord), std::to_string(lCount), std::to_string(lChild)});
    }

    void TellOrder(const LintItem& head, const LintItem& body, long lRecord, long lCount)
    {
        if (m_setOpen.insert(&body).second)
            Add(LintRule::CloseOrder, body, CLOSED_WRONGLY,
                {std::to_string(lRecord), std::to_string(lCount), head.strId, body.strId});
    }

    void CompareRecord(const LintForm& form, long lRecord, long lCount)
    {
        const LintForm* pChecked = FormOfRecord(*m_pChecks, lRecord, lCount);
        if (pChecked == nullptr || pChecked->strReportId == form.strReportId ||
            !m_setOther.insert(&form).second)
            return;
        m_report.Add(LintRule::PairMismatch, form.At(m_document.strName), OTHER_REPORT,
                     {std::to_string(lRecord), std::to_string(lCount), pChecked->strReportId,
                      m_pChecks->strName, form.strReportId});
    }

    /// Report ids in order; neighbours of one id count once.
    static std::vector<std::string> Order(const LintFile& file)
    {
        std::vector<std::string> vecId;
        for (const LintForm& form : file.vecForm)
            if (vecId.empty() || vecId.back() != form.strReportId)
                vecId.push_back(form.strReportId);
        return vecId;
    }

    void CompareReports()
    {
        const auto vecOwn = Order(m_document);
        const auto vecOther = Order(*m_pChecks);
        // One finding for a mistake: rows that disagree have been told at their report.
        if (vecOwn != vecOther && m_setOther.empty())
            m_report.Add(LintRule::PairMismatch, {m_document.strName, m_document.xml.root->lLine},
                         OTHER_ORDER,
                         {JoinedText(vecOwn), m_pChecks->strName, JoinedText(vecOther)});
    }

    static bool IsGeneration(const std::string& strGeneration)
    {
        return strGeneration == GenerationRules::JUNIOR || strGeneration == GenerationRules::SENIOR;
    }

    static bool IsBefore(const LintItem& first, const LintItem& second) { return &first < &second; }

    void Add(LintRule eRule,
             const LintItem& item,
             const LintTexts& texts,
             std::initializer_list<std::string_view> listArgument)
    {
        m_report.Add(eRule, item.At(m_document.strName), texts, listArgument);
    }

    const LintFile& m_document;
    const LintFile* m_pChecks;
    LintReport& m_report;
    std::set<const LintForm*> m_setForm;  ///< that write a record
    std::map<ItemKey, Seen> m_mapSeen;
    std::map<const LintForm*, std::set<long>> m_mapChecked;
    std::set<ItemKey> m_setShared;  ///< told already, as the sets below
    std::set<ItemKey> m_setUnfiltered;
    std::set<ItemKey> m_setOpen;
    std::set<const LintForm*> m_setOther;
};

}  // namespace

void LintDocument(const LintFile& document, const LintFile* pChecks, LintReport& report)
{
    DocumentWalk(document, pChecks, report).Look();
}

}  // namespace host

#include "lint/LintPages.h"

#include <algorithm>

#include "lint/LintWriting.h"

namespace host {
namespace {

constexpr LintTexts PAGE_NOT_OPENED = {
    {"With {2} records, record {1} is written while no page is open: the record that should open "
     "one writes nothing.",
     "{2}件のとき、レコード{1}はページが開かないまま書かれます。"
     "ページを開くレコードで何も書かれないためです。"},
    {"Let an item write something at the first record of each page, whatever it is.",
     "各ページの最初のレコードで必ず何かが書かれるようにしてください。"}};
constexpr LintTexts PAGE_OPENED_TWICE = {
    {"With {2} records, a page opens at record {1} before the last one is closed.",
     "{2}件のとき、レコード{1}で前のページが閉じないうちに次のページが開きます。"},
    {"Let every item write something at the last record of each page, and look at startRow, endRow "
     "and stepRow.",
     "各ページの最後のレコードで何かが書かれるようにし、startRow・endRow・stepRowを確認してください"
     "。"}};
constexpr LintTexts PAGE_NOT_CLOSED = {
    {"With {1} records, the last page is never closed: its last record writes nothing.",
     "{1}件のとき、最後のページが閉じません。最後のレコードで何も書かれないためです。"},
    {"Let an item write something at the report's last record.",
     "reportの最後のレコードで何かが書かれるようにしてください。"}};
/// Where the trailer begins, counted from the end; 0 if there is none.
long TrailerRow(const LintForm& form)
{
    long lTrailer = 0;
    for (const LintItem& item : form.vecItem)
        if (item.lLastRecord == 1)
            lTrailer = std::min(lTrailer, item.lStartRow);
    return lTrailer;
}

bool ClosesPage(const LintFile& document, const LintForm& form, long lRecord, long lCount)
{
    const long lEnd = document.IsMulti() ? RowFromFront(form.lEndRow, lCount) : form.lEndRow;
    if (form.lEndRow == 0 || lRecord == lEnd || lRecord == lCount)
        return true;
    const long lBehind = lRecord - form.lStartRow;
    if (form.lStartRow == 0 || form.lStepRow <= 0 || lBehind <= 0 ||
        lBehind % form.lStepRow != form.lStepRow - 1)
        return false;
    const long lTrailer = TrailerRow(form);
    return !document.IsMulti() || lTrailer == 0 || RowFromFront(lTrailer, lCount) - 1 > lRecord;
}

}  // namespace

bool OpensPage(const LintFile& document, const LintForm& form, long lRecord, long lCount)
{
    if (form.lStartRow == 0 || lRecord == form.lStartRow)
        return true;
    const long lBehind = lRecord - form.lStartRow;
    if (form.lStepRow == 0 || lBehind <= 0 || lBehind % form.lStepRow != 0)
        return false;
    const long lTrailer = TrailerRow(form);
    return !document.IsMulti() ||
           (form.lEndRow != 0 && (lTrailer == 0 || RowFromFront(lTrailer, lCount) > lRecord));
}

PageTurner::PageTurner(const LintFile& document, LintReport& report)
    : m_document(document), m_report(report)
{
}

void PageTurner::Turn(const LintForm& form, long lRecord, long lCount)
{
    if (&form != m_pForm) {
        Finish(lCount);
        m_pForm = &form;
    }
    LintWriter writer(form, "", lCount);
    writer.WriteRecord(lRecord);
    // The last record closes a page of many records even if it writes nothing itself.
    if (writer.Written().empty() && !(m_document.IsMulti() && lRecord == lCount))
        return;
    if (OpensPage(m_document, form, lRecord, lCount)) {
        if (m_bOpen)
            Tell(form, PAGE_OPENED_TWICE, lRecord, lCount);
        m_bOpen = true;
    } else if (!m_bOpen) {
        Tell(form, PAGE_NOT_OPENED, lRecord, lCount);
    }
    if (ClosesPage(m_document, form, lRecord, lCount))
        m_bOpen = false;
}

void PageTurner::Finish(long lCount)
{
    if (m_bOpen)
        Tell(*m_pForm, PAGE_NOT_CLOSED, lCount, lCount);
    m_bOpen = false;
    m_pForm = nullptr;
}

void PageTurner::Tell(const LintForm& form, const LintTexts& texts, long lRecord, long lCount)
{
    const LintPlace place = form.At(m_document.strName);
    // Rows and steps that can't be have been told already.
    if (!m_setTold.insert(&form).second ||
        m_report.HasError(place.strFile, place.lLine, place.lLine))
        return;
    m_report.Add(LintRule::BrokenPage, place, texts,
                 {std::to_string(lRecord), std::to_string(lCount)});
}

}  // namespace host

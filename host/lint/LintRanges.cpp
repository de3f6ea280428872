// Records of the reports of a Finance or CrossBorder file.
#include <algorithm>
#include <optional>

#include "lint/LintTopics.h"
#include "lint/LintWriting.h"

namespace host {
namespace {

constexpr long END_OF_FILE = -1;

constexpr LintTexts NEGATIVE_START = {
    {"startRow {1} is negative: every check of a file ends in a fault.",
     "startRow {1}が負数です。どのファイルのチェックも異常終了します。"},
    {"Count from 1.", "1から数えてください。"}};
constexpr LintTexts NO_START = {
    {"A file with several reports needs startRow from 1 on each: every file is refused.",
     "reportが複数あるファイルでは、それぞれに1以上のstartRowが必要です。"
     "どのファイルも受け付けられません。"},
    {"Give startRow, or lastRecord for the report of the last record.",
     "startRow、または最後のレコードのreportならlastRecordを書いてください。"}};
constexpr LintTexts REVERSED = {
    {"startRow {1} lies behind endRow {2}: the report is for no record.",
     "startRow {1}がendRow {2}より後です。どのレコードのreportにもなりません。"},
    {"Correct one of the two.", "どちらかを直してください。"}};
constexpr LintTexts BAD_END = {
    {"endRow {1} isn't a record: the report is for no record.",
     "endRow {1}はレコードではありません。どのレコードのreportにもなりません。"},
    {"Write the number of the last record, or -1 for the end of the file.",
     "最後のレコードの番号、またはファイルの終わりなら-1を書いてください。"}};
constexpr LintTexts OVERLAP = {
    {"Record {1} belongs to the report in line {2} too: its columns are counted for both.",
     "レコード{1}は{2}行目のreportにも属します。両方で項目数が数えられます。"},
    {"Let this report begin at record {3}, or end the other before.",
     "このreportを{3}から始めるか、他方をその前で終えてください。"}};
constexpr LintTexts BEHIND_OPEN_END = {
    {"The report in line {2} reaches to the end of the file: record {1} belongs to it too.",
     "{2}行目のreportはファイルの終わりまでです。レコード{1}はそれにも属します。"},
    {"Give that report an endRow.", "そのreportにendRowを書いてください。"}};
constexpr LintTexts GAP = {
    {"The records {1} to {2} belong to no report: they are neither checked nor counted.",
     "レコード{1}～{2}はどのreportにも属さず、チェックも項目数の確認もされません。"},
    {"Let the reports follow on each other from record 1 on.",
     "reportをレコード1から続けてください。"}};
constexpr LintTexts GAP_TO_END = {
    {"The records from {1} on belong to no report: they are neither checked nor counted.",
     "レコード{1}以後はどのreportにも属さず、チェックも項目数の確認もされません。"},
    {"Let the last report end with -1, or add one.",
     "最後のreportのendRowを-1にするか、reportを追加してください。"}};
constexpr LintTexts NOT_LAST = {
    {"The report of the last record isn't the last report of the file: the others take that record "
     "too.",
     "最後のレコードのreportがファイルの最後にありません。他のreportもそのレコードを扱います。"},
    {"Move it to the end of the file.", "ファイルの最後に移してください。"}};

constexpr LintTexts WRITES_NOTHING = {
    {"startRow {1} without endRow: the report writes nothing and never hands over.",
     "startRow {1}だけでendRowがありません。何も書かれず、次に引き継がれません。"},
    {"Give endRow, or -1 for the end of the file.",
     "endRow、またはファイルの終わりなら-1を書いてください。"}};
constexpr LintTexts OPENS_EACH = {
    {"endRow {1} without startRow: a page opens at each record, and only one is closed.",
     "endRow {1}だけでstartRowがありません。"
     "レコードごとにページが開き、1つしか閉じません。"},
    {"Give startRow too, or leave both out for a page a record.",
     "startRowも書くか、1レコード1ページなら両方を外してください。"}};
constexpr LintTexts NEVER_HANDS_OVER = {
    {"No record reaches this report: the one in line {1} {2}.",
     "このreportにはどのレコードも届きません（{1}行目のreport：{2}）。"},
    {"Correct endRow there, or remove this report.",
     "そのendRowを直すか、このreportを削除してください。"}};
constexpr Text TAKES_ALL = {"takes all records to the end", "最後までの全レコードを扱います"};
constexpr Text ENDS_AT_ONE = {"ends at record 1, and a hand-over needs a later end",
                              "レコード1で終わりますが、引き継ぎは2以後でないと起きません"};
constexpr Text WRITES_NONE = {"is for no record and never hands over",
                              "どのレコードも扱わず、引き継ぎません"};
constexpr Text ONLY_FIRST = {"is the only one that this procedure uses",
                             "この手続で使われる唯一のreportです"};
constexpr LintTexts STARTS_LATE = {
    {"The records {1} to {2} are written by no report.",
     "レコード{1}～{2}を書くreportがありません。"},
    {"Let this report begin at record {1}.", "このreportを{1}から始めてください。"}};
constexpr LintTexts UNOPENED = {
    {"The report takes the records from {1} on, but its first page opens at {2}: the document is "
     "not well-formed.",
     "レコード{1}から書かれますが、最初のページは{2}で開きます。文書が整形式になりません。"},
    {"Let startRow be {1}.", "startRowを{1}にしてください。"}};
constexpr LintTexts RUNS_OUT = {
    {"The reports end at record {1}, and a file may have {2}: a longer file can't be converted.",
     "reportはレコード{1}で終わりますが、{2}件までのファイルがあります。"
     "それより長いファイルは変換できません。"},
    {"Let the last report end with -1, or leave both rows out.",
     "最後のreportのendRowを-1にするか、両方の行を外してください。"}};
constexpr LintTexts UNWRITTEN_REST = {
    {"The reports end at record {1}: the records behind it are left out of the document.",
     "reportはレコード{1}で終わります。その後のレコードは文書に入りません。"},
    {"Let the report end with -1, or leave both rows out.",
     "endRowを-1にするか、両方の行を外してください。"}};
constexpr LintTexts STEP_MISSING = {{"stepRow is missing: the load of the template fails.",
                                     "stepRowがありません。テンプレートの読み込みに失敗します。"},
                                    {"Give the number of records that a page takes, 2 or more.",
                                     "1ページのレコード数（2以上）を書いてください。"}};
constexpr LintTexts STEP_ONE = {
    {"With stepRow 1 the first page is never closed: the document is not well-formed.",
     "stepRow 1では最初のページが閉じません。文書が整形式になりません。"},
    {"Leave startRow, endRow and stepRow out for a page a record.",
     "1レコード1ページならstartRow・endRow・stepRowを外してください。"}};
constexpr LintTexts STEP_NEGATIVE = {
    {"With stepRow {1} pages open but don't close: the document is not well-formed.",
     "stepRow {1}ではページが開くだけで閉じません。文書が整形式になりません。"},
    {"Give the number of records that a page takes, 2 or more.",
     "1ページのレコード数（2以上）を書いてください。"}};

std::string Number(long lNumber)
{
    return std::to_string(lNumber);
}

bool IsOpenEnd(long lEndRow)
{
    return lEndRow == 0 || lEndRow == END_OF_FILE;
}

/// The ranges of a validation file.
class CheckedRanges
{
public:
    CheckedRanges(const LintFile& file, LintReport& report) : m_file(file), m_report(report) {}

    void Look()
    {
        const bool bTrailer = m_file.vecForm.back().lLastRecord != 0;
        for (const LintForm& form : m_file.vecForm) {
            if (form.lLastRecord == 0)
                LookAt(form);
            else if (&form != &m_file.vecForm.back())
                Add(LintRule::TrailerNotLast, form, NOT_LAST, {});
        }
        const long lMax = m_file.MaxRecord();
        const long lUncovered = bTrailer ? lMax - 1 : lMax;
        if (m_pBefore != nullptr && !m_bBad && !m_bOpen && m_lNext <= lUncovered)
            Add(LintRule::RangeGap, *m_pBefore, GAP_TO_END, {Number(m_lNext)});
    }

private:
    void LookAt(const LintForm& form)
    {
        const bool bSingle = m_file.vecForm.size() == 1;
        const bool bBadBefore = m_bBad;
        m_bBad = true;  // until the range is found to be good
        if (form.lStartRow < 0) {
            Add(LintRule::BadRange, form, NEGATIVE_START, {Number(form.lStartRow)});
            return;
        }
        if (!bSingle && form.lStartRow == 0) {
            Add(LintRule::BadRange, form, NO_START, {});
            return;
        }
        const long lStart = std::max(form.lStartRow, 1L);
        if (!IsOpenEnd(form.lEndRow) && form.lEndRow < 1) {
            Add(LintRule::BadRange, form, BAD_END, {Number(form.lEndRow)});
            return;
        }
        if (!IsOpenEnd(form.lEndRow) && lStart > form.lEndRow) {
            Add(LintRule::BadRange, form, REVERSED, {Number(lStart), Number(form.lEndRow)});
            return;
        }
        m_bBad = bBadBefore;
        if (m_bOpen)
            Add(LintRule::RangeOverlap, form, BEHIND_OPEN_END,
                {Number(lStart), Number(m_pBefore->pElement->lLine)});
        else if (lStart < m_lNext)
            Add(LintRule::RangeOverlap, form, OVERLAP,
                {Number(lStart), Number(m_pBefore->pElement->lLine), Number(m_lNext)});
        else if (lStart > m_lNext)
            Add(LintRule::RangeGap, form, GAP, {Number(m_lNext), Number(lStart - 1)});
        m_pBefore = &form;
        m_bOpen = IsOpenEnd(form.lEndRow);
        m_lNext = m_bOpen ? lStart : std::max(m_lNext, form.lEndRow + 1);
    }

    void Add(LintRule eRule,
             const LintForm& form,
             const LintTexts& texts,
             std::initializer_list<std::string_view> listArgument)
    {
        m_report.Add(eRule, form.At(m_file.strName), texts, listArgument);
    }

    const LintFile& m_file;
    LintReport& m_report;
    const LintForm* m_pBefore = nullptr;  ///< the last one with a good range
    bool m_bOpen = false;                 ///< it reaches to the end
    bool m_bBad = false;                  ///< a report has none: what it was to cover is unknown
    long m_lNext = 1;                     ///< first record behind it
};

/// The ranges of a template.
class WrittenRanges
{
public:
    WrittenRanges(const LintFile& file, LintReport& report) : m_file(file), m_report(report) {}

    void Look()
    {
        m_lFirst = 1;
        for (std::size_t nForm = 0; nForm < m_file.vecForm.size(); ++nForm) {
            const LintForm& form = m_file.vecForm[nForm];
            const auto stop = m_file.IsMulti() ? LookAtMulti(form) : LookAt(form);
            LookAtStep(form);
            if (stop) {
                for (std::size_t nBehind = nForm + 1; nBehind < m_file.vecForm.size(); ++nBehind)
                    Add(LintRule::UnreachableReport, m_file.vecForm[nBehind], NEVER_HANDS_OVER,
                        {Number(form.pElement->lLine), Say(*stop)});
                return;
            }
        }
        const LintForm& last = m_file.vecForm.back();
        if (m_file.MaxRecord() > last.lEndRow)
            Add(LintRule::RangeGap, last, RUNS_OUT,
                {Number(last.lEndRow), Number(m_file.MaxRecord())});
    }

private:
    /// \return Why the report never hands over; nothing if it does.
    std::optional<Text> LookAt(const LintForm& form)
    {
        const long lStart = form.lStartRow;
        const long lEnd = form.lEndRow;
        if (lStart == 0 && lEnd == 0)
            return TAKES_ALL;
        if (lEnd == 0) {
            Add(LintRule::BadRange, form, WRITES_NOTHING, {Number(lStart)});
            return WRITES_NONE;
        }
        if (lStart == 0) {
            Add(LintRule::BadRange, form, OPENS_EACH, {Number(lEnd)});
            return lEnd == END_OF_FILE ? std::optional(TAKES_ALL) : HandOver(form);
        }
        if (lStart < 0 || lEnd < END_OF_FILE) {
            Add(LintRule::BadRange, form, BAD_END, {Number(lStart < 0 ? lStart : lEnd)});
            return WRITES_NONE;
        }
        if (lEnd != END_OF_FILE && lStart > lEnd) {
            Add(LintRule::BadRange, form, REVERSED, {Number(lStart), Number(lEnd)});
            return HandOver(form);
        }
        LookAtStart(form);
        return lEnd == END_OF_FILE ? std::optional(TAKES_ALL) : HandOver(form);
    }

    /// The first page opens at the first record that the report writes.
    void LookAtStart(const LintForm& form)
    {
        const bool bFromHandOver = form.lEndRow == END_OF_FILE || form.lStartRow < m_lFirst;
        if (form.lStartRow == m_lFirst)
            return;
        if (bFromHandOver)
            Add(LintRule::RangeOverlap, form, UNOPENED, {Number(m_lFirst), Number(form.lStartRow)});
        else
            Add(LintRule::RangeGap, form, STARTS_LATE,
                {Number(m_lFirst), Number(form.lStartRow - 1)});
    }

    std::optional<Text> HandOver(const LintForm& form)
    {
        constexpr long LEAST_END = 2;
        m_lFirst = form.lEndRow + 1;
        if (form.lEndRow >= LEAST_END)
            return std::nullopt;
        if (&form == &m_file.vecForm.back() && m_file.MaxRecord() > form.lEndRow)
            Add(LintRule::RangeGap, form, UNWRITTEN_REST, {Number(form.lEndRow)});
        return ENDS_AT_ONE;
    }

    std::optional<Text> LookAtMulti(const LintForm& form)
    {
        const long lStart = form.lStartRow;
        const long lEnd = form.lEndRow;
        if (lStart != 0 && lEnd == 0)
            Add(LintRule::BadRange, form, WRITES_NOTHING, {Number(lStart)});
        else if (lStart == 0 && lEnd != 0)
            Add(LintRule::BadRange, form, OPENS_EACH, {Number(lEnd)});
        else if (lStart != 0 && (lStart < 0) == (lEnd < 0) && lStart > lEnd)
            Add(LintRule::BadRange, form, REVERSED, {Number(lStart), Number(lEnd)});
        return ONLY_FIRST;
    }

    void LookAtStep(const LintForm& form)
    {
        if (form.lStartRow == 0 || form.lEndRow == 0 || form.lStartRow == form.lEndRow)
            return;
        if (form.lStepRow == 0) {
            if (m_file.IsMulti())
                Add(LintRule::BadStep, form, STEP_MISSING, {});
        } else if (form.lStepRow == 1) {
            Add(LintRule::BadStep, form, STEP_ONE, {});
        } else if (form.lStepRow < 0) {
            Add(LintRule::BadStep, form, STEP_NEGATIVE, {Number(form.lStepRow)});
        }
    }

    void Add(LintRule eRule,
             const LintForm& form,
             const LintTexts& texts,
             std::initializer_list<std::string_view> listArgument)
    {
        m_report.Add(eRule, form.At(m_file.strName), texts, listArgument);
    }

    const LintFile& m_file;
    LintReport& m_report;
    long m_lFirst = 1;  ///< first record behind the reports looked at
};

}  // namespace

void LintRanges(const LintFile& file, LintReport& report)
{
    if (file.vecForm.empty() || file.eFamily == Family::Base)
        return;
    if (file.eRole == LintRole::Checks)
        CheckedRanges(file, report).Look();
    else
        WrittenRanges(file, report).Look();
}

}  // namespace host

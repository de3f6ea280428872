#include "request/CheckFile.h"

#include <KZEkaMok/KZEkaMok.h>

#include <algorithm>
#include <string_view>

#include "base/Language.h"
#include "base/SafeText.h"
#include "form/Installation.h"
#include "request/FilerFields.h"
#include "rules/Advice.h"
#include "rules/StructureHint.h"

namespace host {
namespace {

constexpr Text PATH_PROBLEM = {"The file was not checked: {1}.", "チェックしませんでした：{1}。"};
constexpr Text RENAME = {"Rename it.", "ファイル名を変えてください。"};
constexpr Text NOT_STARTED = {"The library could not even start the check.",
                              "ライブラリがチェックを始められませんでした。"};
constexpr Text FREE_MEMORY = {"Make sure that enough memory is free.",
                              "メモリーの空きを確認してください。"};
constexpr Text NUL_PROBLEM = {"The file was not checked to its end: {1}.",
                              "最後までチェックできませんでした：{1}。"};
constexpr Text REMOVE_NUL = {"Remove the NUL bytes.", "NULを取り除いてください。"};
constexpr Text INCOMPLETE = {"The installation is not complete.",
                             "インストールが完全ではありません。"};
constexpr Text TEXT_PROBLEM = {"The file can't be read: {1}.", "読み取れません：{1}。"};
constexpr Text SAVE_AS_SHIFT_JIS = {"Save it as a Shift_JIS text.",
                                    "Shift_JISのテキストとして保存してください。"};
constexpr Text BROKEN = {
    "The library broke down without a reason that can be seen from here; the definition of the "
    "file's form may be faulty.",
    "ライブラリの処理が中断しました。ここからは理由がわかりません。"
    "帳票の定義ファイルが誤っているかもしれません。"};
constexpr Text NOT_CHECKED = {"The file was not checked.", "チェックしませんでした。"};
constexpr Text NO_REGULAR_FILE = {
    "It is no regular file: copy what it gives into one.",
    "通常のファイルではありません。内容を通常のファイルにコピーしてください。"};
constexpr Text MAYBE_UTF8 = {
    "The file can be read as UTF-8, too. If it was saved as UTF-8, save it as Shift_JIS: that "
    "explains most of these errors.",
    "UTF-8としても読み取れます。UTF-8で保存されたのであれば、Shift_JISで保存し直してください。"
    "エラーの大半はそれが原因です。"};
constexpr Text ARGUMENT = {"argument {1}", "引数{1}"};

ErrorScope ScopeOf(const DetailEntry& entry)
{
    if (entry.lRecord == ARGUMENT_RECORD)
        return ErrorScope::Argument;
    if (entry.lRecord <= FILE_RECORD)
        return ErrorScope::File;
    return entry.lColumn > 0 ? ErrorScope::Cell : ErrorScope::Record;
}

std::string ArgumentName(Family eFamily, long lArgument)
{
    if (lArgument == CSV_PATH_ARGUMENT)
        return "FILE";
    if (lArgument == MOK_PATH_ARGUMENT)
        return "--output";
    if (const auto field = FieldOfArgument(eFamily, lArgument))
        return FILER_FIELDS[*field].szOption;
    return Say(ARGUMENT, {std::to_string(lArgument)});
}

bool Holds(const std::vector<DetailEntry>& vecEntry, KZCEkaMessage_t eMessage)
{
    return std::ranges::any_of(
        vecEntry, [eMessage](const DetailEntry& entry) { return entry.eMessage == eMessage; });
}

/// The error that is the path's own, or null. An empty file is none: it has been read to its end.
/// \param bReadable  The file could be read, so that it is empty if the library says so.
const DetailEntry* FindPathError(const std::vector<DetailEntry>& vecEntry, bool bReadable)
{
    const auto isPathError = [bReadable](const DetailEntry& entry) {
        return entry.lRecord == ARGUMENT_RECORD && entry.lColumn == CSV_PATH_ARGUMENT &&
               (entry.eMessage != HE70024E || !bReadable);
    };
    const auto it = std::ranges::find_if(vecEntry, isPathError);
    return it != vecEntry.end() ? &*it : nullptr;
}

ReportedForm ReportForm(const FormDefinition& form, std::size_t nRecord)
{
    ReportedForm reported = {nRecord, nRecord, form.strLabel, {}};
    for (long lColumn = 1; lColumn <= form.lColumnNum; ++lColumn)
        reported.vecLabel.push_back(form.labels.Find(lColumn, SINGLE_COLUMN));
    return reported;
}

std::vector<ReportedForm> FormsOf(const ProcedureDefinition& procedure, std::size_t nRecordCount)
{
    std::vector<ReportedForm> vecForm;
    const FormDefinition* pLast = nullptr;
    for (std::size_t n = 1; n <= nRecordCount; ++n) {
        const FormDefinition* pForm = procedure.FormAt(n, nRecordCount);
        if (pForm != nullptr && pForm == pLast)
            vecForm.back().nLastRecord = n;
        else if (pForm != nullptr)
            vecForm.push_back(ReportForm(*pForm, n));
        pLast = pForm;
    }
    return vecForm;
}

}  // namespace

FileCheck::FileCheck(KZICsvConvMokEka& library,
                     const Definitions& definitions,
                     const std::string& strFile,
                     std::optional<Family> family)
    : m_definitions(definitions),
      m_strFile(strFile),
      m_source(strFile, family),
      m_operations(library, m_source.OfFamily()),
      m_pProcedure(definitions.Find(m_source.OfFamily(), m_source.Cells().TypeId())),
      m_pRules(m_pProcedure != nullptr ? std::make_unique<RuleBook>(*m_pProcedure) : nullptr)
{
}

FileReport FileCheck::Run()
{
    if (const auto strProblem = m_source.PathProblem())
        return NotChecked(Say(PATH_PROBLEM, {*strProblem}), Say(RENAME));

    const auto pResult = m_operations.Check(m_source.LibraryPath());
    if (!pResult)
        return NotChecked(Say(NOT_STARTED), Say(FREE_MEMORY));

    FileReport report;
    if (Passed(pResult)) {
        report = StartReport();
        report.eOutcome = Outcome::Passed;
        report.eStatus = ExitStatus::Passed;
        report.strProcedure = pResult->GetProcId();
    } else {
        report = Judge(ParseDetailTable(pResult->GetDetailErrorInfo()));
    }

    const auto strNul = m_source.NulProblem();
    if (strNul && report.eOutcome != Outcome::NotChecked) {
        report.eOutcome = Outcome::NotChecked;
        report.eStatus = ExitStatus::NotChecked;
        report.strProblem = Say(NUL_PROBLEM, {*strNul});
        report.strAdvice = Say(REMOVE_NUL);
    }
    return report;
}

FileReport FileCheck::StartReport() const
{
    FileReport report;
    report.strFile = m_strFile;
    report.eFamily = m_source.OfFamily();
    if (m_pProcedure != nullptr)
        report.strProcedure = m_pProcedure->strProcId;
    if (m_source.TextProblem())
        return report;
    report.pCells = m_source.SharedCells();
    report.records = report.pCells->FilledRecordCount();
    if (m_pProcedure != nullptr)
        report.vecForm = FormsOf(*m_pProcedure, report.pCells->RecordCount());
    return report;
}

FileReport FileCheck::NotChecked(const std::string& strProblem, const std::string& strAdvice) const
{
    FileReport report = StartReport();
    report.strProblem = strProblem;
    report.strAdvice = strAdvice;
    return report;
}

FileReport FileCheck::Broken() const
{
    const std::string strInstallation =
        InstallationProblem(m_source.OfFamily(), m_source.Cells().TypeId());
    if (!strInstallation.empty())
        return NotChecked(Say(INCOMPLETE), strInstallation);
    if (const auto strProblem = m_source.TextProblem())
        return NotChecked(Say(TEXT_PROBLEM, {*strProblem}), Say(SAVE_AS_SHIFT_JIS));
    if (const auto strNul = m_source.NulProblem())
        return NotChecked(Say(NUL_PROBLEM, {*strNul}), Say(REMOVE_NUL));
    return NotChecked(Say(BROKEN), Say(LOG_ADVICE));
}

/// No entry at all is a fault, too, which the CrossBorder operations tell in no other way.
FileReport FileCheck::Judge(const std::vector<DetailEntry>& vecEntry) const
{
    const bool bNoReason = vecEntry.empty() || Holds(vecEntry, HE70017E);
    FileReport report;
    if (Holds(vecEntry, HE70018E) || bNoReason) {
        report = Broken();
    } else if (const auto* pPathError = FindPathError(vecEntry, !m_source.TextProblem())) {
        const bool bEmpty = pPathError->eMessage == HE70024E;
        report = NotChecked(Say(NOT_CHECKED),
                            bEmpty ? Say(NO_REGULAR_FILE) : AdviceFor(pPathError->eMessage));
    } else {
        report = StartReport();
        report.eOutcome = Outcome::Refused;
        report.eStatus = ExitStatus::Refused;
        if (m_source.LooksLikeUtf8())
            report.strNote = Say(MAYBE_UTF8);
    }
    report.vecError = Explain(vecEntry);
    report.bMoreErrors = Holds(vecEntry, HE70022E);
    return report;
}

std::vector<ReportedError> FileCheck::Explain(const std::vector<DetailEntry>& vecEntry) const
{
    const auto isReason = [](const DetailEntry& entry) {
        return entry.lRecord == FILE_RECORD &&
               (entry.eMessage == HE70021E || entry.eMessage == HE70024E);
    };
    const bool bHasReason = std::ranges::any_of(vecEntry, isReason);
    std::vector<ReportedError> vecError;
    vecError.reserve(vecEntry.size());
    for (const DetailEntry& entry : vecEntry) {
        if (entry.eMessage == HE70022E)  // tells about the table and not about the file
            continue;
        vecError.push_back(Explain(entry));
        // The Finance family adds this one to whatever stopped its reading.
        if (bHasReason && entry.lRecord == FILE_RECORD && entry.eMessage == HE70019E)
            vecError.back().strHint = FollowingHint();
    }
    return vecError;
}

ReportedError FileCheck::Explain(const DetailEntry& entry) const
{
    ReportedError error;
    error.entry = entry;
    error.eScope = ScopeOf(entry);
    if (error.eScope == ErrorScope::Cell || error.eScope == ErrorScope::Record)
        error.nLine = m_source.Cells().Line(static_cast<std::size_t>(entry.lRecord));
    switch (error.eScope) {
        case ErrorScope::Cell:
            ExplainCell(error);
            break;
        case ErrorScope::Argument:
            error.strName = ArgumentName(m_source.OfFamily(), entry.lColumn);
            if (entry.lColumn == CSV_PATH_ARGUMENT)
                error.value = m_strFile;
            break;
        case ErrorScope::File:
        case ErrorScope::Record:
            error.strHint = StructureHint(entry.eMessage, m_source.Cells(), m_definitions);
            break;
    }
    return error;
}

void FileCheck::ExplainCell(ReportedError& error) const
{
    const DetailEntry& entry = error.entry;
    const auto nRecord = static_cast<std::size_t>(entry.lRecord);
    const long lColumnEnd = std::max(entry.lColumn, entry.lColumnEnd);
    error.value = m_source.Cells().Cells(nRecord, static_cast<std::size_t>(entry.lColumn),
                                         static_cast<std::size_t>(lColumnEnd));
    const FormDefinition* pForm =
        m_pProcedure != nullptr ? m_pProcedure->FormAt(nRecord, m_source.Cells().RecordCount())
                                : nullptr;
    if (pForm == nullptr)
        return;
    error.strName = pForm->labels.Find(entry.lColumn, entry.lColumnEnd);
    error.strRule = m_pRules->RuleOf(entry, m_source.Cells().RecordCount());
}

}  // namespace host

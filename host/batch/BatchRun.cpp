#include "batch/BatchRun.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <system_error>
#include <utility>

#include "base/Complain.h"
#include "base/SafeText.h"
#include "base/UsageError.h"
#include "batch/BatchPage.h"
#include "batch/EarlierDocument.h"
#include "batch/Interrupt.h"
#include "batch/MemoryLimit.h"
#include "batch/OptionsHash.h"
#include "file/FilePlace.h"
#include "file/PrivateFolder.h"
#include "file/SourceFile.h"
#include "file/WholeFile.h"
#include "report/ReportWords.h"

namespace fs = std::filesystem;

namespace host {
namespace {

constexpr double SECONDS_BETWEEN_LOOKS = 0.1;  // of a person at the progress
constexpr const char* CLEAR_LINE = "\r\033[K";

/// Thrown where nothing can be recorded any more.
struct JournalFailure
{
    std::string strProblem;
};

bool IsTerminal()
{
    const char* szTerminal = std::getenv("TERM");
    return isatty(STDERR_FILENO) == 1 && szTerminal != nullptr &&
           std::strcmp(szTerminal, "dumb") != 0;
}

std::string SignalName(int nSignal)
{
    const char* szName = sigabbrev_np(nSignal);
    return szName != nullptr ? std::string("SIG") + szName : std::to_string(nSignal);
}

FileReport NotChecked(const std::string& strFile, std::string strProblem, std::string strAdvice)
{
    FileReport report;
    report.strFile = strFile;
    report.strProblem = std::move(strProblem);
    report.strAdvice = std::move(strAdvice);
    return report;
}

std::string HowItEnded(int nWaitStatus)
{
    if (WIFSIGNALED(nWaitStatus))
        return Say({"it was ended by {1}", "{1}により終了"}, {SignalName(WTERMSIG(nWaitStatus))});
    return Say({"it ended with status {1}", "終了ステータス{1}で終了"},
               {std::to_string(WEXITSTATUS(nWaitStatus))});
}

std::string OfTwo(std::size_t nDone, std::size_t nAll)
{
    return Say({"{1} of {2} files", "{2}件中{1}件"}, {std::to_string(nDone), std::to_string(nAll)});
}

}  // namespace

BatchRun::BatchRun(const BatchSettings& settings, FileList list)
    : m_settings(settings), m_list(std::move(list))
{
}

ExitStatus BatchRun::Run()
{
    m_dStart = SteadyNow();
    if (!PrepareOutput())
        return ExitStatus::NotWritten;
    RequireOwnReport();
    FindWork();
    TellNotes();
    const auto stays = [this](const EarlierResult& earlier) {
        return m_setKept.contains(earlier.entry.strKey);
    };
    if (m_strJournalProblem = m_journal->Begin(stays); m_strJournalProblem.empty())
        WorkOn();
    return Finish();
}

bool BatchRun::PrepareOutput()
{
    const int nError = FindFolder(AbsolutePath(m_settings.strOutput), Missing::Made, m_output);
    FilePlace report;
    const int nBelow =
        nError == 0 ? FindPlaceBelow(m_output.Get(), REPORT_NAME, Missing::Fails, report) : nError;
    if (nBelow != 0) {
        Complain(Say({"the output folder {1} can't be used: {2}",
                      "出力フォルダー {1} を使用できません：{2}"},
                     {MakeSafe(m_settings.strOutput), std::strerror(nBelow)}));
        return false;
    }
    LockOutput();
    m_journal.emplace(std::move(report), ReportMode());
    return true;
}

void BatchRun::LockOutput()
{
    const int nError = m_lock.Lock(m_output.Get());
    if (nError == EWOULDBLOCK)
        throw UsageError(Say({"another batch is at work in {1}. Wait for its end, or name another "
                              "output folder.",
                              "{1} では別のバッチが実行中です。終了を待つか、別の出力フォルダーを"
                              "指定してください。"},
                             {MakeSafe(m_settings.strOutput)}));
    if (nError == EPERM)
        throw UsageError(
            Say({"{1} is another user's: a batch of that user may be at work. If there "
                 "is none, remove the file, or name another output folder.",
                 "{1} はほかのユーザーのファイルです。そのユーザーのバッチが実行中かも"
                 "しれません。実行中でなければ削除するか、別の出力フォルダーを指定"
                 "してください。"},
                {MakeSafe(OutputPath(BatchLock::FILE_NAME))}));
    if (nError != 0)
        throw UsageError(Say({"{1} could not be made: {2}", "{1} を作成できません：{2}"},
                             {MakeSafe(OutputPath(BatchLock::FILE_NAME)), std::strerror(nError)}));
}

/// Nobody's files are replaced because of a slip in the name of a folder, and nothing is believed
/// that others may have left there.
void BatchRun::RequireOwnReport()
{
    const char* szForeign = REPORT_NAME;
    std::string strProblem = m_journal->Load();
    if (strProblem.empty()) {
        szForeign = PAGE_NAME;
        strProblem = BatchPage::ProblemOf(m_output.Get(), PAGE_NAME);
    }
    if (!strProblem.empty())
        throw UsageError(Say({"{1} is there already, and {2}. Move it away, or name another output "
                              "folder.",
                              "{1} は既にありますが、{2}。移動するか、別の出力フォルダーを指定して"
                              "ください。"},
                             {MakeSafe(OutputPath(szForeign)), strProblem}));
}

void BatchRun::FindWork()
{
    m_setDocument = NameDocuments(m_list.vecFile);
    m_strOptions = HashOfOptions(m_settings);
    m_vecBefore.resize(m_list.vecFile.size());
    for (std::size_t n = 0; n < m_list.vecFile.size(); ++n) {
        const BatchFile& file = m_list.vecFile[n];
        const auto it = m_journal->Earlier().find(file.strKey);
        if (it != m_journal->Earlier().end())
            ++m_nKnown;
        m_vecBefore[n] = Look(file);
        if (!m_settings.bFresh && it != m_journal->Earlier().end() &&
            IsDone(file, m_vecBefore[n], it->second)) {
            m_setKept.insert(file.strKey);
            m_totals.Add(it->second.eOutcome, it->second.eStatus);
        } else {
            m_vecToDo.push_back(n);
        }
    }
    if (!m_settings.bCheckOnly)
        RemoveOutdatedDocuments();
    RemoveLeftovers();
}

BatchRun::Before BatchRun::Look(const BatchFile& file) const
{
    return {StateOf(file.strPath),
            m_settings.bCheckOnly
                ? m_strOptions
                : HashWithState(m_strOptions, StateOf(ProfileBeside(file.strPath)))};
}

/// A file that could not be checked or written is tried again: the reason may be gone.
bool BatchRun::IsDone(const BatchFile& file,
                      const Before& before,
                      const EarlierResult& earlier) const
{
    if (earlier.eStatus >= ExitStatus::NotChecked || file.bStrangersLink || !before.state ||
        before.state != earlier.entry.state || before.strOptions != earlier.entry.strOptions)
        return false;
    if (m_settings.bCheckOnly)
        return true;
    if (earlier.entry.strDocument != file.strDocument)
        return false;
    return earlier.eOutcome != Outcome::Converted ||
           SizeBelow(m_output.Get(), file.strDocument) == earlier.nDocumentBytes;
}

/// A document of what its file was before must not look as if it were of what the file is now.
void BatchRun::RemoveOutdatedDocuments()
{
    for (const std::size_t n : m_vecToDo) {
        const auto it = m_journal->Earlier().find(m_list.vecFile[n].strKey);
        if (it == m_journal->Earlier().end() || it->second.eOutcome != Outcome::Converted)
            continue;
        const std::string& strDocument = it->second.entry.strDocument;
        const bool bOthers =
            strDocument != m_list.vecFile[n].strDocument && m_setDocument.contains(strDocument);
        if (!strDocument.empty() && !bOthers &&
            RemoveDocument(m_output.Get(), strDocument, it->second.nDocumentBytes) ==
                Removal::NotOurs)
            ++m_nStrange;
    }
}

void BatchRun::RemoveLeftovers()
{
    // The report and the page are written in the output folder itself.
    std::unordered_set<std::string> setFolder = {fs::path()};
    for (const std::string& strDocument : m_setDocument)
        setFolder.insert(fs::path(strDocument).parent_path().string());
    for (const std::string& strFolder : setFolder) {
        FilePlace place;
        const std::string strInside = (fs::path(strFolder) / REPORT_NAME).string();
        if (FindPlaceBelow(m_output.Get(), strInside, Missing::Fails, place) == 0)
            m_nLeftOver += RemoveDeadFolders(place.folder.Get());
    }
}

void BatchRun::TellNotes() const
{
    const auto tell = [](std::size_t nCount, const Text& text) {
        if (nCount > 0)
            Complain(Say(text, {std::to_string(nCount)}));
    };
    if (m_list.vecFile.empty())
        Complain(Say({"no CSV file was found.", "CSVファイルがありません。"}));
    tell(m_list.nTexts, {".txt files left aside: {1}; --txt takes them, too.",
                         "対象外とした .txt ファイル：{1}件（--txt で対象になります）。"});
    tell(m_list.nLinks,
         {"links to folders not followed: {1}.", "たどらなかったフォルダーへのリンク：{1}件。"});
    tell(m_list.nRepeated, {"files named more than once in the list: {1}; each is done once.",
                            "リスト内で重複したファイル：{1}件（1回だけ処理します）。"});
    tell(m_journal->Earlier().size() - m_nKnown,
         {"results of earlier runs that leave the report as their files aren't part of this one: "
          "{1}. Their documents stay.",
          "今回の対象でないため、レポートから除く以前の結果：{1}件（文書は残します）。"});
    tell(m_journal->BadLines(),
         {"lines of report.json that can't be read: {1}. They go, and their files are done again.",
          "report.json の読み取れない行：{1}件。除いて、そのファイルを処理し直します。"});
    tell(m_journal->ForeignLines(),
         {"lines of report.json that name a document outside of the output folder: {1}. No batch "
          "wrote them. They go; what they name is left alone.",
          "出力フォルダーの外の文書を指す report.json の行：{1}件。バッチが書いたものではないため"
          "除きます。指されたファイルには触れません。"});
    tell(
        m_nStrange,
        {"documents of earlier runs that are another's by now, or no documents: {1}. They are left "
         "alone.",
         "以前の実行の文書のうち、ほかのユーザーのものか文書でないもの：{1}件（触れません）。"});
    tell(m_nLeftOver, {"unfinished files of runs that were ended, now removed: {1}.",
                       "途中で終了した実行の書きかけのファイル（削除しました）：{1}件。"});
}

void BatchRun::WorkOn()
{
    // The library's files that grow beyond a limit are to fail and not to end the process.
    std::signal(SIGXFSZ, SIG_IGN);
    m_progress.emplace(m_vecToDo.size(), SteadyNow());
    m_bShowProgress = !m_settings.bQuiet && IsTerminal();
    const Interrupt interrupt;
    const WorkerPool::Client client = {
        [this] { return MakeWorkInChild(); },
        [this] { return NextJob(); },
        [this](const JobResult& result) { Settle(result); },
        [this] { ShowProgress(); },
    };
    try {
        WorkerPool pool({m_settings.nWorkers, m_settings.dTimeout, m_settings.nMemory * MEBIBYTE},
                        client, interrupt);
        pool.Run();
    } catch (const JournalFailure& failure) {
        m_strJournalProblem = failure.strProblem;
    } catch (const std::system_error& error) {
        HideProgress();
        Complain(error.what());
    }
    HideProgress();
    if (m_bWorkerDied || m_totals.Files() < m_list.vecFile.size())
        RemoveLeftovers();
}

std::unique_ptr<Work> BatchRun::MakeWorkInChild() const
{
    m_lock.CloseInChild();
    return MakeFileWork(m_settings, m_list.vecFile, m_output.Get());
}

std::optional<std::size_t> BatchRun::NextJob()
{
    while (m_nNext < m_vecToDo.size()) {
        const std::size_t nFile = m_vecToDo[m_nNext++];
        const BatchFile& file = m_list.vecFile[nFile];
        m_vecBefore[nFile] = Look(file);
        if (file.bStrangersLink) {
            RecordStrangersLink(nFile);
            continue;
        }
        if (file.strProblem.empty())
            return nFile;
        Record(nFile,
               MakeAnswer(NotChecked(file.strPath,
                                     Say({"The folder can't be read: {1}.",
                                          "フォルダーを読み取れません（{1}）。"},
                                         {file.strProblem}),
                                     Say({"Make sure that it may be read, or leave it out.",
                                          "読み取り権限を確認するか、対象から外してください。"})),
                          m_settings.style),
               0);
    }
    return std::nullopt;
}

void BatchRun::RecordStrangersLink(std::size_t nFile)
{
    Record(nFile,
           MakeAnswer(
               NotChecked(
                   m_list.vecFile[nFile].strPath,
                   Say({"The file was not checked: it is another user's link in a folder that "
                        "others may write in.",
                        "ファイルをチェックしませんでした。ほかのユーザーも書き込めるフォルダー"
                        "にある、ほかのユーザーのリンクです。"}),
                   Say({"Put the file itself there.", "リンクではなくファイルを置いてください。"})),
               m_settings.style),
           0);
}

void BatchRun::Settle(const JobResult& result)
{
    if (result.eEnd != JobEnd::Answered)
        m_bWorkerDied = true;
    if (result.eEnd != JobEnd::Cancelled)
        Record(result.nJob, AnswerFor(result), result.dSeconds);
}

FileAnswer BatchRun::AnswerFor(const JobResult& result) const
{
    const std::string& strFile = m_list.vecFile[result.nJob].strPath;
    if (result.bOutOfMemory)
        return AnswerWithout(strFile, result);
    return result.eEnd == JobEnd::Answered ? Unpack(result.strAnswer)
                                           : AnswerWithout(strFile, result);
}

/// For a file whose worker has not told all.
FileAnswer BatchRun::AnswerWithout(const std::string& strFile, const JobResult& result) const
{
    if (result.bOutOfMemory)
        return MakeAnswer(
            NotChecked(strFile,
                       Say({"The file was not checked to its end: it needs more memory than the "
                            "limit of {1} MiB.",
                            "ファイルを最後までチェックできませんでした（メモリの上限 {1} MiB を"
                            "超えました）。"},
                           {std::to_string(m_settings.nMemory)}),
                       Say({"Give it more by --memory.", "--memory で増やしてください。"})),
            m_settings.style);
    if (result.eEnd == JobEnd::TimedOut)
        return MakeAnswer(
            NotChecked(
                strFile,
                Say({"The file was not checked to its end: it took more than {1}.",
                     "ファイルを最後までチェックできませんでした（{1}を超えました）。"},
                    {DurationText(m_settings.dTimeout)}),
                Say({"Give it more time by --timeout.", "--timeout で時間を延ばしてください。"})),
            m_settings.style);
    return MakeAnswer(
        NotChecked(strFile,
                   Say({"The file was not checked to its end: the process that was at work on it "
                        "died ({1}).",
                        "ファイルを最後までチェックできませんでした。処理中のプロセスが停止しました"
                        "（{1}）。"},
                       {HowItEnded(result.nWaitStatus)}),
                   Say({"Check it alone. If that ends in the same way, the file has hit a bug: "
                        "please report it.",
                        "このファイルだけをチェックしてください。同じように停止する場合は不具合です"
                        "ので、ご報告ください。"})),
        m_settings.style);
}

void BatchRun::Record(std::size_t nFile, const FileAnswer& answer, double dSeconds)
{
    const BatchFile& file = m_list.vecFile[nFile];
    const Before& before = m_vecBefore[nFile];
    const std::string strProblem = m_journal->Append(JournalLine(
        answer.strReport, {file.strKey, before.state, before.strOptions,
                           m_settings.bCheckOnly ? std::string() : file.strDocument, dSeconds}));
    if (!strProblem.empty())
        throw JournalFailure{strProblem};
    m_totals.Add(answer.eOutcome, answer.eStatus);
    if (answer.eStatus >= ExitStatus::Usage)
        m_totals.AddProblem(file.strPath, answer.strProblem);
    m_progress->Advance(SteadyNow());
    ShowProgress();
}

void BatchRun::ShowProgress()
{
    const double dNow = SteadyNow();
    if (!m_bShowProgress || dNow - m_dShown < SECONDS_BETWEEN_LOOKS)
        return;
    m_dShown = dNow;
    std::cerr << CLEAR_LINE << m_progress->Line(dNow) << std::flush;
}

void BatchRun::HideProgress()
{
    if (m_bShowProgress)
        std::cerr << CLEAR_LINE << std::flush;
    m_bShowProgress = false;
}

/// Why the report that stands there isn't all that it should be, or the empty text.
std::string BatchRun::JournalProblem() const
{
    if (!m_strJournalProblem.empty() || m_journal->IsInPlace())
        return m_strJournalProblem;
    return Say({"somebody else has put another file in its place",
                "ほかのユーザーが別のファイルに置き換えました"});
}

ExitStatus BatchRun::Finish()
{
    ExitStatus eStatus = m_totals.Worst();
    m_strJournalProblem = JournalProblem();
    if (!m_strJournalProblem.empty()) {
        Complain(Say({"the report {1} could not be written: {2}. What isn't in it will be done "
                      "again.",
                      "レポート {1} に書き込めませんでした：{2}。記録のないファイルは次回もう一度"
                      "処理します。"},
                     {MakeSafe(OutputPath(REPORT_NAME)), m_strJournalProblem}));
        eStatus = Worse(eStatus, ExitStatus::NotWritten);
    }
    if (const std::string strProblem = WritePage(); !strProblem.empty()) {
        Complain(Say(
            {"the page {1} could not be written: {2}.", "ページ {1} に書き込めませんでした：{2}。"},
            {MakeSafe(OutputPath(PAGE_NAME)), strProblem}));
        eStatus = Worse(eStatus, ExitStatus::NotWritten);
    }
    if (m_totals.Files() < m_list.vecFile.size())
        eStatus = Worse(eStatus, ExitStatus::NotChecked);
    WriteSummary();
    TellEnd();
    return eStatus;
}

std::string BatchRun::WritePage() const
{
    BatchPage page(m_list.vecFile.size());
    std::string strProblem =
        m_journal->Read([&](const std::string& strLine) { page.Add(strLine); });
    if (!strProblem.empty())
        return strProblem;
    FilePlace place;
    if (const int nError = FindPlaceBelow(m_output.Get(), PAGE_NAME, Missing::Fails, place);
        nError != 0)
        return std::strerror(nError);
    return WriteWhole(place, page.Html(), ReportMode());
}

/// Both hold taxpayers' values.
mode_t BatchRun::ReportMode() const
{
    return m_settings.bShareReport ? ModeOfNewFile() : OWNERS_FILE;
}

void BatchRun::WriteSummary() const
{
    std::cout << m_totals.Line() << '\n';
    if (!m_setKept.empty())
        std::cout << Say({"Done by an earlier run and not changed since: {1}",
                          "以前の実行で処理済み（変更なし）：{1}件"},
                         {std::to_string(m_setKept.size())})
                  << '\n';
    m_totals.WriteProblems(std::cout);
    std::cout << Say({"Report: {1}", "レポート：{1}"}, {MakeSafe(OutputPath(REPORT_NAME))}) << '\n'
              << Say({"Page: {1}", "ページ：{1}"}, {MakeSafe(OutputPath(PAGE_NAME))}) << '\n';
    std::cout.flush();
}

/// The last line, whether anybody watches or not.
void BatchRun::TellEnd() const
{
    const std::string strTime = DurationText(SteadyNow() - m_dStart);
    const std::size_t nAll = m_list.vecFile.size();
    if (m_totals.Files() < nAll) {
        Complain(Say({"broken off after {1}: {2} done. The same command goes on from there.",
                      "{1}で中断しました：{2}を処理済み。同じコマンドで続きから再開します。"},
                     {strTime, OfTwo(m_totals.Files(), nAll)}));
        return;
    }
    const std::size_t nNow = m_progress ? m_progress->Done() : 0;
    const double dSeconds = std::max(SteadyNow() - m_dStart, 0.001);
    Complain(Say(
        {"{1} in {2}, {3} files/s, processes: {4}", "{1}を{2}で処理（毎秒{3}件、プロセス数{4}）"},
        {Count(nNow, FILES), strTime, RateText(static_cast<double>(nNow) / dSeconds),
         std::to_string(m_settings.nWorkers)}));
}

std::string BatchRun::OutputPath(const std::string& strName) const
{
    return (fs::path(m_settings.strOutput) / strName).string();
}

}  // namespace host

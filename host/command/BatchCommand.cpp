#include "command/BatchCommand.h"

#include <CLI/CLI.hpp>

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <sstream>
#include <thread>

#include "base/Language.h"
#include "base/SafeText.h"
#include "base/UsageError.h"
#include "batch/BatchRun.h"
#include "batch/MemoryLimit.h"
#include "command/FamilyOption.h"
#include "file/Descriptor.h"
#include "file/LineReader.h"
#include "text/ShiftJis.h"

namespace fs = std::filesystem;

namespace host {
namespace {

constexpr const char* STANDARD_INPUT = "-";
constexpr std::size_t WORKERS_MAX = 256;
constexpr std::size_t LIMIT_DEFAULT = 100;
constexpr std::size_t LIMIT_MAX = 1'000'000'000;
constexpr std::size_t LIST_LONGEST = std::size_t{1024} * 1024 * 1024;  // bytes
constexpr std::uint64_t MEMORY_DEFAULT = 512;
constexpr std::uint64_t MEMORY_MAX = 1'000'000'000;
constexpr double TIMEOUT_DEFAULT = 600;
constexpr double TIMEOUT_MAX = 1'000'000;

constexpr Text SUMMARY = {"Checks and converts every CSV file below a folder",
                          "フォルダー以下のすべてのCSVファイルをチェックして変換します"};
constexpr Text FOLDER_HELP = {"Folder with the CSV files", "CSVファイルのあるフォルダー"};
constexpr Text OUTPUT_HELP = {
    "Folder for the documents, report.json and index.html; made if it isn't there",
    "文書、report.json、index.html を置くフォルダー（なければ作ります）"};
constexpr Text LIST_HELP = {
    "Take the files that FILE names, one a line, in place of a folder; - for standard input",
    "フォルダーの代わりに、FILE に1行に1つ書かれたファイルを処理します（- は標準入力）"};
constexpr Text NUL_HELP = {"With --files-from: each name ends with a NUL byte",
                           "--files-from の名前の区切りをNULバイトとします"};
constexpr Text TXT_HELP = {"Take files ending in .txt, too", ".txt のファイルも対象にします"};
constexpr Text CHECK_HELP = {"Check alone: no documents, no fields of the filer needed",
                             "チェックだけを行います（文書は作らず、納税者の項目も不要です）"};
constexpr Text FRESH_HELP = {"Do every file anew, whatever an earlier run recorded",
                             "以前の結果を使わず、すべてのファイルを処理し直します"};
constexpr Text JOBS_HELP = {
    "Worker processes; default: one for each processor, as far as the free memory has room for "
    "them",
    "ワーカープロセスの数（省略時は、空きメモリの許す範囲でプロセッサーの数）"};
constexpr Text MEMORY_HELP = {"Give a file up that needs more memory; default: 512, 0 for no limit",
                              "1ワーカーのメモリの上限。MiB単位、省略時は512、0は無制限"};
constexpr Text SHARE_HELP = {
    "Let others read report.json and index.html as the umask says; default: their owner alone",
    "report.json と index.html をumaskに従ってほかのユーザーにも読めるようにします"
    "（省略時は所有者だけ）"};
constexpr Text TIMEOUT_HELP = {"Give a file up after so long; default: 600, 0 for never",
                               "1ファイルの制限時間。秒単位、省略時は600、0は無制限"};
constexpr Text LIMIT_HELP = {
    "List at most N errors of a file; default: 100; counts stay true",
    "1ファイルのエラーを最大N件まで記録します（省略時は100。件数は正確です）"};
constexpr Text QUIET_HELP = {"Show no progress", "進み具合を表示しません"};

constexpr Text FOOTER = {
    R"(DIR/a/b.csv becomes OUT/a/b.mok. Where two files would become one document, as b.csv and
b.txt would, each keeps its ending: b.csv.mok and b.txt.mok. A file NAME.toml beside NAME.csv is the
profile of that file: its keys win over those of --profile, and an option wins over both.

OUT/report.json has one line of JSON for each file; reports of several runs are joined by `cat`.
OUT/index.html shows the same as a page. The command can be interrupted at any time: given again it
goes on from there, and does only files that are new or changed, or that could not be checked or
written. The exit status is the highest of all files.

Examples:
  kzekamok batch inbox -o outbox --profile filer.toml
  kzekamok batch inbox -o outbox --check-only -j 4
  find inbox -name '*.csv' -mtime -1 -print0 | kzekamok batch --files-from - -0 -o outbox \
      --profile filer.toml)",
    R"(DIR/a/b.csv は OUT/a/b.mok になります。b.csv と b.txt のように同じ名前の文書になるファイルは、
b.csv.mok と b.txt.mok のように元の拡張子を残します。NAME.csv と同じ場所の NAME.toml は、そのファイル
だけのプロファイルです（--profile より優先。オプションはどちらよりも優先）。

OUT/report.json には1ファイルにつき1行のJSONが入ります。複数回分は cat でつなげられます。
OUT/index.html は同じ内容のページです。いつでも中断でき、同じコマンドで続きから再開します。その際は、
新しいファイル、変更されたファイル、チェックや書き込みができなかったファイルだけを処理します。
終了ステータスは全ファイルのうち最大のものです。

例：
  kzekamok batch inbox -o outbox --profile filer.toml
  kzekamok batch inbox -o outbox --check-only -j 4
  find inbox -name '*.csv' -mtime -1 -print0 | kzekamok batch --files-from - -0 -o outbox \
      --profile filer.toml)"};

constexpr Text FOLDER_OR_LIST = {"give either a folder or --files-from",
                                 "フォルダーか --files-from のどちらか一方を指定してください"};
constexpr Text NUL_WITHOUT_LIST = {"-0 is for --files-from", "-0 は --files-from と使います"};
constexpr Text NO_FOLDER = {"{1}: this is no folder", "{1}：フォルダーではありません"};
constexpr Text NO_LIST = {"--files-from {1}: {2}", "--files-from {1}：{2}"};
constexpr Text NO_LIST_FILE = {
    "it is no file with names. A named pipe isn't read; give its text by - on standard input",
    "名前を書いたファイルではありません。名前付きパイプは読みません（- "
    "で標準入力から渡してください）"};
constexpr Text NO_TIME = {"--timeout: nan is no number of seconds",
                          "--timeout：nan は秒数ではありません"};
constexpr Text OUTPUT_NOT_UTF8 = {"--output {1}: the path has to be UTF-8",
                                  "--output {1}：パスはUTF-8にしてください"};

std::size_t Processors()
{
    return std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, WORKERS_MAX);
}

/// A file, a terminal, or a pipe that some process has made for this one, such as the shell's <(…).
/// Whoever opens a named pipe may wait for its other end for ever.
bool HoldsList(int nFile)
{
    struct stat info = {};
    struct statfs system = {};
    if (fstat(nFile, &info) != 0 || fstatfs(nFile, &system) != 0)
        return false;
    return S_ISREG(info.st_mode) || S_ISCHR(info.st_mode) ||
           (S_ISFIFO(info.st_mode) && system.f_type == PIPEFS_MAGIC);
}

}  // namespace

CLI::App* BatchCommand::AddTo(CLI::App& app)
{
    CLI::App* pCommand = app.add_subcommand("batch", Say(SUMMARY));
    AddFileOptions(*pCommand);
    AddRunOptions(*pCommand);
    m_filer.AddTo(*pCommand);
    pCommand->footer(Say(FOOTER));
    return pCommand;
}

void BatchCommand::AddFileOptions(CLI::App& command)
{
    command.add_option("DIR", m_strFolder, Say(FOLDER_HELP))->type_name("");
    command.add_option("-o,--output", m_settings.strOutput, Say(OUTPUT_HELP))
        ->type_name("OUT")
        ->required();
    command.add_option("--files-from", m_strList, Say(LIST_HELP))->type_name("FILE");
    command.add_flag("-0,--null", m_bNul, Say(NUL_HELP));
    command.add_flag("--txt", m_bTexts, Say(TXT_HELP));
}

void BatchCommand::AddRunOptions(CLI::App& command)
{
    m_settings.dTimeout = TIMEOUT_DEFAULT;
    m_settings.nMemory = MEMORY_DEFAULT;
    m_settings.style.limit = LIMIT_DEFAULT;
    command.add_option("-j,--jobs", m_workers, Say(JOBS_HELP))
        ->type_name("N")
        ->check(CLI::Range(std::size_t{1}, WORKERS_MAX).description(""));
    command.add_flag("--check-only", m_settings.bCheckOnly, Say(CHECK_HELP));
    command.add_flag("--fresh", m_settings.bFresh, Say(FRESH_HELP));
    command.add_option("--timeout", m_settings.dTimeout, Say(TIMEOUT_HELP))
        ->type_name("SECONDS")
        ->check(CLI::Range(0.0, TIMEOUT_MAX).description(""));
    command.add_option("--memory", m_settings.nMemory, Say(MEMORY_HELP))
        ->type_name("MIB")
        ->check(CLI::Range(std::uint64_t{0}, MEMORY_MAX).description(""));
    command.add_option("--limit", m_settings.style.limit, Say(LIMIT_HELP))
        ->type_name("N")
        ->check(CLI::Range(std::size_t{0}, LIMIT_MAX).description(""));
    command.add_flag("--share-report", m_settings.bShareReport, Say(SHARE_HELP));
    command.add_flag("-q,--quiet", m_settings.bQuiet, Say(QUIET_HELP));
    AddFamilyOption(command, m_settings.family);
}

void BatchCommand::Finish()
{
    if (m_strFolder.empty() == m_strList.empty())
        throw UsageError(Say(FOLDER_OR_LIST));
    if (m_bNul && m_strList.empty())
        throw UsageError(Say(NUL_WITHOUT_LIST));
    if (std::isnan(m_settings.dTimeout))  // which is in every range
        throw UsageError(Say(NO_TIME));
    std::error_code error;
    if (!m_strFolder.empty() && !fs::is_directory(m_strFolder, error))
        throw UsageError(Say(NO_FOLDER, {MakeSafe(m_strFolder)}));
    if (!Utf8::Decode(m_settings.strOutput))
        throw UsageError(Say(OUTPUT_NOT_UTF8, {MakeSafe(m_settings.strOutput)}));
    m_settings.nWorkers =
        m_workers.value_or(WorkersFor(Processors(), FreeMemory(), m_settings.nMemory * MEBIBYTE));
    m_settings.fields = m_filer.Read();
}

ExitStatus BatchCommand::Run()
{
    return BatchRun(m_settings, List()).Run();
}

FileList BatchCommand::List() const
{
    if (m_strList.empty())
        return FilesBelow(m_strFolder, m_settings.strOutput,
                          m_bTexts ? TextFiles::Taken : TextFiles::LeftAside);
    if (m_strList == STANDARD_INPUT)
        return ReadList(STDIN_FILENO);
    const Descriptor file(open(m_strList.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.IsOpen())
        throw UsageError(Say(NO_LIST, {MakeSafe(m_strList), std::strerror(errno)}));
    if (!HoldsList(file.Get()))
        throw UsageError(Say(NO_LIST, {MakeSafe(m_strList), Say(NO_LIST_FILE)}));
    fcntl(file.Get(), F_SETFL, O_RDONLY);  // back from O_NONBLOCK
    return ReadList(file.Get());
}

/// Throws UsageError for a list that ends in a fault, of which nobody knows what was to follow.
FileList BatchCommand::ReadList(int nFile) const
{
    std::string strNames;
    if (const int nError = ReadToEnd(nFile, LIST_LONGEST, strNames); nError != 0)
        throw UsageError(Say(NO_LIST, {MakeSafe(m_strList), std::strerror(nError)}));
    std::istringstream in(std::move(strNames));
    return FilesOfList(in, m_bNul ? ListForm::Nul : ListForm::Lines);
}

}  // namespace host

#include "report/ReportOptions.h"

#include <CLI/CLI.hpp>

#include "base/Language.h"

namespace host {
namespace {

constexpr Text FORMAT_HELP = {
    "How the results are written: text (default), json, sarif (2.1.0) or html (one page)",
    "結果の形式：text（省略時）、json、sarif（2.1.0）、html（1ページ）"};
constexpr Text LIMIT_HELP = {"Show at most N errors of a file; counts stay true",
                             "ファイルごとに表示するエラーの最大件数。集計は全件のままです"};

constexpr Text OUTPUT_HELP = {
    "Write the report to this file, whole or not at all, instead of standard output",
    "結果を標準出力ではなくこのファイルに書き込みます。途中までの結果は残しません"};

constexpr int LIMIT_MAX = 1'000'000'000;

}  // namespace

void AddReportOptions(CLI::App& command, ReportOptions& options)
{
    AddFormatOption(command, options.eFormat,
                    {Format::Html, Format::Json, Format::Sarif, Format::Text}, FORMAT_HELP);
    command.add_option("--limit", options.limit, Say(LIMIT_HELP))
        ->type_name("N")
        ->check(CLI::Range(0, LIMIT_MAX).description(""));
}

void AddReportOutput(CLI::App& command, ReportOptions& options)
{
    command.add_option("-o,--output", options.strOutput, Say(OUTPUT_HELP))->type_name("REPORT");
}

}  // namespace host

#include "ReportOptions.h"

#include <CLI/CLI.hpp>

#include <map>
#include <string>

namespace host {
namespace {

constexpr int LIMIT_MAX = 1'000'000'000;

}  // namespace

void AddReportOptions(CLI::App& command, ReportOptions& options)
{
    static const std::map<std::string, Format> FORMATS = {{"text", Format::Text},
                                                          {"json", Format::Json},
                                                          {"sarif", Format::Sarif},
                                                          {"html", Format::Html}};
    command
        .add_option_function<std::string>(
            "--format",
            [&options](const std::string& strName) { options.eFormat = FORMATS.at(strName); },
            "How the results are written: text (default), json, sarif (2.1.0) or html (one page)")
        ->type_name("FORMAT")
        ->check(CLI::IsMember(&FORMATS).description(""));
    command
        .add_option("--limit", options.limit, "Show at most N errors of a file; counts stay true")
        ->type_name("N")
        ->check(CLI::Range(0, LIMIT_MAX).description(""));
}

}  // namespace host

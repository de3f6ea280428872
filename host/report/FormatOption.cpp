#include "report/FormatOption.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <string>

namespace host {

const char* FormatName(Format eFormat)
{
    switch (eFormat) {
        case Format::Text:
            break;
        case Format::Json:
            return "json";
        case Format::Sarif:
            return "sarif";
        case Format::Html:
            return "html";
        case Format::Markdown:
            return "markdown";
        case Format::Csv:
            return "csv";
    }
    return "text";
}

void AddFormatOption(CLI::App& command,
                     Format& eFormat,
                     const std::vector<Format>& vecFormat,
                     const Text& help)
{
    std::vector<std::string> vecName;
    vecName.reserve(vecFormat.size());
    for (const Format eOffered : vecFormat)
        vecName.emplace_back(FormatName(eOffered));
    command
        .add_option_function<std::string>(
            "--format",
            [&eFormat, vecFormat](const std::string& strName) {
                eFormat = *std::ranges::find_if(vecFormat, [&strName](Format eOffered) {
                    return strName == FormatName(eOffered);
                });
            },
            Say(help))
        ->type_name("FORMAT")
        ->check(CLI::IsMember(vecName).description(""));
}

}  // namespace host

// The option --format of every command that has one.
#pragma once

#include <vector>

#include "base/Language.h"

namespace CLI {
class App;
}

namespace host {

/// All formats of the program. No command offers all of them.
enum class Format
{
    Text,
    Json,
    Sarif,
    Html,
    Markdown,
    Csv,
};

/// As it is given on the command line.
const char* FormatName(Format eFormat);

/// \param eFormat  Set when the command line is parsed; has to live until then.
/// \param vecFormat  That the command offers, in the order in which they are told.
void AddFormatOption(CLI::App& command,
                     Format& eFormat,
                     const std::vector<Format>& vecFormat,
                     const Text& help);

}  // namespace host

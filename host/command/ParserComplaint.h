// The parser's complaints in the program's own words.
#pragma once

#include <string>

namespace CLI {
class App;
class ParseError;
}  // namespace CLI

namespace host {

/// What is wrong with the command line, in the current language and safe for a terminal.
/// \param app  The program, for the names of its subcommands.
std::string ComplaintOf(const CLI::App& app, const CLI::ParseError& error);

}  // namespace host

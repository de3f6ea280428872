// How the help is laid out.
#pragma once

#include <memory>
#include <string>

namespace CLI {
class App;
class FormatterBase;
}  // namespace CLI

namespace host {

/// The parser's layout in the current language, with descriptions that are wrapped, and lined up
/// by the columns that their characters take on a terminal.
std::shared_ptr<CLI::FormatterBase> MakeHelpFormatter();

/// Title of the options without a group of their own, and of the subcommands.
const char* OptionsTitle();
const char* SubcommandsTitle();

/// The text in lines of at most nWidth columns, each behind the first one with an indent. Breaks at
/// blanks, and between Japanese characters but for before a closing mark.
std::string Wrapped(const std::string& strText, std::size_t nWidth, std::size_t nIndent);

}  // namespace host

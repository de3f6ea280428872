// Texts of unknown origin for an HTML page.
#pragma once

#include <string>
#include <string_view>

namespace host {

/// The text for an element or a quoted attribute: nothing in it is markup, and what is invisible or
/// would reorder its surroundings is shown as by MakeSafe.
std::string HtmlText(std::string_view strText);

/// The same of a text of this program's own, which may have line ends.
std::string HtmlOwnText(std::string_view strText);

}  // namespace host

// The styles and the scripts of the pages: the files of host/html/, embedded by CMake.
#pragma once

#include <string_view>

namespace host {

extern const std::string_view REPORT_STYLE;
extern const std::string_view REPORT_SCRIPT;
/// SHA-256 in Base64, by which the page names what it may use.
extern const std::string_view REPORT_STYLE_DIGEST;
extern const std::string_view REPORT_SCRIPT_DIGEST;

/// For light and dark, for wide and narrow.
extern const std::string_view BATCH_STYLE;
/// Filters and sorts the table of files. Without it the page is whole, too.
extern const std::string_view BATCH_SCRIPT;
extern const std::string_view BATCH_STYLE_DIGEST;
extern const std::string_view BATCH_SCRIPT_DIGEST;

}  // namespace host

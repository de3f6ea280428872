// The style and the script of the report page: the files of host/html/, embedded by CMake.
#pragma once

#include <string_view>

namespace host {

extern const std::string_view REPORT_STYLE;
extern const std::string_view REPORT_SCRIPT;
/// SHA-256 in Base64, by which the page names what it may use.
extern const std::string_view REPORT_STYLE_DIGEST;
extern const std::string_view REPORT_SCRIPT_DIGEST;

}  // namespace host

// SHA-256, by which a page names the style and the script that it may use.
#pragma once

#include <string>
#include <string_view>

namespace host {

/// The digest in Base64, as content security policies want it.
std::string Sha256Base64(std::string_view strBytes);

}  // namespace host

// Lists in one line.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace host {

/// The texts of a range with the separator between them.
/// \param text  Makes the text of an element.
template <class Range, class TextOf = std::identity>
std::string JoinedText(const Range& range, std::string_view strSeparator = ", ", TextOf text = {})
{
    std::string strJoined;
    bool bFirst = true;
    for (const auto& element : range) {
        if (!bFirst)
            strJoined += strSeparator;
        bFirst = false;
        strJoined += std::invoke(text, element);
    }
    return strJoined;
}

}  // namespace host

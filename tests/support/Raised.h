// Faults that a call raises.
#pragma once

#include <optional>

/// The integer that the call throws, or nothing if it returns.
template <class Call>
std::optional<int> Raised(Call call)
{
    try {
        call();
    } catch (int nThrown) {
        return nThrown;
    }
    return std::nullopt;
}

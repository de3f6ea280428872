// Comparison of long texts.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

/// Whether two texts are the same bytes. A failure shows the place where they part, not the whole.
inline testing::AssertionResult SameText(const std::string& strActual,
                                         const std::string& strExpected)
{
    if (strActual == strExpected)
        return testing::AssertionSuccess();
    constexpr std::size_t BEFORE = 80;
    constexpr std::size_t SHOWN = 200;
    const auto its = std::ranges::mismatch(strActual, strExpected);
    const auto nPart = static_cast<std::size_t>(its.in1 - strActual.begin());
    const std::size_t nFrom = nPart - std::min(nPart, BEFORE);
    return testing::AssertionFailure()
           << "the texts part at byte " << nPart << "\n  actual (" << strActual.size()
           << " bytes):   ..." << strActual.substr(nFrom, SHOWN) << "\n  expected ("
           << strExpected.size() << " bytes): ..." << strExpected.substr(nFrom, SHOWN);
}

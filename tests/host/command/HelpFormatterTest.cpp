#include "command/HelpFormatter.h"

#include <gtest/gtest.h>

namespace host {
namespace {

struct WrapCase
{
    const char* szName;
    const char* szText;
    std::size_t nWidth;
    const char* szWrapped;  ///< with an indent of 2
};

class WrappedTest : public testing::TestWithParam<WrapCase>
{};

TEST_P(WrappedTest, BreaksWhereALineMayEnd)
{
    EXPECT_EQ(Wrapped(GetParam().szText, GetParam().nWidth, 2), GetParam().szWrapped);
}

constexpr WrapCase CASES[] = {
    {"Empty", "", 10, ""},
    {"ThatFits", "one two", 7, "one two"},
    {"AtABlank", "one two three", 7, "one two\n  three"},
    {"LongWordStaysWhole", "a verylongword b", 5, "a\n  verylongword\n  b"},
    {"JapaneseAnywhere", "あいうえお", 4, "あい\n  うえ\n  お"},
    {"JapaneseCharactersAreTwoWide", "あいう", 5, "あい\n  う"},
    {"NotBeforeAFullStop", "あいう。", 6, "あい\n  う。"},
    {"NotBehindAnOpeningBracket", "あい（う）", 6, "あい\n  （う）"},
    {"OptionInJapaneseStaysWhole", "は --lang で", 8, "は\n  --lang\n  で"},
};

INSTANTIATE_TEST_SUITE_P(Texts, WrappedTest, testing::ValuesIn(CASES), [](const auto& testCase) {
    return testCase.param.szName;
});

}  // namespace
}  // namespace host

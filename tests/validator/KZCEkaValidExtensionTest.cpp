#include "validator/KZCEkaValidExtension.h"

#include "support/CheckItem.h"
#include "support/ResetState.h"

namespace {

constexpr ItemText TEXT_FILE = {"extension", ".txt .TXT"};

class ValidExtensionTest : public ResetState, public testing::WithParamInterface<ItemValueCase>
{};

constexpr ItemValueCase CASES[] = {
    {"FirstOfTheList", TEXT_FILE, "a.txt", MSG_NONE},
    {"LastOfTheList", TEXT_FILE, "a.TXT", MSG_NONE},
    {"MixedCase", TEXT_FILE, "a.Txt", HE70015E},
    {"TwoDots", TEXT_FILE, "a.b.txt", MSG_NONE},
    {"OnlyTheLastDotCounts", TEXT_FILE, "a.txt.b", HE70015E},
    {"NoDot", TEXT_FILE, "atxt", HE70015E},
    {"DotAtTheEnd", TEXT_FILE, "a.", HE70015E},
    {"ExtensionAlone", TEXT_FILE, ".txt", MSG_NONE},
    {"TrailingBlank", TEXT_FILE, "a.txt ", HE70015E},
    {"LongerExtension", TEXT_FILE, "a.txtx", HE70015E},
    {"ShorterExtension", TEXT_FILE, "a.tx", HE70015E},
    {"DotOfAFolder", TEXT_FILE, "/a.txt/b", HE70015E},
    {"DotOfAFolderAndOfTheFile", TEXT_FILE, "/a.b/c.txt", MSG_NONE},
    {"Empty", TEXT_FILE, "", HE70015E},
    {"Null", TEXT_FILE, nullptr, HE70015E},
    {"JapaneseName", TEXT_FILE, "/資料/源泉.txt", MSG_NONE},
    {"ListWithoutDots", {"extension", "txt"}, "a.txt", HE70015E},
    {"RunOfBlanksIsOneSeparator", {"extension", "  .txt   .csv "}, "a.csv", MSG_NONE},
    {"BlanksOnly", {"extension", "  "}, "a.txt", HE70015E},
};

TEST_P(ValidExtensionTest, JudgesThePath)
{
    const auto pItem = MakeItem(GetParam().text);
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Paths, ValidExtensionTest, testing::ValuesIn(CASES), CaseName());

using ValidExtensionFaultTest = ResetState;

TEST_F(ValidExtensionFaultTest, WithoutAListRaises)
{
    const auto pItem = MakeItem({"extension", ""});
    EXPECT_EQ(OnValue(*pItem, "a.txt"), RAISES);
    EXPECT_EQ(OnValue(*pItem, ""), RAISES);
    EXPECT_EQ(OnValue(*pItem, nullptr), RAISES);
}

}  // namespace

#include "base/Language.h"

#include <gtest/gtest.h>

#include "support/Environment.h"

namespace host {
namespace {

constexpr Text GREETING = {"{1} meets {2}; {3}, {1}{", "{2}は{1}に会う"};

class LanguageTest : public testing::Test
{
protected:
    ~LanguageTest() override { SetLanguage(Language::English); }
};

TEST_F(LanguageTest, EnglishIsSpokenUntilAnotherIsSet)
{
    EXPECT_EQ(CurrentLanguage(), Language::English);
    EXPECT_STREQ(Say({"yes", "はい"}), "yes");
}

TEST_F(LanguageTest, JapaneseIsSpokenOnceItIsSet)
{
    SetLanguage(Language::Japanese);
    EXPECT_STREQ(Say({"yes", "はい"}), "はい");
    EXPECT_EQ(Say(GREETING, {"A", "B"}), "BはAに会う");
}

TEST_F(LanguageTest, PlacesAreFilledAndThoseWithoutArgumentStay)
{
    EXPECT_EQ(Say(GREETING, {"A", "B"}), "A meets B; {3}, A{");
}

TEST_F(LanguageTest, ArgumentsAreNotLookedInto)
{
    EXPECT_EQ(Say({"<{1}>", ""}, {"{1}{2}"}), "<{1}{2}>");
}

struct LocaleCase
{
    const char* szName;
    const char* szAll;
    const char* szMessages;
    const char* szLang;
    Language eExpected;
};

class LocaleTest : public testing::TestWithParam<LocaleCase>
{};

std::optional<std::string> Value(const char* szValue)
{
    return szValue != nullptr ? std::optional<std::string>(szValue) : std::nullopt;
}

TEST_P(LocaleTest, FirstThatIsSetDecides)
{
    const LocaleCase& given = GetParam();
    const Environment all("LC_ALL", Value(given.szAll));
    const Environment messages("LC_MESSAGES", Value(given.szMessages));
    const Environment lang("LANG", Value(given.szLang));
    EXPECT_EQ(LanguageOfLocale(), given.eExpected);
}

INSTANTIATE_TEST_SUITE_P(
    Locales,
    LocaleTest,
    testing::Values(LocaleCase{"None", nullptr, nullptr, nullptr, Language::English},
                    LocaleCase{"Lang", nullptr, nullptr, "ja_JP.UTF-8", Language::Japanese},
                    LocaleCase{"MessagesOverLang", nullptr, "C", "ja_JP", Language::English},
                    LocaleCase{"AllOverMessages", "ja", "C", "C", Language::Japanese},
                    LocaleCase{"EmptyIsNotSet", "", "", "ja_JP", Language::Japanese},
                    LocaleCase{"Another", "de_DE", nullptr, "ja_JP", Language::English}),
    [](const auto& testCase) { return testCase.param.szName; });

}  // namespace
}  // namespace host

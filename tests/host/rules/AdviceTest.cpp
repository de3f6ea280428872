#include "rules/Advice.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "base/Language.h"

namespace host {
namespace {

class AdviceTest : public testing::Test
{
protected:
    ~AdviceTest() override { SetLanguage(Language::English); }
};

TEST_F(AdviceTest, EveryMessageHasItsOwnInBothLanguages)
{
    for (const Language eLanguage : {Language::English, Language::Japanese}) {
        SetLanguage(eLanguage);
        std::set<std::string> setAdvice;
        for (int n = 0; n < EKA_MSG_COUNT; ++n)
            setAdvice.insert(AdviceFor(static_cast<KZCEkaMessage_t>(n)));
        EXPECT_EQ(setAdvice.size(), static_cast<std::size_t>(EKA_MSG_COUNT));
        EXPECT_FALSE(setAdvice.contains(""));
    }
}

TEST_F(AdviceTest, SpeaksTheLanguage)
{
    EXPECT_STREQ(AdviceFor(HE70005E), "No value may stand here. Empty it.");
    SetLanguage(Language::Japanese);
    EXPECT_STREQ(AdviceFor(HE70005E), "ここには値を入れられません。空にしてください。");
}

TEST_F(AdviceTest, EndsWithAFullStop)
{
    for (int n = 0; n < EKA_MSG_COUNT; ++n) {
        const auto eMessage = static_cast<KZCEkaMessage_t>(n);
        SetLanguage(Language::English);
        EXPECT_TRUE(std::string(AdviceFor(eMessage)).ends_with('.')) << n;
        SetLanguage(Language::Japanese);
        EXPECT_TRUE(std::string(AdviceFor(eMessage)).ends_with("。")) << n;
    }
}

}  // namespace
}  // namespace host

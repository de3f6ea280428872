#include "validator/KZCEkaValidMultikana_2.h"

#include <set>
#include <string>

#include "support/CheckItem.h"
#include "support/ResetState.h"
#include "support/ShiftJisText.h"

namespace {

class ValidMultikana_2Test : public ResetState, public testing::WithParamInterface<ValueCase>
{};

constexpr ValueCase CASES[] = {
    {"Null", nullptr, MSG_NONE},
    {"Empty", "", MSG_NONE},
    {"Katakana", "\x83\x41\x81\x5b", MSG_NONE},
    {"FullWidthBlank", "\x81\x40", MSG_NONE},
    {"FullWidthLetterAndDigit", "\x82\x60\x82\x4f", MSG_NONE},
    {"Ascii", "Abc 12-34 (x)~", MSG_NONE},
    {"AsciiBetweenKatakana",
     "\x83\x41"
     "a\x83\x42",
     MSG_NONE},
    {"FullWidthComma", "\x81\x43", MSG_NONE},
    {"Comma", "a,b", HE70034E},
    {"HalfWidthKatakana", "\xb1", HE70034E},
    {"Hiragana", "\x82\xa0", HE70034E},
    {"Kanji", "\x88\x9f", HE70034E},
    {"KanjiInTheUpperLeadBytes", "\xe0\x40", HE70034E},
    {"LoneLeadByteAtTheEnd", "\x83\x41\x83", HE70034E},
    {"LineFeed", "a\n", HE70034E},
    {"Delete", "\x7f", HE70034E},
    {"PrivateUseLeadByteStandsAlone", "\xf0\x40", HE70034E},
};

TEST_P(ValidMultikana_2Test, JudgesTheValueDuringACheck)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    const auto pItem = MakeItem({"multikana_2"});
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

TEST_P(ValidMultikana_2Test, JudgesTheSameOutsideACheck)
{
    const auto pItem = MakeItem({"multikana_2"});
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Values, ValidMultikana_2Test, testing::ValuesIn(CASES), CaseName());

using ValidMultikana_2CodeTest = ResetState;

TEST_F(ValidMultikana_2CodeTest, AcceptsPrintableAsciiButTheCommaAndNoOtherByte)
{
    KZCEkaValidMultikana_2 item(0, MSG_NONE);
    EXPECT_EQ(AcceptedBytes(item),
              " !\"#$%&'()*+-./0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_"
              "`abcdefghijklmnopqrstuvwxyz{|}~");
}

bool IsLeadByte(unsigned nByte)
{
    return (nByte >= 0x81 && nByte <= 0x9f) || (nByte >= 0xe0 && nByte <= 0xef);
}

TEST_F(ValidMultikana_2CodeTest, AcceptsKatakanaAndTheFullWidthFormsOfAsciiAndNoOtherCode)
{
    const std::string strFullWidth = ToShiftJis(
        "！“”＃＄％＆‘’（）＊＋，－．／０１２３４５６７８９：；＜＝＞？＠"
        "ＡＢＣＤＥＦＧＨＩＪＫＬＭＮＯＰＱＲＳＴＵＶＷＸＹＺ［＼］＾＿｀"
        "ａｂｃｄｅｆｇｈｉｊｋｌｍｎｏｐｑｒｓｔｕｖｗｘｙｚ｛｜｝～");
    std::set<unsigned> setExpected;
    for (std::size_t n = 0; n < strFullWidth.size(); n += 2)
        setExpected.insert(PairCode(strFullWidth, n));
    ASSERT_EQ(setExpected.size(), 96u);
    for (unsigned nCode : {0x8140u, 0x814au, 0x814bu, 0x815bu})
        setExpected.insert(nCode);
    for (unsigned nCode = 0x8340; nCode <= 0x837e; ++nCode)
        setExpected.insert(nCode);
    for (unsigned nCode = 0x8380; nCode <= 0x8396; ++nCode)
        setExpected.insert(nCode);

    KZCEkaValidMultikana_2 item(0, MSG_NONE);
    std::set<unsigned> setAccepted;
    for (unsigned nCode : AcceptedPairs(item))
        if (IsLeadByte(nCode >> 8))
            setAccepted.insert(nCode);
    EXPECT_EQ(setAccepted, setExpected);
}

}  // namespace

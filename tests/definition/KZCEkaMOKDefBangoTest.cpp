#include "definition/KZCEkaMOKDefBango.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "fault/Fault.h"
#include "support/CheckItem.h"
#include "support/GenerationCsv.h"
#include "support/NodeTree.h"
#include "support/Raised.h"
#include "support/ResetState.h"

namespace {

using Records = std::vector<KZCEkaCsvFile::Record>;

struct BangoCase
{
    const char* szName;
    const char* szCell;
    const char* szWritten;
};

void PrintTo(const BangoCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class DefBangoTest : public ResetState, public testing::WithParamInterface<BangoCase>
{};

TEST_P(DefBangoTest, IsToldApartByItsLength)
{
    const GenerationCsv csv(Records{{"003", GetParam().szCell}});
    const auto pNode = CreateNodeOf<KZCEkaMOKDefBango>(R"(<item type="Bango" id="B" column="2"/>)");
    EXPECT_EQ(pNode->WriteNode(&csv, 0), GetParam().szWritten);
}

constexpr BangoCase CASES[] = {
    {"TwelveDigits", "123456789012", "<B><gen:kojinbango>123456789012</gen:kojinbango></B>"},
    {"TwelveDigitsWithAZeroInFront", "012345678901",
     "<B><gen:kojinbango>012345678901</gen:kojinbango></B>"},
    {"ThirteenDigitsWithAZeroInFront", "0123456789012",
     "<B><gen:kojinbango>123456789012</gen:kojinbango></B>"},
    {"ThirteenDigitsWithTwoZerosInFront", "0012345678901",
     "<B><gen:kojinbango>012345678901</gen:kojinbango></B>"},
    {"ThirteenDigits", "1234567890123", "<B><gen:hojinbango>1234567890123</gen:hojinbango></B>"},
    {"Empty", "", ""},
    {"ElevenDigits", "12345678901", ""},
    {"FourteenDigits", "12345678901234", ""},
    {"AnyTwelveBytes", "一二三四", "<B><gen:kojinbango>一二三四</gen:kojinbango></B>"},
    {"NothingIsEscaped", "<&\"'12345678", "<B><gen:kojinbango><&\"'12345678</gen:kojinbango></B>"},
};

INSTANTIATE_TEST_SUITE_P(Cells, DefBangoTest, testing::ValuesIn(CASES), CaseName());

class DefBangoNodeTest : public ResetState
{
protected:
    DefBangoNodeTest() : m_csv(Records{{"003", "123456789012"}}) {}

    GenerationCsv m_csv;
};

TEST_F(DefBangoNodeTest, NullCsvRaises)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefBango>(R"(<item type="Bango" id="B" column="2"/>)");
    EXPECT_EQ(Raised([&] { static_cast<void>(pNode->WriteNode(nullptr, 0)); }), FAULT);
}

TEST_F(DefBangoNodeTest, NodeWithoutColumnWritesNothing)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefBango>(R"(<item type="Bango" id="B"/>)");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "");
}

TEST_F(DefBangoNodeTest, RowRangeIsNotAsked)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefBango>(
        R"(<item type="Bango" id="B" column="2" startRow="5" endRow="6"/>)");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "<B><gen:kojinbango>123456789012</gen:kojinbango></B>");
}

}  // namespace

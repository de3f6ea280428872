#include "definition/KZCEkaMOKDefZip.h"

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

struct ZipCase
{
    const char* szName;
    const char* szCell;
    const char* szWritten;
};

void PrintTo(const ZipCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class DefZipTest : public ResetState, public testing::WithParamInterface<ZipCase>
{};

TEST_P(DefZipTest, IsWrittenInTwoParts)
{
    const GenerationCsv csv(Records{{"003", GetParam().szCell}});
    const auto pNode = CreateNodeOf<KZCEkaMOKDefZip>(R"(<item type="Zip" id="Z" column="2"/>)");
    EXPECT_EQ(pNode->WriteNode(&csv, 0), GetParam().szWritten);
}

constexpr ZipCase CASES[] = {
    {"SevenDigits", "1234567", "<Z><gen:zip1>123</gen:zip1><gen:zip2>4567</gen:zip2></Z>"},
    {"SixDigits", "123456", ""},
    {"Empty", "", ""},
    {"TenDigitsLoseThree", "1234567890",
     "<Z><gen:zip1>123</gen:zip1><gen:zip2>4567</gen:zip2></Z>"},
    {"HyphenCountsAsAByte", "123-4567", "<Z><gen:zip1>123</gen:zip1><gen:zip2>-456</gen:zip2></Z>"},
    {"BytesAreCounted", "１２３", "<Z><gen:zip1>１</gen:zip1><gen:zip2>２\xef</gen:zip2></Z>"},
    {"EscapesAreCounted", "1&2", "<Z><gen:zip1>1&a</gen:zip1><gen:zip2>mp;2</gen:zip2></Z>"},
};

INSTANTIATE_TEST_SUITE_P(Cells, DefZipTest, testing::ValuesIn(CASES), CaseName());

class DefZipNodeTest : public ResetState
{
protected:
    DefZipNodeTest() : m_csv(Records{{"003", "1234567"}}) {}

    GenerationCsv m_csv;
};

TEST_F(DefZipNodeTest, NullCsvRaises)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefZip>(R"(<item type="Zip" id="Z" column="2"/>)");
    EXPECT_EQ(Raised([&] { static_cast<void>(pNode->WriteNode(nullptr, 0)); }), FAULT);
}

TEST_F(DefZipNodeTest, NodeWithoutColumnWritesNothing)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefZip>(R"(<item type="Zip" id="Z"/>)");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "");
}

TEST_F(DefZipNodeTest, RowRangeIsNotAsked)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefZip>(
        R"(<item type="Zip" id="Z" column="2" startRow="5" endRow="6"/>)");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0),
              "<Z><gen:zip1>123</gen:zip1><gen:zip2>4567</gen:zip2></Z>");
}

TEST_F(DefZipNodeTest, ChildrenAreNotWritten)
{
    const auto pNode = CreateNodeOf<KZCEkaMOKDefZip>(R"(<item type="Zip" id="Z"/>)");
    HangAll(*pNode, {R"(<item type="Normal" id="A" parent="Z" column="2"/>)"});
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0), "");
}

TEST_F(DefZipNodeTest, ZerosAreNotSuppressed)
{
    const GenerationCsv csv(Records{{"003", "0010000"}});
    const auto pNode = CreateNodeOf<KZCEkaMOKDefZip>(
        R"(<item type="Zip" id="Z" column="2" zeroSuppress="true"/>)");
    EXPECT_EQ(pNode->WriteNode(&csv, 0),
              "<Z><gen:zip1>001</gen:zip1><gen:zip2>0000</gen:zip2></Z>");
}

TEST_F(DefZipNodeTest, TagsAreCutByTheirBuffer)
{
    const std::string strName(98, 'n');
    const auto pNode =
        CreateNodeOf<KZCEkaMOKDefZip>("<item type=\"Zip\" id=\"" + strName + "\" column=\"2\"/>");
    EXPECT_EQ(pNode->WriteNode(&m_csv, 0),
              "<" + strName + "<gen:zip1>123</gen:zip1><gen:zip2>4567</gen:zip2></" +
                  strName.substr(0, 97));
}

}  // namespace

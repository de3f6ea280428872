#include "calendar/EraTable.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace {

using SpanText = std::tuple<std::string, std::string, std::string>;

std::vector<SpanText> Texts(std::span<const EraTable::Span> spans)
{
    std::vector<SpanText> vecText;
    for (const EraTable::Span& span : spans)
        vecText.emplace_back(span.strName, span.szFirst, span.szLast);
    return vecText;
}

TEST(EraTableTest, CodesOneToFiveAreEras)
{
    std::vector<int> vecEra;
    for (int nCode = -1; nCode <= 7; ++nCode) {
        if (EraTable::IsEra(nCode))
            vecEra.push_back(nCode);
    }
    EXPECT_EQ(vecEra, (std::vector<int>{1, 2, 3, 4, 5}));
}

TEST(EraTableTest, NamesStandInTheOrderOfTheCodes)
{
    EXPECT_EQ(EraTable::Name(1), "明治");
    EXPECT_EQ(EraTable::Name(2), "大正");
    EXPECT_EQ(EraTable::Name(3), "昭和");
    EXPECT_EQ(EraTable::Name(4), "平成");
    EXPECT_EQ(EraTable::Name(5), "新号");
}

TEST(EraTableTest, BaseLeadsToTheWesternYear)
{
    EXPECT_EQ(EraTable::Base("明治"), 1867);
    EXPECT_EQ(EraTable::Base("大正"), 1911);
    EXPECT_EQ(EraTable::Base("昭和"), 1925);
    EXPECT_EQ(EraTable::Base("平成"), 1988);
    EXPECT_EQ(EraTable::Base("新号"), 2018);
}

TEST(EraTableTest, AnUnknownNameAddsNothing)
{
    EXPECT_EQ(EraTable::Base(""), 0);
    EXPECT_EQ(EraTable::Base("令和"), 0);
    EXPECT_EQ(EraTable::Base("平"), 0);
    EXPECT_EQ(EraTable::Base("平成31"), 0);
}

TEST(EraTableTest, RealSpansEndTheFourthEraInApril2019)
{
    const std::vector<SpanText> EXPECTED = {
        {"明治", "1890/01/01", "1912/07/29"}, {"大正", "1912/07/30", "1926/12/24"},
        {"昭和", "1926/12/25", "1989/01/07"}, {"平成", "1989/01/08", "2019/04/30"},
        {"新号", "2019/05/01", ""},
    };
    EXPECT_EQ(Texts(EraTable::RealSpans()), EXPECTED);
}

TEST(EraTableTest, LongSpansEndTheFourthEraInMarch2020)
{
    const std::vector<SpanText> EXPECTED = {
        {"明治", "1890/01/01", "1912/07/29"}, {"大正", "1912/07/30", "1926/12/24"},
        {"昭和", "1926/12/25", "1989/01/07"}, {"平成", "1989/01/08", "2020/03/31"},
        {"新号", "2019/05/01", ""},
    };
    EXPECT_EQ(Texts(EraTable::LongSpans()), EXPECTED);
}

}  // namespace

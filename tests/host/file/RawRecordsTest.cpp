#include "file/RawRecords.h"

#include <gtest/gtest.h>

#include <string>

namespace host {
namespace {

using Records = std::vector<std::string_view>;

TEST(RawRecordsTest, EachKindOfLineEndEndsARecordAndStaysWithIt)
{
    EXPECT_EQ(RawRecords("a,1\nb\r\nc\rd", Family::Base), (Records{"a,1\n", "b\r\n", "c\r", "d"}));
}

TEST(RawRecordsTest, BlankLinesAreLeftOut)
{
    EXPECT_EQ(RawRecords("\r\na\n \t\n\n\rb\n", Family::Finance), (Records{"a\n", "b\n"}));
    EXPECT_EQ(RawRecords("", Family::Base), Records());
}

TEST(RawRecordsTest, LineOfCommasIsARecord)
{
    EXPECT_EQ(RawRecords("a,b\n,\n", Family::Base), (Records{"a,b\n", ",\n"}));
}

TEST(RawRecordsTest, ValueInQuotesMayHoldLineEndsInCrossBorder)
{
    EXPECT_EQ(RawRecords("301,\"a\r\nb\",c\r\n302\r\n", Family::CrossBorder),
              (Records{"301,\"a\r\nb\",c\r\n", "302\r\n"}));
    EXPECT_EQ(RawRecords("\"301\",\"a \"\"\n\"\" b\"\n302", Family::CrossBorder),
              (Records{"\"301\",\"a \"\"\n\"\" b\"\n", "302"}));
}

TEST(RawRecordsTest, QuoteInsideAValueMeansNothing)
{
    EXPECT_EQ(RawRecords("301,a\"b\nc\",d\n", Family::CrossBorder),
              (Records{"301,a\"b\n", "c\",d\n"}));
    EXPECT_EQ(RawRecords("301,\"a\"\"b\"c\"\nd\n", Family::CrossBorder),
              (Records{"301,\"a\"\"b\"c\"\n", "d\n"}));
}

TEST(RawRecordsTest, OpenQuoteReachesToTheEnd)
{
    EXPECT_EQ(RawRecords("301,\"a\nb\n", Family::CrossBorder), (Records{"301,\"a\nb\n"}));
}

TEST(RawRecordsTest, QuotesMeanNothingInTheOtherFamilies)
{
    EXPECT_EQ(RawRecords("101,\"a\nb\"\n", Family::Finance), (Records{"101,\"a\n", "b\"\n"}));
    EXPECT_EQ(RawRecords("001,\"a\nb\"\n", Family::Base), (Records{"001,\"a\n", "b\"\n"}));
}

}  // namespace
}  // namespace host

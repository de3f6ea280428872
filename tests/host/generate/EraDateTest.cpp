#include "generate/EraDate.h"

#include <gtest/gtest.h>

namespace host {
namespace {

using std::chrono::sys_days;
using std::chrono::year;

TEST(EraDateTest, EraChangesOnItsFirstDay)
{
    EXPECT_EQ(EraOf(sys_days{year{2019} / 4 / 30}).nCode, 4);
    EXPECT_EQ(EraOf(sys_days{year{2019} / 5 / 1}).nCode, 5);
    EXPECT_EQ(EraOf(sys_days{year{1926} / 12 / 24}).nCode, 2);
    EXPECT_EQ(EraOf(sys_days{year{1926} / 12 / 25}).nYearBase, 1925);
}

TEST(EraDateTest, DayBeforeAllErasHasTheFirst)
{
    EXPECT_EQ(EraOf(sys_days{year{1800} / 1 / 1}).nCode, 1);
}

TEST(EraDateTest, FourthEraIsWrittenOnUpToMarchOfItsYear32)
{
    ASSERT_TRUE(EraBefore(sys_days{year{2020} / 3 / 31}));
    EXPECT_EQ(EraBefore(sys_days{year{2020} / 3 / 31})->nCode, 4);
    EXPECT_FALSE(EraBefore(sys_days{year{2020} / 4 / 1}));
    EXPECT_FALSE(EraBefore(sys_days{year{1989} / 1 / 8}));
    EXPECT_FALSE(EraBefore(sys_days{year{1900} / 1 / 1}));
}

TEST(EraDateTest, WesternYearNeedsAnEra)
{
    EXPECT_EQ(WesternYear(4, 31), 2019);
    EXPECT_EQ(WesternYear(1, 23), 1890);
    EXPECT_EQ(WesternYear(0, 1), std::nullopt);
    EXPECT_EQ(WesternYear(6, 1), std::nullopt);
}

}  // namespace
}  // namespace host

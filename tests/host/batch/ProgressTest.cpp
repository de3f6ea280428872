#include "batch/Progress.h"

#include <gtest/gtest.h>

#include "base/Language.h"

namespace host {
namespace {

constexpr double START = 1000;

/// nFiles done evenly from dFrom to dTo.
void Work(Progress& progress, int nFiles, double dFrom, double dTo)
{
    for (int n = 1; n <= nFiles; ++n)
        progress.Advance(dFrom + (dTo - dFrom) * n / nFiles);
}

TEST(ProgressTest, NothingIsGuessedBeforeTheFirstFile)
{
    const Progress progress(10, START);
    EXPECT_EQ(progress.Rate(START + 5), std::nullopt);
    EXPECT_EQ(progress.SecondsLeft(START + 5), std::nullopt);
    EXPECT_EQ(progress.Line(START + 5), "0 of 10 files");
}

TEST(ProgressTest, NothingIsGuessedInTheFirstSecond)
{
    Progress progress(10, START);
    progress.Advance(START + 0.5);
    EXPECT_EQ(progress.Rate(START + 0.5), 2);
    EXPECT_EQ(progress.SecondsLeft(START + 0.5), std::nullopt);
}

TEST(ProgressTest, EvenWorkHasItsRateAndRest)
{
    Progress progress(1000, START);
    Work(progress, 400, START, START + 4);
    EXPECT_EQ(progress.Done(), 400U);
    EXPECT_DOUBLE_EQ(*progress.Rate(START + 4), 100);
    EXPECT_DOUBLE_EQ(*progress.SecondsLeft(START + 4), 6);
    EXPECT_EQ(progress.Line(START + 4), "400 of 1000 files, 100 files/s, 6 s left");
}

TEST(ProgressTest, RateIsThatOfTheLastSeconds)
{
    Progress progress(100'000, START);
    Work(progress, 10'000, START, START + 100);
    Work(progress, 100, START + 100, START + 125);
    EXPECT_NEAR(*progress.Rate(START + 125), 4, 0.5);
}

TEST(ProgressTest, StandstillLowersTheRate)
{
    Progress progress(100, START);
    Work(progress, 50, START, START + 5);
    EXPECT_DOUBLE_EQ(*progress.Rate(START + 50), 1);
}

TEST(ProgressTest, EndLeavesNoTime)
{
    Progress progress(20, START);
    Work(progress, 20, START, START + 2);
    EXPECT_DOUBLE_EQ(*progress.SecondsLeft(START + 2), 0);
}

TEST(ProgressTest, TimesAreToldInTwoUnitsAtMost)
{
    EXPECT_EQ(DurationText(0), "0 s");
    EXPECT_EQ(DurationText(0.2), "1 s");
    EXPECT_EQ(DurationText(59), "59 s");
    EXPECT_EQ(DurationText(59.5), "1 min 0 s");
    EXPECT_EQ(DurationText(125), "2 min 5 s");
    EXPECT_EQ(DurationText(3600), "1 h 0 min");
    EXPECT_EQ(DurationText(12'015), "3 h 20 min");
}

TEST(ProgressTest, SlowRatesHaveADecimal)
{
    EXPECT_EQ(RateText(0.42), "0.4");
    EXPECT_EQ(RateText(9.94), "9.9");
    EXPECT_EQ(RateText(12.4), "12");
    EXPECT_EQ(RateText(3400), "3400");
}

TEST(ProgressTest, JapaneseIsSpokenToo)
{
    SetLanguage(Language::Japanese);
    Progress progress(1000, START);
    Work(progress, 400, START, START + 4);
    EXPECT_EQ(progress.Line(START + 4), "1000件中400件、毎秒100件、残り6秒");
    SetLanguage(Language::English);
}

}  // namespace
}  // namespace host

#include "batch/MemoryLimit.h"

#include <gtest/gtest.h>

namespace host {
namespace {

constexpr std::uint64_t GIBIBYTE = 1024 * MEBIBYTE;

TEST(MemoryLimitTest, ProcessorsCountWhereThereIsRoom)
{
    EXPECT_EQ(WorkersFor(4, 2 * GIBIBYTE, 512 * MEBIBYTE), 4U);
    EXPECT_EQ(WorkersFor(4, 64 * GIBIBYTE, 512 * MEBIBYTE), 4U);
}

TEST(MemoryLimitTest, RoomCountsWhereThereIsLess)
{
    EXPECT_EQ(WorkersFor(4, 2 * GIBIBYTE - 1, 512 * MEBIBYTE), 3U);
    EXPECT_EQ(WorkersFor(64, 8 * GIBIBYTE, 512 * MEBIBYTE), 16U);
}

TEST(MemoryLimitTest, OneWorkerIsThereInAnyCase)
{
    EXPECT_EQ(WorkersFor(4, 0, 512 * MEBIBYTE), 1U);
    EXPECT_EQ(WorkersFor(4, 511 * MEBIBYTE, 512 * MEBIBYTE), 1U);
}

TEST(MemoryLimitTest, WithoutALimitRoomIsNotLookedAt)
{
    EXPECT_EQ(WorkersFor(4, 0, 0), 4U);
}

TEST(MemoryLimitTest, SystemTellsHowMuchIsFree)
{
    EXPECT_GT(FreeMemory(), MEBIBYTE);
    EXPECT_LT(FreeMemory(), std::uint64_t{1} << 50U) << "not the number that stands for unknown";
}

}  // namespace
}  // namespace host

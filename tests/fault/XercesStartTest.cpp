// Requests whose memory runs out while the XML library starts.
#include <KZEkaMok/KZICsvConvMokEka.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>

#include "KZCCsvConvMokEka.h"
#include "support/AllocationFault.h"
#include "support/DebugLog.h"
#include "support/FamilyDefinition.h"
#include "xml/XercesGuards.h"

namespace {

using AllocationFault::Kind;

/// Bytes that nothing needs at once but a start.
constexpr std::size_t LARGE = 1000000;

/// What a check without a path tells, with a failing allocation.
std::string ResultOfCheck(std::size_t nNumber, Kind eKind, std::size_t nLeastSize)
{
    KZICsvConvMokEka host;
    AllocationFault::Arm(nNumber, eKind, nLeastSize);
    const std::shared_ptr<KZIConvertResultEka> pResult = host.CsvCheck("");
    AllocationFault::Disarm();
    return pResult == nullptr ? "null" : pResult->GetResult() + pResult->GetDetailErrorInfo();
}

/// The same without one that fails.
std::string ResultOfCheck()
{
    return ResultOfCheck(0, Kind::Once, 0);
}

constexpr const char* REFUSED = "E_FAIL9999-00001-HE70001E";
constexpr const char* NOTHING_TOLD = "";

class XercesStartTest : public testing::Test
{
protected:
    ~XercesStartTest() override { KZICsvConvMokEka().Terminate(); }

    FamilyBundle m_bundle;
};

TEST_F(XercesStartTest, TooLittleMemoryForAStartIsFoundBeforeItAndTheNextRequestWorks)
{
    EXPECT_EQ(ResultOfCheck(1, Kind::FromThere, LARGE), NOTHING_TOLD);
    EXPECT_EQ(ResultOfCheck(), REFUSED);
}

TEST_F(XercesStartTest, RunningLibraryNeedsNoMemoryForAStart)
{
    const XercesSession session;
    EXPECT_EQ(ResultOfCheck(1, Kind::FromThere, LARGE), REFUSED);
}

TEST_F(XercesStartTest, LogIsSwitchedOnBeforeTheStart)
{
    const DebugLog log;
    KZCDebugDump::Reset();
    AllocationFault::Arm(1, Kind::FromThere, LARGE);
    bool bThrown = false;
    try {
        const KZCCsvConvMokEka entry;
    } catch (...) {
        bThrown = true;
    }
    AllocationFault::Disarm();
    EXPECT_TRUE(bThrown);
    EXPECT_TRUE(KZCDebugDump::IsOn());
}

class XercesBrokenStartTest : public XercesStartTest,
                              public testing::WithParamInterface<std::size_t>
{};

TEST_P(XercesBrokenStartTest, StartThatBreaksOffLeavesRequestsThatFailAndDoNotCrash)
{
    // The XML library of a whole process breaks: that is to be one of its own. It ends without the
    // search for leaks, as a start that broke off leaves some.
    const auto breakAndGoOn = [] {
        AllocationFault::Arm(GetParam(), Kind::Once);
        bool bThrown = false;
        try {
            const XercesSession session;
        } catch (...) {
            bThrown = true;
        }
        AllocationFault::Disarm();
        const bool bFirst = ResultOfCheck() == NOTHING_TOLD;
        KZICsvConvMokEka().Terminate();
        const bool bSecond = ResultOfCheck() == NOTHING_TOLD;
        std::_Exit(bThrown && bFirst && bSecond ? EXIT_SUCCESS : EXIT_FAILURE);
    };
    EXPECT_EXIT(breakAndGoOn(), testing::ExitedWithCode(EXIT_SUCCESS), "");
}

// The first allocation is the test for enough memory; a start makes thousands.
INSTANTIATE_TEST_SUITE_P(Allocations,
                         XercesBrokenStartTest,
                         testing::Values(2, 3, 4, 5, 10, 30, 100, 300, 1000, 3000),
                         testing::PrintToStringParamName());

}  // namespace

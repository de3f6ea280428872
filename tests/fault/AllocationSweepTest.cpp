// The operations of the exported class when memory runs out: at every allocation of a good request
// in turn, for a moment or for good. Nothing may get out, nothing may be lost, and the next request
// must work as if nothing had been.
#include <KZEkaMok/KZICsvConvMokEka.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <tuple>

#include "calendar/Clock.h"
#include "support/AllocationFault.h"
#include "support/FamilyHost.h"
#include "xml/XercesGuards.h"

namespace {

using AllocationFault::Kind;

enum class Shape
{
    Check,
    Convert,
    ElCheck,
    ElConvert,
    Write,
    Terminate,
};

std::ostream& operator<<(std::ostream& stream, Shape eShape)
{
    constexpr const char* NAMES[] = {"Check",     "Convert", "ElCheck",
                                     "ElConvert", "Write",   "Terminate"};
    return stream << NAMES[static_cast<int>(eShape)];
}

constexpr long KEY = 1;
#ifndef KZEKAMOK_SWEEP_STEP
/// From one failing allocation to the next.
#define KZEKAMOK_SWEEP_STEP 1
#endif
/// The whole way from a check to a document follows one failing allocation in this many, as it
/// takes most of the time. No multiple of the step above, so that the two don't keep in step.
constexpr std::size_t WHOLE_WAY_STEP = 7;
/// Too long for a text that needs no memory.
constexpr const char* WRITTEN = "a line that is written as it stands,12,34";

using SweepCase = std::tuple<Family, Shape, Kind>;

class AllocationSweepTest : public testing::Test, public testing::WithParamInterface<SweepCase>
{
protected:
    AllocationSweepTest()
    {
        Clock::Set(1709553600);
        // Two records are enough to see one that got lost.
        constexpr const char* TYPE_IDS[] = {"003", "101", "301"};
        const std::string strId = TYPE_IDS[static_cast<std::size_t>(m_eFamily)];
        m_strCsv = m_folder.Write("in.csv", strId + ",12,ab\n\n" + strId + ",34,more text\n");
        m_strMok = m_folder.Path("out.mok");
        m_strWritten = m_folder.Path("written.csv");
    }
    ~AllocationSweepTest() override
    {
        m_host.Terminate();
        Clock::Set(std::nullopt);
    }

    static Answer Read(const std::shared_ptr<KZIConvertResultEka>& pResult)
    {
        AllocationFault::Disarm();
        if (!pResult)
            return {"null", "", "", "", ""};
        return {pResult->GetResult(), pResult->GetDetailErrorInfo(), pResult->GetRecordCount(),
                pResult->GetProcId(), pResult->GetMokData()};
    }

    /// What the request needs from before.
    void Prepare()
    {
        m_host.Terminate();
        if (m_eShape == Shape::ElConvert || m_eShape == Shape::Terminate) {
            ASSERT_EQ(m_requests.ElCheck(m_eFamily, m_strCsv.c_str(), KEY).strResult, "S_OK");
        }
    }
    Answer Run()
    {
        switch (m_eShape) {
            case Shape::Check:
                return m_requests.Check(m_eFamily, m_strCsv.c_str());
            case Shape::Convert:
                return m_requests.Convert(m_eFamily, m_strCsv.c_str(), m_strMok.c_str(), m_filer);
            case Shape::ElCheck:
                return m_requests.ElCheck(m_eFamily, m_strCsv.c_str(), KEY);
            case Shape::ElConvert:
                return m_requests.ElConvert(m_eFamily, KEY, m_filer);
            case Shape::Write:
                return m_requests.Write(m_strWritten.c_str(), WRITTEN);
            case Shape::Terminate:
                m_requests.Terminate();
                AllocationFault::Disarm();
                return {};
        }
        return {};
    }
    /// What the same request answers again.
    std::string RunAgain()
    {
        std::ostringstream text;
        if (m_eShape != Shape::Terminate)
            text << Run();
        return text.str();
    }
    /// What the whole way from a check to a document answers.
    std::string RunAll()
    {
        std::ostringstream text;
        text << m_requests.Check(m_eFamily, m_strCsv.c_str());
        text << m_requests.Convert(m_eFamily, m_strCsv.c_str(), m_strMok.c_str(), m_filer);
        text << m_folder.Read("out.mok");
        text << m_requests.ElCheck(m_eFamily, m_strCsv.c_str(), KEY);
        text << m_requests.ElConvert(m_eFamily, KEY, m_filer);
        return text.str();
    }

    /// An answer that a host may get when memory has run out.
    void ExpectHonest(const Answer& answer, std::size_t nNumber)
    {
        if (answer.strResult == "S_OK") {
            // The result crosses the boundary before the document: memory may end between them.
            Answer expected = m_good;
            if (m_eShape == Shape::ElConvert && answer.strMok.empty())
                expected.strMok.clear();
            EXPECT_EQ(answer, expected) << nNumber;
            return;
        }
        EXPECT_TRUE(answer.strResult == "E_FAIL" || answer.strResult.empty() ||
                    answer.strResult == "null")
            << nNumber << " " << answer;
        EXPECT_EQ(answer.strMok, "") << nNumber;
        if (answer.strResult == "E_FAIL") {
            EXPECT_TRUE(answer.strDetail.empty() || answer.strDetail.starts_with("0000-00000-HE70"))
                << nNumber << " " << answer;
        }
    }

    /// Runs the request with that allocation failing. \return false if there is no such allocation.
    bool Try(std::size_t nNumber)
    {
        Prepare();
        AllocationFault::Arm(nNumber, m_eKind);
        const Answer answer = Run();
        const bool bFailed = AllocationFault::Disarm() >= nNumber;
        ExpectHonest(answer, nNumber);
        EXPECT_EQ(RunAgain(), m_strGoodAgain) << nNumber;
        if (nNumber % WHOLE_WAY_STEP == 1) {
            EXPECT_EQ(RunAll(), m_strGoodAll) << nNumber;
        }
        m_host.Terminate();
        return bFailed;
    }

    using Reader = Answer (*)(const std::shared_ptr<KZIConvertResultEka>&);

    // Keeps the XML library running: what fails in its start is another test's.
    XercesSession m_session;
    const Family m_eFamily = std::get<0>(GetParam());
    const Shape m_eShape = std::get<1>(GetParam());
    const Kind m_eKind = std::get<2>(GetParam());
    const Filer m_filer = FilerOf(m_eFamily);
    TempFolder m_folder;
    FamilyBundle m_bundle;
    std::string m_strCsv;
    std::string m_strMok;
    std::string m_strWritten;
    Answer m_good;
    std::string m_strGoodAgain;
    std::string m_strGoodAll;
    KZICsvConvMokEka m_host;
    Requests<KZICsvConvMokEka, std::shared_ptr<KZIConvertResultEka>, Reader> m_requests{m_host,
                                                                                        &Read};
};

TEST_P(AllocationSweepTest, EveryAllocationMayFail)
{
    Prepare();
    m_good = Run();
    EXPECT_EQ(m_good.strResult, m_eShape == Shape::Terminate ? "" : "S_OK") << m_good;
    m_strGoodAgain = RunAgain();
    m_strGoodAll = RunAll();
    m_host.Terminate();
    const std::size_t nLive = AllocationFault::LivePieces();
    std::size_t nNumber = 1;
    while (Try(nNumber) && !HasFailure()) {
        ASSERT_EQ(AllocationFault::LivePieces(), nLive) << nNumber;
        nNumber += KZEKAMOK_SWEEP_STEP;
    }
    // As the XML library is running, Terminate allocates nothing that could fail.
    EXPECT_EQ(nNumber > 1, m_eShape != Shape::Terminate);
}

INSTANTIATE_TEST_SUITE_P(Families,
                         AllocationSweepTest,
                         testing::Combine(testing::ValuesIn(FAMILIES),
                                          testing::Values(Shape::Check,
                                                          Shape::Convert,
                                                          Shape::ElCheck,
                                                          Shape::ElConvert),
                                          testing::Values(Kind::Once, Kind::FromThere)),
                         [](const auto& testCase) {
                             return testing::PrintToString(std::get<0>(testCase.param)) +
                                    testing::PrintToString(std::get<1>(testCase.param)) +
                                    (std::get<2>(testCase.param) == Kind::Once ? "Once"
                                                                               : "FromThere");
                         });

INSTANTIATE_TEST_SUITE_P(AllFamilies,
                         AllocationSweepTest,
                         testing::Combine(testing::Values(Family::Base),
                                          testing::Values(Shape::Write, Shape::Terminate),
                                          testing::Values(Kind::Once, Kind::FromThere)),
                         [](const auto& testCase) {
                             return testing::PrintToString(std::get<1>(testCase.param)) +
                                    (std::get<2>(testCase.param) == Kind::Once ? "Once"
                                                                               : "FromThere");
                         });

}  // namespace

// What the families make of a fault in the body of a request, which their steps don't see.
#include <gmock/gmock.h>

#include <string>
#include <tuple>

#include "fault/Fault.h"
#include "support/AllocationFault.h"
#include "support/FamilyHost.h"
#include "support/LogEntries.h"

namespace {

using AllocationFault::Kind;

constexpr const char* FATAL_ERROR = "0000-00000-HE70018E";
constexpr const char* NO_ERROR = "0000-00000-HE70017E";
constexpr long KEY = 2;
/// Bytes that nothing needs but the file of a test.
constexpr std::size_t LARGE = 1000000;

enum class Shape
{
    Check,
    Convert,
    ElCheck,
    ElConvert,
};

std::ostream& operator<<(std::ostream& stream, Shape eShape)
{
    constexpr const char* NAMES[] = {"Check", "Convert", "ElCheck", "ElConvert"};
    return stream << NAMES[static_cast<int>(eShape)];
}

std::string Detail()
{
    return KZCValidResult::instance()->MakeResult();
}

class FaultHost : public FamilyHost
{
protected:
    FaultHost()
    {
        m_pBehindRequest = [] { AllocationFault::Disarm(); };
    }

    /// A good request.
    Answer Run(Family eFamily, Shape eShape, const std::string& strCsv)
    {
        const Filer filer = FilerOf(eFamily);
        switch (eShape) {
            case Shape::Check:
                return Check(eFamily, strCsv);
            case Shape::Convert:
                return Convert(eFamily, strCsv, filer);
            case Shape::ElCheck:
                return ElCheck(eFamily, strCsv, KEY);
            case Shape::ElConvert:
                return ElConvert(eFamily, KEY, filer);
        }
        return {};
    }

    /// No store of any kind, but a result record: the first thing that a request makes then is the
    /// conversion store.
    void ClearStores()
    {
        ASSERT_TRUE(KZCCsvConvMokEka::CreateResult());
        KZCConvertInfo::destroy();
        KZCValidResult::destroy();
        KZCEkaTaxOffices::destroy();
    }
};

using RequestCase = std::tuple<Family, Shape>;

class FamilyFaultTest : public FaultHost, public testing::WithParamInterface<RequestCase>
{
protected:
    /// The request with a fault before it has done anything.
    Answer RunWithFaultAtOnce()
    {
        const std::string strCsv = GoodCsv(m_eFamily);
        ClearStores();
        AllocationFault::Arm(1, Kind::Once);
        const Answer answer = Run(m_eFamily, m_eShape, strCsv);
        EXPECT_GE(AllocationFault::Disarm(), 1U);
        return answer;
    }
    /// The family keeps faults of its plain requests to itself.
    bool IsHidden() const
    {
        return m_eFamily == Family::CrossBorder &&
               (m_eShape == Shape::Check || m_eShape == Shape::Convert);
    }

    const Family m_eFamily = std::get<0>(GetParam());
    const Shape m_eShape = std::get<1>(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Requests,
                         FamilyFaultTest,
                         testing::Combine(testing::ValuesIn(FAMILIES),
                                          testing::Values(Shape::Check,
                                                          Shape::Convert,
                                                          Shape::ElCheck,
                                                          Shape::ElConvert)),
                         [](const auto& testCase) {
                             return testing::PrintToString(std::get<0>(testCase.param)) +
                                    testing::PrintToString(std::get<1>(testCase.param));
                         });

TEST_P(FamilyFaultTest, FaultIsToldButInThePlainRequestsOfTheCrossBorderFamily)
{
    const Answer answer = RunWithFaultAtOnce();
    EXPECT_EQ(answer, Refused(IsHidden() ? "" : FATAL_ERROR));
    EXPECT_EQ(Detail(), IsHidden() ? FATAL_ERROR : NO_ERROR);
}

TEST_P(FamilyFaultTest, FaultThatIsNotToldStaysUntilTheNextClearing)
{
    static_cast<void>(RunWithFaultAtOnce());
    EXPECT_EQ(KZCValidResult::instance()->IsEmpty(), !IsHidden());
    EXPECT_EQ(Check(m_eFamily, GoodCsv(m_eFamily)).strResult, "S_OK");
    EXPECT_TRUE(KZCValidResult::instance()->IsEmpty());
}

TEST_P(FamilyFaultTest, ExecModeIsSetBehindTheStoresButInThePlainConversionOfTheBaseFamily)
{
    const bool bBase = m_eFamily == Family::Base;
    const auto eOwn = bBase ? KZCEkaCommon::EXEC_MODE_ZEKA : KZCEkaCommon::EXEC_MODE_OTHER;
    const auto eOther = bBase ? KZCEkaCommon::EXEC_MODE_OTHER : KZCEkaCommon::EXEC_MODE_ZEKA;
    KZCEkaCommon::setExecMode(eOther);
    static_cast<void>(RunWithFaultAtOnce());
    EXPECT_EQ(KZCEkaCommon::getExecMode(), bBase && m_eShape == Shape::Convert ? eOwn : eOther);
}

TEST_P(FamilyFaultTest, FaultIsLoggedUnderTheNameOfTheRequest)
{
    constexpr const char* NAMES[3][4] = {
        {"KZCCsvConvMokEka::CsvCheck", "KZCCsvConvMokEka::CsvConvMok",
         "KZCCsvConvMokEka::ELCsvCheck", "KZCCsvConvMokEka::ELCsvConvMok"},
        {"KZCCsvConvMokEka::CsvCheckFinance", "KZCCsvConvMokEka::CsvConvMokFinance",
         "KZCCsvConvMokEka::ELCsvCheckFinance", "KZCCsvConvMokEka::ELCsvConvMokFinance"},
        {"CsvCheckCrossBorder", "CsvConvMokCrossBorder", "ELCsvCheckCrossBorder",
         "ELCsvConvMokCrossBorder"}};
    const LogEntry expected = {
        NAMES[static_cast<std::size_t>(m_eFamily)][static_cast<std::size_t>(m_eShape)],
        UNEXPECTED_ERROR};
    const std::string strCsv = GoodCsv(m_eFamily);
    // The traces of the arguments come first; what fails in them is not worth a word.
    constexpr std::size_t ENOUGH = 3000;
    for (std::size_t nNumber = 1; nNumber < ENOUGH; ++nNumber) {
        ClearStores();
        const DebugLog log;
        AllocationFault::Arm(nNumber, Kind::Once);
        static_cast<void>(Run(m_eFamily, m_eShape, strCsv));
        AllocationFault::Disarm();
        const std::vector<LogEntry> vecEntry = LogEntries(log);
        if (std::ranges::find(vecEntry, UNEXPECTED_ERROR, &LogEntry::strMessage) == vecEntry.end())
            continue;
        EXPECT_THAT(vecEntry, testing::Contains(expected));
        return;
    }
    FAIL() << "no fault in " << ENOUGH << " allocations";
}

TEST_P(FamilyFaultTest, RecordThatCannotBeMadeIsNull)
{
    const std::string strCsv = GoodCsv(m_eFamily);
    KZCCsvConvMokEka::ReleaseResult();
    AllocationFault::Arm(1, Kind::Once);
    const Answer answer = Run(m_eFamily, m_eShape, strCsv);
    AllocationFault::Disarm();
    EXPECT_EQ(answer.strResult, "null");
}

// ---- the check flag ----------------------------------------------------------------------------

class CheckFlagTest : public FaultHost, public testing::WithParamInterface<Family>
{
protected:
    CheckFlagTest()
    {
        // The name of the procedure needs memory of its own: handing it out can fail.
        const std::string strProcId(40, 'P');
        const SmallReport report = {strProcId, "R", R"( startRow="0" endRow="0")"};
        m_bundle.Write("KZEkaDefine.xml",
                       DefinitionFile(R"(<report id="003" columnNum="3" procId=")" + strProcId +
                                      R"(" procVR="1" reportId="R"/>)"));
        m_bundle.WriteBoth("Finance/PGE2015", report);
        m_bundle.WriteBoth("CrossBorder/PGE1650", report);
    }

    /// Lets each allocation of a check fail in turn. \return how often the flag was left up.
    int CountFlagsLeftUp(Shape eShape, Kind eKind = Kind::Once)
    {
        int nLeftUp = 0;
        const std::string strCsv = GoodCsv(GetParam());
        for (std::size_t nNumber = 1;; ++nNumber) {
            KZCEkaCommon::SetCsvCheckFlag(false);
            ClearStores();
            AllocationFault::Arm(nNumber, eKind);
            Answer answer = Refused("");
            try {
                answer = Run(GetParam(), eShape, strCsv);
            } catch (...) {  // not even the fatal error could be recorded: the boundary ends it
                EXPECT_EQ(eKind, Kind::FromThere) << nNumber;
            }
            if (AllocationFault::Disarm() < nNumber)
                return nLeftUp;
            if (!KZCEkaCommon::GetCsvCheckFlag())
                continue;
            ++nLeftUp;
            if (eKind == Kind::FromThere)
                continue;
            EXPECT_EQ(answer, Refused("")) << nNumber;
            EXPECT_EQ(Detail(), FATAL_ERROR) << nNumber;
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Families,
                         CheckFlagTest,
                         testing::ValuesIn(FAMILIES),
                         [](const auto& testCase) {
                             return testing::PrintToString(testCase.param);
                         });

TEST_P(CheckFlagTest, FaultOfAPlainCheckLeavesItUpInTheCrossBorderFamilyAlone)
{
    if (GetParam() == Family::CrossBorder)
        EXPECT_GT(CountFlagsLeftUp(Shape::Check), 0);
    else
        EXPECT_EQ(CountFlagsLeftUp(Shape::Check), 0);
}

TEST_P(CheckFlagTest, FaultOfAnElCheckLeavesItUpInNoFamily)
{
    EXPECT_EQ(CountFlagsLeftUp(Shape::ElCheck), 0);
}

TEST_P(CheckFlagTest, MemoryThatIsGoneForGoodChangesNothingOfThat)
{
    EXPECT_EQ(CountFlagsLeftUp(Shape::Check, Kind::FromThere) > 0,
              GetParam() == Family::CrossBorder);
    EXPECT_EQ(CountFlagsLeftUp(Shape::ElCheck, Kind::FromThere), 0);
}

TEST_P(CheckFlagTest, TerminateTakesItDown)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    m_entry.Terminate();
    EXPECT_FALSE(KZCEkaCommon::GetCsvCheckFlag());
}

// ---- the second reading of an EL check ---------------------------------------------------------

class SecondReadingTest : public FaultHost, public testing::WithParamInterface<Family>
{
protected:
    SecondReadingTest()
    {
        // One column takes any text.
        const std::string strItem =
            R"(<item type="Normal" id="A" parent="R" column="2"><valid id="number"/></item>)";
        for (const char* szFile :
             {"KZEkaDefine.xml", "Finance/PGE2015_vld.xml", "CrossBorder/PGE1650_vld.xml"})
            m_bundle.Write(szFile,
                           DefinitionFile(R"(<report id="003" columnNum="3" procId="P" procVR="1")"
                                          R"( reportId="R" reportVR="1">)" +
                                          strItem + "</report>"));
        m_strCsv = Csv(Record(GetParam(), "1," + std::string(LARGE, 'a')));
    }

    /// Lets the last large allocation of the check fail: it belongs to the second reading.
    Answer RunWithFault()
    {
        AllocationFault::Arm(0, Kind::Once, LARGE);
        EXPECT_EQ(ElCheck(GetParam(), m_strCsv, KEY).strResult, "S_OK");
        const std::size_t nLast = AllocationFault::Disarm();
        EXPECT_GE(nLast, 2U);
        AllocationFault::Arm(nLast, Kind::Once, LARGE);
        const Answer answer = ElCheck(GetParam(), m_strCsv, KEY);
        AllocationFault::Disarm();
        return answer;
    }

    std::string m_strCsv;
};

INSTANTIATE_TEST_SUITE_P(Families,
                         SecondReadingTest,
                         testing::ValuesIn(FAMILIES),
                         [](const auto& testCase) {
                             return testing::PrintToString(testCase.param);
                         });

TEST_P(SecondReadingTest, FaultFailsTheCheckButInTheCrossBorderFamily)
{
    const bool bForgiven = GetParam() == Family::CrossBorder;
    EXPECT_EQ(RunWithFault(),
              bForgiven ? (Answer{"S_OK", "", "1", "P", ""}) : Refused(FATAL_ERROR));
    EXPECT_EQ(Detail(), bForgiven ? FATAL_ERROR : NO_ERROR);
    EXPECT_FALSE(KZCEkaCommon::GetCsvCheckFlag());
}

TEST_P(SecondReadingTest, FaultLeavesNoRecordsToConvert)
{
    static_cast<void>(RunWithFault());
    EXPECT_EQ(ElConvert(GetParam(), KEY, FilerOf(GetParam())), Refused("9999-00001-HE70013E"));
}

TEST_P(SecondReadingTest, FaultIsLoggedUnderTheNameOfTheCheck)
{
    constexpr const char* NAMES[] = {"KZCCsvConvMokEka::ELCsvCheck",
                                     "KZCCsvConvMokEka::ELCsvCheckFinance",
                                     "ELCsvCheckCrossBorder"};
    const DebugLog log;
    static_cast<void>(RunWithFault());
    EXPECT_THAT(
        LogEntries(log),
        testing::Contains(LogEntry{NAMES[static_cast<std::size_t>(GetParam())], UNEXPECTED_ERROR}));
}

}  // namespace

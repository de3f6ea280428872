// Memory that runs out at the edges of a request: before its record is made, in the traces of its
// arguments, in its closing steps, and in what no request of a family is.
#include <KZEkaMok/KZEkaMokC.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <climits>
#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "KZCEkaMOKManager.h"
#include "fault/Fault.h"
#include "support/AllocationFault.h"
#include "support/FamilyHost.h"
#include "support/LogEntries.h"

namespace {

using AllocationFault::Kind;

constexpr const char* FATAL_ERROR = "0000-00000-HE70018E";
constexpr const char* NO_ERROR = "0000-00000-HE70017E";
constexpr long KEY = 2;
/// Bytes that nothing needs but the document of a test.
constexpr std::size_t LARGE = 1000000;

std::string Detail()
{
    return KZCValidResult::instance()->MakeResult();
}

/// Those of the entries that tell of something unexpected.
std::vector<LogEntry> Unexpected(std::vector<LogEntry> vecEntry)
{
    std::erase_if(vecEntry,
                  [](const LogEntry& entry) { return entry.strMessage != UNEXPECTED_ERROR; });
    return vecEntry;
}

class EntryFaultTest : public FamilyHost
{
protected:
    EntryFaultTest()
    {
        m_pBehindRequest = [] { AllocationFault::Disarm(); };
    }

    /// What a request with one failing allocation gave.
    struct Outcome
    {
        Answer answer;
        std::vector<LogEntry> vecEntry;
    };

    /// Runs a request with the log on and that allocation failing; 0 for none.
    template <class Request>
    static Outcome RunWithFault(Request request, std::size_t nNumber)
    {
        const DebugLog log;
        AllocationFault::Arm(nNumber, Kind::Once);
        Answer answer = request();
        AllocationFault::Disarm();
        return {std::move(answer), LogEntries(log)};
    }
    /// Lets one allocation after the other fail, from the last of the request backwards, until an
    /// outcome is the one that is looked for. \return that one; null if there is none.
    template <class Request, class IsWanted>
    static std::optional<Outcome> FindFromTheEnd(Request request, IsWanted isWanted)
    {
        static_cast<void>(RunWithFault(request, 0));
        for (std::size_t nNumber = AllocationFault::Disarm(); nNumber > 0; --nNumber) {
            Outcome outcome = RunWithFault(request, nNumber);
            if (isWanted(outcome))
                return outcome;
        }
        return std::nullopt;
    }
};

// ---- what is no request of a family ------------------------------------------------------------

TEST_F(EntryFaultTest, RecordOfCsvWriteThatCannotBeMadeIsNullAndNothingIsWritten)
{
    const std::string strPath = m_folder.Path("out.csv");
    KZCCsvConvMokEka::ReleaseResult();
    AllocationFault::Arm(1, Kind::Once);
    const Answer answer = Write(strPath.c_str(), "a");
    AllocationFault::Disarm();
    EXPECT_EQ(answer.strResult, "null");
    EXPECT_FALSE(m_folder.Has("out.csv"));
}

TEST_F(EntryFaultTest, FaultOfCsvWriteIsAFailureAndLoggedUnderItsName)
{
    const auto outcome =
        FindFromTheEnd([this] { return Write("", "a"); },
                       [](const Outcome& found) { return found.answer == Refused(""); });
    ASSERT_TRUE(outcome);
    EXPECT_THAT(Unexpected(outcome->vecEntry),
                testing::ElementsAre(LogEntry{"KZCCsvConvMokEka::CsvWrite", UNEXPECTED_ERROR}));
}

TEST_F(EntryFaultTest, TerminateWithoutAnyStoreMakesNoneOnItsWay)
{
    KZCConvertInfo::destroy();
    KZCValidResult::destroy();
    KZCEkaTaxOffices::destroy();
    AllocationFault::Arm(0, Kind::Once);
    m_entry.Terminate();
    EXPECT_EQ(AllocationFault::Disarm(), 0U);
    EXPECT_EQ(StorePeek::Kind(), StoreKind::None);
}

TEST_F(EntryFaultTest, ResultStoreThatCannotBeHadCountsAsAnError)
{
    const DebugLog log;
    KZCEkaMOKManager manager;
    KZCValidResult::destroy();
    AllocationFault::Arm(1, Kind::Once);
    const bool bHas = manager.HasErrorMsg();
    AllocationFault::Disarm();
    EXPECT_TRUE(bHas);
    EXPECT_EQ(Detail(), FATAL_ERROR);
    EXPECT_THAT(LogEntries(log),
                testing::ElementsAre(LogEntry{"KZCEkaMOKManager::HasErrorMsg", UNEXPECTED_ERROR}));
}

// ---- the traces of the arguments ---------------------------------------------------------------

class KeyTraceTest : public EntryFaultTest, public testing::WithParamInterface<Family>
{};

std::string Name(const testing::TestParamInfo<Family>& info)
{
    return testing::PrintToString(info.param);
}

INSTANTIATE_TEST_SUITE_P(Families, KeyTraceTest, testing::ValuesIn(FAMILIES), Name);

TEST_P(KeyTraceTest, KeyThatCannotBeTracedIsNoFaultOfTheRequest)
{
    // Twenty characters: more than a text holds without memory of its own.
    constexpr long LONG_KEY = LONG_MIN;
    // The traces of path and key come first and take no more than this.
    constexpr std::size_t ENOUGH = 60;
    for (const bool bCheck : {true, false}) {
        const auto run = [&] {
            return bCheck ? ElCheck(GetParam(), "", LONG_KEY)
                          : ElConvert(GetParam(), LONG_KEY, FilerOf(GetParam()));
        };
        const Answer good = run();
        EXPECT_EQ(good.strResult, "E_FAIL");
        EXPECT_EQ(RunWithFault(run, 1).answer, good);
        for (std::size_t nNumber = 2; nNumber <= ENOUGH; ++nNumber) {
            const DebugLog log;
            AllocationFault::Arm(nNumber, Kind::Once);
            EXPECT_NO_THROW(static_cast<void>(run())) << nNumber;
            AllocationFault::Disarm();
        }
    }
}

// ---- the closing steps -------------------------------------------------------------------------

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

using ClosingCase = std::tuple<Family, Shape>;

class ClosingFaultTest : public EntryFaultTest, public testing::WithParamInterface<ClosingCase>
{
protected:
    /// A request that is refused for its path or its unknown key.
    Answer RunRefused()
    {
        const Filer filer = FilerOf(m_eFamily);
        switch (m_eShape) {
            case Shape::Check:
                return Check(m_eFamily, "");
            case Shape::Convert:
                return Convert(m_eFamily, "", filer);
            case Shape::ElCheck:
                return ElCheck(m_eFamily, "", KEY);
            case Shape::ElConvert:
                return ElConvert(m_eFamily, KEY, filer);
        }
        return {};
    }
    LogEntry Logged() const
    {
        constexpr const char* NAMES[3][4] = {
            {"KZCCsvConvMokEka::CsvCheck", "KZCCsvConvMokEka::CsvConvMok",
             "KZCCsvConvMokEka::ELCsvCheck", "KZCCsvConvMokEka::ELCsvConvMok"},
            {"KZCCsvConvMokEka::CsvCheckFinance", "KZCCsvConvMokEka::CsvConvMokFinance",
             "KZCCsvConvMokEka::ELCsvCheckFinance", "KZCCsvConvMokEka::ELCsvConvMokFinance"},
            {"CsvCheckCrossBorder", "CsvConvMokCrossBorder", "ELCsvCheckCrossBorder",
             "ELCsvConvMokCrossBorder"}};
        return {NAMES[static_cast<std::size_t>(m_eFamily)][static_cast<std::size_t>(m_eShape)],
                UNEXPECTED_ERROR};
    }

    const Family m_eFamily = std::get<0>(GetParam());
    const Shape m_eShape = std::get<1>(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Requests,
                         ClosingFaultTest,
                         testing::Combine(testing::ValuesIn(FAMILIES),
                                          testing::Values(Shape::Check,
                                                          Shape::Convert,
                                                          Shape::ElCheck,
                                                          Shape::ElConvert)),
                         [](const auto& testCase) {
                             return testing::PrintToString(std::get<0>(testCase.param)) +
                                    testing::PrintToString(std::get<1>(testCase.param));
                         });

TEST_P(ClosingFaultTest, TableThatCannotBeRenderedStaysAndIsLoggedOnce)
{
    const std::string strTable = RunRefused().strDetail;
    const auto outcome = FindFromTheEnd(
        [this] { return RunRefused(); },
        [&](const Outcome& found) { return found.answer == Refused("") && Detail() == strTable; });
    ASSERT_TRUE(outcome);
    EXPECT_THAT(Unexpected(outcome->vecEntry), testing::ElementsAre(Logged()));
}

class LargeDocumentTest : public EntryFaultTest, public testing::WithParamInterface<Family>
{
protected:
    LargeDocumentTest()
    {
        const std::string strReport =
            R"(<report id="003" columnNum="3" procId=")" +
            std::string(FilerOf(GetParam()).szTetsuzuki) +
            R"(" procVR="1" reportId="R" reportVR="1" startRow="0" endRow="0">)"
            R"(<item type="Normal" id="A" parent="R" column="3"/></report>)";
        for (const char* szFile :
             {"KZEkaDefine.xml", "Finance/PGE2015_vld.xml", "Finance/PGE2015_tpl.xml",
              "CrossBorder/PGE1650_vld.xml", "CrossBorder/PGE1650_tpl.xml"})
            m_bundle.Write(szFile, DefinitionFile(strReport));
        EXPECT_EQ(ElCheck(GetParam(), Csv(Record(GetParam(), "1," + std::string(LARGE, 'a'))), KEY)
                      .strResult,
                  "S_OK");
    }
};

INSTANTIATE_TEST_SUITE_P(Families, LargeDocumentTest, testing::ValuesIn(FAMILIES), Name);

TEST_P(LargeDocumentTest, DocumentThatTheRecordCannotTakeIsAFailureWithoutATable)
{
    constexpr const char* NAMES[] = {"KZCCsvConvMokEka::ELCsvConvMok",
                                     "KZCCsvConvMokEka::ELCsvConvMokFinance",
                                     "ELCsvConvMokCrossBorder"};
    const Filer filer = FilerOf(GetParam());
    AllocationFault::Arm(0, Kind::Once, LARGE);
    const Answer good = ElConvert(GetParam(), KEY, filer);
    const std::size_t nLast = AllocationFault::Disarm();
    ASSERT_EQ(good.strResult, "S_OK");
    // The record's own copy is the last that takes so much. It must not have room from before.
    KZCCsvConvMokEka::ReleaseResult();
    const DebugLog log;
    AllocationFault::Arm(nLast, Kind::Once, LARGE);
    const Answer answer = ElConvert(GetParam(), KEY, filer);
    AllocationFault::Disarm();
    EXPECT_TRUE(answer == Refused("")) << answer.strResult << answer.strDetail;
    // The steps of the conversion had ended well: nothing is recorded.
    EXPECT_EQ(Detail(), NO_ERROR);
    EXPECT_THAT(Unexpected(LogEntries(log)),
                testing::ElementsAre(
                    LogEntry{NAMES[static_cast<std::size_t>(GetParam())], UNEXPECTED_ERROR}));
    EXPECT_TRUE(ElConvert(GetParam(), KEY, filer) == good);
}

// ---- a document that can't be serialised -------------------------------------------------------

TEST_P(KeyTraceTest, DocumentThatCannotBeSerialisedIsMessageSixteenAndSaidSo)
{
    constexpr const char* NAMES[] = {"KZCEkaMOKManager::MakeMok",
                                     "KZCEkaMOKManagerFinance::MakeMok", "MakeMok"};
    const std::string strFunction = NAMES[static_cast<std::size_t>(GetParam())];
    const LogEntry failed = {strFunction, "MOKファイルの保存に失敗。"};
    const LogEntry refused = {strFunction,
                              "想定外の事象によりMOKファイルの作成に失敗しました。（HE70016E）"};
    ASSERT_EQ(ElCheck(GetParam(), GoodCsv(GetParam()), KEY).strResult, "S_OK");
    const auto outcome =
        FindFromTheEnd([this] { return ElConvert(GetParam(), KEY, FilerOf(GetParam())); },
                       [&](const Outcome& found) {
                           return std::ranges::find(found.vecEntry, failed) != found.vecEntry.end();
                       });
    ASSERT_TRUE(outcome);
    EXPECT_EQ(outcome->answer, Refused("0000-00000-HE70016E"));
    EXPECT_EQ(*(std::ranges::find(outcome->vecEntry, failed) + 1), refused);
}

// ---- the C functions ---------------------------------------------------------------------------

struct CFunction
{
    const char* szName;
    KZEkaMokResult* (*pCall)();
};

void PrintTo(const CFunction& function, std::ostream* pStream)
{
    *pStream << function.szName;
}

class CFunctionTest : public EntryFaultTest, public testing::WithParamInterface<CFunction>
{
protected:
    /// What the function gives with that allocation failing, and all behind it.
    static bool GivesNull(std::size_t nNumber)
    {
        AllocationFault::Arm(nNumber, Kind::FromThere);
        KZEkaMokResult* pResult = GetParam().pCall();
        AllocationFault::Disarm();
        const bool bNull = pResult == nullptr;
        KZEkaMokResult_Free(pResult);
        return bNull;
    }
};

TEST_P(CFunctionTest, GivesNullIfTheHostsHolderCannotBeMade)
{
    EXPECT_TRUE(GivesNull(1));
}

TEST_P(CFunctionTest, GivesNullIfTheResultInItCannotBeMade)
{
    EXPECT_TRUE(GivesNull(2));
}

TEST_P(CFunctionTest, GivesAnEmptyResultIfTheRequestCannotBeRun)
{
    KZCCsvConvMokEka::ReleaseResult();
    AllocationFault::Arm(3, Kind::FromThere);
    KZEkaMokResult* pResult = GetParam().pCall();
    AllocationFault::Disarm();
    ASSERT_NE(pResult, nullptr);
    EXPECT_STREQ(KZEkaMokResult_Result(pResult), "");
    EXPECT_STREQ(KZEkaMokResult_DetailErrorInfo(pResult), "");
    KZEkaMokResult_Free(pResult);
}

constexpr const char* N = nullptr;

const CFunction C_FUNCTIONS[] = {
    {"CsvCheck", [] { return KZEkaMok_CsvCheck(N); }},
    {"CsvConvMok", [] { return KZEkaMok_CsvConvMok(N, N, N, N, N, N, N, N, N, N, N, N, N, N); }},
    {"ELCsvCheck", [] { return KZEkaMok_ELCsvCheck(N, 1); }},
    {"ELCsvConvMok", [] { return KZEkaMok_ELCsvConvMok(1, N, N, N, N, N, N, N, N, N, N, N); }},
    {"CsvWrite", [] { return KZEkaMok_CsvWrite(N, N); }},
    {"CsvCheckFinance", [] { return KZEkaMok_CsvCheckFinance(N); }},
    {"CsvConvMokFinance",
     [] {
         return KZEkaMok_CsvConvMokFinance(N, N, N, N, N, N, N, N, N, N, N, N, N, N, N, N, N, N, N,
                                           N);
     }},
    {"ELCsvCheckFinance", [] { return KZEkaMok_ELCsvCheckFinance(N, 1); }},
    {"ELCsvConvMokFinance",
     [] {
         return KZEkaMok_ELCsvConvMokFinance(1, N, N, N, N, N, N, N, N, N, N, N, N, N, N, N, N, N,
                                             N);
     }},
    {"CsvCheckCrossBorder", [] { return KZEkaMok_CsvCheckCrossBorder(N); }},
    {"CsvConvMokCrossBorder",
     [] {
         return KZEkaMok_CsvConvMokCrossBorder(N, N, N, N, N, N, N, N, N, N, N, N, N, N, N, N, N, N,
                                               N, N);
     }},
    {"ELCsvCheckCrossBorder", [] { return KZEkaMok_ELCsvCheckCrossBorder(N, 1); }},
    {"ELCsvConvMokCrossBorder",
     [] {
         return KZEkaMok_ELCsvConvMokCrossBorder(1, N, N, N, N, N, N, N, N, N, N, N, N, N, N, N, N,
                                                 N, N);
     }},
};

INSTANTIATE_TEST_SUITE_P(Functions,
                         CFunctionTest,
                         testing::ValuesIn(C_FUNCTIONS),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

}  // namespace

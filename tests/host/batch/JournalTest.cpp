#include "batch/Journal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "support/FileSizeLimit.h"
#include "support/TempFolder.h"

namespace host {
namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

constexpr const char* REPORT =
    R"({"file":"a.csv","result":"converted","status":0,"document":{"path":"o/a.mok","bytes":77},)"
    R"("counts":{"errors":0},"errors":[]})";

JournalEntry Entry(const std::string& strKey)
{
    return {strKey, FileState{12, "2026-11-21T15:52:00.000000005Z"}, "00ff", "a.mok", 0.25};
}

bool All(const EarlierResult& /*result*/)
{
    return true;
}

bool None(const EarlierResult& /*result*/)
{
    return false;
}

class JournalTest : public testing::Test
{
protected:
    FilePlace Place() const
    {
        FilePlace place;
        EXPECT_EQ(FindFolder(folder.Path(), Missing::Fails, place.folder), 0);
        place.strName = "report.json";
        return place;
    }
    /// What Load says about a report of these bytes.
    std::string LoadOf(std::string_view strBytes) const
    {
        folder.Write("report.json", strBytes);
        return Journal(Place()).Load();
    }
    std::string Line(const std::string& strKey) const { return JournalLine(REPORT, Entry(strKey)); }

    TempFolder folder;
};

TEST(JournalLineTest, EntryFollowsTheReportOnOneLine)
{
    const std::string strLine = JournalLine(REPORT, Entry("/x/a.csv"));
    EXPECT_EQ(strLine.find('\n'), strLine.size() - 1);
    json line = json::parse(strLine);
    EXPECT_EQ(line["file"], "a.csv");
    EXPECT_EQ(line["batch"]["finished"].get<std::string>().size(), 20U);
    line["batch"].erase("finished");
    EXPECT_EQ(line["batch"], json::parse(R"({"path":"/x/a.csv","bytes":12,
        "modified":"2026-11-21T15:52:00.000000005Z","options":"00ff","document":"a.mok",
        "seconds":0.25})"));
}

TEST(JournalLineTest, FileThatIsNotThereHasNoSize)
{
    JournalEntry entry = Entry("/x");
    entry.state.reset();
    entry.strDocument.clear();
    const json line = json::parse(JournalLine(REPORT, entry));
    EXPECT_EQ(line["batch"]["bytes"], nullptr);
    EXPECT_EQ(line["batch"]["modified"], nullptr);
    EXPECT_EQ(line["batch"]["document"], nullptr);
    EXPECT_EQ(ReadJournalLine(line.dump())->entry.state, std::nullopt);
}

TEST(JournalLineTest, LineIsReadBack)
{
    const auto result = ReadJournalLine(JournalLine(REPORT, Entry("/x/見本.csv")));
    ASSERT_TRUE(result);
    EXPECT_EQ(result->entry.strKey, "/x/見本.csv");
    EXPECT_EQ(result->entry.state, Entry("").state);
    EXPECT_EQ(result->entry.strOptions, "00ff");
    EXPECT_EQ(result->entry.strDocument, "a.mok");
    EXPECT_EQ(result->entry.dSeconds, 0.25);
    EXPECT_EQ(result->eOutcome, Outcome::Converted);
    EXPECT_EQ(result->eStatus, ExitStatus::Passed);
    EXPECT_EQ(result->nDocumentBytes, 77U);
}

TEST(JournalLineTest, PathThatIsNoUtf8ComesBackByteForByte)
{
    const std::string strLine = JournalLine(REPORT, Entry("/x/\xff\x82\n.csv"));
    EXPECT_THAT(strLine, HasSubstr(R"("pathBytes":"2f782fff820a2e637376")"));
    EXPECT_EQ(ReadJournalLine(strLine)->entry.strKey, "/x/\xff\x82\n.csv");
}

TEST(JournalLineTest, OtherTextsAreNoLines)
{
    const std::string strLine = JournalLine(REPORT, Entry("/x"));
    EXPECT_FALSE(ReadJournalLine(strLine.substr(0, strLine.size() - 2)));
    EXPECT_FALSE(ReadJournalLine(""));
    EXPECT_FALSE(ReadJournalLine("[]"));
    EXPECT_FALSE(ReadJournalLine(REPORT));
    EXPECT_FALSE(ReadJournalLine(R"({"batch":{"path":3}})"));
}

TEST_F(JournalTest, MissingFileHoldsNoResults)
{
    Journal journal(Place());
    EXPECT_EQ(journal.Load(), "");
    EXPECT_THAT(journal.Earlier(), IsEmpty());
}

TEST_F(JournalTest, LastLineOfAFileCounts)
{
    JournalEntry later = Entry("/a");
    later.strOptions = "later";
    folder.Write("report.json", Line("/a") + Line("/b") + JournalLine(REPORT, later));
    Journal journal(Place());
    EXPECT_EQ(journal.Load(), "");
    EXPECT_THAT(journal.Earlier(), SizeIs(2));
    EXPECT_EQ(journal.Earlier().at("/a").entry.strOptions, "later");
}

TEST_F(JournalTest, TornLastLineIsPassedOverAndGoesWithTheNextBeginning)
{
    const std::string strTorn = Line("/b");
    folder.Write("report.json", Line("/a") + strTorn.substr(0, strTorn.size() - 1));
    Journal journal(Place());
    EXPECT_EQ(journal.Load(), "");
    EXPECT_THAT(journal.Earlier(), SizeIs(1));
    EXPECT_EQ(journal.Begin(All), "");
    EXPECT_EQ(journal.Append(Line("/c")), "");
    Journal again(Place());
    EXPECT_EQ(again.Load(), "");
    EXPECT_THAT(again.Earlier(), SizeIs(2));
    EXPECT_TRUE(again.Earlier().contains("/a") && again.Earlier().contains("/c"));
}

TEST_F(JournalTest, TornFirstLineIsNobodyElses)
{
    for (const std::size_t nBytes : {std::size_t{1}, std::size_t{5}, std::size_t{60}}) {
        folder.Write("report.json", Line("/a").substr(0, nBytes));
        Journal journal(Place());
        EXPECT_EQ(journal.Load(), "") << nBytes;
        EXPECT_THAT(journal.Earlier(), IsEmpty());
    }
}

TEST_F(JournalTest, FileOfAnotherKindIsTold)
{
    for (const char* szText : {"{\"tests\": []}\n", "hello", "\n", "{\"file\":\"x\"}\n"}) {
        EXPECT_EQ(LoadOf(szText), "it wasn't written by a batch") << szText;
    }
}

TEST_F(JournalTest, FolderInItsPlaceIsTold)
{
    folder.MakeFolder("report.json");
    EXPECT_EQ(Journal(Place()).Load(), "it is no regular file");
}

TEST_F(JournalTest, PipeInItsPlaceIsToldAtOnce)
{
    ASSERT_EQ(mkfifo(folder.Path("report.json").c_str(), 0600), 0);
    EXPECT_EQ(Journal(Place()).Load(), "it is no regular file");
}

TEST_F(JournalTest, LinkInItsPlaceIsToldAndNotFollowed)
{
    folder.Write("elsewhere.json", Line("/a"));
    std::filesystem::create_symlink("elsewhere.json", folder.Path("report.json"));
    EXPECT_EQ(Journal(Place()).Load(), "it is no regular file");
}

TEST_F(JournalTest, ReportOfAnotherUserIsTold)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make another user's file";
    folder.Write("report.json", Line("/a"));
    ASSERT_EQ(chown(folder.Path("report.json").c_str(), 65534, 65534), 0);
    EXPECT_EQ(Journal(Place()).Load(), "it belongs to another user");
}

TEST_F(JournalTest, LineThatIsTooLongIsTold)
{
    std::string strLong = Line("/" + std::string(Journal::LINE_LONGEST, 'a'));
    EXPECT_EQ(LoadOf(Line("/b") + strLong), "a line in it is longer than 16 MiB");
    EXPECT_EQ(LoadOf(std::string(Journal::LINE_LONGEST + 1, '{')),
              "a line in it is longer than 16 MiB");
    strLong = Line("/") + std::string(1000, '{') + "\n";
    EXPECT_EQ(LoadOf(strLong), "");
}

TEST_F(JournalTest, ReportThatIsTooLargeIsToldWithoutBeingRead)
{
    folder.Write("report.json", Line("/a"));
    std::filesystem::resize_file(folder.Path("report.json"), Journal::BYTES_MOST + 1);
    EXPECT_EQ(Journal(Place()).Load(), "it is larger than 4 GiB");
}

TEST_F(JournalTest, LinesThatCannotBeReadAreCounted)
{
    folder.Write("report.json", Line("/a") + "nonsense\n" + std::string(200'000, '[') + "\n" +
                                    Line("/b") + "torn");
    Journal journal(Place());
    EXPECT_EQ(journal.Load(), "");
    EXPECT_THAT(journal.Earlier(), SizeIs(2));
    EXPECT_EQ(journal.BadLines(), 2U);
}

TEST_F(JournalTest, ResultsThatNameADocumentOutsideAreCountedAndLeftOut)
{
    std::string strLines;
    for (const char* szName :
         {"../a.mok", "/etc/a.mok", "b/../../a.mok", "./a.mok", "a//b.mok", "a/", "..", "passwd"}) {
        JournalEntry entry = Entry(std::string("/x/") + szName);
        entry.strDocument = szName;
        strLines += JournalLine(REPORT, entry);
    }
    folder.Write("report.json", strLines + Line("/good"));
    Journal journal(Place());
    EXPECT_EQ(journal.Load(), "");
    EXPECT_EQ(journal.ForeignLines(), 8U);
    EXPECT_THAT(journal.Earlier(), SizeIs(1));
    EXPECT_TRUE(journal.Earlier().contains("/good"));
}

TEST_F(JournalTest, ReportIsItsOwnersAloneUnlessAskedOtherwise)
{
    for (const mode_t mode : {mode_t{0600}, mode_t{0640}}) {
        Journal journal(Place(), mode);
        EXPECT_EQ(journal.Begin(None), "");
        struct stat info = {};
        ASSERT_EQ(stat(folder.Path("report.json").c_str(), &info), 0);
        EXPECT_EQ(info.st_mode & 0777, mode);
    }
}

TEST_F(JournalTest, ReportThatIsReplacedMeanwhileIsNoticedAndNotRead)
{
    Journal journal(Place());
    EXPECT_EQ(journal.Begin(None), "");
    EXPECT_EQ(journal.Append(Line("/a")), "");
    EXPECT_TRUE(journal.IsInPlace());
    std::filesystem::remove(folder.Path("report.json"));
    folder.Write("report.json", Line("/forged"));
    EXPECT_FALSE(journal.IsInPlace());
    std::string strRead;
    EXPECT_EQ(journal.Read([&](const std::string& strLine) { strRead += strLine + "\n"; }), "");
    EXPECT_EQ(strRead, Line("/a"));
}

TEST_F(JournalTest, LineThatTheNextRunWouldNotReadIsNotWritten)
{
    Journal journal(Place());
    EXPECT_EQ(journal.Begin(None), "");
    EXPECT_EQ(journal.Append(Line(std::string(Journal::LINE_LONGEST, 'a'))), "File too large");
    EXPECT_EQ(folder.Read("report.json"), "");
}

TEST_F(JournalTest, LinesThatStayKeepTheirOrderAndBytes)
{
    const std::string strFirst = Line("/z");
    const std::string strLast = Line("/a");
    folder.Write("report.json", strFirst + Line("/gone") + strLast);
    Journal journal(Place());
    EXPECT_EQ(journal.Load(), "");
    EXPECT_EQ(
        journal.Begin([](const EarlierResult& result) { return result.entry.strKey != "/gone"; }),
        "");
    EXPECT_EQ(folder.Read("report.json"), strFirst + strLast);
    EXPECT_THAT(folder.Names(), SizeIs(1));
}

TEST_F(JournalTest, FolderThatIsRemovedGivesTheReason)
{
    const std::string strFolder = folder.MakeFolder("gone");
    FilePlace place;
    ASSERT_EQ(FindFolder(strFolder, Missing::Fails, place.folder), 0);
    place.strName = "report.json";
    std::filesystem::remove(strFolder);
    EXPECT_EQ(Journal(std::move(place)).Begin(None), "No such file or directory");
}

TEST_F(JournalTest, BeginningThatFailsLeavesTheFileAsItWas)
{
    folder.Write("report.json", Line("/a"));
    Journal journal(Place());
    EXPECT_EQ(journal.Load(), "");
    {
        const FileSizeLimit limit(10);
        EXPECT_EQ(journal.Begin(All), "File too large");
    }
    EXPECT_EQ(folder.Read("report.json"), Line("/a"));
    EXPECT_THAT(folder.Names(), SizeIs(1));
}

TEST_F(JournalTest, LinkBesideTheReportIsNotWrittenThrough)
{
    folder.Write("victim", "precious");
    std::filesystem::create_symlink("victim", folder.Path("report.json.new"));
    Journal journal(Place());
    EXPECT_EQ(journal.Begin(None), "");
    EXPECT_EQ(journal.Append(Line("/a")), "");
    EXPECT_EQ(folder.Read("victim"), "precious");
    EXPECT_EQ(folder.Read("report.json"), Line("/a"));
    EXPECT_FALSE(std::filesystem::is_symlink(folder.Path("report.json")));
}

TEST_F(JournalTest, LineThatDoesNotFitIsTakenBack)
{
    Journal journal(Place());
    EXPECT_EQ(journal.Begin(None), "");
    EXPECT_EQ(journal.Append(Line("/a")), "");
    {
        const FileSizeLimit limit(Line("/a").size() + 10);
        EXPECT_EQ(journal.Append(Line("/b")), "File too large");
    }
    EXPECT_EQ(folder.Read("report.json").size(), Line("/a").size());
    EXPECT_EQ(journal.Append(Line("/c")), "");
    EXPECT_EQ(folder.Read("report.json").size(), 2 * Line("/a").size());
}

}  // namespace
}  // namespace host

#include "batch/Journal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

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
    std::string Path() const { return folder.Path("report.json"); }
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
    Journal journal(Path());
    EXPECT_TRUE(journal.Load());
    EXPECT_THAT(journal.Earlier(), IsEmpty());
}

TEST_F(JournalTest, LastLineOfAFileCounts)
{
    JournalEntry later = Entry("/a");
    later.strOptions = "later";
    folder.Write("report.json", Line("/a") + Line("/b") + JournalLine(REPORT, later));
    Journal journal(Path());
    EXPECT_TRUE(journal.Load());
    EXPECT_THAT(journal.Earlier(), SizeIs(2));
    EXPECT_EQ(journal.Earlier().at("/a").entry.strOptions, "later");
}

TEST_F(JournalTest, TornLastLineIsPassedOverAndGoesWithTheNextBeginning)
{
    const std::string strTorn = Line("/b");
    folder.Write("report.json", Line("/a") + strTorn.substr(0, strTorn.size() - 1));
    Journal journal(Path());
    EXPECT_TRUE(journal.Load());
    EXPECT_THAT(journal.Earlier(), SizeIs(1));
    EXPECT_EQ(journal.Begin(All), "");
    EXPECT_EQ(journal.Append(Line("/c")), "");
    Journal again(Path());
    EXPECT_TRUE(again.Load());
    EXPECT_THAT(again.Earlier(), SizeIs(2));
    EXPECT_TRUE(again.Earlier().contains("/a") && again.Earlier().contains("/c"));
}

TEST_F(JournalTest, TornFirstLineIsNobodyElses)
{
    for (const std::size_t nBytes : {std::size_t{1}, std::size_t{5}, std::size_t{60}}) {
        folder.Write("report.json", Line("/a").substr(0, nBytes));
        Journal journal(Path());
        EXPECT_TRUE(journal.Load()) << nBytes;
        EXPECT_THAT(journal.Earlier(), IsEmpty());
    }
}

TEST_F(JournalTest, FileOfAnotherKindIsTold)
{
    for (const char* szText : {"{\"tests\": []}\n", "hello", "\n", "{\"file\":\"x\"}\n"}) {
        folder.Write("report.json", szText);
        EXPECT_FALSE(Journal(Path()).Load()) << szText;
    }
}

TEST_F(JournalTest, FolderInItsPlaceIsTold)
{
    folder.MakeFolder("report.json");
    EXPECT_FALSE(Journal(Path()).Load());
}

TEST_F(JournalTest, LinesThatStayKeepTheirOrderAndBytes)
{
    const std::string strFirst = Line("/z");
    const std::string strLast = Line("/a");
    folder.Write("report.json", strFirst + Line("/gone") + strLast);
    Journal journal(Path());
    EXPECT_TRUE(journal.Load());
    EXPECT_EQ(
        journal.Begin([](const EarlierResult& result) { return result.entry.strKey != "/gone"; }),
        "");
    EXPECT_EQ(folder.Read("report.json"), strFirst + strLast);
    EXPECT_THAT(folder.Names(), SizeIs(1));
}

TEST_F(JournalTest, FolderThatDoesNotExistGivesTheReason)
{
    EXPECT_EQ(Journal(folder.Path("absent/report.json")).Begin(None), "No such file or directory");
}

TEST_F(JournalTest, BeginningThatFailsLeavesTheFileAsItWas)
{
    folder.Write("report.json", Line("/a"));
    folder.MakeFolder("report.json.new");
    Journal journal(Path());
    EXPECT_TRUE(journal.Load());
    EXPECT_EQ(journal.Begin(None), "Is a directory");
    EXPECT_EQ(folder.Read("report.json"), Line("/a"));
}

TEST_F(JournalTest, LineThatDoesNotFitIsTakenBack)
{
    Journal journal(Path());
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

#include "rules/StructureHint.h"

#include <gtest/gtest.h>

#include "support/TempFolder.h"

namespace host {
namespace {

constexpr const char* DEFINITION = R"(<define>
  <report id="002" columnNum="3" procId="PGE5020"/>
  <report id="008" columnNum="2" procId="PGE5080"/>
</define>
)";

class StructureHintTest : public testing::Test
{
protected:
    StructureHintTest() { m_folder.Write("KZEkaDefine.xml", DEFINITION); }

    std::string Hint(KZCEkaMessage_t eMessage, const char* szCsv) const
    {
        return StructureHint(eMessage, CsvCells(szCsv), m_definitions);
    }

    TempFolder m_folder;
    Definitions m_definitions{m_folder.Path()};
};

TEST_F(StructureHintTest, WrongColumnCountNamesTheFirstRecordThatHasIt)
{
    EXPECT_EQ(Hint(HE70019E, "002,a,b\n\n002,a\n002\n"),
              "Record 3 has 2 columns, a record of type 002 has 3.");
}

TEST_F(StructureHintTest, OtherTypeIdNamesTheFirstRecordThatHasIt)
{
    EXPECT_EQ(Hint(HE70021E, "002,a,b\n008,a\n"),
              "Record 2 begins with \"008\", the file with \"002\".");
}

TEST_F(StructureHintTest, LineOfCommasIsAnotherTypeId)
{
    EXPECT_EQ(Hint(HE70021E, "002,a,b\n,,\n"), "Record 2 begins with \"\", the file with \"002\".");
}

TEST_F(StructureHintTest, UnknownTypeIdIsNamedWithTheKnownOnes)
{
    EXPECT_EQ(
        Hint(HE70021E, "\n\x1b,a,b\n"),
        "Record 2 begins with \"\\u{1b}\"; the definitions know 002, 008, 101 to 116, 201, 202, "
        "301, 302.");
}

TEST_F(StructureHintTest, TooManyRecordsAreCounted)
{
    EXPECT_EQ(Hint(HE70020E, "002\n002\n"), "It has 3 lines.");
}

/// The shipped definitions. Type 101 has one form of 36 columns, type 111 three forms: its first
/// record, its second, all behind.
class FamilyHintTest : public testing::Test
{
protected:
    std::string Hint(KZCEkaMessage_t eMessage, Family eFamily, const std::string& strCsv) const
    {
        return StructureHint(eMessage, CsvCells(strCsv, eFamily), m_definitions);
    }

    static std::string Columns(const std::string& strTypeId, long lColumns)
    {
        return strTypeId + std::string(static_cast<std::size_t>(lColumns - 1), ',') + "\n";
    }

    long ColumnsOf(const std::string& strTypeId, std::size_t nForm) const
    {
        return m_definitions.Find(strTypeId)->vecForm.at(nForm).lColumnNum;
    }

    Definitions m_definitions{KZEKAMOK_SOURCE_BUNDLE};
};

TEST_F(FamilyHintTest, WrongColumnCountIsFoundByTheRecordsForm)
{
    const long lFirst = ColumnsOf("111", 0);
    const long lSecond = ColumnsOf("111", 1);
    EXPECT_EQ(Hint(HE70019E, Family::Finance,
                   Columns("111", lFirst) + Columns("", lSecond + 1) + Columns("", 2)),
              "Record 2 has " + std::to_string(lSecond + 1) + " columns, a record there has " +
                  std::to_string(lSecond) + ".");
}

TEST_F(FamilyHintTest, RecordOfEmptyCellsIsPassedOverWhereThereIsOneForm)
{
    const std::string strRight = Columns("101", ColumnsOf("101", 0));
    EXPECT_EQ(Hint(HE70019E, Family::Finance, strRight + ",\n101,\n"),
              "Record 3 has 2 columns, a record of type 101 has 36.");
}

TEST_F(FamilyHintTest, RecordHasItsLineIfThatIsAnotherNumber)
{
    EXPECT_EQ(Hint(HE70021E, Family::CrossBorder, "301,\"a\n\"\n\n302,b\n"),
              "Record 2 (line 4) begins with \"302\", the file with \"301\".");
}

TEST_F(FamilyHintTest, UnknownTypeIdIsToldTheFamilysIds)
{
    EXPECT_EQ(Hint(HE70021E, Family::Finance, "301,a\n"),
              "Record 1 begins with \"301\"; the definitions know 101 to 116, 201, 202.");
    EXPECT_EQ(Hint(HE70021E, Family::CrossBorder, "101,a\n"),
              "Record 1 begins with \"101\"; the definitions know 301, 302.");
    EXPECT_EQ(Hint(HE70021E, Family::Base, "101,a\n"),
              "Record 1 begins with \"101\"; the definitions know 001 to 009.");
}

TEST_F(FamilyHintTest, TooManyRecordsAreComparedWithTheProceduresLimit)
{
    EXPECT_EQ(Hint(HE70029E, Family::Finance, "108,a\n\n,b\n108,c\n"),
              "It has 2 records, procedure PGE2080 allows 1.")
        << "a record with an empty first column doesn't count";
}

TEST_F(FamilyHintTest, MissingSecondRecordTellsHowManyThereAre)
{
    EXPECT_EQ(Hint(HE70033E, Family::Finance, "111,a\n,,\n"),
              "Type 111 has 3 kinds of records and needs one of each; the file has 1.");
}

TEST_F(StructureHintTest, CellErrorHasNoHint)
{
    EXPECT_EQ(Hint(HE70001E, "002,a,b\n"), "");
}

TEST_F(StructureHintTest, WithoutDefinitionsThereIsNoHint)
{
    EXPECT_EQ(StructureHint(HE70019E, CsvCells("002,a"), Definitions("")), "");
}

}  // namespace
}  // namespace host

#include "StructureHint.h"

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

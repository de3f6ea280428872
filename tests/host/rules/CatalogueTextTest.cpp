#include "rules/CatalogueText.h"

#include <gtest/gtest.h>

namespace host {
namespace {

TEST(CatalogueTextTest, KeywordsThatReportACodeAreNamed)
{
    EXPECT_EQ(KeywordsThatReport(HE70007E), "charlength");
    EXPECT_EQ(KeywordsThatReport(HE70003E), "multikana");
    EXPECT_EQ(KeywordsThatReport(HE70021E), "");
}

TEST(CatalogueTextTest, CodeOfACheckIsItsOwnOrElseItsKeywords)
{
    CheckDefinition check;
    check.strKeyword = "charlength";
    EXPECT_EQ(CodeOfCheck(check), "HE70007E");
    check.strMessage = "HE70010E";
    EXPECT_EQ(CodeOfCheck(check), "HE70010E");
    check.strMessage = "HE00000E";
    EXPECT_EQ(CodeOfCheck(check), "HE70007E") << "an unknown code is as none";
    check.strKeyword = "rangebasedate";
    check.strMessage = "";
    EXPECT_EQ(CodeOfCheck(check), "") << "it reports two codes";
    check.strKeyword = "unknown";
    EXPECT_EQ(CodeOfCheck(check), "");
}

TEST(CatalogueTextTest, RecordsOfAFormAreSaid)
{
    ProcedureDefinition procedure;
    procedure.vecForm.resize(1);
    EXPECT_EQ(RecordsOfForm(procedure, procedure.vecForm[0]), "all records");
    procedure.vecForm.resize(4);
    procedure.vecForm[0].lStartRow = procedure.vecForm[0].lEndRow = 1;
    procedure.vecForm[1].lStartRow = 2;
    procedure.vecForm[1].lEndRow = 4;
    procedure.vecForm[2].lStartRow = 5;
    procedure.vecForm[2].lEndRow = -1;
    EXPECT_EQ(RecordsOfForm(procedure, procedure.vecForm[0]), "record 1");
    EXPECT_EQ(RecordsOfForm(procedure, procedure.vecForm[1]), "records 2 to 4");
    EXPECT_EQ(RecordsOfForm(procedure, procedure.vecForm[2]), "records 5 to the last");
    procedure.vecForm[3].bLastRecord = true;
    EXPECT_EQ(RecordsOfForm(procedure, procedure.vecForm[2]), "records 5 to the last but one");
    EXPECT_EQ(RecordsOfForm(procedure, procedure.vecForm[3]), "the last record");
}

}  // namespace
}  // namespace host

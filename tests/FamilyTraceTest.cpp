// The labels under which the requests of all families trace their arguments and results, in order.
#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "support/FamilyHost.h"
#include "support/LogEntries.h"

namespace {

using Entries = std::vector<LogEntry>;

class FamilyTraceTest : public FamilyHost
{
protected:
    FamilyTraceTest()
    {
        m_strFinanceCsv = GoodCsv(Family::Finance);
        m_strCrossBorderCsv = GoodCsv(Family::CrossBorder);
    }

    /// A filer whose every field is there, so that each is traced.
    static Filer FullFiler(Family eFamily)
    {
        Filer filer = FilerOf(eFamily);
        filer.szHojinBango = "";
        return filer;
    }

    DebugLog m_log;
    std::string m_strFinanceCsv;
    std::string m_strCrossBorderCsv;
};

// ---- checks ------------------------------------------------------------------------------------

TEST_F(FamilyTraceTest, FinanceCheckThatPasses)
{
    EXPECT_EQ(Check(Family::Finance, m_strFinanceCsv).strResult, "S_OK");
    EXPECT_EQ(TraceEntries(m_log), (Entries{{"CsvCheckFinance引数_szCsvPathName:", m_strFinanceCsv},
                                            {"CsvCheckFinance OK : 返却値_ProcID:", "PGE2015"}}));
}

TEST_F(FamilyTraceTest, FinanceCheckThatIsRefused)
{
    EXPECT_EQ(Check(Family::Finance, "x.doc").strResult, "E_FAIL");
    EXPECT_EQ(TraceEntries(m_log),
              (Entries{{"CsvCheckFinance引数_szCsvPathName:", "x.doc"},
                       {"CsvCheckFinance NG : 返却値_ErrorMsg:", "9999-00001-HE70015E"}}));
}

TEST_F(FamilyTraceTest, CrossBorderCheckThatPassesTellsItsProcedureUnderTheLabelOfAResult)
{
    EXPECT_EQ(Check(Family::CrossBorder, m_strCrossBorderCsv).strResult, "S_OK");
    EXPECT_EQ(TraceEntries(m_log),
              (Entries{{"CsvCheckCrossBorder引数_szCsvPathName:", m_strCrossBorderCsv},
                       {"CsvCheckCrossBorder OK : 返却値:S_OK", "PGE1650"}}));
}

TEST_F(FamilyTraceTest, CrossBorderCheckThatIsRefused)
{
    EXPECT_EQ(Check(Family::CrossBorder, "x.doc").strResult, "E_FAIL");
    EXPECT_EQ(TraceEntries(m_log),
              (Entries{{"CsvCheckCrossBorder引数_szCsvPathName:", "x.doc"},
                       {"CsvCheckCrossBorder NG : 返却値_ErrorMsg:", "9999-00001-HE70015E"}}));
}

TEST_F(FamilyTraceTest, FinanceElCheckThatPasses)
{
    EXPECT_EQ(ElCheck(Family::Finance, m_strFinanceCsv, 16).strResult, "S_OK");
    EXPECT_EQ(TraceEntries(m_log),
              (Entries{{"ELCsvCheckFinance引数_szCsvPathName:", m_strFinanceCsv},
                       {"ELCsvCheckFinance引数_lCsvDistKey:", "16"},
                       {"ELCsvCheckFinance OK : 返却値_ProcID:", "PGE2015"},
                       {"ELCsvCheckFinance OK : 返却値_RecordCount:", "1"}}));
}

TEST_F(FamilyTraceTest, FinanceElCheckThatIsRefused)
{
    EXPECT_EQ(ElCheck(Family::Finance, m_strFinanceCsv, 17).strResult, "E_FAIL");
    EXPECT_EQ(TraceEntries(m_log),
              (Entries{{"ELCsvCheckFinance引数_szCsvPathName:", m_strFinanceCsv},
                       {"ELCsvCheckFinance引数_lCsvDistKey:", "17"},
                       {"ELCsvCheckFinance NG : 返却値_ErrorMsg:", "9999-00002-HE70009E"}}));
}

TEST_F(FamilyTraceTest, CrossBorderElCheckThatPasses)
{
    EXPECT_EQ(ElCheck(Family::CrossBorder, m_strCrossBorderCsv, 10).strResult, "S_OK");
    EXPECT_EQ(TraceEntries(m_log),
              (Entries{{"ELCsvCheckCrossBorder引数_szCsvPathName:", m_strCrossBorderCsv},
                       {"ELCsvCheckCrossBorder引数_lCsvDistKey:", "10"},
                       {"ELCsvCheckCrossBorder OK : 返却値_ProcID:", "PGE1650"},
                       {"ELCsvCheckCrossBorder OK : 返却値_RecordCount:", "1"}}));
}

TEST_F(FamilyTraceTest, CrossBorderElCheckThatIsRefused)
{
    EXPECT_EQ(ElCheck(Family::CrossBorder, m_strCrossBorderCsv, -1).strResult, "E_FAIL");
    EXPECT_EQ(TraceEntries(m_log),
              (Entries{{"ELCsvCheckCrossBorder引数_szCsvPathName:", m_strCrossBorderCsv},
                       {"ELCsvCheckCrossBorder引数_lCsvDistKey:", "-1"},
                       {"ELCsvCheckCrossBorder NG : 返却値_ErrorMsg:", "9999-00002-HE70009E"}}));
}

// ---- conversions -------------------------------------------------------------------------------

class FinanceTraceTest : public FamilyTraceTest
{
protected:
    Entries PlainArguments() const
    {
        return {{"CsvConvMok引数_szCsvPathName:", m_strFinanceCsv},
                {"CsvConvMok引数_szMokPathName:", m_strMok},
                {"CsvConvMok引数_szZeimushoCD:", "00101"},
                {"CsvConvMok引数_szNozeishaId:", "1234567890123456"},
                {"CsvConvMok引数_szKojinBango:", "123456789012"},
                {"CsvConvMok引数_szHojinBango:", ""},
                {"CsvConvMok引数_szNozeishaNm:", "青葉商会"},
                {"CsvConvMok引数_szNozeishaAdr:", "青葉市1-2-3"},
                {"CsvConvMok引数_szDaihyoNm:", "青葉太郎"},
                {"CsvConvMok引数_szDairiId:", "6543210987654321"},
                {"CsvConvMok引数_szDairiNm:", "白樺税務事務所"},
                {"CsvConvMok引数_szDairiAdr:", "紅葉市4-5"},
                {"CsvConvMok引数_szTetsuzuki:", "PGE2015"},
                {"CsvConvMok引数_szTeishutsuEra：", "5"},
                {"CsvConvMok引数_szTeishutsuYear：", "6"},
                {"CsvConvMok引数_szTeishutsuMonth：", "3"},
                {"CsvConvMok引数_szTeishutsuDay：", "4"},
                {"CsvConvMok引数_szSoftNm:", "Soft"},
                {"CsvConvMok引数_szNozeishaZip1:", "123"},
                {"CsvConvMok引数_szNozeishaZip2:", "4567"}};
    }
    static Entries ElArguments()
    {
        return {{"ELCsvConvMok引数_lCsvDistKey:", "2"},
                {"ELCsvConvMok引数_szZeimushoCD:", "00101"},
                {"ELCsvConvMok引数_szNozeishaId:", "1234567890123456"},
                {"ELCsvConvMok引数_szKojinBango:", "123456789012"},
                {"ELCsvConvMok引数_szHojinBango:", ""},
                {"ELCsvConvMok引数_szNozeishaNm:", "青葉商会"},
                {"ELCsvConvMok引数_szNozeishaAdr:", "青葉市1-2-3"},
                {"ELCsvConvMok引数_szDaihyoNm:", "青葉太郎"},
                {"ELCsvConvMok引数_szDairiId:", "6543210987654321"},
                {"ELCsvConvMok引数_szDairiNm:", "白樺税務事務所"},
                {"ELCsvConvMok引数_szDairiAdr:", "紅葉市4-5"},
                {"ELCsvConvMok引数_szTetsuzuki:", "PGE2015"},
                {"ELCsvConvMok引数_szTeishutsuEra:", "5"},
                {"ELCsvConvMok引数_szTeishutsuYear:", "6"},
                {"ELCsvConvMok引数_szTeishutsuMonth:", "3"},
                {"ELCsvConvMok引数_szTeishutsuDay:", "4"},
                {"ELCsvConvMok引数_SoftName:", "Soft"},
                {"ELCsvConvMok引数_szNozeishaZip1:", "123"},
                {"ELCsvConvMok引数_szNozeishaZip2:", "4567"}};
    }
};

TEST_F(FinanceTraceTest, ConversionThatPassesHasTheBaseFamilysLabelOfTheResult)
{
    EXPECT_EQ(Convert(Family::Finance, m_strFinanceCsv, FullFiler(Family::Finance)).strResult,
              "S_OK");
    Entries expected = PlainArguments();
    expected.push_back({"CsvConvMok OK : 返却値:S_OK", ""});
    EXPECT_EQ(TraceEntries(m_log), expected);
}

TEST_F(FinanceTraceTest, ConversionThatIsRefused)
{
    Filer filer = FullFiler(Family::Finance);
    filer.szEra = "6";
    EXPECT_EQ(Convert(Family::Finance, m_strFinanceCsv, filer).strResult, "E_FAIL");
    Entries expected = PlainArguments();
    expected[13].strMessage = "6";
    expected.push_back({"CsvConvMokFinance NG : 返却値_ErrorMsg:", "9999-00014-HE70009E"});
    EXPECT_EQ(TraceEntries(m_log), expected);
}

TEST_F(FinanceTraceTest, ElConversionThatPasses)
{
    {
        const DebugLog other;  // not into the log that is looked at
        EXPECT_EQ(ElCheck(Family::Finance, m_strFinanceCsv, 2).strResult, "S_OK");
    }
    KZCDebugDump::InitDebugDump();
    EXPECT_EQ(ElConvert(Family::Finance, 2, FullFiler(Family::Finance)).strResult, "S_OK");
    Entries expected = ElArguments();
    expected.push_back({"ELCsvConvMokFinance OK : 返却値:S_OK", ""});
    EXPECT_EQ(TraceEntries(m_log), expected);
}

TEST_F(FinanceTraceTest, ElConversionThatIsRefused)
{
    EXPECT_EQ(ElConvert(Family::Finance, 2, FullFiler(Family::Finance)).strResult, "E_FAIL");
    Entries expected = ElArguments();
    expected.push_back({"ELCsvConvMokFinance NG : 返却値_ErrorMsg:", "9999-00001-HE70013E"});
    EXPECT_EQ(TraceEntries(m_log), expected);
}

TEST_F(FinanceTraceTest, NullArgumentsAreNotTraced)
{
    EXPECT_EQ(
        Convert(Family::Finance, "x.doc",
                {nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                 nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr})
            .strResult,
        "E_FAIL");
    const Entries trace = TraceEntries(m_log);
    ASSERT_EQ(trace.size(), 3U);
    EXPECT_EQ(trace[0], (LogEntry{"CsvConvMok引数_szCsvPathName:", "x.doc"}));
    EXPECT_EQ(trace[1], (LogEntry{"CsvConvMok引数_szMokPathName:", m_strMok}));
    EXPECT_EQ(trace[2].strFunction, "CsvConvMokFinance NG : 返却値_ErrorMsg:");
}

class CrossBorderTraceTest : public FamilyTraceTest
{
protected:
    /// The arguments behind the paths or the key. \param strColon  Behind the labels of the day.
    static Entries Filers(const std::string& strStem, const std::string& strColon)
    {
        return {{strStem + "szZeimushoCD:", "00101"},
                {strStem + "szTeishutsuEra" + strColon, "5"},
                {strStem + "szTeishutsuYear" + strColon, "6"},
                {strStem + "szTeishutsuMonth" + strColon, "3"},
                {strStem + "szTeishutsuDay" + strColon, "4"},
                {strStem + "szNozeishaId:", "1234567890123456"},
                {strStem + "szKojinBango:", "123456789012"},
                {strStem + "szHojinBango:", ""},
                {strStem + "szNozeishaNm:", "青葉商会"},
                {strStem + "szNozeishaZip1:", "123"},
                {strStem + "szNozeishaZip2:", "4567"},
                {strStem + "szNozeishaAdr:", "青葉市1-2-3"},
                {strStem + "szDaihyoNm:", "青葉太郎"},
                {strStem + "szDairiId:", "6543210987654321"},
                {strStem + "szDairiNm:", "白樺税務事務所"},
                {strStem + "szDairiAdr:", "紅葉市4-5"},
                {strStem + "szTetsuzuki:", "PGE1650"},
                {strStem + "szSoftName:", "Soft"}};
    }
    Entries PlainArguments() const
    {
        Entries entries = Filers("CsvConvMokCrossBorder引数_", "：");
        entries.insert(entries.begin(),
                       {{"CsvConvMokCrossBorder引数_szCsvPathName:", m_strCrossBorderCsv},
                        {"CsvConvMokCrossBorder引数_szMokPathName:", m_strMok}});
        return entries;
    }
    static Entries ElArguments()
    {
        Entries entries = Filers("ELCsvConvMokCrossBorder引数_", ":");
        entries.insert(entries.begin(), {"ELCsvConvMokCrossBorder引数_lCsvDistKey:", "2"});
        return entries;
    }
};

TEST_F(CrossBorderTraceTest, ConversionThatPassesHasALabelOfTheResultWithoutOk)
{
    EXPECT_EQ(
        Convert(Family::CrossBorder, m_strCrossBorderCsv, FullFiler(Family::CrossBorder)).strResult,
        "S_OK");
    Entries expected = PlainArguments();
    expected.push_back({"CsvConvMokCrossBorder返却値:S_OK", ""});
    EXPECT_EQ(TraceEntries(m_log), expected);
}

TEST_F(CrossBorderTraceTest, ConversionThatIsRefused)
{
    Filer filer = FullFiler(Family::CrossBorder);
    filer.szEra = "6";
    EXPECT_EQ(Convert(Family::CrossBorder, m_strCrossBorderCsv, filer).strResult, "E_FAIL");
    Entries expected = PlainArguments();
    expected[3].strMessage = "6";
    expected.push_back({"CsvConvMokCrossBorder NG : 返却値_ErrorMsg:", "9999-00004-HE70009E"});
    EXPECT_EQ(TraceEntries(m_log), expected);
}

TEST_F(CrossBorderTraceTest, ElConversionThatPasses)
{
    {
        const DebugLog other;  // not into the log that is looked at
        EXPECT_EQ(ElCheck(Family::CrossBorder, m_strCrossBorderCsv, 2).strResult, "S_OK");
    }
    KZCDebugDump::InitDebugDump();
    EXPECT_EQ(ElConvert(Family::CrossBorder, 2, FullFiler(Family::CrossBorder)).strResult, "S_OK");
    Entries expected = ElArguments();
    expected.push_back({"ELCsvConvMokCrossBorder OK : 返却値:S_OK", ""});
    EXPECT_EQ(TraceEntries(m_log), expected);
}

TEST_F(CrossBorderTraceTest, ElConversionThatIsRefused)
{
    EXPECT_EQ(ElConvert(Family::CrossBorder, 2, FullFiler(Family::CrossBorder)).strResult,
              "E_FAIL");
    Entries expected = ElArguments();
    expected.push_back({"ELCsvConvMokCrossBorder NG : 返却値_ErrorMsg:", "9999-00001-HE70013E"});
    EXPECT_EQ(TraceEntries(m_log), expected);
}

}  // namespace

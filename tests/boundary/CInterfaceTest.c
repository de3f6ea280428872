/* The C functions as a C host uses them, with what the table of cases doesn't hold: the constants,
 * null results, and how results are owned. CInterfaceTest WORK_FOLDER SAMPLES_FOLDER */
#include <KZEkaMok/KZEkaMokC.h>
#include <stdio.h>
#include <string.h>

enum
{
    PATH_BYTES = 4096
};

static int s_nFailed = 0;

static void Expect(int bTrue, const char* szWhat, int nLine)
{
    if (!bTrue) {
        fprintf(stderr, "CInterfaceTest.c:%d: %s\n", nLine, szWhat);
        ++s_nFailed;
    }
}

#define EXPECT(condition) Expect((condition) != 0, #condition, __LINE__)
#define EXPECT_TEXT(szText, szWanted) Expect(strcmp((szText), (szWanted)) == 0, #szText, __LINE__)

/* Compares all five fields and frees the result. */
static void ExpectFields(KZEkaMokResult* pResult,
                         const char* szResult,
                         const char* szDetailErrorInfo,
                         const char* szRecordCount,
                         const char* szProcId)
{
    EXPECT(pResult != NULL);
    EXPECT_TEXT(KZEkaMokResult_Result(pResult), szResult);
    EXPECT_TEXT(KZEkaMokResult_DetailErrorInfo(pResult), szDetailErrorInfo);
    EXPECT_TEXT(KZEkaMokResult_RecordCount(pResult), szRecordCount);
    EXPECT_TEXT(KZEkaMokResult_ProcId(pResult), szProcId);
    EXPECT_TEXT(KZEkaMokResult_MokData(pResult), "");
    KZEkaMokResult_Free(pResult);
}

static void ConstantsAreThoseOfTheLibrary(void)
{
    EXPECT(KZEkaMokVersionNumber >= 2.0 && KZEkaMokVersionNumber <= 2.0);
    EXPECT_TEXT(KZEkaMokVersionString, "@(#)PROGRAM:KZEkaMok  PROJECT:KZEkaMok-2.0.0.0\n");
    EXPECT_TEXT(PROCESS_OK, "S_OK");
    EXPECT_TEXT(PROCESS_FAIL, "E_FAIL");
}

static void NullResultHasEmptyFieldsAndMayBeFreed(void)
{
    EXPECT_TEXT(KZEkaMokResult_Result(NULL), "");
    EXPECT_TEXT(KZEkaMokResult_DetailErrorInfo(NULL), "");
    EXPECT_TEXT(KZEkaMokResult_RecordCount(NULL), "");
    EXPECT_TEXT(KZEkaMokResult_ProcId(NULL), "");
    EXPECT_TEXT(KZEkaMokResult_MokData(NULL), "");
    KZEkaMokResult_Free(NULL);
}

/* Every operation takes a null pointer for each of its texts. */
static void OmittedArgumentsAreRefused(void)
{
    ExpectFields(KZEkaMok_CsvCheck(NULL), "E_FAIL", "9999-00001-HE70001E", "", "");
    ExpectFields(KZEkaMok_ELCsvCheck(NULL, 1), "E_FAIL", "9999-00001-HE70001E", "", "");
    ExpectFields(KZEkaMok_CsvConvMok(NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL,
                                     NULL, NULL, NULL, NULL),
                 "E_FAIL",
                 "9999-00001-HE70001E,9999-00002-HE70001E,9999-00003-HE70001E,"
                 "9999-00004-HE70001E,9999-00007-HE70001E,9999-00008-HE70001E,"
                 "9999-00013-HE70010E,9999-00014-HE70001E",
                 "", "");
    ExpectFields(
        KZEkaMok_ELCsvConvMok(1, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
        "E_FAIL",
        "9999-00001-HE70013E,9999-00002-HE70001E,9999-00003-HE70001E,"
        "9999-00006-HE70001E,9999-00007-HE70001E,9999-00012-HE70010E",
        "", "");
    ExpectFields(KZEkaMok_CsvWrite(NULL, NULL), "E_FAIL", "0000-00000-HE70018E", "", "");
    ExpectFields(KZEkaMok_CsvCheckFinance(NULL), "E_FAIL", "9999-00001-HE70001E", "", "");
    ExpectFields(KZEkaMok_ELCsvCheckFinance(NULL, 16), "E_FAIL", "9999-00001-HE70001E", "", "");
    ExpectFields(
        KZEkaMok_CsvConvMokFinance(NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL,
                                   NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
        "E_FAIL",
        "9999-00001-HE70001E,9999-00002-HE70001E,9999-00003-HE70001E,9999-00004-HE70001E,"
        "9999-00007-HE70001E,9999-00008-HE70001E,9999-00013-HE70010E,9999-00014-HE70001E,"
        "9999-00015-HE70001E,9999-00016-HE70001E,9999-00017-HE70001E,9999-00018-HE70001E",
        "", "");
    ExpectFields(
        KZEkaMok_ELCsvConvMokFinance(1, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL,
                                     NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
        "E_FAIL",
        "9999-00001-HE70013E,9999-00002-HE70001E,9999-00003-HE70001E,9999-00006-HE70001E,"
        "9999-00007-HE70001E,9999-00012-HE70010E,9999-00013-HE70001E,9999-00014-HE70001E,"
        "9999-00015-HE70001E,9999-00016-HE70001E,9999-00017-HE70001E",
        "", "");
    ExpectFields(KZEkaMok_CsvCheckCrossBorder(NULL), "E_FAIL", "9999-00001-HE70001E", "", "");
    ExpectFields(KZEkaMok_ELCsvCheckCrossBorder(NULL, 10), "E_FAIL", "9999-00001-HE70001E", "", "");
    ExpectFields(
        KZEkaMok_CsvConvMokCrossBorder(NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL,
                                       NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
        "E_FAIL",
        "9999-00001-HE70001E,9999-00002-HE70001E,9999-00003-HE70001E,9999-00008-HE70001E,"
        "9999-00011-HE70001E,9999-00014-HE70001E,9999-00019-HE70010E,9999-00004-HE70001E,"
        "9999-00005-HE70001E,9999-00006-HE70001E,9999-00007-HE70001E,9999-00020-HE70001E",
        "", "");
    ExpectFields(
        KZEkaMok_ELCsvConvMokCrossBorder(1, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL,
                                         NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
        "E_FAIL",
        "9999-00001-HE70013E,9999-00002-HE70001E,9999-00007-HE70001E,9999-00010-HE70001E,"
        "9999-00013-HE70001E,9999-00018-HE70010E,9999-00003-HE70001E,9999-00004-HE70001E,"
        "9999-00005-HE70001E,9999-00006-HE70001E,9999-00019-HE70001E",
        "", "");
    KZEkaMok_Terminate();
}

/* A result is a copy: neither other requests nor Terminate change it. */
static void ResultOutlivesLaterRequestsAndTerminate(const char* szSample)
{
    KZEkaMokResult* pPassed = KZEkaMok_CsvCheck(szSample);
    KZEkaMokResult* pRefused = KZEkaMok_CsvCheck("");
    const char* szProcId = KZEkaMokResult_ProcId(pPassed);
    KZEkaMok_Terminate();
    KZEkaMok_Terminate();
    EXPECT(pPassed != pRefused);
    EXPECT_TEXT(szProcId, "PGE5020");
    EXPECT(szProcId == KZEkaMokResult_ProcId(pPassed));
    ExpectFields(pRefused, "E_FAIL", "9999-00001-HE70001E", "", "");
    ExpectFields(pPassed, "S_OK", "", "", "PGE5020");
}

/* A host that sets its pointer to null after freeing may free again. */
static void FreeingASlotTwiceIsHarmless(void)
{
    KZEkaMokResult* apSlot[] = {KZEkaMok_CsvCheck(NULL), NULL};
    int nRound;
    for (nRound = 0; nRound < 2; ++nRound) {
        KZEkaMokResult_Free(apSlot[0]);
        apSlot[0] = NULL;
    }
    KZEkaMokResult_Free(apSlot[1]);
}

/* A path and names in Japanese go in, a document with them comes out, in UTF-8. */
static void JapaneseCrossesInBothDirections(const char* szSample)
{
    const char* szName = "株式会社見本製紙";
    const char* szAddress = "紙原県見本市例町１丁目";
    KZEkaMokResult* pResult;
    ExpectFields(KZEkaMok_ELCsvCheck(szSample, 2), "S_OK", "", "52", "PGE5020");
    pResult = KZEkaMok_ELCsvConvMok(2, "90101", "9900000000000017", NULL, "9990000000017", szName,
                                    szAddress, NULL, NULL, NULL, NULL, "PGE5020");
    EXPECT_TEXT(KZEkaMokResult_Result(pResult), "S_OK");
    EXPECT_TEXT(KZEkaMokResult_DetailErrorInfo(pResult), "");
    EXPECT_TEXT(KZEkaMokResult_RecordCount(pResult), "");
    EXPECT_TEXT(KZEkaMokResult_ProcId(pResult), "");
    EXPECT(strstr(KZEkaMokResult_MokData(pResult),
                  "<NOZEISHA_NM ID=\"NOZEISHA_NM\">株式会社見本製紙</NOZEISHA_NM>") != NULL);
    EXPECT(strstr(KZEkaMokResult_MokData(pResult),
                  "<NOZEISHA_ADR ID=\"NOZEISHA_ADR\">紙原県見本市例町１丁目</NOZEISHA_ADR>") !=
           NULL);
    EXPECT(strstr(KZEkaMokResult_MokData(pResult), "DAIHYO_NM") == NULL);
    KZEkaMokResult_Free(pResult);
    KZEkaMok_Terminate();
}

/* What CsvWrite writes is a file that a check can read. */
static void WrittenFileCanBeChecked(const char* szFolder)
{
    char szPath[PATH_BYTES];
    snprintf(szPath, sizeof szPath, "%s/書類.csv", szFolder);
    ExpectFields(KZEkaMok_CsvWrite(szPath, "002,a\r\n"), "S_OK", "", "", "");
    ExpectFields(KZEkaMok_CsvCheck(szPath), "E_FAIL", "0000-00000-HE70019E", "", "");
    EXPECT(remove(szPath) == 0);
}

int main(int nCount, char** szArguments)
{
    char szSample[PATH_BYTES];
    if (nCount != 3) {
        fprintf(stderr, "usage: %s WORK_FOLDER SAMPLES_FOLDER\n", szArguments[0]);
        return 2;
    }
    snprintf(szSample, sizeof szSample, "%s/PGE5020_pass.csv", szArguments[2]);
    ConstantsAreThoseOfTheLibrary();
    NullResultHasEmptyFieldsAndMayBeFreed();
    OmittedArgumentsAreRefused();
    ResultOutlivesLaterRequestsAndTerminate(szSample);
    FreeingASlotTwiceIsHarmless();
    JapaneseCrossesInBothDirections(szSample);
    WrittenFileCanBeChecked(szArguments[1]);
    return s_nFailed == 0 ? 0 : 1;
}

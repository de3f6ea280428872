// Bad input of every kind, each with its exact outcome; behind each one the next request works.
#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <functional>
#include <limits>
#include <ostream>
#include <string>
#include <system_error>
#include <tuple>
#include <vector>

#include "ApiFixture.h"

namespace {

namespace fs = std::filesystem;

constexpr unsigned HANG_SECONDS = 240;  // a request that takes longer ends the test program
constexpr uid_t NOBODY = 65534;
constexpr std::size_t MEBIBYTE = 1 << 20;

/// What a row works on. A row changes it before its request.
struct Scene
{
    std::string strFolder;
    std::string strBundle;  ///< the resource folder in use; good at first
    std::string strCsv;     ///< the file of the request; nothing stands there at first
    std::string strGoodCsv;
    std::int64_t lKey = 1;
    ConvertArguments arguments;

    std::string File(const std::string& strName) const { return strFolder + "/" + strName; }
    void Csv(const std::string& strBytes) const { WriteBytes(strCsv, strBytes); }
    void Definition(const std::string& strText) const
    {
        WriteBytes(strBundle + "/KZEkaDefine.xml", strText);
    }
    void Offices(const std::string& strText) const
    {
        WriteBytes(strBundle + "/TaxOffices.xml", strText);
    }
    const std::string& Output() const { return *arguments[MOK_PATH]; }
};

// --- the requests of the rows ---

Outcome RunCheck(Scene& scene)
{
    return Check(scene.strCsv);
}

Outcome RunElCheck(Scene& scene)
{
    return ElCheck(scene.strCsv, scene.lKey);
}

Outcome RunConvert(Scene& scene)
{
    return Convert(scene.arguments);
}

/// The EL conversion of a file that passes its check.
Outcome RunElBoth(Scene& scene)
{
    const Outcome check = ElCheck(scene.strCsv, scene.lKey);
    return check.strResult == "S_OK" ? ElConvert(scene.lKey, scene.arguments) : check;
}

Outcome RunElConvertAlone(Scene& scene)
{
    return ElConvert(scene.lKey, scene.arguments);
}

void BecomeNobody()
{
    if (geteuid() == 0 && (setgid(NOBODY) != 0 || setuid(NOBODY) != 0))
        _exit(3);
}

Outcome RunCheckAsNobody(Scene& scene)
{
    return OutcomeInChild([&scene] {
        BecomeNobody();
        return Check(scene.strCsv);
    });
}

Outcome RunConvertAsNobody(Scene& scene)
{
    return OutcomeInChild([&scene] {
        BecomeNobody();
        return Convert(scene.arguments);
    });
}

/// Files can't grow beyond 100 bytes.
Outcome RunConvertOnAFullDisk(Scene& scene)
{
    return OutcomeInChild([&scene] {
        const rlimit limit = {100, 100};
        signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &limit);
        return Convert(scene.arguments);
    });
}

// --- rows ---

enum class Output
{
    NONE,   ///< nothing stands at the output path afterwards
    STANDS  ///< something does
};

struct HostileCase
{
    std::string strName;
    Outcome (*request)(Scene& scene);
    std::function<void(Scene& scene)> prepare;
    /// Result, DetailErrorInfo, ProcId and RecordCount exactly; MokData by strDocumentHolds.
    Outcome expected;
    Output eOutput = Output::NONE;
    /// Stands in the document, which is MokData or else the output file.
    std::string strDocumentHolds = {};
};

std::ostream& operator<<(std::ostream& stream, const HostileCase& testCase)
{
    return stream << testCase.strName;
}

using Cases = std::vector<HostileCase>;

std::string FreeRecord(const std::string& strCell)
{
    return "008," + strCell + ",b,c,d";
}

/// A row whose file has these bytes.
HostileCase CsvCase(const char* szName,
                    Outcome (*request)(Scene& scene),
                    const std::string& strBytes,
                    const Outcome& expected)
{
    return {szName, request, [strBytes](Scene& scene) { scene.Csv(strBytes); }, expected};
}

HostileCase CheckCase(const char* szName, const std::string& strBytes, const Outcome& expected)
{
    return CsvCase(szName, RunCheck, strBytes, expected);
}

HostileCase ElCheckCase(const char* szName, const std::string& strBytes, const Outcome& expected)
{
    return CsvCase(szName, RunElCheck, strBytes, expected);
}

/// A row of a plain conversion whose file of form "008" has this cell in column 2 (Shift_JIS).
HostileCase CellCase(const char* szName, const std::string& strCell, const std::string& strElement)
{
    HostileCase row = CsvCase(szName, RunConvert, FreeRecord(strCell) + "\r\n", Done());
    row.eOutput = Output::STANDS;
    row.strDocumentHolds = "<GEZ90800>" + strElement + "<GEZ90820>b</GEZ90820>";
    return row;
}

/// The cell makes a document that isn't well-formed.
HostileCase BrokenCellCase(const char* szName, const std::string& strCell)
{
    return CsvCase(szName, RunConvert, FreeRecord(strCell) + "\r\n", Failed("0000-00000-HE70016E"));
}

const Outcome FAULT_OUTCOME = Failed("0000-00000-HE70018E");

/// A literal with all its NUL bytes.
template <std::size_t nSize>
std::string Bytes(const char (&literal)[nSize])
{
    return {literal, nSize - 1};
}

/// The bytes of ASCII text in UTF-16.
std::string Utf16(const std::string& strText, bool bBigEndian)
{
    std::string strBytes;
    for (const char cByte : strText) {
        if (bBigEndian)
            strBytes += '\0';
        strBytes += cByte;
        if (!bBigEndian)
            strBytes += '\0';
    }
    return strBytes;
}

// --- files that can't be read as text ---

Cases FileCases()
{
    return {
        {"MissingFile", RunCheck, [](Scene&) {}, Failed("9999-00001-HE70013E")},
        CheckCase("EmptyFile", "", Failed("9999-00001-HE70024E")),
        {"UnreadableFile", RunCheckAsNobody,
         [](Scene& scene) {
             scene.Csv("002,1,a,,\n");
             chmod(scene.strCsv.c_str(), 0);
         },
         Failed("9999-00001-HE70014E")},
        {"FileInAClosedFolder", RunCheckAsNobody,
         [](Scene& scene) {
             fs::create_directory(scene.File("closed"));
             scene.strCsv = scene.File("closed/input.csv");
             scene.Csv("002,1,a,,\n");
             chmod(scene.File("closed").c_str(), 0);
         },
         Failed("9999-00001-HE70013E")},
        {"FolderNamedAsAFile", RunCheck, [](Scene& scene) { fs::create_directory(scene.strCsv); },
         Failed("9999-00001-HE70013E")},
        {"LinkToAFolder", RunCheck,
         [](Scene& scene) { fs::create_symlink(scene.strFolder, scene.strCsv); },
         Failed("9999-00001-HE70013E")},
        {"LinkToTheZeroDevice", RunCheck,
         [](Scene& scene) { fs::create_symlink("/dev/zero", scene.strCsv); },
         Failed("9999-00001-HE70024E")},
        {"LinkToTheNullDevice", RunCheck,
         [](Scene& scene) { fs::create_symlink("/dev/null", scene.strCsv); },
         Failed("9999-00001-HE70024E")},
        {"LinkToAFileOfTheKernel", RunCheck,
         [](Scene& scene) { fs::create_symlink("/proc/self/status", scene.strCsv); },
         Failed("9999-00001-HE70024E")},
        {"LinkToAGoodFile", RunElCheck,
         [](Scene& scene) { fs::create_symlink(scene.strGoodCsv, scene.strCsv); },
         ElCheckPassed("PGE5020", "1")},
        {"LinkToAnEmptyFile", RunCheck,
         [](Scene& scene) {
             WriteBytes(scene.File("empty"), "");
             fs::create_symlink(scene.File("empty"), scene.strCsv);
         },
         Failed("9999-00001-HE70024E")},
        {"LinkToNothing", RunCheck,
         [](Scene& scene) { fs::create_symlink(scene.File("nothing"), scene.strCsv); },
         Failed("9999-00001-HE70013E")},
        {"LinkToItself", RunCheck,
         [](Scene& scene) { fs::create_symlink(scene.strCsv, scene.strCsv); },
         Failed("9999-00001-HE70013E")},
        {"Pipe", RunCheck, [](Scene& scene) { mkfifo(scene.strCsv.c_str(), 0600); },
         Failed("9999-00001-HE70024E")},
        {"PipeOfAConversion", RunConvert, [](Scene& scene) { mkfifo(scene.strCsv.c_str(), 0600); },
         Failed("9999-00001-HE70024E")},
        {"Socket", RunCheck,
         [](Scene& scene) {
             sockaddr_un address = {};
             address.sun_family = AF_UNIX;
             std::strncpy(address.sun_path, scene.strCsv.c_str(), sizeof(address.sun_path) - 1);
             const int nSocket = socket(AF_UNIX, SOCK_STREAM, 0);
             EXPECT_EQ(bind(nSocket, reinterpret_cast<sockaddr*>(&address), sizeof(address)), 0);
             close(nSocket);
         },
         Failed("9999-00001-HE70024E")},
        {"SparseFileOfNulBytes", RunCheck,
         [](Scene& scene) {
             scene.Csv("");
             fs::resize_file(scene.strCsv, 64 * MEBIBYTE);
         },
         FAULT_OUTCOME},
    };
}

// --- bytes that are no Shift_JIS, or not meant as it ---

Cases EncodingCases()
{
    const std::string strRecord = "002,1,a,,\r\n";
    return {
        CheckCase("NulAtTheBeginning",
                  Bytes("\0"
                        "002,1,a,,\n"),
                  FAULT_OUTCOME),
        CheckCase("NulAlone", Bytes("\0"), FAULT_OUTCOME),
        CheckCase("NulInTheTypeId",
                  Bytes("00\0"
                        "002,1,a,,\n"),
                  Failed("0000-00001-HE70021E")),
        CheckCase("NulInARecord", strRecord + Bytes("002,1\0,a,,\n"),
                  Failed("0000-00000-HE70019E")),
        ElCheckCase("NulBehindALineEndHidesTheRest", strRecord + Bytes("\0") + "999,garbage\n",
                    ElCheckPassed("PGE5020", "1")),
        ElCheckCase("NulInTheLastCellCutsIt", "002,1,a,1,1" + Bytes("\0") + "9,,,,\n002,1,a,,\n",
                    ElCheckPassed("PGE5020", "1")),
        CheckCase("InvalidByteBehindANul", strRecord + Bytes("\0\xff"), FAULT_OUTCOME),
        CheckCase("LoneLeadByteAtTheEnd", strRecord + "\x82", FAULT_OUTCOME),
        CheckCase("LeadByteBeforeAComma", "002,1,\x82,,\r\n", FAULT_OUTCOME),
        CheckCase("LeadByteBeforeALineEnd", "002,1,a,,\x82\r\n", FAULT_OUTCOME),
        CheckCase("LeadByteBeforeANul", "002,1,\x82" + Bytes("\0") + ",,\r\n", FAULT_OUTCOME),
        CheckCase("Byte80", "002,1,\x80,,\r\n", FAULT_OUTCOME),
        CheckCase("ByteA0", "002,1,\xa0,,\r\n", FAULT_OUTCOME),
        CheckCase("ByteFD", "002,1,\xfd,,\r\n", FAULT_OUTCOME),
        CheckCase("ByteFE", "002,1,\xfe,,\r\n", FAULT_OUTCOME),
        CheckCase("ByteFF", "002,1,\xff,,\r\n", FAULT_OUTCOME),
        CheckCase("UnassignedDoubleByteCode", "002,1,\x81\xad,,\r\n", FAULT_OUTCOME),
        CheckCase("InvalidTrailByte", "002,1,\x81\x7f,,\r\n", FAULT_OUTCOME),
        CheckCase("InvalidByteInTheLastRecordOfMany", Repeat(strRecord, 4999) + "002,\xff,a,,",
                  FAULT_OUTCOME),
        CellCase("HalfWidthKanaOfByteA1", "\xa1\xdf", "<GEZ90810>｡ﾟ</GEZ90810>"),
        CellCase("PrivateUseCharacters", "\xf0\x40\xf9\xfc", "<GEZ90810>\ue000\ue757</GEZ90810>"),
        CellCase("TrailBytesThatLookLikeSyntax", "\x83\x5c\x81\x5b\x83\x7c\x83\x40",
                 "<GEZ90810>ソーポァ</GEZ90810>"),
        CellCase("DuplicateCodes", "\xfa\x54\xee\xf9\x81\xca", "<GEZ90810>￢￢￢</GEZ90810>"),
        CheckCase("Utf8WithByteOrderMark", "\xef\xbb\xbf" + strRecord, FAULT_OUTCOME),
        CheckCase("ByteOrderMarkAlone", "\xef\xbb\xbf", FAULT_OUTCOME),
        ElCheckCase("Utf8OfAsciiOnly", strRecord, ElCheckPassed("PGE5020", "1")),
        CheckCase("Utf8ThatIsNoShiftJis", "002,1,あ,,\r\n", FAULT_OUTCOME),
        CellCase("Utf8ThatReadsAsOtherCharacters", "あい", "<GEZ90810>縺ゅ＞</GEZ90810>"),
        CheckCase("Utf16LittleEndianWithMark", "\xff\xfe" + Utf16(strRecord, false), FAULT_OUTCOME),
        CheckCase("Utf16BigEndianWithMark", "\xfe\xff" + Utf16(strRecord, true), FAULT_OUTCOME),
        CheckCase("Utf16LittleEndianWithoutMark", Utf16(strRecord, false),
                  Failed("0000-00001-HE70021E")),
        CheckCase("Utf16BigEndianWithoutMark", Utf16(strRecord, true), FAULT_OUTCOME),
        CheckCase("Utf32LittleEndianWithMark", Bytes("\xff\xfe\0\0") + Bytes("0\0\0\0"),
                  FAULT_OUTCOME),
        CheckCase("EucJp", "002,1,\xbb\xb3\xa0,,\r\n", FAULT_OUTCOME),
        CheckCase("RandomBinary",
                  Bytes("\x7f"
                        "ELF\x02\x01\x01\0\0\0"),
                  Failed("0000-00001-HE70021E")),
    };
}

// --- structure ---

Cases StructureCases()
{
    const std::string strRecord = "002,1,a,,\r\n";
    const std::string strOpenRecord = "002,1,a,,";
    const Outcome wrongColumns = Failed("0000-00000-HE70019E");
    const Outcome tooMany = Failed("0000-00000-HE70020E");
    const Outcome wrongType = Failed("0000-00001-HE70021E");
    const Outcome onlyBlank = Failed("0000-00000-HE70024E");
    return {
        ElCheckCase("FiveThousandRecordsClosed", Repeat(strRecord, 5000),
                    ElCheckPassed("PGE5020", "5000")),
        ElCheckCase("FiveThousandRecordsOpen", Repeat(strRecord, 4999) + strOpenRecord,
                    ElCheckPassed("PGE5020", "5000")),
        CheckCase("FiveThousandRecordsAndABlankLine", Repeat(strRecord, 5000) + "\r\n", tooMany),
        CheckCase("FiveThousandRecordsAndALineOfBlanks", Repeat(strRecord, 5000) + "  \r\n",
                  tooMany),
        ElCheckCase("FiveThousandRecordsAndBlanksWithoutALineEnd", Repeat(strRecord, 5000) + "  ",
                    ElCheckPassed("PGE5020", "5000")),
        CheckCase("FiveThousandAndOneRecordsClosed", Repeat(strRecord, 5001), tooMany),
        CheckCase("FiveThousandAndOneRecordsOpen", Repeat(strRecord, 5000) + strOpenRecord,
                  tooMany),
        CheckCase("FiveThousandRecordsWithABlankLineAmongThem",
                  Repeat(strRecord, 2500) + "\n" + Repeat(strRecord, 2500), tooMany),
        CheckCase("BadRecordBeforeTooMany", Repeat(strRecord, 5001) + "002,1\n", wrongColumns),
        CheckCase("BadCellsInTooMany", Repeat("002,x,a,,\n", 5001), tooMany),
        {"ConversionOfFiveThousandAndOneRecords", RunConvert,
         [strRecord](Scene& scene) {
             scene.Csv(Repeat(strRecord, 5001));
             scene.arguments[TETSUZUKI] = "PGE5020";
         },
         tooMany},
        ElCheckCase("RecordBehind4999BlankLines", std::string(4999, '\n') + strOpenRecord,
                    ElCheckPassed("PGE5020", "1")),
        CheckCase("RecordBehind5000BlankLines", std::string(5000, '\n') + strOpenRecord, tooMany),
        CheckCase("OneLineFeed", "\n", onlyBlank),
        CheckCase("OneBlank", " ", onlyBlank),
        CheckCase("FullWidthBlanks", "\x81\x40\x81\x40\r\n", onlyBlank),
        CheckCase("AFewLineEnds", "\r\n\r\n\n\r", onlyBlank),
        CheckCase("FiveThousandLineEnds", std::string(5000, '\n'), onlyBlank),
        CheckCase("FiveThousandAndOneLineEnds", std::string(5001, '\n'), tooMany),
        CheckCase("AMillionLineEnds", std::string(1000000, '\r'), tooMany),
        ElCheckCase("LineFeeds", "002,1,a,,\n002,2,b,,\n", ElCheckPassed("PGE5020", "2")),
        ElCheckCase("CarriageReturns", "002,1,a,,\r002,2,b,,\r", ElCheckPassed("PGE5020", "2")),
        ElCheckCase("PairsOfBoth", "002,1,a,,\r\n002,2,b,,\r\n", ElCheckPassed("PGE5020", "2")),
        ElCheckCase("ReversedPairs", "002,1,a,,\n\r002,2,b,,\n\r", ElCheckPassed("PGE5020", "2")),
        ElCheckCase("MixedLineEnds", "002,1,a,,\n002,2,b,,\r002,3,c,,\r\n\r\r\n\n002,4,d,,",
                    ElCheckPassed("PGE5020", "4")),
        CheckCase("ReversedPairsCountABlankRecord", "002,1,a,,\n\r002,x,b,,",
                  Failed("0003-00002-HE70004E")),
        CheckCase("OtherControlCharactersEndNoRecord", "002,1,a,,\v002,1,a,,\f", wrongColumns),
        CheckCase("HundredThousandCommas", std::string(100000, ','), wrongType),
        CheckCase("HundredThousandCommasBehindATypeId", "002" + std::string(100000, ','),
                  wrongColumns),
        CheckCase("HundredThousandCommasInTheSecondRecord", strRecord + std::string(100000, ','),
                  wrongType),
        CheckCase("TwoMebibytesOfCommas", std::string(2 * MEBIBYTE, ','), wrongType),
        CheckCase("TooFewColumns", "002,1,a,\r\n", wrongColumns),
        CheckCase("TooManyColumns", "002,1,a,,,\r\n", wrongColumns),
        CheckCase("TypeIdAlone", "002\r\n", wrongColumns),
        CheckCase("WrongColumnsInTheLastRecord", Repeat(strRecord, 100) + "002,1,a", wrongColumns),
        CheckCase("MixedTypeIds", strRecord + "008,a,b,c,d\r\n", wrongType),
        CheckCase("MixedTypeIdsWithWrongColumns", strRecord + "008,a\r\n", wrongType),
        CheckCase("UnknownTypeId", "999,1,a,,\r\n", wrongType),
        CheckCase("UnknownTypeIdInTheSecondRecord", strRecord + "999,1,a,,\r\n", wrongType),
        CheckCase("TypeIdInFullWidthDigits", ToShiftJis("００２") + ",1,a,,\r\n", wrongType),
        CheckCase("TypeIdCutShort", "02,1,a,,\r\n", wrongType),
        ElCheckCase("TypeIdAmongBlanks", " \t002\x81\x40,1,a,,\r\n", ElCheckPassed("PGE5020", "1")),
        CheckCase("EmptyTypeIdWithColumns", ",1,a,,\r\n", wrongType),
        CheckCase("EmptyTypeIdWithColumnsInTheSecondRecord", strRecord + ",1,a,,\r\n", wrongType),
        CheckCase("LineOfFourCommas", strRecord + ",,,,\r\n", wrongType),
        CheckCase("SemicolonsForCommas", "002;1;a;;\r\n", wrongType),
        CheckCase("TabsForCommas", "002\t1\ta\t\t\r\n", wrongType),
        CheckCase("FullWidthCommas", ToShiftJis("002，1，a，，\r\n"), wrongType),
        CheckCase("HeaderLine", ToShiftJis("種別,番号,氏名,額,区分\r\n") + strRecord, wrongType),
        CheckCase("QuotedTypeId", "\"002\",1,a,,\r\n", wrongType),
        CheckCase("QuotedNumber", "002,\"1\",a,,\r\n", Failed("0001-00002-HE70004E")),
        CheckCase("QuotedComma", "002,1,\"a,b\",,\r\n", wrongColumns),
        CheckCase("QuotedLineEnd", "002,1,\"a\nb\",,\r\n", wrongColumns),
        CheckCase("OpenQuote", "002,1,\"a,,\r\n002,x,a,,\r\n", Failed("0002-00002-HE70004E")),
        CellCase("QuotesStayInTheCell", "\"abc\"", "<GEZ90810>\"abc\"</GEZ90810>"),
        CheckCase("CellOfAMebibyte", "002,1," + std::string(MEBIBYTE, 'a') + ",,\r\n",
                  Failed("0001-00003-HE70008E")),
        CheckCase("NumberOfAMebibyte", "002," + std::string(MEBIBYTE, '1') + ",a,,\r\n",
                  CheckPassed("PGE5020")),
        CheckCase("AmountOfAMebibyte", "002,1,a," + std::string(MEBIBYTE, '9') + ",\r\n",
                  Failed("0001-00004-HE70009E")),
        CheckCase("TypeIdOfAMebibyte", std::string(MEBIBYTE, '0') + ",1,a,,\r\n", wrongType),
        ElCheckCase("CellOfAMebibyteOfBlanks", "002,1,a," + std::string(MEBIBYTE, ' ') + ",\r\n",
                    ElCheckPassed("PGE5020", "1")),
        CellCase("CellOfAMebibyteInADocument", std::string(MEBIBYTE, 'a'),
                 "<GEZ90810>" + std::string(MEBIBYTE, 'a') + "</GEZ90810>"),
        CsvCase("DocumentOverTenMebibytes", RunConvert, FreeRecord(std::string(10 * MEBIBYTE, 'a')),
                Failed("0000-00000-HE70023E")),
        CsvCase("DocumentMadeTooLargeByItsEscapes", RunConvert,
                FreeRecord(std::string(3 * MEBIBYTE, '&')), Failed("0000-00000-HE70023E")),
    };
}

// --- cells that hold markup or no XML characters ---

Cases MarkupCases()
{
    return {
        CellCase("CdataSection", "x<![CDATA[a<b]]>y&z",
                 "<GEZ90810>x<![CDATA[a<b]]>y&amp;z</GEZ90810>"),
        CellCase("CdataSectionWithTheEndOfAnother", "<![CDATA[a]]>b]]>",
                 "<GEZ90810><![CDATA[a]]>b]]&gt;</GEZ90810>"),
        CellCase("StartOfACdataSection", "<![CDATA[a", "<GEZ90810>&lt;![CDATA[a</GEZ90810>"),
        CellCase("EndOfACdataSection", "a]]>", "<GEZ90810>a]]&gt;</GEZ90810>"),
        CellCase("CdataSectionInLowerCase", "<![cdata[a]]>",
                 "<GEZ90810>&lt;![cdata[a]]&gt;</GEZ90810>"),
        CellCase("Comment", "<!-- a&b -->", "<GEZ90810><!-- a&b --></GEZ90810>"),
        CellCase("StartOfAComment", "<!-- a", "<GEZ90810>&lt;!-- a</GEZ90810>"),
        CellCase("EndOfAComment", "a -->", "<GEZ90810>a --&gt;</GEZ90810>"),
        BrokenCellCase("CommentWithTwoHyphens", "<!-- a--b -->"),
        BrokenCellCase("CommentOfFiveBytes", "<!-->"),
        BrokenCellCase("CommentThatEndsInThreeHyphens", "<!-- a --->"),
        CellCase("ProcessingInstruction", "<?pi a&b?>", "<GEZ90810><?pi a&b?></GEZ90810>"),
        CellCase("StartOfAProcessingInstruction", "<?pi a", "<GEZ90810>&lt;?pi a</GEZ90810>"),
        CellCase("EndOfAProcessingInstruction", "a?>", "<GEZ90810>a?&gt;</GEZ90810>"),
        BrokenCellCase("ProcessingInstructionOfThreeBytes", "<?>"),
        BrokenCellCase("ProcessingInstructionWithoutATarget", "<? a?>"),
        BrokenCellCase("XmlDeclarationInACell", "<?xml version=\"1.0\"?>"),
        BrokenCellCase("XmlTargetInUpperCase", "<?XML a?>"),
        CellCase("TargetThatBeginsWithXml", "<?xml-stylesheet a?>",
                 "<GEZ90810><?xml-stylesheet a?></GEZ90810>"),
        BrokenCellCase("ControlCharacterInAComment", "<!-- \x01 -->"),
        BrokenCellCase("ControlCharacterInACdataSection", "<![CDATA[\x01]]>"),
        CellCase("EntityReference", "&lt;&#1;&x;", "<GEZ90810>&amp;lt;&amp;#1;&amp;x;</GEZ90810>"),
        CellCase("Element", "<a/></GEZ90810>", "<GEZ90810>&lt;a/&gt;&lt;/GEZ90810&gt;</GEZ90810>"),
        CellCase("DocumentType", "<!DOCTYPE a>", "<GEZ90810>&lt;!DOCTYPE a&gt;</GEZ90810>"),
        {"TornCommentAcrossCells", RunConvert,
         [](Scene& scene) { scene.Csv("008,<!-- a,b -->,c,d\r\n"); }, Done(), Output::STANDS,
         "<GEZ90810>&lt;!-- a</GEZ90810><GEZ90820>b --&gt;</GEZ90820>"},
        {"TornCdataSectionAcrossRecords", RunConvert,
         [](Scene& scene) { scene.Csv("008,a,b,c,<![CDATA[\r\n008,]]>,b,c,d\r\n"); }, Done(),
         Output::STANDS, "<GEZ90810>]]&gt;</GEZ90810>"},
        BrokenCellCase("ByteOne", "a\x01z"),
        BrokenCellCase("Backspace", "a\bz"),
        BrokenCellCase("VerticalTab", "a\vz"),
        BrokenCellCase("FormFeed", "a\fz"),
        BrokenCellCase("Escape", "a\x1bz"),
        BrokenCellCase("UnitSeparator", "a\x1fz"),
        CellCase("Delete", "a\x7fz", "<GEZ90810>a\x7fz</GEZ90810>"),
        CellCase("InnerTab", "a\tz", "<GEZ90810>a\tz</GEZ90810>"),
        CellCase("ControlCharactersAtTheEndsAreTrimmed", "\v\fa\f\v", "<GEZ90810>a</GEZ90810>"),
        CheckCase("ControlCharacterPassesACheckThatDoesNotLookAtIt", FreeRecord("a\x01z"),
                  CheckPassed("PGE5080")),
        CsvCase("ControlCharacterOnTheElPath", RunElBoth, FreeRecord("a\x01z"),
                Failed("0000-00000-HE70016E")),
    };
}

// --- the resource folder ---

/// A check and a conversion that both find an installation at fault.
void AddFaultPair(Cases& vecCase,
                  const std::string& strName,
                  const std::function<void(Scene& scene)>& damage)
{
    const auto prepare = [damage](Scene& scene) {
        scene.Csv(FreeRecord("a"));
        damage(scene);
    };
    vecCase.push_back({strName + "FailsTheCheck", RunCheck, prepare, FAULT_OUTCOME});
    vecCase.push_back({strName + "FailsTheElCheck", RunElCheck, prepare, FAULT_OUTCOME});
    vecCase.push_back({strName + "FailsTheConversion", RunConvert, prepare, FAULT_OUTCOME});
}

constexpr const char* SMALL_REPORT =
    R"(<report id="008" columnNum="5" procId="PGE5080" procVR="1" reportId="GEZ908" reportVR="1"/>)";

/// Ten entities, each ten of the one before: ten thousand million letters in all.
std::string EntityBomb(const std::string& strRoot)
{
    std::string strText = "<!DOCTYPE " + strRoot + " [<!ENTITY e0 \"aaaaaaaaaa\">";
    for (int n = 1; n < 10; ++n) {
        const std::string strBefore = "&e" + std::to_string(n - 1) + ";";
        strText += "<!ENTITY e" + std::to_string(n) + " \"" + Repeat(strBefore, 10) + "\">";
    }
    return strText + "]>";
}

/// One entity of 20,000 letters, named 40,000 times: eight hundred million letters in all.
std::string QuadraticBlowUp()
{
    return "<!DOCTYPE d [<!ENTITY e \"" + std::string(20000, 'a') + "\">]><d>" +
           Repeat("&e;", 40000) + "</d>";
}

Cases BundleCases()
{
    Cases vecCase;
    AddFaultPair(vecCase, "MissingBundle",
                 [](Scene& scene) { scene.strBundle = scene.File("missing.bundle"); });
    AddFaultPair(vecCase, "FileForABundle", [](Scene& scene) { scene.strBundle = scene.strCsv; });
    AddFaultPair(vecCase, "EmptyBundle", [](Scene& scene) {
        fs::remove_all(scene.strBundle);
        fs::create_directory(scene.strBundle);
    });
    for (const std::string strFile : {"KZEkaDefine.xml", "TaxOffices.xml"}) {
        const std::string strStem = strFile.substr(0, strFile.find('.'));
        const auto rewrite = [strFile](const std::string& strText) {
            return [strFile, strText](Scene& scene) {
                WriteBytes(scene.strBundle + "/" + strFile, strText);
            };
        };
        const std::string strGood = strFile == "KZEkaDefine.xml" ? GoodDefinition() : GoodOffices();
        AddFaultPair(vecCase, "Missing" + strStem,
                     [strFile](Scene& scene) { fs::remove(scene.strBundle + "/" + strFile); });
        AddFaultPair(vecCase, "FolderFor" + strStem, [strFile](Scene& scene) {
            fs::remove(scene.strBundle + "/" + strFile);
            fs::create_directory(scene.strBundle + "/" + strFile);
        });
        AddFaultPair(vecCase, "PipeFor" + strStem, [strFile](Scene& scene) {
            fs::remove(scene.strBundle + "/" + strFile);
            mkfifo((scene.strBundle + "/" + strFile).c_str(), 0600);
        });
        AddFaultPair(vecCase, "ZeroDeviceFor" + strStem, [strFile](Scene& scene) {
            fs::remove(scene.strBundle + "/" + strFile);
            fs::create_symlink("/dev/zero", scene.strBundle + "/" + strFile);
        });
        AddFaultPair(vecCase, "Empty" + strStem, rewrite(""));
        AddFaultPair(vecCase, "Truncated" + strStem,
                     rewrite(strGood.substr(0, strGood.size() / 2)));
        AddFaultPair(vecCase, "TruncatedByOneByte" + strStem,
                     rewrite(strGood.substr(0, strGood.rfind('>'))));
        AddFaultPair(vecCase, "TextFor" + strStem, rewrite("no markup"));
        AddFaultPair(vecCase, "TwoRootsIn" + strStem, rewrite("<a/><b/>"));
        AddFaultPair(vecCase, "InvalidUtf8In" + strStem, rewrite("<a b=\"\xff\"/>"));
        AddFaultPair(vecCase, "NulIn" + strStem, rewrite(Bytes("<a b=\"\0\"/>")));
        AddFaultPair(vecCase, "UnknownEntityIn" + strStem, rewrite("<a>&x;</a>"));
        AddFaultPair(vecCase, "EntityBombIn" + strStem, rewrite(EntityBomb("d") + "<d>&e9;</d>"));
        AddFaultPair(vecCase, "EntityBombInAnAttributeOf" + strStem,
                     rewrite(EntityBomb("d") + "<d a=\"&e9;\"/>"));
        AddFaultPair(vecCase, "QuadraticBlowUpIn" + strStem, rewrite(QuadraticBlowUp()));
        AddFaultPair(vecCase, "EntityThatNamesItselfIn" + strStem,
                     rewrite("<!DOCTYPE d [<!ENTITY e \"&e;\">]><d>&e;</d>"));
        AddFaultPair(vecCase, "DeepNestingIn" + strStem,
                     rewrite(Repeat("<a>", 200000) + Repeat("</a>", 200000)));
        AddFaultPair(vecCase, "ExternalEntityOfAFileIn" + strStem, [strFile](Scene& scene) {
            // Fetched, it would make the file well-formed.
            WriteBytes(scene.File("fetched.xml"), SMALL_REPORT);
            WriteBytes(scene.strBundle + "/" + strFile, "<!DOCTYPE d [<!ENTITY e SYSTEM \"" +
                                                            scene.File("fetched.xml") +
                                                            "\">]><d>&e;</d>");
        });
        AddFaultPair(vecCase, "ExternalEntityOfAPipeIn" + strStem, [strFile](Scene& scene) {
            // Fetched, it would block for ever.
            mkfifo(scene.File("pipe").c_str(), 0600);
            WriteBytes(scene.strBundle + "/" + strFile, "<!DOCTYPE d [<!ENTITY e SYSTEM \"file://" +
                                                            scene.File("pipe") + "\">]><d>&e;</d>");
        });
        AddFaultPair(vecCase, "ExternalDtdOfAFileIn" + strStem, [strFile](Scene& scene) {
            WriteBytes(scene.File("fetched.dtd"), "<!ELEMENT d EMPTY>");
            WriteBytes(scene.strBundle + "/" + strFile,
                       "<!DOCTYPE d SYSTEM \"" + scene.File("fetched.dtd") + "\"><d/>");
        });
        AddFaultPair(vecCase, "ExternalParameterEntityIn" + strStem, [strFile](Scene& scene) {
            WriteBytes(scene.File("fetched.dtd"), "<!ELEMENT d EMPTY>");
            WriteBytes(
                scene.strBundle + "/" + strFile,
                "<!DOCTYPE d [<!ENTITY % e SYSTEM \"" + scene.File("fetched.dtd") + "\">%e;]><d/>");
        });
    }
    return vecCase;
}

/// A row whose definition file holds this text; the file of the request is of form "008".
HostileCase DefinitionCase(const char* szName,
                           Outcome (*request)(Scene& scene),
                           const std::string& strDefinition,
                           const Outcome& expected)
{
    return {szName, request,
            [strDefinition](Scene& scene) {
                scene.Csv(FreeRecord("a") + "\r\n");
                scene.Definition(strDefinition);
            },
            expected};
}

/// The report of form "008" around items.
std::string FreeForm(const std::string& strItems, const std::string& strReportId = "GEZ908")
{
    return R"(<d><report id="008" columnNum="5" procId="PGE5080" procVR="1" reportId=")" +
           strReportId + R"(" reportVR="1">)" + strItems + "</report></d>";
}

/// An item of column 2 directly under the report, with its check items.
std::string Item(const std::string& strValids, const std::string& strId = "A")
{
    return "<item id=\"" + strId + "\" parent=\"GEZ908\" type=\"Normal\" column=\"2\">" +
           strValids + "</item>";
}

HostileCase Written(HostileCase row, const std::string& strDocumentHolds)
{
    row.eOutput = Output::STANDS;
    row.strDocumentHolds = strDocumentHolds;
    return row;
}

Cases DefinitionCases()
{
    const Outcome wrongType = Failed("0000-00001-HE70021E");
    const Outcome noDocument = Failed("0000-00000-HE70016E");
    const std::string strGood = FreeForm(Item(""));
    std::string strChain;
    for (int n = 0; n < 100000; ++n)
        strChain += "<item id=\"I" + std::to_string(n) + "\" type=\"Normal\" parent=\"" +
                    (n == 0 ? "GEZ908" : "I" + std::to_string(n - 1)) + "\"/>";
    std::string strUtf16 = "\xff\xfe" + Utf16(strGood, false);
    return {
        DefinitionCase("CommentBeforeTheRoot", RunCheck, "<!-- c -->" + strGood, wrongType),
        DefinitionCase("InstructionBeforeTheRoot", RunCheck, "<?pi?>" + strGood, wrongType),
        DefinitionCase("DocumentTypeBeforeTheRoot", RunCheck, "<!DOCTYPE d>" + strGood, wrongType),
        DefinitionCase("UnusedExternalEntity", RunCheck,
                       "<!DOCTYPE d [<!ENTITY e SYSTEM \"file:///etc/passwd\">]>" + strGood,
                       wrongType),
        DefinitionCase("CommentBehindTheRoot", RunCheck, strGood + "<!-- c -->",
                       CheckPassed("PGE5080")),
        DefinitionCase("RootWithoutChildren", RunCheck, "<d/>", wrongType),
        DefinitionCase("ReportForARoot", RunCheck, SMALL_REPORT, wrongType),
        DefinitionCase("ReportBelowAnotherElement", RunCheck,
                       std::string("<d><e>") + SMALL_REPORT + "</e></d>", wrongType),
        DefinitionCase("ByteOrderMark", RunCheck, "\xef\xbb\xbf" + strGood, CheckPassed("PGE5080")),
        DefinitionCase("Utf16", RunCheck, strUtf16, CheckPassed("PGE5080")),
        DefinitionCase("UnknownEncoding", RunCheck,
                       "<?xml version=\"1.0\" encoding=\"x-none\"?>" + strGood, FAULT_OUTCOME),
        DefinitionCase("FirstOfTwoReportsWins", RunCheck,
                       std::string("<d>") + SMALL_REPORT +
                           R"(<report id="008" columnNum="9" procId="PGE5090"/></d>)",
                       CheckPassed("PGE5080")),
        DefinitionCase("ReportWithoutItems", RunCheck, FreeForm(""), CheckPassed("PGE5080")),
        Written(DefinitionCase("ReportWithoutItemsWritesNone", RunConvert, FreeForm(""), Done()),
                "</IT></CONTENTS>"),
        DefinitionCase("ReportWithoutAProcedure", RunCheck,
                       R"(<d><report id="008" columnNum="5"/></d>)", FAULT_OUTCOME),
        DefinitionCase("ReportWithoutAColumnNumber", RunCheck,
                       R"(<d><report id="008" procId="PGE5080"/></d>)",
                       Failed("0000-00000-HE70019E")),
        DefinitionCase("ColumnNumberWithTrailingText", RunCheck,
                       R"(<d><report id="008" columnNum=" +5abc" procId="PGE5080"/></d>)",
                       CheckPassed("PGE5080")),
        DefinitionCase("ColumnNumberBeyondAllLimits", RunCheck,
                       R"(<d><report id="008" columnNum="99999999999999999999" procId="P"/></d>)",
                       Failed("0000-00000-HE70019E")),
        DefinitionCase("ColumnNumberThatIsFiveInItsLowBits", RunCheck,
                       R"(<d><report id="008" columnNum="4294967301" procId="P"/></d>)",
                       Failed("0000-00000-HE70019E")),
        DefinitionCase("TypeIdWithoutAGenerationRule", RunElBoth, strGood,
                       Outcome{"S_OK", "", "", "", "document"}),
        DefinitionCase("UnknownItemTypeFailsTheCheck", RunCheck,
                       FreeForm(R"(<item id="A" parent="GEZ908" type="normal"/>)"), FAULT_OUTCOME),
        DefinitionCase("UnknownItemTypeFailsTheConversion", RunConvert,
                       FreeForm(R"(<item id="A" parent="GEZ908"/>)"), FAULT_OUTCOME),
        DefinitionCase("UnknownCheckKeywordFailsTheCheck", RunCheck,
                       FreeForm(Item("<valid id=\"Exist\"/>")), FAULT_OUTCOME),
        Written(DefinitionCase("UnknownCheckKeywordIsNotSeenByTheConversion", RunConvert,
                               FreeForm(Item("<valid id=\"Exist\"/>")), Done()),
                "<A>a</A>"),
        DefinitionCase("UnknownKeywordOfACondition", RunCheck,
                       FreeForm(Item(R"(<valid id="exist"><outer id="x" column="2"/></valid>)")),
                       FAULT_OUTCOME),
        DefinitionCase("ParentBehindItsChild", RunCheck,
                       FreeForm(R"(<item id="B" parent="A" type="Normal"/>)" + Item("")),
                       FAULT_OUTCOME),
        DefinitionCase("ItemThatIsItsOwnParent", RunCheck,
                       FreeForm(R"(<item id="B" parent="B" type="Normal"/>)"), FAULT_OUTCOME),
        DefinitionCase("ItemNamedAsItsReport", RunCheck, FreeForm(Item("", "GEZ908")),
                       CheckPassed("PGE5080")),
        DefinitionCase("RangeOfMinimumAboveMaximum", RunCheck,
                       FreeForm(Item(R"(<valid id="range" min="5" max="1"/>)")),
                       Failed("0001-00002-HE70009E")),
        {"RangeOfMinimumAboveMaximumOnANumber", RunCheck,
         [](Scene& scene) {
             scene.Csv(FreeRecord("3"));
             scene.Definition(FreeForm(Item(R"(<valid id="range" min="5" max="1"/>)")));
         },
         FAULT_OUTCOME},
        DefinitionCase("ListWithoutValues", RunCheck, FreeForm(Item(R"(<valid id="contain"/>)")),
                       FAULT_OUTCOME),
        DefinitionCase("LengthWithoutALimit", RunCheck, FreeForm(Item(R"(<valid id="length"/>)")),
                       FAULT_OUTCOME),
        DefinitionCase("FaultBehindErrorsReplacesThem", RunCheck,
                       FreeForm(Item(R"(<valid id="number"/>)") + Item(R"(<valid id="contain"/>)")),
                       FAULT_OUTCOME),
        DefinitionCase("MessageOfTheDefinition", RunCheck,
                       FreeForm(Item(R"(<valid id="number" message="HE70010E"/>)")),
                       Failed("0001-00002-HE70010E")),
        DefinitionCase("UnknownMessageOfTheDefinition", RunCheck,
                       FreeForm(Item(R"(<valid id="number" message="HE70099E"/>)")),
                       Failed("0001-00002-HE70004E")),
        DefinitionCase("ColumnsBeyondTheRecord", RunCheck,
                       FreeForm(R"(<item id="A" parent="GEZ908" type="Normal" column="6">)"
                                R"(<valid id="exist"/></item>)"),
                       Failed("0001-00006-HE70001E")),
        DefinitionCase("ColumnBeyondAllLimits", RunCheck,
                       FreeForm(R"(<item id="A" parent="GEZ908" type="Normal" )"
                                R"(column="99999999999999999999"/>)"),
                       CheckPassed("PGE5080")),
        DefinitionCase("TagNameThatIsNone", RunConvert, FreeForm(Item("", "A B=&quot;c&quot;/")),
                       noDocument),
        DefinitionCase("TagNameWithoutItsPrefixBound", RunConvert, FreeForm(Item("", "no:A")),
                       noDocument),
        DefinitionCase("TagNameBeyondItsBuffer", RunConvert,
                       FreeForm(Item("", std::string(120, 'A'))), noDocument),
        DefinitionCase("TagNameBeyondItsBufferPassesTheCheck", RunCheck,
                       FreeForm(Item("", std::string(120, 'A'))), CheckPassed("PGE5080")),
        DefinitionCase("TagNameCutInsideACharacter", RunConvert,
                       FreeForm(Item("", Repeat("山", 40))), noDocument),
        DefinitionCase("TagNameOfAMebibyte", RunConvert,
                       FreeForm(Item("", std::string(MEBIBYTE, 'A'))), noDocument),
        DefinitionCase("ReportNameBeyondTheCataloguesBuffer", RunConvert,
                       R"(<d><report id="008" columnNum="5" procId="PGE5080" reportId=")" +
                           std::string(80, 'R') + R"(" reportVR="1"/></d>)",
                       noDocument),
        DefinitionCase(
            "VersionBeyondItsBuffer", RunConvert,
            R"(<d><report id="008" columnNum="5" procId="PGE5080" reportId="R" procVR=")" +
                std::string(600, '1') + R"("/></d>)",
            noDocument),
        DefinitionCase(
            "AttributeOfTenMebibytes", RunCheck,
            R"(<d note=")" + std::string(10 * MEBIBYTE, 'n') + R"(">)" + SMALL_REPORT + "</d>",
            CheckPassed("PGE5080")),
        DefinitionCase("ParameterOfAMebibyte", RunCheck,
                       FreeForm(Item(R"(<valid id="contain" value=")" + Repeat("b ", MEBIBYTE / 2) +
                                     R"("/>)")),
                       Failed("0001-00002-HE70009E")),
        DefinitionCase(
            "ManyAttributes", RunCheck,
            [] {
                std::string strText = "<d";
                for (int n = 0; n < 20000; ++n)
                    strText += " a" + std::to_string(n) + "=\"\"";
                return strText + ">" + SMALL_REPORT + "</d>";
            }(),
            FAULT_OUTCOME),
        DefinitionCase("HundredThousandChainedItemsFailTheCheck", RunCheck, FreeForm(strChain),
                       FAULT_OUTCOME),
        DefinitionCase("HundredThousandChainedItemsFailTheConversion", RunConvert,
                       FreeForm(strChain), FAULT_OUTCOME),
        DefinitionCase("HundredThousandFlatItems", RunCheck,
                       FreeForm(Repeat(R"(<item id="A" parent="GEZ908" type="Normal"/>)", 100000)),
                       CheckPassed("PGE5080")),
        DefinitionCase("HundredThousandOtherForms", RunCheck,
                       "<d>" + Repeat(R"(<report id="x"/>)", 100000) + SMALL_REPORT + "</d>",
                       CheckPassed("PGE5080")),
        {"CharacterCountOfAMebibyte", RunCheck,
         [](Scene& scene) {
             scene.Csv(FreeRecord(Repeat("\x82\xa0", MEBIBYTE / 2)));
             scene.Definition(FreeForm(Item(R"(<valid id="charlength" max="10"/>)")));
         },
         Failed("0001-00002-HE70007E")},
        {"CharacterSetOfAMebibyte", RunCheck,
         [](Scene& scene) {
             scene.Csv(FreeRecord(Repeat("\x82\xa0", MEBIBYTE / 2)));
             scene.Definition(FreeForm(Item(R"(<valid id="lvystring"/><valid id="istring"/>)"
                                            R"(<valid id="multibyte"/>)")));
         },
         CheckPassed("PGE5080")},
        {"StartTagBeyondItsBuffer", RunConvert,
         [](Scene& scene) {
             // Names of 30 quotation marks take 180 bytes each when escaped.
             scene.Csv(FreeRecord("a"));
             scene.Definition(R"(<d><report id="008" columnNum="5" procId="PGE5080" procVR="1" )"
                              R"(reportId="RRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRR" reportVR="1">)"
                              R"(<item id="A" parent="RRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRR" )"
                              R"(type="Normal" column="2"/></report></d>)");
             scene.arguments[NOZEISHA_NM] = std::string(30, '"');
             scene.arguments[SOFT_NAME] = std::string(30, '"');
         },
         noDocument},
        {"OfficesWithoutOneOfTypeFive", RunConvert,
         [](Scene& scene) {
             scene.Csv(FreeRecord("a"));
             scene.Offices(R"(<a><TaxOffice OfficeType="55" OfficeCode="01234"/></a>)");
         },
         Failed("9999-00003-HE70011E")},
        {"OfficesBehindAComment", RunConvert,
         [](Scene& scene) {
             scene.Csv(FreeRecord("a"));
             scene.Offices("<!-- c -->" + GoodOffices().substr(GoodOffices().find("<TaxOffices")));
         },
         Failed("9999-00003-HE70011E")},
        {"HundredThousandOffices", RunConvert,
         [](Scene& scene) {
             scene.Csv(FreeRecord("a"));
             scene.Offices("<a>" + Repeat(R"(<TaxOffice OfficeType="5" OfficeCode="0"/>)", 100000) +
                           R"(<TaxOffice OfficeType="5" OfficeCode="01234"/></a>)");
         },
         Done(), Output::STANDS},
        {"BundleWithOddCharactersInItsPath", RunCheck,
         [](Scene& scene) {
             scene.Csv(FreeRecord("a"));
             const std::string strOdd = scene.File("a%20b#c 日本?&é.bundle");
             fs::rename(scene.strBundle, strOdd);
             scene.strBundle = strOdd;
         },
         CheckPassed("PGE5080")},
        {"BundleBehindALink", RunCheck,
         [](Scene& scene) {
             scene.Csv(FreeRecord("a"));
             fs::create_directory_symlink(scene.strBundle, scene.File("link"));
             scene.strBundle = scene.File("link");
         },
         CheckPassed("PGE5080")},
    };
}

// --- outputs ---

Cases OutputCases()
{
    const auto at = [](const std::string& strName) {
        return [strName](Scene& scene) {
            scene.Csv(FreeRecord("a"));
            scene.arguments[MOK_PATH] = scene.File(strName);
        };
    };
    return {
        {"MissingOutputFolder", RunConvert, at("missing/out.mok"), Failed("9999-00002-HE70010E")},
        {"FileForTheOutputFolder", RunConvert, at("input.csv/out.mok"),
         Failed("9999-00002-HE70010E")},
        {"OutputNameTooLongForItsFolder", RunConvert, at(std::string(300, 'a') + ".mok"),
         FAULT_OUTCOME},
        {"FolderForTheOutput", RunConvert,
         [](Scene& scene) {
             scene.Csv(FreeRecord("a"));
             fs::create_directory(scene.Output());
         },
         FAULT_OUTCOME, Output::STANDS},
        {"OutputInAFolderThatForbidsWriting", RunConvertAsNobody,
         [](Scene& scene) {
             scene.Csv(FreeRecord("a"));
             chmod(scene.strFolder.c_str(), 0555);
         },
         FAULT_OUTCOME},
        {"OutputFileThatForbidsWriting", RunConvertAsNobody,
         [](Scene& scene) {
             scene.Csv(FreeRecord("a"));
             WriteBytes(scene.Output(), "old");
             chmod(scene.Output().c_str(), 0444);
         },
         FAULT_OUTCOME, Output::STANDS, "old"},
        {"ExistingOutputIsReplaced", RunConvert,
         [](Scene& scene) {
             scene.Csv(FreeRecord("a"));
             WriteBytes(scene.Output(), std::string(MEBIBYTE, '<'));
         },
         Done(), Output::STANDS, "<GEZ90810>a</GEZ90810>"},
        {"OutputLinkToTheFullDevice", RunConvert,
         [](Scene& scene) {
             scene.Csv(FreeRecord("a"));
             fs::create_symlink("/dev/full", scene.Output());
         },
         FAULT_OUTCOME, Output::STANDS},
        {"OutputLinkToTheNullDevice", RunConvert,
         [](Scene& scene) {
             scene.Csv(FreeRecord("a"));
             fs::create_symlink("/dev/null", scene.Output());
         },
         Done(), Output::STANDS},
        {"OutputLinkIntoAMissingFolder", RunConvert,
         [](Scene& scene) {
             scene.Csv(FreeRecord("a"));
             fs::create_symlink(scene.File("missing/out.mok"), scene.Output());
         },
         FAULT_OUTCOME, Output::STANDS},
        {"OutputPipeWithoutAReader", RunConvert,
         [](Scene& scene) {
             scene.Csv(FreeRecord("a"));
             mkfifo(scene.Output().c_str(), 0600);
         },
         FAULT_OUTCOME, Output::STANDS},
        {"DiskFullInTheMiddleOfTheDocument", RunConvertOnAFullDisk,
         [](Scene& scene) { scene.Csv(FreeRecord("a")); }, FAULT_OUTCOME},
        {"DiskFullInTheMiddleOfAMebibyte", RunConvertOnAFullDisk,
         [](Scene& scene) { scene.Csv(FreeRecord(std::string(MEBIBYTE, 'a'))); }, FAULT_OUTCOME},
        {"DiskFullKeepsTheNameOfAnOlderFile", RunConvertOnAFullDisk,
         [](Scene& scene) {
             scene.Csv(FreeRecord("a"));
             WriteBytes(scene.Output(), "old");
         },
         FAULT_OUTCOME, Output::STANDS},
    };
}

// --- arguments ---

/// A row of a plain conversion with one argument changed.
HostileCase ArgumentCase(const std::string& strName,
                         Argument eArgument,
                         const std::string& strValue,
                         const Outcome& expected)
{
    return {strName, RunConvert,
            [eArgument, strValue](Scene& scene) {
                scene.Csv(FreeRecord("a"));
                scene.arguments[eArgument] = strValue;
            },
            expected, expected.strResult == "S_OK" ? Output::STANDS : Output::NONE};
}

Cases ArgumentCases()
{
    const std::string strInvalid = "\xe3\x81";  // the beginning of a character
    const std::string strHuge(MEBIBYTE, 'a');
    const std::string strHugeDigits(MEBIBYTE, '1');
    const Outcome noDocument = Failed("0000-00000-HE70016E");
    Cases vecCase = {
        ArgumentCase("InvalidUtf8InThePath", CSV_PATH, strInvalid + "/a.csv",
                     Failed("9999-00001-HE70001E")),
        {"InvalidUtf8InTheOutputPath", RunConvert,
         [](Scene& scene) {
             scene.Csv(FreeRecord("a"));
             scene.arguments[MOK_PATH] = scene.File("\xff.mok");
         },
         Failed("9999-00002-HE70001E")},
        ArgumentCase("InvalidUtf8InTheOffice", ZEIMUSHO_CD, strInvalid,
                     Failed("9999-00003-HE70001E")),
        ArgumentCase("InvalidUtf8InTheFilersId", NOZEISHA_ID, strInvalid,
                     Failed("9999-00004-HE70001E")),
        ArgumentCase("InvalidUtf8InTheName", NOZEISHA_NM, strInvalid,
                     Failed("9999-00007-HE70001E")),
        ArgumentCase("InvalidUtf8InTheAddress", NOZEISHA_ADR, strInvalid,
                     Failed("9999-00008-HE70001E")),
        ArgumentCase("InvalidUtf8InTheProcedure", TETSUZUKI, strInvalid,
                     Failed("9999-00013-HE70010E")),
        ArgumentCase("InvalidUtf8InTheSoftwareName", SOFT_NAME, strInvalid,
                     Failed("9999-00014-HE70001E")),
        ArgumentCase("PathOfAMebibyte", CSV_PATH, "/" + strHuge + ".csv",
                     Failed("9999-00001-HE70013E")),
        ArgumentCase("PathOfAMebibyteOfBlanks", CSV_PATH, std::string(MEBIBYTE, ' '),
                     Failed("9999-00001-HE70001E")),
        ArgumentCase("PathOfAMebibyteOfDots", CSV_PATH, std::string(MEBIBYTE, '.'),
                     Failed("9999-00001-HE70015E")),
        ArgumentCase("PathBeyondTheSystemsLimit", CSV_PATH, Repeat("/aaaaaaa", 1000) + "/a.csv",
                     Failed("9999-00001-HE70013E")),
        ArgumentCase("OutputPathBeyondTheSystemsLimit", MOK_PATH,
                     Repeat("/aaaaaaa", 1000) + "/a.mok", Failed("9999-00002-HE70010E")),
        ArgumentCase("OfficeOfAMebibyte", ZEIMUSHO_CD, strHugeDigits,
                     Failed("9999-00003-HE70008E")),
        ArgumentCase("FilersIdOfAMebibyte", NOZEISHA_ID, strHugeDigits,
                     Failed("9999-00004-HE70008E")),
        ArgumentCase("PersonalNumberOfAMebibyte", KOJIN_BANGO, strHugeDigits,
                     Failed("9999-00005-HE70008E")),
        ArgumentCase("NameOfAMebibyte", NOZEISHA_NM, strHuge, Failed("9999-00007-HE70007E")),
        ArgumentCase("AddressOfAMebibyte", NOZEISHA_ADR, strHuge, Failed("9999-00008-HE70007E")),
        ArgumentCase("RepresentativeOfAMebibyte", DAIHYO_NM, strHuge,
                     Failed("9999-00009-HE70007E")),
        ArgumentCase("AgentsIdOfAMebibyte", DAIRI_ID, strHugeDigits, Failed("9999-00010-HE70008E")),
        ArgumentCase("AgentOfAMebibyte", DAIRI_NM, strHuge, Failed("9999-00011-HE70007E")),
        ArgumentCase("AgentsAddressOfAMebibyte", DAIRI_ADR, strHuge, Failed("9999-00012-HE70007E")),
        ArgumentCase("ProcedureOfAMebibyte", TETSUZUKI, strHuge, Failed("9999-00013-HE70010E")),
        ArgumentCase("SoftwareNameOfAMebibyte", SOFT_NAME, strHuge, Failed("9999-00014-HE70007E")),
        Written(ArgumentCase("XmlCharactersInTheName", NOZEISHA_NM, "<&>\"'", Done()),
                R"(sakuseiNM="&lt;&amp;>&quot;'")"),
        Written(ArgumentCase("XmlCharactersInTheSoftwareName", SOFT_NAME, "<&>\"'", Done()),
                R"(softNM="&lt;&amp;>&quot;'")"),
        Written(ArgumentCase("XmlCharactersInTheAddress", NOZEISHA_ADR, "<&>\"'", Done()),
                R"(<NOZEISHA_ADR ID="NOZEISHA_ADR">&lt;&amp;&gt;"'</NOZEISHA_ADR>)"),
        Written(ArgumentCase("CdataSectionInTheAddress", NOZEISHA_ADR, "<![CDATA[a]]>", Done()),
                R"(<NOZEISHA_ADR ID="NOZEISHA_ADR"><![CDATA[a]]></NOZEISHA_ADR>)"),
        // The name also stands in an attribute, which can't hold what is copied unescaped.
        ArgumentCase("CdataSectionInTheName", NOZEISHA_NM, "<![CDATA[a]]>", noDocument),
        ArgumentCase("CommentInTheName", NOZEISHA_NM, "<!-- a -->", noDocument),
        ArgumentCase("InstructionInTheSoftwareName", SOFT_NAME, "<?a b?>", noDocument),
        Written(ArgumentCase("StartOfACommentInTheName", NOZEISHA_NM, "<!-- a", Done()),
                R"(sakuseiNM="&lt;!-- a")"),
        ArgumentCase("AstralCharacterInTheName", NOZEISHA_NM, "𠮷", Failed("9999-00007-HE70006E")),
        ArgumentCase("AstralCharactersBeyondTheLimit", NOZEISHA_ADR, Repeat("𠮷", 101),
                     Failed("9999-00008-HE70006E")),
        ArgumentCase("CombiningAccentInTheName", NOZEISHA_NM, "e\u0301",
                     Failed("9999-00007-HE70006E")),
        Written(ArgumentCase("CombiningVoicedMarkInTheName", NOZEISHA_NM, "か\u3099", Done()),
                "ID=\"NOZEISHA_NM\">か\u3099</NOZEISHA_NM>"),
        ArgumentCase("LineFeedInTheName", NOZEISHA_NM, "a\nb", Failed("9999-00007-HE70006E")),
        ArgumentCase("LineEndPairInTheName", NOZEISHA_NM, "a\r\nb", Failed("9999-00007-HE70006E")),
        // The parser's own rules turn a carriage return into a line feed, in an attribute into a
        // blank.
        Written(ArgumentCase("CarriageReturnInTheName", NOZEISHA_NM, "a\rb", Done()),
                "ID=\"NOZEISHA_NM\">a\nb</NOZEISHA_NM>"),
        Written(ArgumentCase("CarriageReturnInTheMakersName", NOZEISHA_NM, "a\rb", Done()),
                R"(sakuseiNM="a b")"),
        Written(ArgumentCase("TabInTheName", NOZEISHA_NM, "a\tb", Done()),
                "ID=\"NOZEISHA_NM\">a\tb</NOZEISHA_NM>"),
        Written(ArgumentCase("TabInTheMakersName", NOZEISHA_NM, "a\tb", Done()),
                R"(sakuseiNM="a b")"),
        Written(ArgumentCase("LineEndsAroundTheName", NOZEISHA_NM, "\r\n a \n", Done()),
                "ID=\"NOZEISHA_NM\">a</NOZEISHA_NM>"),
        ArgumentCase("ByteOrderMarkInTheName", NOZEISHA_NM,
                     "\ufeff"
                     "a",
                     Failed("9999-00007-HE70006E")),
        Written(ArgumentCase("DirectionMarksInTheName", NOZEISHA_NM,
                             "a\u202e"
                             "b",
                             Done()),
                "ID=\"NOZEISHA_NM\">a\u202e"
                "b</NOZEISHA_NM>"),
        ArgumentCase("NoncharacterInTheName", NOZEISHA_NM, "\uffff", Failed("9999-00007-HE70006E")),
        ArgumentCase("FormatDirectivesInTheName", NOZEISHA_NM, "%s%n%99999d", Done()),
        ArgumentCase("FormatDirectivesInTheProcedure", TETSUZUKI, "%s%n",
                     Failed("9999-00013-HE70010E")),
    };
    // An optional argument that isn't UTF-8 counts as empty, and an empty one is left out.
    for (const auto& [eArgument, szName, szElement] :
         {std::tuple{KOJIN_BANGO, "PersonalNumber", "NOZEISHA_BANGO"},
          std::tuple{HOJIN_BANGO, "CorporateNumber", "gen:hojinbango"},
          std::tuple{DAIHYO_NM, "Representative", "DAIHYO_NM"},
          std::tuple{DAIRI_ID, "AgentsId", "DAIRI_ID"}, std::tuple{DAIRI_NM, "Agent", "DAIRI_NM"},
          std::tuple{DAIRI_ADR, "AgentsAddress", "DAIRI_ADR"}}) {
        HostileCase row =
            ArgumentCase(std::string("InvalidUtf8InThe") + szName, eArgument, strInvalid, Done());
        row.prepare = [prepare = row.prepare, bHojin = eArgument == HOJIN_BANGO](Scene& scene) {
            if (bHojin)
                scene.arguments[KOJIN_BANGO] = std::nullopt;
            prepare(scene);
        };
        vecCase.push_back(row);
    }
    return vecCase;
}

// --- keys and calls in a wrong order ---

Cases OrderCases()
{
    const Outcome unknown = Failed("9999-00001-HE70013E");
    const auto withFile = [](Scene& scene) { scene.Csv(FreeRecord("a")); };
    const auto withKey = [](std::int64_t lKey) {
        return [lKey](Scene& scene) {
            scene.Csv(FreeRecord("a"));
            scene.lKey = lKey;
        };
    };
    constexpr std::int64_t LEAST = std::numeric_limits<std::int64_t>::min();
    constexpr std::int64_t MOST = std::numeric_limits<std::int64_t>::max();
    const Outcome document = {"S_OK", "", "", "", "document"};
    return {
        {"KeyZeroInACheck", RunElCheck, withKey(0), Failed("9999-00002-HE70009E")},
        {"KeySixInACheck", RunElCheck, withKey(6), Failed("9999-00002-HE70009E")},
        {"NegativeKeyInACheck", RunElCheck, withKey(-1), Failed("9999-00002-HE70009E")},
        {"LeastKeyInACheck", RunElCheck, withKey(LEAST), Failed("9999-00002-HE70009E")},
        {"GreatestKeyInACheck", RunElCheck, withKey(MOST), Failed("9999-00002-HE70009E")},
        {"KeyOneInACheck", RunElCheck, withKey(1), ElCheckPassed("PGE5080", "1")},
        {"KeyFiveInACheck", RunElCheck, withKey(5), ElCheckPassed("PGE5080", "1")},
        {"KeyZeroInAConversion", RunElConvertAlone, withKey(0), Failed("9999-00001-HE70009E")},
        {"KeySixInAConversion", RunElConvertAlone, withKey(6), Failed("9999-00001-HE70009E")},
        {"NegativeKeyInAConversion", RunElConvertAlone, withKey(-1), Failed("9999-00001-HE70009E")},
        {"LeastKeyInAConversion", RunElConvertAlone, withKey(LEAST), Failed("9999-00001-HE70009E")},
        {"GreatestKeyInAConversion", RunElConvertAlone, withKey(MOST),
         Failed("9999-00001-HE70009E")},
        {"KeyOneBothWays", RunElBoth, withKey(1), document},
        {"KeyFiveBothWays", RunElBoth, withKey(5), document},
        {"ElConversionFirst", RunElConvertAlone, withFile, unknown},
        {"ElConversionBehindTerminate",
         [](Scene& scene) {
             ElCheck(scene.strCsv, 1);
             Terminate();
             return ElConvert(1, scene.arguments);
         },
         withFile, unknown},
        {"ElConversionOfAnotherKey",
         [](Scene& scene) {
             ElCheck(scene.strCsv, 1);
             return ElConvert(2, scene.arguments);
         },
         withFile, unknown},
        {"ElConversionBehindAPlainCheck",
         [](Scene& scene) {
             ElCheck(scene.strCsv, 1);
             Check(scene.strCsv);
             return ElConvert(1, scene.arguments);
         },
         withFile, unknown},
        {"ElConversionBehindARefusedPlainCheck",
         [](Scene& scene) {
             ElCheck(scene.strCsv, 1);
             Check("");
             return ElConvert(1, scene.arguments);
         },
         withFile, unknown},
        {"ElConversionBehindAPlainConversion",
         [](Scene& scene) {
             ElCheck(scene.strCsv, 1);
             Convert(scene.arguments);
             return ElConvert(1, scene.arguments);
         },
         withFile, unknown, Output::STANDS},
        {"ElConversionBehindAFailedElCheck",
         [](Scene& scene) {
             ElCheck(scene.strCsv, 1);
             WriteBytes(scene.strCsv, "999");
             ElCheck(scene.strCsv, 1);
             return ElConvert(1, scene.arguments);
         },
         withFile, unknown},
        {"ElConversionWhenTheFileHasChanged",
         [](Scene& scene) {
             ElCheck(scene.strCsv, 1);
             WriteBytes(scene.strCsv, "999");
             return ElConvert(1, scene.arguments);
         },
         withFile, document, Output::NONE, "<GEZ90810>a</GEZ90810>"},
        {"ElConversionOfTheUnknownKeysThenTheKnownOne",
         [](Scene& scene) {
             ElCheck(scene.strCsv, 3);
             for (const int nKey : {1, 2, 4, 5})
                 EXPECT_EQ(ElConvert(nKey, scene.arguments).strResult, "E_FAIL");
             return ElConvert(3, scene.arguments);
         },
         withFile, document},
        {"ConversionWithoutACheck", RunConvert, withFile, Done(), Output::STANDS},
        {"ConversionOfWhatACheckRefuses",
         [](Scene& scene) {
             EXPECT_EQ(Check(scene.strCsv), Failed("0001-00002-HE70004E"));
             return Convert(scene.arguments);
         },
         [](Scene& scene) {
             scene.Csv("002,x,a,,");
             scene.arguments[TETSUZUKI] = "PGE5020";
         },
         Done(), Output::STANDS, "<GEZ90210>x</GEZ90210>"},
        {"ManyTerminates",
         [](Scene& scene) {
             for (int n = 0; n < 100; ++n)
                 Terminate();
             return Check(scene.strCsv);
         },
         withFile, CheckPassed("PGE5080")},
        {"ManyRequestsAlternating",
         [](Scene& scene) {
             for (int n = 0; n < 50; ++n) {
                 EXPECT_EQ(Check(scene.strCsv), CheckPassed("PGE5080"));
                 EXPECT_EQ(Convert(scene.arguments), Done());
                 EXPECT_EQ(ElCheck(scene.strCsv, 1 + n % 5), ElCheckPassed("PGE5080", "1"));
             }
             return ElConvert(5, scene.arguments);
         },
         withFile, document, Output::STANDS},
        {"NullEverywhere",
         [](Scene&) {
             KZICsvConvMokEka api;
             EXPECT_EQ(OutcomeOf(api.CsvCheck(nullptr)), Failed("9999-00001-HE70001E"));
             EXPECT_EQ(OutcomeOf(api.ELCsvCheck(nullptr, 1)), Failed("9999-00001-HE70001E"));
             EXPECT_EQ(OutcomeOf(api.CsvWrite(nullptr, nullptr)), FAULT_OUTCOME);
             return ElConvert(1, ConvertArguments());
         },
         withFile,
         Failed("9999-00001-HE70013E,9999-00002-HE70001E,9999-00003-HE70001E,"
                "9999-00006-HE70001E,9999-00007-HE70001E,9999-00012-HE70010E")},
    };
}

}  // namespace

class HostileInputTest : public ApiTest, public testing::WithParamInterface<HostileCase>
{
protected:
    HostileInputTest()
    {
        alarm(HANG_SECONDS);
        m_scene.strFolder = File("scene");
        std::filesystem::create_directory(m_scene.strFolder);
        m_scene.strBundle = m_scene.File("scene.bundle");
        WriteBundle(m_scene.strBundle, GoodDefinition(), GoodOffices());
        m_scene.strCsv = m_scene.File("input.csv");
        m_scene.strGoodCsv = MakeFile("good.csv", "002,1,a,,\r\n");
        m_scene.arguments = GoodArguments(m_scene.strCsv, m_scene.File("output.mok"));
        m_scene.arguments[TETSUZUKI] = "PGE5080";
        // A row's child may run as another user.
        chmod(m_scene.strFolder.c_str(), 0777);
    }

    ~HostileInputTest() override
    {
        alarm(0);
        // What a row has closed could not be removed by anybody but root.
        chmod(m_scene.strFolder.c_str(), 0777);
        chmod(m_scene.File("closed").c_str(), 0777);
    }

    /// The document is told by a row's text in it alone, and by there being one.
    void ExpectDocument(const Outcome& outcome) const
    {
        EXPECT_EQ(outcome.strMokData.empty(), GetParam().expected.strMokData.empty());
        std::error_code error;  // some paths can't be looked at
        const bool bFile = std::filesystem::is_regular_file(m_scene.Output(), error);
        const std::string strDocument =
            outcome.strMokData.empty() && bFile ? ReadBytes(m_scene.Output()) : outcome.strMokData;
        EXPECT_NE(strDocument.find(GetParam().strDocumentHolds), std::string::npos)
            << strDocument.substr(0, 4000);
    }

    Scene m_scene;
};

TEST_P(HostileInputTest, GivesItsOutcomeAndTheNextRequestWorks)
{
    GetParam().prepare(m_scene);
    UseBundle(m_scene.strBundle);
    const Outcome outcome = GetParam().request(m_scene);

    Outcome expected = GetParam().expected;
    expected.strMokData = outcome.strMokData;
    EXPECT_EQ(outcome, expected);
    EXPECT_EQ(Exists(m_scene.Output()), GetParam().eOutput == Output::STANDS);
    ExpectDocument(outcome);

    UseBundle(m_strBundle);
    EXPECT_EQ(Check(m_strCsv), CheckPassed("PGE5020"));
}

std::string HostileName(const testing::TestParamInfo<HostileCase>& testCase)
{
    return testCase.param.strName;
}

INSTANTIATE_TEST_SUITE_P(Files, HostileInputTest, testing::ValuesIn(FileCases()), HostileName);
INSTANTIATE_TEST_SUITE_P(Encodings,
                         HostileInputTest,
                         testing::ValuesIn(EncodingCases()),
                         HostileName);
INSTANTIATE_TEST_SUITE_P(Structures,
                         HostileInputTest,
                         testing::ValuesIn(StructureCases()),
                         HostileName);
INSTANTIATE_TEST_SUITE_P(Markup, HostileInputTest, testing::ValuesIn(MarkupCases()), HostileName);
INSTANTIATE_TEST_SUITE_P(Bundles, HostileInputTest, testing::ValuesIn(BundleCases()), HostileName);
INSTANTIATE_TEST_SUITE_P(Definitions,
                         HostileInputTest,
                         testing::ValuesIn(DefinitionCases()),
                         HostileName);
INSTANTIATE_TEST_SUITE_P(Outputs, HostileInputTest, testing::ValuesIn(OutputCases()), HostileName);
INSTANTIATE_TEST_SUITE_P(Arguments,
                         HostileInputTest,
                         testing::ValuesIn(ArgumentCases()),
                         HostileName);
INSTANTIATE_TEST_SUITE_P(Orders, HostileInputTest, testing::ValuesIn(OrderCases()), HostileName);

/// A server that nobody must call.
class NetworkTest : public ApiTest, public testing::WithParamInterface<const char*>
{
protected:
    NetworkTest() : m_nSocket(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0))
    {
        alarm(HANG_SECONDS);
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t nSize = sizeof(address);
        m_bListening = bind(m_nSocket, reinterpret_cast<sockaddr*>(&address), nSize) == 0 &&
                       listen(m_nSocket, 4) == 0 &&
                       getsockname(m_nSocket, reinterpret_cast<sockaddr*>(&address), &nSize) == 0;
        m_strUrl = "http://127.0.0.1:" + std::to_string(ntohs(address.sin_port)) + "/fetched";
    }

    ~NetworkTest() override
    {
        close(m_nSocket);
        alarm(0);
    }

    bool WasCalled() const { return accept(m_nSocket, nullptr, nullptr) >= 0; }

    int m_nSocket;
    bool m_bListening = false;
    std::string m_strUrl;
};

TEST_P(NetworkTest, IsNotTouchedByADefinitionThatAsksForIt)
{
    if (!m_bListening)
        GTEST_SKIP() << "no loopback network";
    std::string strText = GetParam();
    strText.replace(strText.find("URL"), 3, m_strUrl);
    WriteBytes(m_strBundle + "/KZEkaDefine.xml", strText);
    EXPECT_EQ(Check(m_strCsv), FAULT_OUTCOME);
    EXPECT_FALSE(WasCalled());
    WriteBytes(m_strBundle + "/KZEkaDefine.xml", GoodDefinition());
    EXPECT_EQ(Check(m_strCsv), CheckPassed("PGE5020"));
}

std::string NetworkName(const testing::TestParamInfo<const char*>& testCase)
{
    constexpr const char* NAMES[] = {"DtdSubset", "PublicDtdSubset", "Entity", "ParameterEntity"};
    return NAMES[testCase.index];
}

INSTANTIATE_TEST_SUITE_P(Requests,
                         NetworkTest,
                         testing::Values("<!DOCTYPE d SYSTEM \"URL\"><d/>",
                                         "<!DOCTYPE d PUBLIC \"p\" \"URL\"><d/>",
                                         "<!DOCTYPE d [<!ENTITY e SYSTEM \"URL\">]><d>&e;</d>",
                                         "<!DOCTYPE d [<!ENTITY % e SYSTEM \"URL\">%e;]><d/>"),
                         NetworkName);

TEST_F(ApiTest, SchemaOfADefinitionIsNotFetched)
{
    WriteBytes(m_strBundle + "/KZEkaDefine.xml",
               R"(<d xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" )"
               R"(xsi:noNamespaceSchemaLocation=")" +
                   File("missing.xsd") + R"(">)" + SMALL_REPORT + "</d>");
    EXPECT_EQ(Check(m_strFreeCsv), CheckPassed("PGE5080"));
}

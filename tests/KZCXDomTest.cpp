#include "KZCXDom.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <clocale>
#include <filesystem>
#include <fstream>
#include <regex>
#include <thread>

#include "KZCEkaXDOM.h"
#include "support/FileSizeLimit.h"
#include "support/LogText.h"
#include "support/ResetState.h"
#include "support/TempFolder.h"

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class KZCXDomTest : public ResetState
{
protected:
    KZCXDomTest() { m_dom.Initialize(); }

    bool Parse(const std::string& strText) { return m_dom.Parse(strText.c_str(), "test", "UTF-8"); }

    /// The document as it comes out again.
    std::string Serialised()
    {
        std::string strOut;
        EXPECT_EQ(m_dom.SaveXml(strOut), 0);
        return strOut;
    }

    TempFolder m_folder;
    KZCEkaXDOM m_dom;
};

// --- the abstract parser ---

class PlainParser : public KZCXParser
{};

TEST(KZCXParserTest, TheAbstractFormRefusesEverything)
{
    PlainParser parser;
    EXPECT_FALSE(parser.Initialize());
    EXPECT_FALSE(parser.Parse("<a/>", "id", "UTF-8"));
}

// --- life ---

TEST_F(KZCXDomTest, InitializeTwiceIsTrue)
{
    EXPECT_TRUE(m_dom.Initialize());
    EXPECT_TRUE(m_dom.Initialize());
}

TEST_F(KZCXDomTest, ParseBeforeInitializeFails)
{
    KZCXDom dom;
    EXPECT_FALSE(dom.Parse("<a/>", "id", "UTF-8"));
    EXPECT_FALSE(dom.Parse(m_folder.Write("a.xml", "<a/>").c_str()));
}

TEST_F(KZCXDomTest, ParseAfterTerminateFails)
{
    m_dom.Terminate();
    EXPECT_FALSE(Parse("<a/>"));
}

TEST_F(KZCXDomTest, TerminateTwiceIsAllowedAndInitializeStartsAgain)
{
    m_dom.Terminate();
    m_dom.Terminate();
    EXPECT_TRUE(m_dom.Initialize());
    EXPECT_TRUE(Parse("<a/>"));
}

TEST_F(KZCXDomTest, ObjectsNest)
{
    EXPECT_TRUE(Parse("<outer/>"));
    {
        KZCXDom inner;
        EXPECT_TRUE(inner.Initialize());
        EXPECT_TRUE(inner.Parse("<inner/>", "id", "UTF-8"));
        EXPECT_EQ(inner.GetNodeName(), "inner");
    }
    EXPECT_EQ(m_dom.GetNodeName(), "outer");
}

TEST_F(KZCXDomTest, WithoutADocumentEverythingIsEmptyAndEveryMoveFails)
{
    EXPECT_EQ(m_dom.GetNodeName(), "");
    EXPECT_EQ(m_dom.GetAttribute("a"), "");
    EXPECT_FALSE(m_dom.HasChild());
    EXPECT_EQ(m_dom.MoveFirstChild(), -1);
    EXPECT_EQ(m_dom.MoveLastChild(), -1);
    EXPECT_EQ(m_dom.MoveNextSibling(), -1);
    EXPECT_EQ(m_dom.MovePrevSibling(), -1);
    EXPECT_EQ(m_dom.MoveParent(), -1);
    EXPECT_EQ(m_dom.MoveRoot(), -1);
}

// --- parsing ---

TEST_F(KZCXDomTest, ParsePutsTheCursorOnTheRoot)
{
    EXPECT_TRUE(Parse("<?xml version=\"1.0\" encoding=\"UTF-8\"?><root><a/></root>"));
    EXPECT_EQ(m_dom.GetNodeName(), "root");
}

TEST_F(KZCXDomTest, ParseReadsAFile)
{
    EXPECT_TRUE(m_dom.Parse(m_folder.Write("a.xml", "<root/>").c_str()));
    EXPECT_EQ(m_dom.GetNodeName(), "root");
}

TEST_F(KZCXDomTest, ParseReadsAFileInTheEncodingThatItDeclares)
{
    const std::string strPath = m_folder.Write(
        "a.xml", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><root a=\"\xE9\"/>");
    EXPECT_TRUE(m_dom.Parse(strPath.c_str()));
    EXPECT_EQ(m_dom.GetAttribute("a"), "é");
}

TEST_F(KZCXDomTest, ParseReadsAFileWithAByteOrderMark)
{
    EXPECT_TRUE(m_dom.Parse(m_folder.Write("a.xml", "\xEF\xBB\xBF<root/>").c_str()));
    EXPECT_EQ(m_dom.GetNodeName(), "root");
}

TEST_F(KZCXDomTest, ParseFromMemoryGoesByTheGivenEncoding)
{
    EXPECT_TRUE(m_dom.Parse("<root a=\"\xE9\"/>", "id", "ISO-8859-1"));
    EXPECT_EQ(m_dom.GetAttribute("a"), "é");
}

TEST_F(KZCXDomTest, ASecondParseReplacesDocumentAndCursor)
{
    EXPECT_TRUE(Parse("<first><a/></first>"));
    EXPECT_EQ(m_dom.MoveFirstChild(), 0);
    EXPECT_TRUE(Parse("<second/>"));
    EXPECT_EQ(m_dom.GetNodeName(), "second");
}

TEST_F(KZCXDomTest, AFailedParseKeepsDocumentAndCursor)
{
    EXPECT_TRUE(Parse("<first><a/></first>"));
    EXPECT_EQ(m_dom.MoveFirstChild(), 0);
    EXPECT_FALSE(Parse("<second>"));
    EXPECT_EQ(m_dom.GetNodeName(), "a");
    EXPECT_EQ(m_dom.MoveRoot(), 0);
    EXPECT_EQ(m_dom.GetNodeName(), "first");
}

TEST_F(KZCXDomTest, ADocumentThatBreaksItsGrammarParses)
{
    EXPECT_TRUE(Parse("<!DOCTYPE a [<!ELEMENT a (b)><!ELEMENT b EMPTY>]><a><c x=\"1\"/></a>"));
}

struct MalformedCase
{
    const char* szName;
    const char* szText;
};

class KZCXDomMalformedTest : public KZCXDomTest, public testing::WithParamInterface<MalformedCase>
{};

TEST_P(KZCXDomMalformedTest, ParseFromMemoryFails)
{
    EXPECT_FALSE(Parse(GetParam().szText));
}

TEST_P(KZCXDomMalformedTest, ParseOfAFileFails)
{
    EXPECT_FALSE(m_dom.Parse(m_folder.Write("a.xml", GetParam().szText).c_str()));
}

constexpr MalformedCase MALFORMED_CASES[] = {
    {"Empty", ""},
    {"Blank", "  \n"},
    {"NoElement", "text"},
    {"Truncated", "<a><b/>"},
    {"TruncatedInATag", "<a><b x=\"1"},
    {"WrongEndTag", "<a></b>"},
    {"TwoRoots", "<a/><b/>"},
    {"TextBehindTheRoot", "<a/>text"},
    {"BareAmpersand", "<a>&</a>"},
    {"UnknownEntity", "<a>&x;</a>"},
    {"AttributeTwice", "<a x=\"1\" x=\"2\"/>"},
    {"UnboundPrefix", "<p:a/>"},
    {"ControlCharacter", "<a>\x01</a>"},
    {"ShiftJisBytes", "<a>\x82\xA0</a>"},
    {"DeclarationAlone", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"},
    {"CommentAlone", "<!-- note -->"},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         KZCXDomMalformedTest,
                         testing::ValuesIn(MALFORMED_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

TEST_F(KZCXDomTest, ParseOfNullFails)
{
    EXPECT_FALSE(m_dom.Parse(nullptr));
    EXPECT_FALSE(m_dom.Parse(nullptr, "id", "UTF-8"));
}

TEST_F(KZCXDomTest, ParseOfAPathThatIsNoFileFails)
{
    EXPECT_FALSE(m_dom.Parse(""));
    EXPECT_FALSE(m_dom.Parse(m_folder.Path("none.xml").c_str()));
    EXPECT_FALSE(m_dom.Parse(m_folder.Path().c_str()));
    EXPECT_FALSE(m_dom.Parse("/dev/null"));
}

TEST_F(KZCXDomTest, AMalformedDocumentIsLoggedWithLineAndColumn)
{
    const std::string strLog = LogOf([&] { EXPECT_FALSE(Parse("<a>\n  <b>\n</a>")); });
    // The wrong end tag is noticed behind its name, in the third line.
    EXPECT_TRUE(std::regex_search(
        strLog,
        std::regex("想定しないエラーが発生しました。\n.* \\(行番号: 3, 列番号: [1-9][0-9]*\\)\n")))
        << strLog;
}

TEST_F(KZCXDomTest, ATruncatedFileIsLoggedWithLineAndColumn)
{
    const std::string strPath = m_folder.Write("a.xml", "<a>\n<b>");
    const std::string strLog = LogOf([&] { EXPECT_FALSE(m_dom.Parse(strPath.c_str())); });
    EXPECT_THAT(strLog, HasSubstr("想定しないエラーが発生しました。\n"));
    EXPECT_THAT(strLog, HasSubstr(" (行番号: 2, 列番号: 4)\n"));
}

TEST_F(KZCXDomTest, AMissingFileIsLoggedWithReasonPathAndPosition)
{
    const std::string strPath = m_folder.Path("none.xml");
    EXPECT_EQ(MessagesOf([&] { EXPECT_FALSE(m_dom.Parse(strPath.c_str())); }),
              "想定しないエラーが発生しました。\n"
              "unable to open primary document entity '" +
                  strPath + "' (行番号: 0, 列番号: 0)\n");
}

TEST_F(KZCXDomTest, AnEmptyPathIsLoggedWithReasonAndPosition)
{
    EXPECT_EQ(MessagesOf([&] { EXPECT_FALSE(m_dom.Parse("")); }),
              "想定しないエラーが発生しました。\n"
              "unable to open primary document entity '' (行番号: 0, 列番号: 0)\n");
}

TEST_F(KZCXDomTest, ARelativePathIsLoggedFromTheRoot)
{
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(m_folder.MakeFolder("a"));
    const std::string strMessages =
        MessagesOf([&] { EXPECT_FALSE(m_dom.Parse("../b/./none.xml")); });
    std::filesystem::current_path(before);
    EXPECT_EQ(strMessages,
              "想定しないエラーが発生しました。\n"
              "unable to open primary document entity '" +
                  m_folder.Path("b/none.xml") + "' (行番号: 0, 列番号: 0)\n");
}

TEST_F(KZCXDomTest, AJapanesePathIsLoggedInThePlainLocale)
{
    const std::string strBefore = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "C");
    const std::string strPath = m_folder.Path("定義.xml");
    const std::string strMessages = MessagesOf([&] { EXPECT_FALSE(m_dom.Parse(strPath.c_str())); });
    std::setlocale(LC_ALL, strBefore.c_str());
    EXPECT_EQ(strMessages,
              "想定しないエラーが発生しました。\n"
              "unable to open primary document entity '" +
                  strPath + "' (行番号: 0, 列番号: 0)\n");
}

TEST_F(KZCXDomTest, AFolderIsLoggedWithReasonAndPosition)
{
    EXPECT_EQ(MessagesOf([&] { EXPECT_FALSE(m_dom.Parse(m_folder.Path().c_str())); }),
              "想定しないエラーが発生しました。\n"
              "unable to read data from file (行番号: 0, 列番号: 0)\n");
}

TEST_F(KZCXDomTest, AnEmptyFileIsLoggedWithReasonAndPosition)
{
    const std::string strPath = m_folder.Write("a.xml", "");
    EXPECT_EQ(MessagesOf([&] { EXPECT_FALSE(m_dom.Parse(strPath.c_str())); }),
              "想定しないエラーが発生しました。\n"
              "invalid document structure (行番号: 1, 列番号: 1)\n");
}

TEST_F(KZCXDomTest, AFileWithoutThePermissionIsLoggedWithReasonAndPath)
{
    constexpr unsigned NOBODY = 65534;
    const std::string strPath = m_folder.Write("a.xml", "<a/>");
    ASSERT_EQ(::chmod(strPath.c_str(), 0), 0);
    // The rights of root read everything. A log is made for whoever runs when it is written.
    const bool bRoot = ::geteuid() == 0;
    const std::string strHome = m_folder.MakeFolder("home");
    ASSERT_EQ(::chmod(m_folder.Path().c_str(), 0755), 0);
    ASSERT_EQ(::chmod(strHome.c_str(), 0777), 0);
    const Environment home("HOME", strHome);
    const Environment logSwitch("KZLuviaZEKA.DebugOutput", "1");
    KZCDebugDump::InitDebugDump();
    ASSERT_TRUE(!bRoot || ::seteuid(NOBODY) == 0);
    const bool bParsed = m_dom.Parse(strPath.c_str());
    ASSERT_TRUE(!bRoot || ::seteuid(0) == 0);
    EXPECT_FALSE(bParsed);
    std::string strLog;
    for (const auto& entry : std::filesystem::directory_iterator(strHome))
        strLog += TempFolder::ReadPath(entry.path());
    EXPECT_THAT(strLog, HasSubstr("想定しないエラーが発生しました。\n"
                                  "unable to open primary document entity '" +
                                  strPath + "' (行番号: 0, 列番号: 0)\n"));
}

TEST_F(KZCXDomTest, AParseBeforeInitializeIsLogged)
{
    const std::string strPath = m_folder.Write("a.xml", "<a/>");
    KZCXDom dom;
    EXPECT_EQ(MessagesOf([&] { EXPECT_FALSE(dom.Parse(strPath.c_str())); }),
              "想定しないエラーが発生しました。\n");
    EXPECT_EQ(MessagesOf([&] { EXPECT_FALSE(dom.Parse("<a/>", "id", "UTF-8")); }),
              "想定しないエラーが発生しました。\n");
}

TEST_F(KZCXDomTest, ANullPathOrTextIsLogged)
{
    EXPECT_EQ(MessagesOf([&] { EXPECT_FALSE(m_dom.Parse(nullptr)); }),
              "想定しないエラーが発生しました。\n");
    EXPECT_EQ(MessagesOf([&] { EXPECT_FALSE(m_dom.Parse(nullptr, "id", "UTF-8")); }),
              "想定しないエラーが発生しました。\n");
}

TEST_F(KZCXDomTest, EntriesOfParseNameTheOperation)
{
    EXPECT_THAT(LogOf([&] { EXPECT_FALSE(m_dom.Parse("")); }), HasSubstr(" KZCXDom::Parse--\n"));
}

// --- pipes ---

TEST_F(KZCXDomTest, APipeIsReadToItsEnd)
{
    const std::string strPath = m_folder.Path("pipe.xml");
    ASSERT_EQ(::mkfifo(strPath.c_str(), 0600), 0);
    std::thread writer([&] {
        std::ofstream pipe(strPath);
        pipe << "<root a=\"1\">" << std::flush;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        pipe << std::string(100000, ' ') << "</root>";
    });
    const bool bParsed = m_dom.Parse(strPath.c_str());
    writer.join();
    EXPECT_TRUE(bParsed);
    EXPECT_EQ(m_dom.GetAttribute("a"), "1");
}

TEST_F(KZCXDomTest, APipeThatNobodyWritesToFailsInsteadOfHanging)
{
    const std::string strPath = m_folder.Path("pipe.xml");
    ASSERT_EQ(::mkfifo(strPath.c_str(), 0600), 0);
    EXPECT_EQ(MessagesOf([&] { EXPECT_FALSE(m_dom.Parse(strPath.c_str())); }),
              "想定しないエラーが発生しました。\n"
              "unable to read data from file (行番号: 0, 列番号: 0)\n");
}

TEST_F(KZCXDomTest, ADeviceWithoutEndFails)
{
    EXPECT_FALSE(m_dom.Parse("/dev/zero"));
}

// --- the cursor ---

TEST_F(KZCXDomTest, MovesGoOverElementsOnly)
{
    EXPECT_TRUE(Parse("<r>text<!--c--><?p i?><a/>text<!--c--><b/><![CDATA[d]]><?p i?></r>"));
    EXPECT_EQ(m_dom.MoveFirstChild(), 0);
    EXPECT_EQ(m_dom.GetNodeName(), "a");
    EXPECT_EQ(m_dom.MoveNextSibling(), 0);
    EXPECT_EQ(m_dom.GetNodeName(), "b");
    EXPECT_EQ(m_dom.MovePrevSibling(), 0);
    EXPECT_EQ(m_dom.GetNodeName(), "a");
    EXPECT_EQ(m_dom.MoveParent(), 0);
    EXPECT_EQ(m_dom.GetNodeName(), "r");
    EXPECT_EQ(m_dom.MoveLastChild(), 0);
    EXPECT_EQ(m_dom.GetNodeName(), "b");
}

TEST_F(KZCXDomTest, MoveFirstChildOfAnElementThatHoldsTextFailsAndStays)
{
    EXPECT_TRUE(Parse("<a>text</a>"));
    EXPECT_EQ(m_dom.MoveFirstChild(), -1);
    EXPECT_EQ(m_dom.GetNodeName(), "a");
}

TEST_F(KZCXDomTest, MoveLastChildOfAnElementThatHoldsACommentFailsAndStays)
{
    EXPECT_TRUE(Parse("<a><!--c--></a>"));
    EXPECT_EQ(m_dom.MoveLastChild(), -1);
    EXPECT_EQ(m_dom.GetNodeName(), "a");
}

TEST_F(KZCXDomTest, MoveNextSiblingOfTheLastFailsAndStays)
{
    EXPECT_TRUE(Parse("<r><a/><b/>text</r>"));
    EXPECT_EQ(m_dom.MoveLastChild(), 0);
    EXPECT_EQ(m_dom.MoveNextSibling(), -1);
    EXPECT_EQ(m_dom.GetNodeName(), "b");
}

TEST_F(KZCXDomTest, MovePrevSiblingOfTheFirstFailsAndStays)
{
    EXPECT_TRUE(Parse("<r>text<a/><b/></r>"));
    EXPECT_EQ(m_dom.MoveFirstChild(), 0);
    EXPECT_EQ(m_dom.MovePrevSibling(), -1);
    EXPECT_EQ(m_dom.GetNodeName(), "a");
}

TEST_F(KZCXDomTest, MoveParentOfTheRootLandsOnTheDocument)
{
    EXPECT_TRUE(Parse("<a/>"));
    EXPECT_EQ(m_dom.MoveParent(), 0);
    EXPECT_EQ(m_dom.GetNodeName(), "#document");
    EXPECT_EQ(m_dom.MoveParent(), -1);
    EXPECT_EQ(m_dom.GetNodeName(), "#document");
}

TEST_F(KZCXDomTest, MoveRootComesBackFromAnywhere)
{
    EXPECT_TRUE(Parse("<a><b><c/></b></a>"));
    EXPECT_EQ(m_dom.MoveFirstChild(), 0);
    EXPECT_EQ(m_dom.MoveFirstChild(), 0);
    EXPECT_EQ(m_dom.MoveRoot(), 0);
    EXPECT_EQ(m_dom.GetNodeName(), "a");
}

TEST_F(KZCXDomTest, ACommentInFrontOfTheRootIsTheRoot)
{
    EXPECT_TRUE(Parse("<!-- note --><a><b/></a>"));
    EXPECT_EQ(m_dom.GetNodeName(), "#comment");
    EXPECT_EQ(m_dom.MoveFirstChild(), -1);
    EXPECT_EQ(m_dom.MoveRoot(), 0);
    EXPECT_EQ(m_dom.GetNodeName(), "#comment");
}

TEST_F(KZCXDomTest, AnInstructionInFrontOfTheRootIsTheRoot)
{
    EXPECT_TRUE(Parse("<?note x?><a><b/></a>"));
    EXPECT_EQ(m_dom.GetNodeName(), "note");
    EXPECT_EQ(m_dom.MoveFirstChild(), -1);
}

TEST_F(KZCXDomTest, ADoctypeInFrontOfTheRootIsTheRootAndHasNoChildren)
{
    EXPECT_TRUE(Parse("<!DOCTYPE a [<!ELEMENT a ANY>]><a><b/></a>"));
    EXPECT_EQ(m_dom.MoveRoot(), 0);
    EXPECT_EQ(m_dom.MoveFirstChild(), -1);
}

TEST_F(KZCXDomTest, GetAttributeGivesTheValue)
{
    EXPECT_TRUE(Parse("<a x=\"1\" 名=\"値&amp;\"/>"));
    EXPECT_EQ(m_dom.GetAttribute("x"), "1");
    EXPECT_EQ(m_dom.GetAttribute("名"), "値&");
}

TEST_F(KZCXDomTest, GetAttributeOfAnAbsentOneIsEmpty)
{
    EXPECT_TRUE(Parse("<a x=\"1\"/>"));
    EXPECT_EQ(m_dom.GetAttribute("y"), "");
    EXPECT_EQ(m_dom.GetAttribute("X"), "");
}

TEST_F(KZCXDomTest, GetAttributeGivesCharactersOutsideTheBasicPlane)
{
    EXPECT_TRUE(Parse("<a x=\"𠮷\"/>"));
    EXPECT_EQ(m_dom.GetAttribute("x"), "𠮷");
}

struct ChildCase
{
    const char* szName;
    const char* szText;
    bool bExpected;
};

class KZCXDomChildTest : public KZCXDomTest, public testing::WithParamInterface<ChildCase>
{};

TEST_P(KZCXDomChildTest, HasChildCountsEveryKindOfNode)
{
    EXPECT_TRUE(Parse(GetParam().szText));
    EXPECT_EQ(m_dom.HasChild(), GetParam().bExpected);
}

constexpr ChildCase CHILD_CASES[] = {
    {"None", "<a/>", false},
    {"NoneInTwoTags", "<a></a>", false},
    {"Element", "<a><b/></a>", true},
    {"Text", "<a>text</a>", true},
    {"WhiteSpace", "<a> </a>", true},
    {"Comment", "<a><!--c--></a>", true},
    {"AttributesDontCount", "<a x=\"1\"/>", false},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         KZCXDomChildTest,
                         testing::ValuesIn(CHILD_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

// --- hostile documents ---

TEST_F(KZCXDomTest, AnEntityInAFileIsNeverFetched)
{
    const std::string strSecret = m_folder.Write("secret.txt", "SECRET");
    EXPECT_FALSE(Parse("<!DOCTYPE a [<!ENTITY x SYSTEM \"file://" + strSecret + "\">]><a>&x;</a>"));
    EXPECT_FALSE(Parse("<!DOCTYPE a [<!ENTITY x SYSTEM \"" + strSecret + "\">]><a>&x;</a>"));
}

// A relative name could be looked for beside the document or in the working folder: here both.
TEST_F(KZCXDomTest, AnEntityBesideTheDocumentIsNeverFetched)
{
    m_folder.Write("secret.txt", "SECRET");
    const std::string strPath =
        m_folder.Write("a.xml", "<!DOCTYPE a [<!ENTITY x SYSTEM \"secret.txt\">]><a>&x;</a>");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(m_folder.Path());
    const bool bParsed = m_dom.Parse(strPath.c_str());
    std::filesystem::current_path(before);
    EXPECT_FALSE(bParsed);
}

TEST_F(KZCXDomTest, AParameterEntityIsNeverFetched)
{
    const std::string strPart = m_folder.Write("part.ent", "<!ENTITY y \"SECRET\">");
    EXPECT_FALSE(
        Parse("<!DOCTYPE a [<!ENTITY % p SYSTEM \"file://" + strPart + "\"> %p;]><a>&y;</a>"));
}

TEST_F(KZCXDomTest, AnExternalSubsetIsNeverFetched)
{
    const std::string strSubset =
        m_folder.Write("a.dtd", "<!ELEMENT a ANY><!ATTLIST a x CDATA \"SECRET\">");
    EXPECT_FALSE(Parse("<!DOCTYPE a SYSTEM \"file://" + strSubset + "\"><a/>"));
    EXPECT_FALSE(Parse("<!DOCTYPE a PUBLIC \"-//x//y\" \"http://127.0.0.1:9/a.dtd\"><a/>"));
}

TEST_F(KZCXDomTest, ASchemaBesideTheDocumentIsNeverFetched)
{
    m_folder.Write("a.xsd", "no schema at all");
    const std::string strPath =
        m_folder.Write("a.xml",
                       "<a xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                       "xsi:noNamespaceSchemaLocation=\"a.xsd\"/>");
    EXPECT_TRUE(m_dom.Parse(strPath.c_str()));
}

TEST_F(KZCXDomTest, AnExternalEntityThatIsOnlyDeclaredDoesNoHarm)
{
    const std::string strSecret = m_folder.Write("secret.txt", "SECRET");
    EXPECT_TRUE(Parse("<!DOCTYPE a [<!ENTITY x SYSTEM \"file://" + strSecret + "\">]><a>b</a>"));
    EXPECT_THAT(Serialised(), Not(HasSubstr("SECRET")));
}

TEST_F(KZCXDomTest, ASubsetInsideTheDocumentIsRead)
{
    EXPECT_TRUE(
        Parse("<!DOCTYPE a [<!ENTITY x \"inner\"><!ATTLIST a y CDATA \"given\">]><a z=\"&x;\"/>"));
    EXPECT_EQ(m_dom.MoveNextSibling(), 0);
    EXPECT_EQ(m_dom.GetNodeName(), "a");
    EXPECT_EQ(m_dom.GetAttribute("z"), "inner");
    EXPECT_EQ(m_dom.GetAttribute("y"), "given");
}

/// Entities of which each holds the one before ten times.
std::string NestedEntities(int nLevels)
{
    std::string strText = "<!DOCTYPE a [<!ENTITY e0 \"lol\">";
    for (int nLevel = 1; nLevel <= nLevels; ++nLevel) {
        const std::string strInner = "&e" + std::to_string(nLevel - 1) + ";";
        strText += "<!ENTITY e" + std::to_string(nLevel) + " \"";
        for (int nTime = 0; nTime < 10; ++nTime)
            strText += strInner;
        strText += "\">";
    }
    return strText + "]>";
}

TEST_F(KZCXDomTest, AnEntityBombInTextFails)
{
    EXPECT_FALSE(Parse(NestedEntities(9) + "<a>&e9;</a>"));
}

TEST_F(KZCXDomTest, AnEntityBombInAnAttributeFails)
{
    EXPECT_FALSE(Parse(NestedEntities(9) + "<a x=\"&e9;\"/>"));
}

TEST_F(KZCXDomTest, AnEntityThatHoldsItselfFails)
{
    EXPECT_FALSE(Parse("<!DOCTYPE a [<!ENTITY x \"&y;\"><!ENTITY y \"&x;\">]><a>&x;</a>"));
}

TEST_F(KZCXDomTest, AfterAnEntityBombAGoodDocumentParses)
{
    EXPECT_FALSE(Parse(NestedEntities(9) + "<a>&e9;</a>"));
    EXPECT_TRUE(Parse("<a/>"));
    EXPECT_EQ(m_dom.GetNodeName(), "a");
}

// --- the way out ---

constexpr const char* DECLARATION = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\" ?>";

struct SerialCase
{
    const char* szName;
    const char* szText;
    const char* szExpected;  ///< behind the XML declaration
};

class KZCXDomSerialTest : public KZCXDomTest, public testing::WithParamInterface<SerialCase>
{};

TEST_P(KZCXDomSerialTest, SaveXmlGivesTheSerialisersForm)
{
    EXPECT_TRUE(Parse(GetParam().szText));
    EXPECT_EQ(Serialised(), std::string(DECLARATION) + GetParam().szExpected);
}

constexpr SerialCase SERIAL_CASES[] = {
    {"EmptyElement", "<a></a>", "<a/>"},
    {"DeclarationIsWrittenAnew", "<?xml version='1.0' encoding='UTF-8'?><a/>", "<a/>"},
    {"Attribute", "<a  x='1'   y = \"2\" />", "<a x=\"1\" y=\"2\"/>"},
    {"Text", "<a>国税太郎</a>", "<a>国税太郎</a>"},
    {"EscapesInText", "<a>&lt;&amp;&gt;&quot;&apos;</a>", "<a>&lt;&amp;&gt;\"'</a>"},
    {"EscapesInAnAttribute", "<a x=\"&lt;&amp;&quot;&apos;\"/>", "<a x=\"&lt;&amp;&quot;'\"/>"},
    {"LineFeedInText", "<a>1\n2</a>", "<a>1\n2</a>"},
    {"LineEndIsReadAsALineFeed", "<a>1\r\n2</a>", "<a>1\n2</a>"},
    {"Section", "<a><![CDATA[<&]]></a>", "<a><![CDATA[<&]]></a>"},
    {"Comment", "<a><!-- c --></a>", "<a><!-- c --></a>"},
    {"CommentsAmongTextAndElements",
     "<!--1--><a>x<!--2-->y<!--国--><b/><!--<&>--><![CDATA[z]]><!----></a><!--3-->",
     "<!--1--><a>x<!--2-->y<!--国--><b/><!--<&>--><![CDATA[z]]><!----></a><!--3-->"},
    {"Instruction", "<a><?p i?></a>", "<a><?p i?></a>"},
    {"CharacterReference", "<a>&#x3042;</a>", "<a>あ</a>"},
    {"OutsideTheBasicPlane", "<a>𠮷</a>", "<a>𠮷</a>"},
    {"Namespace", "<a xmlns=\"urn:x\" xmlns:gen=\"urn:g\"><gen:b/></a>",
     "<a xmlns=\"urn:x\" xmlns:gen=\"urn:g\"><gen:b/></a>"},
};

INSTANTIATE_TEST_SUITE_P(Texts,
                         KZCXDomSerialTest,
                         testing::ValuesIn(SERIAL_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

TEST_F(KZCXDomTest, CommentsOfADocumentInAnotherEncodingComeOutInIt)
{
    EXPECT_TRUE(m_dom.Parse("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a><!--\xE9-->\xE9</a>",
                            "id", nullptr));
    EXPECT_EQ(Serialised(),
              "<?xml version=\"1.0\" encoding=\"ISO-8859-1\" standalone=\"no\" ?>"
              "<a><!--\xE9-->\xE9</a>");
}

// A reference to an entity would come out as such if it had a node of its own.
TEST_F(KZCXDomTest, EntitiesComeOutAsWhatTheyStandFor)
{
    EXPECT_TRUE(Parse("<!DOCTYPE a [<!ENTITY x \"in<b/>ner\">]><a>&x;</a>"));
    EXPECT_THAT(Serialised(), testing::EndsWith("<a>in<b/>ner</a>"));
}

TEST_F(KZCXDomTest, EntitiesInATreeAreNoLevelOfTheirOwn)
{
    EXPECT_TRUE(Parse("<!DOCTYPE a [<!ENTITY x \"<b/><c/>\">]><a>&x;</a>"));
    EXPECT_EQ(m_dom.MoveNextSibling(), 0);
    EXPECT_EQ(m_dom.MoveFirstChild(), 0);
    EXPECT_EQ(m_dom.GetNodeName(), "b");
    EXPECT_EQ(m_dom.MoveNextSibling(), 0);
    EXPECT_EQ(m_dom.GetNodeName(), "c");
    EXPECT_EQ(m_dom.MoveParent(), 0);
    EXPECT_EQ(m_dom.GetNodeName(), "a");
}

// A section is never split: one that its encoding can't hold fails, and is told.
TEST_F(KZCXDomTest, ASectionThatCantBeWrittenFailsAndIsLogged)
{
    EXPECT_TRUE(
        m_dom.Parse("<?xml version=\"1.0\" encoding=\"US-ASCII\"?>"
                    "<!DOCTYPE a [<!ENTITY x \"<![CDATA[&#x3042;]]>\">]><a>&x;</a>",
                    "id", nullptr));
    std::string strOut = "old";
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(m_dom.SaveXml(strOut), -1); }),
              "Xercesのシリアライズ中にエラーが発生しました。\n");
    EXPECT_EQ(strOut, "old");
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(m_dom.Save(m_folder.Path("a.mok").c_str()), -1); }),
              "Xercesのシリアライズ中にエラーが発生しました。\n");
    EXPECT_THAT(m_folder.Names(), IsEmpty());
}

TEST_F(KZCXDomTest, AMegabyteOfCommentsInOneElementComesOutWhole)
{
    std::string strBody = "<a>";
    for (int nAt = 0; nAt < 150000; ++nAt)
        strBody += "<!---->";
    strBody += "</a>";
    EXPECT_TRUE(Parse(strBody));
    EXPECT_TRUE(Serialised() == DECLARATION + strBody);
}

TEST_F(KZCXDomTest, SaveXmlTwiceGivesTheSameText)
{
    EXPECT_TRUE(Parse("<a>b</a>"));
    const std::string strFirst = Serialised();
    EXPECT_EQ(Serialised(), strFirst);
}

TEST_F(KZCXDomTest, SaveXmlAfterASecondParseGivesTheSecondDocument)
{
    EXPECT_TRUE(Parse("<first/>"));
    EXPECT_EQ(Serialised(), std::string(DECLARATION) + "<first/>");
    EXPECT_TRUE(Parse("<second/>"));
    EXPECT_EQ(Serialised(), std::string(DECLARATION) + "<second/>");
}

TEST_F(KZCXDomTest, SaveXmlWithoutADocumentFailsAndLeavesTheTextAlone)
{
    std::string strOut = "old";
    EXPECT_EQ(m_dom.SaveXml(strOut), -1);
    EXPECT_EQ(strOut, "old");
}

TEST_F(KZCXDomTest, ALargeDocumentComesOutWhole)
{
    std::string strBody = "<r>";
    for (int nAt = 0; nAt < 100000; ++nAt)
        strBody += "<a>国税</a>";
    strBody += "</r>";
    EXPECT_TRUE(Parse(strBody));
    EXPECT_TRUE(Serialised() == DECLARATION + strBody);
}

TEST_F(KZCXDomTest, JapaneseTextPassesInThePlainLocale)
{
    const std::string strBefore = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "C");
    EXPECT_TRUE(Parse("<国 名=\"税\">署</国>"));
    const std::string strName = m_dom.GetNodeName();
    const std::string strValue = m_dom.GetAttribute("名");
    const std::string strOut = Serialised();
    std::setlocale(LC_ALL, strBefore.c_str());
    EXPECT_EQ(strName, "国");
    EXPECT_EQ(strValue, "税");
    EXPECT_EQ(strOut, std::string(DECLARATION) + "<国 名=\"税\">署</国>");
}

TEST_F(KZCXDomTest, JapanesePathsPassInThePlainLocale)
{
    const std::string strBefore = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "C");
    const std::string strPath = m_folder.Write("定義/国税.xml", "<a/>");
    const bool bParsed = m_dom.Parse(strPath.c_str());
    const long lSaved = m_dom.Save(m_folder.Path("定義/結果.mok").c_str());
    std::setlocale(LC_ALL, strBefore.c_str());
    EXPECT_TRUE(bParsed);
    EXPECT_EQ(lSaved, 0);
    EXPECT_EQ(m_folder.Read("定義/結果.mok"), std::string(DECLARATION) + "<a/>");
}

// --- saving ---

TEST_F(KZCXDomTest, SaveWritesWhatSaveXmlGives)
{
    EXPECT_TRUE(Parse("<a x=\"1\">国税</a>"));
    EXPECT_EQ(m_dom.Save(m_folder.Path("a.mok").c_str()), 0);
    EXPECT_EQ(m_folder.Read("a.mok"), std::string(DECLARATION) + "<a x=\"1\">国税</a>");
    EXPECT_EQ(m_folder.Read("a.mok"), Serialised());
}

TEST_F(KZCXDomTest, SaveReplacesALongerFile)
{
    m_folder.Write("a.mok", std::string(10000, 'x'));
    EXPECT_TRUE(Parse("<a/>"));
    EXPECT_EQ(m_dom.Save(m_folder.Path("a.mok").c_str()), 0);
    EXPECT_EQ(m_folder.Read("a.mok"), std::string(DECLARATION) + "<a/>");
}

TEST_F(KZCXDomTest, SaveWithoutADocumentFailsAndMakesNoFile)
{
    EXPECT_EQ(m_dom.Save(m_folder.Path("a.mok").c_str()), -1);
    EXPECT_THAT(m_folder.Names(), IsEmpty());
}

TEST_F(KZCXDomTest, SaveWithoutAPathFails)
{
    EXPECT_TRUE(Parse("<a/>"));
    EXPECT_EQ(m_dom.Save(nullptr), -1);
    EXPECT_EQ(m_dom.Save(""), -1);
}

TEST_F(KZCXDomTest, SaveToAMissingFolderFailsAndIsLogged)
{
    EXPECT_TRUE(Parse("<a/>"));
    const std::string strPath = m_folder.Path("none/a.mok");
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(m_dom.Save(strPath.c_str()), -1); }),
              "unable to open file '" + strPath + "'\n");
    EXPECT_THAT(LogOf([&] { EXPECT_EQ(m_dom.Save(strPath.c_str()), -1); }),
                HasSubstr(" KZCXDOM::Save--\n"));
    EXPECT_THAT(m_folder.Names(), IsEmpty());
}

TEST_F(KZCXDomTest, SaveToAFullDiskIsLoggedAsSuch)
{
    EXPECT_TRUE(Parse("<a/>"));
    EXPECT_EQ(MessagesOf([&] { EXPECT_EQ(m_dom.Save("/dev/full"), -1); }),
              "unable to write data to file\n");
}

TEST_F(KZCXDomTest, SaveThatMakesAFileAndCantFinishItIsLoggedAsSuch)
{
    EXPECT_TRUE(Parse("<a>" + std::string(100000, 'x') + "</a>"));
    const std::string strPath = m_folder.Path("a.mok");
    EXPECT_EQ(MessagesOf([&] {
                  const FileSizeLimit limit(5000);
                  EXPECT_EQ(m_dom.Save(strPath.c_str()), -1);
              }),
              "unable to write data to file\n");
}

TEST_F(KZCXDomTest, SaveOntoAFolderFails)
{
    EXPECT_TRUE(Parse("<a/>"));
    EXPECT_EQ(m_dom.Save(m_folder.MakeFolder("a.mok").c_str()), -1);
    EXPECT_TRUE(m_folder.Has("a.mok"));
}

TEST_F(KZCXDomTest, SaveToAFullDiskFails)
{
    EXPECT_TRUE(Parse("<a/>"));
    std::filesystem::create_symlink("/dev/full", m_folder.Path("x.mok"));
    EXPECT_EQ(m_dom.Save(m_folder.Path("x.mok").c_str()), -1);
    EXPECT_TRUE(std::filesystem::is_symlink(m_folder.Path("x.mok")));
}

TEST_F(KZCXDomTest, SaveRemovesAFileThatItMadeAndCouldNotFinish)
{
    EXPECT_TRUE(Parse("<a>" + std::string(100000, 'x') + "</a>"));
    {
        const FileSizeLimit limit(5000);
        EXPECT_EQ(m_dom.Save(m_folder.Path("a.mok").c_str()), -1);
    }
    EXPECT_THAT(m_folder.Names(), IsEmpty());
}

TEST_F(KZCXDomTest, SaveDoesntRemoveAFileThatWasThere)
{
    EXPECT_TRUE(Parse("<a>" + std::string(100000, 'x') + "</a>"));
    m_folder.Write("a.mok", "old");
    {
        const FileSizeLimit limit(5000);
        EXPECT_EQ(m_dom.Save(m_folder.Path("a.mok").c_str()), -1);
    }
    EXPECT_TRUE(m_folder.Has("a.mok"));
}

TEST_F(KZCXDomTest, AfterAFailedSaveTheDocumentCanBeSavedElsewhere)
{
    EXPECT_TRUE(Parse("<a/>"));
    EXPECT_EQ(m_dom.Save(m_folder.Path("none/a.mok").c_str()), -1);
    EXPECT_EQ(m_dom.Save(m_folder.Path("a.mok").c_str()), 0);
    EXPECT_EQ(m_folder.Read("a.mok"), std::string(DECLARATION) + "<a/>");
}

}  // namespace

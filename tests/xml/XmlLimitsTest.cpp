// What a document may ask for: each limit on its edge.
#include "xml/XmlLimits.h"

#include <gmock/gmock.h>

#include <functional>
#include <string>

#include "KZCEkaXDOM.h"
#include "support/LogText.h"
#include "support/ResetState.h"

namespace {

using testing::StartsWith;

constexpr const char* TOO_MANY_REFERENCES =
    "parser has encountered more than '10000' entity expansions in the document";

std::string Repeat(const std::string& strText, std::size_t nTimes)
{
    std::string strOut;
    strOut.reserve(strText.size() * nTimes);
    for (std::size_t nTime = 0; nTime < nTimes; ++nTime)
        strOut += strText;
    return strOut;
}

/// The piece with each '~' replaced by a number, for numbers from 0.
std::string Numbered(const std::string& strPiece, std::size_t nTimes)
{
    std::string strOut;
    for (std::size_t nTime = 0; nTime < nTimes; ++nTime)
        for (const char cByte : strPiece)
            cByte == '~' ? strOut += std::to_string(nTime) : strOut += cByte;
    return strOut;
}

class XmlLimitsTest : public ResetState
{
protected:
    XmlLimitsTest() { m_dom.Initialize(); }

    bool Parse(const std::string& strText) { return m_dom.Parse(strText.c_str(), "test", "UTF-8"); }

    KZCEkaXDOM m_dom;
};

struct LimitCase
{
    const char* szName;
    std::size_t nLimit;
    /// A document that asks for just so much.
    std::function<std::string(std::size_t nSize)> make;
    /// What the log tells of a limit that is the library's own.
    const char* szReason = "";
};

class XmlLimitTest : public XmlLimitsTest, public testing::WithParamInterface<LimitCase>
{};

TEST_P(XmlLimitTest, ADocumentBelowTheLimitParses)
{
    EXPECT_TRUE(Parse(GetParam().make(GetParam().nLimit - 1)));
}

TEST_P(XmlLimitTest, ADocumentAtTheLimitParses)
{
    EXPECT_TRUE(Parse(GetParam().make(GetParam().nLimit)));
}

TEST_P(XmlLimitTest, ADocumentBeyondTheLimitFailsAndIsLogged)
{
    const std::string strText = GetParam().make(GetParam().nLimit + 1);
    const std::string strReason = GetParam().szReason;
    const std::string strMessages = MessagesOf([&] { EXPECT_FALSE(Parse(strText)); });
    if (strReason.empty())
        EXPECT_EQ(strMessages, "想定しないエラーが発生しました。\n");
    else
        EXPECT_THAT(strMessages, StartsWith("想定しないエラーが発生しました。\n" + strReason));
}

TEST_P(XmlLimitTest, BehindADocumentBeyondTheLimitAGoodOneParses)
{
    EXPECT_FALSE(Parse(GetParam().make(GetParam().nLimit + 1)));
    EXPECT_TRUE(Parse(GetParam().make(GetParam().nLimit)));
}

const LimitCase LIMIT_CASES[] = {
    {"ElementDepth", 1000,
     [](std::size_t nSize) { return Repeat("<a>", nSize) + Repeat("</a>", nSize); }},
    {"ElementDepthWithAnEmptyElement", 1000,
     [](std::size_t nSize) {
         return Repeat("<a>", nSize - 1) + "<a/><a/>" + Repeat("</a>", nSize - 1);
     }},
    {"Attributes", 256, [](std::size_t nSize) { return "<a" + Numbered(" b~=''", nSize) + "/>"; }},
    {"AttributesWithDefaults", 256,
     [](std::size_t nSize) {
         return "<!DOCTYPE a [<!ATTLIST a" + Numbered(" d~ CDATA ''", 100) + ">]><a" +
                Numbered(" b~=''", nSize - 100) + "/>";
     }},
    {"AttributesDeclaredForOneElement", 256,
     [](std::size_t nSize) {
         return "<!DOCTYPE a [<!ATTLIST a" + Numbered(" d~ CDATA #IMPLIED", nSize) + ">]><a/>";
     }},
    {"OpenNamespaces", 250,
     [](std::size_t nSize) {
         return "<a xmlns='u'" + Numbered(" xmlns:p~='u'", 99) + "><b/><a" +
                Numbered(" xmlns:q~='u'", nSize - 100) + "/></a>";
     }},
    {"ElementNames", 5000,
     [](std::size_t nSize) { return "<r>" + Numbered("<a~/>", nSize - 1) + "<r/></r>"; }},
    {"AttributeNames", 5000,
     [](std::size_t nSize) { return "<r>" + Numbered("<a b~=''/>", nSize) + "<a b0=''/></r>"; }},
    {"GrammarSize", 262144,
     [](std::size_t nSize) { return "<!DOCTYPE a [" + std::string(nSize, ' ') + "]><a/>"; }},
    {"ElementDeclarations", 10000,
     [](std::size_t nSize) {
         return "<!DOCTYPE a [" + Numbered("<!ELEMENT a~ ANY>", nSize) + "]><a/>";
     }},
    {"RepeatedDeclarations", 10000,
     [](std::size_t nSize) {
         return "<!DOCTYPE a [" + Repeat("<!ENTITY e ''>", nSize) + "]><a/>";
     }},
    {"DeclarationsOfAllKinds", 10000,
     [](std::size_t nSize) {
         return "<!DOCTYPE a [<!ELEMENT a ANY><!NOTATION n PUBLIC 'p'><!ENTITY % p ''>" +
                Numbered("<!ATTLIST b~ c CDATA #IMPLIED>", 4000) +
                Repeat("<!ENTITY e ''>", nSize - 4003) + "]><a/>";
     }},
    {"DeclarationsOfAParameterEntity", 10000,
     [](std::size_t nSize) {
         // The entity itself counts, too.
         return "<!DOCTYPE a [<!ENTITY % p '" + Repeat("<!ENTITY e \"\">", 1110) + "'>" +
                Repeat("%p;", 9) + Repeat("<!ENTITY e ''>", nSize - 9991) + "]><a/>";
     }},
    {"AddedAttributesOfADocumentOf100000Bytes", 20000,
     [](std::size_t nSize) {
         // One more for each ten bytes than 10,000. 101 come with the two lists themselves.
         std::string strText = "<!DOCTYPE r [<!ATTLIST a" + Numbered(" d~ CDATA ''", 100) +
                               "><!ATTLIST b d CDATA ''>]><r>" + Repeat("<a/>", 198) +
                               Repeat("<b/>", nSize - 19901) + "<!--";
         const std::string strEnd = "--></r>";
         strText.append(100000 - strText.size() - strEnd.size(), ' ');
         return strText + strEnd;
     }},
    {"DeclaredAttributes", 10000000,
     [](std::size_t nSize) {
         return "<!DOCTYPE r [<!ATTLIST a" + Numbered(" d~ CDATA #IMPLIED", 250) +
                "><!ATTLIST b d CDATA #IMPLIED>]><r>" + Repeat("<a/>", 39999) +
                Repeat("<b/>", nSize - 9999750) + "</r>";
     }},
    {"EntityReferences", 10000,
     [](std::size_t nSize) {
         return "<!DOCTYPE r [<!ENTITY e ''>]><r a='" + Repeat("&e;", 5000) + "'>" +
                Repeat("&e;", nSize - 5000) + "</r>";
     },
     TOO_MANY_REFERENCES},
    {"NestedEntityReferences", 10000,
     [](std::size_t nSize) {
         return "<!DOCTYPE r [<!ENTITY e ''><!ENTITY f '" + Repeat("&e;", 99) + "'>]><r>" +
                Repeat("&f;", 99) + Repeat("&e;", nSize - 9900) + "</r>";
     },
     TOO_MANY_REFERENCES},
    {"EntitySize", 1024,
     [](std::size_t nSize) {
         return "<!DOCTYPE r [<!ENTITY e '" + std::string(nSize, 'x') + "'>]><r/>";
     }},
};

INSTANTIATE_TEST_SUITE_P(Limits,
                         XmlLimitTest,
                         testing::ValuesIn(LIMIT_CASES),
                         [](const auto& testCase) { return std::string(testCase.param.szName); });

/// Characters of a text that three kinds of entities and attributes make, with the document that
/// holds them padded to a size.
std::string Grown(std::size_t nAdded)
{
    constexpr std::size_t SIZE = 20000;
    // 1,000 times 1,000 characters in text, and the rest in one attribute and the default of
    // another.
    std::string strText = "<!DOCTYPE r [<!ENTITY e '" + std::string(1000, 'x') +
                          "'><!ATTLIST r d CDATA '" + std::string(100, 'y') + "'>]><r>" +
                          Repeat("&e;", 1000) + "<!--";
    const std::size_t nRest = SIZE + nAdded - 1000000 - 100;
    std::string strEnd =
        "--><a b='" + Repeat("&e;", nRest / 1000) + std::string(nRest % 1000, 'z') + "'/></r>";
    strText.append(SIZE - strText.size() - strEnd.size(), ' ');
    return strText + strEnd;
}

TEST_F(XmlLimitsTest, EntitiesAndDefaultsMayAddAMebibyteToADocument)
{
    EXPECT_EQ(Grown(1048576).size(), 20000U);
    EXPECT_TRUE(Parse(Grown(1048575)));
    EXPECT_TRUE(Parse(Grown(1048576)));
    EXPECT_FALSE(Parse(Grown(1048577)));
}

TEST_F(XmlLimitsTest, AnEntityWithMarkupMayBeLonger)
{
    EXPECT_TRUE(
        Parse("<!DOCTYPE r [<!ENTITY e '" + std::string(20000, 'x') + "<b/>'>]><r>&e;</r>"));
    EXPECT_FALSE(Parse("<!DOCTYPE r [<!ENTITY e '" + std::string(20000, 'x') + "b'>]><r>&e;</r>"));
}

TEST_F(XmlLimitsTest, AParameterEntityIsRead)
{
    EXPECT_TRUE(Parse("<!DOCTYPE a [<!ENTITY % p '<!ATTLIST a x CDATA \"50&#37;\">'>%p;]><a/>"));
    EXPECT_EQ(m_dom.MoveNextSibling(), 0);
    EXPECT_EQ(m_dom.GetAttribute("x"), "50%");
}

TEST_F(XmlLimitsTest, AParameterEntityThatRefersToAnotherIsRefused)
{
    EXPECT_FALSE(Parse("<!DOCTYPE a [<!ENTITY % p ''><!ENTITY % q '&#37;p;&#37;p;'>%q;]><a/>"));
}

TEST_F(XmlLimitsTest, AParameterEntityMayNotRepeatItsTextBeyondTheGrammarsSize)
{
    const std::string strEntity = "<!DOCTYPE a [<!ENTITY % p '" + std::string(60000, ' ') + "'>";
    EXPECT_TRUE(Parse(strEntity + Repeat("%p;", 3) + "]><a/>"));
    EXPECT_FALSE(Parse(strEntity + Repeat("%p;", 5) + "]><a/>"));
}

TEST_F(XmlLimitsTest, NamespacesOfClosedElementsDontCount)
{
    EXPECT_TRUE(Parse("<r>" + Repeat("<p:a xmlns:p='u'/>", 1000) + "</r>"));
}

TEST_F(XmlLimitsTest, ElementsSideBySideAreNoLevels)
{
    EXPECT_TRUE(Parse("<r>" + Repeat("<a/><b></b>", 10000) + "</r>"));
}

TEST_F(XmlLimitsTest, ASecondDocumentIsCountedAnew)
{
    const std::string strText = "<!DOCTYPE r [<!ENTITY e ''><!ATTLIST a" +
                                Numbered(" d~ CDATA ''", 100) + ">]><r>" + Repeat("<a/>", 100) +
                                Repeat("&e;", 9000) + Numbered("<c~ e~=''/>", 4000) + "</r>";
    EXPECT_TRUE(Parse(strText));
    EXPECT_TRUE(Parse(strText));
}

TEST_F(XmlLimitsTest, AContentModelOfAnyFormIsRead)
{
    // Its automaton would have two to the power of the number of groups behind the first.
    EXPECT_TRUE(
        Parse("<!DOCTYPE r [<!ELEMENT r ((a|b)*,a" + Repeat(",(a|b)", 30) + ")>]><r><a/></r>"));
}

}  // namespace

// The lowest layer when memory runs out: what it promises for each operation.
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>

#include "KZCEkaXDOM.h"
#include "KZCMacOSNative.h"
#include "fault/Fault.h"
#include "support/AllocationFault.h"
#include "support/Bundle.h"
#include "support/LogText.h"
#include "support/Raised.h"
#include "support/ResetState.h"
#include "support/TempFolder.h"
#include "text/LostText.h"

namespace {

using AllocationFault::Kind;

/// Too long for a text that needs no memory.
const std::string LONG_TEXT = "a text that is too long for a text without memory";
const std::string XML = "<root name=\"" + LONG_TEXT + "\">" + LONG_TEXT + "</root>";

class FoundationFaultTest : public ResetState
{
protected:
    /// The text that the operation gives with that allocation failing.
    static std::string With(std::size_t nNumber, const std::function<std::string()>& operation)
    {
        AllocationFault::Arm(nNumber, Kind::FromThere);
        std::optional<std::string> text;
        try {
            text = operation();
        } catch (...) {
            AllocationFault::Disarm();
            throw;
        }
        AllocationFault::Disarm();
        return *text;
    }

    /// Every allocation in turn: the text is empty until there is enough for it.
    static void ExpectEmptyOr(const std::string& strExpected,
                              bool bNoted,
                              const std::function<std::string()>& operation)
    {
        std::size_t nNumber = 1;
        for (;; ++nNumber) {
            LostText::Forget();
            std::string strText;
            ASSERT_NO_THROW(strText = With(nNumber, operation)) << nNumber;
            const bool bLost = Raised([] { LostText::Check(); }) == FAULT;
            if (strText == strExpected && !bLost)
                break;
            ASSERT_EQ(strText, "") << nNumber;
            ASSERT_EQ(bLost, bNoted) << nNumber;
        }
        EXPECT_GT(nNumber, 1U);
        LostText::Forget();
    }

    TempFolder m_folder;
};

TEST_F(FoundationFaultTest, StringTrimGivesTheEmptyText)
{
    const std::string strBlank = " " + LONG_TEXT;
    ExpectEmptyOr(LONG_TEXT, true, [&] { return KZCEkaCommon::StringTrim(strBlank.c_str()); });
    const std::string strText = LONG_TEXT + "　";
    ExpectEmptyOr(LONG_TEXT, true, [&] { return KZCEkaCommon::StringTrim(strText); });
}

TEST_F(FoundationFaultTest, SpecialEncodingGivesTheEmptyText)
{
    ExpectEmptyOr(LONG_TEXT, true, [] { return KZCEkaCommon::SpecialEncoding(LONG_TEXT); });
    const std::string strText = LONG_TEXT + "<";
    ExpectEmptyOr(LONG_TEXT + "&lt;", true, [&] { return KZCEkaCommon::SpecialEncoding(strText); });
}

TEST_F(FoundationFaultTest, SearchPropertiesGivesTheEmptyText)
{
    const std::string strPath = m_folder.Write("PGE2015vld.xml", "");
    const std::string strFolder = m_folder.Path();
    const std::string strFirst = "PGE2015";
    const std::string strSecond = "vld.xml";
    ExpectEmptyOr(strPath, true,
                  [&] { return KZCEkaCommon::searchProperties(strFolder, strFirst, strSecond); });
}

TEST_F(FoundationFaultTest, ReadSJISFileGivesTheEmptyText)
{
    const std::string strPath = m_folder.Write("a.csv", LONG_TEXT);
    EXPECT_EQ(KZCMacOSNative::readSJISFile(strPath.c_str(), true), LONG_TEXT);
    for (const bool bUtf8 : {true, false})
        ExpectEmptyOr(LONG_TEXT, false,
                      [&] { return KZCMacOSNative::readSJISFile(strPath.c_str(), bUtf8); });
}

TEST_F(FoundationFaultTest, MtoWStringAndConvertSPCharRaiseTheFaultAndLogIt)
{
    const auto raised = [](auto operation) {
        AllocationFault::Arm(1, Kind::Once);
        const std::optional<int> nRaised = Raised(operation);
        AllocationFault::Disarm();
        return nRaised;
    };
    for (const bool bDuringCheck : {false, true}) {
        KZCEkaCommon::SetCsvCheckFlag(bDuringCheck);
        EXPECT_EQ(raised([] { static_cast<void>(KZCEkaCommon::MtoWString(LONG_TEXT.c_str())); }),
                  FAULT);
        const std::string strLog = LogOf([&] {
            EXPECT_EQ(
                raised([] { static_cast<void>(KZCEkaCommon::ConvertSPChar(LONG_TEXT.c_str())); }),
                FAULT);
        });
        const std::size_t nInner = strLog.find(" KZCEkaCommon::MtoWString--\n[File:");
        ASSERT_NE(nInner, std::string::npos) << strLog;
        EXPECT_NE(strLog.find(" KZCEkaCommon::ConvertSPChar--\n[File:", nInner), std::string::npos);
    }
}

TEST_F(FoundationFaultTest, AnErrorHandlerThatCantBeMadeIsLogged)
{
    KZCEkaXDOM dom;
    ASSERT_TRUE(dom.Initialize());
    EXPECT_EQ(MessagesOf([&] {
                  AllocationFault::Arm(1, Kind::Once);
                  const bool bParsed = dom.Parse("<a/>", "id", "UTF-8");
                  AllocationFault::Disarm();
                  EXPECT_FALSE(bParsed);
              }),
              "クラスの生成(new)に失敗しました。\n");
}

TEST_F(FoundationFaultTest, AParserThatCantBeMadeIsLogged)
{
    KZCEkaXDOM dom;
    const std::string strLog = LogOf([&] {
        AllocationFault::Arm(1, Kind::Once);
        const bool bInitialized = dom.Initialize();
        AllocationFault::Disarm();
        EXPECT_FALSE(bInitialized);
    });
    EXPECT_NE(strLog.find(" KZCXDom::Initialize--\n想定しないエラーが発生しました。\n[File:"),
              std::string::npos)
        << strLog;
    EXPECT_TRUE(dom.Initialize());
}

TEST_F(FoundationFaultTest, AParseThatRunsOutOfMemoryFailsAndKeepsTheDocument)
{
    const std::string strPath = m_folder.Write("a.xml", XML);
    bool bParsed = false;
    for (std::size_t nNumber = 1; !bParsed; ++nNumber) {
        KZCEkaXDOM dom;
        ASSERT_TRUE(dom.Initialize());
        ASSERT_TRUE(dom.Parse("<before/>", "id", "UTF-8"));
        AllocationFault::Arm(nNumber, Kind::FromThere);
        ASSERT_NO_THROW(bParsed = dom.Parse(strPath.c_str())) << nNumber;
        AllocationFault::Disarm();
        ASSERT_EQ(dom.GetNodeName(), bParsed ? "root" : "before") << nNumber;
    }
}

TEST_F(FoundationFaultTest, NamesAndAttributesAreEmptyAndNoted)
{
    const std::string strName(100, 'n');
    KZCEkaXDOM dom;
    ASSERT_TRUE(dom.Initialize());
    ASSERT_TRUE(dom.Parse(("<" + strName + " a=\"" + LONG_TEXT + "\"/>").c_str(), "id", "UTF-8"));
    ExpectEmptyOr(strName, true, [&] { return dom.GetNodeName(); });
    ExpectEmptyOr(LONG_TEXT, true, [&] { return dom.GetAttribute("a"); });
}

TEST_F(FoundationFaultTest, ASerialisationThatRunsOutOfMemoryFailsAndLeavesTheTextAlone)
{
    long lStatus = -1;
    for (std::size_t nNumber = 1; lStatus != 0; ++nNumber) {
        KZCEkaXDOM dom;
        ASSERT_TRUE(dom.Initialize());
        ASSERT_TRUE(dom.Parse(XML.c_str(), "id", "UTF-8"));
        std::string strOut = "old";
        AllocationFault::Arm(nNumber, Kind::FromThere);
        ASSERT_NO_THROW(lStatus = dom.SaveXml(strOut)) << nNumber;
        AllocationFault::Disarm();
        ASSERT_EQ(strOut == "old", lStatus != 0) << nNumber;
    }
}

TEST_F(FoundationFaultTest, TaxOfficesWithALostNameAreNotKept)
{
    const std::string strName(100, 'n');
    const Bundle bundle(std::nullopt,
                        "<Root><TaxOffice OfficeType=\"5\" OfficeCode=\"00101\" "
                        "OfficeName=\"" +
                            strName + "\"/></Root>");
    KZCEkaTaxOffices& offices = *KZCEkaTaxOffices::instance();
    std::optional<int> raised = FAULT;
    for (std::size_t nNumber = 1; raised; ++nNumber) {
        AllocationFault::Arm(nNumber, Kind::Once);
        raised = Raised([&] { offices.Initialize(); });
        AllocationFault::Disarm();
        if (!raised) {
            EXPECT_TRUE(offices.IsValidName("00101", strName.c_str())) << nNumber;
        }
    }
}

}  // namespace

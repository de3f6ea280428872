// A manager of the Finance or CrossBorder family, ready to run, with all that it needs around it.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>

#include "CheckItem.h"
#include "FamilyDefinition.h"
#include "FamilySide.h"
#include "ResetState.h"
#include "TempFolder.h"
#include "calendar/Clock.h"
#include "fault/Fault.h"

/// \tparam Side  FinanceSide or CrossBorderSide.
template <class Side>
class FamilyManager : public ResetState
{
protected:
    FamilyManager()
    {
        Clock::Set(1709553600);  // 4 March 2024, noon in Greenwich
    }

    std::string Write(std::string_view strBytes, const std::string& strName = "in.csv") const
    {
        return m_folder.Write(strName, strBytes);
    }
    /// A record of the side's procedure.
    static std::string Record(const std::string& strCells)
    {
        return Side::TYPE_ID + ("," + strCells) + "\n";
    }

    std::string InitCheck(const char* szPath)
    {
        return Told([&] { return m_manager.InitForCheck(true, szPath, 1); });
    }
    std::string InitElCheck(const char* szPath, long lKey)
    {
        return Told([&] { return m_manager.InitForCheck(false, szPath, lKey); });
    }
    std::string InitMok(const std::string& strCsv, const std::string& strMok)
    {
        return Told([&] { return m_manager.InitForMok(true, strCsv.c_str(), strMok.c_str(), 1); });
    }
    std::string InitElMok(long lKey)
    {
        return Told([&] { return m_manager.InitForMok(false, nullptr, nullptr, lKey); });
    }
    std::string LoadForCheck()
    {
        return Told([&] { return Side::LoadForCheck(m_manager); });
    }
    std::string LoadForConversion(bool bRead)
    {
        return Told([&] { return Side::LoadForConversion(m_manager, bRead); });
    }
    std::string SetIt(KZCEkaITDataFinance_t eId, const std::string& strValue)
    {
        return Told([&] { return Side::Set(m_manager, eId, strValue.c_str()); });
    }
    std::string Make()
    {
        return Told([&] { return m_manager.MakeMok(); });
    }

    /// Loads a file for a check on the plain path. \return what the step told.
    std::string Load(std::string_view strBytes)
    {
        const std::string strPath = Write(strBytes);
        KZCEkaCommon::SetCsvCheckFlag(false);
        EXPECT_EQ(InitCheck(strPath.c_str()), PASSES);
        KZCEkaCommon::SetCsvCheckFlag(true);
        return LoadForCheck();
    }
    /// Checks a file on the plain path, all steps.
    std::string Check(std::string_view strBytes)
    {
        const std::string strLoaded = Load(strBytes);
        return strLoaded != PASSES ? strLoaded : Told([&] { return m_manager.ValidateCsv(); });
    }

    void SetShortIt(const FilingHead& head)
    {
        EXPECT_EQ(SetIt(KZCEkaITDataFinance_t::IT_NOZEISHA_NM, head.strName), PASSES);
        EXPECT_EQ(SetIt(KZCEkaITDataFinance_t::IT_PROCEDURE_CD, head.strProcId), PASSES);
        EXPECT_EQ(SetIt(KZCEkaITDataFinance_t::IT_SOFT_NAME, head.strSoftware), PASSES);
    }
    /// Everything up to the making of the document, on the plain path, with a short IT section.
    void Prepare(std::string_view strBytes, const FilingHead& head = Side::Head())
    {
        ASSERT_EQ(InitMok(Write(strBytes), m_folder.Path("out.mok")), PASSES);
        SetShortIt(head);
        ASSERT_EQ(LoadForConversion(true), PASSES);
    }

    std::string Mok()
    {
        std::string strMok = "untouched";
        EXPECT_EQ(m_manager.GetMok(strMok), STATUS_OK);
        return strMok;
    }

    /// A report of the side's procedure.
    static std::string Report(int nNumber,
                              const std::string& strFirst,
                              const std::string& strSecond)
    {
        return FilingReport(Side::Head(), Side::REPORT, "1.0", nNumber, nNumber,
                            SmallBody(Side::REPORT, strFirst, strSecond));
    }
    static std::string Item(int nNumber)
    {
        return CatalogueItem(Side::REPORT + ("-" + std::to_string(nNumber)));
    }
    static std::string Document(const std::string& strItems, const std::string& strReports)
    {
        return FilingDocument(Side::Head(), strItems, ShortItSection(Side::Head()), strReports);
    }

    TempFolder m_folder;
    FamilyBundle m_bundle;
    typename Side::Manager m_manager;
};

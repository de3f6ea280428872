// What tests of both managers of the Finance and CrossBorder families need to tell them apart.
#pragma once

#include <string>

#include "FilingDocument.h"
#include "KZCConvertInfoCrossBorder.h"
#include "KZCConvertInfoFinance.h"
#include "KZCEkaMOKManagerCrossBorder.h"
#include "KZCEkaMOKManagerFinance.h"
#include "StorePeek.h"

/// The Finance family with procedure 101 of FamilyBundle.
struct FinanceSide
{
    using Manager = KZCEkaMOKManagerFinance;

    static constexpr const char* TYPE_ID = "101";
    static constexpr const char* OTHER_PROCEDURE = "PGE2025";
    static constexpr const char* REPORT = "GEZ035";
    static constexpr const char* FOLDER = "Finance/PGE2015";
    static constexpr const char* CLASS = "KZCEkaMOKManagerFinance";
    static constexpr const char* SETTER = "KZCEkaMOKManagerFinance::SetITDataFinance";
    static constexpr const char* CHECK =
        "KZCEkaMOKManagerFinance::LoadCsvWithDefinitionFinance_Check";
    static constexpr const char* CONVERSION =
        "KZCEkaMOKManagerFinance::LoadCsvWithDefinitionFinance_Conv";
    static constexpr const char* MAKE_MOK = "KZCEkaMOKManagerFinance::MakeMok";
    static constexpr long LAST_KEY = 16;
    static constexpr const char* NAME_ARGUMENT = "00007";
    static constexpr const char* PROCEDURE_ARGUMENT = "00013";
    static constexpr const char* EL_PROCEDURE_ARGUMENT = "00012";
    static constexpr StoreKind STORE = StoreKind::Finance;

    static FilingHead Head() { return {.strProcId = "PGE2015", .strProcVR = "231.0"}; }
    static KZCConvertInfo& Store() { return *KZCConvertInfoFinance::instance_finance(); }
    static int Set(Manager& manager, KZCEkaITDataFinance_t eId, const char* szValue)
    {
        return manager.SetITDataFinance(eId, szValue);
    }
    static int LoadForCheck(Manager& manager)
    {
        return manager.LoadCsvWithDefinitionFinance_Check();
    }
    static int LoadForConversion(Manager& manager, bool bRead)
    {
        return manager.LoadCsvWithDefinitionFinance_Conv(bRead);
    }
};

/// The CrossBorder family with procedure 301 of FamilyBundle.
struct CrossBorderSide
{
    using Manager = KZCEkaMOKManagerCrossBorder;

    static constexpr const char* TYPE_ID = "301";
    static constexpr const char* OTHER_PROCEDURE = "PGE1660";
    static constexpr const char* REPORT = "GEZ850";
    static constexpr const char* FOLDER = "CrossBorder/PGE1650";
    static constexpr const char* CLASS = "KZCEkaMOKManagerCrossBorder";
    static constexpr const char* SETTER = "KZCEkaMOKManagerCrossBorder::SetITDataCrossBorder";
    static constexpr const char* CHECK =
        "KZCEkaMOKManagerCrossBorder::LoadCsvWithDefinitionCrossBorder_Check";
    static constexpr const char* CONVERSION =
        "KZCEkaMOKManagerCrossBorder::LoadCsvWithDefinitionCrossBorder_Conv";
    static constexpr const char* MAKE_MOK = "MakeMok";
    static constexpr long LAST_KEY = 10;
    static constexpr const char* NAME_ARGUMENT = "00011";
    static constexpr const char* PROCEDURE_ARGUMENT = "00019";
    static constexpr const char* EL_PROCEDURE_ARGUMENT = "00018";
    static constexpr StoreKind STORE = StoreKind::CrossBorder;

    static FilingHead Head() { return {.strProcId = "PGE1650", .strProcVR = "240.0"}; }
    static KZCConvertInfo& Store() { return *KZCConvertInfoCrossBorder::instance_crossborder(); }
    static int Set(Manager& manager, KZCEkaITDataFinance_t eId, const char* szValue)
    {
        return manager.SetITDataCrossBorder(eId, szValue);
    }
    static int LoadForCheck(Manager& manager)
    {
        return manager.LoadCsvWithDefinitionCrossBorder_Check();
    }
    static int LoadForConversion(Manager& manager, bool bRead)
    {
        return manager.LoadCsvWithDefinitionCrossBorder_Conv(bRead);
    }
};

// The four shapes of a request, which the families share, and the steps that they are made of.
#pragma once

#include <KZEkaMok/KZEkaMok.h>

#include <initializer_list>
#include <string>
#include <utility>

#include "KZCConvertResultEka.h"
#include "KZCCsvConvMokEka.h"
#include "KZCDebugDump.h"
#include "KZCEkaCommon.h"
#include "KZCEkaITDataFinance.h"
#include "KZCValidResult.h"
#include "family/FamilyTraits.h"
#include "fault/Fault.h"

namespace RequestSteps {

/// Key of the plain path.
inline constexpr long PLAIN_KEY = 1;

/// The filer's fields of a conversion, null if the host gave none.
struct FilerArguments
{
    const char* szZeimushoCD = nullptr;
    const char* szNozeishaId = nullptr;
    const char* szKojinBango = nullptr;
    const char* szHojinBango = nullptr;
    const char* szNozeishaNm = nullptr;
    const char* szNozeishaAdr = nullptr;
    const char* szDaihyoNm = nullptr;
    const char* szDairiId = nullptr;
    const char* szDairiNm = nullptr;
    const char* szDairiAdr = nullptr;
    const char* szTetsuzuki = nullptr;
    const char* szSoftName = nullptr;
    // From here on the base family has none.
    const char* szTeishutsuEra = nullptr;
    const char* szTeishutsuYear = nullptr;
    const char* szTeishutsuMonth = nullptr;
    const char* szTeishutsuDay = nullptr;
    const char* szNozeishaZip1 = nullptr;
    const char* szNozeishaZip2 = nullptr;
};

/// The texts of an operation in the log.
struct OperationTexts
{
    const char* szFunction;               ///< where a fault is said to have happened
    const char* szRefused;                ///< label of the detail table
    const char* szPassed;                 ///< label of the result
    const char* szRecordCount = nullptr;  ///< label of the record count of an EL check
};

/// End of the label and value of an argument.
using Argument = std::pair<const char*, const char*>;

/// Traces arguments. \param szStem  Begin of their labels, such as "CsvCheck引数".
void TraceArguments(const char* szStem, std::initializer_list<Argument> arguments);

/// Traces the key of an EL request in decimal digits.
void TraceKey(const char* szStem, long lCsvDistKey);

/// Not null and not empty.
bool IsGiven(const char* szText);

/// A filer has a personal or a corporate number, not both: both are an error of both arguments.
/// \return true if that is so; the errors are in the result store.
bool RefuseBothNumbers(const FilerArguments& filer, const ConversionArguments& arguments);

/// One part of a postal code without the other is an error of the missing one.
/// \return true if that is so; the error is in the result store.
bool RefuseHalfZip(const FilerArguments& filer, const ConversionArguments& arguments);

/// Stores the fields of a Finance or CrossBorder filer. A bad value leaves its error in the result
/// store. \param set  Takes a field's id and its value.
template <class SetField>
void SetFamilyFiler(const FilerArguments& filer,
                    const ConversionArguments& arguments,
                    SetField set);

enum class Outcome
{
    Passed,
    Refused,
    Fault,
};

/// Runs the body of a request. What it throws becomes the fatal error.
/// \param lowerFlag  Called first then, as without memory not even that error can be recorded.
template <class Body, class LowerFlag>
Outcome RunBody(const char* szFunction, Body body, LowerFlag lowerFlag)
{
    try {
        return body() ? Outcome::Passed : Outcome::Refused;
    } catch (...) {
        lowerFlag();
        KZCValidResult::instance()->SetFatalError();
        KZCDebugDump::Log(szFunction, UNEXPECTED_ERROR);
        return Outcome::Fault;
    }
}

/// The same for a request that doesn't put the check flag up.
template <class Body>
Outcome RunBody(const char* szFunction, Body body)
{
    return RunBody(szFunction, body, [] {});
}

/// Runs the closing steps of a request, which tell the result, and stores that. What they throw is
/// logged and recorded nowhere; the result is what they had told before, or a failure if the family
/// wants it so. A failure shows nothing of what a request that passes hands over.
template <class Closing>
void RunClosing(const FamilyTraits& traits,
                const char* szFunction,
                KZCConvertResultEka& record,
                Closing closing)
{
    const char* szResult = PROCESS_FAIL;
    try {
        closing(szResult);
    } catch (...) {
        KZCDebugDump::Log(szFunction, UNEXPECTED_ERROR);
        if (traits.bFailsOnClosingFault)
            szResult = PROCESS_FAIL;
        if (szResult == PROCESS_FAIL) {
            record.SetProcId({});
            record.SetRecordCount({});
            record.SetMokData({});
        }
    }
    record.SetResult(szResult);
}

/// The detail table of a failed request; empties the result store.
template <class Manager>
std::string TakeErrors(const FamilyTraits& traits, Manager& manager, KZCConvertResultEka& record)
{
    if (traits.bAlignsErrors)
        KZCValidResult::instance()->AlignErrCode();
    std::string strErrors = manager.GetErrorMsg();
    record.SetDetailErrorInfo(strErrors);
    return strErrors;
}

/// Reads, loads and checks, with cells as Shift_JIS from here on.
template <class Family>
bool RunCheck(typename Family::Manager& manager)
{
    KZCEkaCommon::SetCsvCheckFlag(true);
    return Family::LoadForCheck(manager) == STATUS_OK && manager.ValidateCsv() == STATUS_OK;
}

/// A check that forgets.
template <class Family>
void CheckPlain(const OperationTexts& texts, KZCConvertResultEka& record, const char* szCsvPathName)
{
    constexpr const FamilyTraits& TRAITS = Family::TRAITS;
    std::string strProcId;
    typename Family::Manager manager;
    const auto check = [&] {
        manager.TerminateDifferentData();
        KZCEkaCommon::setExecMode(TRAITS.eExecMode);
        if (manager.InitForCheck(true, szCsvPathName, PLAIN_KEY) != STATUS_OK ||
            !RunCheck<Family>(manager))
            return false;
        strProcId = manager.GetProcID();
        return true;
    };
    const Outcome eOutcome = RunBody(texts.szFunction, check, [] {
        if (!Family::TRAITS.bHidesPlainFault)
            KZCEkaCommon::SetCsvCheckFlag(false);
    });
    const bool bHidden = eOutcome == Outcome::Fault && TRAITS.bHidesPlainFault;
    if (!bHidden)
        KZCEkaCommon::SetCsvCheckFlag(false);
    RunClosing(TRAITS, texts.szFunction, record, [&](const char*& szResult) {
        if (eOutcome != Outcome::Passed && !bHidden)
            KZCCsvConvMokEka::OutputIF(TakeErrors(TRAITS, manager, record).c_str(),
                                       texts.szRefused);
        manager.Terminate(false, true, false);
        if (eOutcome != Outcome::Passed)
            return;
        record.SetProcId(strProcId);
        szResult = PROCESS_OK;
        KZCCsvConvMokEka::OutputIF(strProcId.c_str(), texts.szPassed);
    });
}

/// A conversion of one file into another. \param setFiler  Stores the filer's fields.
template <class Family, class SetFiler>
void ConvertPlain(const OperationTexts& texts,
                  KZCConvertResultEka& record,
                  const char* szCsvPathName,
                  const char* szMokPathName,
                  SetFiler setFiler)
{
    constexpr const FamilyTraits& TRAITS = Family::TRAITS;
    typename Family::Manager manager;
    const Outcome eOutcome = RunBody(texts.szFunction, [&] {
        manager.TerminateDifferentData();
        KZCEkaCommon::setExecMode(TRAITS.eExecMode);
        if (manager.InitForMok(true, szCsvPathName, szMokPathName, PLAIN_KEY) != STATUS_OK)
            return false;
        setFiler(manager, TRAITS.plain);
        return !manager.HasErrorMsg() && Family::LoadForConversion(manager, true) == STATUS_OK &&
               manager.MakeMok() == STATUS_OK && manager.SaveMok() == STATUS_OK;
    });
    const bool bHidden = eOutcome == Outcome::Fault && TRAITS.bHidesPlainFault;
    RunClosing(TRAITS, texts.szFunction, record, [&](const char*& szResult) {
        if (eOutcome != Outcome::Passed && !bHidden)
            KZCCsvConvMokEka::OutputIF(TakeErrors(TRAITS, manager, record).c_str(),
                                       texts.szRefused);
        manager.Terminate(false, true, false);
        if (eOutcome != Outcome::Passed)
            return;
        szResult = PROCESS_OK;
        KZCCsvConvMokEka::OutputIF("", texts.szPassed);
    });
}

/// A check that keeps what it read under the host's key, ready for conversions.
template <class Family>
void CheckKept(const OperationTexts& texts,
               KZCConvertResultEka& record,
               const char* szCsvPathName,
               long lCsvDistKey)
{
    constexpr const FamilyTraits& TRAITS = Family::TRAITS;
    std::string strProcId;
    std::string strRecordCount;
    typename Family::Manager manager;
    const auto check = [&] {
        manager.TerminateDifferentData();
        KZCEkaCommon::setExecMode(TRAITS.eExecMode);
        if (manager.InitForCheck(false, szCsvPathName, lCsvDistKey) != STATUS_OK ||
            !RunCheck<Family>(manager))
            return false;
        strProcId = manager.GetProcID();
        strRecordCount = manager.GetRecodeCount();
        return true;
    };
    const Outcome eChecked =
        RunBody(texts.szFunction, check, [] { KZCEkaCommon::SetCsvCheckFlag(false); });
    KZCEkaCommon::SetCsvCheckFlag(false);
    bool bPassed = eChecked == Outcome::Passed;
    if (bPassed) {
        // Read again with the flag down: what is kept for the conversion holds UTF-8.
        const Outcome eReloaded = RunBody(texts.szFunction, [&] {
            manager.ReloadCsvFile(lCsvDistKey, szCsvPathName);
            return true;
        });
        bPassed = eReloaded == Outcome::Passed || TRAITS.bForgivesReload;
    }
    RunClosing(TRAITS, texts.szFunction, record, [&](const char*& szResult) {
        if (!bPassed) {
            const std::string strErrors = TakeErrors(TRAITS, manager, record);
            manager.Terminate(false, false, true);
            KZCCsvConvMokEka::OutputIF(strErrors.c_str(), texts.szRefused);
            return;
        }
        record.SetProcId(strProcId);
        record.SetRecordCount(strRecordCount);
        szResult = PROCESS_OK;
        KZCCsvConvMokEka::OutputIF(strProcId.c_str(), texts.szPassed);
        KZCCsvConvMokEka::OutputIF(strRecordCount.c_str(), texts.szRecordCount);
    });
}

/// A conversion of what a check has kept, into a text. The key stays either way: the host can
/// correct the arguments and convert it again. \param setFiler  Stores the filer's fields.
template <class Family, class SetFiler>
void ConvertKept(const OperationTexts& texts,
                 KZCConvertResultEka& record,
                 long lCsvDistKey,
                 SetFiler setFiler)
{
    constexpr const FamilyTraits& TRAITS = Family::TRAITS;
    std::string strProcId;
    std::string strMok;
    typename Family::Manager manager;
    const Outcome eOutcome = RunBody(texts.szFunction, [&] {
        manager.TerminateDifferentData();
        KZCEkaCommon::setExecMode(TRAITS.eExecMode);
        if (manager.InitForMok(false, nullptr, nullptr, lCsvDistKey) != STATUS_OK)
            return false;
        setFiler(manager, TRAITS.el);
        if (manager.HasErrorMsg() || Family::LoadForConversion(manager, false) != STATUS_OK ||
            manager.MakeMok() != STATUS_OK || manager.GetMok(strMok) != STATUS_OK)
            return false;
        strProcId = manager.GetProcID();
        return true;
    });
    RunClosing(TRAITS, texts.szFunction, record, [&](const char*& szResult) {
        if (eOutcome != Outcome::Passed) {
            KZCCsvConvMokEka::OutputIF(TakeErrors(TRAITS, manager, record).c_str(),
                                       texts.szRefused);
            return;
        }
        record.SetMokData(strMok);
        record.SetProcId(strProcId);
        szResult = PROCESS_OK;
        KZCCsvConvMokEka::OutputIF("", texts.szPassed);
    });
}

/// Ends what lives between requests, and the record behind it. Whatever ending the stores throws
/// stops here, and the record stays then.
template <class EndStores, class EndRecord>
void RunTerminate(EndStores endStores, EndRecord endRecord)
{
    KZCEkaCommon::SetCsvCheckFlag(false);
    try {
        endStores();
    } catch (...) {
        return;
    }
    endRecord();
}

template <class SetField>
void SetFamilyFiler(const FilerArguments& filer, const ConversionArguments& arguments, SetField set)
{
    using enum KZCEkaITDataFinance_t;
    set(IT_ZEIMUSHO_CD, filer.szZeimushoCD);
    set(IT_NOZEISHA_ID, filer.szNozeishaId);
    if (!RefuseBothNumbers(filer, arguments)) {
        set(IT_KOJINBANGO, filer.szKojinBango);
        set(IT_HOJINBANGO, filer.szHojinBango);
    }
    set(IT_NOZEISHA_NM, filer.szNozeishaNm);
    set(IT_NOZEISHA_ADR, filer.szNozeishaAdr);
    set(IT_DAIHYO_NM, filer.szDaihyoNm);
    set(IT_DAIRI_ID, filer.szDairiId);
    set(IT_DAIRI_NM, filer.szDairiNm);
    set(IT_DAIRI_ADR, filer.szDairiAdr);
    set(IT_PROCEDURE_CD, filer.szTetsuzuki);
    set(IT_ERA, filer.szTeishutsuEra);
    set(IT_YY, filer.szTeishutsuYear);
    set(IT_MM, filer.szTeishutsuMonth);
    set(IT_DD, filer.szTeishutsuDay);
    set(IT_SOFT_NAME, filer.szSoftName);
    if (!RefuseHalfZip(filer, arguments)) {
        set(IT_ZIP1, filer.szNozeishaZip1);
        set(IT_ZIP2, filer.szNozeishaZip2);
    }
}

}  // namespace RequestSteps

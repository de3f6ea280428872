#include "KZCEkaMOKManager.h"

#include <typeinfo>

#include "CText.h"
#include "DocumentParts.h"
#include "FamilyTraits.h"
#include "Fault.h"
#include "KZCConvertInfo.h"
#include "KZCDebugDump.h"
#include "KZCEkaCommon.h"
#include "KZCEkaTaxOffices.h"
#include "KZCValidResult.h"
#include "LostText.h"

namespace {

constexpr long MAX_DOCUMENT_SIZE = 10485760;
constexpr const char* DOCUMENT_NAME = "eka_orbclient_ZEKA";

constexpr long CSV_PATH_ARGUMENT = 1;
constexpr long MOK_PATH_ARGUMENT = 2;
/// The key is the second argument of a check and the first of a conversion.
constexpr long CHECK_KEY_ARGUMENT = 2;
constexpr long CONVERSION_KEY_ARGUMENT = 1;

/// Runs the argument checks of a type on a value. \return what the checks returned.
int CheckArgument(KZCEkaValidator& validator,
                  KZCArgValid_t eType,
                  const std::string& strValue,
                  long lArgument)
{
    static_cast<void>(validator.Initialize(eType, true));
    return validator.Validate(strValue.c_str(), ARGUMENT_RECORD, lArgument);
}

std::string TrimPath(const char* szPath)
{
    return szPath != nullptr && *szPath != '\0' ? KZCEkaCommon::StringTrim(szPath) : std::string();
}

/// Records an error that ends the making of the document. \return STATUS_NG.
int RefuseDocument(KZCEkaMessage_t eMessage,
                   long lRecord,
                   long lColumn,
                   const std::string& strFunction,
                   const char* szMessage,
                   const char* szValue)
{
    KZCValidResult::instance()->SetResult(eMessage, lRecord, lColumn, SINGLE_COLUMN);
    KZCDebugDump::Log(strFunction.c_str(), szMessage);
    KZCDebugDump::OutputValid(eMessage, lRecord, lColumn, szValue, true);
    return STATUS_NG;
}

}  // namespace

KZCEkaMOKManager::~KZCEkaMOKManager()
{
    if (m_pXDom)
        m_pXDom->Terminate();
}

int KZCEkaMOKManager::InitForCheck(bool bPublic, const char* szCsvPathName, long lCsvDistKey)
{
    KZCValidResult::instance()->ClearResult();
    return RunStep("InitForCheck", [&] {
        KZCEkaValidator validator;
        KZCEkaTaxOffices::instance()->Initialize();
        const std::string strPath = TrimPath(szCsvPathName);
        CheckArgument(validator, ARG_CSV_PATH, strPath, CSV_PATH_ARGUMENT);
        if (!bPublic)
            CheckArgument(validator, Traits().eKeyCheck, std::to_string(lCsvDistKey),
                          CHECK_KEY_ARGUMENT);
        if (!KZCValidResult::instance()->IsEmpty())
            return STATUS_NG;
        m_lCsvDistKey = lCsvDistKey;
        m_strCsvPathName = strPath;
        return STATUS_OK;
    });
}

int KZCEkaMOKManager::InitForMok(bool bPublic,
                                 const char* szCsvPathName,
                                 const char* szMokPathName,
                                 long lCsvDistKey)
{
    KZCValidResult::instance()->ClearResult();
    return RunStep("InitForMok", [&] {
        KZCEkaValidator validator;
        KZCEkaTaxOffices::instance()->Initialize();
        Store()->GetITData(lCsvDistKey)->Initialize(bPublic);
        const std::string strCsvPath = TrimPath(szCsvPathName);
        const std::string strMokPath = TrimPath(szMokPathName);
        if (bPublic) {
            CheckArgument(validator, ARG_CSV_PATH, strCsvPath, CSV_PATH_ARGUMENT);
            CheckArgument(validator, ARG_MOK_PATH, strMokPath, MOK_PATH_ARGUMENT);
        } else {
            CheckKeptFile(validator, lCsvDistKey);
        }
        m_lCsvDistKey = lCsvDistKey;
        m_strCsvPathName = strCsvPath;
        m_strMokPathName = strMokPath;
        return STATUS_OK;
    });
}

/// The key is within its limits and holds records.
void KZCEkaMOKManager::CheckKeptFile(KZCEkaValidator& validator, long lCsvDistKey) const
{
    const int nStatus = CheckArgument(validator, Traits().eKeyCheck, std::to_string(lCsvDistKey),
                                      CONVERSION_KEY_ARGUMENT);
    if (nStatus == STATUS_NG || Store()->GetCsvFile(lCsvDistKey)->GetRecordCount() != 0)
        return;
    KZCValidResult::instance()->SetResult(HE70013E, ARGUMENT_RECORD, CONVERSION_KEY_ARGUMENT,
                                          SINGLE_COLUMN);
    KZCDebugDump::Log(LogName("InitForMok").c_str(),
                      "指定された識別キーのCSVデータが存在しません。（HE70013E）");
    KZCDebugDump::OutputValid(HE70013E, ARGUMENT_RECORD, CONVERSION_KEY_ARGUMENT, "", true);
}

int KZCEkaMOKManager::LoadCsvWithDefinition(bool bIsCheck)
{
    return RunStep("LoadCsvWithDefinition", [&] {
        if (const int nStatus = ReadCsvFile(); nStatus != STATUS_OK)
            return nStatus;
        LoadDefinition(bIsCheck);
        return STATUS_OK;
    });
}

KZCEkaITData& KZCEkaMOKManager::ITData() const
{
    return *Store()->GetITData(m_lCsvDistKey);
}

const KZCEkaCsvFile& KZCEkaMOKManager::CsvFile() const
{
    return *Store()->GetCsvFile(m_lCsvDistKey);
}

int KZCEkaMOKManager::ReadCsvFile() const
{
    return Store()->GetCsvFile(m_lCsvDistKey)->ReadFile(m_strCsvPathName);
}

void KZCEkaMOKManager::LoadDefinition(bool bIsCheck) const
{
    const _ConvertTable table = Store()->GetConvertTable(m_lCsvDistKey);
    if (table.pDefinition->CreateDefinition(table.pCsvFile->GetTypeId(), bIsCheck) != STATUS_OK)
        throw FAULT;
}

int KZCEkaMOKManager::ValidateCsv()
{
    return RunStep("ValidateCsv", [this] {
        const _ConvertTable table = Store()->GetConvertTable(m_lCsvDistKey);
        return table.pDefinition->ValidateCsv(table.pCsvFile) == 0 ? STATUS_OK : STATUS_NG;
    });
}

int KZCEkaMOKManager::MakeMok()
{
    const std::string strFunction = MakeMokName();
    try {
        LostText::Forget();
        const _ConvertTable table = Store()->GetConvertTable(m_lCsvDistKey);
        const std::string strProcedure = HostProcedure(*table.pITData);
        if (strProcedure != table.pDefinition->GetProcId())
            return RefuseDocument(HE70010E, ARGUMENT_RECORD,
                                  (table.pITData->IsPublic() ? 1 : 0) | Traits().lProcedureArgument,
                                  MismatchName(), "引数の手続きIDが不正です。（HE70010E）",
                                  strProcedure.c_str());
        table.pCsvFile->DeleteEmptyRecord();
        m_pXDom = std::make_unique<KZCEkaXDOM>();
        if (!m_pXDom->Initialize())
            throw FAULT;
        const std::string strText = MakeDocumentText(table);
        LostText::Check();
        if (!m_pXDom->Parse(strText.c_str(), DocumentName(*table.pITData).c_str(), "UTF-8"))
            RaiseFault(strFunction.c_str(), "MOKファイルの読み込みに失敗。");
        const long lSize = m_pXDom->GetSerialisedSize();
        if (lSize < 0)
            RaiseFault(strFunction.c_str(), "MOKファイルの保存に失敗。");
        if (lSize <= MAX_DOCUMENT_SIZE)
            return STATUS_OK;
        KZCValidResult::instance()->SetResult(HE70023E, 0, 0, SINGLE_COLUMN);
        KZCDebugDump::Log(strFunction.c_str(), "MOKファイルが10MBを超えています。（HE70023E）");
        KZCDebugDump::OutputValid(HE70023E, 0, 0, lSize);
        return STATUS_NG;
    } catch (...) {
        return RefuseDocument(HE70016E, 0, 0, strFunction,
                              "想定外の事象によりMOKファイルの作成に失敗しました。（HE70016E）",
                              "");
    }
}

std::string KZCEkaMOKManager::MakeDocumentText(const _ConvertTable& table) const
{
    const KZCEkaDefinition& definition = *table.pDefinition;
    std::string strText =
        DocumentParts::Declaration() + DocumentParts::RootStart() +
        DocumentParts::ProcedureStart(definition.GetProcId(), definition.GetProcVR());
    // One item a record, even if the record turns out to have no report.
    strText += DocumentParts::CatalogueHead();
    for (std::int64_t nNumber = 1; nNumber <= table.pCsvFile->GetRecordCount(); ++nNumber)
        strText += DocumentParts::CutCatalogueItem(std::string(definition.GetReportId()) + "-" +
                                                   std::to_string(nNumber));
    strText += DocumentParts::CatalogueTail();
    strText += DocumentParts::ContentsStart();
    strText += table.pITData->GetXml();
    strText += table.pDefinition->MakeReportToCsv(table.pCsvFile, table.pITData);
    strText += DocumentParts::ContentsEnd();
    strText += DocumentParts::ProcedureAndRootEnd(definition.GetProcId());
    return strText;
}

int KZCEkaMOKManager::SaveMok()
{
    if (m_pXDom && m_pXDom->Save(m_strMokPathName.c_str()) == STATUS_OK)
        return STATUS_OK;
    return RecordFatalError("SaveMok");
}

int KZCEkaMOKManager::GetMok(std::string& strOut)
{
    return RunStep("GetMok", [&] {
        std::string strText;
        if (!m_pXDom || m_pXDom->SaveXml(strText) != STATUS_OK)
            throw FAULT;
        strOut = std::move(strText);
        return STATUS_OK;
    });
}

int KZCEkaMOKManager::SetITData(KZCEkaITData_t eId, const char* szValue)
{
    return StoreITValue("SetITData", szValue,
                        [&](const char* szTrimmed) { return ITData().SetITData(eId, szTrimmed); });
}

int KZCEkaMOKManager::StoreITValue(const char* szOperation,
                                   const char* szValue,
                                   const std::function<int(const char*)>& store) const
{
    try {
        LostText::Forget();
        const std::string strValue =
            szValue != nullptr ? KZCEkaCommon::StringTrim(szValue) : std::string();
        LostText::Check();
        return store(strValue.c_str());
    } catch (...) {
        RaiseFault(LogName(szOperation).c_str(), nullptr);
    }
}

std::string KZCEkaMOKManager::GetProcID()
{
    return Store()->GetDefinition(m_lCsvDistKey)->GetProcId();
}

std::string KZCEkaMOKManager::GetRecodeCount()
{
    return std::to_string(CsvFile().GetNonCRLFRecordCount());
}

bool KZCEkaMOKManager::HasErrorMsg()
{
    try {
        return !KZCValidResult::instance()->IsEmpty();
    } catch (...) {
        RecordFatalError("HasErrorMsg");
        return true;
    }
}

std::string KZCEkaMOKManager::GetErrorMsg()
{
    return KZCValidResult::instance()->MakeResult();
}

void KZCEkaMOKManager::Terminate(bool bDestroyResult, bool bDestroyStore, bool bClearKey)
{
    if (bDestroyResult)
        KZCValidResult::destroy();
    if (bDestroyStore) {
        KZCConvertInfo::destroy();
        KZCEkaTaxOffices::destroy();
        return;
    }
    // By the base accessor, whatever the family: without a store this makes a base one. Wanted.
    if (bClearKey)
        KZCConvertInfo::instance()->ClearInfo(m_lCsvDistKey);
}

void KZCEkaMOKManager::ReloadCsvFile(long lCsvDistKey, const char* szPath)
{
    if (szPath != nullptr && *szPath != '\0')
        KZCConvertInfo::instance()->ReloadCsvFile(lCsvDistKey, KZCEkaCommon::StringTrim(szPath));
}

void KZCEkaMOKManager::TerminateDifferentData()
{
    const KZCConvertInfo& store = *KZCConvertInfo::instance();
    if (typeid(store) != typeid(KZCConvertInfo))
        TerminateAll();
}

const FamilyTraits& KZCEkaMOKManager::Traits() const
{
    return BASE_FAMILY;
}

const char* KZCEkaMOKManager::ClassName() const
{
    return "KZCEkaMOKManager";
}

std::string KZCEkaMOKManager::MismatchName() const
{
    return MakeMokName();
}

std::string KZCEkaMOKManager::MakeMokName() const
{
    return LogName("MakeMok");
}

KZCConvertInfo* KZCEkaMOKManager::Store() const
{
    return KZCConvertInfo::instance();
}

std::string KZCEkaMOKManager::HostProcedure(const KZCEkaITData& it) const
{
    return it.GetITData(IT_PROCEDURE_CD);
}

std::string KZCEkaMOKManager::DocumentName(const KZCEkaITData& /*it*/) const
{
    return DOCUMENT_NAME;
}

int KZCEkaMOKManager::RunStep(const char* szOperation, const std::function<int()>& step) const
{
    try {
        LostText::Forget();
        const int nStatus = step();
        LostText::Check();
        return nStatus;
    } catch (...) {
        return RecordFatalError(szOperation);
    }
}

std::string KZCEkaMOKManager::LogName(const char* szOperation) const
{
    return std::string(ClassName()) + "::" + szOperation;
}

/// A fault of a step: everything found before gives way to the one fatal error. \return STATUS_NG.
int KZCEkaMOKManager::RecordFatalError(const char* szOperation) const
{
    KZCValidResult::instance()->SetFatalError();
    KZCDebugDump::Log(LogName(szOperation).c_str(), UNEXPECTED_ERROR);
    return STATUS_NG;
}

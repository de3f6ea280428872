#include "KZCEkaMOKManager.h"

#include <typeinfo>

#include "CText.h"
#include "DocumentParts.h"
#include "Fault.h"
#include "KZCConvertInfo.h"
#include "KZCDebugDump.h"
#include "KZCEkaCommon.h"
#include "KZCEkaTaxOffices.h"
#include "KZCValidResult.h"

namespace {

constexpr long MAX_DOCUMENT_SIZE = 10485760;
constexpr const char* DOCUMENT_NAME = "eka_orbclient_ZEKA";

constexpr long CSV_PATH_ARGUMENT = 1;
constexpr long MOK_PATH_ARGUMENT = 2;
/// The key is the second argument of a check and the first of a conversion.
constexpr long CHECK_KEY_ARGUMENT = 2;
constexpr long CONVERSION_KEY_ARGUMENT = 1;
/// Argument number of the procedure id on the EL path; one more on the plain path.
constexpr long PROCEDURE_ARGUMENT = 12;

/// A fault of a step: everything found before gives way to the one fatal error.
int RecordFatalError(const char* szFunction)
{
    KZCValidResult::instance()->SetFatalError();
    KZCDebugDump::Log(szFunction, UNEXPECTED_ERROR);
    return STATUS_NG;
}

/// Runs a step of the request; whatever it throws becomes the fatal error.
template <class Step>
int RunStep(const char* szFunction, Step step)
{
    try {
        return step();
    } catch (...) {
        return RecordFatalError(szFunction);
    }
}

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
                   const char* szMessage,
                   const char* szValue)
{
    KZCValidResult::instance()->SetResult(eMessage, lRecord, lColumn, SINGLE_COLUMN);
    KZCDebugDump::Log("KZCEkaMOKManager::MakeMok", szMessage);
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
    return RunStep("KZCEkaMOKManager::InitForCheck", [&] {
        KZCEkaValidator validator;
        KZCEkaTaxOffices::instance()->Initialize();
        const std::string strPath = TrimPath(szCsvPathName);
        CheckArgument(validator, ARG_CSV_PATH, strPath, CSV_PATH_ARGUMENT);
        if (!bPublic)
            CheckArgument(validator, KeyCheck(), std::to_string(lCsvDistKey), CHECK_KEY_ARGUMENT);
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
    return RunStep("KZCEkaMOKManager::InitForMok", [&] {
        KZCEkaValidator validator;
        KZCEkaTaxOffices::instance()->Initialize();
        KZCConvertInfo::instance()->GetITData(lCsvDistKey)->Initialize(bPublic);
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
void KZCEkaMOKManager::CheckKeptFile(KZCEkaValidator& validator, long lCsvDistKey)
{
    const int nStatus =
        CheckArgument(validator, KeyCheck(), std::to_string(lCsvDistKey), CONVERSION_KEY_ARGUMENT);
    if (nStatus == STATUS_NG ||
        KZCConvertInfo::instance()->GetCsvFile(lCsvDistKey)->GetRecordCount() != 0)
        return;
    KZCValidResult::instance()->SetResult(HE70013E, ARGUMENT_RECORD, CONVERSION_KEY_ARGUMENT,
                                          SINGLE_COLUMN);
    KZCDebugDump::Log("KZCEkaMOKManager::InitForMok",
                      "指定された識別キーのCSVデータが存在しません。（HE70013E）");
    KZCDebugDump::OutputValid(HE70013E, ARGUMENT_RECORD, CONVERSION_KEY_ARGUMENT, "", true);
}

int KZCEkaMOKManager::LoadCsvWithDefinition(bool bIsCheck)
{
    return RunStep("KZCEkaMOKManager::LoadCsvWithDefinition", [&] {
        KZCConvertInfo* pStore = KZCConvertInfo::instance();
        KZCEkaCsvFile* pCsv = pStore->GetCsvFile(m_lCsvDistKey);
        if (const int nStatus = pCsv->ReadFile(m_strCsvPathName); nStatus != 0)
            return nStatus;
        if (pStore->GetDefinition(m_lCsvDistKey)->CreateDefinition(pCsv->GetTypeId(), bIsCheck) !=
            STATUS_OK)
            throw FAULT;
        return STATUS_OK;
    });
}

int KZCEkaMOKManager::ValidateCsv()
{
    return RunStep("KZCEkaMOKManager::ValidateCsv", [this] {
        const _ConvertTable table = KZCConvertInfo::instance()->GetConvertTable(m_lCsvDistKey);
        return table.pDefinition->ValidateCsv(table.pCsvFile) == 0 ? STATUS_OK : STATUS_NG;
    });
}

int KZCEkaMOKManager::MakeMok()
{
    constexpr const char* FUNCTION = "KZCEkaMOKManager::MakeMok";
    try {
        const _ConvertTable table = KZCConvertInfo::instance()->GetConvertTable(m_lCsvDistKey);
        const std::string strProcedure = table.pITData->GetITData(IT_PROCEDURE_CD);
        if (strProcedure != table.pDefinition->GetProcId())
            return RefuseDocument(HE70010E, ARGUMENT_RECORD,
                                  (table.pITData->IsPublic() ? 1 : 0) | PROCEDURE_ARGUMENT,
                                  "引数の手続きIDが不正です。（HE70010E）", strProcedure.c_str());
        table.pCsvFile->DeleteEmptyRecord();
        m_pXDom = std::make_unique<KZCEkaXDOM>();
        if (!m_pXDom->Initialize())
            throw FAULT;
        if (!m_pXDom->Parse(MakeDocumentText().c_str(), DOCUMENT_NAME, "UTF-8"))
            RaiseFault(FUNCTION, "MOKファイルの読み込みに失敗。");
        const long lSize = m_pXDom->GetSerialisedSize();
        if (lSize < 0)
            RaiseFault(FUNCTION, "MOKファイルの保存に失敗。");
        if (lSize <= MAX_DOCUMENT_SIZE)
            return STATUS_OK;
        KZCValidResult::instance()->SetResult(HE70023E, 0, 0, SINGLE_COLUMN);
        KZCDebugDump::Log(FUNCTION, "MOKファイルが10MBを超えています。（HE70023E）");
        KZCDebugDump::OutputValid(HE70023E, 0, 0, lSize);
        return STATUS_NG;
    } catch (...) {
        return RefuseDocument(
            HE70016E, 0, 0, "想定外の事象によりMOKファイルの作成に失敗しました。（HE70016E）", "");
    }
}

/// The document as it is assembled, before the XML library has seen it.
std::string KZCEkaMOKManager::MakeDocumentText() const
{
    const _ConvertTable table = KZCConvertInfo::instance()->GetConvertTable(m_lCsvDistKey);
    const KZCEkaDefinition& definition = *table.pDefinition;
    std::string strText =
        DocumentParts::Declaration() + DocumentParts::RootStart() +
        DocumentParts::ProcedureStart(definition.GetProcId(), definition.GetProcVR());
    // One item a record, even if the record turns out to have no report.
    strText += DocumentParts::CatalogueHead();
    for (std::int64_t nNumber = 1; nNumber <= table.pCsvFile->GetRecordCount(); ++nNumber)
        strText += DocumentParts::CatalogueItem(std::string(definition.GetReportId()) + "-" +
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
    return RecordFatalError("KZCEkaMOKManager::SaveMok");
}

int KZCEkaMOKManager::GetMok(std::string& strOut)
{
    return RunStep("KZCEkaMOKManager::GetMok", [&] {
        std::string strText;
        if (!m_pXDom || m_pXDom->SaveXml(strText) != STATUS_OK)
            throw FAULT;
        strOut = std::move(strText);
        return STATUS_OK;
    });
}

int KZCEkaMOKManager::SetITData(KZCEkaITData_t eId, const char* szValue)
{
    try {
        const std::string strValue =
            szValue != nullptr ? KZCEkaCommon::StringTrim(szValue) : std::string();
        return KZCConvertInfo::instance()
            ->GetITData(m_lCsvDistKey)
            ->SetITData(eId, strValue.c_str());
    } catch (...) {
        RaiseFault("KZCEkaMOKManager::SetITData", nullptr);
    }
}

std::string KZCEkaMOKManager::GetProcID()
{
    return KZCConvertInfo::instance()->GetDefinition(m_lCsvDistKey)->GetProcId();
}

std::string KZCEkaMOKManager::GetRecodeCount()
{
    return std::to_string(
        KZCConvertInfo::instance()->GetCsvFile(m_lCsvDistKey)->GetNonCRLFRecordCount());
}

bool KZCEkaMOKManager::HasErrorMsg()
{
    try {
        return !KZCValidResult::instance()->IsEmpty();
    } catch (...) {
        RecordFatalError("KZCEkaMOKManager::HasErrorMsg");
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
    if (typeid(store) == typeid(KZCConvertInfo))
        return;
    KZCValidResult::destroy();
    KZCConvertInfo::destroy();
    KZCEkaTaxOffices::destroy();
}

KZCArgValid_t KZCEkaMOKManager::KeyCheck() const
{
    return ARG_KEY;
}

#include "KZCConvertInfo.h"

#include "Fault.h"

std::unique_ptr<KZCConvertInfo> KZCConvertInfo::m_pInstance;

KZCConvertInfo* KZCConvertInfo::instance()
{
    if (!m_pInstance)
        m_pInstance.reset(new KZCConvertInfo);  // the constructor is open to the families only
    return m_pInstance.get();
}

void KZCConvertInfo::destroy()
{
    m_pInstance.reset();
}

KZCEkaCsvFile* KZCConvertInfo::GetCsvFile(long lCsvDistKey)
{
    return GetConvertTable(lCsvDistKey).pCsvFile;
}

int KZCConvertInfo::ReloadCsvFile(long lCsvDistKey, const std::string& strPath)
{
    const auto pEntry = m_mapTable.find(lCsvDistKey);
    if (pEntry == m_mapTable.end())
        return STATUS_OK;
    pEntry->second.pCsvFile = MakeCsvFile();
    return pEntry->second.pCsvFile->ReadFile(strPath);
}

_ConvertTable KZCConvertInfo::GetConvertTable(long lCsvDistKey)
{
    auto pEntry = m_mapTable.find(lCsvDistKey);
    if (pEntry == m_mapTable.end()) {
        Entry entry;
        entry.pCsvFile = MakeCsvFile();
        entry.pDefinition = MakeDefinition();
        entry.pITData = MakeITData();
        pEntry = m_mapTable.emplace(lCsvDistKey, std::move(entry)).first;
    }
    const Entry& entry = pEntry->second;
    return {entry.pCsvFile.get(), entry.pDefinition.get(), entry.pITData.get()};
}

void KZCConvertInfo::ClearInfo(long lCsvDistKey)
{
    m_mapTable.erase(lCsvDistKey);
}

void KZCConvertInfo::Terminate()
{
    m_mapTable.clear();
}

std::unique_ptr<KZCEkaCsvFile> KZCConvertInfo::MakeCsvFile() const
{
    return std::make_unique<KZCEkaCsvFile>();
}

std::unique_ptr<KZCEkaDefinition> KZCConvertInfo::MakeDefinition() const
{
    return std::make_unique<KZCEkaDefinition>();
}

std::unique_ptr<KZCEkaITData> KZCConvertInfo::MakeITData() const
{
    return std::make_unique<KZCEkaITData>();
}

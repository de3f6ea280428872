#include "KZCConvertInfo.h"

#include <utility>

#include "fault/Fault.h"

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
    return ReadAgain(lCsvDistKey, strPath,
                     MAKERS_OF<KZCEkaCsvFile, KZCEkaDefinition, KZCEkaITData>);
}

KZCConvertInfo::~KZCConvertInfo()
{
    Terminate();
}

_ConvertTable KZCConvertInfo::GetConvertTable(long lCsvDistKey)
{
    return FindOrMake(lCsvDistKey, MAKERS_OF<KZCEkaCsvFile, KZCEkaDefinition, KZCEkaITData>);
}

void KZCConvertInfo::ClearInfo(long lCsvDistKey)
{
    DeleteTable(m_mapTable.find(lCsvDistKey));
}

void KZCConvertInfo::Terminate()
{
    while (!m_mapTable.empty())
        DeleteTable(m_mapTable.begin());
}

_ConvertTable KZCConvertInfo::FindOrMake(long lCsvDistKey, const Makers& makers)
{
    auto pEntry = m_mapTable.find(lCsvDistKey);
    if (pEntry == m_mapTable.end()) {
        Entry entry;
        entry.pCsvFile = makers.pCsvFile();
        entry.pDefinition = makers.pDefinition();
        entry.pITData = makers.pITData();
        pEntry = m_mapTable.emplace(lCsvDistKey, std::move(entry)).first;
    }
    const Entry& entry = pEntry->second;
    return {entry.pCsvFile.get(), entry.pDefinition.get(), entry.pITData.get()};
}

int KZCConvertInfo::ReadAgain(long lCsvDistKey, const std::string& strPath, const Makers& makers)
{
    const auto pEntry = m_mapTable.find(lCsvDistKey);
    if (pEntry == m_mapTable.end())
        return STATUS_OK;
    std::unique_ptr<KZCEkaCsvFile>& pCsvFile = pEntry->second.pCsvFile;
    // The old reading goes before the new one comes: memory never has to hold a file twice.
    pCsvFile.reset();
    try {
        pCsvFile = makers.pCsvFile();
    } catch (...) {
        DeleteTable(pEntry);  // a key without a CSV file would be met by a later conversion
        throw;
    }
    // In the store before it is read: what a reading that breaks off has left is the key's.
    return pCsvFile->ReadFile(strPath);
}

void KZCConvertInfo::DeleteTable(TableMap::iterator pEntry)
{
    if (pEntry == m_mapTable.end())
        return;
    pEntry->second.pCsvFile.reset();
    pEntry->second.pDefinition.reset();
    pEntry->second.pITData.reset();
    m_mapTable.erase(pEntry);
}

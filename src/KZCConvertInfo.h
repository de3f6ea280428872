// The conversion store: what survives between a host's calls, by key.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "KZCEkaCsvFile.h"
#include "KZCEkaITData.h"
#include "definition/KZCEkaDefinition.h"

/// The three objects of one key, owned by the store.
struct _ConvertTable
{
    KZCEkaCsvFile* pCsvFile;
    KZCEkaDefinition* pDefinition;
    KZCEkaITData* pITData;
};

/// Process-wide. The class of the instance decides which classes it makes for a new key.
class KZCConvertInfo
{
public:
    /// The instance of whatever class; a base store if there is none.
    static KZCConvertInfo* instance();
    static void destroy();

    /// Makes the key if it is missing.
    virtual KZCEkaCsvFile* GetCsvFile(long lCsvDistKey);
    /// Replaces the key's CSV by a new reading of the path.
    /// \return What ReadFile returned, STATUS_OK for an unknown key, which is not made.
    virtual int ReloadCsvFile(long lCsvDistKey, const std::string& strPath);
    virtual ~KZCConvertInfo() = default;
    virtual _ConvertTable GetConvertTable(long lCsvDistKey);

    KZCEkaDefinition* GetDefinition(long lCsvDistKey)
    {
        return GetConvertTable(lCsvDistKey).pDefinition;
    }
    KZCEkaITData* GetITData(long lCsvDistKey) { return GetConvertTable(lCsvDistKey).pITData; }
    /// Drops one key; nothing happens if it is absent.
    void ClearInfo(long lCsvDistKey);
    /// Drops all keys.
    void Terminate();

    KZCConvertInfo(const KZCConvertInfo&) = delete;
    KZCConvertInfo& operator=(const KZCConvertInfo&) = delete;

protected:
    KZCConvertInfo() = default;

    /// The members end in reverse: the CSV file first, the IT section last.
    struct Entry
    {
        std::unique_ptr<KZCEkaITData> pITData;
        std::unique_ptr<KZCEkaDefinition> pDefinition;
        std::unique_ptr<KZCEkaCsvFile> pCsvFile;
    };

    /// The objects of this store's family.
    virtual std::unique_ptr<KZCEkaCsvFile> MakeCsvFile() const;
    virtual std::unique_ptr<KZCEkaDefinition> MakeDefinition() const;
    virtual std::unique_ptr<KZCEkaITData> MakeITData() const;

    static std::unique_ptr<KZCConvertInfo> m_pInstance;

private:
    std::map<long, Entry> m_mapTable;
};

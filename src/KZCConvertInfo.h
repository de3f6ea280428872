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
    virtual ~KZCConvertInfo();
    /// Makes the key if it is missing.
    virtual _ConvertTable GetConvertTable(long lCsvDistKey);

    KZCEkaDefinition* GetDefinition(long lCsvDistKey)
    {
        return GetConvertTable(lCsvDistKey).pDefinition;
    }
    KZCEkaITData* GetITData(long lCsvDistKey) { return GetConvertTable(lCsvDistKey).pITData; }
    /// Drops one key; nothing happens if it is absent.
    void ClearInfo(long lCsvDistKey);
    /// Drops all keys, from the lowest.
    void Terminate();

    KZCConvertInfo(const KZCConvertInfo&) = delete;
    KZCConvertInfo& operator=(const KZCConvertInfo&) = delete;

protected:
    /// How a family makes the objects of a new key, in the order of making.
    struct Makers
    {
        std::unique_ptr<KZCEkaCsvFile> (*pCsvFile)();
        std::unique_ptr<KZCEkaDefinition> (*pDefinition)();
        std::unique_ptr<KZCEkaITData> (*pITData)();
    };

    template <class CsvFile, class Definition, class ITData>
    static constexpr Makers MAKERS_OF = {
        [] { return std::unique_ptr<KZCEkaCsvFile>(std::make_unique<CsvFile>()); },
        [] { return std::unique_ptr<KZCEkaDefinition>(std::make_unique<Definition>()); },
        [] { return std::unique_ptr<KZCEkaITData>(std::make_unique<ITData>()); }};

    KZCConvertInfo() = default;

    /// The operations of the same meaning, with the classes of a family.
    _ConvertTable FindOrMake(long lCsvDistKey, const Makers& makers);
    int ReadAgain(long lCsvDistKey, const std::string& strPath, const Makers& makers);

    static std::unique_ptr<KZCConvertInfo> m_pInstance;

private:
    struct Entry
    {
        std::unique_ptr<KZCEkaCsvFile> pCsvFile;
        std::unique_ptr<KZCEkaDefinition> pDefinition;
        std::unique_ptr<KZCEkaITData> pITData;
    };
    using TableMap = std::map<long, Entry>;

    /// Drops one entry: the CSV file first, the IT section last. Nothing happens at the end.
    void DeleteTable(TableMap::iterator pEntry);

    TableMap m_mapTable;
};

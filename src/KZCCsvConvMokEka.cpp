#include "KZCCsvConvMokEka.h"

#include "KZCDebugDump.h"
#include "KZCMacOSNative.h"
#include "KZCValidResult.h"

KZCCsvConvMokEka::KZCCsvConvMokEka()
{
    // The log first: what goes wrong in the start of the XML library can be traced then.
    KZCDebugDump::InitDebugDump();
    m_session.emplace();
}

KZCCsvConvMokEka::~KZCCsvConvMokEka()
{
    m_session.reset();
    ReleaseResult();
}

bool KZCCsvConvMokEka::CreateResult()
{
    try {
        if (!m_pResult)
            m_pResult = std::make_unique<KZCConvertResultEka>();
        return true;
    } catch (...) {
        return false;
    }
}

KZCConvertResultEka* KZCCsvConvMokEka::StartRecord()
{
    if (!CreateResult())
        return nullptr;
    m_pResult->Initialize();
    return m_pResult.get();
}

void KZCCsvConvMokEka::ReleaseResult()
{
    m_pResult.reset();
}

bool KZCCsvConvMokEka::WriteFileData(const char* szCsvPath, const char* szData)
{
    const bool bFolder = KZCMacOSNative::pathDirectoryExists(szCsvPath);
    if (bFolder && KZCMacOSNative::writeSJISFile(szCsvPath, szData, false))
        return true;
    KZCValidResult::instance()->SetResult(bFolder ? HE70028E : HE70027E, 0, 0, SINGLE_COLUMN);
    return false;
}

void KZCCsvConvMokEka::OutputIF(const char* szValue, const char* szLabel)
{
    if (szValue != nullptr && szLabel != nullptr)
        KZCDebugDump::Log(szLabel, szValue);
}

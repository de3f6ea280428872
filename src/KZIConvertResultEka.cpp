#include <KZEkaMok/KZIConvertResultEka.h>

#include <utility>

KZIConvertResultEka::KZIConvertResultEka() = default;
KZIConvertResultEka::~KZIConvertResultEka() = default;
KZIConvertResultEka::KZIConvertResultEka(const KZIConvertResultEka&) = default;
KZIConvertResultEka& KZIConvertResultEka::operator=(const KZIConvertResultEka&) = default;

void KZIConvertResultEka::initialize()
{
    m_strResult.clear();
    m_strDetailErrorInfo.clear();
    m_strRecordCount.clear();
    m_strProcId.clear();
    m_strMokData.clear();
}

const std::string& KZIConvertResultEka::GetResult() const
{
    return m_strResult;
}

const std::string& KZIConvertResultEka::GetDetailErrorInfo() const
{
    return m_strDetailErrorInfo;
}

const std::string& KZIConvertResultEka::GetRecordCount() const
{
    return m_strRecordCount;
}

const std::string& KZIConvertResultEka::GetProcId() const
{
    return m_strProcId;
}

const std::string& KZIConvertResultEka::GetMokData() const
{
    return m_strMokData;
}

void KZIConvertResultEka::SetResult(std::string strResult)
{
    m_strResult = std::move(strResult);
}

void KZIConvertResultEka::SetDetailErrorInfo(std::string strDetailErrorInfo)
{
    m_strDetailErrorInfo = std::move(strDetailErrorInfo);
}

void KZIConvertResultEka::SetRecordCount(std::string strRecordCount)
{
    m_strRecordCount = std::move(strRecordCount);
}

void KZIConvertResultEka::SetProcId(std::string strProcId)
{
    m_strProcId = std::move(strProcId);
}

void KZIConvertResultEka::SetMokData(std::string strMokData)
{
    m_strMokData = std::move(strMokData);
}

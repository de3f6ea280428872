// The outcome of a request inside the library: five texts.
#pragma once

#include <string>

class KZCConvertResultEka
{
public:
    virtual ~KZCConvertResultEka() = default;

    /// Empties the five fields.
    void Initialize();

    std::string GetResult() const { return m_strResult; }
    std::string GetDetailErrorInfo() const { return m_strDetailErrorInfo; }
    std::string GetRecordCount() const { return m_strRecordCount; }
    std::string GetProcId() const { return m_strProcId; }
    std::string GetMokData() const { return m_strMokData; }

    void SetResult(const std::string& strResult) { m_strResult = strResult; }
    void SetDetailErrorInfo(const std::string& strInfo) { m_strDetailErrorInfo = strInfo; }
    void SetRecordCount(const std::string& strCount) { m_strRecordCount = strCount; }
    void SetProcId(const std::string& strProcId) { m_strProcId = strProcId; }
    void SetMokData(const std::string& strMokData) { m_strMokData = strMokData; }

private:
    std::string m_strResult;           ///< "S_OK" or "E_FAIL"
    std::string m_strDetailErrorInfo;  ///< detail table, or empty
    std::string m_strRecordCount;      ///< decimal digits, or empty
    std::string m_strProcId;           ///< such as PGE5010, or empty
    std::string m_strMokData;          ///< the document, UTF-8, or empty
};

/// \file
/// The outcome of a request, as the host holds it.
#pragma once

#include <string>

#include <KZEkaMok/KZEkaMokExport.h>

/// The outcome of a request: five texts in UTF-8, each held by copy. A field that a request doesn't
/// set is empty.
class KZEKAMOK_EXPORT KZIConvertResultEka
{
public:
    /// Five empty fields.
    KZIConvertResultEka();
    /// References to the fields end with their object.
    ~KZIConvertResultEka();
    /// Copies the five texts.
    KZIConvertResultEka(const KZIConvertResultEka&);
    /// Copies the five texts.
    KZIConvertResultEka& operator=(const KZIConvertResultEka&);

    /// Empties the five fields.
    void initialize();

    /// "S_OK" or "E_FAIL". Empty if the request broke off before either was settled: take it for a
    /// failure.
    const std::string& GetResult() const;
    /// On failure the detail table: entries "record-column-code" joined by commas, such as
    /// "0003-00012-HE70001E". Record 0 is the file as a whole, record 9999 an argument of the call
    /// (the column is its number from 1; ELCsvConvMokFinance has exceptions), a range of columns
    /// reads "14:17".
    const std::string& GetDetailErrorInfo() const;
    /// Records of the CSV in decimal digits; set by the EL checks.
    const std::string& GetRecordCount() const;
    /// Procedure id, such as "PGE5010"; set by the checks.
    const std::string& GetProcId() const;
    /// The whole document; set by the EL conversions.
    const std::string& GetMokData() const;

    /// Sets the text of GetResult. The library does so before it hands a result over; a host needs
    /// it, and its like below, for results of its own, as in tests.
    void SetResult(std::string strResult);
    /// Sets the text of GetDetailErrorInfo.
    void SetDetailErrorInfo(std::string strDetailErrorInfo);
    /// Sets the text of GetRecordCount.
    void SetRecordCount(std::string strRecordCount);
    /// Sets the text of GetProcId.
    void SetProcId(std::string strProcId);
    /// Sets the text of GetMokData.
    void SetMokData(std::string strMokData);

private:
    std::string m_strResult;
    std::string m_strDetailErrorInfo;
    std::string m_strRecordCount;
    std::string m_strProcId;
    std::string m_strMokData;
};

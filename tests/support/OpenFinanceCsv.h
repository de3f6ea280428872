// CSV files of the Finance and CrossBorder families that show and take what the classes keep to
// themselves.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "Bundle.h"
#include "CheckItem.h"
#include "KZCEkaCsvFileCrossBorder.h"
#include "KZCEkaCsvFileFinance.h"
#include "ResetState.h"
#include "TempFolder.h"

/// \tparam File  KZCEkaCsvFileFinance or a class derived from it.
template <class File>
class OpenFile final : public File
{
public:
    using Record = KZCEkaCsvFile::Record;
    using ColInfo = KZCEkaCsvFileFinance::COL_INFO;

    OpenFile() = default;
    /// A file without a file; its mode of empty records follows the type id.
    explicit OpenFile(const std::vector<Record>& vecRecord,
                      const std::string& strTypeId = {},
                      std::vector<ColInfo> vecColInfo = {})
    {
        this->m_table.Assign(vecRecord);
        this->m_strTypeId = strTypeId;
        this->m_vecColInfo = std::move(vecColInfo);
        this->setEmptyCheckMode(strTypeId);
    }
    /// A file of a family that may not exist.
    explicit OpenFile(CALL_TYPE eCallType) : File(eCallType) {}

    std::vector<Record> GetRecords() const { return this->m_table.Records(); }
    const std::vector<ColInfo>& GetColInfo() const { return this->m_vecColInfo; }
    int GetEmptyCheckMode() const { return this->m_eEmptyCheckMode; }
    bool HasGenerations() const { return !this->m_mapGeneration.empty(); }
};

using OpenFinanceCsv = OpenFile<KZCEkaCsvFileFinance>;
using OpenCrossBorderCsv = OpenFile<KZCEkaCsvFileCrossBorder>;

/// A definition file of these reports. \param listReport  Attributes of each.
inline std::string ReportFile(std::initializer_list<const char*> listReport)
{
    std::string strText = "<define>";
    for (const char* szReport : listReport)
        strText.append("<report ").append(szReport).append("/>");
    return strText + "</define>";
}

/// The text so many times in a row.
inline std::string RepeatText(const std::string& strText, int nTimes)
{
    std::string strAll;
    for (int n = 0; n < nTimes; ++n)
        strAll += strText;
    return strAll;
}

/// Reads files against an empty resource folder to which the tests add what they need.
class FinanceCsvFixture : public ResetState
{
protected:
    std::string Write(std::string_view strBytes) const
    {
        return m_folder.Write("in.csv", strBytes);
    }
    /// Reads a file of these bytes. \return What Told tells.
    std::string Read(KZCEkaCsvFile& csv, std::string_view strBytes) const
    {
        const std::string strPath = Write(strBytes);
        return Told([&] { return csv.ReadFile(strPath); });
    }
    static std::string Check(const KZCEkaCsvFileFinance& csv)
    {
        return Told([&] { return csv.checkMaxRecord(); });
    }

    TempFolder m_folder;
    Bundle m_bundle{std::nullopt, std::nullopt};
};

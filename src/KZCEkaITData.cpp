#include "KZCEkaITData.h"

#include <string_view>

#include "KZCEkaCommon.h"
#include "KZCValidResult.h"
#include "family/ITDataTables.h"
#include "fault/Fault.h"
#include "text/CText.h"

namespace {

constexpr std::size_t TAG_BUFFER_SIZE = 100;

bool SameGroup(const ITDataRow& first, const ITDataRow& second)
{
    return second.szGroup != nullptr && std::string_view(first.szGroup) == second.szGroup;
}

/// A tag of a child element, cut as its buffer cuts it.
std::string ChildTag(const char* szStart, const char* szName)
{
    return CText::CutToBuffer(std::string(szStart) + CText::OrEmpty(szName) + ">", TAG_BUFFER_SIZE);
}

}  // namespace

void KZCEkaITData::Initialize(bool bPublic)
{
    InitializeRows(ITDataTable, bPublic);
}

int KZCEkaITData::SetITData(KZCEkaITData_t eId, const char* szValue)
{
    return SetValue(ITDataTable, eId, szValue);
}

std::string KZCEkaITData::GetXml() const
{
    return MakeXml(ITDataTable);
}

const char* KZCEkaITData::GetITData(KZCEkaITData_t eId) const
{
    return GetValue(eId);
}

void KZCEkaITData::Clear()
{
    m_vecData.clear();
}

void KZCEkaITData::InitializeRows(std::span<const ITDataRow> rows, bool bPublic)
{
    Clear();
    m_bPublic = bPublic;
    for (const ITDataRow& row : rows) {
        KZCDataValid_t data;
        if (row.eCheck != ARG_NONE) {
            data.pValidator = std::make_unique<KZCEkaValidator>();
            static_cast<void>(data.pValidator->Initialize(row.eCheck, false));
        }
        m_vecData.push_back(std::move(data));
    }
}

int KZCEkaITData::SetValue(std::span<const ITDataRow> rows, int nId, const char* szValue)
{
    const auto nRow = static_cast<std::size_t>(nId);
    if (nRow >= m_vecData.size())
        RaiseFault("KZCEkaITData::SetITData", nullptr);
    KZCDataValid_t& data = m_vecData[nRow];
    if (data.pValidator) {
        const long lColumn = m_bPublic ? rows[nRow].lPublicColumn : rows[nRow].lPrivateColumn;
        const int nStatus = data.pValidator->Validate(szValue, ARGUMENT_RECORD, lColumn);
        if (nStatus != STATUS_OK)
            return nStatus;
    }
    data.strValue = CText::OrEmpty(szValue);
    return STATUS_OK;
}

const char* KZCEkaITData::GetValue(int nId) const
{
    const auto nRow = static_cast<std::size_t>(nId);
    return nRow < m_vecData.size() ? m_vecData[nRow].strValue.c_str() : "";
}

std::string KZCEkaITData::MakeXml(std::span<const ITDataRow> rows) const
{
    std::string strXml = R"(<IT VR="1.3" id="IT">)";
    for (std::size_t nRow = 0; nRow < m_vecData.size();) {
        const ITDataRow& head = rows[nRow];
        const std::string& strOwnValue = m_vecData[nRow].strValue;
        ++nRow;
        if (head.szGroup == nullptr)
            continue;
        std::string strChildren;
        for (; nRow < m_vecData.size() && SameGroup(head, rows[nRow]); ++nRow) {
            const std::string& strValue = m_vecData[nRow].strValue;
            if (strValue.empty())
                continue;
            strChildren += ChildTag("<", rows[nRow].szChildTag);
            strChildren += KZCEkaCommon::SpecialEncoding(strValue);
            strChildren += ChildTag("</", rows[nRow].szChildTag);
        }
        if (strOwnValue.empty() && strChildren.empty())
            continue;
        const std::string strTag = CText::OrEmpty(head.szOwnTag);
        strXml.append("<").append(strTag).append(" ID=\"").append(strTag).append("\">");
        strXml += KZCEkaCommon::SpecialEncoding(strOwnValue);
        strXml += strChildren;
        strXml += "</" + strTag + ">";
    }
    return strXml + "</IT>";
}

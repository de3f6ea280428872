// The IT section of a document: who files, checked value by value.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "validator/KZCEkaValidator.h"

/// Field ids of the base family; the value is the row in its table.
enum KZCEkaITData_t : int
{
    IT_NONE = 0,
    IT_ZEIMUSHO,
    IT_ZEIMUSHO_CD,
    IT_NOZEISHA_ID,
    IT_NOZEISHA_BANGO,
    IT_KOJINBANGO,
    IT_HOJINBANGO,
    IT_NOZEISHA_NM,
    IT_NOZEISHA_ADR,
    IT_DAIHYO_NM,
    IT_DAIRI_ID,
    IT_DAIRI_NM,
    IT_DAIRI_ADR,
    IT_TETSUZUKI,
    IT_PROCEDURE_CD,
    IT_SOFT_NAME,
};

struct ITDataRow;

/// One value and its checks.
struct KZCDataValid_t
{
    std::string strValue;
    std::unique_ptr<KZCEkaValidator> pValidator;  ///< null for a row without a check
};

class KZCEkaITData
{
public:
    KZCEkaITData() = default;
    virtual ~KZCEkaITData() = default;
    KZCEkaITData(const KZCEkaITData&) = delete;
    KZCEkaITData& operator=(const KZCEkaITData&) = delete;

    /// Empties all fields. \param bPublic  Plain path: selects the argument numbers of errors.
    virtual void Initialize(bool bPublic);
    /// Checks and stores a value. \return STATUS_NG if it was refused; the field stays as it was
    /// and the reason is in the result store.
    virtual int SetITData(KZCEkaITData_t eId, const char* szValue);
    /// The IT element.
    virtual std::string GetXml() const;

    /// Valid until the next change; empty for an id out of range.
    const char* GetITData(KZCEkaITData_t eId) const;
    bool IsPublic() const { return m_bPublic; }
    void Clear();

protected:
    void InitializeRows(std::span<const ITDataRow> rows, bool bPublic);
    int SetValue(std::span<const ITDataRow> rows, int nId, const char* szValue);
    const char* GetValue(int nId) const;
    std::string MakeXml(std::span<const ITDataRow> rows) const;

private:
    bool m_bPublic = false;
    std::vector<KZCDataValid_t> m_vecData;
};

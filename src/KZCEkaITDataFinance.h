// The IT section of a Finance document.
#pragma once

#include "KZCEkaITData.h"

/// Field ids of the Finance family, which the CrossBorder family shares; the value is the row in
/// the family's table.
enum class KZCEkaITDataFinance_t : int
{
    IT_NONE = 0,
    IT_ZEIMUSHO,
    IT_ZEIMUSHO_CD,
    IT_TEISYUTSU_DAY,
    IT_ERA,
    IT_YY,
    IT_MM,
    IT_DD,
    IT_NOZEISHA_ID,
    IT_NOZEISHA_BANGO,
    IT_KOJINBANGO,
    IT_HOJINBANGO,
    IT_NOZEISHA_NM,
    IT_NOZEISHA_ZIP,
    IT_ZIP1,
    IT_ZIP2,
    IT_NOZEISHA_ADR,
    IT_DAIHYO_NM,
    IT_DAIRI_ID,
    IT_DAIRI_NM,
    IT_DAIRI_ADR,
    IT_TETSUZUKI,
    IT_PROCEDURE_CD,
    IT_SOFT_NAME,
};

class KZCEkaITDataFinance : public KZCEkaITData
{
public:
    void Initialize(bool bPublic) override;
    std::string GetXml() const override;
    /// As SetITData, with the ids and argument numbers of this family.
    virtual int SetITDataFinance(KZCEkaITDataFinance_t eId, const char* szValue);

    /// Valid until the next change; empty for an id out of range.
    const char* GetITDataFinance(KZCEkaITDataFinance_t eId) const
    {
        return GetValue(static_cast<int>(eId));
    }
};

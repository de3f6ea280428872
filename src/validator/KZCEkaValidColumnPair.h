#pragma once

#include "KZCEkaValidItem.h"

/// Base of the checks that compare the item's cell with another cell of the record: as numbers with
/// an offset of max less min if either is given, otherwise as texts.
class KZCEkaValidColumnPair : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;
    /// \param szValue  The other column, from 1.
    void SetParam(const char* szValue, const char* szMin, const char* szMax);

    int ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;
    using KZCEkaValidItem::ValidateOuter;
    int ValidateOuter(const KZCEkaCsvFile* pCsv, long lRow, long lColumn) override;

private:
    /// MSG_NONE to pass, by whether the two cells agree.
    virtual KZCEkaMessage_t Verdict(bool bAgree) const = 0;
    KZCEkaMessage_t Compare(const KZCEkaCsvFile& csv, long lRow) const;

    long m_lOtherColumn = 0;  ///< from 1
    bool m_bNumeric = false;
    long m_lOffset = 0;  ///< max less min
};

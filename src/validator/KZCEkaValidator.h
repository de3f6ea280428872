// The ordered list of check items that guards one node, argument or field.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "KZCArgValid.h"
#include "KZCEkaValidItem.h"

class KZCEkaXDOM;

/// Passes calls to its items in order and stops at the first refusal. Items record what they
/// refuse.
class KZCEkaValidator
{
public:
    KZCEkaValidator() = default;
    virtual ~KZCEkaValidator() = default;
    KZCEkaValidator(const KZCEkaValidator&) = delete;
    KZCEkaValidator& operator=(const KZCEkaValidator&) = delete;

    /// Makes the items of the valid children of the cursor's element. The cursor is back on return.
    /// \param lColumn  Column of the node from 0, or -1.
    /// \return STATUS_NG on a fault of the definition.
    int Initialize(long lColumn, KZCEkaXDOM* pDom);
    /// Makes the items of an argument type; the flag isn't read. Throws FAULT on an unknown type.
    int Initialize(KZCArgValid_t eType, bool bCheck);
    int SetUpOuter(KZCEkaXDOM* pDom, KZCEkaValidItem* pItem);
    /// \param lRow  Record from 0. \param lColumn  Fallback column from 0, or -1.
    int ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow, long lColumn);
    /// \param lRow, lColumn  Reported as they stand.
    int Validate(const char* szValue, long lRow, long lColumn);
    void Clear() { m_vecItem.clear(); }

protected:
    /// Adds the items of the rows of an argument type. Throws FAULT if one can't be made.
    void MakeItems(std::span<const ArgValidRow> rows);

private:
    int AddItem(long lColumn, KZCEkaXDOM& dom);

    std::vector<std::unique_ptr<KZCEkaValidItem>> m_vecItem;
};

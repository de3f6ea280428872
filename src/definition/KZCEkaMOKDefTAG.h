// A group that honours row ranges and can stay open across records.
#pragma once

#include "KZCEkaMOKDefNormal.h"

class KZCEkaMOKDefTAG final : public KZCEkaMOKDefNormal
{
public:
    std::string WriteNode(const KZCEkaCsvFile* pCsv, long lRow) override;
    std::string WriteNodeTag(const KZCEkaCsvFile* pCsv, long lRow, eWriteMode eMode) override;
    /// The group with its children up to the first one that is out of range.
    std::string WriteNodeChild(const KZCEkaCsvFile* pCsv, long lRow);
};

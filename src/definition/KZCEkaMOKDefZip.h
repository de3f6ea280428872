// A postal code, split in its two parts.
#pragma once

#include "KZCEkaMOKDefineNode.h"

class KZCEkaMOKDefZip final : public KZCEkaMOKDefineNode
{
public:
    std::string WriteNode(const KZCEkaCsvFile* pCsv, long lRow) override;
};

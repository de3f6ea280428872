// A reference to an element of the IT section.
#pragma once

#include "KZCEkaMOKDefineNode.h"

class KZCEkaMOKDefIdRef final : public KZCEkaMOKDefineNode
{
public:
    std::string WriteNode(const KZCEkaCsvFile* pCsv, long lRow) override;
};

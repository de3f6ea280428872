// A personal or corporate number, told apart by its length.
#pragma once

#include "KZCEkaMOKDefineNode.h"

class KZCEkaMOKDefBango final : public KZCEkaMOKDefineNode
{
public:
    std::string WriteNode(const KZCEkaCsvFile* pCsv, long lRow) override;
};

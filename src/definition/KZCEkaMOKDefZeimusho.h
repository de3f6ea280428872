// A tax office group, whose children are written in reverse order.
#pragma once

#include "KZCEkaMOKDefineNode.h"

class KZCEkaMOKDefZeimusho final : public KZCEkaMOKDefineNode
{
public:
    /// Children first; the group's own checks run only on columns that passed.
    int ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow) override;
    std::string WriteNode(const KZCEkaCsvFile* pCsv, long lRow) override;
};

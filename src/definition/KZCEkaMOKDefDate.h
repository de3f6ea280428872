// A group of date columns with checks on the group.
#pragma once

#include "KZCEkaMOKDefineNode.h"

class KZCEkaMOKDefDate final : public KZCEkaMOKDefineNode
{
public:
    /// Children first; the group's own checks run only on columns that passed.
    int ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow) override;
};

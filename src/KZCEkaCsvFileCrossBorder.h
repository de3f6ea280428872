// One CSV file of the CrossBorder family: the Finance rules, with quotes.
#pragma once

#include "KZCEkaCsvFileFinance.h"

class KZCEkaCsvFileCrossBorder : public KZCEkaCsvFileFinance
{
public:
    KZCEkaCsvFileCrossBorder() : KZCEkaCsvFileFinance(CALL_TYPE_CROSSBORDER) {}

    /// A value that begins with a double quote may hold commas and line ends. After a refused
    /// record no record is left. Throws FAULT as the Finance reader does.
    int ReadFile(const std::string& strPath) override;
};

// A CSV file without a file.
#pragma once

#include <initializer_list>

#include "KZCEkaCsvFile.h"

/// Holds the records that a test gives, cell by cell, untrimmed and unchecked.
class TableCsv final : public KZCEkaCsvFile
{
public:
    TableCsv(std::initializer_list<Record> listRecord) { m_table.Assign(listRecord); }
};

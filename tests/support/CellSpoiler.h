// Spoils one cell of a passing record so that a given check has to refuse it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "generate/FormRules.h"
#include "generate/RecordTable.h"

/// A record of which one cell is spoiled.
struct SpoiledRecord
{
    KZCEkaCsvFile::Record record;
    long lColumn;                  ///< from 1
    const host::CheckRule* pRule;  ///< that has to refuse it
};

/// What the keyword of the check can't take in that column (from 1), the other cells being as they
/// are, or nothing if no such text is known. Told from the shape of the check alone.
std::optional<std::string> SpoiledCell(const host::CheckRule& rule,
                                       const host::RecordTable& table,
                                       long lRow,
                                       long lColumn);

/// Every spoiled record that one passing record gives: one for each active check and column that
/// the check reports, unless the spoiling itself keeps the check from being reached. The record
/// stays as it is. Inside a CheckPhase only.
std::vector<SpoiledRecord> SpoilRecord(const host::FormRules& form,
                                       host::RecordTable& table,
                                       long lRow);

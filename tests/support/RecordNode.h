// A node whose text a test makes up.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

#include "definition/KZCEkaMOKDefineNode.h"

/// What a record, by its number from 1, adds to a document.
using RecordBody = std::function<std::string(long nNumber)>;

/// The number of the record behind a blank.
inline std::string NumberOf(long nNumber)
{
    return " " + std::to_string(nNumber);
}

/// Writes the same for a record whatever its own rows are, so that it shows which records it was
/// asked for.
class RecordNode final : public KZCEkaMOKDefineNode
{
public:
    explicit RecordNode(std::string strParent, RecordBody body = NumberOf) : m_body(std::move(body))
    {
        m_strParent = std::move(strParent);
    }

    /// Makes it a head of every page.
    void Repeat(std::int64_t nStart, std::int64_t nEnd)
    {
        m_strRepeatTopTag = "1";
        m_nStartRow = nStart;
        m_nEndRow = nEnd;
    }

    std::string WriteNode(const KZCEkaCsvFile* /*pCsv*/, long lRow) override
    {
        return m_body(lRow + 1);
    }

private:
    RecordBody m_body;
};

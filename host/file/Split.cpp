#include "file/Split.h"

#include <algorithm>
#include <span>

namespace host {
namespace {

using Records = std::span<const std::string_view>;

void Append(std::string& strBytes, Records records)
{
    for (const std::string_view strRecord : records) {
        strBytes += strRecord;
        if (!strRecord.ends_with('\n') && !strRecord.ends_with('\r'))
            strBytes += "\r\n";
    }
}

}  // namespace

FixedRecords FixedRecordsOf(const ProcedureDefinition& procedure)
{
    FixedRecords fixed;
    if (procedure.vecForm.size() == 1)
        return fixed;
    for (const FormDefinition& form : procedure.vecForm) {
        if (form.bLastRecord)
            fixed.nTail = 1;
        else if (form.lEndRow > 0)
            fixed.nHead = std::max(fixed.nHead, static_cast<std::size_t>(form.lEndRow));
        else if (form.lStartRow > 1)
            fixed.nHead = std::max(fixed.nHead, static_cast<std::size_t>(form.lStartRow - 1));
    }
    return fixed;
}

std::vector<std::string> SplitRecords(const std::vector<std::string_view>& vecRecord,
                                      const FixedRecords& fixed,
                                      std::size_t nMost)
{
    const Records records(vecRecord);
    const Records head = records.first(std::min(fixed.nHead, records.size()));
    const Records rest = records.subspan(head.size());
    const Records tail = rest.last(std::min(fixed.nTail, rest.size()));
    Records dealt = rest.first(rest.size() - tail.size());
    const std::size_t nEach = nMost - fixed.nHead - fixed.nTail;

    std::vector<std::string> vecPart;
    do {
        const std::size_t nTaken = std::min(nEach, dealt.size());
        std::string strPart;
        Append(strPart, head);
        Append(strPart, dealt.first(nTaken));
        Append(strPart, tail);
        vecPart.push_back(std::move(strPart));
        dealt = dealt.subspan(nTaken);
    } while (!dealt.empty());
    return vecPart;
}

}  // namespace host

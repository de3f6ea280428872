#include "form/WantedProcedures.h"

#include <algorithm>
#include <set>

#include "base/JoinedText.h"
#include "base/Language.h"
#include "base/SafeText.h"
#include "base/UsageError.h"

namespace host {
namespace {

constexpr std::size_t SHOWN_CHARACTERS = 40;

constexpr Text UNKNOWN = {"\"{1}\" is no type id of the definition files. The known ones are {2}.",
                          "「{1}」は定義ファイルにない申請区分です。使えるのは{2}です。"};
constexpr Text UNREADABLE = {
    "The definition file of type {1} is missing or can't be read. `kzekamok lint` tells why.",
    "申請区分{1}の定義ファイルがないか、読み込めません。理由は`kzekamok lint`で調べられます。"};

std::vector<std::string> AllTypeIds(const Definitions& definitions)
{
    std::vector<std::string> vecAll;
    for (const Family eFamily : {Family::Base, Family::Finance, Family::CrossBorder})
        for (std::string& strTypeId : definitions.TypeIds(eFamily))
            vecAll.push_back(std::move(strTypeId));
    return vecAll;
}

}  // namespace

std::vector<const ProcedureDefinition*> WantedProcedures(const Definitions& definitions,
                                                         const std::vector<std::string>& vecTypeId,
                                                         std::vector<std::string>& vecProblem)
{
    const std::vector<std::string> vecAll = AllTypeIds(definitions);
    const std::set<std::string> setAll(vecAll.begin(), vecAll.end());
    std::vector<const ProcedureDefinition*> vecProcedure;
    for (const std::string& strTypeId : vecTypeId.empty() ? vecAll : vecTypeId) {
        if (!setAll.contains(strTypeId))
            throw UsageError(Say(UNKNOWN, {MakeSafeAndShort(strTypeId, SHOWN_CHARACTERS),
                                           MakeSafe(JoinedText(vecAll))}));
        if (const ProcedureDefinition* pProcedure = definitions.Find(strTypeId))
            vecProcedure.push_back(pProcedure);
        else
            vecProblem.push_back(Say(UNREADABLE, {MakeSafe(strTypeId)}));
    }
    return vecProcedure;
}

}  // namespace host

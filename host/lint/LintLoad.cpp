// Loads what no other rule has found an error in, by the library itself.
#include <cstdlib>
#include <limits>
#include <optional>

#include "BundleFiles.h"
#include "definition/KZCEkaDefinition.h"
#include "definition/KZCEkaDefinitionCrossBorder.h"
#include "definition/KZCEkaDefinitionFinance.h"
#include "lint/LintTopics.h"

namespace host {
namespace {

constexpr LintTexts FAILS = {
    {"The library fails to load type id {1} for {2}.",
     "ライブラリは申請区分{1}の読み込みに失敗します（{2}）。"},
    {"Run a check with the environment variable KZLuviaZEKA.DebugOutput=1 and read the log.",
     "環境変数KZLuviaZEKA.DebugOutput=1を付けてチェックを実行し、ログを見てください。"}};
constexpr Text FOR_CHECKS = {"checking", "チェック用"};
constexpr Text FOR_DOCUMENTS = {"documents", "文書用"};

/// Has the library use a resource folder for as long as the object lives.
class BundleInUse
{
public:
    explicit BundleInUse(const std::string& strPath)
    {
        if (const char* szBefore = std::getenv(BundleFiles::VARIABLE))
            m_before = szBefore;
        ::setenv(BundleFiles::VARIABLE, strPath.c_str(), 1);
    }
    ~BundleInUse()
    {
        if (m_before)
            ::setenv(BundleFiles::VARIABLE, m_before->c_str(), 1);
        else
            ::unsetenv(BundleFiles::VARIABLE);
    }
    BundleInUse(const BundleInUse&) = delete;
    BundleInUse& operator=(const BundleInUse&) = delete;

private:
    std::optional<std::string> m_before;
};

bool Loads(Family eFamily, const std::string& strTypeId, bool bChecks)
{
    constexpr int LOADED = 0;
    switch (eFamily) {
        case Family::Base:
            return KZCEkaDefinition().CreateDefinition(strTypeId.c_str(), bChecks) == LOADED;
        case Family::Finance:
            return KZCEkaDefinitionFinance().CreateDefinition(strTypeId.c_str(), bChecks) == LOADED;
        case Family::CrossBorder:
            return KZCEkaDefinitionCrossBorder().CreateDefinition(strTypeId.c_str(), bChecks) ==
                   LOADED;
    }
    return false;
}

void Tell(
    const LintFile& file, const LintForm& form, long lLastLine, bool bChecks, LintReport& report)
{
    const LintPlace place = form.At(file.strName);
    if (!report.HasError(file.strName, place.lLine, lLastLine))
        report.Add(LintRule::LoadFailure, place, FAILS,
                   {form.strTypeId, Say(bChecks ? FOR_CHECKS : FOR_DOCUMENTS)});
}

/// Each report of the base file is loaded on its own: a mistake in one says nothing of another.
void LoadBase(const LintFile& file, LintReport& report)
{
    for (std::size_t nForm = 0; nForm < file.vecForm.size(); ++nForm) {
        const LintForm& form = file.vecForm[nForm];
        const long lLastLine = nForm + 1 < file.vecForm.size()
                                   ? file.vecForm[nForm + 1].pElement->lLine - 1
                                   : std::numeric_limits<long>::max();
        for (const bool bChecks : {true, false})
            if (!Loads(Family::Base, form.strTypeId, bChecks)) {
                Tell(file, form, lLastLine, bChecks, report);
                break;
            }
    }
}

}  // namespace

void LintLoad(const LintBundle& bundle, LintReport& report)
{
    const BundleInUse inUse(bundle.strPath);
    for (const auto& pFile : bundle.vecFile) {
        // What stands before the root is the whole reason of a failure, and has been told.
        if (pFile->vecForm.empty() || pFile->xml.lPrologLine > 0)
            continue;
        if (pFile->eFamily == Family::Base)
            LoadBase(*pFile, report);
        else if (!Loads(pFile->eFamily, pFile->strTypeId, pFile->HasChecks()))
            Tell(*pFile, pFile->vecForm.front(), std::numeric_limits<long>::max(),
                 pFile->HasChecks(), report);
    }
}

}  // namespace host

// Loads what no other rule has found an error in, by the library itself.
#include <cstdlib>
#include <limits>
#include <map>
#include <optional>
#include <set>
#include <string>

#include "KZCEkaXDOM.h"
#include "definition/KZCEkaDefinition.h"
#include "definition/KZCEkaDefinitionCrossBorder.h"
#include "definition/KZCEkaDefinitionFinance.h"
#include "family/BundleFiles.h"
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

constexpr int LOADED = 0;

bool Loads(Family eFamily, const std::string& strTypeId, bool bChecks)
{
    switch (eFamily) {
        case Family::Base:
            break;  // one file holds all its reports: see BaseFile
        case Family::Finance:
            return KZCEkaDefinitionFinance().CreateDefinition(strTypeId.c_str(), bChecks) == LOADED;
        case Family::CrossBorder:
            return KZCEkaDefinitionCrossBorder().CreateDefinition(strTypeId.c_str(), bChecks) ==
                   LOADED;
    }
    return false;
}

/// The library's loader for the report under a cursor.
class ReportLoader : public KZCEkaDefinition
{
public:
    /// Leaves the cursor on a child of the report, if it has any; anywhere below after a failure.
    bool Loads(KZCEkaXDOM& dom, bool bChecks)
    {
        try {
            TakeTexts(dom);
            return !m_strProcId.empty() && LoadItems(dom, bChecks) == LOADED;
        } catch (...) {  // whatever it is, the library's own request fails by it
            return false;
        }
    }
};

/// How a report loads.
enum class LoadResult
{
    Loaded,
    NotForChecks,
    NotForDocuments,
};

/// The file of the base family as the library parses it: once, where a request for each of its
/// reports would parse all of it.
class BaseFile
{
public:
    explicit BaseFile(const std::string& strPath)
        : m_bParsed(m_dom.Initialize() && m_dom.Parse(strPath.c_str()))
    {
    }

    /// How the first report of each wanted type id loads. A type id that has none is not in it.
    std::map<std::string, LoadResult> Load(const std::set<std::string>& setTypeId)
    {
        std::map<std::string, LoadResult> mapResult;
        m_nAt = 0;
        for (bool bThere = MoveToElement(); bThere; bThere = MoveOn()) {
            if (m_dom.GetNodeName() != "report")
                continue;
            const std::string strTypeId = m_dom.GetAttribute("id");
            if (setTypeId.contains(strTypeId) && !mapResult.contains(strTypeId))
                mapResult.emplace(strTypeId, LoadHere());
        }
        return mapResult;
    }

private:
    LoadResult LoadHere()
    {
        if (!LoadsHere(true))
            return LoadResult::NotForChecks;
        return LoadsHere(false) ? LoadResult::Loaded : LoadResult::NotForDocuments;
    }

    /// Returns the cursor to the report.
    bool LoadsHere(bool bChecks)
    {
        const bool bHasChild = m_dom.MoveFirstChild() == LOADED;
        if (bHasChild)
            static_cast<void>(m_dom.MoveParent());
        const bool bLoaded = ReportLoader().Loads(m_dom, bChecks);
        if (!bLoaded)
            static_cast<void>(MoveToElement());
        else if (bHasChild)
            static_cast<void>(m_dom.MoveParent());
        return bLoaded;
    }

    bool MoveOn()
    {
        ++m_nAt;
        return m_dom.MoveNextSibling() == LOADED;
    }

    /// To the element that m_nAt says, from the root on.
    bool MoveToElement()
    {
        if (!m_bParsed || m_dom.MoveRoot() != LOADED || m_dom.MoveFirstChild() != LOADED)
            return false;
        for (std::size_t n = 0; n < m_nAt; ++n)
            if (m_dom.MoveNextSibling() != LOADED)
                return false;
        return true;
    }

    KZCEkaXDOM m_dom;
    bool m_bParsed;
    std::size_t m_nAt = 0;  ///< of the root's child elements, from 0
};

void Tell(
    const LintFile& file, const LintForm& form, long lLastLine, bool bChecks, LintReport& report)
{
    const LintPlace place = form.At(file.strName);
    if (!report.HasError(file.strName, place.lLine, lLastLine))
        report.Add(LintRule::LoadFailure, place, FAILS,
                   {form.strTypeId, Say(bChecks ? FOR_CHECKS : FOR_DOCUMENTS)});
}

/// Each report of the base file is loaded on its own: a mistake in one says nothing of another.
void LoadBase(const LintBundle& bundle, const LintFile& file, LintReport& report)
{
    std::set<std::string> setTypeId;
    for (const LintForm& form : file.vecForm)
        setTypeId.insert(form.strTypeId);
    const auto mapResult =
        BaseFile(bundle.strPath + "/" + BundleFiles::BASE_DEFINITION).Load(setTypeId);
    for (std::size_t nForm = 0; nForm < file.vecForm.size(); ++nForm) {
        const LintForm& form = file.vecForm[nForm];
        const long lLastLine = nForm + 1 < file.vecForm.size()
                                   ? file.vecForm[nForm + 1].pElement->lLine - 1
                                   : std::numeric_limits<long>::max();
        const auto result = mapResult.find(form.strTypeId);
        if (result == mapResult.end() || result->second != LoadResult::Loaded)
            Tell(file, form, lLastLine,
                 result == mapResult.end() || result->second == LoadResult::NotForChecks, report);
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
            LoadBase(bundle, *pFile, report);
        else if (!Loads(pFile->eFamily, pFile->strTypeId, pFile->HasChecks()))
            Tell(*pFile, pFile->vecForm.front(), std::numeric_limits<long>::max(),
                 pFile->HasChecks(), report);
    }
}

}  // namespace host

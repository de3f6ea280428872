#include "form/Installation.h"

#include <cstdlib>

#include "KZCDefinitionManager.h"
#include "KZCEkaXDOM.h"
#include "KZCLoadResource.h"
#include "base/SafeText.h"
#include "family/BundleFiles.h"
#include "family/FamilyFolder.h"
#include "form/FormDefinition.h"

namespace host {
namespace {

constexpr Text NO_FOLDER = {
    "The resource folder KZEkaMok.bundle was not found beside the library nor in its installed "
    "place. Install it, or set KZEKAMOK_BUNDLE to it.",
    "リソースフォルダー KZEkaMok.bundle が、ライブラリの隣にもインストール先にも見つかりません。"
    "インストールするか、KZEKAMOK_BUNDLE にその場所を設定してください。"};
constexpr Text NO_NAMED_FOLDER = {
    "The resource folder {1}, which the environment variable KZEKAMOK_BUNDLE names, does not "
    "exist. "
    "Correct the variable or unset it.",
    "環境変数 KZEKAMOK_BUNDLE の示すリソースフォルダー {1} がありません。"
    "変数を直すか、設定を外してください。"};
constexpr Text NO_FILE = {
    "The file {1} of the resource folder {2} is missing. Install the resource folder again.",
    "リソースフォルダー {2} にファイル {1} がありません。"
    "リソースフォルダーをインストールし直してください。"};
constexpr Text TORN_FILE = {
    "The file {1} of the resource folder {2} can't be read as XML. Correct it, or install the "
    "resource folder again.",
    "リソースフォルダー {2} のファイル {1} をXMLとして読み取れません。"
    "直すか、リソースフォルダーをインストールし直してください。"};

std::string FolderProblem()
{
    if (!KZCLoadResource::getBundlePath().empty())
        return {};
    const char* szVariable = std::getenv(BundleFiles::VARIABLE);
    if (szVariable != nullptr && *szVariable != '\0')
        return Say(NO_NAMED_FOLDER, {MakeSafe(szVariable)});
    return Say(NO_FOLDER);
}

/// \param strPath  Where the file is; empty if it isn't there.
std::string FileProblem(const std::string& strName, const std::string& strPath)
{
    const std::string strBundle = MakeSafe(KZCLoadResource::getBundlePath());
    if (strPath.empty())
        return Say(NO_FILE, {strName, strBundle});
    KZCEkaXDOM dom;
    if (!dom.Initialize() || !dom.Parse(strPath.c_str()))
        return Say(TORN_FILE, {strName, strBundle});
    return {};
}

std::string SharedFileProblem(const char* szName)
{
    return FileProblem(szName, KZCLoadResource::getPathName(szName));
}

std::string ProcedureProblem(CALL_TYPE eType, const char* szFolder, const std::string& strTypeId)
{
    PROC_INFO info;
    if (!KZCDefinitionManager::getProcInfo(strTypeId, info, eType))
        return {};
    for (const char* szFile : {FamilyFolder::VALIDATION_FILE, FamilyFolder::TEMPLATE_FILE}) {
        const std::string strName = std::string(szFolder) + "/" + info.procId + "_" + szFile;
        const std::string strPath =
            FamilyFolder::FindDefinition(eType, info.procId, szFile, "InstallationProblem");
        if (std::string strProblem = FileProblem(strName, strPath); !strProblem.empty())
            return strProblem;
    }
    return {};
}

}  // namespace

std::string InstallationProblem()
{
    return InstallationProblem(Family::Base, {});
}

std::string InstallationProblem(Family eFamily, const std::string& strTypeId)
{
    if (std::string strProblem = FolderProblem(); !strProblem.empty())
        return strProblem;
    if (eFamily == Family::Base)
        if (std::string strProblem = SharedFileProblem(BundleFiles::BASE_DEFINITION);
            !strProblem.empty())
            return strProblem;
    if (std::string strProblem = SharedFileProblem(BundleFiles::TAX_OFFICES); !strProblem.empty())
        return strProblem;
    switch (eFamily) {
        case Family::Base:
            return {};
        case Family::Finance:
            return ProcedureProblem(CALL_TYPE_FINANCE, BundleFiles::FINANCE, strTypeId);
        case Family::CrossBorder:
            return ProcedureProblem(CALL_TYPE_CROSSBORDER, BundleFiles::CROSS_BORDER, strTypeId);
    }
    return {};
}

}  // namespace host

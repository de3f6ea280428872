#include "Installation.h"

#include <cstdlib>

#include "FormDefinition.h"
#include "KZCEkaXDOM.h"
#include "KZCLoadResource.h"
#include "SafeText.h"

namespace host {
namespace {

constexpr const char* BUNDLE_VARIABLE = "KZEKAMOK_BUNDLE";

std::string FileProblem(const std::string& strBundle, const char* szName)
{
    const std::string strWhere =
        "The file " + std::string(szName) + " of the resource folder " + MakeSafe(strBundle);
    const std::string strPath = KZCLoadResource::getPathName(szName);
    if (strPath.empty())
        return strWhere + " is missing. Install the resource folder again.";
    KZCEkaXDOM dom;
    if (!dom.Initialize() || !dom.Parse(strPath.c_str()))
        return strWhere +
               " can't be read as XML. Correct it, or install the resource folder again.";
    return {};
}

}  // namespace

std::string InstallationProblem()
{
    const std::string strBundle = KZCLoadResource::getBundlePath();
    if (strBundle.empty()) {
        const char* szVariable = std::getenv(BUNDLE_VARIABLE);
        if (szVariable != nullptr && *szVariable != '\0')
            return "The resource folder " + MakeSafe(szVariable) +
                   ", which the environment variable KZEKAMOK_BUNDLE names, does not exist. "
                   "Correct "
                   "the variable or unset it.";
        return "The resource folder KZEkaMok.bundle was not found beside the library nor in its "
               "installed place. Install it, or set KZEKAMOK_BUNDLE to it.";
    }
    for (const char* szName : {"KZEkaDefine.xml", "TaxOffices.xml"})
        if (std::string strProblem = FileProblem(strBundle, szName); !strProblem.empty())
            return strProblem;
    return {};
}

}  // namespace host

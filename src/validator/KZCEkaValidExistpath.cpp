#include "KZCEkaValidExistpath.h"

#include "KZCMacOSNative.h"
#include "text/CText.h"

namespace {

KZCEkaMessage_t CheckFile(const char* szPath)
{
    if (!KZCMacOSNative::pathFileExists(szPath))
        return HE70013E;
    if (!KZCMacOSNative::pathFileIsRead(szPath))
        return HE70014E;
    return KZCMacOSNative::getFileSize(szPath) > 0 ? MSG_NONE : HE70024E;
}

KZCEkaMessage_t CheckFolder(const char* szPath)
{
    return KZCMacOSNative::pathDirectoryExists(szPath) ? MSG_NONE : HE70010E;
}

}  // namespace

void KZCEkaValidExistpath::SetParam(const char* szValue)
{
    m_strValue = CText::OrEmpty(szValue);
}

KZCEkaMessage_t KZCEkaValidExistpath::_validate(const char* szValue)
{
    constexpr const char* FUNCTION = "KZCEkaValidExistpath::_validate";
    if (*CText::OrEmpty(szValue) == '\0')
        return HE70001E;
    if (m_strValue == "file")
        return Guarded(FUNCTION, [szValue] { return CheckFile(szValue); });
    if (m_strValue == "dir")
        return Guarded(FUNCTION, [szValue] { return CheckFolder(szValue); });
    RaiseParameterFault(FUNCTION);
}

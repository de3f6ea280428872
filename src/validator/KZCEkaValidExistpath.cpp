#include "KZCEkaValidExistpath.h"

#include "CText.h"
#include "KZCMacOSNative.h"

namespace {

KZCEkaMessage_t CheckFile(const char* szPath)
{
    if (!KZCMacOSNative::pathFileExists(szPath))
        return HE70013E;
    if (!KZCMacOSNative::pathFileIsRead(szPath))
        return HE70014E;
    return KZCMacOSNative::getFileSize(szPath) > 0 ? MSG_NONE : HE70024E;
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
        return Refuse(HE70001E, FUNCTION);
    KZCEkaMessage_t eVerdict = MSG_NONE;
    if (m_strValue == "file")
        eVerdict = CheckFile(szValue);
    else if (m_strValue == "dir")
        eVerdict = KZCMacOSNative::pathDirectoryExists(szValue) ? MSG_NONE : HE70010E;
    else
        RaiseParameterFault(FUNCTION);
    return eVerdict == MSG_NONE ? MSG_NONE : Refuse(eVerdict, FUNCTION);
}

#include "KZCConvertResultEka.h"

void KZCConvertResultEka::Initialize()
{
    m_strResult.clear();
    m_strDetailErrorInfo.clear();
    m_strRecordCount.clear();
    m_strProcId.clear();
    m_strMokData.clear();
}

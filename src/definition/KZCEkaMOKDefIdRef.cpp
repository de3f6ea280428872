#include "KZCEkaMOKDefIdRef.h"

#include "KZCValidResult.h"
#include "text/CText.h"

std::string KZCEkaMOKDefIdRef::WriteNode(const KZCEkaCsvFile* pCsv, long /*lRow*/)
{
    RequireCsvQuietly(pCsv);
    if (m_strValue.empty() || !KZCValidResult::instance()->ExistID(m_strValue))
        return {};
    return CText::CutToBuffer("<" + m_strName + " IDREF=\"" + m_strValue + "\"/>", TAG_BUFFER_SIZE);
}

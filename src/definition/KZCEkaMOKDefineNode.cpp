#include "KZCEkaMOKDefineNode.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "KZCDebugDump.h"
#include "KZCEkaCommon.h"
#include "KZCEkaCsvFile.h"
#include "KZCEkaXDOM.h"
#include "definition/SearchBounds.h"
#include "fault/Fault.h"
#include "text/CText.h"

namespace {

/// Appends a tag as its buffer cuts it.
void AppendTag(std::string& strOut, std::string_view strStart, const std::string& strName)
{
    const std::size_t nAt = strOut.size();
    strOut += strStart;
    strOut += strName;
    strOut += '>';
    strOut.resize(std::min(strOut.size(), nAt + TAG_BUFFER_SIZE - 1));
}

std::int64_t ReadNumber(const KZCEkaXDOM& dom, const char* szAttribute)
{
    return CText::ReadLong(dom.GetAttribute(szAttribute).c_str());
}

}  // namespace

KZCEkaMOKDefineNode::Share::Share(KZCEkaMOKDefineNode* pNode) : m_pNode(pNode)
{
    m_pNode->GenerationAddref();
}

KZCEkaMOKDefineNode::Share::Share(Share&& other) noexcept
    : m_pNode(std::exchange(other.m_pNode, nullptr))
{
}

KZCEkaMOKDefineNode::Share& KZCEkaMOKDefineNode::Share::operator=(Share&& other) noexcept
{
    std::swap(m_pNode, other.m_pNode);
    return *this;
}

KZCEkaMOKDefineNode::Share::~Share()
{
    if (m_pNode != nullptr && m_pNode->GenerationRelease() == 0)
        delete m_pNode;
}

KZCEkaMOKDefineNode::KZCEkaMOKDefineNode()
{
    clearCloseTags();
}

KZCEkaMOKDefineNode::~KZCEkaMOKDefineNode() = default;

int KZCEkaMOKDefineNode::Initialize(KZCEkaXDOM* pDom, bool bValidate)
{
    constexpr const char* FUNCTION = "KZCEkaMOKDefineNode::Initialize";
    if (pDom == nullptr) {
        KZCDebugDump::Log(FUNCTION);
        return STATUS_NG;
    }
    try {
        m_strName = pDom->GetAttribute("id");
        m_strParent = pDom->GetAttribute("parent");
        const std::int64_t nColumn = ReadNumber(*pDom, "column");
        m_nColumn = nColumn > 0 ? nColumn - 1 : -1;
        m_bZeroSuppress = pDom->GetAttribute("zeroSuppress") == "true";
        m_strGeneration = pDom->GetAttribute("generation");
        m_nStartRow = ReadNumber(*pDom, "startRow");
        m_nEndRow = ReadNumber(*pDom, "endRow");
        m_nStepRow = ReadNumber(*pDom, "stepRow");
        m_strValue = pDom->GetAttribute("value");
        m_nLastRecord = ReadNumber(*pDom, "lastRecord");
        m_strRepeatTopTag = pDom->GetAttribute("repeatTopTag");
        if (!bValidate || !pDom->HasChild())
            return STATUS_OK;
        m_pValidator = std::make_unique<KZCEkaValidator>();
        return m_pValidator->Initialize(m_nColumn, pDom);
    } catch (...) {
        KZCDebugDump::Log(FUNCTION, UNEXPECTED_ERROR);
        return STATUS_NG;
    }
}

int KZCEkaMOKDefineNode::LocateNode(KZCEkaMOKDefineNode* pChild, int nDefault)
{
    if (pChild == nullptr) {
        KZCDebugDump::Log("KZCEkaMOKDefineNode::LocateNode");
        return nDefault;
    }
    SearchBounds bounds;
    const int nResult = Locate(pChild, nDefault, bounds);
    return bounds.IsStopped() ? nDefault : nResult;
}

int KZCEkaMOKDefineNode::Locate(KZCEkaMOKDefineNode* pChild, int nDefault, SearchBounds& bounds)
{
    int nResult = nDefault;
    if (pChild->m_strParent == m_strName) {
        const bool bSame = m_strGeneration == pChild->m_strGeneration;
        if (bSame || m_strGeneration.empty())
            return Attach(pChild, 0, bounds);
        // A child for both generations under a parent of one: the other parent wants it too.
        if (pChild->m_strGeneration.empty())
            nResult = Attach(pChild, 1, bounds);
    }
    // Among parents of equal name the one defined last is found first. The child may just have
    // become one of them; it is no parent of itself, whatever its name.
    for (std::size_t nChild = m_vecChild.size(); nChild > 0 && nResult != 0; --nChild) {
        if (!bounds.Step())  // a child that hangs here many times is passed as often
            break;
        KZCEkaMOKDefineNode& node = *m_vecChild[nChild - 1];
        if (&node == pChild || !bounds.HasRoomBelow())
            continue;
        bounds.Enter();
        nResult = node.Locate(pChild, nResult, bounds);
        bounds.Leave();
    }
    return nResult;
}

int KZCEkaMOKDefineNode::LocateNodeFinance(KZCEkaMOKDefineNode* pChild,
                                           bool bValidate,
                                           int nDefault)
{
    if (pChild == nullptr) {
        KZCDebugDump::Log("KZCEkaMOKDefineNode::LocateNodeFinance");
        return nDefault;
    }
    SearchBounds bounds;
    const int nResult = LocateFinance(pChild, bValidate, nDefault, bounds);
    return bounds.IsStopped() ? nDefault : nResult;
}

int KZCEkaMOKDefineNode::LocateFinance(KZCEkaMOKDefineNode* pChild,
                                       bool bValidate,
                                       int nDefault,
                                       SearchBounds& bounds)
{
    if ((bValidate && pChild->m_strParent.empty()) || pChild->m_strParent == m_strName)
        return Attach(pChild, 0, bounds);
    int nResult = nDefault;
    for (std::size_t nChild = m_vecChild.size(); nChild > 0 && nResult != 0; --nChild) {
        if (!bounds.Step())
            break;
        bounds.Enter();
        nResult = m_vecChild[nChild - 1]->LocateFinance(pChild, bValidate, nResult, bounds);
        bounds.Leave();
    }
    return nResult;
}

int KZCEkaMOKDefineNode::Attach(KZCEkaMOKDefineNode* pChild, int nResult, SearchBounds& bounds)
{
    if (bounds.HasRoomBelow())
        m_vecChild.emplace_back(pChild);
    return nResult;
}

std::int64_t KZCEkaMOKDefineNode::CountNodes() const
{
    std::int64_t nNodes = 1;
    for (const Share& pChild : m_vecChild)
        nNodes += pChild->CountNodes();
    return nNodes;
}

int KZCEkaMOKDefineNode::ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow)
{
    constexpr const char* FUNCTION = "KZCEkaMOKDefineNode::ValidateCsv";
    RequireCsv(pCsv, FUNCTION);
    int nStatus = STATUS_OK;
    if (m_pValidator && m_pValidator->ValidateCsv(pCsv, lRow, -1) != STATUS_OK) {
        KZCDebugDump::Log(FUNCTION);
        nStatus = STATUS_NG;
    }
    for (const Share& pChild : m_vecChild) {
        if (!FitsGeneration(*pChild, *pCsv, lRow) || pChild->ValidateCsv(pCsv, lRow) == STATUS_OK)
            continue;
        KZCDebugDump::Log(FUNCTION);
        nStatus = STATUS_NG;
    }
    return nStatus;
}

int KZCEkaMOKDefineNode::ValidateGroup(const KZCEkaCsvFile* pCsv, long lRow)
{
    if (!m_pValidator || m_vecChild.empty())
        return STATUS_OK;
    const std::int64_t nColumn = m_vecChild.front()->GetColumn();
    return nColumn == -1 ? STATUS_OK : m_pValidator->ValidateCsv(pCsv, lRow, nColumn);
}

std::string KZCEkaMOKDefineNode::WriteNode(const KZCEkaCsvFile* pCsv, long lRow)
{
    RequireCsv(pCsv, "KZCEkaMOKDefineNode::WriteNode");
    // The raw numbers, negative ones included: such a node writes nothing. Wanted.
    if (isSettingRecordRange() && (m_nStartRow > lRow + 1 || m_nEndRow <= lRow))
        return {};
    std::string strBody;
    for (const Share& pChild : m_vecChild)
        if (FitsGeneration(*pChild, *pCsv, lRow))
            strBody += pChild->WriteNode(pCsv, lRow);
    const std::string strValue = MakeNodeValue(pCsv, lRow);
    if (strValue.empty() && strBody.empty())
        return {};
    return Element(m_strName, strValue, strBody);
}

std::string KZCEkaMOKDefineNode::WriteNodeTag(const KZCEkaCsvFile* pCsv,
                                              long lRow,
                                              eWriteMode eMode)
{
    return eMode == WRITE_NORMAL ? WriteNode(pCsv, lRow) : std::string();
}

std::string KZCEkaMOKDefineNode::MakeNodeValue(const KZCEkaCsvFile* pCsv, long lRow)
{
    RequireCsv(pCsv, "KZCEkaMOKDefineNode::MakeNodeValue");
    if (m_nColumn < 0)
        return {};
    std::string strValue = KZCEkaCommon::SpecialEncoding(pCsv->GetItem(lRow, m_nColumn));
    if (m_bZeroSuppress)
        strValue.erase(0, std::min(strValue.find_first_not_of('0'), strValue.size()));
    return strValue;
}

bool KZCEkaMOKDefineNode::isWithInRecordRange(const KZCEkaCsvFile* pCsv, long lRow) const
{
    return !isSettingRecordRange() ||
           (convRecordRow(pCsv, m_nStartRow) <= lRow + 1 && lRow < convRecordRow(pCsv, m_nEndRow));
}

std::int64_t KZCEkaMOKDefineNode::convRecordRow(const KZCEkaCsvFile* pCsv, std::int64_t nRow)
{
    return nRow < 0 ? nRow + pCsv->GetRecordCount() + 1 : nRow;
}

std::string KZCEkaMOKDefineNode::getCloseTags()
{
    std::string strTags;
    for (auto pName = m_listCloseTag.rbegin(); pName != m_listCloseTag.rend(); ++pName)
        strTags += CloseTag(*pName);
    return strTags;
}

void KZCEkaMOKDefineNode::clearCloseTags()
{
    m_listCloseTag.clear();
}

bool KZCEkaMOKDefineNode::FitsGeneration(const KZCEkaMOKDefineNode& child,
                                         const KZCEkaCsvFile& csv,
                                         long lRow)
{
    return child.m_strGeneration.empty() || child.m_strGeneration == csv.GetRecordGeneration(lRow);
}

void KZCEkaMOKDefineNode::RequireCsv(const KZCEkaCsvFile* pCsv, const char* szFunction)
{
    if (pCsv == nullptr)
        RaiseFault(szFunction, nullptr);
}

void KZCEkaMOKDefineNode::RequireCsvQuietly(const KZCEkaCsvFile* pCsv)
{
    if (pCsv == nullptr)
        throw FAULT;
}

std::string KZCEkaMOKDefineNode::OpenTag(const std::string& strName)
{
    std::string strTag;
    AppendTag(strTag, "<", strName);
    return strTag;
}

std::string KZCEkaMOKDefineNode::CloseTag(const std::string& strName)
{
    std::string strTag;
    AppendTag(strTag, "</", strName);
    return strTag;
}

std::string KZCEkaMOKDefineNode::Element(const std::string& strName,
                                         std::string_view strValue,
                                         std::string_view strBody)
{
    constexpr std::size_t BRACKETS = 5;
    std::string strElement;
    strElement.reserve(strName.size() * 2 + BRACKETS + strValue.size() + strBody.size());
    AppendTag(strElement, "<", strName);
    strElement += strValue;
    strElement += strBody;
    AppendTag(strElement, "</", strName);
    return strElement;
}

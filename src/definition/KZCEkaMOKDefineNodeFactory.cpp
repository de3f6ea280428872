// The kinds of nodes: the one place that knows them all.
#include <algorithm>
#include <array>
#include <memory>
#include <string_view>

#include "KZCDebugDump.h"
#include "KZCEkaXDOM.h"
#include "definition/KZCEkaMOKDefBango.h"
#include "definition/KZCEkaMOKDefDate.h"
#include "definition/KZCEkaMOKDefIdRef.h"
#include "definition/KZCEkaMOKDefKubun.h"
#include "definition/KZCEkaMOKDefNormal.h"
#include "definition/KZCEkaMOKDefTAG.h"
#include "definition/KZCEkaMOKDefZeimusho.h"
#include "definition/KZCEkaMOKDefZip.h"
#include "definition/KZCEkaMOKDefineNode.h"
#include "fault/Fault.h"

namespace {

using NodePtr = std::unique_ptr<KZCEkaMOKDefineNode>;

template <class Node>
NodePtr Make()
{
    return std::make_unique<Node>();
}

struct NodeKind
{
    std::string_view strType;
    NodePtr (*pMake)();
};

constexpr std::array<NodeKind, 8> NODE_KINDS = {{
    {"Normal", Make<KZCEkaMOKDefNormal>},
    {"TAG", Make<KZCEkaMOKDefTAG>},
    {"Date", Make<KZCEkaMOKDefDate>},
    {"Kubun", Make<KZCEkaMOKDefKubun>},
    {"Zeimusho", Make<KZCEkaMOKDefZeimusho>},
    {"Zip", Make<KZCEkaMOKDefZip>},
    {"Bango", Make<KZCEkaMOKDefBango>},
    {"IdRef", Make<KZCEkaMOKDefIdRef>},
}};

}  // namespace

std::unique_ptr<KZCEkaMOKDefineNode> KZCEkaMOKDefineNode::CreateNode(KZCEkaXDOM* pDom,
                                                                     bool bValidate)
{
    constexpr const char* FUNCTION = "KZCEkaMOKDefineNode::CreateNode";
    if (pDom == nullptr) {
        KZCDebugDump::Log(FUNCTION);
        return nullptr;
    }
    try {
        const auto* pKind =
            std::ranges::find(NODE_KINDS, pDom->GetAttribute("type"), &NodeKind::strType);
        if (pKind == NODE_KINDS.end()) {
            KZCDebugDump::Log(FUNCTION, "EKA定義ファイルエラー");
            return nullptr;
        }
        NodePtr pNode = pKind->pMake();
        if (pNode->Initialize(pDom, bValidate) != STATUS_OK)
            RaiseFault(FUNCTION, nullptr);
        return pNode;
    } catch (...) {
        KZCDebugDump::Log(FUNCTION, UNEXPECTED_ERROR);
        return nullptr;
    }
}

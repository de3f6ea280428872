// Definition nodes made from the item elements that a test writes down.
#pragma once

#include <initializer_list>
#include <memory>
#include <stdexcept>
#include <string>

#include "KZCEkaXDOM.h"
#include "definition/KZCEkaMOKDefineNode.h"

/// The node of an item element, or null if the element is refused.
inline std::unique_ptr<KZCEkaMOKDefineNode> CreateNode(const std::string& strItem,
                                                       bool bValidate = false)
{
    KZCEkaXDOM dom;
    if (!dom.Initialize() || !dom.Parse(strItem.c_str(), "item", "UTF-8"))
        throw std::invalid_argument("not well-formed: " + strItem);
    return KZCEkaMOKDefineNode::CreateNode(&dom, bValidate);
}

/// The same, of the kind that the test expects.
template <class Node>
std::unique_ptr<Node> CreateNodeOf(const std::string& strItem, bool bValidate = false)
{
    auto pNode = CreateNode(strItem, bValidate);
    if (dynamic_cast<Node*>(pNode.get()) == nullptr)
        throw std::invalid_argument("another kind of node: " + strItem);
    return std::unique_ptr<Node>(static_cast<Node*>(pNode.release()));
}

/// Hangs a node into the tree, which then owns it. \return What LocateNode returned.
inline int Hang(KZCEkaMOKDefineNode& root, std::unique_ptr<KZCEkaMOKDefineNode> pNode)
{
    const int nResult = root.LocateNode(pNode.get(), -1);
    if (nResult >= 0)
        static_cast<void>(pNode.release());
    return nResult;
}

/// Hangs the nodes of item elements in order. Throws if one finds no parent: a typing error.
inline void HangAll(KZCEkaMOKDefineNode& root,
                    std::initializer_list<const char*> listItem,
                    bool bValidate = false)
{
    for (const char* szItem : listItem) {
        auto pNode = CreateNode(szItem, bValidate);
        if (!pNode || Hang(root, std::move(pNode)) < 0)
            throw std::invalid_argument(std::string("can't be hung: ") + szItem);
    }
}

/// Looks behind the walls of a node.
struct NodePeek : KZCEkaMOKDefineNode
{
    static bool HasValidator(const KZCEkaMOKDefineNode& node)
    {
        return node.*(&NodePeek::m_pValidator) != nullptr;
    }

    /// "A(B.junior,C(D))": names and generations, children in brackets.
    static std::string Shape(const KZCEkaMOKDefineNode& node)
    {
        std::string strShape = node.GetName();
        if (const std::string& strGeneration = node.*(&NodePeek::m_strGeneration);
            !strGeneration.empty())
            strShape += "." + strGeneration;
        const auto& vecChild = node.*(&NodePeek::m_vecChild);
        if (vecChild.empty())
            return strShape;
        char cSeparator = '(';
        for (const auto& child : vecChild) {
            strShape += cSeparator + Shape(*child);
            cSeparator = ',';
        }
        return strShape + ")";
    }
};

// The XML library's parser, with an eye on what a document asks for.
#pragma once

#include <xercesc/parsers/XercesDOMParser.hpp>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

/// Gives up on a document that goes beyond XmlLimits, by throwing FAULT out of parse. The number of
/// entity references is the business of the security manager that it is given.
class BoundedXmlParser final : public xercesc::XercesDOMParser
{
public:
    explicit BoundedXmlParser(xercesc::MemoryManager* pMemory) : XercesDOMParser(nullptr, pMemory)
    {
    }

    /// \param nSize  Bytes of the source.
    void ParseSource(const xercesc::InputSource& source, std::size_t nSize);

    void startDocument() override;
    void startElement(const xercesc::XMLElementDecl& elemDecl,
                      unsigned int uriId,
                      const XMLCh* prefixName,
                      const xercesc::RefVectorOf<xercesc::XMLAttr>& attrList,
                      XMLSize_t attrCount,
                      bool isEmpty,
                      bool isRoot) override;
    /// Called for empty elements too.
    void endElement(const xercesc::XMLElementDecl& elemDecl,
                    unsigned int uriId,
                    bool isRoot,
                    const XMLCh* prefixName) override;
    /// Called for references in text alone, whatever becomes of them.
    void startEntityReference(const xercesc::XMLEntityDecl& entDecl) override;

    void attDef(const xercesc::DTDElementDecl& elemDecl,
                const xercesc::DTDAttDef& attDef,
                bool ignoring) override;
    void doctypeComment(const XMLCh* comment) override;
    void doctypePI(const XMLCh* target, const XMLCh* data) override;
    void doctypeWhitespace(const XMLCh* chars, XMLSize_t length) override;
    void elementDecl(const xercesc::DTDElementDecl& decl, bool isIgnored) override;
    void endAttList(const xercesc::DTDElementDecl& elemDecl) override;
    void entityDecl(const xercesc::DTDEntityDecl& entityDecl,
                    bool isPEDecl,
                    bool isIgnored) override;
    void notationDecl(const xercesc::XMLNotationDecl& notDecl, bool isIgnored) override;

private:
    /// Finds a name without making a text of it.
    struct NameHash
    {
        using is_transparent = void;
        std::size_t operator()(std::u16string_view strName) const
        {
            return std::hash<std::u16string_view>()(strName);
        }
    };

    void CountDeclaration();
    void CheckGrammarSize() const;
    void CountAddedAttributes(std::size_t nCount);
    void CountSize(std::size_t nUnits);
    void CountAttributes(const xercesc::RefVectorOf<xercesc::XMLAttr>& attrList,
                         std::size_t nCount,
                         std::size_t& nNamespaces);

    std::size_t m_nSourceSize = 0;
    std::vector<std::size_t> m_vecNamespaces;  ///< declared by each open element
    std::size_t m_nOpenNamespaces = 0;         ///< their sum
    std::unordered_set<std::u16string, NameHash, std::equal_to<>> m_setAttributeNames;
    std::size_t m_nDeclarations = 0;
    std::size_t m_nDeclaredAttributes = 0;
    std::size_t m_nAddedAttributes = 0;
    std::size_t m_nUnits = 0;  ///< of entities and attributes
};

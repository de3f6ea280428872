#include "xml/BoundedXmlParser.h"

#include <xercesc/framework/XMLAttDefList.hpp>
#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/framework/XMLEntityDecl.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/validators/DTD/DTDElementDecl.hpp>
#include <xercesc/validators/DTD/DTDEntityDecl.hpp>

#include <algorithm>
#include <string_view>

#include "fault/Fault.h"
#include "xml/XmlLimits.h"

namespace {

std::u16string_view View(const XMLCh* szText)
{
    return szText != nullptr ? std::u16string_view(szText) : std::u16string_view();
}

void Refuse(bool bBeyond)
{
    if (bBeyond)
        throw FAULT;
}

bool IsNamespaceDeclaration(std::u16string_view strName)
{
    return strName == u"xmlns" || strName.starts_with(u"xmlns:");
}

/// A reference to a parameter entity: a percent sign before a name.
bool HoldsParameterReference(std::u16string_view strText)
{
    constexpr std::u16string_view NO_NAME = u" \t\r\n%'\"<>&;,.)";
    for (std::size_t nAt = 0; (nAt = strText.find(u'%', nAt)) != std::u16string_view::npos;)
        if (++nAt < strText.size() && NO_NAME.find(strText[nAt]) == std::u16string_view::npos)
            return true;
    return false;
}

}  // namespace

void BoundedXmlParser::ParseSource(const xercesc::InputSource& source, std::size_t nSize)
{
    m_nSourceSize = nSize;
    parse(source);
}

void BoundedXmlParser::startDocument()
{
    m_vecNamespaces.clear();
    m_nOpenNamespaces = 0;
    m_setAttributeNames.clear();
    m_nDeclarations = 0;
    m_nDeclaredAttributes = 0;
    m_nAddedAttributes = 0;
    m_nUnits = 0;
    XercesDOMParser::startDocument();
}

void BoundedXmlParser::startElement(const xercesc::XMLElementDecl& elemDecl,
                                    const unsigned int uriId,
                                    const XMLCh* const prefixName,
                                    const xercesc::RefVectorOf<xercesc::XMLAttr>& attrList,
                                    const XMLSize_t attrCount,
                                    const bool isEmpty,
                                    const bool isRoot)
{
    // The library numbers the names as it meets them.
    Refuse(m_vecNamespaces.size() == XmlLimits::ELEMENT_DEPTH ||
           attrCount > XmlLimits::ATTRIBUTES || elemDecl.getId() > XmlLimits::NAMES);
    if (elemDecl.hasAttDefs()) {
        m_nDeclaredAttributes += elemDecl.getAttDefList().getAttDefCount();
        Refuse(m_nDeclaredAttributes > XmlLimits::DECLARED_ATTRIBUTES);
    }
    std::size_t nNamespaces = 0;
    CountAttributes(attrList, attrCount, nNamespaces);
    m_vecNamespaces.push_back(nNamespaces);
    m_nOpenNamespaces += nNamespaces;
    Refuse(m_nOpenNamespaces > XmlLimits::OPEN_NAMESPACES);
    XercesDOMParser::startElement(elemDecl, uriId, prefixName, attrList, attrCount, isEmpty,
                                  isRoot);
}

void BoundedXmlParser::CountAttributes(const xercesc::RefVectorOf<xercesc::XMLAttr>& attrList,
                                       std::size_t nCount,
                                       std::size_t& nNamespaces)
{
    for (std::size_t nAt = 0; nAt < nCount; ++nAt) {
        const xercesc::XMLAttr& attribute = *attrList.elementAt(nAt);
        const std::u16string_view strName = View(attribute.getQName());
        if (IsNamespaceDeclaration(strName))
            ++nNamespaces;
        if (!attribute.getSpecified())
            CountAddedAttributes(1);
        CountSize(View(attribute.getValue()).size());
        if (!m_setAttributeNames.contains(strName))
            m_setAttributeNames.emplace(strName);
    }
    Refuse(m_setAttributeNames.size() > XmlLimits::NAMES);
}

void BoundedXmlParser::endElement(const xercesc::XMLElementDecl& elemDecl,
                                  const unsigned int uriId,
                                  const bool isRoot,
                                  const XMLCh* const prefixName)
{
    m_nOpenNamespaces -= m_vecNamespaces.back();
    m_vecNamespaces.pop_back();
    XercesDOMParser::endElement(elemDecl, uriId, isRoot, prefixName);
}

void BoundedXmlParser::startEntityReference(const xercesc::XMLEntityDecl& entDecl)
{
    CountSize(entDecl.getValueLen());
    XercesDOMParser::startEntityReference(entDecl);
}

void BoundedXmlParser::CountSize(std::size_t nUnits)
{
    m_nUnits += nUnits;
    Refuse(m_nUnits > m_nSourceSize + XmlLimits::ADDED_SIZE);
}

void BoundedXmlParser::attDef(const xercesc::DTDElementDecl& elemDecl,
                              const xercesc::DTDAttDef& attDef,
                              const bool ignoring)
{
    CountDeclaration();
    Refuse(elemDecl.hasAttDefs() &&
           elemDecl.getAttDefList().getAttDefCount() > XmlLimits::ATTRIBUTES);
    XercesDOMParser::attDef(elemDecl, attDef, ignoring);
    CheckGrammarSize();
}

void BoundedXmlParser::doctypeComment(const XMLCh* const comment)
{
    XercesDOMParser::doctypeComment(comment);
    CheckGrammarSize();
}

void BoundedXmlParser::doctypePI(const XMLCh* const target, const XMLCh* const data)
{
    XercesDOMParser::doctypePI(target, data);
    CheckGrammarSize();
}

void BoundedXmlParser::doctypeWhitespace(const XMLCh* const chars, const XMLSize_t length)
{
    XercesDOMParser::doctypeWhitespace(chars, length);
    CheckGrammarSize();
}

void BoundedXmlParser::elementDecl(const xercesc::DTDElementDecl& decl, const bool isIgnored)
{
    CountDeclaration();
    XercesDOMParser::elementDecl(decl, isIgnored);
    CheckGrammarSize();
}

void BoundedXmlParser::endAttList(const xercesc::DTDElementDecl& elemDecl)
{
    // The library makes all defaults of the element anew for each of its lists.
    if (elemDecl.hasAttDefs())
        CountAddedAttributes(elemDecl.getAttDefList().getAttDefCount());
    XercesDOMParser::endAttList(elemDecl);
    CheckGrammarSize();
}

void BoundedXmlParser::CountAddedAttributes(std::size_t nCount)
{
    m_nAddedAttributes += nCount;
    Refuse(m_nAddedAttributes >
           XmlLimits::ADDED_ATTRIBUTES + m_nSourceSize / XmlLimits::BYTES_PER_ADDED_ATTRIBUTE);
}

void BoundedXmlParser::entityDecl(const xercesc::DTDEntityDecl& entityDecl,
                                  const bool isPEDecl,
                                  const bool isIgnored)
{
    CountDeclaration();
    const std::u16string_view strValue = View(entityDecl.getValue());
    if (isPEDecl)
        // Nothing counts references to these, so one may not multiply another.
        Refuse(HoldsParameterReference(strValue));
    else
        // With markup in it, it can't stand in an attribute.
        Refuse(strValue.size() > XmlLimits::ENTITY_SIZE &&
               strValue.find(u'<') == std::u16string_view::npos);
    XercesDOMParser::entityDecl(entityDecl, isPEDecl, isIgnored);
    CheckGrammarSize();
}

void BoundedXmlParser::notationDecl(const xercesc::XMLNotationDecl& notDecl, const bool isIgnored)
{
    CountDeclaration();
    XercesDOMParser::notationDecl(notDecl, isIgnored);
    CheckGrammarSize();
}

void BoundedXmlParser::CountDeclaration()
{
    Refuse(++m_nDeclarations > XmlLimits::DECLARATIONS);
}

void BoundedXmlParser::CheckGrammarSize() const
{
    Refuse(fInternalSubset.getLen() > XmlLimits::GRAMMAR_SIZE);
}

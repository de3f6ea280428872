#include "form/XmlTree.h"

#include <algorithm>
#include <memory>
#include <string_view>
#include <utility>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "KZCMacOSNative.h"
#include "xml/XercesGuards.h"

namespace host {
namespace {

constexpr std::size_t MAX_DEPTH = 100;  ///< a definition file has five levels
constexpr XMLSize_t MAX_ENTITY_EXPANSIONS = 100;
constexpr const char* NO_DOCTYPE = "a document type declaration stands in it";

/// The file is well-formed, but not to be read.
struct Unreadable
{
    const char* szMessage;
    bool bDoctype = false;
};

class TreeBuilder final : public xercesc::DefaultHandler
{
public:
    void setDocumentLocator(const xercesc::Locator* const locator) override
    {
        m_pLocator = locator;
    }

    void startElement(const XMLCh* const /*uri*/,
                      const XMLCh* const /*localname*/,
                      const XMLCh* const qname,
                      const xercesc::Attributes& attrs) override
    {
        m_lLastLine = static_cast<long>(m_pLocator->getLineNumber());
        if (m_vecOpen.size() >= MAX_DEPTH)
            throw Unreadable{"elements are nested too deep"};
        XmlElement element;
        element.strName = XMLChToChar(qname).Get();
        element.lLine = m_lLastLine;
        for (XMLSize_t n = 0; n < attrs.getLength(); ++n)
            element.mapAttribute.emplace(XMLChToChar(attrs.getQName(n)).Get(),
                                         XMLChToChar(attrs.getValue(n)).Get());
        m_vecOpen.push_back(std::move(element));
    }

    void endElement(const XMLCh* const /*uri*/,
                    const XMLCh* const /*localname*/,
                    const XMLCh* const /*qname*/) override
    {
        XmlElement element = std::move(m_vecOpen.back());
        m_vecOpen.pop_back();
        if (m_vecOpen.empty())
            m_root = std::move(element);
        else
            m_vecOpen.back().vecChild.push_back(std::move(element));
    }

    /// No grammar is needed in a definition file, and one costs more than it is worth.
    void startDTD(const XMLCh* const /*name*/,
                  const XMLCh* const /*publicId*/,
                  const XMLCh* const /*systemId*/) override
    {
        m_lLastLine = static_cast<long>(m_pLocator->getLineNumber());
        throw Unreadable{NO_DOCTYPE, true};
    }

    void comment(const XMLCh* const /*chars*/, const XMLSize_t /*length*/) override
    {
        NoteProlog();
    }

    void processingInstruction(const XMLCh* const /*target*/, const XMLCh* const /*data*/) override
    {
        NoteProlog();
    }

    void fatalError(const xercesc::SAXParseException& exception) override { throw exception; }

    std::optional<XmlElement> TakeRoot() { return std::move(m_root); }
    long PrologLine() const { return m_lPrologLine; }
    /// Where the last element began; 0 before the root.
    long LastLine() const { return m_lLastLine; }

private:
    void NoteProlog()
    {
        if (m_lPrologLine == 0 && m_vecOpen.empty() && !m_root)
            m_lPrologLine = static_cast<long>(m_pLocator->getLineNumber());
    }

    const xercesc::Locator* m_pLocator = nullptr;
    long m_lLastLine = 0;  ///< kept, as the locator looks at what is gone when parse has thrown
    long m_lPrologLine = 0;
    std::vector<XmlElement> m_vecOpen;
    std::optional<XmlElement> m_root;
};

/// Offset of a document type declaration before the root, or npos. The parser doesn't tell of one
/// without a grammar.
std::size_t FindDoctype(std::string_view strBytes)
{
    constexpr std::string_view DOCTYPE = "<!DOCTYPE";
    std::size_t nAt = strBytes.find('<');
    while (nAt != std::string_view::npos) {
        const std::string_view strRest = strBytes.substr(nAt);
        if (strRest.starts_with(DOCTYPE))
            return nAt;
        const bool bComment = strRest.starts_with("<!--");
        if (!bComment && !strRest.starts_with("<?"))
            break;
        const std::size_t nEnd = strBytes.find(bComment ? "-->" : "?>", nAt);
        nAt = strBytes.find('<', nEnd);
    }
    return std::string_view::npos;
}

void Parse(const std::string& strBytes, XmlFile& file)
{
    if (const std::size_t nAt = FindDoctype(strBytes); nAt != std::string_view::npos) {
        const auto lLine =
            1 +
            std::count(strBytes.begin(), strBytes.begin() + static_cast<std::ptrdiff_t>(nAt), '\n');
        file.problem = {NO_DOCTYPE, static_cast<long>(lLine), true};
        return;
    }
    TreeBuilder builder;
    const std::unique_ptr<xercesc::SAX2XMLReader> pReader(
        xercesc::XMLReaderFactory::createXMLReader());
    xercesc::SecurityManager security;
    security.setEntityExpansionLimit(MAX_ENTITY_EXPANSIONS);
    pReader->setProperty(xercesc::XMLUni::fgXercesSecurityManager, &security);
    pReader->setFeature(xercesc::XMLUni::fgSAX2CoreValidation, false);
    pReader->setFeature(xercesc::XMLUni::fgXercesLoadExternalDTD, false);
    pReader->setFeature(xercesc::XMLUni::fgXercesDisableDefaultEntityResolution, true);
    pReader->setContentHandler(&builder);
    pReader->setErrorHandler(&builder);
    pReader->setLexicalHandler(&builder);
    const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(strBytes.data()),
                                            strBytes.size(), "definition");
    try {
        pReader->parse(source);
        file.root = builder.TakeRoot();
        file.lPrologLine = builder.PrologLine();
    } catch (const xercesc::SAXParseException& exception) {
        file.problem = {XMLChToChar(exception.getMessage()).Get(),
                        static_cast<long>(exception.getLineNumber()), false};
    } catch (const xercesc::XMLException& exception) {
        file.problem = {XMLChToChar(exception.getMessage()).Get(), builder.LastLine(), false};
    } catch (const Unreadable& reason) {
        file.problem = {reason.szMessage, builder.LastLine(), reason.bDoctype};
    }
}

}  // namespace

const std::string& XmlElement::Attribute(std::string_view strAttribute) const
{
    static const std::string NONE;
    const auto it = mapAttribute.find(strAttribute);
    return it != mapAttribute.end() ? it->second : NONE;
}

bool XmlElement::Has(std::string_view strAttribute) const
{
    return mapAttribute.contains(strAttribute);
}

XmlFile ReadXmlFile(const std::string& strPath)
{
    XmlFile file;
    std::string strBytes;
    if (!KZCMacOSNative::readFile(strPath.c_str(), strBytes)) {
        file.problem.strMessage = "the file is missing or can't be read";
        return file;
    }
    const XercesSession session;
    Parse(strBytes, file);
    return file;
}

}  // namespace host

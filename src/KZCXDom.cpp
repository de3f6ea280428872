#include "KZCXDom.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/framework/XMLFormatter.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/EntityResolver.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/util/IOException.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLUni.hpp>
#include <xercesc/validators/DTD/DTDElementDecl.hpp>

#include "CText.h"
#include "Fault.h"
#include "KZCDebugDump.h"
#include "KZCMacOSNative.h"
#include "XercesMemory.h"

namespace {

using xercesc::DOMNode;

constexpr const char* UNEXPECTED = "想定しないエラーが発生しました。";
/// The log's name of both ways out.
constexpr const char* SAVE_FUNCTION = "KZCXDOM::Save";
/// Size of the buffer in which line and column of a parse error are printed; a longer text is cut.
constexpr std::size_t POSITION_BUFFER_SIZE = 1024;
/// More entity references in one document are an attack.
constexpr XMLSize_t MAX_ENTITY_EXPANSIONS = 100;
/// Deeper elements are an attack: the library looks names up from the innermost element outwards,
/// so that its time grows with the square of the depth.
constexpr int MAX_ELEMENT_DEPTH = 1000;
/// More attributes at one element are an attack: the library finds the place of each by looking at
/// all.
constexpr XMLSize_t MAX_ATTRIBUTES = 20000;
/// Bytes of a document that brings a grammar of its own. Much in the library's reading of a grammar
/// grows with the square of its size.
constexpr std::size_t MAX_SIZE_WITH_GRAMMAR = 65536;
/// Units of an element's content model in a document's own grammar. The automaton that the library
/// makes of a longer one may be without measure.
constexpr std::size_t MAX_CONTENT_MODEL = 64;
/// Bytes that the text of one serialised document is expected to take at least.
constexpr std::size_t EXPECTED_SIZE = 1023;

std::string ToUtf8(const XMLCh* szText)
{
    return XMLChToChar(szText).Get();
}

/// Refuses to fetch anything that a document refers to.
class NothingExternal final : public xercesc::EntityResolver
{
public:
    xercesc::InputSource* resolveEntity(const XMLCh* /*szPublicId*/,
                                        const XMLCh* szSystemId) override
    {
        throw xercesc::IOException(
            __FILE__, __LINE__, xercesc::XMLExcepts::File_CouldNotOpenFile,
            szSystemId != nullptr ? szSystemId : xercesc::XMLUni::fgZeroLenString);
    }
};

/// A parser that gives up on a document nested too deep.
class BoundedParser final : public xercesc::XercesDOMParser
{
public:
    explicit BoundedParser(xercesc::MemoryManager* pMemory) : XercesDOMParser(nullptr, pMemory) {}

    void startDocument() override
    {
        m_nDepth = 0;
        XercesDOMParser::startDocument();
    }

    void startElement(const xercesc::XMLElementDecl& elemDecl,
                      const unsigned int uriId,
                      const XMLCh* const prefixName,
                      const xercesc::RefVectorOf<xercesc::XMLAttr>& attrList,
                      const XMLSize_t attrCount,
                      const bool isEmpty,
                      const bool isRoot) override
    {
        if (++m_nDepth > MAX_ELEMENT_DEPTH || attrCount > MAX_ATTRIBUTES)
            throw FAULT;
        XercesDOMParser::startElement(elemDecl, uriId, prefixName, attrList, attrCount, isEmpty,
                                      isRoot);
    }

    /// Called for empty elements too.
    void endElement(const xercesc::XMLElementDecl& elemDecl,
                    const unsigned int uriId,
                    const bool isRoot,
                    const XMLCh* const prefixName) override
    {
        --m_nDepth;
        XercesDOMParser::endElement(elemDecl, uriId, isRoot, prefixName);
    }

    /// Called before the grammar inside the document is read.
    void doctypeDecl(const xercesc::DTDElementDecl& elemDecl,
                     const XMLCh* const publicId,
                     const XMLCh* const systemId,
                     const bool hasIntSubset,
                     const bool hasExtSubset) override
    {
        if (m_nSize > MAX_SIZE_WITH_GRAMMAR)
            throw FAULT;
        XercesDOMParser::doctypeDecl(elemDecl, publicId, systemId, hasIntSubset, hasExtSubset);
    }

    void elementDecl(const xercesc::DTDElementDecl& decl, const bool isIgnored) override
    {
        const XMLCh* szModel = decl.getFormattedContentModel();
        if (szModel != nullptr && std::u16string_view(szModel).size() > MAX_CONTENT_MODEL)
            throw FAULT;
        XercesDOMParser::elementDecl(decl, isIgnored);
    }

    /// Parameter entities are refused where they are declared: no limit of the library counts their
    /// expansions.
    void entityDecl(const xercesc::DTDEntityDecl& entityDecl,
                    const bool isPEDecl,
                    const bool isIgnored) override
    {
        if (isPEDecl)
            throw FAULT;
        XercesDOMParser::entityDecl(entityDecl, isPEDecl, isIgnored);
    }

    /// \param nSize  Bytes of the source.
    void ParseSource(const xercesc::MemBufInputSource& source, std::size_t nSize)
    {
        m_nSize = nSize;
        parse(source);
    }

private:
    std::size_t m_nSize = 0;
    int m_nDepth = 0;
};

/// Takes what the serialiser writes.
class TextTarget final : public xercesc::XMLFormatTarget
{
public:
    TextTarget() { m_strText.reserve(EXPECTED_SIZE); }

    void writeChars(const XMLByte* const toWrite,
                    const XMLSize_t count,
                    xercesc::XMLFormatter* const /*formatter*/) override
    {
        m_strText.append(reinterpret_cast<const char*>(toWrite), count);
    }

    std::string& Text() { return m_strText; }

private:
    std::string m_strText;
};

/// Objects of the Load and Save interfaces go back to the library that made them.
struct XmlRelease
{
    template <class Object>
    void operator()(Object* pObject) const
    {
        pObject->release();
    }
};

template <class Object>
using ReleasedPointer = std::unique_ptr<Object, XmlRelease>;

/// Runs a step of the serialiser and logs what it throws.
template <class Step>
bool RunSaveStep(Step step)
{
    try {
        return step();
    } catch (const xercesc::XMLException& exception) {
        KZCDebugDump::Log(SAVE_FUNCTION, ToUtf8(exception.getMessage()).c_str());
    } catch (const xercesc::DOMException& exception) {
        KZCDebugDump::Log(SAVE_FUNCTION, ToUtf8(exception.getMessage()).c_str());
    } catch (...) {
        KZCDebugDump::Log(SAVE_FUNCTION, "Xercesのシリアライズ中にエラーが発生しました。");
    }
    return false;
}

}  // namespace

struct KZCXDom::Parser
{
    XercesSession session;  // first in, last out
    NothingExternal entityResolver;
    xercesc::SecurityManager securityManager;
    xercesc::HandlerBase errorHandler;  // ignores all but fatal errors, which it throws
    XercesMemory memory;
    BoundedParser domParser{&memory};

    Parser()
    {
        securityManager.setEntityExpansionLimit(MAX_ENTITY_EXPANSIONS);
        // Validates as soon as there is a grammar. Validating always would give the same documents,
        // but makes and drops an error for every element of a document without one.
        domParser.setValidationScheme(xercesc::XercesDOMParser::Val_Auto);
        domParser.setDoNamespaces(true);
        domParser.setCreateEntityReferenceNodes(false);
        domParser.setEntityResolver(&entityResolver);
        domParser.setSecurityManager(&securityManager);
    }
};

KZCXDom::KZCXDom() = default;

KZCXDom::~KZCXDom() = default;

bool KZCXDom::Initialize()
{
    if (m_pParser)
        return true;
    try {
        m_pParser = std::make_unique<Parser>();
        return true;
    } catch (...) {
        KZCDebugDump::Log("KZCXDom::Initialize", UNEXPECTED);
        return false;
    }
}

void KZCXDom::Terminate()
{
    m_pDocument = nullptr;
    m_pCursor = nullptr;
    m_strSerialised.clear();
    m_pParser.reset();
}

bool KZCXDom::Parse(const char* szText, const char* szBufferId, const char* szEncoding)
{
    if (szText == nullptr || !m_pParser) {
        KZCDebugDump::Log("KZCXDom::Parse", UNEXPECTED);
        return false;
    }
    return RunParse([&] {
        xercesc::MemBufInputSource source(
            reinterpret_cast<const XMLByte*>(szText), std::char_traits<char>::length(szText),
            CharToXMLCh(CText::OrEmpty(szBufferId)).Get(), false, &m_pParser->memory);
        if (szEncoding != nullptr)
            source.setEncoding(CharToXMLCh(szEncoding).Get());
        m_pParser->domParser.ParseSource(source, std::char_traits<char>::length(szText));
    });
}

bool KZCXDom::Parse(const char* szPath)
{
    std::string strBytes;
    if (szPath == nullptr || !m_pParser || !KZCMacOSNative::readFile(szPath, strBytes)) {
        KZCDebugDump::Log("KZCXDom::Parse", UNEXPECTED);
        return false;
    }
    return RunParse([&] {
        // Read by the library's own file layer, a path would depend on the locale.
        const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(strBytes.data()),
                                                strBytes.size(), CharToXMLCh("file").Get(), false,
                                                &m_pParser->memory);
        m_pParser->domParser.ParseSource(source, strBytes.size());
    });
}

template <class ParseStep>
bool KZCXDom::RunParse(ParseStep parse)
{
    constexpr const char* FUNCTION = "KZCXDom::Parse";
    xercesc::XercesDOMParser& parser = m_pParser->domParser;
    try {
        parser.reset();
        parser.setErrorHandler(&m_pParser->errorHandler);
        parse();
        m_pDocument = parser.getDocument();
        m_pCursor = m_pDocument != nullptr ? m_pDocument->getFirstChild() : nullptr;
        m_strSerialised.clear();
        parser.reset();
        return true;
    } catch (const xercesc::SAXParseException& exception) {
        const std::string strPosition =
            " (行番号: " + std::to_string(static_cast<int>(exception.getLineNumber())) +
            ", 列番号: " + std::to_string(static_cast<int>(exception.getColumnNumber())) + ")";
        const std::string strMessage = std::string(UNEXPECTED) + "\n" +
                                       ToUtf8(exception.getMessage()) +
                                       CText::CutToBuffer(strPosition, POSITION_BUFFER_SIZE);
        KZCDebugDump::Log(FUNCTION, strMessage.c_str());
    } catch (...) {
        KZCDebugDump::Log(FUNCTION, UNEXPECTED);
    }
    parser.reset();
    return false;
}

std::string KZCXDom::GetNodeName() const
{
    return m_pCursor != nullptr ? ToUtf8(m_pCursor->getNodeName()) : std::string();
}

std::string KZCXDom::GetAttribute(const char* szName) const
{
    if (m_pCursor == nullptr || m_pCursor->getNodeType() != DOMNode::ELEMENT_NODE)
        return {};
    const auto* pElement = static_cast<const xercesc::DOMElement*>(m_pCursor);
    return ToUtf8(pElement->getAttribute(CharToXMLCh(szName).Get()));
}

bool KZCXDom::HasChild() const
{
    return m_pCursor != nullptr && m_pCursor->hasChildNodes();
}

long KZCXDom::MoveFirstChild()
{
    return m_pCursor != nullptr
               ? MoveToElement(m_pCursor->getFirstChild(), &DOMNode::getNextSibling)
               : STATUS_NG;
}

long KZCXDom::MoveLastChild()
{
    return m_pCursor != nullptr
               ? MoveToElement(m_pCursor->getLastChild(), &DOMNode::getPreviousSibling)
               : STATUS_NG;
}

long KZCXDom::MoveNextSibling()
{
    return m_pCursor != nullptr
               ? MoveToElement(m_pCursor->getNextSibling(), &DOMNode::getNextSibling)
               : STATUS_NG;
}

long KZCXDom::MovePrevSibling()
{
    return m_pCursor != nullptr
               ? MoveToElement(m_pCursor->getPreviousSibling(), &DOMNode::getPreviousSibling)
               : STATUS_NG;
}

long KZCXDom::MoveParent()
{
    DOMNode* pParent = m_pCursor != nullptr ? m_pCursor->getParentNode() : nullptr;
    if (pParent == nullptr)
        return STATUS_NG;
    m_pCursor = pParent;
    return STATUS_OK;
}

long KZCXDom::MoveRoot()
{
    if (m_pDocument == nullptr)
        return STATUS_NG;
    m_pCursor = m_pDocument->getFirstChild();
    return STATUS_OK;
}

long KZCXDom::MoveToElement(DOMNode* pNode, NodeStep pStep)
{
    while (pNode != nullptr && pNode->getNodeType() != DOMNode::ELEMENT_NODE)
        pNode = (pNode->*pStep)();
    if (pNode == nullptr)
        return STATUS_NG;
    m_pCursor = pNode;
    return STATUS_OK;
}

long KZCXDom::Save(const char* szPath)
{
    if (szPath == nullptr || !Serialise())
        return STATUS_NG;
    const bool bSaved = RunSaveStep([&] {
        if (!KZCMacOSNative::writeFile(szPath, m_strSerialised, KZCMacOSNative::WriteMode::PLAIN))
            throw xercesc::IOException(__FILE__, __LINE__,
                                       xercesc::XMLExcepts::File_CouldNotOpenFile,
                                       CharToXMLCh(szPath).Get());
        return true;
    });
    return bSaved ? STATUS_OK : STATUS_NG;
}

long KZCXDom::SaveXml(std::string& strOut)
{
    if (!Serialise())
        return STATUS_NG;
    strOut = m_strSerialised;
    return STATUS_OK;
}

long KZCXDom::GetSerialisedSize()
{
    return Serialise() ? static_cast<long>(m_strSerialised.size()) : STATUS_NG;
}

/// Both ways out and the measuring share one pass over the document: nothing changes it in between.
bool KZCXDom::Serialise()
{
    if (m_pDocument == nullptr)
        return false;
    if (!m_strSerialised.empty())
        return true;
    return RunSaveStep([this] {
        // Not from the registry, which loses memory when there is none left.
        xercesc::DOMImplementationLS* pImplementation = m_pDocument->getImplementation();
        xercesc::MemoryManager* pMemory = &m_pParser->memory;
        const ReleasedPointer<xercesc::DOMLSSerializer> pSerialiser(
            pImplementation->createLSSerializer(pMemory));
        xercesc::DOMConfiguration* pConfiguration = pSerialiser->getDomConfig();
        // A CDATA section that can't be written fails instead of being split.
        if (pConfiguration->canSetParameter(xercesc::XMLUni::fgDOMWRTSplitCdataSections, false))
            pConfiguration->setParameter(xercesc::XMLUni::fgDOMWRTSplitCdataSections, false);
        // No line end, and wanted as it stands.
        const CharToXMLCh newLine("_r_n");
        pSerialiser->setNewLine(newLine.Get());

        TextTarget target;
        const ReleasedPointer<xercesc::DOMLSOutput> pOutput(
            pImplementation->createLSOutput(pMemory));
        pOutput->setByteStream(&target);
        if (!pSerialiser->write(m_pDocument, pOutput.get()))
            return false;
        m_strSerialised = std::move(target.Text());
        return true;
    });
}

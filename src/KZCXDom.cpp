#include "KZCXDom.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/XMLFormatter.hpp>
#include <xercesc/sax/EntityResolver.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/util/IOException.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <new>

#include "KZCDebugDump.h"
#include "KZCMacOSNative.h"
#include "document/DocumentFile.h"
#include "fault/Fault.h"
#include "text/CText.h"
#include "text/LostText.h"
#include "xml/BoundedXmlParser.h"
#include "xml/SerialiserSettings.h"
#include "xml/XercesMemory.h"
#include "xml/XmlLimits.h"

namespace {

using xercesc::DOMNode;

constexpr const char* PARSE_FUNCTION = "KZCXDom::Parse";
constexpr const char* UNEXPECTED = "想定しないエラーが発生しました。";
constexpr const char* NO_MEMORY = "クラスの生成(new)に失敗しました。";
constexpr const char* SERIALISER_FAILED = "Xercesのシリアライズ中にエラーが発生しました。";
/// The log's name of both ways out.
constexpr const char* SAVE_FUNCTION = "KZCXDOM::Save";
/// Size of the buffer in which line and column of a parse error are printed; a longer text is cut.
constexpr std::size_t POSITION_BUFFER_SIZE = 1024;
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

/// Writes the comments of a document in UTF-8 past the serialiser, which looks at all siblings of a
/// comment before it writes it: a cell may consist of any number of them.
class CommentWriter final : public xercesc::DOMLSSerializerFilter
{
public:
    explicit CommentWriter(TextTarget& target) : m_target(target) {}

    FilterAction acceptNode(const DOMNode* node) const override
    {
        m_target.Text() += "<!--" + ToUtf8(node->getNodeValue()) + "-->";
        return FILTER_REJECT;
    }
    ShowType getWhatToShow() const override { return SHOW_COMMENT; }
    void setWhatToShow(ShowType /*toShow*/) {}

private:
    TextTarget& m_target;
};

/// The encoding that the serialiser takes from the document is UTF-8.
bool IsUtf8(const xercesc::DOMDocument& document)
{
    const XMLCh* szEncoding = document.getInputEncoding();
    return szEncoding != nullptr &&
           xercesc::XMLString::equals(szEncoding, xercesc::XMLUni::fgUTF8EncodingString);
}

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
try {
    try {
        step();
        return true;
    } catch (const xercesc::XMLException& exception) {
        KZCDebugDump::Log(SAVE_FUNCTION, ToUtf8(exception.getMessage()).c_str());
    } catch (const xercesc::DOMException& exception) {
        KZCDebugDump::Log(SAVE_FUNCTION, ToUtf8(exception.getMessage()).c_str());
    }
    return false;
} catch (...) {
    KZCDebugDump::Log(SAVE_FUNCTION, SERIALISER_FAILED);
    return false;
}

/// The library's own words for a document that could not be written.
void RequireWritten(KZCMacOSNative::WriteResult eResult, const char* szPath)
{
    using Result = KZCMacOSNative::WriteResult;
    if (eResult == Result::NOT_OPENED)
        throw xercesc::IOException(__FILE__, __LINE__, xercesc::XMLExcepts::File_CouldNotOpenFile,
                                   CharToXMLCh(szPath).Get());
    if (eResult == Result::NOT_WRITTEN)
        throw xercesc::XMLPlatformUtilsException(__FILE__, __LINE__,
                                                 xercesc::XMLExcepts::File_CouldNotWriteToFile);
}

/// What the step gives, or the empty text if there is no memory for it.
template <class Step>
std::string TextOrLost(const char* szFunction, Step step)
try {
    return step();
} catch (...) {
    LostText::Note();
    KZCDebugDump::Log(szFunction, UNEXPECTED);
    return {};
}

/// The reason and the place of a document that is not well-formed.
std::string ReasonOf(const xercesc::SAXParseException& exception)
{
    const std::string strPosition =
        " (行番号: " + std::to_string(static_cast<int>(exception.getLineNumber())) +
        ", 列番号: " + std::to_string(static_cast<int>(exception.getColumnNumber())) + ")";
    return std::string(UNEXPECTED) + "\n" + ToUtf8(exception.getMessage()) +
           CText::CutToBuffer(strPosition, POSITION_BUFFER_SIZE);
}

}  // namespace

struct KZCXDom::Parser
{
    XercesSession session;  // first in, last out
    NothingExternal entityResolver;
    xercesc::SecurityManager securityManager;
    XercesMemory memory;
    BoundedXmlParser domParser{&memory};

    Parser()
    {
        securityManager.setEntityExpansionLimit(XmlLimits::ENTITY_REFERENCES);
        // Errors against a grammar are ignored, so validating would give the same documents, with
        // the defaults of the grammar. It would only make and drop an error for every element of a
        // document without one, and automata without measure of the content models of one with.
        domParser.setValidationScheme(xercesc::XercesDOMParser::Val_Never);
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
        KZCDebugDump::Log(PARSE_FUNCTION, UNEXPECTED);
        return false;
    }
    return RunParse([&] {
        const std::size_t nSize = std::char_traits<char>::length(szText);
        xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(szText), nSize,
                                          CharToXMLCh(CText::OrEmpty(szBufferId)).Get(), false,
                                          &m_pParser->memory);
        if (szEncoding != nullptr)
            source.setEncoding(CharToXMLCh(szEncoding).Get());
        m_pParser->domParser.ParseSource(source, nSize);
    });
}

bool KZCXDom::Parse(const char* szPath)
{
    if (szPath == nullptr || !m_pParser) {
        KZCDebugDump::Log(PARSE_FUNCTION, UNEXPECTED);
        return false;
    }
    return RunParse([&] {
        const DocumentFile source(szPath, &m_pParser->memory);
        m_pParser->domParser.ParseSource(source, source.Size());
    });
}

template <class ParseStep>
bool KZCXDom::RunParse(ParseStep parse)
try {
    // Ignores all but fatal errors, which it throws.
    const std::unique_ptr<xercesc::HandlerBase> pHandler(new (std::nothrow) xercesc::HandlerBase);
    if (!pHandler) {
        KZCDebugDump::Log(PARSE_FUNCTION, NO_MEMORY);
        return false;
    }
    m_pParser->domParser.reset();
    m_pParser->domParser.setErrorHandler(pHandler.get());
    const bool bParsed = RunParseStep(parse);
    m_pParser->domParser.setErrorHandler(nullptr);
    m_pParser->domParser.reset();
    return bParsed;
} catch (...) {
    KZCDebugDump::Log(PARSE_FUNCTION, UNEXPECTED);
    return false;
}

template <class ParseStep>
bool KZCXDom::RunParseStep(ParseStep parse)
try {
    try {
        parse();
        m_pDocument = m_pParser->domParser.getDocument();
        m_pCursor = m_pDocument != nullptr ? m_pDocument->getFirstChild() : nullptr;
        m_strSerialised.clear();
        return true;
    } catch (const xercesc::SAXParseException& exception) {
        KZCDebugDump::Log(PARSE_FUNCTION, ReasonOf(exception).c_str());
        return false;
    }
} catch (...) {
    KZCDebugDump::Log(PARSE_FUNCTION, UNEXPECTED);
    return false;
}

std::string KZCXDom::GetNodeName() const
{
    return TextOrLost("KZCXDom::GetNodeName", [this] {
        return m_pCursor != nullptr ? ToUtf8(m_pCursor->getNodeName()) : std::string();
    });
}

std::string KZCXDom::GetAttribute(const char* szName) const
{
    if (m_pCursor == nullptr || m_pCursor->getNodeType() != DOMNode::ELEMENT_NODE)
        return {};
    return TextOrLost("KZCXDom::GetAttribute", [&] {
        const auto* pElement = static_cast<const xercesc::DOMElement*>(m_pCursor);
        return ToUtf8(pElement->getAttribute(CharToXMLCh(szName).Get()));
    });
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
        RequireWritten(
            KZCMacOSNative::writeFile(szPath, m_strSerialised, KZCMacOSNative::WriteMode::PLAIN),
            szPath);
    });
    return bSaved ? STATUS_OK : STATUS_NG;
}

long KZCXDom::SaveXml(std::string& strOut)
{
    if (!Serialise())
        return STATUS_NG;
    return RunSaveStep([&] { strOut = m_strSerialised; }) ? STATUS_OK : STATUS_NG;
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
        ApplySerialiserSettings(*pSerialiser);

        TextTarget target;
        CommentWriter comments(target);
        if (IsUtf8(*m_pDocument))
            pSerialiser->setFilter(&comments);
        const ReleasedPointer<xercesc::DOMLSOutput> pOutput(
            pImplementation->createLSOutput(pMemory));
        pOutput->setByteStream(&target);
        if (!pSerialiser->write(m_pDocument, pOutput.get()))
            throw FAULT;
        m_strSerialised = std::move(target.Text());
    });
}

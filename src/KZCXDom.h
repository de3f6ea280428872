// A cursor over the elements of an XML document, and its way out through the serialiser.
#pragma once

#include <xercesc/util/XercesDefs.hpp>

#include <memory>
#include <string>

#include "KZCXParser.h"
#include "xml/XercesGuards.h"

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
class DOMNode;
XERCES_CPP_NAMESPACE_END

/// No operation throws; results tell failure and the log tells why. All texts are UTF-8 in every
/// locale. External entities and DTD subsets are never fetched: a document that asks for one fails
/// to parse, as does one that goes beyond XmlLimits. Moves go over elements only and leave the
/// cursor where it was when they fail.
class KZCXDom : public KZCXParser
{
public:
    KZCXDom();
    ~KZCXDom() override;
    KZCXDom(const KZCXDom&) = delete;
    KZCXDom& operator=(const KZCXDom&) = delete;

    /// Starts the XML library and makes the parser. True at once if it exists.
    bool Initialize() override;
    /// Ends what Initialize began. The document ends with it.
    void Terminate() override;
    bool Parse(const char* szText, const char* szBufferId, const char* szEncoding) override;
    /// \param szPath  A file, read whole, or a pipe (see KZCMacOSNative::readStream).
    bool Parse(const char* szPath);

    /// Name of the node under the cursor; empty without a cursor. A text for which there is no
    /// memory is empty, too, here and below, and LostText notes it.
    std::string GetNodeName() const;
    /// Empty without a cursor and for an absent attribute. The cursor has to stand on an element.
    std::string GetAttribute(const char* szName) const;
    /// Any child counts, white space too.
    bool HasChild() const;

    long MoveFirstChild();
    long MoveLastChild();
    long MoveNextSibling();
    long MovePrevSibling();
    /// Also from the root element to the document itself.
    long MoveParent();
    /// To the document's first child, whatever it is: a comment in front of the root element is
    /// "the root" for this class.
    long MoveRoot();

    /// Writes the document to a file. A file that this call made and could not finish doesn't stay.
    long Save(const char* szPath);
    /// Hands the serialised document over. Leaves strOut alone on failure.
    long SaveXml(std::string& strOut);
    /// Bytes that both of them write, or -1.
    long GetSerialisedSize();

private:
    using NodeStep = XERCES_CPP_NAMESPACE::DOMNode* (XERCES_CPP_NAMESPACE::DOMNode::*)() const;

    struct Parser;  ///< the library's parser with all that it refers to

    template <class ParseStep>
    bool RunParse(ParseStep parse);
    template <class ParseStep>
    bool RunParseStep(ParseStep parse);
    long MoveToElement(XERCES_CPP_NAMESPACE::DOMNode* pNode, NodeStep pStep);
    bool Serialise();

    XERCES_CPP_NAMESPACE::DOMDocument* m_pDocument = nullptr;  ///< owned by the parser
    std::unique_ptr<Parser> m_pParser;                         ///< null before Initialize
    XERCES_CPP_NAMESPACE::DOMNode* m_pCursor = nullptr;
    std::string m_strSerialised;  ///< the document's text once it has been serialised, else empty
};

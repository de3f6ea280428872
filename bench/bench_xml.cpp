// The bare work of a conversion: one parse and one serialisation of a document, with nothing of
// this project's library.
//
//     bench_xml [--never-validate] FILE
//
// The parser is set up to validate; without a grammar this only makes errors that nobody reads.
// With the option it doesn't, which is the least work that gives the same document.
// Prints the number of bytes read and of bytes serialised.
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>

namespace {

using namespace XERCES_CPP_NAMESPACE;

std::string ReadFile(const char* szPath)
{
    std::string strText(std::filesystem::file_size(szPath), '\0');
    std::ifstream file(szPath, std::ios::binary);
    file.read(strText.data(), static_cast<std::streamsize>(strText.size()));
    return strText;
}

/// \return Bytes of the serialised document.
XMLSize_t ParseAndSerialise(const std::string& strText, bool bNeverValidate)
{
    XercesDOMParser parser;
    parser.setValidationScheme(bNeverValidate ? XercesDOMParser::Val_Never
                                              : XercesDOMParser::Val_Always);
    parser.setDoNamespaces(true);
    parser.setCreateEntityReferenceNodes(false);
    HandlerBase handler;
    parser.setErrorHandler(&handler);
    MemBufInputSource source(reinterpret_cast<const XMLByte*>(strText.data()), strText.size(),
                             "bench_xml");
    source.setEncoding(XMLUni::fgUTF8EncodingString);
    parser.parse(source);

    DOMImplementation* pImplementation = DOMImplementationRegistry::getDOMImplementation(u"LS");
    DOMLSSerializer* pSerializer = pImplementation->createLSSerializer();
    pSerializer->getDomConfig()->setParameter(XMLUni::fgDOMWRTSplitCdataSections, false);
    pSerializer->setNewLine(u"_r_n");
    MemBufFormatTarget target;
    DOMLSOutput* pOutput = pImplementation->createLSOutput();
    pOutput->setByteStream(&target);
    pSerializer->write(parser.getDocument(), pOutput);
    pOutput->release();
    pSerializer->release();
    return target.getLen();
}

}  // namespace

int main(int argc, char** argv)
{
    const bool bNeverValidate = argc == 3 && std::string_view(argv[1]) == "--never-validate";
    if (argc != 2 && !bNeverValidate) {
        std::cerr << "usage: bench_xml [--never-validate] FILE\n";
        return 2;
    }
    const std::string strText = ReadFile(argv[argc - 1]);
    XMLPlatformUtils::Initialize();
    const XMLSize_t nSerialised = ParseAndSerialise(strText, bNeverValidate);
    XMLPlatformUtils::Terminate();
    std::cout << strText.size() << ' ' << nSerialised << '\n';
    return 0;
}

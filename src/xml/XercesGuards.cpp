#include "xml/XercesGuards.h"

#include <new>

#include <xercesc/util/PanicHandler.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "fault/Fault.h"

static_assert(sizeof(XMLCh) == sizeof(char16_t));

namespace {

/// Bytes; a start takes some 700 KB of them, piece by piece.
constexpr std::size_t START_SIZE = 1048576;

/// Where the library sees no way on, it would end the host's process.
class ThrowingPanicHandler final : public xercesc::PanicHandler
{
public:
    void panic(const PanicReasons /*eReason*/) override { throw FAULT; }
};
ThrowingPanicHandler g_panicHandler;

}  // namespace

XercesSession::XercesSession()
{
    if (m_bBroken)
        throw FAULT;
    // A start that runs out of memory in the middle can't be taken back, so better not begin it.
    if (m_nRunning == 0)
        ::operator delete(::operator new(START_SIZE));
    try {
        xercesc::XMLPlatformUtils::Initialize(xercesc::XMLUni::fgXercescDefaultLocale, nullptr,
                                              &g_panicHandler);
    } catch (...) {
        m_bBroken = true;
        throw;
    }
    ++m_nRunning;
}

XercesSession::~XercesSession()
{
    --m_nRunning;
    xercesc::XMLPlatformUtils::Terminate();
}

XMLChToChar::XMLChToChar(const XMLCh* szText)
{
    if (szText == nullptr)
        return;
    const xercesc::TranscodeToStr text(szText, "UTF-8");
    m_strText.assign(reinterpret_cast<const char*>(text.str()), text.length());
}

CharToXMLCh::CharToXMLCh(const char* szText)
{
    if (szText == nullptr)
        return;
    const xercesc::TranscodeFromStr text(reinterpret_cast<const XMLByte*>(szText),
                                         std::char_traits<char>::length(szText), "UTF-8");
    m_strText.assign(text.str(), text.length());
}

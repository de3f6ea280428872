#include "text/CharsetConverter.h"

#include <iconv.h>

#include <array>
#include <cerrno>

#include "fault/Status.h"

namespace {

const iconv_t NO_DESCRIPTOR = reinterpret_cast<iconv_t>(-1);
constexpr std::size_t NOT_CONVERTED = static_cast<std::size_t>(-1);
constexpr std::size_t CHUNK_SIZE = 4096;

}  // namespace

CharsetConverter::CharsetConverter(const char* szTo, const char* szFrom)
    : m_pDescriptor(iconv_open(szTo, szFrom))
{
    if (m_pDescriptor == NO_DESCRIPTOR)
        throw FAULT;  // without a log, whose texts are converted here
}

CharsetConverter::~CharsetConverter()
{
    iconv_close(m_pDescriptor);
}

std::optional<std::string> CharsetConverter::Convert(std::string_view strText)
{
    iconv(m_pDescriptor, nullptr, nullptr, nullptr, nullptr);
    std::string strOut;
    std::array<char, CHUNK_SIZE> chunk;
    // iconv doesn't write to its input; the parameter lacks the const only for history's sake.
    char* pIn = const_cast<char*>(strText.data());
    std::size_t nIn = strText.size();
    while (nIn > 0) {
        char* pOut = chunk.data();
        std::size_t nOut = chunk.size();
        const std::size_t nResult = iconv(m_pDescriptor, &pIn, &nIn, &pOut, &nOut);
        strOut.append(chunk.data(), chunk.size() - nOut);
        if (nResult == NOT_CONVERTED && errno != E2BIG)
            return std::nullopt;
    }
    return strOut;
}

// Japanese literals as Shift_JIS bytes, made without the library under test.
#pragma once

#include <iconv.h>

#include <stdexcept>
#include <string>
#include <string_view>

/// The text in another charset. Throws if a character has no place there: a typing error in a test.
inline std::string ConvertText(std::string_view strText, const char* szTo, const char* szFrom)
{
    iconv_t pDescriptor = ::iconv_open(szTo, szFrom);
    if (pDescriptor == reinterpret_cast<iconv_t>(-1))
        throw std::runtime_error("iconv doesn't know the charset");
    std::string strIn(strText);
    std::string strOut(strText.size() * 4 + 4, '\0');
    char* pIn = strIn.data();
    char* pOut = strOut.data();
    std::size_t nIn = strIn.size();
    std::size_t nOut = strOut.size();
    const std::size_t nResult = ::iconv(pDescriptor, &pIn, &nIn, &pOut, &nOut);
    ::iconv_close(pDescriptor);
    if (nResult == static_cast<std::size_t>(-1))
        throw std::invalid_argument("no such character in the charset");
    strOut.resize(strOut.size() - nOut);
    return strOut;
}

/// A UTF-8 literal as the bytes of a CSV file. NUL characters pass.
inline std::string ToShiftJis(std::string_view strUtf8)
{
    return ConvertText(strUtf8, "CP932", "UTF-8");
}

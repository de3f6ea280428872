#include "SourceFile.h"

#include <algorithm>
#include <filesystem>
#include <string_view>

#include "KZCMacOSNative.h"
#include "ShiftJis.h"

namespace host {
namespace {

/// Line ends are the same bytes in every charset that a CSV file is found in.
std::size_t LineOf(std::string_view strBytes, std::size_t nByte)
{
    return CsvCells(std::string(strBytes.substr(0, nByte))).RecordCount();
}

/// First line (from 1) that isn't Shift_JIS. No byte of a Shift_JIS character looks like a line
/// end.
std::size_t FirstBadLine(std::string_view strBytes)
{
    std::size_t nStart = 0;
    while (nStart < strBytes.size()) {
        const std::size_t nEnd = std::min(strBytes.find_first_of("\r\n", nStart), strBytes.size());
        if (!ShiftJis::Decode(strBytes.substr(nStart, nEnd - nStart)))
            break;
        nStart = nEnd + 1;
    }
    return LineOf(strBytes, nStart);
}

}  // namespace

std::string AbsolutePath(const std::string& strPath)
{
    std::error_code error;
    const auto path = std::filesystem::absolute(strPath, error);
    return error ? strPath : path.string();
}

SourceFile::SourceFile(const std::string& strPath) : m_strLibraryPath(AbsolutePath(strPath))
{
    m_bRead = KZCMacOSNative::readFile(m_strLibraryPath.c_str(), m_strBytes);
    const auto strUtf8 = ShiftJis::ToUtf8(m_strBytes);
    m_bShiftJis = strUtf8.has_value();
    std::string strText = strUtf8.value_or(std::string());
    strText.resize(std::min(strText.find('\0'), strText.size()));
    m_cells.emplace(std::move(strText));
}

std::optional<std::string> SourceFile::PathProblem() const
{
    if (!Utf8::Decode(m_strLibraryPath))
        return "its path isn't UTF-8";
    if (KZCMacOSNative::stringByTrimming(m_strLibraryPath, /*bUtf8=*/true) != m_strLibraryPath)
        return "its name ends with white space";
    return std::nullopt;
}

std::optional<std::string> SourceFile::TextProblem() const
{
    if (!m_bRead)
        return "it is no regular file, or reading it failed";
    if (m_bShiftJis)
        return std::nullopt;
    const std::string_view strBytes = m_strBytes;
    if (strBytes.starts_with("\xff\xfe") || strBytes.starts_with("\xfe\xff"))
        return "it is UTF-16 and not Shift_JIS";
    if (Utf8::Decode(strBytes))
        return "it is UTF-8 and not Shift_JIS";
    return "line " + std::to_string(FirstBadLine(strBytes)) + " holds bytes that aren't Shift_JIS";
}

std::optional<std::string> SourceFile::NulProblem() const
{
    const std::size_t nNul = m_strBytes.find('\0');
    if (nNul == std::string::npos)
        return std::nullopt;
    return "there is a NUL byte in line " + std::to_string(LineOf(m_strBytes, nNul)) + " (byte " +
           std::to_string(nNul + 1) + "), where the library's reading ends";
}

bool SourceFile::LooksLikeUtf8() const
{
    const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    return !std::ranges::all_of(m_strBytes, isAscii) && Utf8::Decode(m_strBytes).has_value();
}

}  // namespace host

#include "file/SourceFile.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <utility>

#include "KZCMacOSNative.h"
#include "base/Language.h"
#include "text/ShiftJis.h"

namespace host {
namespace {

// Ends of sentences, which the caller closes.
constexpr Text PATH_NO_UTF8 = {"its path isn't UTF-8", "パスがUTF-8ではありません"};
constexpr Text PATH_ENDS_BLANK = {"its name ends with white space",
                                  "ファイル名が空白で終わっています"};
constexpr Text UNREADABLE = {"it is no regular file, or reading it failed",
                             "通常のファイルではないか、読み取りに失敗しました"};
constexpr Text IS_UTF16 = {"it is UTF-16 and not Shift_JIS",
                           "文字コードがShift_JISではなくUTF-16です"};
constexpr Text IS_UTF8 = {"it is UTF-8 and not Shift_JIS",
                          "文字コードがShift_JISではなくUTF-8です"};
constexpr Text BAD_LINE = {"line {1} holds bytes that aren't Shift_JIS",
                           "{1}行目にShift_JISではないバイトがあります"};
constexpr Text NUL_BYTE = {
    "there is a NUL byte in line {1} (byte {2}), where the library's reading ends",
    "{1}行目（{2}バイト目）にNULがあり、ライブラリの読み取りがそこで終わります"};

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

SourceFile::SourceFile(const std::string& strPath, std::optional<Family> family)
    : m_strLibraryPath(AbsolutePath(strPath))
{
    m_bRead = KZCMacOSNative::readFile(m_strLibraryPath.c_str(), m_strBytes);
    auto strUtf8 = ShiftJis::ToUtf8(m_strBytes);
    m_bShiftJis = strUtf8.has_value();
    std::string strText = std::move(strUtf8).value_or(std::string());
    strText.resize(std::min(strText.find('\0'), strText.size()));
    // A file of another charset is refused by its own family, too, if it can be told.
    const std::string_view strBytes = m_strBytes;
    const Family eFamily = family.value_or(FamilyOfText(strBytes.substr(0, strBytes.find('\0'))));
    m_pCells = std::make_shared<const CsvCells>(std::move(strText), eFamily);
}

std::optional<std::string> SourceFile::PathProblem() const
{
    if (!Utf8::Decode(m_strLibraryPath))
        return Say(PATH_NO_UTF8);
    if (KZCMacOSNative::stringByTrimming(m_strLibraryPath, /*bUtf8=*/true) != m_strLibraryPath)
        return Say(PATH_ENDS_BLANK);
    return std::nullopt;
}

std::optional<std::string> SourceFile::TextProblem() const
{
    if (!m_bRead)
        return Say(UNREADABLE);
    if (m_bShiftJis)
        return std::nullopt;
    const std::string_view strBytes = m_strBytes;
    if (strBytes.starts_with("\xff\xfe") || strBytes.starts_with("\xfe\xff"))
        return Say(IS_UTF16);
    if (Utf8::Decode(strBytes))
        return Say(IS_UTF8);
    return Say(BAD_LINE, {std::to_string(FirstBadLine(strBytes))});
}

std::optional<std::string> SourceFile::NulProblem() const
{
    const std::size_t nNul = m_strBytes.find('\0');
    if (nNul == std::string::npos)
        return std::nullopt;
    return Say(NUL_BYTE, {std::to_string(LineOf(m_strBytes, nNul)), std::to_string(nNul + 1)});
}

bool SourceFile::LooksLikeUtf8() const
{
    const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    return !std::ranges::all_of(m_strBytes, isAscii) && Utf8::Decode(m_strBytes).has_value();
}

}  // namespace host

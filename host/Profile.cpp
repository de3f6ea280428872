#include "Profile.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <sstream>
#include <string_view>

#include "JoinedText.h"
#include "KZCMacOSNative.h"
#include "Language.h"
#include "SafeText.h"
#include "ShiftJis.h"
#include "UsageError.h"

namespace host {
namespace {

constexpr std::string_view BYTE_ORDER_MARK = "\xef\xbb\xbf";
constexpr Text IN_PROFILE = {"profile {1}: {2}", "プロファイル {1}：{2}"};
constexpr Text IN_LINE = {"line {1}: {2}", "{1}行目：{2}"};
constexpr Text UNREADABLE = {"the file can't be read. Check its name and its permissions.",
                             "ファイルを読み取れません。ファイル名と権限を確認してください。"};
constexpr Text NOT_UTF8 = {"the text isn't UTF-8. Save it as UTF-8.",
                           "文字コードがUTF-8ではありません。UTF-8で保存してください。"};
constexpr Text ESCAPE = {"escapes aren't read. Put a value with a backslash in single quotes.",
                         "エスケープは使えません。バックスラッシュを含む値は ' で囲んでください。"};
constexpr Text OPEN_QUOTE = {"a quote isn't closed. Close the value with the quote it began with.",
                             "引用符が閉じていません。値の始まりと同じ引用符で閉じてください。"};
constexpr Text NO_ASSIGNMENT = {"this is no assignment. Write key = \"value\".",
                                "キーと値の行ではありません。キー = \"値\" と書いてください。"};
constexpr Text SECTION = {
    "there is a [section]. A profile holds only lines key = \"value\".",
    "[セクション] があります。プロファイルには キー = \"値\" の行だけを書いてください。"};
constexpr Text UNKNOWN_KEY = {"unknown key \"{1}\". Known keys: {2}.",
                              "\"{1}\" というキーはありません。使えるキー：{2}。"};
constexpr Text SEVERAL_VALUES = {
    "key \"{1}\" has more than one value. Give it once, with the whole value in quotes.",
    "キー \"{1}\" の値が1つではありません。値全体を引用符で囲み、1回だけ書いてください。"};

constexpr char NO_COMMENT = '\0';  // a character that no profile holds

/// The library's reader cuts a value at a '#' inside its quotes, and knows no escapes. So comments
/// are taken out before it, and what it would misread is refused.
class ProfileReader final : public CLI::ConfigBase
{
public:
    ProfileReader() { comment(NO_COMMENT); }
};

[[noreturn]] void Refuse(const std::string& strPath, const std::string& strWhat)
{
    throw UsageError(Say(IN_PROFILE, {MakeSafe(strPath), strWhat}));
}

[[noreturn]] void RefuseLine(const std::string& strPath, std::size_t nLine, const Text& what)
{
    Refuse(strPath, Say(IN_LINE, {std::to_string(nLine), Say(what)}));
}

std::string ReadText(const std::string& strPath)
{
    std::string strText;
    if (!KZCMacOSNative::readFile(strPath.c_str(), strText))
        Refuse(strPath, Say(UNREADABLE));
    if (!Utf8::Decode(strText) || strText.find('\0') != std::string::npos)
        Refuse(strPath, Say(NOT_UTF8));
    if (strText.starts_with(BYTE_ORDER_MARK))
        strText.erase(0, BYTE_ORDER_MARK.size());
    return strText;
}

/// The line without a comment behind its value. A '#' in quotes is no comment.
std::string WithoutComment(const std::string& strPath,
                           std::size_t nLine,
                           const std::string& strLine)
{
    char cQuote = '\0';
    for (std::size_t n = 0; n < strLine.size(); ++n) {
        const char c = strLine[n];
        if (cQuote == '"' && c == '\\')
            RefuseLine(strPath, nLine, ESCAPE);
        if (c == cQuote)
            cQuote = '\0';
        else if (cQuote == '\0' && (c == '"' || c == '\''))
            cQuote = c;
        else if (cQuote == '\0' && c == '#')
            return strLine.substr(0, n);
    }
    if (cQuote != '\0')
        RefuseLine(strPath, nLine, OPEN_QUOTE);
    return strLine;
}

std::string WithoutComments(const std::string& strPath, const std::string& strText)
{
    std::istringstream in(strText);
    std::string strOut;
    std::string strLine;
    for (std::size_t nLine = 1; std::getline(in, strLine); ++nLine) {
        strLine = CLI::detail::trim_copy(WithoutComment(strPath, nLine, strLine));
        const bool bSection = strLine.starts_with('[');
        // The reader passes over lines of one or two characters.
        const bool bAssigns = strLine.find('=') != std::string::npos && strLine.size() > 2;
        if (!strLine.empty() && !bSection && !bAssigns)
            RefuseLine(strPath, nLine, NO_ASSIGNMENT);
        strOut += strLine + '\n';
    }
    return strOut;
}

std::string KnownKeys()
{
    return JoinedText(FILER_FIELDS, ", ", &FilerFieldRow::szKey);
}

void TakeItem(const std::string& strPath, const CLI::ConfigItem& item, GivenFilerFields& fields)
{
    const std::string strKey = MakeSafe(item.fullname());
    if (item.name == "++" || item.name == "--")
        Refuse(strPath, Say(SECTION));
    const auto* pRow = std::ranges::find(FILER_FIELDS, item.fullname(), &FilerFieldRow::szKey);
    if (pRow == FILER_FIELDS.end())
        Refuse(strPath, Say(UNKNOWN_KEY, {strKey, KnownKeys()}));

    auto& field = fields[static_cast<std::size_t>(pRow - FILER_FIELDS.begin())];
    if (field || item.inputs.size() != 1)
        Refuse(strPath, Say(SEVERAL_VALUES, {strKey}));
    field = item.inputs.front();
}

}  // namespace

GivenFilerFields ReadProfile(const std::string& strPath)
{
    std::istringstream in(WithoutComments(strPath, ReadText(strPath)));
    GivenFilerFields fields;
    for (const CLI::ConfigItem& item : ProfileReader().from_config(in))
        TakeItem(strPath, item, fields);
    return fields;
}

}  // namespace host

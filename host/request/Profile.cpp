#include "request/Profile.h"

// The reader is compiled in, so that nothing has to be there at run time; a profile nests nothing.
#define TOML_HEADER_ONLY 1
#define TOML_MAX_NESTED_VALUES 8
#include <toml++/toml.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/JoinedText.h"
#include "base/Language.h"
#include "base/SafeText.h"
#include "request/ProfileFile.h"
#include "text/ShiftJis.h"

namespace host {
namespace {

constexpr std::string_view BYTE_ORDER_MARK = "\xef\xbb\xbf";
constexpr std::string_view BLANKS = " \t\r";
constexpr std::size_t SHOWN_KEY_CHARACTERS = 60;
/// Of ".", "[" and "{" together, which alone can nest tables: no more than all values could hold.
constexpr std::size_t NESTING_MAX = FILER_FIELD_COUNT * 100;

constexpr Text IN_LINE = {"line {1}: {2}", "{1}行目：{2}"};
constexpr Text NOT_UTF8 = {"the text isn't UTF-8. Save it as UTF-8.",
                           "文字コードがUTF-8ではありません。UTF-8で保存してください。"};
constexpr Text NESTED = {
    "there are more than {1} dots and brackets. A profile holds only lines key = \"value\".",
    "点と括弧が{1}個を超えています。プロファイルには キー = \"値\" の行だけを書いてください。"};
constexpr Text ESCAPE = {"escapes aren't read. Put a value with a backslash in single quotes.",
                         "エスケープは使えません。バックスラッシュを含む値は ' で囲んでください。"};
constexpr Text OPEN_QUOTE = {"a quote isn't closed. Close the value with the quote it began with.",
                             "引用符が閉じていません。値の始まりと同じ引用符で閉じてください。"};
constexpr Text NO_ASSIGNMENT = {"this is no assignment. Write key = \"value\".",
                                "キーと値の行ではありません。キー = \"値\" と書いてください。"};
constexpr Text NO_TOML = {
    "this can't be read as TOML. Write key = \"value\", and nothing else but a comment behind it.",
    "TOMLとして読み取れません。キー = \"値\" と書き、その後にはコメントだけを置いてください。"};
constexpr Text SECTION = {
    "there is a [section]. A profile holds only lines key = \"value\".",
    "[セクション] があります。プロファイルには キー = \"値\" の行だけを書いてください。"};
constexpr Text UNKNOWN_KEY = {"unknown key \"{1}\". Known keys: {2}.",
                              "\"{1}\" というキーはありません。使えるキー：{2}。"};
constexpr Text SEVERAL_VALUES = {
    "key \"{1}\" has more than one value. Give it once, with the whole value in quotes.",
    "キー \"{1}\" の値が1つではありません。値全体を引用符で囲み、1回だけ書いてください。"};
constexpr Text NO_TEXT = {"the value of key \"{1}\" is no text. Put it in quotes.",
                          "キー \"{1}\" の値が文字列ではありません。引用符で囲んでください。"};
constexpr Text SEVERAL_LINES = {
    "the value of key \"{1}\" goes over several lines. Write it on one.",
    "キー \"{1}\" の値が複数行にわたっています。1行で書いてください。"};

std::string_view Trimmed(std::string_view strText)
{
    const std::size_t nFirst = strText.find_first_not_of(BLANKS);
    if (nFirst == std::string_view::npos)
        return {};
    return strText.substr(nFirst, strText.find_last_not_of(BLANKS) + 1 - nFirst);
}

std::vector<std::string_view> LinesOf(std::string_view strText)
{
    std::vector<std::string_view> vecLine;
    while (!strText.empty()) {
        const std::size_t nEnd = strText.find('\n');
        vecLine.push_back(strText.substr(0, nEnd));
        strText.remove_prefix(nEnd == std::string_view::npos ? strText.size() : nEnd + 1);
    }
    return vecLine;
}

/// The text from a character (from 1) of the line on.
std::string_view From(std::string_view strLine, std::size_t nCharacter)
{
    std::size_t nByte = 0;
    while (nByte < strLine.size() && nCharacter > 1) {
        ++nByte;
        while (nByte < strLine.size() &&
               (static_cast<unsigned char>(strLine[nByte]) & 0xc0) == 0x80)
            ++nByte;
        --nCharacter;
    }
    return strLine.substr(nByte);
}

std::string_view KeyOf(std::string_view strLine)
{
    const std::size_t nEquals = strLine.find('=');
    return nEquals == std::string_view::npos ? std::string_view()
                                             : Trimmed(strLine.substr(0, nEquals));
}

/// A quote is open at the end of the line, comments aside.
bool HasOpenQuote(std::string_view strLine)
{
    char cQuote = '\0';
    for (const char c : strLine) {
        if (c == cQuote)
            cQuote = '\0';
        else if (cQuote == '\0' && (c == '"' || c == '\''))
            cQuote = c;
        else if (cQuote == '\0' && c == '#')
            return false;
    }
    return cQuote != '\0';
}

std::string SafeKey(std::string_view strKey)
{
    return MakeSafeAndShort(strKey, SHOWN_KEY_CHARACTERS);
}

/// The fields of one profile.
class ProfileReader
{
public:
    ProfileReader(const std::string& strPath, std::string_view strText)
        : m_strPath(strPath), m_strText(strText), m_vecLine(LinesOf(strText))
    {
    }

    GivenFilerFields Read()
    {
        RequireShallow();
        GivenFilerFields fields;
        for (const auto& [key, node] : Parse())
            Take(key.str(), node, fields);
        return fields;
    }

private:
    /// Tables that lie in each other are taken apart one in the other: thousands of levels of them
    /// would use up the stack. A line that begins with # is a comment or text, and nests nothing.
    void RequireShallow() const
    {
        std::size_t nNesting = 0;
        for (const std::string_view strLine : m_vecLine)
            if (!Trimmed(strLine).starts_with('#'))
                nNesting += static_cast<std::size_t>(std::ranges::count_if(
                    strLine, [](char c) { return c == '.' || c == '[' || c == '{'; }));
        if (nNesting > NESTING_MAX)
            RefuseProfile(m_strPath, Say(NESTED, {std::to_string(NESTING_MAX)}));
    }

    toml::table Parse() const
    {
        try {
            return toml::parse(m_strText);
        } catch (const toml::parse_error& error) {
            Explain(error.source().begin.line);
        }
    }

    /// In our own words, as the reader knows one language alone and no keys.
    [[noreturn]] void Explain(std::size_t nLine) const
    {
        // A text without its end may be told at the line behind it.
        for (const std::size_t nNear : {nLine, nLine - 1})
            if (HasOpenQuote(Line(nNear)) && nNear > 0)
                Refuse(nNear, Say(EscapesQuote(Line(nNear)) ? ESCAPE : OPEN_QUOTE));
        const std::string_view strLine = Trimmed(Line(nLine));
        const std::string_view strKey = KeyOf(strLine);
        const std::string_view strValue =
            strKey.empty() ? std::string_view() : Trimmed(strLine.substr(strLine.find('=') + 1));
        if (strLine.starts_with('['))
            Refuse(nLine, Say(SECTION));
        if (strValue.empty() || strValue.starts_with('#'))
            Refuse(nLine, Say(NO_ASSIGNMENT));
        if (EscapesQuote(strLine))
            Refuse(nLine, Say(ESCAPE));
        const bool bRepeated = std::ranges::any_of(
            m_vecLine.begin(), m_vecLine.begin() + static_cast<std::ptrdiff_t>(nLine - 1),
            [strKey](std::string_view strBefore) { return KeyOf(strBefore) == strKey; });
        const bool bSeveralWords =
            strValue.find_first_of("\"'") == std::string_view::npos &&
            Trimmed(strValue.substr(0, strValue.find('#'))).find_first_of(BLANKS) !=
                std::string_view::npos;
        if (bRepeated || bSeveralWords)
            Refuse(nLine, Say(SEVERAL_VALUES, {SafeKey(strKey)}));
        if (strValue.find_first_of("\"'") == std::string_view::npos)
            Refuse(nLine, Say(NO_TEXT, {SafeKey(strKey)}));
        Refuse(nLine, Say(NO_TOML));
    }

    /// The value begins with a double quote, and a backslash stands in it.
    static bool EscapesQuote(std::string_view strLine)
    {
        const std::size_t nEquals = strLine.find('=');
        return nEquals != std::string_view::npos &&
               BeginsWithEscapes(Trimmed(strLine.substr(nEquals + 1)));
    }

    static bool BeginsWithEscapes(std::string_view strValue)
    {
        if (!strValue.starts_with('"'))
            return false;
        const std::size_t nEnd = strValue.find_first_of("\"\\", 1);
        return nEnd != std::string_view::npos && strValue[nEnd] == '\\';
    }

    void Take(std::string_view strKey, const toml::node& node, GivenFilerFields& fields) const
    {
        const std::size_t nLine = node.source().begin.line;
        if (IsSection(node, nLine))
            Refuse(nLine, Say(SECTION));
        const auto* pRow = std::ranges::find(FILER_FIELDS, strKey, &FilerFieldRow::szKey);
        if (pRow == FILER_FIELDS.end() || IsDotted(node))
            Refuse(nLine,
                   Say(UNKNOWN_KEY, {SafeKey(FullKey(strKey, node)),
                                     JoinedText(FILER_FIELDS, ", ", &FilerFieldRow::szKey)}));
        fields[static_cast<std::size_t>(pRow - FILER_FIELDS.begin())] =
            ValueOf(strKey, node, nLine);
    }

    std::string ValueOf(std::string_view strKey, const toml::node& node, std::size_t nLine) const
    {
        const toml::value<std::int64_t>* pNumber = node.as_integer();
        if (pNumber != nullptr && pNumber->flags() == toml::value_flags::none)
            return std::to_string(pNumber->get());
        const toml::value<std::string>* pText = node.as_string();
        if (node.is_array())
            Refuse(nLine, Say(SEVERAL_VALUES, {SafeKey(strKey)}));
        if (pText == nullptr)
            Refuse(nLine, Say(NO_TEXT, {SafeKey(strKey)}));
        const std::string_view strWritten = From(Line(nLine), node.source().begin.column);
        if (strWritten.starts_with(R"(""")") || strWritten.starts_with("'''"))
            Refuse(nLine, Say(SEVERAL_LINES, {SafeKey(strKey)}));
        if (BeginsWithEscapes(strWritten))
            Refuse(nLine, Say(ESCAPE));
        return pText->get();
    }

    /// A table that a head in brackets began, and no dotted key or braces.
    bool IsSection(const toml::node& node, std::size_t nLine) const
    {
        return (node.is_table() || node.is_array_of_tables()) &&
               Trimmed(Line(nLine)).starts_with('[');
    }

    static bool IsDotted(const toml::node& node)
    {
        const toml::table* pTable = node.as_table();
        return pTable != nullptr && !pTable->is_inline();
    }

    /// "a.b" for the first value below a dotted key.
    static std::string FullKey(std::string_view strKey, const toml::node& node)
    {
        std::string strFull(strKey);
        for (const toml::node* pNode = &node; IsDotted(*pNode) && !pNode->as_table()->empty();) {
            const auto first = pNode->as_table()->begin();
            strFull.append(".").append(first->first.str());
            pNode = &first->second;
        }
        return strFull;
    }

    /// A line (from 1); empty for one that isn't there.
    std::string_view Line(std::size_t nLine) const
    {
        return nLine > 0 && nLine <= m_vecLine.size() ? m_vecLine[nLine - 1] : std::string_view();
    }

    [[noreturn]] void Refuse(std::size_t nLine, const std::string& strWhat) const
    {
        RefuseProfile(m_strPath, Say(IN_LINE, {std::to_string(nLine), strWhat}));
    }

    const std::string& m_strPath;
    std::string_view m_strText;
    std::vector<std::string_view> m_vecLine;
};

GivenFilerFields FieldsIn(const std::string& strPath, std::string_view strText)
{
    if (!Utf8::Decode(std::string(strText)) || strText.find('\0') != std::string_view::npos)
        RefuseProfile(strPath, Say(NOT_UTF8));
    if (strText.starts_with(BYTE_ORDER_MARK))
        strText.remove_prefix(BYTE_ORDER_MARK.size());
    return ProfileReader(strPath, strText).Read();
}

}  // namespace

GivenFilerFields ReadProfile(const std::string& strPath)
{
    return FieldsIn(strPath, ReadNamedProfile(strPath));
}

GivenFilerFields ReadProfileBeside(const std::string& strPath)
{
    const auto bytes = ReadFoundProfile(strPath);
    return bytes ? FieldsIn(strPath, *bytes) : GivenFilerFields();
}

}  // namespace host

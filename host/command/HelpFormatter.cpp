#include "command/HelpFormatter.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <string_view>
#include <vector>

#include "base/Language.h"

namespace host {
namespace {

constexpr std::size_t NAME_WIDTH = 30;
constexpr std::size_t LINE_WIDTH = 100;

constexpr Text OPTIONS_TITLE = {"Options", "オプション"};
constexpr Text SUBCOMMANDS_TITLE = {"Subcommands", "サブコマンド"};

/// Bytes of the UTF-8 character that begins with the byte.
std::size_t BytesOf(char c)
{
    const auto n = static_cast<unsigned char>(c);
    if (n < 0x80)
        return 1;
    return n < 0xe0 ? 2 : n < 0xf0 ? 3 : 4;
}

/// Columns on a terminal: Japanese characters, which take three bytes in UTF-8, are two wide.
std::size_t WidthOf(std::string_view strText)
{
    std::size_t nWidth = 0;
    for (std::size_t n = 0; n < strText.size(); n += BytesOf(strText[n]))
        nWidth += BytesOf(strText[n]) >= 3 ? 2U : 1U;
    return nWidth;
}

/// A line doesn't begin with it.
bool ClosesText(std::string_view strCharacter)
{
    constexpr std::string_view CLOSING[] = {"、", "。", "」", "）", "ー", "～", "：",
                                            "ャ", "ュ", "ョ", "ッ", "ァ", "ィ", "ェ",
                                            "ォ", "っ", "ゃ", "ゅ", "ょ"};
    return std::ranges::find(CLOSING, strCharacter) != std::end(CLOSING);
}

/// Pieces of which each has to stay on one line; a blank ends one.
std::vector<std::string> Pieces(std::string_view strText)
{
    std::vector<std::string> vecPiece;
    bool bInWord = false;   // a narrow character goes on with it
    bool bBracket = false;  // whatever follows belongs to it
    for (std::size_t n = 0; n < strText.size();) {
        const std::string_view strCharacter = strText.substr(n, BytesOf(strText[n]));
        const bool bWide = strCharacter.size() >= 3;
        const bool bJoined = bBracket || (bInWord && !bWide) || ClosesText(strCharacter);
        if (vecPiece.empty() || !bJoined)
            vecPiece.emplace_back();
        vecPiece.back() += strCharacter;
        bInWord = !bWide && strCharacter != " ";
        bBracket = strCharacter == "（" || strCharacter == "「";
        n += strCharacter.size();
    }
    return vecPiece;
}

std::string Trimmed(std::string strLine)
{
    strLine.erase(strLine.find_last_not_of(' ') + 1);
    return strLine;
}

/// A line of the help: a name and its description.
std::string Line(const std::string& strName, const std::string& strDescription)
{
    std::string strLine = "  " + strName;
    if (strDescription.empty())
        return strLine + '\n';
    if (WidthOf(strLine) >= NAME_WIDTH)
        strLine += '\n' + std::string(NAME_WIDTH, ' ');
    else
        strLine += std::string(NAME_WIDTH - WidthOf(strLine), ' ');
    return strLine + Wrapped(strDescription, LINE_WIDTH - NAME_WIDTH, NAME_WIDTH) + '\n';
}

class HelpFormatter final : public CLI::Formatter
{
public:
    HelpFormatter()
    {
        label("Usage", Say({"Usage", "使い方"}));
        label("OPTIONS", Say({"OPTIONS", "オプション"}));
        label("Positionals", Say({"Positionals", "引数"}));
        label("SUBCOMMAND", Say({"SUBCOMMAND", "サブコマンド"}));
        label("REQUIRED", Say({"REQUIRED", "（必須）"}));
        label("Needs", Say({"Needs", "必要"}));
        label("Excludes", Say({"Excludes", "併用不可"}));
    }

    std::string make_option(const CLI::Option* pOption, bool bPositional) const override
    {
        return Line(make_option_name(pOption, bPositional) + make_option_opts(pOption),
                    make_option_desc(pOption));
    }

    std::string make_subcommand(const CLI::App* pCommand) const override
    {
        return Line(pCommand->get_display_name(true), pCommand->get_description());
    }
};

}  // namespace

std::shared_ptr<CLI::FormatterBase> MakeHelpFormatter()
{
    return std::make_shared<HelpFormatter>();
}

const char* OptionsTitle()
{
    return Say(OPTIONS_TITLE);
}

const char* SubcommandsTitle()
{
    return Say(SUBCOMMANDS_TITLE);
}

std::string Wrapped(const std::string& strText, std::size_t nWidth, std::size_t nIndent)
{
    std::string strWrapped;
    std::string strLine;
    for (const std::string& strPiece : Pieces(strText)) {
        if (!strLine.empty() && WidthOf(strLine) + WidthOf(Trimmed(strPiece)) > nWidth) {
            strWrapped += Trimmed(strLine) + '\n' + std::string(nIndent, ' ');
            strLine.clear();
        }
        strLine += strPiece;
    }
    return strWrapped + Trimmed(strLine);
}

}  // namespace host

#include "base/Language.h"

#include <cstdlib>

namespace host {
namespace {

Language g_eLanguage = Language::English;

}  // namespace

void SetLanguage(Language eLanguage)
{
    g_eLanguage = eLanguage;
}

Language CurrentLanguage()
{
    return g_eLanguage;
}

Language LanguageOfLocale()
{
    for (const char* szName : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* szValue = std::getenv(szName);
        if (szValue != nullptr && *szValue != '\0')
            return std::string_view(szValue).starts_with("ja") ? Language::Japanese
                                                               : Language::English;
    }
    return Language::English;
}

const char* Say(const Text& text)
{
    return g_eLanguage == Language::Japanese ? text.szJapanese : text.szEnglish;
}

std::string Say(const Text& text, std::initializer_list<std::string_view> listArgument)
{
    std::string strSaid;
    std::string_view strRest = Say(text);
    while (!strRest.empty()) {
        const bool bPlace = strRest.size() >= 3 && strRest[0] == '{' && strRest[2] == '}' &&
                            strRest[1] >= '1' && strRest[1] <= '9';
        const auto nArgument = bPlace ? static_cast<std::size_t>(strRest[1] - '1') : 0;
        if (bPlace && nArgument < listArgument.size()) {
            strSaid += listArgument.begin()[nArgument];
            strRest.remove_prefix(3);
        } else {
            strSaid += strRest.front();
            strRest.remove_prefix(1);
        }
    }
    return strSaid;
}

}  // namespace host

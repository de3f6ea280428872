// English and Japanese: the languages in which the program speaks.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace host {

enum class Language
{
    English,
    Japanese,
};

/// The same text in both languages, in UTF-8. {1} to {9} stand for what Say fills in.
struct Text
{
    const char* szEnglish;
    const char* szJapanese;
};

/// The language of all that is said from now on. English until it is set; main sets it once.
void SetLanguage(Language eLanguage);
Language CurrentLanguage();

/// What LC_ALL, LC_MESSAGES or LANG (the first that is set and not empty) asks for: Japanese if it
/// begins with "ja", else English.
Language LanguageOfLocale();

/// The text in the current language.
const char* Say(const Text& text);
/// The same with {1} replaced by the first argument, and so on. A placeholder without an argument
/// stays as it stands; arguments aren't looked into.
std::string Say(const Text& text, std::initializer_list<std::string_view> listArgument);

}  // namespace host

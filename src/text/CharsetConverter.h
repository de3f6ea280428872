// The one owner of conversion descriptors.
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Converts texts between two charsets, strictly.
class CharsetConverter
{
public:
    /// \param szTo, szFrom  Names as iconv knows them, such as "CP932".
    /// Throws FAULT if the C library doesn't know the pair.
    CharsetConverter(const char* szTo, const char* szFrom);
    ~CharsetConverter();
    CharsetConverter(const CharsetConverter&) = delete;
    CharsetConverter& operator=(const CharsetConverter&) = delete;

    /// The whole text in the target charset, or nothing at the first byte sequence that is invalid
    /// or has no counterpart.
    std::optional<std::string> Convert(std::string_view strText);

private:
    void* m_pDescriptor;
};

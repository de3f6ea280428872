// Texts read the way the C library reads them: the definition files and the cells rely on it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace CText {

/// atol: leading blanks, a sign, as many digits as there are; clamped to 64 bits; 0 if no number
/// stands there. Null reads as 0.
long ReadLong(const char* szText);

/// atoi: the low 32 bits of ReadLong.
int ReadInt(const char* szText);

/// The text itself, or the empty text for null.
inline const char* OrEmpty(const char* szText)
{
    return szText != nullptr ? szText : "";
}

/// The pieces between blanks (0x20); a run of blanks is one separator, as strtok has it.
std::vector<std::string> SplitTokens(std::string_view strText);

/// The numbers of a blank-separated list, each read by ReadLong.
std::vector<long> SplitNumbers(std::string_view strText);

/// The first nSize - 1 bytes of the text, possibly cut inside a character: what a C buffer of nSize
/// bytes keeps of it.
std::string CutToBuffer(std::string strText, std::size_t nSize);

/// The decimal form, padded with zeros to at least nWidth characters, a sign included ("%0*d").
void AppendNumber(std::string& strOut, long lNumber, int nWidth);

}  // namespace CText

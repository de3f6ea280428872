// The eras, their years and their spans.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace EraTable {

/// First and last date of an era as Western texts; an empty last date leaves the era open.
struct Span
{
    std::string_view strName;
    const char* szFirst;
    const char* szLast;
};

/// Name and base of an era: Western year = year in the era + base.
struct Era
{
    std::string_view strName;
    int nBase;
};

/// The era whose name the text begins with, or null.
const Era* FindPrefix(std::string_view strText);
/// The code (1 to 5) names an era.
bool IsEra(int nCode);
/// Its name.
std::string Name(int nCode);
/// Its base; 0 for an unknown name.
int Base(std::string_view strName);

/// Spans in which the fourth era runs up to the end of its year 32's March, and up to its real end.
std::span<const Span> LongSpans();
std::span<const Span> RealSpans();

}  // namespace EraTable

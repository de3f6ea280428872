// Date patterns of the Unicode locale data, rendered for Japan.
#pragma once

#include <ctime>
#include <string>
#include <string_view>

/// The time by the pattern, in the Gregorian calendar with ASCII digits. Quoted parts stand as they
/// are, two quotes are one. All letters of the pattern language but those of other calendars and of
/// flexible parts of the day (b, B, U): these, like any letter without a meaning, stand as they
/// are. \param time  Filled by localtime_r. \param nSeconds  The same since the epoch.
std::string RenderDate(std::string_view strPattern, const std::tm& time, std::time_t nSeconds);

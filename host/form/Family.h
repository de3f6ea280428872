// The three families of filing, as the host tells them apart.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host {

enum class Family
{
    Base,
    Finance,
    CrossBorder,
};

/// "base", "finance" or "crossborder": the values of --family and of reports.
const char* FamilyName(Family eFamily);
std::optional<Family> FindFamily(std::string_view strName);

/// The family of a type id: that of its catalogue, else Base, whose check refuses unknown ids.
Family FamilyOfTypeId(const std::string& strTypeId);

}  // namespace host

// The options that give the filer's fields.
#pragma once

#include <array>
#include <string>

#include "FilerFields.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace host {

class FilerOptions
{
public:
    /// Adds --profile and an option for each field. The object has to live until the command line
    /// is parsed.
    void AddTo(CLI::App& command);
    /// Reads the profile. Throws UsageError for one that can't be read, and for a field that isn't
    /// UTF-8.
    /// \return Each field as its option gives it, else as the profile does, else empty.
    FilerFields Read() const;

private:
    std::string m_strProfile;  ///< empty for none
    FilerFields m_fields;
    std::array<CLI::Option*, FILER_FIELD_COUNT> m_option{};
};

/// Each field as an option gives it, else as the profile does, else empty.
FilerFields MergeFields(const GivenFilerFields& options, const GivenFilerFields& profile);

}  // namespace host

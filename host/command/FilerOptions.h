// The options that give the filer's fields.
#pragma once

#include <array>
#include <string>

#include "request/FilerFields.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace host {

class FilerOptions
{
public:
    /// Adds --profile, an option for each field, and --teishutsu-date. The object has to live until
    /// the command line is parsed.
    void AddTo(CLI::App& command);
    /// Reads the profile. Throws UsageError for one that can't be read, for a field that isn't
    /// UTF-8, and for a day of filing that doesn't exist or is given twice.
    /// \return Each field as its option gives it, else as the profile does, else empty.
    FilerFields Read() const;

private:
    void TakeDate(GivenFilerFields& given) const;

    std::string m_strProfile;  ///< empty for none
    std::array<std::string, FILER_FIELD_COUNT> m_value;
    std::array<CLI::Option*, FILER_FIELD_COUNT> m_option{};
    std::string m_strDate;
    CLI::Option* m_pDate = nullptr;
};

/// Each field as an option gives it, else as the profile does, else empty.
FilerFields MergeFields(const GivenFilerFields& options, const GivenFilerFields& profile);

/// Sets the four fields of the day of filing.
/// \param strDate  A day of one of the eras, as YYYY-MM-DD.
/// \return false, and no field set, for any other text.
bool SetFilingDate(const std::string& strDate, GivenFilerFields& fields);

}  // namespace host

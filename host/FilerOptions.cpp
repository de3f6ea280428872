#include "FilerOptions.h"

#include <CLI/CLI.hpp>

#include "Profile.h"
#include "SafeText.h"
#include "ShiftJis.h"
#include "UsageError.h"

namespace host {
namespace {

/// A text that isn't UTF-8 would be taken for an empty one.
void RequireUtf8(const FilerFields& fields)
{
    for (std::size_t n = 0; n < FILER_FIELD_COUNT; ++n)
        if (!Utf8::Decode(fields[n]))
            throw UsageError(std::string(FILER_FIELDS[n].szOption) + " " + MakeSafe(fields[n]) +
                             ": the value has to be UTF-8");
}

}  // namespace

void FilerOptions::AddTo(CLI::App& command)
{
    command.add_option("--profile", m_strProfile, "File that holds the filer's fields, see below")
        ->type_name("TOML");
    for (std::size_t n = 0; n < FILER_FIELD_COUNT; ++n)
        m_option[n] =
            command.add_option(FILER_FIELDS[n].szOption, m_fields[n], FILER_FIELDS[n].szHelp)
                ->type_name("TEXT")
                ->group("Fields of the filer (an option wins over the profile)");
}

FilerFields FilerOptions::Read() const
{
    GivenFilerFields given;
    for (std::size_t n = 0; n < FILER_FIELD_COUNT; ++n)
        if (m_option[n]->count() > 0)
            given[n] = m_fields[n];
    FilerFields fields =
        MergeFields(given, m_strProfile.empty() ? GivenFilerFields() : ReadProfile(m_strProfile));
    RequireUtf8(fields);
    return fields;
}

FilerFields MergeFields(const GivenFilerFields& options, const GivenFilerFields& profile)
{
    FilerFields fields;
    for (std::size_t n = 0; n < FILER_FIELD_COUNT; ++n)
        fields[n] = options[n] ? *options[n] : profile[n].value_or(std::string());
    return fields;
}

}  // namespace host

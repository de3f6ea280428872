#include "Options.h"

#include <KZEkaMok/KZEkaMok.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iomanip>
#include <iostream>
#include <map>
#include <sstream>

#include "Profile.h"
#include "SafeText.h"
#include "ShiftJis.h"
#include "UsageError.h"

namespace host {
namespace {

constexpr int LIMIT_MAX = 1'000'000'000;

constexpr const char* DESCRIPTION =
    "Checks tax filing CSV files (Shift_JIS) and turns them into MOK documents.";

constexpr const char* EXAMPLES = R"(Examples:
  kzekamok check accounts.csv
      Shows each wrong cell with its record, column, label, value, code and message.
  kzekamok check --format json *.csv > report.json
      The same for several files as one JSON document.
  kzekamok convert accounts.csv --profile filer.toml -o accounts.mok
      Checks the file and, if it passes, writes the document.
  kzekamok convert accounts.csv --profile filer.toml --zeimusho-cd 01234 -o accounts.mok
      An option wins over the profile.

Exit status (with several files the highest):
  0  passed, or converted
  1  a file was refused: it has errors
  2  the command line, the profile or a field of the filer is wrong
  3  a file could not be checked to its end (missing, unreadable, not Shift_JIS, of a family that
     this build doesn't do), or the installation is faulty
  4  the document, or standard output, could not be written

Environment:
  KZEKAMOK_BUNDLE  the resource folder, in place of the installed one
  NO_COLOR         no colour, if set and not empty)";

constexpr const char* PROFILE_HELP = R"(Profile: a UTF-8 file of lines
  zeimusho_cd = "01234"          # as --zeimusho-cd, and so on with _ for -
  nozeisha_nm = "株式会社見本"
Keys: zeimusho_cd nozeisha_id kojin_bango hojin_bango nozeisha_nm nozeisha_adr daihyo_nm dairi_id
dairi_nm dairi_adr tetsuzuki soft_name

Example:
  kzekamok convert accounts.csv --profile filer.toml -o accounts.mok)";

constexpr const char* CHECK_EXAMPLES = R"(Examples:
  kzekamok check accounts.csv
  kzekamok check --limit 20 accounts.csv
  kzekamok check --format json *.csv > report.json)";

std::string Version()
{
    std::ostringstream out;
    out << "kzekamok " KZEKAMOK_VERSION ", library KZEkaMok " << std::fixed << std::setprecision(1)
        << KZEkaMokVersionNumber;
    return out.str();
}

/// What CLI11 fills; kept apart from Options, which holds the outcome.
struct RawOptions
{
    Options options;
    std::string strFile;     ///< of a conversion
    std::string strProfile;  ///< empty for none
    FilerFields fields;
    std::array<CLI::Option*, FILER_FIELD_COUNT> fieldOptions{};
};

void AddReportOptions(CLI::App& command, Options& options)
{
    static const std::map<std::string, Format> FORMATS = {{"text", Format::Text},
                                                          {"json", Format::Json}};
    command
        .add_option_function<std::string>(
            "--format",
            [&options](const std::string& strName) { options.eFormat = FORMATS.at(strName); },
            "How the results are written: text (default) or json")
        ->type_name("FORMAT")
        ->check(CLI::IsMember({"text", "json"}));
    command
        .add_option("--limit", options.limit, "Show at most N errors of a file; counts stay true")
        ->type_name("N")
        ->check(CLI::Range(0, LIMIT_MAX).description(""));
}

CLI::App* AddCheck(CLI::App& app, RawOptions& raw)
{
    CLI::App* pCommand = app.add_subcommand("check", "Checks CSV files and tells their errors");
    pCommand->add_option("FILE", raw.options.vecFile, "CSV files (.csv, .CSV, .txt, .TXT)")
        ->type_name("")
        ->required();
    AddReportOptions(*pCommand, raw.options);
    pCommand->footer(CHECK_EXAMPLES);
    return pCommand;
}

CLI::App* AddConvert(CLI::App& app, RawOptions& raw)
{
    CLI::App* pCommand =
        app.add_subcommand("convert", "Checks a CSV file and writes its MOK document");
    pCommand->add_option("FILE", raw.strFile, "CSV file (.csv, .CSV, .txt, .TXT)")
        ->type_name("")
        ->required();
    pCommand
        ->add_option("-o,--output", raw.options.strOutput,
                     "Document to write (.mok or .MOK); an existing file is replaced")
        ->type_name("OUT.mok")
        ->required();
    pCommand
        ->add_option("--profile", raw.strProfile, "File that holds the filer's fields, see below")
        ->type_name("TOML");
    for (std::size_t n = 0; n < FILER_FIELD_COUNT; ++n)
        raw.fieldOptions[n] =
            pCommand->add_option(FILER_FIELDS[n].szOption, raw.fields[n], FILER_FIELDS[n].szHelp)
                ->type_name("TEXT")
                ->group("Fields of the filer (an option wins over the profile)");
    AddReportOptions(*pCommand, raw.options);
    pCommand->footer(PROFILE_HELP);
    return pCommand;
}

void RequireMokEnding(const std::string& strOutput)
{
    if (!strOutput.ends_with(".mok") && !strOutput.ends_with(".MOK"))
        throw UsageError("--output " + MakeSafe(strOutput) +
                         ": the name of the document has to end in .mok or .MOK");
    if (!Utf8::Decode(strOutput))
        throw UsageError("--output " + MakeSafe(strOutput) + ": the path has to be UTF-8");
}

/// A text that isn't UTF-8 would be taken for an empty one.
void RequireUtf8(const FilerFields& fields)
{
    for (std::size_t n = 0; n < FILER_FIELD_COUNT; ++n)
        if (!Utf8::Decode(fields[n]))
            throw UsageError(std::string(FILER_FIELDS[n].szOption) + " " + MakeSafe(fields[n]) +
                             ": the value has to be UTF-8");
}

void FinishConvert(RawOptions& raw)
{
    raw.options.eCommand = Command::Convert;
    raw.options.vecFile = {raw.strFile};
    RequireMokEnding(raw.options.strOutput);
    GivenFilerFields given;
    for (std::size_t n = 0; n < FILER_FIELD_COUNT; ++n)
        if (raw.fieldOptions[n]->count() > 0)
            given[n] = raw.fields[n];
    const GivenFilerFields profile =
        raw.strProfile.empty() ? GivenFilerFields() : ReadProfile(raw.strProfile);
    raw.options.fields = MergeFields(given, profile);
    RequireUtf8(raw.options.fields);
}

/// The arguments behind the program's name, the last one first, as the parser wants them. The
/// parser would take `--option=` for one whose value follows; here it gives the empty text.
std::vector<std::string> ReversedArguments(int nCount, const char* const* pArguments)
{
    std::vector<std::string> vecArgument;
    bool bOptions = true;
    for (int n = 1; n < nCount; ++n) {
        std::string strArgument = pArguments[n];
        bOptions = bOptions && strArgument != "--";
        const bool bEmptyValue = bOptions && strArgument.starts_with("--") &&
                                 strArgument.find('=') == strArgument.size() - 1;
        if (bEmptyValue)
            strArgument.pop_back();
        vecArgument.push_back(std::move(strArgument));
        if (bEmptyValue)
            vecArgument.emplace_back();
    }
    std::ranges::reverse(vecArgument);
    return vecArgument;
}

std::string Complaint(const std::string& strWhat)
{
    return "kzekamok: " + strWhat + "\nRun `kzekamok --help` to see how it is used.\n";
}

}  // namespace

FilerFields MergeFields(const GivenFilerFields& options, const GivenFilerFields& profile)
{
    FilerFields fields;
    for (std::size_t n = 0; n < FILER_FIELD_COUNT; ++n)
        fields[n] = options[n] ? *options[n] : profile[n].value_or(std::string());
    return fields;
}

std::variant<Options, ExitStatus> ReadOptions(int nCount, const char* const* pArguments)
{
    RawOptions raw;
    CLI::App app(DESCRIPTION, "kzekamok");
    app.set_version_flag("--version", Version, "Print the version and exit");
    app.set_help_flag("-h,--help", "Print this help and exit");
    app.footer(EXAMPLES);
    app.require_subcommand(1);
    app.failure_message(
        [](const CLI::App*, const CLI::Error& error) { return Complaint(error.what()); });
    AddCheck(app, raw);
    const CLI::App* pConvert = AddConvert(app, raw);

    try {
        app.parse(ReversedArguments(nCount, pArguments));
        if (pConvert->parsed())
            FinishConvert(raw);
        return raw.options;
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? ExitStatus::Passed : ExitStatus::Usage;
    } catch (const UsageError& error) {
        std::cerr << Complaint(error.what());
        return ExitStatus::Usage;
    }
}

}  // namespace host

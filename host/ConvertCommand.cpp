#include "ConvertCommand.h"

#include <KZEkaMok/KZEkaMok.h>

#include <CLI/CLI.hpp>

#include "ConvertFile.h"
#include "ReportRun.h"
#include "SafeText.h"
#include "ShiftJis.h"
#include "UsageError.h"

namespace host {
namespace {

constexpr const char* PROFILE_HELP = R"(Profile: a UTF-8 file of lines
  zeimusho_cd = "01234"          # as --zeimusho-cd, and so on with _ for -
  nozeisha_nm = "株式会社見本"
Keys: zeimusho_cd nozeisha_id kojin_bango hojin_bango nozeisha_nm nozeisha_adr daihyo_nm dairi_id
dairi_nm dairi_adr tetsuzuki soft_name

Example:
  kzekamok convert accounts.csv --profile filer.toml -o accounts.mok)";

void RequireMokEnding(const std::string& strOutput)
{
    if (!strOutput.ends_with(".mok") && !strOutput.ends_with(".MOK"))
        throw UsageError("--output " + MakeSafe(strOutput) +
                         ": the name of the document has to end in .mok or .MOK");
    if (!Utf8::Decode(strOutput))
        throw UsageError("--output " + MakeSafe(strOutput) + ": the path has to be UTF-8");
}

}  // namespace

CLI::App* ConvertCommand::AddTo(CLI::App& app)
{
    CLI::App* pCommand =
        app.add_subcommand("convert", "Checks a CSV file and writes its MOK document");
    pCommand->add_option("FILE", m_strFile, "CSV file (.csv, .CSV, .txt, .TXT)")
        ->type_name("")
        ->required();
    pCommand
        ->add_option("-o,--output", m_strOutput,
                     "Document to write (.mok or .MOK); an existing file is replaced")
        ->type_name("OUT.mok")
        ->required();
    m_filer.AddTo(*pCommand);
    AddReportOptions(*pCommand, m_report);
    pCommand->footer(PROFILE_HELP);
    return pCommand;
}

void ConvertCommand::Finish()
{
    RequireMokEnding(m_strOutput);
    m_fields = m_filer.Read();
}

ExitStatus ConvertCommand::Run()
{
    const Definitions definitions;
    ReportRun run("convert", m_report);
    KZICsvConvMokEka library;
    run.Add(FileConversion(library, definitions, m_strFile, m_strOutput, m_fields).Run());
    library.Terminate();
    return run.Finish();
}

}  // namespace host

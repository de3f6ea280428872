#include "command/FamilyOption.h"

#include <CLI/CLI.hpp>

#include <string>

#include "base/Language.h"

namespace host {
namespace {

constexpr Text HELP = {
    "Family of the files: base, finance or crossborder; default: the one of each file's type id",
    "ファイルの系列：base、finance、crossborder。省略すると各ファイルの申請区分から判断します"};

}  // namespace

void AddFamilyOption(CLI::App& command, std::optional<Family>& family)
{
    command
        .add_option_function<std::string>(
            "--family", [&family](const std::string& strName) { family = FindFamily(strName); },
            Say(HELP))
        ->type_name("FAMILY")
        ->check(CLI::IsMember({FamilyName(Family::Base), FamilyName(Family::Finance),
                               FamilyName(Family::CrossBorder)})
                    .description(""));
}

}  // namespace host

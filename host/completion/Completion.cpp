#include "completion/Completion.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <span>
#include <stdexcept>
#include <string_view>

namespace host {
namespace {

struct Placeholder
{
    std::string_view strName;
    Completed eKind;
};

/// What the arguments stand for.
constexpr Placeholder ARGUMENTS[] = {
    {"BUNDLE", Completed::Folder}, {"CODE", Completed::Code},     {"DIR", Completed::Folder},
    {"FILE", Completed::CsvFile},  {"TYPEID", Completed::TypeId},
};

/// What the values of options stand for.
constexpr Placeholder OPTION_VALUES[] = {
    {"DATE", Completed::Nothing},     {"DIR", Completed::Folder},
    {"FILE", Completed::AnyFile},     {"MIB", Completed::Nothing},
    {"N", Completed::Nothing},        {"OUT", Completed::Folder},
    {"OUT.mok", Completed::Document}, {"REPORT", Completed::AnyFile},
    {"SECONDS", Completed::Nothing},  {"TEXT", Completed::Nothing},
    {"TOML", Completed::AnyFile},     {"TYPEID", Completed::TypeId},
};

/// The words of which one must be given. The parser keeps them to itself, but tells them when it
/// refuses another: "? not in {en,ja}".
std::vector<std::string> Choices(CLI::Option& option)
{
    std::string strRefusal;
    try {
        strRefusal = (*option.get_validator(0))(std::string("?"));
    } catch (const CLI::OptionNotFound&) {  // anything may be given
        return {};
    }
    const std::size_t nFirst = strRefusal.find('{');
    const std::size_t nLast = strRefusal.rfind('}');
    if (nFirst == std::string::npos || nLast == std::string::npos)
        return {};
    return CLI::detail::split(strRefusal.substr(nFirst + 1, nLast - nFirst - 1), ',');
}

CompletedValue Value(CLI::Option& option,
                     const std::string& strPlaceholder,
                     std::span<const Placeholder> placeholders)
{
    CompletedValue value;
    value.strPlaceholder = strPlaceholder;
    value.vecChoice = Choices(option);
    if (!value.vecChoice.empty()) {
        value.eKind = Completed::Choice;
        return value;
    }
    const auto row = std::ranges::find(placeholders, strPlaceholder, &Placeholder::strName);
    if (row == placeholders.end())
        throw std::logic_error("nothing tells how to complete " + strPlaceholder + " of " +
                               option.get_name(true));
    value.eKind = row->eKind;
    return value;
}

/// The parser appends what its checks say of themselves: "LANG:{en,ja}".
std::string TypeName(const CLI::Option& option)
{
    const std::string strName = option.get_type_name();
    return strName.substr(0, strName.find(':'));
}

CompletedOption MakeOption(CLI::Option& option)
{
    CompletedOption completed;
    for (const std::string& strName : option.get_snames())
        completed.vecName.push_back("-" + strName);
    for (const std::string& strName : option.get_lnames())
        completed.vecName.push_back("--" + strName);
    completed.strHelp = option.get_description();
    completed.bTakesValue = option.get_items_expected_max() > 0;
    completed.bRepeated = option.get_multi_option_policy() == CLI::MultiOptionPolicy::TakeAll;
    if (completed.bTakesValue)
        completed.value = Value(option, TypeName(option), OPTION_VALUES);
    return completed;
}

CompletedArgument MakeArgument(CLI::Option& option)
{
    return {.value = Value(option, option.get_name(true), ARGUMENTS),
            .bRepeated = option.get_items_expected_max() > 1};
}

CompletedCommand MakeCommand(CLI::App& app)
{
    CompletedCommand command;
    command.strHelp = app.get_description();
    for (CLI::Option* pOption : app.get_options(std::function<bool(CLI::Option*)>())) {
        if (pOption->nonpositional())
            command.vecOption.push_back(MakeOption(*pOption));
        else
            command.vecArgument.push_back(MakeArgument(*pOption));
    }
    return command;
}

}  // namespace

std::vector<CompletedCommand> CompletedCommands(CLI::App& app)
{
    std::vector<CompletedCommand> vecCommand = {MakeCommand(app)};
    for (CLI::App* pSubcommand : app.get_subcommands(std::function<bool(CLI::App*)>())) {
        vecCommand.push_back(MakeCommand(*pSubcommand));
        vecCommand.back().strName = pSubcommand->get_name();
    }
    return vecCommand;
}

}  // namespace host

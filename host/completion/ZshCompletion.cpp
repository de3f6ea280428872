#include <ostream>
#include <string_view>

#include "EkaMsgTable.h"
#include "completion/Completion.h"

namespace host {
namespace {

constexpr std::string_view HEAD = R"sh(#compdef kzekamok
# Completion of kzekamok for zsh, made by `kzekamok completion zsh`.

_kzekamok_type_ids()
{
    setopt localoptions extendedglob
    local -a ids
    # A line is "103  PGE2030  finance  label".
    ids=(${(f)"$(_call_program type-ids ${(q)program} layout 2>/dev/null)"})
    # A definition file may say anything: what is more to a shell than letters and digits is not
    # offered.
    ids=(${(M)ids:#[0-9A-Za-z]##  *})
    ids=(${ids/  /:})
    _describe -t type-ids 'type id' ids
}

)sh";

constexpr std::string_view TAIL = R"sh(
if [[ $funcstack[1] == _kzekamok ]]; then
    _kzekamok "$@"
else
    compdef _kzekamok kzekamok
fi
)sh";

std::string WithBackslashes(const std::string& strText, std::string_view strSpecial)
{
    std::string strEscaped;
    for (const char c : strText) {
        if (c == '\\' || strSpecial.find(c) != std::string_view::npos)
            strEscaped += '\\';
        strEscaped += c;
    }
    return strEscaped;
}

/// One word of the shell, whatever is in it.
std::string Quoted(const std::string& strText)
{
    std::string strQuoted = "'";
    for (const char c : strText)
        strQuoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return strQuoted + "'";
}

/// ":FILE:" and how it is completed.
std::string Message(const CompletedValue& value)
{
    const std::string strName = ":" + WithBackslashes(value.strPlaceholder, ":") + ":";
    switch (value.eKind) {
        case Completed::Nothing:
            return strName + " ";
        case Completed::AnyFile:
            return strName + "_files";
        case Completed::CsvFile:
            return strName + "_files -g \"*.(csv|CSV|txt|TXT)(-.)\"";
        case Completed::Document:
            return strName + "_files -g \"*.(mok|MOK)(-.)\"";
        case Completed::Folder:
            return strName + "_files -/";
        case Completed::TypeId:
            return strName + "_kzekamok_type_ids";
        case Completed::Code:
            return strName + "_kzekamok_codes";
        case Completed::Choice:
            break;
    }
    std::string strWords;
    for (const std::string& strChoice : value.vecChoice)
        strWords += (strWords.empty() ? "" : " ") + strChoice;
    return strName + "(" + strWords + ")";
}

/// The options that aren't offered beside one: its other name or, as nothing else counts then, all.
std::string Excluded(const CompletedOption& option)
{
    const std::string& strLast = option.vecName.back();
    if (strLast == "--help" || strLast == "--version")
        return "(- *)";
    if (option.bRepeated)
        return "*";
    std::string strNames;
    for (const std::string& strName : option.vecName)
        strNames += (strNames.empty() ? "" : " ") + strName;
    return "(" + strNames + ")";
}

void WriteOptions(std::ostream& out, const CompletedCommand& command, const char* szIndent)
{
    for (const CompletedOption& option : command.vecOption)
        for (const std::string& strName : option.vecName) {
            std::string strSpec = Excluded(option) + strName;
            if (option.bTakesValue)
                strSpec += strName.starts_with("--") ? "=" : "+";
            strSpec += "[" + WithBackslashes(option.strHelp, "[]:") + "]";
            if (option.bTakesValue)
                strSpec += Message(option.value);
            out << " \\\n" << szIndent << Quoted(strSpec);
        }
}

void WriteArguments(std::ostream& out, const CompletedCommand& command, const char* szIndent)
{
    for (std::size_t n = 0; n < command.vecArgument.size(); ++n) {
        const CompletedArgument& argument = command.vecArgument[n];
        out << " \\\n"
            << szIndent
            << Quoted((argument.bRepeated ? "*" : std::to_string(n + 1)) + Message(argument.value));
    }
}

void WriteCodes(std::ostream& out)
{
    out << "_kzekamok_codes()\n{\n    local -a codes\n    codes=(\n";
    for (const EkaMsgRow& row : EkaMsgTable)
        if (row.eMessage != MSG_NONE)
            out << "        "
                << Quoted(std::string(row.szCode) + ":" + WithBackslashes(row.szText, ":")) << '\n';
    out << "    )\n    _describe -t codes code codes\n}\n\n";
}

void WriteCommandList(std::ostream& out, const std::vector<CompletedCommand>& vecCommand)
{
    out << "_kzekamok_commands()\n{\n    local -a commands\n    commands=(\n";
    for (const CompletedCommand& command : vecCommand)
        if (!command.strName.empty())
            out << "        "
                << Quoted(command.strName + ":" + WithBackslashes(command.strHelp, ":")) << '\n';
    out << "    )\n    _describe -t commands command commands\n}\n\n";
}

}  // namespace

void WriteZshCompletion(std::ostream& out, const std::vector<CompletedCommand>& vecCommand)
{
    out << HEAD;
    WriteCodes(out);
    WriteCommandList(out, vecCommand);
    out << "_kzekamok()\n{\n"
           "    local curcontext=$curcontext program=$words[1] state line\n"
           "    typeset -A opt_args\n"
           "    _arguments -C -s -S";
    WriteOptions(out, vecCommand.front(), "        ");
    out << " \\\n        '1:command:_kzekamok_commands'"
           " \\\n        '*:: :->rest' && return\n"
           "    [[ $state == rest ]] || return 1\n"
           "    curcontext=\"${curcontext%:*:*}:kzekamok-$line[1]:\"\n"
           "    case $line[1] in\n";
    for (const CompletedCommand& command : vecCommand) {
        if (command.strName.empty())
            continue;
        out << "        " << command.strName << ")\n            _arguments -s -S";
        WriteOptions(out, command, "                ");
        WriteArguments(out, command, "                ");
        out << "\n            ;;\n";
    }
    out << "        *) return 1 ;;\n    esac\n}\n" << TAIL;
}

}  // namespace host

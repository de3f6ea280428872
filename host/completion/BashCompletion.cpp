#include <ostream>
#include <string_view>

#include "EkaMsgTable.h"
#include "completion/Completion.h"

namespace host {
namespace {

constexpr std::string_view HEAD =
    R"sh(# Completion of kzekamok for bash, made by `kzekamok completion bash`.

)sh";

constexpr std::string_view REPLY = R"sh(
# _kzekamok_type_ids: sets words to the type ids. A definition file may say anything: what is more to
# a shell than letters and digits is not offered, as it would run once it stands on the command line.
_kzekamok_type_ids()
{
    words=()
    while read -r each _; do
        [[ -z $each || $each == *[!0-9A-Za-z]* ]] || words+=("$each")
    done < <("${COMP_WORDS[0]/#\~/$HOME}" layout 2>/dev/null)
}

# _kzekamok_reply BEGIN WORD KIND [CHOICE...]: sets COMPREPLY to what WORD can become, each behind
# BEGIN. compgen -W is not used: it expands what it is given, commands included.
_kzekamok_reply()
{
    local begin=$1 word=$2 kind=$3 pattern file each
    local -a patterns=() words=("${@:4}")
    case $kind in
        type_id) _kzekamok_type_ids ;;
        code) read -ra words <<<"$_kzekamok_codes" ;;
        csv_file) patterns=('!*.csv' '!*.CSV' '!*.txt' '!*.TXT') ;;
        document) patterns=('!*.mok' '!*.MOK') ;;
        file) patterns=('') ;;
    esac
    case $kind in
        csv_file | document | file | folder)
            # Known inside a completion only. What is quoted is left to the shell.
            compopt -o filenames -o default 2>/dev/null
            mapfile -t COMPREPLY < <(
                compgen -P "$begin" -d -- "$word"
                for pattern in "${patterns[@]}"; do
                    compgen -P "$begin" -f -X "$pattern" -- "$word"
                done | while IFS= read -r file; do
                    [[ -d ${file#"$begin"} ]] || printf '%s\n' "$file"
                done
            )
            ;;
        *)
            for each in "${words[@]}"; do
                [[ $each != "$word"* ]] || COMPREPLY+=("$begin$each")
            done
            ;;
    esac
}

_kzekamok()
{
    local word=${COMP_WORDS[COMP_CWORD]} command= option= ended= begin= kind options argument n each
    local -i count=0
    local IFS=$' \t\n'
    COMPREPLY=()
    for ((n = 1; n < COMP_CWORD; n++)); do
        each=${COMP_WORDS[n]}
        if [[ -n $option ]]; then
            # The shell may give --option=value as three words.
            [[ $each == = ]] || option=
        elif [[ -z $ended && $each == -- ]]; then
            ended=1
        elif [[ -z $ended && $each == -?* ]]; then
            _kzekamok_value "$command" "$each"
            [[ -z $kind ]] || option=$each
        elif [[ -z $command ]]; then
            command=$each
        else
            count+=1
        fi
    done

    if [[ -z $option && -z $ended && $word == --*=* ]]; then
        option=${word%%=*}
        begin=$option=
        word=${word#*=}
    fi
    if [[ -n $option ]]; then
        [[ $word != = ]] || word=
        _kzekamok_value "$command" "$option"
        _kzekamok_reply "$begin" "$word" ${kind:-nothing}
        return
    fi
    _kzekamok_command "$command" "$count"
    if [[ -z $ended && $word == -* || -z $argument ]]; then
        [[ -n $ended ]] || argument="words $options"
    fi
    _kzekamok_reply '' "$word" ${argument:-nothing}
}

complete -F _kzekamok kzekamok
)sh";

/// The kind, and the words to choose from behind it.
std::string Kind(const CompletedValue& value)
{
    switch (value.eKind) {
        case Completed::Nothing:
            return "nothing";
        case Completed::AnyFile:
            return "file";
        case Completed::CsvFile:
            return "csv_file";
        case Completed::Document:
            return "document";
        case Completed::Folder:
            return "folder";
        case Completed::TypeId:
            return "type_id";
        case Completed::Code:
            return "code";
        case Completed::Choice:
            break;
    }
    std::string strKind = "words";
    for (const std::string& strChoice : value.vecChoice)
        strKind += " " + strChoice;
    return strKind;
}

void WriteCodes(std::ostream& out)
{
    out << "_kzekamok_codes='";
    const char* szBetween = "";
    for (const EkaMsgRow& row : EkaMsgTable)
        if (row.eMessage != MSG_NONE) {
            out << szBetween << row.szCode;
            szBetween = " ";
        }
    out << "'\n";
}

void WriteValues(std::ostream& out, const std::vector<CompletedCommand>& vecCommand)
{
    out << "\n# _kzekamok_value COMMAND OPTION: sets kind to what is to follow the option, if "
           "anything is.\n"
           "_kzekamok_value()\n{\n    kind=\n    case \"$1 $2\" in\n";
    for (const CompletedCommand& command : vecCommand)
        for (const CompletedOption& option : command.vecOption)
            if (option.bTakesValue)
                for (const std::string& strName : option.vecName)
                    out << "        '" << command.strName << ' ' << strName << "') kind='"
                        << Kind(option.value) << "' ;;\n";
    out << "    esac\n}\n";
}

/// The program's own argument is a subcommand.
void WriteProgram(std::ostream& out, const std::vector<CompletedCommand>& vecCommand)
{
    out << "            argument='words";
    for (const CompletedCommand& command : vecCommand)
        if (!command.strName.empty())
            out << ' ' << command.strName;
    out << "'\n";
}

void WriteArguments(std::ostream& out, const std::vector<CompletedArgument>& vecArgument)
{
    if (vecArgument.empty())
        return;
    out << "            case $2 in\n";
    for (std::size_t n = 0; n < vecArgument.size(); ++n)
        out << "                " << (vecArgument[n].bRepeated ? "*" : std::to_string(n))
            << ") argument='" << Kind(vecArgument[n].value) << "' ;;\n";
    out << "            esac\n";
}

void WriteCommands(std::ostream& out, const std::vector<CompletedCommand>& vecCommand)
{
    out << "\n# _kzekamok_command COMMAND COUNT: sets options to those of the command, and "
           "argument "
           "to what\n# follows so many arguments, if anything does.\n"
           "_kzekamok_command()\n{\n    options= argument=\n    case $1 in\n";
    for (const CompletedCommand& command : vecCommand) {
        out << "        " << (command.strName.empty() ? "''" : command.strName)
            << ")\n            options='";
        const char* szBetween = "";
        for (const CompletedOption& option : command.vecOption)
            for (const std::string& strName : option.vecName) {
                out << szBetween << strName;
                szBetween = " ";
            }
        out << "'\n";
        if (command.strName.empty())
            WriteProgram(out, vecCommand);
        WriteArguments(out, command.vecArgument);
        out << "            ;;\n";
    }
    out << "    esac\n}\n";
}

}  // namespace

void WriteBashCompletion(std::ostream& out, const std::vector<CompletedCommand>& vecCommand)
{
    out << HEAD;
    WriteCodes(out);
    WriteValues(out, vecCommand);
    WriteCommands(out, vecCommand);
    out << REPLY;
}

}  // namespace host

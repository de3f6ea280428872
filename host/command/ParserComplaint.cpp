#include "command/ParserComplaint.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

#include "base/Language.h"
#include "base/SafeText.h"

namespace host {
namespace {

constexpr Text NO_SUBCOMMAND = {"a subcommand is missing; there are {1}",
                                "サブコマンドを指定してください：{1}"};
constexpr Text UNKNOWN_SUBCOMMAND = {"{1} is no subcommand; there are {2}",
                                     "{1} というサブコマンドはありません。使えるもの：{2}"};
constexpr Text UNKNOWN_OPTION = {"there is no option {1} here",
                                 "{1} というオプションはここでは使えません"};
constexpr Text UNEXPECTED = {"unexpected argument: {1}", "余分な引数があります：{1}"};
constexpr Text MISSING = {"{1} is missing", "{1} を指定してください"};
constexpr Text NO_VALUE = {"{1} needs a value", "{1} に値を指定してください"};
constexpr Text TWICE = {"{1} is given more than once", "{1} は1回だけ指定してください"};
constexpr Text NOT_IN_SET = {"{1} {2}: has to be one of {3}",
                             "{1} {2}：次のどれかにしてください：{3}"};
constexpr Text NOT_IN_RANGE = {"{1} {2}: has to be a number from {3} to {4}",
                               "{1} {2}：{3}から{4}までの数にしてください"};
constexpr Text NO_NUMBER = {"{1} {2}: has to be a number", "{1} {2}：数を指定してください"};
constexpr Text EXCLUDES = {"{1} and {2} can't be given together",
                           "{1} と {2} は同時に指定できません"};
constexpr Text NEEDS = {"{1} needs {2}", "{1} には {2} も必要です"};
constexpr Text SEPARATOR = {", ", "、"};

/// The texts between the given ones, which have to stand in this order: the first at the very
/// beginning if it isn't empty, the last at the end. Nothing for a text of another form.
std::optional<std::vector<std::string>> Between(std::string_view strText,
                                                const std::vector<std::string_view>& vecFixed)
{
    std::vector<std::string> vecPart;
    if (!strText.starts_with(vecFixed.front()))
        return std::nullopt;
    strText.remove_prefix(vecFixed.front().size());
    for (std::size_t n = 1; n < vecFixed.size(); ++n) {
        const bool bLast = n + 1 == vecFixed.size();
        if (bLast && !strText.ends_with(vecFixed[n]))
            return std::nullopt;
        const std::size_t nPlace =
            bLast ? strText.size() - vecFixed[n].size() : strText.find(vecFixed[n]);
        if (nPlace == std::string_view::npos)
            return std::nullopt;
        vecPart.push_back(MakeSafe(strText.substr(0, nPlace)));
        strText.remove_prefix(nPlace + vecFixed[n].size());
    }
    return vecPart;
}

std::string Subcommands(const CLI::App& app)
{
    std::string strNames;
    for (const CLI::App* pCommand : app.get_subcommands([](const CLI::App*) { return true; }))
        strNames += (strNames.empty() ? "" : Say(SEPARATOR)) + pCommand->get_name();
    return strNames;
}

std::string Unexpected(const std::string& strArgument)
{
    return Say(strArgument.starts_with('-') ? UNKNOWN_OPTION : UNEXPECTED, {strArgument});
}

std::string WithoutSubcommand(const CLI::App& app)
{
    const std::vector<std::string> vecLeft = app.remaining();
    if (vecLeft.empty())
        return Say(NO_SUBCOMMAND, {Subcommands(app)});
    if (vecLeft.front().starts_with('-'))
        return Unexpected(MakeSafe(vecLeft.front()));
    return Say(UNKNOWN_SUBCOMMAND, {MakeSafe(vecLeft.front()), Subcommands(app)});
}

/// "{a,b}" as "a, b".
std::string Listed(const std::string& strSet)
{
    std::string strList;
    for (const char c : strSet)
        strList += c == ',' ? std::string(Say(SEPARATOR)) : std::string(1, c);
    return strList;
}

std::string WrongValue(const std::string& strWhat)
{
    if (const auto part = Between(strWhat, {"", ": ", " not in {", "}"}))
        return Say(NOT_IN_SET, {(*part)[0], (*part)[1], Listed((*part)[2])});
    if (const auto part = Between(strWhat, {"", ": Value ", " not in range ", " to ", ""}))
        return Say(NOT_IN_RANGE, {(*part)[0], (*part)[1], (*part)[2], (*part)[3]});
    return MakeSafe(strWhat);
}

std::string WrongCount(const std::string& strWhat)
{
    if (const auto part = Between(strWhat, {"", ": 1 required ", " missing"}))
        return Say(NO_VALUE, {(*part)[0]});
    if (const auto part = Between(strWhat, {"", ": At Most 1 required but received ", ""}))
        return Say(TWICE, {(*part)[0]});
    return MakeSafe(strWhat);
}

}  // namespace

std::string ComplaintOf(const CLI::App& app, const CLI::ParseError& error)
{
    const std::string strWhat = error.what();
    const std::string strName = error.get_name();
    if (strWhat == "A subcommand is required")
        return WithoutSubcommand(app);
    if (const auto part = Between(strWhat, {"", " is required"});
        part && strName == "RequiredError")
        return Say(MISSING, {(*part)[0]});
    if (const auto part = Between(strWhat, {"The following argument", " not expected: ", ""}))
        return Unexpected((*part)[1]);
    if (strName == "ValidationError")
        return WrongValue(strWhat);
    if (strName == "ArgumentMismatch")
        return WrongCount(strWhat);
    if (const auto part = Between(strWhat, {"Could not convert: ", " = ", ""}))
        return Say(NO_NUMBER, {(*part)[0], (*part)[1]});
    if (const auto part = Between(strWhat, {"", " excludes ", ""});
        part && strName == "ExcludesError")
        return Say(EXCLUDES, {(*part)[0], (*part)[1]});
    if (const auto part = Between(strWhat, {"", " requires ", ""});
        part && strName == "RequiresError")
        return Say(NEEDS, {(*part)[0], (*part)[1]});
    return MakeSafe(strWhat);
}

}  // namespace host

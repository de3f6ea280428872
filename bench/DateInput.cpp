// The input of the date measurements: seven era dates a record, with every date check in play.
#include <array>
#include <string>

#include "BenchInput.h"

namespace BenchInput {

namespace {

/// A date group and the checks of its era column.
struct DateGroup
{
    const char* szColumn;
    const char* szChecks;
};

constexpr std::array<DateGroup, 7> GROUPS = {{
    {"2", R"(<valid id="existdate"/><valid id="existdate_2"/><valid id="onward" value="19890108"/>)"
          R"(<valid id="compdate" min="19890108"/>)"},
    {"6", R"(<valid id="rangedate" min="****0101" max="****1231"/>)"
          R"(<valid id="rangedate_4" min="19890108" max="20301231"/>)"},
    {"10",
     R"(<valid id="rangedate_2" min="19890108" max="2"/><valid id="rangedate_3" value="2"/>)"},
    {"14", R"(<valid id="equalyear" value="2"/><valid id="containyear" value="2017 2018"/>)"},
    {"18", R"(<valid id="rangebasedate" min="2" max="6"/>)"
           R"(<valid id="rangebasedate_2" value="include" min="2" max="6"/>)"},
    {"22", R"(<valid id="existdate"/><valid id="age" value="22 2 0 1 1" min="20" max="60"/>)"},
    {"26", R"(<valid id="existdateYYYYMMDD" value="27 28 29"/>)"},
}};

/// All dates are the same day; the sixth is a birth date, the last a Western one.
constexpr const char* RECORD =
    "001,4,30,6,15,4,30,6,15,4,30,6,15,4,30,6,15,4,30,6,15,3,50,6,15,"
    "x,2018,6,15,\r\n";

}  // namespace

std::string DateReportText()
{
    std::string strText = R"(<report id="001" columnNum="30" procId="PGE5010" procVR="1.0")"
                          R"( reportId="GEZ001" reportVR="1.0">)";
    for (const DateGroup& group : GROUPS)
        strText += std::string(R"(<item id="GEZ001D" parent="GEZ001" type="Normal" column=")") +
                   group.szColumn + R"(">)" + group.szChecks + "</item>\n";
    return strText + "</report>";
}

std::string DateCsvText(std::size_t nRecords)
{
    std::string strText;
    for (std::size_t i = 0; i < nRecords; ++i)
        strText += RECORD;
    return strText;
}

}  // namespace BenchInput

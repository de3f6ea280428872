#include "report/HtmlText.h"

#include "base/SafeText.h"

namespace host {

std::string HtmlText(std::string_view strText)
{
    return HtmlOwnText(MakeSafe(strText));
}

std::string HtmlOwnText(std::string_view strText)
{
    std::string strOut;
    strOut.reserve(strText.size());
    for (const char c : strText) {
        switch (c) {
            case '&':
                strOut += "&amp;";
                break;
            case '<':
                strOut += "&lt;";
                break;
            case '>':
                strOut += "&gt;";
                break;
            case '"':
                strOut += "&quot;";
                break;
            case '\'':
                strOut += "&#39;";
                break;
            case '\n':
                strOut += "&#10;";
                break;
            default:
                strOut += c;
        }
    }
    return strOut;
}

}  // namespace host

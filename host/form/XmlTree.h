// An XML file as elements that know their lines, for display and for finding mistakes.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

struct XmlElement
{
    std::string strName;
    std::map<std::string, std::string, std::less<>> mapAttribute;  ///< in UTF-8
    long lLine = 0;  ///< of the start tag's end, from 1
    std::vector<XmlElement> vecChild;

    /// Empty for an attribute that isn't there.
    const std::string& Attribute(std::string_view strAttribute) const;
    bool Has(std::string_view strAttribute) const;
};

/// Why a file isn't XML.
struct XmlProblem
{
    std::string strMessage;  ///< the parser's own, in English
    long lLine = 0;          ///< 0 if it isn't known
    bool bDoctype = false;   ///< a document type declaration is what is wrong
};

struct XmlFile
{
    std::optional<XmlElement> root;  ///< nothing if the file can't be read or parsed
    XmlProblem problem;
    long lPrologLine = 0;  ///< of the first comment or processing instruction before the root; 0
                           ///< if there is none
};

/// Nothing outside the file is ever fetched. Elements nested too deeply are a problem.
XmlFile ReadXmlFile(const std::string& strPath);

}  // namespace host

// A parameter that lists texts.
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Texts separated by blanks, in UTF-8 as the definition files have them.
class TokenList
{
public:
    void Set(const char* szParameter);

    /// The parameter isn't empty; a list of blanks only is given and holds nothing.
    bool IsGiven() const { return !m_strText.empty(); }
    bool Contains(std::string_view strText) const;
    /// The same for a cell or argument in the encoding of the check flag.
    bool ContainsCell(const char* szCell) const;

private:
    std::string m_strText;  ///< as given
    std::vector<std::string> m_vecToken;
};

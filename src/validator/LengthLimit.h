// The two parameters of the length checks.
#pragma once

#include <optional>
#include <string>

/// An exact length, or a largest one if no exact length is given.
class LengthLimit
{
public:
    void Set(const char* szValue, const char* szMax);
    /// Nothing if neither parameter is given: a fault of the definition.
    std::optional<bool> Allows(long lLength) const;

private:
    std::string m_strValue;  ///< as given
    std::string m_strMax;
    long m_lExact = 0;
    long m_lMax = 0;
};

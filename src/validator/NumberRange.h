// The limits of the range checks.
#pragma once

#include <string>

/// From min to max, both inclusive. A limit that is left out is 0, not infinity.
class NumberRange
{
public:
    void Set(const char* szMin, const char* szMax);

    /// Both limits are numbers or left out; otherwise the definition is at fault.
    bool HasNumbers() const { return m_bNumbers; }
    /// min is not above max; otherwise the definition is at fault.
    bool IsOrdered() const { return m_lMin <= m_lMax; }
    bool Contains(long lNumber) const { return m_lMin <= lNumber && lNumber <= m_lMax; }

    /// A number that the range checks can look at; false for null and the empty text.
    static bool IsNumber(const char* szText);

private:
    std::string m_strMin;  ///< as given
    std::string m_strMax;
    long m_lMin = 0;
    long m_lMax = 0;
    bool m_bNumbers = true;
};

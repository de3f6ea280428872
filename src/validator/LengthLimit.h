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
    std::optional<long> m_lExact;
    std::optional<long> m_lMax;
};

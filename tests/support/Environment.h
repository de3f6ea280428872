// A variable of the process environment.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

/// Sets a variable, or takes it away, for as long as the object lives.
class Environment
{
public:
    /// \param szName  Looked at until destruction: a literal.
    /// \param value  Nothing takes the variable away.
    Environment(const char* szName, const std::optional<std::string>& value) : m_szName(szName)
    {
        if (const char* szBefore = std::getenv(szName))
            m_before = szBefore;
        Put(value);
    }
    ~Environment() { Put(m_before); }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    void Put(const std::optional<std::string>& value) const
    {
        if (value)
            ::setenv(m_szName, value->c_str(), 1);
        else
            ::unsetenv(m_szName);
    }

    const char* m_szName;
    std::optional<std::string> m_before;
};

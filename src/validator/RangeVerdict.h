// The code of KZCMacOSNative::rangeDate, read.
#pragma once

/// What KZCMacOSNative::rangeDate found, taken apart.
class RangeVerdict
{
public:
    explicit RangeVerdict(long lCode) : m_lCode(lCode) {}

    long Code() const { return m_lCode; }
    /// The value was placed against at least one bound.
    bool IsPlaced() const { return m_lCode >= 0; }
    bool HasNoBound() const { return m_lCode == NO_BOUND; }
    bool IsBeforeMin() const { return IsPlaced() && (m_lCode & LOW) == BEFORE; }
    bool IsAtMin() const { return IsPlaced() && (m_lCode & LOW) == 0; }
    bool IsAfterMax() const { return IsPlaced() && (m_lCode & HIGH) == AFTER_MAX; }
    bool IsAtMax() const { return IsPlaced() && (m_lCode & HIGH) == 0; }

    /// Logs what keeps the value from being in range, if anything does.
    void LogFailure(const char* szFunction) const;

private:
    static constexpr long LOW = 0x0F;
    static constexpr long HIGH = 0xF0;
    static constexpr long BEFORE = 2;
    static constexpr long AFTER_MAX = 0x10;
    static constexpr long NO_BOUND = -5;

    long m_lCode;
};

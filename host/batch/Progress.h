// How far a batch is, how fast it goes, how long it takes still.
#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>

namespace host {

/// Times are seconds of any clock that never goes back.
class Progress
{
public:
    /// \param nTotal  Files to do.
    /// \param dNow  When the work began.
    Progress(std::size_t nTotal, double dNow);

    /// Another file is done.
    void Advance(double dNow);

    std::size_t Done() const { return m_nDone; }
    /// Files in a second, over the last RATE_SECONDS; nothing before the first file.
    std::optional<double> Rate(double dNow) const;
    /// Nothing as long as it can't be told.
    std::optional<double> SecondsLeft(double dNow) const;
    /// Such as "120 of 1000 files, 431 files/s, 2 s left".
    std::string Line(double dNow) const;

    static constexpr double RATE_SECONDS = 20;

private:
    struct Mark
    {
        double dTime;
        std::size_t nDone;
    };

    std::size_t m_nTotal;
    std::size_t m_nDone = 0;
    std::deque<Mark> m_listMark;  ///< one a second at most, the first at or before the window
};

/// In the program's language: "0.4", "12", "3400".
std::string RateText(double dRate);
/// Such as "8 s", "2 min 5 s", "3 h 20 min".
std::string DurationText(double dSeconds);

}  // namespace host

#include "batch/Progress.h"

#include <array>
#include <cmath>
#include <cstdio>

#include "base/Language.h"

namespace host {
namespace {

constexpr double SECONDS_BETWEEN_MARKS = 1;
constexpr double SECONDS_BEFORE_A_GUESS = 1;
constexpr double RATE_WITHOUT_DECIMALS = 10;
constexpr long MINUTE = 60;
constexpr long HOUR = 60 * MINUTE;

}  // namespace

Progress::Progress(std::size_t nTotal, double dNow) : m_nTotal(nTotal), m_listMark{{dNow, 0}} {}

void Progress::Advance(double dNow)
{
    ++m_nDone;
    if (dNow - m_listMark.back().dTime < SECONDS_BETWEEN_MARKS)
        return;
    m_listMark.push_back({dNow, m_nDone});
    while (m_listMark.size() > 2 && m_listMark[1].dTime <= dNow - RATE_SECONDS)
        m_listMark.pop_front();
}

std::optional<double> Progress::Rate(double dNow) const
{
    const Mark& start = m_listMark.front();
    const double dSeconds = dNow - start.dTime;
    if (m_nDone == 0 || dSeconds <= 0)
        return std::nullopt;
    return static_cast<double>(m_nDone - start.nDone) / dSeconds;
}

std::optional<double> Progress::SecondsLeft(double dNow) const
{
    const auto dRate = Rate(dNow);
    if (!dRate || *dRate <= 0 || dNow - m_listMark.front().dTime < SECONDS_BEFORE_A_GUESS)
        return std::nullopt;
    return static_cast<double>(m_nTotal - m_nDone) / *dRate;
}

std::string Progress::Line(double dNow) const
{
    std::string strLine = Say({"{1} of {2} files", "{2}件中{1}件"},
                              {std::to_string(m_nDone), std::to_string(m_nTotal)});
    if (const auto dRate = Rate(dNow))
        strLine += Say({", {1} files/s", "、毎秒{1}件"}, {RateText(*dRate)});
    if (const auto dLeft = SecondsLeft(dNow))
        strLine += Say({", {1} left", "、残り{1}"}, {DurationText(*dLeft)});
    return strLine;
}

std::string RateText(double dRate)
{
    std::array<char, 32> szText{};
    std::snprintf(szText.data(), szText.size(), dRate < RATE_WITHOUT_DECIMALS ? "%.1f" : "%.0f",
                  dRate);
    return szText.data();
}

std::string DurationText(double dSeconds)
{
    const long lSeconds = std::lround(std::ceil(dSeconds));
    const std::string strSeconds = std::to_string(lSeconds % MINUTE);
    const std::string strMinutes = std::to_string(lSeconds % HOUR / MINUTE);
    if (lSeconds < MINUTE)
        return Say({"{1} s", "{1}秒"}, {strSeconds});
    if (lSeconds < HOUR)
        return Say({"{1} min {2} s", "{1}分{2}秒"}, {strMinutes, strSeconds});
    return Say({"{1} h {2} min", "{1}時間{2}分"}, {std::to_string(lSeconds / HOUR), strMinutes});
}

}  // namespace host

#include "calendar/Clock.h"

namespace Clock {

namespace {

std::optional<std::time_t>& SetTime()
{
    static std::optional<std::time_t> time;
    return time;
}

}  // namespace

std::time_t Now()
{
    return SetTime() ? *SetTime() : std::time(nullptr);
}

void Set(std::optional<std::time_t> time)
{
    SetTime() = time;
}

}  // namespace Clock

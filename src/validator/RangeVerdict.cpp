#include "RangeVerdict.h"

#include <array>

#include "KZCDebugDump.h"

void RangeVerdict::LogFailure(const char* szFunction) const
{
    constexpr std::array<const char*, 6> TEXTS = {nullptr,
                                                  "szValueの値が範囲外です。",
                                                  "szValueが実在しない日です。",
                                                  "szMinが実在しない日です。",
                                                  "szMaxが実在しない日です。",
                                                  "チェック範囲が指定されていません。"};
    if (IsBeforeMin() || IsAfterMax())
        KZCDebugDump::Log(szFunction, TEXTS[1]);
    else if (!IsPlaced())
        KZCDebugDump::Log(szFunction, TEXTS[static_cast<std::size_t>(-m_lCode)]);
}

// The message catalogue: the one definition of every message code and text.
#pragma once

#include <cstdint>
#include <string_view>

/// A message of the catalogue. The value is the row's index in EkaMsgTable; 0 means "no message".
enum KZCEkaMessage_t : std::int32_t
{
    MSG_NONE = 0,
    HE70001E,
    HE70002E,
    HE70003E,
    HE70004E,
    HE70005E,
    HE70006E,
    HE70007E,
    HE70008E,
    HE70009E,
    HE70010E,
    HE70011E,
    HE70012E,
    HE70013E,
    HE70014E,
    HE70015E,
    HE70016E,
    HE70017E,
    HE70018E,
    HE70019E,
    HE70020E,
    HE70021E,
    HE70022E,
    HE70023E,
    HE70024E,
    HE70025E,
    HE70026E,
    HE70027E,
    HE70028E,
    HE70029E,
    HE70030E,
    HE70031E,
    HE70032E,
    HE70033E,
    HE70034E,
    HE70035E,
    HE99999E,
};

/// One row of the catalogue.
struct EkaMsgRow
{
    KZCEkaMessage_t eMessage;
    const char* szCode;  ///< empty in row 0
    const char* szText;  ///< Japanese, UTF-8
};

inline constexpr int EKA_MSG_COUNT = 37;

extern const EkaMsgRow EkaMsgTable[EKA_MSG_COUNT];

/// The row whose code equals strCode exactly, or MSG_NONE for the empty text and for unknown codes.
KZCEkaMessage_t FindEkaMessage(std::string_view strCode);

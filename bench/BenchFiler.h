// The filer of the measured conversions, as the arguments of a request name him.
#pragma once

namespace BenchFiler {

inline constexpr const char* ZEIMUSHO_CD = "90101";
inline constexpr const char* NOZEISHA_ID = "1234567890123456";
inline constexpr const char* KOJIN_BANGO = "";
inline constexpr const char* HOJIN_BANGO = "1234567890123";
inline constexpr const char* NOZEISHA_NM = "株式会社青葉商事";
inline constexpr const char* NOZEISHA_ADR = "青葉市中央一丁目二番三号";
inline constexpr const char* DAIHYO_NM = "山田　太郎";
inline constexpr const char* DAIRI_ID = "";
inline constexpr const char* DAIRI_NM = "";
inline constexpr const char* DAIRI_ADR = "";
inline constexpr const char* TETSUZUKI = "PGE5020";
inline constexpr const char* SOFT_NAME = "bench";
// Of the Finance family alone.
inline constexpr const char* TEISHUTSU_ERA = "5";
inline constexpr const char* TEISHUTSU_YEAR = "7";
inline constexpr const char* TEISHUTSU_MONTH = "1";
inline constexpr const char* TEISHUTSU_DAY = "31";
inline constexpr const char* NOZEISHA_ZIP1 = "123";
inline constexpr const char* NOZEISHA_ZIP2 = "4567";

}  // namespace BenchFiler

#pragma once

#include "KZCEkaValidItem.h"

/// Passes a number with the right check digit. The parameter is its kind: "kojin", "kojin2" (the
/// same behind one more character), "hojin", "seiri".
class KZCEkaValidCheckDigit final : public KZCEkaValidItem
{
public:
    using KZCEkaValidItem::KZCEkaValidItem;
    void SetParam(const char* szValue);

    /// MSG_NONE, HE70008E for a wrong length, HE70010E for a wrong check digit.
    static KZCEkaMessage_t CheckDijit_Kojin(std::string_view strNumber);
    static KZCEkaMessage_t CheckDijit_Hojin(std::string_view strNumber);
    static KZCEkaMessage_t CheckDijit_Seiri(std::string_view strNumber);

private:
    KZCEkaMessage_t _validate(const char* szValue) override;

    std::string m_strValue;
};

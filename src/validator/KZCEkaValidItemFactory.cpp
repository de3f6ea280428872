// Turns the keywords of definition files and of the argument table into check items.
#include <algorithm>
#include <array>
#include <string_view>

#include "CText.h"
#include "KZCDebugDump.h"
#include "validator/KZCEkaValidAge.h"
#include "validator/KZCEkaValidAlnum.h"
#include "validator/KZCEkaValidAlnumsbl.h"
#include "validator/KZCEkaValidAlphabet.h"
#include "validator/KZCEkaValidAnyContain.h"
#include "validator/KZCEkaValidAnyExist.h"
#include "validator/KZCEkaValidCharlength.h"
#include "validator/KZCEkaValidCheckDigit.h"
#include "validator/KZCEkaValidCompDate.h"
#include "validator/KZCEkaValidContain.h"
#include "validator/KZCEkaValidContainColumn.h"
#include "validator/KZCEkaValidContainYear.h"
#include "validator/KZCEkaValidDigitEquality.h"
#include "validator/KZCEkaValidEmpty.h"
#include "validator/KZCEkaValidEqualyear.h"
#include "validator/KZCEkaValidExcept.h"
#include "validator/KZCEkaValidExceptColumn.h"
#include "validator/KZCEkaValidExist.h"
#include "validator/KZCEkaValidExistDateYYYYMMDD.h"
#include "validator/KZCEkaValidExist_2.h"
#include "validator/KZCEkaValidExistdate.h"
#include "validator/KZCEkaValidExistdate_2.h"
#include "validator/KZCEkaValidExistpath.h"
#include "validator/KZCEkaValidExtension.h"
#include "validator/KZCEkaValidIstring.h"
#include "validator/KZCEkaValidItem.h"
#include "validator/KZCEkaValidLength.h"
#include "validator/KZCEkaValidLvystring.h"
#include "validator/KZCEkaValidMultibyte.h"
#include "validator/KZCEkaValidMultikana.h"
#include "validator/KZCEkaValidMultikana_2.h"
#include "validator/KZCEkaValidNonerr.h"
#include "validator/KZCEkaValidNumber.h"
#include "validator/KZCEkaValidOnward.h"
#include "validator/KZCEkaValidRange.h"
#include "validator/KZCEkaValidRangebasedate.h"
#include "validator/KZCEkaValidRangebasedate_2.h"
#include "validator/KZCEkaValidRangedate.h"
#include "validator/KZCEkaValidRangedate_2.h"
#include "validator/KZCEkaValidRangedate_3.h"
#include "validator/KZCEkaValidRangedate_4.h"
#include "validator/KZCEkaValidTaxoffice.h"
#include "validator/KZCEkaValidTaxofficenm.h"

namespace {

using ItemPtr = std::unique_ptr<KZCEkaValidItem>;

struct ItemParam
{
    const char* szValue;
    const char* szMin;
    const char* szMax;
};

constexpr auto VALUE = &ItemParam::szValue;
constexpr auto MIN = &ItemParam::szMin;
constexpr auto MAX = &ItemParam::szMax;

/// Makes an Item and hands SetParam the attributes that its row names, in that order.
template <class Item, const char* ItemParam::*... pParam>
ItemPtr Make(long lColumn, KZCEkaMessage_t eMessage, [[maybe_unused]] const ItemParam& param)
{
    auto pItem = std::make_unique<Item>(lColumn, eMessage);
    if constexpr (sizeof...(pParam) > 0)
        pItem->SetParam(param.*pParam...);
    return pItem;
}

struct ItemKeyword
{
    std::string_view strKeyword;
    ItemPtr (*pMake)(long lColumn, KZCEkaMessage_t eMessage, const ItemParam& param);
};

/// The one place where a keyword meets its class and its attributes. An attribute that a row
/// doesn't name is dropped.
constexpr auto ITEM_KEYWORDS = std::to_array<ItemKeyword>({
    {"alnum", Make<KZCEkaValidAlnum>},
    {"charlength", Make<KZCEkaValidCharlength, VALUE, MAX>},
    {"contain", Make<KZCEkaValidContain, VALUE>},
    {"containcolumn", Make<KZCEkaValidContainColumn, VALUE, MIN, MAX>},
    {"containyear", Make<KZCEkaValidContainYear, VALUE>},
    {"empty", Make<KZCEkaValidEmpty>},
    {"equalyear", Make<KZCEkaValidEqualyear, VALUE, MIN, MAX>},
    {"lvystring", Make<KZCEkaValidLvystring, VALUE>},
    {"except", Make<KZCEkaValidExcept, VALUE>},
    {"exist", Make<KZCEkaValidExist>},
    {"existdate", Make<KZCEkaValidExistdate>},
    {"existdate_2", Make<KZCEkaValidExistdate_2>},
    {"existpath", Make<KZCEkaValidExistpath, VALUE>},
    {"extension", Make<KZCEkaValidExtension, VALUE>},
    {"istring", Make<KZCEkaValidIstring>},
    {"length", Make<KZCEkaValidLength, VALUE, MAX>},
    {"multibyte", Make<KZCEkaValidMultibyte>},
    {"multikana", Make<KZCEkaValidMultikana>},
    {"multikana_2", Make<KZCEkaValidMultikana_2>},
    {"nonerr", Make<KZCEkaValidNonerr, VALUE, MIN>},
    {"number", Make<KZCEkaValidNumber>},
    {"onward", Make<KZCEkaValidOnward, VALUE>},
    {"range", Make<KZCEkaValidRange, MIN, MAX>},
    {"rangebasedate", Make<KZCEkaValidRangebasedate, VALUE, MIN, MAX>},
    {"rangebasedate_2", Make<KZCEkaValidRangebasedate_2, VALUE, MIN, MAX>},
    {"rangedate", Make<KZCEkaValidRangedate, MIN, MAX>},
    {"rangedate_2", Make<KZCEkaValidRangedate_2, MIN, MAX>},
    {"rangedate_3", Make<KZCEkaValidRangedate_3, VALUE>},
    {"taxoffice", Make<KZCEkaValidTaxoffice>},
    {"taxofficenm", Make<KZCEkaValidTaxofficenm>},
    {"age", Make<KZCEkaValidAge, VALUE, MIN, MAX>},
    {"checkdigit", Make<KZCEkaValidCheckDigit, VALUE>},
    {"digitequality", Make<KZCEkaValidDigitEquality, VALUE, MIN, MAX>},
    {"exceptcolumn", Make<KZCEkaValidExceptColumn, VALUE, MIN, MAX>},
    {"compdate", Make<KZCEkaValidCompDate, VALUE, MIN, MAX>},
    {"exist_2", Make<KZCEkaValidExist_2>},
    {"rangedate_4", Make<KZCEkaValidRangedate_4, MIN, MAX>},
    {"alphabet", Make<KZCEkaValidAlphabet>},
    {"anycontain", Make<KZCEkaValidAnyContain, VALUE, MIN, MAX>},
    {"anyexist", Make<KZCEkaValidAnyExist, VALUE>},
    {"alnumsbl", Make<KZCEkaValidAlnumsbl>},
    {"existdateYYYYMMDD", Make<KZCEkaValidExistDateYYYYMMDD, VALUE>},
});

constexpr bool HasNoRepeatedKeyword()
{
    for (std::size_t nFirst = 0; nFirst < ITEM_KEYWORDS.size(); ++nFirst)
        for (std::size_t nSecond = nFirst + 1; nSecond < ITEM_KEYWORDS.size(); ++nSecond)
            if (ITEM_KEYWORDS[nFirst].strKeyword == ITEM_KEYWORDS[nSecond].strKeyword)
                return false;
    return true;
}

static_assert(HasNoRepeatedKeyword());

}  // namespace

std::unique_ptr<KZCEkaValidItem> KZCEkaValidItem::CreateItem(long lColumn,
                                                             const char* szId,
                                                             const char* szValue,
                                                             const char* szMin,
                                                             const char* szMax,
                                                             KZCEkaMessage_t eMessage)
{
    constexpr const char* FUNCTION = "KZCEkaValidItem::CreateItem";
    constexpr std::size_t MESSAGE_BUFFER_SIZE = 200;
    if (szId == nullptr || szValue == nullptr || szMin == nullptr || szMax == nullptr) {
        KZCDebugDump::Log(FUNCTION, "引数エラー。チェックパラメータ情報が不正です。");
        return nullptr;
    }
    const auto* pKeyword = std::ranges::find(ITEM_KEYWORDS, szId, &ItemKeyword::strKeyword);
    if (pKeyword == ITEM_KEYWORDS.end()) {
        const std::string strMessage = CText::CutToBuffer(
            std::string("不明なValidのidが指定されています。 ") + szId, MESSAGE_BUFFER_SIZE);
        KZCDebugDump::Log(FUNCTION, strMessage.c_str());
        return nullptr;
    }
    return pKeyword->pMake(lColumn, eMessage, {szValue, szMin, szMax});
}

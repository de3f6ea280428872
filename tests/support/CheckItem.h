// Makes check items, runs them, and tells all that they left behind as one text.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <set>
#include <stdexcept>
#include <string>

#include "EkaMsgTable.h"
#include "KZCValidResult.h"
#include "fault/Fault.h"
#include "validator/KZCEkaValidItem.h"

/// The text of a check that passes, refuses without a record, or raises FAULT.
inline constexpr const char* PASSES = "passes";
inline constexpr const char* REFUSES = "refuses";
inline constexpr const char* RAISES = "raises";

/// Argument number under which the tests check bare values.
inline constexpr long ARGUMENT_NUMBER = 3;

/// Keyword and parameters of an item; absent ones are empty.
struct ItemText
{
    const char* szId = "";
    const char* szValue = "";
    const char* szMin = "";
    const char* szMax = "";
};

/// The item of a keyword that the factory knows.
inline std::unique_ptr<KZCEkaValidItem> MakeItem(const ItemText& text,
                                                 long lColumn = -1,
                                                 KZCEkaMessage_t eMessage = MSG_NONE)
{
    auto pItem = KZCEkaValidItem::CreateItem(lColumn, text.szId, text.szValue, text.szMin,
                                             text.szMax, eMessage);
    if (!pItem)
        throw std::invalid_argument(std::string("unknown keyword ") + text.szId);
    return pItem;
}

/// "passes", "refuses" or "raises", and behind it, if the result store holds anything, the detail
/// table. Empties the store.
template <class Check>
std::string Told(Check check)
{
    std::string strTold;
    try {
        const int nStatus = check();
        if (nStatus == STATUS_OK)
            strTold = PASSES;
        else if (nStatus == STATUS_NG)
            strTold = REFUSES;
        else
            strTold = "gives " + std::to_string(nStatus);
    } catch (int nThrown) {
        strTold = nThrown == FAULT ? RAISES : "throws " + std::to_string(nThrown);
    }
    if (!KZCValidResult::instance()->IsEmpty())
        strTold += " " + KZCValidResult::instance()->MakeResult();
    return strTold;
}

/// A bare value, as an argument of the call.
inline std::string OnValue(KZCEkaValidItem& item, const char* szValue)
{
    return Told([&] { return item.Validate(szValue, ARGUMENT_RECORD, ARGUMENT_NUMBER); });
}

/// A record of a CSV file.
inline std::string OnRecord(KZCEkaValidItem& item,
                            const KZCEkaCsvFile& csv,
                            long lRow = 0,
                            long lColumn = -1)
{
    return Told([&] { return item.ValidateCsv(&csv, lRow, lColumn); });
}

/// A record of a CSV file, the item being a condition.
inline std::string AsCondition(KZCEkaValidItem& item,
                               const KZCEkaCsvFile& csv,
                               long lRow = 0,
                               long lColumn = -1)
{
    return Told([&] { return item.ValidateOuter(&csv, lRow, lColumn); });
}

/// A bare value, the item being a condition.
inline std::string AsCondition(KZCEkaValidItem& item, const char* szValue)
{
    return Told([&] { return item.ValidateOuter(szValue); });
}

/// Code of a message, spelled by the rule of the codes and not by the catalogue.
inline std::string CodeOf(KZCEkaMessage_t eMessage)
{
    constexpr int LAST_IN_SEQUENCE = 35;
    if (eMessage > LAST_IN_SEQUENCE)
        return "HE99999E";
    const std::string strNumber = std::to_string(static_cast<int>(eMessage));
    return "HE70" + std::string(3 - strNumber.size(), '0') + strNumber + "E";
}

/// What OnValue tells of a refusal with this code, or of a pass for MSG_NONE.
inline std::string Verdict(KZCEkaMessage_t eMessage)
{
    return eMessage == MSG_NONE ? PASSES : "refuses 9999-00003-" + CodeOf(eMessage);
}

/// One bare value and the message of its refusal, MSG_NONE if it passes.
struct ValueCase
{
    const char* szName;
    const char* szValue;
    KZCEkaMessage_t eRefusal;
};

/// One item and one bare value, and the message of its refusal, MSG_NONE if it passes.
struct ItemValueCase
{
    const char* szName;
    ItemText text;
    const char* szValue;
    KZCEkaMessage_t eRefusal;
};

inline void PrintTo(const ValueCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

inline void PrintTo(const ItemValueCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

/// Names the instances of a table by their rows' names.
struct CaseName
{
    template <class Info>
    std::string operator()(const Info& info) const
    {
        return info.param.szName;
    }
};

/// Every byte that an item accepts as a value of one byte, in order.
inline std::string AcceptedBytes(KZCEkaValidItem& item)
{
    item.SetErrOutput(false);
    std::string strAccepted;
    for (int n = 1; n <= 0xff; ++n) {
        const std::string strValue(1, static_cast<char>(n));
        if (item.Validate(strValue.c_str(), ARGUMENT_RECORD, ARGUMENT_NUMBER) == STATUS_OK)
            strAccepted += strValue;
    }
    return strAccepted;
}

/// Two bytes of a text as a big-endian code.
inline unsigned PairCode(const std::string& strText, std::size_t nOffset)
{
    return static_cast<unsigned char>(strText[nOffset]) * 0x100u +
           static_cast<unsigned char>(strText[nOffset + 1]);
}

/// Every code that an item accepts as a value of two bytes.
inline std::set<unsigned> AcceptedPairs(KZCEkaValidItem& item)
{
    item.SetErrOutput(false);
    std::set<unsigned> setAccepted;
    for (int nFirst = 1; nFirst <= 0xff; ++nFirst) {
        for (int nSecond = 1; nSecond <= 0xff; ++nSecond) {
            const std::string strValue = {static_cast<char>(nFirst), static_cast<char>(nSecond)};
            if (item.Validate(strValue.c_str(), ARGUMENT_RECORD, ARGUMENT_NUMBER) == STATUS_OK)
                setAccepted.insert(PairCode(strValue, 0));
        }
    }
    return setAccepted;
}

// Check items and their list when memory runs out: at each allocation of a rule in turn. What a
// rule asks may not get out of it: the integer of a fault does, and the log tells why.
#include <gmock/gmock.h>

#include <new>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <utility>

#include "KZCEkaTaxOffices.h"
#include "KZCEkaXDOM.h"
#include "fault/Fault.h"
#include "support/AllocationFault.h"
#include "support/Bundle.h"
#include "support/RecordCase.h"
#include "support/ShiftJisText.h"
#include "support/WholeLog.h"
#include "validator/KZCEkaValidator.h"

namespace {

using AllocationFault::Kind;
using testing::Contains;

/// How a step ends.
constexpr const char* RETURNS = "returns";
constexpr const char* RAISES_FAULT = "raises";
constexpr const char* LETS_OUT = "lets bad_alloc out";

/// The end of the step if its allocation nNumber fails. \param bFailed  It came to that allocation.
template <class Step>
std::string EndOf(Step step, std::size_t nNumber, bool& bFailed)
{
    KZCValidResult::destroy();
    KZCValidResult::instance();
    const char* szEnd = RETURNS;
    AllocationFault::Arm(nNumber, Kind::Once);
    try {
        step();
    } catch (int /*nThrown*/) {
        szEnd = RAISES_FAULT;
    } catch (const std::bad_alloc&) {
        szEnd = LETS_OUT;
    }
    bFailed = AllocationFault::Disarm() >= nNumber;
    return szEnd;
}

/// The ends of the step with each of its allocations failing in turn.
template <class Step>
std::set<std::string> EndsOf(Step step)
{
    std::set<std::string> setEnd;
    bool bFailed = true;
    for (std::size_t nNumber = 1; bFailed; ++nNumber)
        setEnd.insert(EndOf(step, nNumber, bFailed));
    return setEnd;
}

/// The log of the first of these that raises, or nothing if none does.
template <class Step>
std::optional<std::string> LogOfFault(Step step)
{
    bool bFailed = true;
    for (std::size_t nNumber = 1; bFailed; ++nNumber) {
        const DebugLog log;
        if (EndOf(step, nNumber, bFailed) == RAISES_FAULT)
            return WholeLog(log);
    }
    return std::nullopt;
}

class ValidatorFaultFixture : public ResetState
{
protected:
    ValidatorFaultFixture() { KZCEkaTaxOffices::instance()->Initialize(); }

private:
    const Bundle m_bundle;
};

std::string OutOfMemoryIn(const std::string& strClass)
{
    return "[KZCEkaValid" + strClass + "::_validate]\nメモリ確保エラー。\n";
}

// --- rules that see one value ---

struct ValueFaultCase
{
    const char* szName;
    ItemText text;
    const char* szValue;
    bool bShiftJis = false;  ///< during a check
};

void PrintTo(const ValueFaultCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class ValueFaultTest : public ValidatorFaultFixture,
                       public testing::WithParamInterface<ValueFaultCase>
{};

TEST_P(ValueFaultTest, BecomesAFaultThatIsLogged)
{
    KZCEkaCommon::SetCsvCheckFlag(GetParam().bShiftJis);
    const std::string strValue =
        GetParam().bShiftJis ? ToShiftJis(GetParam().szValue) : GetParam().szValue;
    const auto pItem = MakeItem(GetParam().text);
    const auto step = [&] { pItem->ValidateOuter(strValue.c_str()); };
    EXPECT_EQ(EndsOf(step), (std::set<std::string>{RETURNS, RAISES_FAULT}));
    EXPECT_EQ(LogOfFault(step), OutOfMemoryIn(GetParam().szName));
}

constexpr const char* KANA = "あいうえおかきくけこさしすせ";
constexpr const char* LONG_DATE = "昭和64/ 1/ 7 00:00:00";

constexpr ValueFaultCase VALUES[] = {
    {"Charlength", {"charlength", "3"}, KANA},
    {"Multibyte", {"multibyte"}, KANA},
    {"Contain", {"contain", "a b"}, KANA, true},
    {"Except", {"except", "a b"}, KANA, true},
    {"Taxoffice", {"taxoffice"}, "00101001010010100101"},
    {"Existdate", {"existdate"}, LONG_DATE},
    {"Existdate_2", {"existdate_2"}, LONG_DATE},
    {"Rangedate", {"rangedate", "", "20180101", "20181231"}, LONG_DATE},
    {"Rangedate_4", {"rangedate_4", "", "20180101", "20181231"}, LONG_DATE},
    {"Onward", {"onward", "20180101"}, LONG_DATE},
    {"CompDate", {"compdate", "20180101"}, LONG_DATE},
    {"ContainYear", {"containyear", "2018"}, LONG_DATE},
};

INSTANTIATE_TEST_SUITE_P(Keywords, ValueFaultTest, testing::ValuesIn(VALUES), CaseName());

// The conversion that these ask logs an entry of its own and raises the integer; they add one.
TEST_F(ValidatorFaultFixture, AFaultOfTheConversionIsAnEntryOfTheRuleToo)
{
    for (const auto& [szKeyword, szClass] :
         {std::pair("lvystring", "Lvystring"), std::pair("istring", "Istring")}) {
        const auto pItem = MakeItem({szKeyword});
        const auto step = [&] { pItem->ValidateOuter(KANA); };
        EXPECT_EQ(EndsOf(step), (std::set<std::string>{RETURNS, RAISES_FAULT})) << szKeyword;
        const std::string strLog = LogOfFault(step).value_or("");
        const std::string strRule = std::string("[KZCEkaValid") + szClass + "::_validate]\n";
        EXPECT_TRUE(strLog.ends_with(strRule) || strLog == OutOfMemoryIn(szClass)) << strLog;
    }
}

// --- rules that read a record ---

struct RecordFaultCase
{
    const char* szName;
    ItemText text;
    KZCEkaCsvFile::Record record;
    /// What is read before the rule runs may need memory too, and isn't the rule's.
    bool bReadsLongTexts = false;
};

void PrintTo(const RecordFaultCase& testCase, std::ostream* pStream)
{
    *pStream << testCase.szName;
}

class RecordFaultTest : public ValidatorFaultFixture,
                        public testing::WithParamInterface<RecordFaultCase>
{};

TEST_P(RecordFaultTest, BecomesAFaultThatIsLogged)
{
    const TableCsv csv{GetParam().record};
    const auto pItem = MakeItem(GetParam().text, CASE_COLUMN);
    const auto step = [&] { pItem->ValidateOuter(&csv, 0, -1); };
    std::set<std::string> setEnd = EndsOf(step);
    if (GetParam().bReadsLongTexts)
        setEnd.erase(LETS_OUT);
    EXPECT_EQ(setEnd, (std::set<std::string>{RETURNS, RAISES_FAULT}));
    EXPECT_EQ(LogOfFault(step), OutOfMemoryIn(GetParam().szName));
}

const RecordFaultCase RECORDS[] = {
    {"Exist_2", {"exist_2"}, {"006", "x", ""}},
    {"ExistDateYYYYMMDD", {"existdateYYYYMMDD", "3 4 5"}, {"001", "", "2018", "2", "31"}},
    {"Taxofficenm", {"taxofficenm"}, {"001", "紅葉", "00101001010010100101"}},
    {"Equalyear", {"equalyear", "2"}, {"001", "3", "123456"}},
    {"Rangedate_2", {"rangedate_2", "", "20180101", "2"}, {"001", "3", "123456", "1", "1"}, true},
    {"Rangedate_3", {"rangedate_3", "2"}, {"001", "3", "123456", "1", "1"}, true},
    {"Age", {"age", "2 2 0 12 31"}, {"001", "3", "123456", "1", "1"}, true},
    {"Rangebasedate",
     {"rangebasedate", "1_2", "2018/01/01 00:00:00", "2018/12/31 00:00:00"},
     {"001", "3", "64", "1", "1"},
     true},
    {"Rangebasedate_2",
     {"rangebasedate_2", "", "2"},
     {"001", "3", "64", "a long month", "a long day"},
     true},
};

INSTANTIATE_TEST_SUITE_P(Keywords, RecordFaultTest, testing::ValuesIn(RECORDS), CaseName());

TEST_F(ValidatorFaultFixture, NonerrMakesItAFaultThatIsLogged)
{
    const TableCsv csv{{"001"}};
    const auto pItem = MakeItem({"nonerr", "2"}, CASE_COLUMN);
    // The store is new at each step. What it takes to fill it is no matter of the rule's.
    const auto step = [&] {
        KZCValidResult::instance()->SetResult(HE70001E, 1, 3, SINGLE_COLUMN);
        pItem->ValidateOuter(&csv, 0, -1);
    };
    EXPECT_TRUE(EndsOf(step).contains(RAISES_FAULT));
    EXPECT_EQ(LogOfFault(step), OutOfMemoryIn("Nonerr"));
}

// --- the list ---

TEST_F(ValidatorFaultFixture, AListThatCannotBeSetUpFromADefinitionFailsAndIsLogged)
{
    KZCEkaXDOM dom;
    ASSERT_TRUE(dom.Initialize());
    ASSERT_TRUE(
        dom.Parse("<item><valid id=\"length\" value=\"a text of more than fifteen bytes\">"
                  "<outer id=\"exist\" column=\"2\"/></valid></item>",
                  "item", "UTF-8"));
    std::set<std::string> setEnd;
    bool bFailed = true;
    for (std::size_t nNumber = 1; bFailed; ++nNumber) {
        ASSERT_EQ(dom.MoveRoot(), STATUS_OK);
        KZCEkaValidator validator;
        const DebugLog log;
        AllocationFault::Arm(nNumber, Kind::Once);
        const int nStatus = validator.Initialize(1, &dom);
        bFailed = AllocationFault::Disarm() >= nNumber;
        setEnd.insert(nStatus == STATUS_OK ? "set up" : WholeLog(log));
    }
    EXPECT_THAT(setEnd, Contains("set up"));
    EXPECT_THAT(setEnd, Contains("[KZCEkaValidator::Initialize]\n"
                                 "validateの初期処理中にエラーが発生しました。\n"));
}

TEST_F(ValidatorFaultFixture, AListThatCannotBeSetUpFromTheArgumentTableRaisesAndIsLogged)
{
    KZCEkaValidator validator;
    const auto step = [&] { validator.Initialize(ARG_KOJINBANGO, true); };
    EXPECT_EQ(EndsOf(step), (std::set<std::string>{RETURNS, RAISES_FAULT}));
    EXPECT_EQ(LogOfFault(step),
              "[KZCEkaValidator::Initialize]\nvalidateの初期処理中にエラーが発生しました。\n");
}

}  // namespace

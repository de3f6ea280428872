#include "validator/KZCEkaValidTaxoffice.h"

#include "KZCEkaTaxOffices.h"
#include "support/Bundle.h"
#include "support/CheckItem.h"
#include "support/ResetState.h"
#include "support/TableCsv.h"

namespace {

class ValidTaxofficeTest : public ResetState, public testing::WithParamInterface<ValueCase>
{
protected:
    ValidTaxofficeTest() { KZCEkaTaxOffices::instance()->Initialize(); }

private:
    Bundle m_bundle;
};

constexpr ValueCase CASES[] = {
    {"FirstOffice", "00101", MSG_NONE},         {"LastOffice", "00103", MSG_NONE},
    {"OfficeOfAnotherType", "00102", HE70011E}, {"UnknownCode", "99999", HE70011E},
    {"PartOfACode", "0010", HE70011E},          {"SameNumberInOtherDigits", "101", HE70011E},
    {"TrailingBlank", "00101 ", HE70011E},      {"Empty", "", HE70011E},
};

TEST_P(ValidTaxofficeTest, JudgesTheCode)
{
    const auto pItem = MakeItem({"taxoffice"});
    EXPECT_EQ(OnValue(*pItem, GetParam().szValue), Verdict(GetParam().eRefusal));
}

INSTANTIATE_TEST_SUITE_P(Codes, ValidTaxofficeTest, testing::ValuesIn(CASES), CaseName());

class ValidTaxofficeRecordTest : public ResetState
{
protected:
    const Bundle m_bundle;
    const TableCsv m_csv{{"001", "99999"}};
};

TEST_F(ValidTaxofficeRecordTest, ReportsOneColumn)
{
    KZCEkaTaxOffices::instance()->Initialize();
    const auto pItem = MakeItem({"taxoffice"}, 1);
    EXPECT_EQ(OnRecord(*pItem, m_csv), "refuses 0001-00002-HE70011E");
}

TEST_F(ValidTaxofficeRecordTest, RaisesBeforeTheTableHasBeenRead)
{
    const auto pItem = MakeItem({"taxoffice"}, 1);
    EXPECT_EQ(OnRecord(*pItem, m_csv), RAISES);
}

}  // namespace

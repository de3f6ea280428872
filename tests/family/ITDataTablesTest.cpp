#include "family/ITDataTables.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <ostream>
#include <span>
#include <string>
#include <vector>

namespace {

/// A row in plain values; "-" stands for null.
struct Row
{
    std::string strGroup;
    std::string strOwnTag;
    std::string strChildTag;
    int nCheck;
    long lPlain;
    long lEl;

    bool operator==(const Row&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Row& row)
{
    return stream << "{" << row.strGroup << " " << row.strOwnTag << " " << row.strChildTag << " "
                  << row.nCheck << " " << row.lPlain << " " << row.lEl << "}";
}

std::string Text(const char* szText)
{
    return szText != nullptr ? szText : "-";
}

std::vector<Row> Rows(std::span<const ITDataRow> rows)
{
    std::vector<Row> vecRow;
    for (const ITDataRow& row : rows)
        vecRow.push_back({Text(row.szGroup), Text(row.szOwnTag), Text(row.szChildTag), row.eCheck,
                          row.lPublicColumn, row.lPrivateColumn});
    return vecRow;
}

Row Head(const char* szTag)
{
    return {szTag, szTag, "-", 0, -1, -1};
}

TEST(ItDataTablesTest, BaseTableIsTheWrittenOne)
{
    EXPECT_EQ(Rows(ITDataTable), (std::vector<Row>{
                                     {"-", "-", "-", 0, -1, -1},
                                     Head("ZEIMUSHO"),
                                     {"ZEIMUSHO", "-", "gen:zeimusho_CD", 4, 3, 2},
                                     {"NOZEISHA_ID", "NOZEISHA_ID", "-", 5, 4, 3},
                                     Head("NOZEISHA_BANGO"),
                                     {"NOZEISHA_BANGO", "-", "gen:kojinbango", 7, 5, 4},
                                     {"NOZEISHA_BANGO", "-", "gen:hojinbango", 8, 6, 5},
                                     {"NOZEISHA_NM", "NOZEISHA_NM", "-", 9, 7, 6},
                                     {"NOZEISHA_ADR", "NOZEISHA_ADR", "-", 10, 8, 7},
                                     {"DAIHYO_NM", "DAIHYO_NM", "-", 11, 9, 8},
                                     {"DAIRI_ID", "DAIRI_ID", "-", 12, 10, 9},
                                     {"DAIRI_NM", "DAIRI_NM", "-", 13, 11, 10},
                                     {"DAIRI_ADR", "DAIRI_ADR", "-", 14, 12, 11},
                                     Head("TETSUZUKI"),
                                     {"TETSUZUKI", "-", "procedure_CD", 15, 13, 12},
                                     {"-", "-", "-", 16, 14, -1},
                                 }));
}

TEST(ItDataTablesTest, FinanceTableIsTheWrittenOne)
{
    EXPECT_EQ(Rows(ITDataTableFINANCE), (std::vector<Row>{
                                            {"-", "-", "-", 0, -1, -1},
                                            Head("ZEIMUSHO"),
                                            {"ZEIMUSHO", "-", "gen:zeimusho_CD", 4, 3, 2},
                                            Head("TEISYUTSU_DAY"),
                                            {"TEISYUTSU_DAY", "-", "gen:era", 19, 14, 13},
                                            {"TEISYUTSU_DAY", "-", "gen:yy", 20, 15, 14},
                                            {"TEISYUTSU_DAY", "-", "gen:mm", 21, 16, 15},
                                            {"TEISYUTSU_DAY", "-", "gen:dd", 22, 17, 16},
                                            {"NOZEISHA_ID", "NOZEISHA_ID", "-", 5, 4, 3},
                                            Head("NOZEISHA_BANGO"),
                                            {"NOZEISHA_BANGO", "-", "gen:kojinbango", 7, 5, 4},
                                            {"NOZEISHA_BANGO", "-", "gen:hojinbango", 8, 6, 5},
                                            {"NOZEISHA_NM", "NOZEISHA_NM", "-", 9, 7, 6},
                                            Head("NOZEISHA_ZIP"),
                                            {"NOZEISHA_ZIP", "-", "gen:zip1", 23, 19, 18},
                                            {"NOZEISHA_ZIP", "-", "gen:zip2", 24, 20, 19},
                                            {"NOZEISHA_ADR", "NOZEISHA_ADR", "-", 10, 8, 7},
                                            {"DAIHYO_NM", "DAIHYO_NM", "-", 11, 9, 8},
                                            {"DAIRI_ID", "DAIRI_ID", "-", 12, 10, 9},
                                            {"DAIRI_NM", "DAIRI_NM", "-", 13, 11, 10},
                                            {"DAIRI_ADR", "DAIRI_ADR", "-", 14, 12, 11},
                                            Head("TETSUZUKI"),
                                            {"TETSUZUKI", "-", "procedure_CD", 18, 13, 12},
                                            {"-", "-", "-", 16, 18, 17},
                                        }));
}

TEST(ItDataTablesTest, CrossBorderTableIsTheWrittenOne)
{
    EXPECT_EQ(Rows(ITDataTableCROSSBORDER), (std::vector<Row>{
                                                {"-", "-", "-", 0, -1, -1},
                                                Head("ZEIMUSHO"),
                                                {"ZEIMUSHO", "-", "gen:zeimusho_CD", 4, 3, 2},
                                                Head("TEISYUTSU_DAY"),
                                                {"TEISYUTSU_DAY", "-", "gen:era", 19, 4, 3},
                                                {"TEISYUTSU_DAY", "-", "gen:yy", 20, 5, 4},
                                                {"TEISYUTSU_DAY", "-", "gen:mm", 21, 6, 5},
                                                {"TEISYUTSU_DAY", "-", "gen:dd", 22, 7, 6},
                                                {"NOZEISHA_ID", "NOZEISHA_ID", "-", 5, 8, 7},
                                                Head("NOZEISHA_BANGO"),
                                                {"NOZEISHA_BANGO", "-", "gen:kojinbango", 7, 9, 8},
                                                {"NOZEISHA_BANGO", "-", "gen:hojinbango", 8, 10, 9},
                                                {"NOZEISHA_NM", "NOZEISHA_NM", "-", 9, 11, 10},
                                                Head("NOZEISHA_ZIP"),
                                                {"NOZEISHA_ZIP", "-", "gen:zip1", 23, 12, 11},
                                                {"NOZEISHA_ZIP", "-", "gen:zip2", 24, 13, 12},
                                                {"NOZEISHA_ADR", "NOZEISHA_ADR", "-", 10, 14, 13},
                                                {"DAIHYO_NM", "DAIHYO_NM", "-", 11, 15, 14},
                                                {"DAIRI_ID", "DAIRI_ID", "-", 12, 16, 15},
                                                {"DAIRI_NM", "DAIRI_NM", "-", 13, 17, 16},
                                                {"DAIRI_ADR", "DAIRI_ADR", "-", 14, 18, 17},
                                                Head("TETSUZUKI"),
                                                {"TETSUZUKI", "-", "procedure_CD", 26, 19, 18},
                                                {"-", "-", "-", 16, 20, 19},
                                            }));
}

}  // namespace

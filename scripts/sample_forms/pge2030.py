"""Interest statements (type id 103): record 1 and record 2 are the header, the others details."""

from sample_forms.common import (
    company, complete, date, hojin, kojin, name, office, place, spoilt_tail,
)

FORM = "PGE2030"


def header(changes=None):
    """Record 1: who files, for which period."""
    kanji, kana = name(3)
    office_name, office_code = office(0)
    record = {
        1: "103", 2: "RISHI-0001", 3: "1", 4: kana, 5: kanji, 6: "資金部　利払課", 7: "09990001234",
        **date(8, 5, 7, 1, 1), **date(12, 5, 7, 6, 30), 16: office_name, 17: office_code, 18: "12",
        19: "14", 20: "上期分 <一括> & '控え'",
    }
    return complete(record, changes, 20)


def totals(changes=None):
    """Record 2: people, amount, tax and local tax of three kinds."""
    record = {
        1: "T", 2: "18", 3: "0001234567", 4: "189073", 5: "61728", 6: "17", 7: "7654321",
        8: "1172259", 9: "", 10: "0", 11: "0", 12: "0", 13: "", 14: "",
    }
    return complete(record, changes, 14)


def detail(index, changes=None):
    """A right record of the others, by column number from 1. `changes` replaces cells."""
    is_company = index % 4 == 1
    kanji, kana, number = company(index) if is_company else (
        *name(index), kojin(f"{90123450000 + index * 307:011d}"))
    zip_code, address = place(index)
    interest = 500 + index * 1357
    is_free = index % 6 == 5
    record = {
        1: "D", 2: str(index + 1), 3: "2" if is_company else "1", 4: kana, 5: kanji, 6: zip_code,
        7: address, 8: "" if index % 9 == 8 else number, 9: str(1 + index % 3),
        10: ("第３回見本国債", "定期預金 No.7", "墨信託A号")[index % 3],
        **date(11, 5, 7, 1 + index % 6, 1 + index * 5 % 28),
        15: str(100000 + index * 50000) if index % 2 else "", 16: str(interest),
        17: "0" if is_free else "1531", 18: "" if is_free else str(interest * 1531 // 10000),
        19: "" if is_free or index % 3 else str(interest // 20),
        20: "12"[index % 2] if is_free else "", 21: str(30 + index) if index % 2 else "", 22: "",
    }
    return complete(record, changes, 22)


def passing():
    return [
        header(),
        None,
        totals(),
        detail(0),
        detail(1),
        # The first and the last day of the period
        detail(2, date(11, 5, 7, 1, 1)),
        detail(3, date(11, 5, 7, 6, 30)),
        # Leading zeros are suppressed in principal and interest
        detail(4, {15: "0000500000", 16: "000000012", 18: "0001"}),
        detail(5, {16: "0"}),
        None,
        detail(6, {2: "0007", 22: "①～Ⅱ期－㈱髙架"}),
        detail(7, {4: "ア" * 40, 5: "亜" * 40, 7: "町" * 60, 10: "銘" * 30, 22: "摘" * 30}),
        detail(8, {5: "A&Bホールディングス <信託口>", 22: "\"再\" & '控え'"}),
        # A company's number may be missing, too
        detail(9, {8: ""}),
        detail(10, {17: "2042", 18: "99999999999", 16: "999999999999", 15: "9999999999999"}),
        detail(11, {17: "00", 18: "0", 20: "1"}),
        detail(12, {17: "1", 18: "0", 20: "2"}),
    ] + [detail(index) for index in range(13, 41)]


def failing():
    return [
        (header({2: "RISHI_0001", 3: "3", 4: "ｵﾓﾃﾉ", 5: "表野－能子", 6: "Dept", 7: "19990001234",
                 **date(8, 5, 1, 12, 31), 16: "", 17: "99999", 18: "0", 19: "13", 20: "ﾃｷﾖｳ"}),
         [(2, 6), (3, 9), (4, 3), (5, 6), (6, 6), (7, 10), (8, 11, 10), (16, 1), (17, 11), (18, 9),
          (19, 9), (20, 6)],
         "underscore; unknown kind; half-width kana; full-width hyphen; half-width letters; a "
         "telephone number that doesn't begin with 0; the period begins before the first day "
         "allowed, so that its end isn't compared with it; no office's name and an unknown code; "
         "no sheet; unknown medium; half-width kana"),
        (totals({1: "X", 2: "", 3: "1.5", 4: "x", 5: "x", 6: "", 7: "1" * 14, 8: "1" * 13, 9: "x",
                 10: "1" * 7, 11: "", 12: "1" * 13, 13: "1" * 13, 14: "ﾃｷﾖｳ"}),
         [(1, 9), (2, 1), (3, 4), (4, 4), (5, 4), (6, 1), (7, 8), (8, 8), (9, 4), (10, 8), (11, 1),
          (12, 8), (13, 8), (14, 6)],
         "unknown kind of record; cells that are empty, too long or no numbers; half-width kana"),
        (detail(0), [], "right"),
        (detail(1, {1: ""}), [(1, 1)], "no kind of record: a conversion would drop the record"),
        (detail(2, {1: "103", 2: "12345"}), [(1, 9), (2, 8)],
         "the type id stands in record 1 alone; five digits"),
        (detail(3, {2: "", 3: "3"}), [(2, 1), (3, 9)],
         "no number; unknown kind: the number of column 8 isn't checked then"),
        (None, [], "not a record"),
        (detail(4, {4: "A社", 5: "ﾐﾎﾝ"}), [(4, 3), (5, 6)], "no kana; half-width kana"),
        (detail(6, {5: "亜" * 41, 6: "12345678"}), [(5, 7), (6, 8)], "41 characters; 8 digits"),
        (detail(7, {6: "", 7: "町" * 61}), [(6, 1), (7, 7)], "no postal code; 61 characters"),
        (detail(10, {3: "1", 8: spoilt_tail(kojin("90123459999"))}), [(8, 10)],
         "wrong check digit"),
        (detail(12, {3: "2", 8: "x"}), [(8, 4)], "not only digits"),
        (detail(13, {3: "1", 8: hojin("970000009990")}), [(8, 8)],
         "a person with a company's number: 13 digits in place of 12"),
        (detail(14, {9: "4", 10: ""}), [(9, 9), (10, 1)], "unknown kind; no name"),
        (detail(15, {10: "ｺｸｻｲ", 13: "0"}), [(10, 6), (13, 9)],
         "half-width kana; month 0: the whole date isn't checked then"),
        (detail(16, date(11, 5, 1, 12, 30)), [(11, 14, 25)],
         "paid on the day before record 1's period"),
        (detail(17, date(11, 5, 7, 7, 1)), [(11, 14, 25)], "paid on the day behind it"),
        (detail(18, date(11, 5, 7, 2, 29)), [(11, 14, 12)], "29 February of a year that has none"),
        (detail(19, {15: "12345678901234", 16: ""}), [(15, 8), (16, 1)], "14 digits; no interest"),
        (detail(20, {17: "2043", 18: "", 20: ""}), [(17, 9)],
         "rate above the limit: neither tax nor the kind of exemption is asked for"),
        (detail(21, {17: "1531", 18: "", 19: "-1"}), [(18, 1), (19, 4)],
         "a rate, but no tax; a sign is no digit"),
        (None, [], "not a record"),
        (detail(22, {17: "0", 18: "", 20: ""}), [(20, 1)], "rate 0 without the kind of exemption"),
        (detail(24, {17: "", 18: "", 20: "3"}), [(17, 1), (20, 9)], "no rate; unknown exemption"),
        (detail(25, {21: "123456", 22: "摘" * 30 + "x"}), [(21, 8), (22, 8)],
         "6 digits; remarks of 61 bytes"),
        (detail(28, {column: "" for column in range(2, 23)}),
         [(2, 1), (3, 1), (4, 1), (5, 1), (6, 1), (7, 1), (9, 1), (10, 1), (11, 1), (12, 1),
          (13, 1), (14, 1), (16, 1), (17, 1)], "nothing but the kind of record"),
        (detail(30, {2: "x", 3: "9", 6: "x", 8: "x", 11: "3", 12: "x", 13: "x", 14: "x", 15: "x",
                     16: "x", 17: "x", 18: "x", 19: "x", 21: "x"}),
         [(2, 4), (3, 9), (6, 4), (8, 4), (11, 9), (12, 4), (13, 4), (14, 4), (15, 4), (16, 4),
          (17, 4), (18, 4), (19, 4), (21, 4)],
         "letters in place of numbers; unknown kind; an era that isn't allowed"),
        (detail(31, {3: "2", 4: "ア" * 41, 6: "9999999", 7: "ﾏﾁ",
                     8: spoilt_tail(hojin("970000000123")), 10: "銘" * 31, 12: "100", 13: "13",
                     14: "32", 16: "1" * 13, 18: "1" * 12, 19: "1" * 12, 22: "ﾃｷ"}),
         [(4, 7), (6, 10), (7, 6), (8, 10), (10, 7), (12, 9), (13, 9), (14, 9), (16, 8), (18, 8),
          (19, 8), (22, 6)], "too long or too great; wrong check digit; half-width kana"),
        (detail(26), [], "right"),
    ]

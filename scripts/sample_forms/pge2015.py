"""Salary statements (type id 101): one record per employee and year."""

from sample_forms.common import complete, date, kojin, name, no_date, place, spoilt_tail

FORM = "PGE2015"

ADJUSTED = {17: "3456000", 18: "1", 19: "1480000"}
NOT_ADJUSTED = {17: "", 18: "2", 19: ""}
NO_SPOUSE = {21: "0", 22: "", 23: ""}
STAYED = {**no_date(31), 35: ""}


def spouse(index, kind):
    return {21: kind, 22: name(index + 5)[1], 23: kojin(f"{60123450000 + index * 613:011d}")}


def moved(kind, year, month, day):
    """Entry (1) or leaving (2) in a year of the fifth era."""
    return {**date(31, 5, year, month, day), 35: kind}


def report(index, changes=None):
    """One right record, by column number from 1. `changes` replaces cells."""
    kanji, kana = name(index)
    zip_code, address = place(index)
    year = 5 + index % 3
    paid = 2400000 + index * 34567
    record = {
        1: "101", 2: f"K-{index:05d}", 3: kana, 4: kanji,
        5: ("", "課長", "経理部主任", "非常勤")[index % 4], 6: zip_code, 7: address,
        8: kojin(f"{50123450000 + index * 709:011d}"),
        **date(9, 3, 40 + index % 24, 1 + index % 12, 1 + index * 7 % 28),
        13: "5", 14: str(year), 15: str(1 + index % 3), 16: str(paid),
        **(NOT_ADJUSTED if index % 3 == 1 else
           {17: str(paid * 7 // 10), 18: "1", 19: str(900000 + index * 1000)}),
        20: str(paid * 3 // 100),
        **(spouse(index, "12"[index % 2]) if index % 4 in (1, 2) else NO_SPOUSE),
        24: str(index % 4), 25: "" if index % 2 else "1", 26: "",
        27: str(paid * 14 // 100), 28: str(index * 1111 % 120001), 29: str(index * 700 % 50001),
        30: "" if index % 5 else "150000",
        **(moved(str(1 + index % 2), year, 1 + index % 12, 1 + index % 28) if index % 5 == 2
           else STAYED),
        36: "",
    }
    return complete(record, changes, 36)


def passing():
    return [
        report(0),
        report(1),
        # 15 years old on the last day of the year, which is the birthday
        report(2, {13: "5", 14: "7", **date(9, 4, 22, 12, 31), **STAYED}),
        # The eras' last and first days: a birth keeps to the era that it is written in
        report(3, date(9, 3, 64, 1, 7)),
        report(4, date(9, 4, 1, 1, 8)),
        report(5, date(9, 2, 15, 12, 24)),
        # Nothing but the needed cells
        report(6, {5: "", 8: "", **NOT_ADJUSTED, **NO_SPOUSE, 24: "", 25: "", 26: "", 28: "",
                   29: "", 30: "", **STAYED, 36: ""}),
        # Leading zeros are suppressed in the three amounts, not in the tax
        report(7, {16: "000004800000", 17: "0003500000", 18: "1", 19: "000001200000",
                   20: "00098000"}),
        report(8, {16: "0", 20: "0", **NOT_ADJUSTED}),
        None,
        report(9, {36: "<年末調整> \"再\" & '控え'"}),
        # Code page 932 beyond JIS: the address and the remarks take it, the name doesn't
        report(10, {7: "紙原県見本市①丁目－２～３　㈱見本寮Ⅱ", 36: "髙架下営業所∥分室"}),
        report(11, {3: "カ" * 30, 4: "亜" * 30, 5: "役" * 15, 7: "町" * 60, 36: "摘" * 100}),
        report(12, {2: "A B-c 9"}),
        report(13, {4: " 　升目　薫　 ", 36: "　二か所給与 "}),
        report(14, {24: "99", 25: "99", 26: "99", 28: "120000", 29: "50000", 30: "400000"}),
        report(15, {28: "0", 29: "0", 30: "0"}),
        report(16, {13: "5", 14: "8", **moved("1", 8, 1, 1)}),
        report(17, {13: "5", 14: "6", **moved("2", 6, 12, 31)}),
        report(18, {13: "5", 14: "6", **moved("2", 6, 2, 29)}),
        report(19, {16: "999999999999", 20: "99999999999", 27: "9999999999"}),
        report(20, {14: "07", **STAYED}),
        report(21, {6: "0000001"}),
    ] + [report(index) for index in range(22, 60)]


def failing():
    return [
        (report(0), [], "right"),
        (report(1, {2: ""}), [(2, 1)], "no number"),
        (report(2, {2: "K_00002"}), [(2, 6)], "underscore: only letters, digits, hyphen and blank"),
        (report(3, {2: "K-123456789"}), [(2, 8)], "number of 11 bytes"),
        (report(4, {3: "ｺﾖﾘ", 4: ""}), [(3, 3), (4, 1)], "half-width kana; no name in kanji"),
        (report(5, {4: "帳合－正"}), [(4, 6)],
         "full-width hyphen: in this family it is read as a character beyond JIS"),
        (report(6, {4: "髙木　すみれ", 5: "主任Chief"}), [(4, 6), (5, 6)],
         "character beyond JIS X 0208; half-width letters: `multibyte` reports HE70006E in "
         "place of "
         "its own HE99999E"),
        (None, [], "not a record"),
        (report(7, {4: "名" * 31, 5: "役" * 16}), [(4, 7), (5, 7)], "names that are too long"),
        (report(8, {6: "999-0101", 7: "ﾖﾊｸﾑﾗ"}), [(6, 4), (7, 6)],
         "hyphen in the postal code; half-width kana"),
        (report(9, {6: "0000000", 7: "町" * 61}), [(6, 10), (7, 7)],
         "postal code of noughts: `except` reports HE70010E in place of its own HE99999E; "
         "address of "
         "61 characters"),
        (report(10, {6: "99901"}), [(6, 8)], "postal code of 5 digits"),
        (report(11, {8: spoilt_tail(kojin("50123459999"))}), [(8, 10)], "wrong check digit"),
        (report(12, {8: "50123459999", 7: ""}), [(7, 1), (8, 8)],
         "no address; personal number of 11 digits"),
        (report(13, date(9, 4, 31, 5, 1)), [(9, 12, 12)],
         "a birth on the day after the era's last: the era that is written counts"),
        (report(14, {9: "6", 11: "x"}), [(9, 9), (11, 4)],
         "unknown era; letter in the month; the whole date isn't checked then"),
        (report(15, {13: "5", 14: "7", **date(9, 4, 23, 1, 1), **STAYED}), [(9, 12, 10)],
         "14 years old at the end of the year"),
        (report(16, {14: "4", **moved("1", 5, 4, 1)}), [(13, 14, 25)],
         "a year that isn't told any more; neither age nor entry is compared with a wrong year"),
        (report(17, {13: "4", 14: ""}), [(13, 9), (14, 1)], "era of the year; no year"),
        (report(18, {15: "4", 16: "-1000"}), [(15, 9), (16, 4)],
         "unknown kind; a sign is no digit"),
        (report(19, {16: "1234567890123", 20: ""}), [(16, 8), (20, 1)],
         "amount of 13 digits; no tax"),
        (report(20, {**ADJUSTED, 17: "", 19: ""}), [(17, 1), (19, 1)],
         "adjusted without the amounts that come of it"),
        (report(21, {**ADJUSTED, 18: "2"}), [(17, 5), (19, 5)],
         "not adjusted: the two amounts aren't wanted"),
        (report(22, {**ADJUSTED, 17: "12a", 18: "3"}), [(18, 9), (17, 4)],
         "unknown kind of adjustment; column 17 stands behind column 18 in the form"),
        (report(23, {**spouse(23, "1"), 22: "", 23: ""}), [(22, 1)],
         "a spouse without a name; the number may be missing"),
        (report(24, {**spouse(24, "2"), 21: "0"}), [(22, 5), (23, 5)],
         "no spouse, but name and number"),
        (report(25, {**spouse(25, "1"), 8: kojin("50123450123"), 23: kojin("50123450123")}),
         [(23, 10)],
         "the spouse's number is the employee's"),
        (report(26, {**spouse(26, "3"), 22: "ヨハク・ケン"}), [(21, 9), (22, 3)],
         "unknown kind of spouse; the middle dot is no kana here"),
        (None, [], "not a record"),
        (report(27, {24: "100", 25: "a", 26: "１"}), [(24, 8), (25, 4), (26, 4)],
         "three digits; letter; full-width digit"),
        (report(28, {27: "", 28: "120001", 29: "50001", 30: "1.5"}),
         [(27, 1), (28, 9), (29, 9), (30, 4)], "no amount; two above their limits; decimal point"),
        (report(29, {14: "7", **moved("1", 7, 4, 1), 35: ""}), [(35, 1)], "a day without its kind"),
        (report(30, {**STAYED, 35: "1"}), [(31, 12)],
         "a kind without its day: `exist` reports HE70012E in place of its own HE70001E"),
        (report(31, {14: "7", **moved("2", 7, 4, 1), 33: "", 34: "32"}), [(33, 12), (34, 9)],
         "no month; day 32; the whole date isn't checked then"),
        (report(32, {14: "7", **moved("2", 7, 2, 29)}), [(31, 34, 12)],
         "29 February of a year that has none"),
        (report(33, {14: "7", **moved("1", 6, 12, 31)}), [(31, 32, 25)],
         "entered in the year before: reported for era and year alone"),
        (report(34, {35: "3", **no_date(31), 36: "ﾃｷﾖｳ"}), [(35, 9), (31, 12), (36, 6)],
         "unknown kind; it asks for a day all the same; half-width kana"),
        (report(35, {36: "摘" * 101}), [(36, 8)], "remarks of 202 bytes"),
        (report(37, {column: "" for column in range(2, 37)}),
         [(13, 1), (14, 1), (2, 1), (3, 1), (4, 1), (6, 1), (7, 1), (9, 1), (10, 1), (11, 1),
          (12, 1), (15, 1), (16, 1), (18, 1), (20, 1), (21, 1), (27, 1)],
         "nothing but the type id"),
        (report(38, {**ADJUSTED, **spouse(38, "1"), 6: "x", 8: "x", 9: "x", 10: "x", 11: "x",
                     12: "x", 14: "x", 16: "x", 17: "x", 19: "x", 20: "x", 23: "y", 24: "x",
                     25: "x", 26: "x", 27: "x", 28: "x", 29: "x", 30: "x", 31: "x", 32: "x",
                     33: "x", 34: "x", 35: "1"}),
         [(14, 4), (6, 4), (8, 4), (9, 9), (10, 4), (11, 4), (12, 4), (16, 4), (17, 4), (19, 4),
          (20, 4), (23, 4), (24, 4), (25, 4), (26, 4), (27, 4), (28, 4), (29, 4), (30, 4), (31, 9),
          (32, 4), (33, 4), (34, 4)],
         "letters in place of numbers; an era is looked for in a list"),
        (report(39, {**ADJUSTED, **spouse(39, "1"), 3: "カ" * 31, 10: "100", 11: "13", 12: "32",
                     14: "100", 17: "1" * 13, 19: "1" * 13, 20: "1" * 12, 22: "カ" * 31,
                     23: spoilt_tail(kojin("60123459999")), 25: "100", 26: "100", 27: "1" * 11,
                     30: "400001", 31: "5", 32: "100", 33: "13", 34: "32", 35: "1"}),
         [(14, 9), (3, 7), (10, 9), (11, 9), (12, 9), (17, 8), (19, 8), (20, 8), (22, 7), (23, 10),
          (25, 8), (26, 8), (27, 8), (30, 9), (32, 9), (33, 9), (34, 9)],
         "too long or too great; the spouse's number has a wrong check digit"),
        (report(40, {**STAYED, 32: "7"}), [(31, 12)], "a year without an era"),
        (report(41, {**STAYED, 33: "4"}), [(31, 12)], "a month without an era"),
        (report(42, {**STAYED, 34: "1"}), [(31, 12)], "a day without an era"),
        (report(43, {**STAYED, 31: "5", 35: "1"}), [(32, 12), (33, 12), (34, 12)],
         "an era without the rest"),
        (report(36), [], "right"),
    ]


def more():
    """A file of exactly as many records as one may have."""
    return {"_limit.csv": [report(index) for index in range(1000)]}

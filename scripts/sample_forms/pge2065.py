"""Retirement pay statements (type id 106): one record per person who left."""

from sample_forms.common import complete, date, kojin, name, no_date, place, spoilt_tail

FORM = "PGE2065"

NO_EARLIER = {**no_date(24), 28: ""}
OFFICER = {29: "1", 30: "5"}
NO_OFFICER = {29: "0", 30: ""}


def earlier(era, year, month, day, amount="1000000"):
    return {**date(24, era, year, month, day), 28: amount}


def report(index, changes=None):
    """One right record, by column number from 1. `changes` replaces cells."""
    kanji, kana = name(index + 6)
    zip_code, address = place(index + 4)
    paid = 3000000 + index * 123456
    joined = (3, 40 + index % 24) if index % 3 else (4, 1 + index % 30)
    record = {
        1: "106", 2: f"EMP-{index:06d}", 3: kana, 4: kanji, 5: zip_code, 6: address,
        7: "" if index % 3 else place(index + 5)[1], 8: kojin(f"{10123450000 + index * 601:011d}"),
        **date(9, *joined, 4, 1), **date(13, 5, 5 + index % 3, 3, 31),
        17: str(1 + index % 45), 18: str(1 + index % 3), 19: str(paid),
        20: str(paid // 100) if index % 4 != 3 else "", 21: str(paid // 200) if index % 2 else "",
        22: "" if index % 4 != 3 else str(paid // 300), 23: str(800000 + index * 1000),
        **(earlier(5, 3, 1 + index % 12, 15) if index % 6 == 1 else NO_EARLIER),
        **(OFFICER if index % 5 == 4 else NO_OFFICER), 31: str(paid), 32: "", 33: "",
    }
    return complete(record, changes, 33)


def amount(text):
    """The amount and its confirmation."""
    return {19: text, 31: text}


def passing():
    return [
        report(0),
        report(1),
        report(2),
        # Left on the day after the entry
        report(3, {**date(9, 5, 7, 4, 1), **date(13, 5, 7, 4, 2), 17: "1"}),
        # The first and the last day allowed for leaving
        report(4, {**date(9, 4, 1, 4, 1), **date(13, 4, 31, 1, 1)}),
        report(5, {**date(9, 4, 1, 4, 1), **date(13, 5, 8, 12, 31)}),
        # The entry keeps to the era that it is written in, the leaving crosses to the new one
        report(6, {**date(9, 4, 31, 4, 30), **date(13, 4, 31, 5, 1), 17: "1"}),
        report(7, {**date(9, 3, 64, 1, 7), **date(13, 4, 32, 3, 31), **NO_EARLIER}),
        # An earlier payment on the day of the leaving
        report(8, {**date(13, 5, 6, 3, 31), **earlier(5, 6, 3, 31)}),
        report(9, {**date(13, 5, 6, 3, 31), **earlier(4, 1, 1, 8, "0")}),
        None,
        # One tax will do, and 0 is one
        report(10, {20: "", 21: "0", 22: ""}),
        report(11, {20: "", 21: "", 22: "99999999999"}),
        # Leading zeros are suppressed in the amount, not in its confirmation; the texts are equal
        report(12, amount("000012000000")),
        report(13, amount("0")),
        report(14, {**OFFICER, 30: "60", 17: "60"}),
        report(15, {7: "欄外県予備欄村十字紙　附箋荘①", 8: ""}),
        report(16, {3: "ア" * 30, 4: "亜" * 30, 6: "町" * 60, 7: "村" * 60, 33: "摘" * 100}),
        report(17, {32: "TEL 099-900-0001 <ext.5>", 33: "勧奨 & \"早期\" ～２回目－㈱Ⅱ"}),
        report(18, {2: "a-1", 4: "　帳合　正　"}),
        report(19, {17: "01", 23: "0"}),
        report(20, amount("999999999999")),
    ] + [report(index) for index in range(21, 56)]


def failing():
    return [
        (report(0), [], "right"),
        (report(1, {2: ""}), [(2, 1)], "no number"),
        (report(2, {2: "EMP/00002", 3: "カタカナ1"}), [(2, 6), (3, 3)],
         "slash; half-width digit among the kana"),
        (report(3, {2: "EMP-000003-XX", 4: ""}), [(2, 8), (4, 1)], "number of 13 bytes; no name"),
        (report(4, {4: "名￠", 6: ""}), [(4, 6), (6, 1)],
         "cent sign: in this family it is read as a character beyond JIS; no address"),
        (report(5, {5: "99901010", 6: "町" * 61, 7: "Tokyo"}), [(5, 8), (6, 7), (7, 6)],
         "8 digits; 61 characters; half-width letters: `multibyte` reports HE70006E in place "
         "of its "
         "own HE99999E"),
        (report(6, {7: "村" * 61, 8: spoilt_tail(kojin("10123459999"))}), [(7, 7), (8, 10)],
         "61 characters; wrong check digit"),
        (report(7, date(9, 3, 64, 1, 8)), [(9, 12, 12)],
         "entry on the day after the era's last; the leaving isn't compared with it"),
        (report(8, {9: "2", 12: "0"}), [(9, 9), (12, 9)],
         "era that isn't allowed; day 0; the whole date isn't checked then"),
        (report(9, {**date(9, 5, 7, 4, 1), **date(13, 5, 7, 4, 1), **NO_EARLIER}), [(13, 16, 25)],
         "left on the day of the entry"),
        (report(10, {**date(9, 5, 7, 4, 2), **date(13, 5, 7, 4, 1), **NO_EARLIER}), [(13, 16, 25)],
         "left before the entry"),
        (None, [], "not a record"),
        (report(11, {**date(9, 4, 1, 4, 1), **date(13, 4, 30, 12, 31)}), [(13, 16, 10)],
         "left before the first day allowed"),
        (report(12, {**date(13, 5, 9, 1, 1), **NO_EARLIER}), [(13, 16, 10)],
         "left after the last day allowed"),
        (report(13, {**date(13, 5, 7, 2, 30), **earlier(5, 8, 1, 1)}), [(13, 16, 12)],
         "left on 30 February; the earlier payment isn't compared with it"),
        (report(14, {17: "0", 18: "4"}), [(17, 9), (18, 9)], "no year of service; unknown kind"),
        (report(15, {17: "61", 18: ""}), [(17, 9), (18, 1)], "above the limit; no kind"),
        (report(16, {17: "１", 19: ""}), [(17, 4), (19, 1)],
         "full-width digit; no amount, which its confirmation isn't compared with"),
        (report(17, {20: "", 21: "", 22: ""}), [(20, 9)],
         "none of the taxes: reported for the first of them"),
        (report(18, {20: "", 21: "x", 22: "5"}), [(20, 9), (21, 4)],
         "a letter ends the search for a tax before the one that is right"),
        (report(19, {20: "1x", 21: "5"}), [(20, 4)], "letter, found before the search"),
        (report(20, {22: "123456789012", 23: ""}), [(22, 8), (23, 1)], "12 digits; no deduction"),
        (report(21, {19: "5000000", 31: "5000001"}), [(31, 10)],
         "the confirmation differs: `containcolumn` reports HE70010E in place of its own HE70025E"),
        (report(22, {19: "5000000", 31: "05000000"}), [(31, 10)],
         "texts are compared, not numbers"),
        (report(23, {19: "5O00", 31: ""}), [(19, 4), (31, 1)],
         "letter O; no confirmation"),
        (report(24, {**date(13, 5, 6, 3, 31), **earlier(5, 6, 4, 1)}), [(24, 27, 25)],
         "the earlier payment is behind the leaving"),
        (None, [], "not a record"),
        (report(25, {**NO_EARLIER, 28: "500"}), [(24, 12)],
         "an earlier amount without its day: `exist` reports HE70012E in place of its own "
         "HE70001E"),
        (report(26, {**earlier(5, 3, 4, 1), 28: ""}), [(28, 1)],
         "an earlier day without its amount"),
        (report(27, {**earlier(5, 3, 4, 1), 24: ""}), [(24, 12)],
         "no era: a day is there, although the era is empty"),
        (report(28, {**earlier(4, 32, 4, 1)}), [(24, 27, 12)],
         "a date of the old era after its end"),
        (report(29, {**NO_OFFICER, 30: "3"}), [(30, 5)], "years of office of no officer"),
        (report(30, {**OFFICER, 30: ""}), [(30, 1)], "an officer without years"),
        (report(31, {29: "2", 30: "61"}), [(29, 9), (30, 9)], "unknown kind; above the limit"),
        (report(32, {29: "", 32: "見本課"}), [(29, 1), (32, 35)],
         "no kind; full-width characters"),
        (report(33, {32: "x" * 65, 33: "ｶﾝｼｮｳ"}), [(32, 8), (33, 6)], "65 bytes; half-width kana"),
        (report(34, {33: "摘" * 100 + "x"}), [(33, 8)], "remarks of 201 bytes"),
        (report(36, {column: "" for column in range(2, 34)}),
         [(2, 1), (3, 1), (4, 1), (5, 1), (6, 1), (9, 1), (10, 1), (11, 1), (12, 1), (13, 1),
          (14, 1), (15, 1), (16, 1), (17, 1), (18, 1), (19, 1), (20, 9), (23, 1), (29, 1), (31, 1)],
         "nothing but the type id; of the taxes one is looked for in a range"),
        (report(38, {**OFFICER, 5: "x", 10: "x", 11: "x", 12: "x", 13: "3", 14: "x", 15: "x",
                     16: "x", 19: "x", 20: "0", 22: "x", 23: "x", 24: "x", 25: "x", 26: "x",
                     27: "x", 28: "x", 30: "x", 31: "x"}),
         [(5, 4), (10, 4), (11, 4), (12, 4), (13, 9), (14, 4), (15, 4), (16, 4), (19, 4), (22, 4),
          (23, 4), (24, 9), (25, 4), (26, 4), (27, 4), (28, 4), (30, 4), (31, 4)],
         "letters in place of numbers; eras that aren't allowed"),
        (report(39, {3: "ア" * 31, 4: "亜" * 31, 5: "9999999", 6: "ﾏﾁ", 10: "100", 11: "13",
                     14: "100", 15: "13", 16: "32", 19: "1" * 13, 20: "1" * 12, 21: "1" * 12,
                     22: "0", 23: "1" * 12, 24: "5", 25: "100", 26: "13", 27: "32", 28: "1" * 13,
                     31: "1" * 13}),
         [(3, 7), (4, 7), (5, 10), (6, 6), (10, 9), (11, 9), (14, 9), (15, 9), (16, 9), (19, 8),
          (20, 8), (21, 8), (23, 8), (25, 9), (26, 9), (27, 9), (28, 8), (31, 8)],
         "too long or too great; a postal code of nines; half-width kana"),
        (report(40, {**date(9, 4, 1, 4, 1), **date(13, 4, 32, 4, 1), **NO_EARLIER}), [(13, 16, 12)],
         "left on a date of the old era after its end"),
        (report(41, {**NO_EARLIER, 25: "3"}), [(24, 12)], "a year without an era"),
        (report(42, {**NO_EARLIER, 26: "4"}), [(24, 12)], "a month without an era"),
        (report(43, {**NO_EARLIER, 27: "1"}), [(24, 12)], "a day without an era"),
        (report(44, {**NO_EARLIER, 24: "5", 28: "1"}), [(25, 12), (26, 12), (27, 12)],
         "an era without the rest"),
        (report(35), [], "right"),
    ]

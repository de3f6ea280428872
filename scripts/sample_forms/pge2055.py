"""Pension statements (type id 105): one record per pensioner and kind of pension."""

from sample_forms.common import complete, date, kojin, name, no_date, place, spoilt_tail

FORM = "PGE2055"

OLD_AGE = {14: "1", 16: "12000", 17: "60000", 18: "", 19: ""}
SURVIVOR = {14: "3", 16: "", 17: "", 18: "", 19: ""}
GOES_ON = {**no_date(23), 27: ""}


def ended(reason, year, month, day):
    """The end in a year of the fifth era."""
    return {**date(23, 5, year, month, day), 27: reason}


def report(index, changes=None):
    """One right record, by column number from 1. `changes` replaces cells."""
    kanji, kana = name(index + 1)
    zip_code, address = place(index + 3)
    year = 5 + index % 3
    paid = 600000 + index * 23456
    is_old_age = index % 3 != 2
    record = {
        1: "105", 2: f"{1 + index % 8}{index * 73 + 11:011d}", 3: kana, 4: kanji, 5: zip_code,
        6: address, 7: kojin(f"{20123450000 + index * 503:011d}"),
        **(date(8, 3, 5 + index % 30, 1 + index % 12, 1 + index * 11 % 28) if is_old_age else
           date(8, 4, 3 + index % 20, 1 + index % 12, 1 + index * 11 % 28)),
        12: "5", 13: str(year),
        **({14: "1", 15: str(paid), 16: str(paid // 50), 17: str(paid // 20) if index % 2 else "",
            18: "" if index % 2 else "80000", 19: "30000" if index % 2 else ""} if is_old_age else
           {**SURVIVOR, 14: "23"[index // 3 % 2], 15: str(paid)}),
        20: str(index % 3), 21: ("", "0", "1", "2")[index % 4],
        22: "" if index % 2 else str(index % 6),
        **(ended("129"[index % 3], year, 1 + index % 12, 1 + index % 28) if index % 7 == 3 else
           GOES_ON),
        28: "",
    }
    return complete(record, changes, 28)


def passing():
    return [
        report(0),
        report(1),
        report(2),
        # 60 years old on the last day of the year, which is the birthday
        report(3, {**OLD_AGE, **date(8, 3, 40, 12, 31), 12: "5", 13: "7", **GOES_ON}),
        # A child has a survivor's pension; born on the last day allowed
        report(4, {**SURVIVOR, **date(8, 5, 7, 12, 31), 12: "5", 13: "7"}),
        # The eras' first and last days
        report(5, date(8, 1, 45, 7, 29)),
        report(6, {**OLD_AGE, **date(8, 2, 1, 7, 30)}),
        report(7, {**OLD_AGE, **date(8, 3, 1, 12, 25)}),
        report(8, {**SURVIVOR, **date(8, 4, 31, 4, 30)}),
        report(9, {**SURVIVOR, **date(8, 5, 1, 5, 1)}),
        None,
        # The first and the last day on which an end is told
        report(10, {13: "7", **ended("1", 7, 1, 1)}),
        report(11, {13: "7", **ended("9", 7, 12, 30)}),
        report(12, {13: "6", **ended("2", 6, 2, 29)}),
        # One insurance will do
        report(13, {**OLD_AGE, 17: "", 18: "0", 19: ""}),
        report(15, {**OLD_AGE, 17: "", 18: "", 19: "123456789"}),
        # Leading zeros are suppressed in the amount alone
        report(18, {**OLD_AGE, 15: "000001200000", 16: "000012000", 17: "0060000"}),
        report(16, {**OLD_AGE, 15: "0", 16: "0"}),
        report(17, {3: "ア" * 30, 4: "亜" * 30, 6: "町" * 60, 28: "摘" * 50}),
        report(18, {6: "紙原県見本市例町１－２　<A&B>棟3F①", 28: "　現況届　提出済　"}),
        report(19, {22: "20", 21: "", 20: "2"}),
        report(20, {2: "100000000000"}),
    ] + [report(index) for index in range(21, 58)]


def failing():
    return [
        (report(0), [], "right"),
        (report(1, {2: "012345678901"}), [(2, 10)], "begins with 0"),
        (report(2, {2: "12345678901"}), [(2, 8)], "number of 11 digits"),
        (report(3, {2: "1234-5678901", 3: ""}), [(2, 4), (3, 1)], "hyphen; no name in kana"),
        (report(4, {12: "4", 13: ""}), [(12, 9), (13, 1)],
         "era and year of the payment, found first; no age at a wrong year"),
        (report(5, {3: "ﾍﾞﾆ", 4: "脚注　Makoto"}), [(3, 3), (4, 6)],
         "half-width kana; half-width letters"),
        (report(6, {4: "句読～点"}), [(4, 6)],
         "wave dash: in this family it is read as a character beyond JIS"),
        (report(7, {5: "", 6: "ﾁｮｳﾒ"}), [(5, 1), (6, 6)], "no postal code; half-width kana"),
        (report(8, {7: ""}), [(7, 1)], "no personal number"),
        (report(9, {7: spoilt_tail(kojin("20123459999"))}), [(7, 10)], "wrong check digit"),
        (report(10, {7: "2012345999", 5: "9999999"}), [(5, 10), (7, 8)],
         "postal code of nines: `except` reports HE70010E in place of its own HE99999E; number "
         "of 10 "
         "digits"),
        (None, [], "not a record"),
        (report(12, {**OLD_AGE, **date(8, 3, 41, 1, 1), 13: "7", **GOES_ON}), [(8, 11, 10)],
         "59 years old at the end of the year"),
        (report(13, {**SURVIVOR, **date(8, 3, 65, 1, 1)}), [(8, 11, 12)],
         "a year that the era doesn't have"),
        (report(14, {**SURVIVOR, **date(8, 4, 31, 5, 1)}), [(8, 11, 12)],
         "a birth on the day after the era's last: the era that is written counts"),
        (report(15, {**SURVIVOR, **date(8, 5, 8, 1, 1)}), [(8, 11, 10)],
         "born on the day after the last allowed"),
        (report(16, {8: "0", 10: "", 11: "32"}), [(8, 9), (10, 1), (11, 9)],
         "unknown era, no month, day 32; the whole date isn't checked then"),
        (report(17, {**SURVIVOR, 14: "4"}), [(14, 9)],
         "unknown kind: neither tax nor insurance is asked"),
        (report(18, {**OLD_AGE, 16: "", 17: ""}), [(16, 1), (17, 1)],
         "old-age pension: no tax; none of the insurances"),
        (report(19, {**SURVIVOR, 15: "", 16: "0"}), [(15, 1), (16, 5)],
         "no amount; a survivor's pension has no tax"),
        (report(21, {**OLD_AGE, 18: "10", 19: "10"}), [(19, 5)],
         "two insurances that exclude each other"),
        (report(22, {**OLD_AGE, 15: "1234567890123", 17: "1x", 18: "1234567890"}),
         [(15, 8), (17, 4), (18, 8)], "amount of 13 digits; letter; 10 digits"),
        (report(23, {20: "", 21: "3", 22: "21"}), [(20, 1), (21, 9), (22, 9)],
         "no kind; unknown kind; above the limit"),
        (report(24, {13: "6", 20: "9", 22: "-1", **ended("", 6, 4, 1)}),
         [(20, 9), (22, 4), (27, 1)],
         "unknown kind; a sign is no digit; an end without its reason"),
        (None, [], "not a record"),
        (report(25, {**no_date(23), 27: "1"}), [(23, 12)],
         "a reason without a day: `exist` reports HE70012E in place of its own HE70001E"),
        (report(26, {13: "7", **ended("1", 7, 4, 1), 24: "", 25: "", 26: ""}),
         [(24, 12), (25, 12), (26, 12)], "an era without the rest"),
        (report(27, {13: "7", **ended("2", 7, 12, 31)}), [(23, 26, 10)],
         "an end on 31 December counts for the next year"),
        (report(28, {13: "7", **ended("2", 7, 11, 31)}), [(23, 26, 12)], "31 November"),
        (report(29, {13: "7", **ended("9", 6, 12, 30)}), [(23, 24, 25)],
         "ended in the year before: reported for era and year alone"),
        (report(30, {**ended("3", 6, 4, 1), 13: "0"}), [(13, 9), (27, 9)],
         "year 0; unknown reason; the end isn't compared with a wrong year"),
        (report(31, {28: "現況①"}), [(28, 6)], "circled digit, which is beyond JIS X 0208"),
        (report(32, {28: "摘" * 51}), [(28, 7)], "remarks of 51 characters"),
        (report(34, {column: "" for column in range(2, 29)}),
         [(2, 1), (12, 1), (13, 1), (3, 1), (4, 1), (5, 1), (6, 1), (7, 1), (8, 1), (9, 1), (10, 1),
          (11, 1), (14, 1), (15, 1), (20, 1)], "nothing but the type id"),
        (report(36, {**OLD_AGE, 5: "x", 9: "x", 10: "x", 11: "x", 13: "x", 15: "x", 16: "x",
                     17: "x", 18: "x", 19: "x", 23: "x", 24: "x", 25: "x", 26: "x", 27: "1"}),
         [(13, 4), (5, 4), (9, 4), (10, 4), (11, 4), (15, 4), (16, 4), (17, 4), (18, 4), (19, 4),
          (23, 9), (24, 4), (25, 4), (26, 4)], "letters in place of numbers"),
        (report(37, {**OLD_AGE, 3: "ア" * 31, 4: "亜" * 31, 5: "123", 6: "町" * 61, 9: "100",
                     10: "13", 16: "1" * 12, 17: "1" * 10, 19: "1" * 10, 23: "5", 24: "100",
                     25: "13", 26: "32", 27: "1"}),
         [(3, 7), (4, 7), (5, 8), (6, 7), (9, 9), (10, 9), (16, 8), (17, 8), (19, 8), (24, 9),
          (25, 9), (26, 9)], "too long or too great"),
        (report(38, {**GOES_ON, 24: "7"}), [(23, 12)], "a year without an era"),
        (report(39, {**GOES_ON, 25: "4"}), [(23, 12)], "a month without an era"),
        (report(40, {**GOES_ON, 26: "1"}), [(23, 12)], "a day without an era"),
        (report(33), [], "right"),
    ]

"""Futures trading statements (type id 107): one record per settled contract."""

from sample_forms.common import (
    company, complete, date, hojin, kojin, name, no_date, office, place, spoilt_tail,
)

FORM = "PGE2070"

FUTURE = {12: "01", 14: "202512"}
OPTION = {12: "11", 14: ""}
GAIN = {27: "50000", 28: ""}
LOSS = {27: "", 28: "50000"}


def days(opened, settled):
    """Opening and settlement, each as (era, year, month, day)."""
    return {**date(17, *opened), **date(21, *settled)}


def report(index, changes=None):
    """One right record, by column number from 1. `changes` replaces cells. The first settles first,
    on 6 January of the fifth era's year 7."""
    is_company = index % 4 == 3
    kanji, kana, number = company(index) if is_company else (
        *name(index + 8), kojin(f"{80123450000 + index * 401:011d}"))
    zip_code, address = place(index + 6)
    office_name, office_code = office(index + 3)
    day = 6 + index % 22
    cost = 330 + index * 11
    record = {
        1: "107", 2: f"FX{index:010d}", 3: "2" if is_company else "1", 4: kana, 5: kanji,
        6: zip_code, 7: address, 8: number, 9: ("1", "2", "3", "9", "")[index % 5],
        10: office_name, 11: office_code,
        12: "01"[index % 2] + "123"[index % 3],
        14: "" if index % 2 else f"2025{1 + index % 12:02d}",
        13: ("見本指数先物", "墨先物ミニ", "小豆")[index % 3], 15: ("", "ZZD", "zze")[index % 3],
        16: str(1 + index % 2),
        **days((5, 6, 1 + index % 12, day), (5, 7, 1 + index // 3 % 12, day)),
        25: str(1 + index % 3), 26: str(1 + index),
        27: str(1000 + index * 999) if index % 3 else "", 28: "" if index % 3 else str(index * 555),
        29: str(cost), 30: str(cost // 11), 31: "" if index % 2 else "1",
        32: ("本店営業部", "升目支店", "Web取引センター")[index % 3], 33: f"{1 + index % 999:03d}", 34: "",
    }
    return complete(record, changes, 34)


def passing():
    return [
        report(0),
        # Settled on the first record's day, and on the day of the opening
        report(1, days((5, 7, 1, 6), (5, 7, 1, 6))),
        report(2),
        report(3),
        # The first day allowed for the opening; the change of era
        report(4, days((4, 31, 1, 1), (5, 7, 2, 3))),
        report(5, days((4, 31, 5, 1), (5, 7, 2, 3))),
        report(6, days((4, 32, 3, 31), (5, 7, 12, 31))),
        report(7, days((5, 6, 2, 29), (5, 7, 2, 28))),
        # Leading zeros are suppressed in number, gain and loss, not in the costs
        report(8, {26: "000000010", 27: "000000005000", 28: "", 29: "000000330", 30: "00030"}),
        report(9, {26: "0", 27: "0", 28: ""}),
        None,
        report(10, {27: "", 28: "0"}),
        report(11, {**FUTURE, 15: "Xxx"}),
        report(12, {**OPTION, 15: ""}),
        report(13, {3: "2", 4: "Ａ＆Ｂ (A&B) ホールディングス", 5: "A&Bホールディングス", 8: hojin("970000009990")}),
        report(14, {5: "<信託口> \"見本\" & '例'", 34: "①～Ⅲ期分－㈱髙架∥別口"}),
        report(15, {4: "ア" * 40, 5: "亜" * 40, 7: "町" * 60, 13: "品" * 20, 32: "店" * 30,
                    34: "摘" * 50}),
        report(16, {10: "ソロバン島", 11: "90607"}),
        report(17, {2: "a b-C 000001", 32: "　本店　"}),
        report(18, {29: "0", 30: "", 31: ""}),
        report(19, {27: "999999999999", 28: "", 29: "999999999", 30: "99999999"}),
        report(20, {33: "000", 25: "3"}),
    ] + [report(index) for index in range(21, 59)]


def failing():
    return [
        (report(0), [], "right; it settles first"),
        (report(1, {2: "FX000000001"}), [(2, 8)], "number of 11 bytes"),
        (report(2, {2: "FX.000000002", 3: ""}), [(2, 6), (3, 1)],
         "full stop; no kind of customer: the number's check digit isn't asked for then"),
        (report(3, {4: "ｴｰｱﾝﾄﾞﾋﾞｰ", 5: ""}), [(4, 34), (5, 1)], "half-width kana; no name"),
        (report(4, {4: "亜", 5: "ﾅﾏｴ"}), [(4, 34), (5, 6)], "kanji; half-width kana"),
        (report(5, {4: "ア" * 41, 7: ""}), [(4, 7), (7, 1)], "name of 41 characters; no address"),
        (report(6, {6: "0000000", 8: ""}), [(6, 10), (8, 1)],
         "postal code of noughts: `except` reports HE70010E in place of its own HE99999E; no "
         "number"),
        (report(8, {3: "1", 8: spoilt_tail(kojin("80123459999"))}), [(8, 10)], "wrong check digit"),
        (report(9, {3: "2", 8: kojin("80123459999")}), [(8, 8)],
         "a company with a person's number: 12 digits in place of 13"),
        (report(10, {9: "4", 8: "8012-3459999"}), [(8, 4), (9, 9)], "hyphen; unknown way"),
        (report(11, {10: "見本北", 11: "90101"}), [(10, 11, 2)],
         "another office's name: the error covers both columns"),
        (None, [], "not a record"),
        (report(12, {10: "税務署" * 6, 11: "9010X"}), [(10, 7), (11, 4)],
         "name of 18 characters; letter"),
        (report(13, {**FUTURE, 14: ""}), [(14, 1)], "a future without its month"),
        (report(14, {**OPTION, 14: "202512"}), [(14, 5)], "no month is wanted for this kind"),
        (report(15, {**FUTURE, 12: "1", 14: "2025-1"}), [(12, 9), (14, 4)],
         "kind of one digit: lists hold whole texts; hyphen"),
        (report(16, {**FUTURE, 13: "Gold", 14: "20251"}), [(13, 6), (14, 8)],
         "half-width letters: `multibyte` reports HE70006E in place of its own HE99999E; 5 digits"),
        (report(17, {13: "", 15: "ZZ1"}), [(13, 1), (15, 32)],
         "no name; digit: `alphabet` reports HE70032E in place of its own HE70006E"),
        (report(18, {13: "品" * 21, 15: "ZZ"}), [(13, 7), (15, 8)], "21 characters; two letters"),
        (report(19, {15: "XXX", 16: "3"}), [(15, 9), (16, 9)],
         "no currency: `except` reports HE70009E in place of its own HE99999E; unknown kind"),
        (report(20, days((4, 30, 12, 31), (5, 7, 2, 3))), [(17, 20, 10)],
         "opened before the first day allowed"),
        (report(21, days((5, 6, 6, 31), (5, 7, 2, 3))), [(17, 20, 12)],
         "opened on 31 June; the settlement isn't compared with it"),
        (report(22, days((5, 7, 2, 4), (5, 7, 2, 3))), [(21, 24, 25)],
         "settled before the opening"),
        (report(23, days((5, 6, 2, 4), (5, 7, 1, 5))), [(21, 24, 25)],
         "settled before the first record"),
        (report(24, days((5, 7, 1, 6), (5, 7, 1, 5))), [(21, 24, 25)],
         "settled before the opening, which is found first, and before the first record"),
        (report(25, {**no_date(17), 21: "4"}), [(17, 1), (18, 1), (19, 1), (20, 1), (21, 9)],
         "no opening; settlement in another era"),
        (report(26, days((5, 6, 6, 1), (5, 7, 4, 31))), [(21, 24, 12)], "settled on 31 April"),
        (None, [], "not a record"),
        (report(27, {25: "", 26: ""}), [(25, 1), (26, 1)], "no way of settling; no number"),
        (report(28, {25: "4", 26: "1234567890"}), [(25, 9), (26, 8)], "unknown way; 10 digits"),
        (report(29, {27: "", 28: ""}), [(27, 1)], "neither gain nor loss: reported for the gain"),
        (report(30, {**GAIN, 28: "1"}), [(28, 5)], "gain and loss"),
        (report(31, {27: "-500", 28: ""}), [(27, 4)], "a sign is no digit"),
        (report(32, {**LOSS, 28: "5 000", 29: ""}), [(28, 4), (29, 1)], "blank; no costs"),
        (report(33, {29: "1100", 30: "1100"}), [(30, 10)], "the costs are all tax"),
        (report(34, {29: "11OO", 30: "11OO"}), [(29, 4), (30, 4)], "letters O in place of noughts"),
        (report(35, {31: "4", 32: ""}), [(31, 9), (32, 1)], "unknown way of rounding; no branch"),
        (report(36, {32: "ﾎﾝﾃﾝ", 33: "1"}), [(32, 6), (33, 8)], "half-width kana; one digit"),
        (report(37, {33: "１２３", 34: "ﾍﾞﾂｸﾞﾁ"}), [(33, 4), (34, 6)],
         "full-width digits; half-width kana"),
        (report(38, {34: "摘" * 50 + "x"}), [(34, 8)], "remarks of 101 bytes"),
        (report(40, {column: "" for column in range(2, 35)}),
         [(2, 1), (3, 1), (4, 1), (5, 1), (6, 1), (7, 1), (8, 1), (10, 1), (11, 1), (12, 1),
          (13, 1), (16, 1), (17, 1), (18, 1), (19, 1), (20, 1), (21, 1), (22, 1), (23, 1), (24, 1),
          (25, 1), (26, 1), (27, 1), (29, 1), (32, 1), (33, 1)], "nothing but the type id"),
        (report(41, {3: "9", 6: "x", 8: "x", 17: "3", 18: "x", 19: "x", 20: "x", 22: "x", 23: "x",
                     24: "x", 26: "x"}),
         [(3, 9), (6, 4), (8, 4), (17, 9), (18, 4), (19, 4), (20, 4), (22, 4), (23, 4), (24, 4),
          (26, 4)], "letters in place of numbers; unknown kind; an era that isn't allowed"),
        (report(42, {5: "亜" * 41, 6: "123", 7: "町" * 61, 11: "9010", 18: "100", 19: "13", 20: "32",
                     22: "100", 23: "13", 24: "32", 27: "", 28: "1" * 13, 29: "1" * 10,
                     30: "1" * 10, 32: "店" * 31}),
         [(5, 7), (6, 8), (7, 7), (11, 8), (18, 9), (19, 9), (20, 9), (22, 9), (23, 9), (24, 9),
          (28, 8), (29, 8), (30, 8), (32, 7)], "too long or too great"),
        (report(43, {7: "ﾏﾁ", 10: "ﾐﾎﾝ", 27: "1" * 13, 28: ""}), [(7, 6), (10, 6), (27, 8)],
         "half-width kana; 13 digits"),
        (report(44, {11: "99999"}), [(11, 11)],
         "unknown tax office; name and code aren't compared then"),
        (report(45, days((4, 32, 4, 1), (5, 7, 2, 3))), [(17, 20, 12)],
         "opened on a date of the old era after its end"),
        (report(39), [], "right"),
    ]

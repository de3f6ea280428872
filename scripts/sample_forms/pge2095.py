"""Sales of gold and other bullion (type id 109): 29 columns, one record per sale."""

from sample_forms.common import (
    PAYERS, complete, date, hojin, kojin, name, office, place, spoilt_tail,
)

FORM = "PGE2095"

INGOT, PLATINUM, COIN = "1", "2", "3"


def report(index, kind=INGOT, changes=None):
    """One right record, by column number from 1. `changes` replaces cells."""
    kanji, kana = name(index)
    zip_code, address = place(index)
    office_name, office_code = office(index)
    record = {
        1: "109", 2: str(1 + index % 2), 3: "5", 4: str(2 + index % 6),
        5: f"AU-{index * 71 + 1000}",
        6: kana, 7: kanji, 8: zip_code, 9: address,
        10: kojin(f"{30123450000 + index * 6011:011d}"),
        11: kind, 12: "" if kind == COIN else str(100 + index * 25),
        13: str(1 + index) if kind == COIN else "",
        14: str(7800 + index * 13), 15: str(2000000 + index * 180325),
        **date(16, 5, 2 + index % 6, 1 + index % 12, 1 + index * 3 % 28),
        20: "0", 21: "", 22: ("見本本店", "墨壺支店", "升目営業所")[index % 3],
        23: f"0999{index * 3571 % 1000000:06d}", 24: office_name, 25: office_code,
        26: "123"[index % 3], 27: "", 28: "", 29: "",
    }
    return complete(record, changes, 29)


def passing():
    payer, payer_address, payer_number = PAYERS[0]
    return [
        report(0),
        report(1, PLATINUM),
        report(2, COIN),
        # A company; a personal number of 13 digits; no number
        report(3, INGOT, {6: "カブシキガイシャ　ミホンセイシ", 7: payer, 9: payer_address, 10: payer_number}),
        report(4, COIN, {10: "0" + kojin("30123459999")}),
        report(5, PLATINUM, {10: ""}),
        # A coin with its weight too; leading zeros
        report(6, COIN, {12: "00031", 13: "00012", 14: "0000", 15: "000001500000"}),
        report(7, INGOT, {20: "1", 21: "250000"}),
        report(8, INGOT, {26: "9", 27: "在留カード（写し）"}),
        # A correction of an amount that was wrong
        report(9, PLATINUM, {2: "3", 28: "1999999"}),
        # The first day that counts; the change of era
        report(10, INGOT, {3: "5", 4: "1", **date(16, 5, 1, 5, 1)}),
        report(11, COIN, {3: "4", 4: "31", **date(16, 4, 31, 5, 1)}),
        report(12, INGOT, {3: "4", 4: "32", **date(16, 4, 32, 3, 31)}),
        report(13, INGOT, date(16, 5, 6, 2, 29)),
        # Characters beyond JIS X 0208 where they are taken; characters that XML escapes
        report(14, COIN, {9: "紙原県髙欄市①番地～Ⅳ", 29: "<金貨> & \"記念\" '銀貨' －∥"}),
        report(15, PLATINUM, {14: "", 23: ""}),
        # As long as it may be
        report(16, INGOT, {5: "ABCDEFGH-1234567", 6: "ア" * 30, 7: "亜" * 30, 9: "見" * 60,
                           12: "9999999", 15: "999999999999", 22: "店" * 30, 29: "摘" * 100}),
        # Blanks around values are trimmed
        report(17, COIN, {6: "　ソロバン　タマミ ", 7: " 算盤　珠美　", 22: " 算盤通支店　"}),
        None,
        report(18, INGOT, {4: "01", **date(16, 5, "02", "01", "09")}),
    ] + [report(index, "123"[index * 5 % 3]) for index in range(19, 34)]


def failing():
    return [
        (report(0), [], "right"),
        (report(1, INGOT, {2: "4", 5: "AU_1"}), [(2, 9), (5, 6)],
         "unknown kind of handing in, so nothing is asked of the amount before a correction; "
         "underscore in the number"),
        (report(2, COIN, {3: "5", 4: "14"}), [(3, 4, 25)], "2032: not in the list of years"),
        (report(3, INGOT, {4: "x"}), [(4, 4)],
         "letter in the year: the year isn't looked up in the list then"),
        (report(4, PLATINUM, {5: "ABCDEFGH-12345678"}), [(5, 8)], "number of 17 bytes"),
        (report(5, INGOT, {6: "チョウアイ タダシ", 7: "帳合－正"}), [(6, 3), (7, 6)],
         "half-width blank in the kana name; a full-width hyphen has no place in a name of this "
         "family"),
        (None, [], "an empty line isn't stored, so the next record has the next number"),
        (report(6, INGOT, {7: "髙欄　渚", 8: "0000000"}), [(7, 6), (8, 10)],
         "character beyond JIS X 0208; postal code of zeros: `except` reports HE70010E in place of "
         "its own HE99999E"),
        (report(7, COIN, {9: ""}), [(9, 1)], "no address"),
        (report(8, INGOT, {10: spoilt_tail(kojin("30123450001"))}), [(10, 10)],
         "personal number with a wrong check digit"),
        (report(9, INGOT, {10: spoilt_tail(hojin("990000000031"))}), [(10, 10)],
         "corporate number with a wrong check digit"),
        (report(10, INGOT, {10: "12345678901234"}), [(10, 8)], "number of 14 digits"),
        (report(11, INGOT, {12: ""}), [(12, 1)], "an ingot without a weight"),
        (report(12, PLATINUM, {12: "0", 13: "2"}), [(12, 9), (13, 5)],
         "a weight of 0 grams; only coins are counted"),
        (report(13, COIN, {13: ""}), [(13, 1)], "coins that nobody counted"),
        (report(14, INGOT, {11: "4", 12: "", 13: "7"}), [(11, 9)],
         "unknown kind of bullion: neither weight nor number is asked for, and none is forbidden"),
        (report(15, INGOT, {14: "7.8", 15: "0"}), [(14, 4), (15, 9)],
         "a decimal point is no digit; nothing paid"),
        (report(16, COIN, date(16, 4, 31, 4, 30)), [(16, 19, 10)],
         "the day before the first allowed"),
        (report(17, INGOT, date(16, 4, 32, 4, 1)), [(16, 19, 12)],
         "year 32 of an era is carried over until its March only"),
        (report(18, INGOT, {17: "", 18: "13"}), [(17, 1), (18, 9)],
         "no year, month 13: whether the whole is a date isn't asked then"),
        (report(19, PLATINUM, {20: "1", 21: ""}), [(21, 1)], "set off, but how much?"),
        (report(20, PLATINUM, {20: "0", 21: "100"}), [(21, 5)],
         "an amount, but nothing was set off"),
        (report(21, INGOT, {22: "見本Ｂank", 23: "9990001234"}), [(22, 6), (23, 10)],
         "half-width letters: `multibyte` reports HE70006E in place of its own HE99999E; a "
         "telephone number that doesn't begin with 0"),
        (report(22, INGOT, {24: "見本北", 25: "90101"}), [(24, 25, 2)],
         "another office's name: the error covers both columns"),
        (report(23, COIN, {25: "90200"}), [(25, 11)], "the code of a regional bureau"),
        (report(24, INGOT, {26: "9", 27: ""}), [(27, 1)], "document of kind 9 without its name"),
        (report(25, INGOT, {26: "1", 27: "旅券"}), [(27, 5)], "the name is for kind 9 alone"),
        (report(26, INGOT, {2: "3"}), [(28, 1)], "a correction without the amount before it"),
        (report(27, INGOT, {2: "1", 28: "5"}), [(28, 5)], "an amount before, but no correction"),
        (report(28, INGOT, {2: "3", 15: "123456", 28: "123456"}), [(28, 31)],
         "the corrected amount is the amount before: `exceptcolumn` reports HE70031E in place of "
         "its own HE70010E"),
        (report(29, INGOT, {2: "3", 15: "12x", 28: "12x"}), [(15, 4), (28, 4)],
         "no digits, twice: the two aren't compared then"),
        (report(30, INGOT, {29: "摘" * 100 + "a"}), [(29, 8)], "remarks of 201 bytes"),
        (report(31, COIN, {2: "", 6: "", 11: "", 13: "", 20: "2", 29: "ﾃｷﾖｳ"}),
         [(2, 1), (6, 1), (11, 1), (20, 9), (29, 6)], "five errors, in the order of the form"),
        (report(40, INGOT, dict.fromkeys(range(2, 30), "")),
         [(column, 1) for column in (2, 3, 4, 5, 6, 7, 8, 9, 11, 15, 16, 17, 18, 19, 20, 22, 24, 25,
                                     26)], "nothing but the type id"),
        (report(41, INGOT, dict.fromkeys(range(2, 30), "x")),
         [(2, 9), (3, 9), (4, 4), (6, 3), (7, 6), (8, 4), (10, 4), (11, 9), (12, 4), (13, 4),
          (14, 4), (15, 4), (16, 9), (17, 4), (18, 4), (19, 4), (20, 9), (21, 4), (22, 6), (23, 4),
          (25, 4), (26, 9), (28, 4)], "the letter x in every cell"),
        (report(42, COIN, {
            2: "3", 6: "ア" * 31, 7: "亜" * 31, 9: "住" * 61, 13: "1" * 6, 14: "1" * 10, 15: "1" * 13,
            20: "1", 21: "1" * 13, 22: "店" * 31, 23: "0" * 12, 24: "局" * 16, 26: "9", 27: "名" * 21,
            28: "1" * 13,
        }), [(6, 7), (7, 7), (9, 7), (13, 8), (14, 8), (15, 8), (21, 8), (22, 7), (23, 8), (24, 7),
             (27, 7), (28, 8)], "each one too long by one"),
        (report(43, INGOT, {4: "100", 8: "999010", 10: "12345678901", 17: "100", 18: "13", 19: "32",
                            25: "9010"}),
         [(4, 9), (8, 8), (10, 8), (17, 9), (18, 9), (19, 9), (25, 8)],
         "beyond the range; too short by one"),
        (report(44, INGOT, {9: "ｱ", 10: "0" + spoilt_tail(kojin("30123450007")), 24: "ｱ", 26: "9",
                            27: "ｱ"}), [(9, 6), (10, 10), (24, 6), (27, 6)],
         "half-width kana; 13 digits with a leading 0 are a personal number"),
        (report(32), [], "right"),
    ]

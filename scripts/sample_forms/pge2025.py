"""Fee statements (type id 102): one record per payee and kind of fee."""

from sample_forms.common import company, complete, hojin, kojin, name, place, spoilt_tail

FORM = "PGE2025"

WITHHELD = {13: "1", 14: "1", 17: "10210", 18: ""}
NOT_WITHHELD = {13: "0", 14: "", 17: "", 18: ""}
ACCOUNT = {22: "1", 23: "0123", 24: "001", 25: "0001234"}
CASH = {22: "2", 23: "", 24: "", 25: ""}
AT_HOME = {11: "", 12: "1", 8: "9990101"}
ABROAD = {11: "ZZ", 12: "2", 8: ""}


def day(year, month, day_of_month):
    return {19: str(year), 20: str(month), 21: str(day_of_month)}


def report(index, changes=None):
    """One right record, by column number from 1. `changes` replaces cells."""
    is_company = index % 3 == 2
    kanji, kana, number = company(index) if is_company else (
        *name(index + 2), kojin(f"{40123450000 + index * 811:011d}"))
    zip_code, address = place(index + 1)
    kind = ("01", "02", "03", "04", "05", "99")[index % 6]
    paid = 30000 + index * 7777
    record = {
        1: "102", 2: f"FEE{index:05d}", 3: kind, 4: "速記の謝金" if kind == "99" else "",
        5: "2" if is_company else "1", 6: kana, 7: kanji, 8: zip_code, 9: address,
        10: number if index % 7 else "", 11: "", 12: "1",
        **(NOT_WITHHELD if is_company else
           {13: "1", 14: str(1 + index % 3), 17: str(paid // 10), 18: "" if index % 4 else "0"}),
        15: str(paid), 16: str(paid // 11), **day(2025, 1 + index % 12, 1 + index * 5 % 28),
        **(ACCOUNT if index % 2 else CASH),
        26: "" if index % 3 else f"payee{index}@example.invalid",
        27: ("", "", "1", "", "2")[index % 5], 28: "",
    }
    return complete(record, changes, 28)


def passing():
    return [
        report(0),
        report(1),
        report(2),
        # Abroad: a country in place of a postal code; both may stand
        report(3, ABROAD),
        report(4, {**ABROAD, 8: "9990203", 11: "zz"}),
        # The name in kana takes full-width and half-width letters
        report(5, {5: "2", 6: "Ａ＆Ｂホールディングス (A&B)", 7: "A&Bホールディングス（株）", 10: ""}),
        # Leading zeros are suppressed in the amount, not in the taxes
        report(6, {**WITHHELD, 15: "000000100000", 16: "00009090", 17: "00010210"}),
        report(7, {**NOT_WITHHELD, 15: "0", 16: ""}),
        # 29 February
        report(8, day(2024, 2, 29)),
        report(9, {19: "2025", 20: "01", 21: "09"}),
        report(10, day(100, 1, 1) | {19: "0100"}),
        None,
        report(11, {3: "99", 4: "通訳および翻訳の報酬"}),
        report(12, {28: "<源泉> \"要\" & '確認'"}),
        report(13, {28: "①～Ⅲ期分－㈱髙架", 9: "紙原県見本市例町１－２　A棟3F"}),
        report(14, {6: "ア" * 40, 7: "亜" * 40, 9: "町" * 60, 28: "摘" * 50}),
        report(15, {**ACCOUNT, 22: "1"}),
        report(16, {22: "3", 23: "", 24: "", 25: ""}),
        report(17, {26: "!\"#$%&'()*+-./:;<=>?@[\\]^_`{|}~"}),
        report(18, {2: "a B-C 01", 7: "　附箋　あかね　"}),
        report(19, {15: "999999999999", 16: "99999999999"}),
        report(20, {**WITHHELD, 14: "3", 17: "0", 18: "99999999999"}),
    ] + [report(index) for index in range(21, 55)]


def failing():
    return [
        (report(0), [], "right"),
        (report(1, {2: "FEE00001X"}), [(2, 8)], "number of 9 bytes"),
        (report(2, {2: "FEE_0002", 3: "06"}), [(2, 6), (3, 9)],
         "underscore; an unknown kind, which asks for nothing in column 4"),
        (report(3, {3: "99", 4: ""}), [(4, 1)], "another kind of fee without a name"),
        (report(4, {3: "01", 4: "講演"}), [(4, 5)], "a known kind has no name"),
        (report(5, {3: "99", 4: "Talk"}), [(4, 6)],
         "half-width letters: `multibyte` reports HE70006E in place of its own HE99999E"),
        (report(6, {3: "1"}), [(3, 9)], "kind of one digit: lists hold whole texts"),
        (report(7, {5: "3", 10: "123"}), [(5, 9)],
         "unknown kind of payee: what the number must look like isn't asked then"),
        (report(8, {6: "ﾋﾅｶﾞﾀ", 7: ""}), [(6, 34), (7, 1)], "half-width kana; no name"),
        (report(9, {7: "ﾋﾅｶﾞﾀ", 9: ""}), [(7, 6), (9, 1)], "half-width kana; no address"),
        (report(10, {7: "社" * 41, 6: "ア" * 41}), [(6, 7), (7, 7)], "names of 41 characters"),
        (None, [], "not a record"),
        (report(11, {**AT_HOME, 8: ""}), [(8, 1)], "at home without a postal code"),
        (report(12, {**AT_HOME, 11: "ZZ"}), [(11, 5)], "at home with a country"),
        (report(13, {**ABROAD, 11: ""}), [(11, 1)], "abroad without a country"),
        (report(14, {**ABROAD, 11: "Z1", 8: "999010"}), [(11, 32), (8, 8)],
         "digit in the country: `alphabet` reports HE70032E in place of its own HE70006E; column 8 "
         "stands behind column 11 in the form"),
        (report(15, {**ABROAD, 11: "ZZZ"}), [(11, 8)], "country of three letters"),
        (report(16, {8: "", 12: "3"}), [(12, 9)],
         "neither at home nor abroad: neither country nor postal code is asked for"),
        (report(18, {5: "1", 10: hojin("970000000123")}), [(10, 8)],
         "a person with a company's number: 13 digits in place of 12"),
        (report(17, {5: "2", 10: spoilt_tail(hojin("970000000123"))}), [(10, 10)],
         "wrong check digit"),
        (report(19, {8: "9999999", 10: "4012345O811"}), [(8, 10), (10, 4)],
         "postal code of nines; letter O in the number"),
        (report(20, {15: "10000", 16: "10000"}), [(16, 10)], "the amount is all tax"),
        (report(21, {15: "", 16: "1234567890123"}), [(15, 1), (16, 8)],
         "no amount; consumption tax of 13 digits"),
        (report(22, {15: "-5"}), [(15, 4)], "a sign is no digit"),
        (report(23, {**WITHHELD, 14: "", 17: ""}), [(14, 1), (17, 1)], "withheld at what rate?"),
        (report(24, {**WITHHELD, 13: "0", 18: "0"}), [(14, 5), (17, 5), (18, 5)],
         "not withheld: even 0 isn't wanted"),
        (report(25, {**WITHHELD, 13: "2", 14: "4", 18: "x"}), [(13, 9), (14, 9), (18, 4)],
         "neither withheld nor not; unknown rate; letter"),
        (None, [], "not a record"),
        (report(26, day(2025, 2, 29)), [(19, 21, 12)], "29 February of a year that has none"),
        (report(27, {19: "0099"}), [(19, 21, 12)], "a year of two digits"),
        (report(28, {19: "25", 20: "13"}), [(19, 8), (20, 9)],
         "the whole date isn't checked when a part is wrong"),
        (report(29, {20: "", 21: "1日"}), [(20, 1), (21, 4)], "no month; not only digits"),
        (report(30, {**ACCOUNT, 23: "", 24: "12", 25: "12345678"}), [(23, 1), (24, 8), (25, 8)],
         "account: no bank, branch of 2 digits, number of 8"),
        (report(31, {**CASH, 25: "0001234"}), [(25, 5)], "cash has no account"),
        (report(32, {**ACCOUNT, 22: "0", 25: "1234-67"}), [(22, 9), (25, 4)],
         "unknown way of payment; hyphen"),
        (report(33, {26: "見本@example.invalid", 27: "3"}), [(26, 35), (27, 9)],
         "full-width characters in a mail address; unknown kind of correction"),
        (report(34, {26: "a" * 65, 28: "摘" * 51}), [(26, 8), (28, 8)],
         "mail address of 65 bytes; remarks of 102"),
        (report(35, {28: "ｼｬｷﾝ"}), [(28, 6)], "half-width kana"),
        (report(37, {column: "" for column in range(2, 29)}),
         [(2, 1), (3, 1), (5, 1), (6, 1), (7, 1), (12, 1), (9, 1), (15, 1), (13, 1), (19, 1),
          (20, 1), (21, 1), (22, 1)], "nothing but the type id"),
        (report(38, {**AT_HOME, **WITHHELD, **ACCOUNT, 5: "3", 8: "x", 10: "x", 15: "x", 16: "y",
                     17: "x", 18: "x", 19: "x", 20: "x", 21: "x", 23: "x", 24: "x", 25: "x"}),
         [(5, 9), (8, 4), (10, 4), (15, 4), (16, 4), (17, 4), (18, 4), (19, 4), (20, 4), (21, 4),
          (23, 4), (24, 4), (25, 4)], "letters in place of numbers; unknown kind of payee"),
        (report(39, {**WITHHELD, **ACCOUNT, 3: "99", 4: "目" * 21, 9: "町" * 61, 15: "1" * 13,
                     17: "1" * 12, 18: "1" * 12, 21: "32", 23: "123"}),
         [(4, 7), (9, 7), (15, 8), (17, 8), (18, 8), (21, 9), (23, 8)], "too long or too great"),
        (report(40, {**CASH, 9: "ﾏﾁ", 23: "0123", 24: "001"}), [(9, 6), (23, 5), (24, 5)],
         "half-width kana; cash has no bank and no branch"),
        (report(41, {**ACCOUNT, 24: "", 25: ""}), [(24, 1), (25, 1)], "neither branch nor account"),
        (report(36), [], "right"),
    ]

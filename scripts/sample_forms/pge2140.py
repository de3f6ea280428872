"""Transfers of shares (type id 114): 38 columns, one record per transfer."""

from sample_forms.common import (
    complete, date, hojin, kojin, name, no_date, office, place, spoilt_tail,
)

FORM = "PGE2140"

STOCKS = (("見本製紙", "9X01"), ("墨壺興業", "9X02"), ("升目ＨＤ－優先株", "9x3A"), ("余白債２号", ""))


def report(index, changes=None):
    """One right record of an adult with a gain, by column number from 1. `changes` replaces
    cells."""
    kanji, kana = name(index + 3)
    zip_code, address = place(index + 6)
    office_name, office_code = office(index + 5)
    stock, code = STOCKS[index % 4]
    year, month, day = 2 + index % 6, 1 + index % 12, 1 + index * 7 % 25
    proceeds = 800000 + index * 43210
    gain = proceeds // 4
    record = {
        1: "114", 2: str(1 + index % 2), 3: "5", 4: str(year),
        5: f"{1000 + index * 73}-{'AB'[index % 2]}0 01",
        6: kana, 7: kanji, 8: zip_code, 9: address,
        10: kojin(f"{72123450000 + index * 3109:011d}"),
        **date(11, 3, 25 + index % 39, 1 + index * 5 % 12, 1 + index % 28), 15: "0",
        16: stock, 17: code, 18: str(100 + index * 100), 19: "",
        20: "1" if code else "0", 21: "0", 22: "0" if code else "1",
        **date(23, 5, year, month, day), **date(27, 5, year, month, day + 3),
        31: str(proceeds), 32: str(proceeds - gain), 33: "1",
        34: str(gain * 15315 // 100000), 35: str(gain * 5 // 100),
        36: office_name, 37: office_code, 38: "",
    }
    return complete(record, changes, 38)


def minor(year, *birth):
    """Cells of a minor's account."""
    return {3: "5", 4: str(year), **date(11, *birth), 15: "1"}


def loss():
    """Cells of a loss: no tax."""
    return {33: "2", 34: "", 35: ""}


def passing():
    return [
        report(0),
        report(1, loss()),
        report(2, {32: "", 33: "", 34: "", 35: ""}),
        # 17 and 18 years old at the end of the year
        report(3, {**minor(7, 4, 20, 1, 1), **date(23, 5, 7, 3, 3), **date(27, 5, 7, 3, 3)}),
        report(4, {4: "7", **date(11, 4, 19, 12, 31), **date(23, 5, 7, 3, 3),
                   **date(27, 5, 7, 3, 6)}),
        report(5, {**minor(6, 5, 6, 2, 29), **date(23, 5, 6, 12, 30), **date(27, 5, 7, 1, 6)}),
        # No birth, no number: a company
        report(6, {10: hojin("950000000016"), **no_date(11)}),
        report(7, {10: ""}),
        report(8, {10: "0" + kojin("72123459999")}),
        # The first day that counts, in either era; the last one
        report(9, {3: "4", 4: "31", **date(23, 5, 1, 5, 1), **date(27, 5, 1, 5, 1)}),
        report(10, {3: "5", 4: "1", **date(23, 4, 31, 5, 1), **date(27, 4, 31, 5, 8)}),
        report(11, {3: "5", 4: "13", **date(23, 5, 13, 12, 31), **date(27, 5, 14, 1, 5)}),
        report(12, {**date(11, 1, 45, 7, 29)}),
        # Several markets; part of a share
        report(13, {19: "125", 20: "1", 21: "1", 22: "1"}),
        report(14, {17: "", 18: "000", 19: "500", 20: "0", 21: "1"}),
        report(15, {18: "0000000100", 31: "000000001000", 32: "000", 34: "0", 35: "0"}),
        # As long as it may be
        report(16, {5: "ABCDEFGHIJ", 6: "ア" * 30, 7: "亜" * 30, 9: "見" * 60, 16: "株" * 40,
                    18: "9" * 10, 31: "9" * 12, 32: "9" * 12, 34: "9" * 12, 35: "9" * 12,
                    38: "摘" * 75}),
        report(17, {16: "A&B <優先> \"甲\" 'Ⅳ'", 9: "①番地～髙欄", 38: "－∥"}),
        None,
        report(18, {7: "　筆塚　文 ", 16: " 見本 製紙　"}),
    ] + [report(index, loss() if index % 3 == 1 else None) for index in range(19, 36)]


def failing():
    return [
        (report(0), [], "right"),
        (report(1, {2: "3"}), [(2, 9)], "unknown kind of handing in"),
        (report(2, {3: "5", 4: "14"}), [(3, 4, 9)],
         "2032: `containyear` reports HE70009E in place of its own HE70025E; the year of the "
         "transfer isn't compared with it, nor is the age"),
        (report(3, {4: "0"}), [(4, 9)], "year 0"),
        (report(4, {5: "1234-5678"}), [(5, 8)], "account of 9 bytes"),
        (report(5, {5: "1234_A0 01"}), [(5, 6)], "underscore in the account"),
        (report(6, {6: "ヨハクＡ", 7: "余白　健～"}), [(6, 3), (7, 6)],
         "full-width letter in the kana name; a wave dash, which this family doesn't map to the "
         "one of JIS X 0208"),
        (report(7, {8: "99901010", 9: "住" * 61}), [(8, 8), (9, 7)],
         "postal code of 8 digits; address of 61 characters"),
        (report(8, {10: spoilt_tail(kojin("72123450808"))}), [(10, 10)],
         "personal number with a wrong check digit"),
        (report(9, {12: ""}), [(12, 1)], "birth without a year: all its columns are wanted"),
        (report(10, date(11, 4, 31, 5, 1)), [(11, 14, 12)],
         "a birth has to be told in the era that it lies in; no age is reckoned then"),
        (report(11, {4: "7", **date(11, 4, 20, 1, 1), **date(23, 5, 7, 3, 3),
                     **date(27, 5, 7, 3, 3)}),
         [(11, 10)], "17 years old at the end of the year, but no minor's account"),
        (report(12, {**minor(7, 4, 19, 12, 31), **date(23, 5, 7, 3, 3), **date(27, 5, 7, 3, 3)}),
         [(11, 14, 10)],
         "18 years old on the last day of the year: the check for minors covers the four columns"),
        (report(13, {15: "2"}), [(15, 9)], "unknown mark: no age is asked for"),
        (report(14, {16: "", 17: "9X"}), [(16, 1), (17, 8)],
         "no name of the stock; code of 2 bytes"),
        (report(15, {18: "1.5", 19: "5"}), [(18, 4), (19, 8)],
         "decimal point; one decimal place"),
        (report(16, {20: "0", 21: "0", 22: "0"}), [(22, 30)],
         "no market: `anycontain` reports HE70030E in place of its own HE70009E"),
        (report(17, {20: "x", 21: "", 22: "0"}), [(20, 9), (21, 1)],
         "whether there is any market isn't asked then"),
        (None, [], "an empty line isn't stored"),
        (report(18, {3: "4", 4: "31", **date(23, 4, 31, 4, 30), **date(27, 5, 1, 5, 1)}),
         [(23, 26, 10)], "the day before the first one that counts"),
        (report(19, {**date(23, 5, 8, 1, 1), **date(27, 5, 8, 1, 4), 4: "7"}), [(23, 24, 25)],
         "in the year behind the statement's: era and year are compared, and reported"),
        (report(20, {**date(23, 5, 14, 1, 1), **date(27, 5, 14, 1, 4)}), [(23, 26, 10)],
         "the day after the last one that counts; the year isn't compared then"),
        (report(21, {4: "7", **date(23, 5, 7, 9, 10), **date(27, 5, 7, 9, 9)}), [(23, 26, 25)],
         "settled before the transfer: reported at the transfer"),
        (report(22, {4: "7", **date(23, 5, 7, 2, 29), **date(27, 5, 1, 5, 1)}), [(23, 26, 12)],
         "29 February of a common year: the settlement isn't compared with it"),
        (report(23, {27: "", 28: "x", 29: "", 30: "0"}), [(27, 1), (28, 4), (29, 1), (30, 9)],
         "nothing right in the day of the settlement"),
        (report(24, {31: "0", 32: "-1"}), [(31, 9), (32, 4)], "nothing paid; sign"),
        (report(25, {33: ""}), [(33, 1)],
         "costs, but neither gain nor loss; tax isn't forbidden without a loss"),
        (report(26, {32: "", 33: "1"}), [(33, 5)], "a gain without costs"),
        (report(27, {33: "3"}), [(33, 9)], "neither gain nor loss"),
        (report(28, {33: "2"}), [(34, 5)], "tax on a loss; the local tax goes with the state's"),
        (report(29, {34: ""}), [(35, 5)], "local tax without the state's"),
        (report(30, {35: ""}), [(35, 1)], "the state's tax without a local one"),
        (report(31, {36: "表紙浦", 37: "90210"}), [(36, 37, 2)], "another office's name"),
        (report(32, {37: "9020x", 38: "摘" * 75 + "a"}), [(37, 4), (38, 8)],
         "letter in the office's code; remarks of 151 bytes"),
        (report(40, dict.fromkeys(range(2, 39), "")),
         [(column, 1) for column in (2, 3, 4, 5, 6, 7, 8, 9, 15, 16, 18, 20, 21, 22, *range(23, 32),
                                     36, 37)], "nothing but the type id"),
        (report(41, dict.fromkeys(range(2, 39), "x")),
         [(2, 9), (3, 9), (4, 4), (5, 8), (6, 3), (7, 6), (8, 4), (10, 4), (11, 9), (12, 4),
          (13, 4), (14, 4), (15, 9), (17, 8), (18, 4), (19, 4), (20, 9), (21, 9), (22, 9),
          (23, 9), (24, 4), (25, 4), (26, 4), (27, 9), (28, 4), (29, 4), (30, 4), (31, 4),
          (32, 4), (33, 9), (34, 4), (35, 4), (37, 4)], "the letter x in every cell"),
        (report(42, {
            6: "ア" * 31, 7: "亜" * 31, 10: "1" * 14, 16: "株" * 41, 18: "1" * 11, 31: "1" * 13,
            32: "1" * 13, 34: "1" * 13, 35: "1" * 13, 36: "局" * 16, 37: "901010",
        }), [(6, 7), (7, 7), (10, 8), (16, 7), (18, 8), (31, 8), (32, 8), (34, 8), (35, 8), (36, 7),
             (37, 8)], "each one too long by one"),
        (report(43, {
            8: "0000000", 9: "ｱ", 10: "12345678901", 11: "6", 12: "100", 13: "13", 14: "32",
            16: "ｱ", 17: "9-_1", 24: "100", 25: "13", 26: "32", 28: "0", 29: "13", 36: "ｱ",
            37: "90200", 38: "ｱ",
        }), [(8, 10), (9, 6), (10, 8), (11, 9), (12, 9), (13, 9), (14, 9), (16, 6), (17, 6),
             (24, 9), (25, 9), (26, 9), (28, 9), (29, 9), (36, 6), (37, 11), (38, 6)],
         "half-width kana; beyond the range; the code of a regional bureau"),
        (report(44, {10: "0" + spoilt_tail(kojin("72123450044")), 11: "", 13: "", 14: ""}),
         [(10, 10), (11, 1), (13, 1), (14, 1)],
         "13 digits with a leading 0 are a personal number; nothing but the year of a birth"),
        (report(45, {3: "4", 4: "32", 10: spoilt_tail(hojin("950000000027")),
                     **date(23, 4, 32, 4, 1), **date(27, 5, 2, 4, 1)}), [(10, 10), (23, 26, 12)],
         "corporate number with a wrong check digit; an era is carried over until March of its "
         "year 32 only"),
        (report(46, {3: "4", 4: "32", **date(23, 4, 32, 3, 31), **date(27, 4, 32, 4, 1)}),
         [(27, 30, 12)], "the same with the settlement"),
        (report(33), [], "right"),
    ]

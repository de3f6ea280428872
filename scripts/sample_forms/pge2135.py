"""Royalties (type id 113): 31 columns, one record per work and payee."""

from sample_forms.common import PAYERS, complete, hojin, kojin, name, place, seiri, spoilt_tail

FORM = "PGE2135"

TITLES = ("余白の歩き方", "帳簿をつける猫", "硯ヶ池の四季", "Ｔｈｅ　Ｌｅｄｇｅｒ", "続・能率手帖")


def western(column, year, month, day):
    """Cells of a Western date in three columns."""
    return {column: str(year), column + 1: str(month), column + 2: str(day)}


def no_end():
    """Cells of a contract that runs on."""
    return {18: "", 19: "", 20: "", 21: "", 22: ""}


def report(index, changes=None):
    """One right record of a resident, by column number from 1. `changes` replaces cells."""
    kanji, kana = name(index + 12)
    zip_code, address = place(index + 5)
    paid, first_year, years = 90000 + index * 7770, 2018 + index % 6, 1 + index % 4
    record = {
        1: "113", 2: "5", 3: str(2 + index % 6),
        4: seiri(f"{1200000000000 + index * 77003:013d}") if index % 2 else "",
        5: kana, 6: kanji, 7: "", 8: "1", 9: zip_code, 10: address, 11: "",
        12: kojin(f"{81123450000 + index * 1907:011d}"),
        13: "1234569"[index % 7], 14: TITLES[index % 5],
        **western(15, first_year, 1 + index % 12, 1 + index * 5 % 28),
        **western(18, first_year + years, 1 + index % 12, 1 + index * 5 % 28),
        21: str(years), 22: str(first_year + years + 1),
        23: str(paid), 24: str(paid * 1021 // 10000), 25: "1", 26: "",
        27: "1", 28: "01"[index % 2], 29: "", 30: "", 31: "",
    }
    return complete(record, changes, 31)


def abroad(country="ZZ"):
    """Cells of a payee abroad without a treaty."""
    return {8: "2", 9: "", 10: "12 Example Road", 11: country, 12: "", 25: "3"}


def passing():
    return [
        report(0),
        report(1),
        report(2, abroad()),
        # By a treaty
        report(3, {**abroad("xa"), 25: "4", 26: "Art. 12(2)", 24: "0"}),
        report(4, no_end()),
        # A company with a pen name; both of its numbers
        report(5, {5: "(カ)ミホンセイシ", 6: PAYERS[0][0], 7: "紙魚野文庫編集部", 12: PAYERS[0][2],
                   30: hojin("960000000014")}),
        report(6, {12: "0" + kojin("81123459999")}),
        report(7, {12: ""}),
        # A leap day; one day
        report(8, western(15, 2020, 2, 29)),
        report(9, {**western(15, 2024, 2, 29), **western(18, 2024, 2, 29), 21: "0", 22: "2025"}),
        # The year as a number, with leading zeros; the first one that a date can have
        report(10, {**western(15, 100, 1, 1), **western(18, "02025", "01", "09"), 22: "002026"}),
        report(11, {2: "4", 3: "31"}),
        report(12, {2: "5", 3: "13"}),
        report(13, {27: "", 28: "", 29: "1"}),
        report(14, {23: "0000120000", 24: "000", 25: "2"}),
        report(15, {14: "<題> & \"副題\" '髙欄'", 10: "紙原県①番地～Ⅳ", 31: "－∥￠￡￢"}),
        # As long as it may be
        report(16, {5: "ア" * 50, 6: "亜" * 50, 7: "筆" * 30, 10: "見" * 80, 14: "題" * 60,
                    23: "9" * 12, 24: "9" * 12, 31: "摘" * 100}),
        report(17, {**abroad(), 25: "4", 26: "A" * 20}),
        None,
        report(18, {6: " 伝票　繁　", 14: "　余白 の 研究 "}),
    ] + [report(index, abroad("QM") if index % 5 == 0 else None) for index in range(19, 36)]


def failing():
    return [
        (report(0), [], "right"),
        (report(1, {2: "3", 3: "64"}), [(2, 9)],
         "era 3: the year isn't looked up in the list then"),
        (report(2, {2: "4", 3: "30"}), [(2, 3, 25)], "2018: not in the list of years"),
        (report(3, {4: spoilt_tail(seiri("1200000000099"))}), [(4, 10)],
         "reference number with a wrong check digit"),
        (report(4, {4: "1234-5"}), [(4, 4)], "a hyphen: `checkdigit` tells it from a wrong digit"),
        (report(5, {5: "ミホン、タロウ", 6: "ﾐﾎﾝ"}), [(5, 34), (6, 6)],
         "a comma of Japanese text is no part of a kana name; half-width kana"),
        (report(6, {6: "亜" * 51, 7: "筆" * 31}), [(6, 7), (7, 7)], "names of 51 and 31 characters"),
        (report(7, {8: "0"}), [(8, 9)],
         "unknown residence: postal code, country and rate are neither wanted nor forbidden"),
        (report(8, {9: "", 11: "ZZ"}), [(9, 1), (11, 5)],
         "a resident without a postal code, but with a country"),
        (report(9, {**abroad(), 9: "9990101", 11: ""}), [(9, 5), (11, 1)],
         "abroad with a postal code, but without a country"),
        (report(10, abroad("Z1")), [(11, 32)],
         "digit in the country: `alphabet` reports HE70032E in place of its own HE70006E"),
        (report(11, {**abroad("ZZZ"), 12: kojin("81123451234")}), [(11, 8), (12, 5)],
         "country of 3 letters; nobody abroad has a number"),
        (report(12, {12: "8112345123"}), [(12, 8)], "number of 10 digits"),
        (report(13, {12: "0" + spoilt_tail(kojin("81123450000"))}), [(12, 10)],
         "13 digits with a leading 0: a personal number, wrong check digit"),
        (None, [], "an empty line isn't stored"),
        (report(14, {13: "7", 14: "ﾀｲﾄﾙ"}), [(13, 9), (14, 6)], "unknown kind; half-width kana"),
        (report(15, western(15, 2023, 2, 29)), [(15, 17, 12)], "29 February of a common year"),
        (report(16, western(15, 99, 1, 1)), [(15, 17, 12)], "year 99 is taken for a short form"),
        (report(17, western(15, "", "", "")), [(15, 1), (16, 1), (17, 1)],
         "no beginning: an empty date is no wrong one, but its columns are wanted"),
        (report(18, {16: "x"}), [(15, 17, 12), (16, 4)],
         "letter in the month: the check of the group comes before those of its columns"),
        (report(19, {**western(18, 2024, 4, 31), 22: "2030"}), [(18, 20, 12)],
         "31 April: the last payment's year isn't compared with such an end"),
        (report(20, {**no_end(), 21: "3", 22: "2030"}), [(21, 5), (22, 5)],
         "years of a contract that runs on"),
        (report(21, {21: "", 22: ""}), [(21, 1), (22, 1)], "years of a contract that ends"),
        (report(22, {**western(18, 2025, 6, 30), 22: "2025"}), [(22, 25)],
         "the last payment in the year of the end in place of the year behind it"),
        (report(23, {23: "", 24: "1234567890123"}), [(23, 1), (24, 8)],
         "no amount; tax of 13 digits"),
        (report(24, {25: "3"}), [(25, 9)], "a resident with the rate of somebody abroad"),
        (report(25, {**abroad(), 25: "1"}), [(25, 9)], "somebody abroad with a resident's rate"),
        (report(26, {**abroad(), 25: "4"}), [(26, 1)], "by a treaty, but which?"),
        (report(27, {26: "Art. 12"}), [(26, 5)], "a treaty with a resident's rate"),
        (report(28, {**abroad(), 25: "4", 26: "第１２条"}), [(26, 35)], "full-width characters"),
        (report(29, {27: "0", 28: "0", 29: "0"}), [(27, 30)],
         "used nowhere: `anycontain` reports HE70030E in place of its own HE70009E"),
        (report(30, {27: "0", 28: "2", 29: "0"}), [(28, 9)],
         "2 is neither 0 nor 1; whether it was used anywhere isn't asked then"),
        (report(31, {30: "960000000014"}), [(30, 8)], "corporate number of 12 digits"),
        (report(32, {30: spoilt_tail(hojin("960000000014"))}), [(30, 10)],
         "corporate number with a wrong check digit"),
        (report(33, {31: "摘" * 100 + "a"}), [(31, 8)], "remarks of 201 bytes"),
        (report(40, dict.fromkeys(range(2, 32), "")),
         [(column, 1) for column in (2, 3, 5, 6, 8, 10, 13, 14, 15, 16, 17, 23, 24, 25)]
         + [(27, 30)],
         "nothing but the type id"),
        (report(41, dict.fromkeys(range(2, 32), "x")),
         [(2, 9), (3, 4), (4, 4), (8, 9), (9, 4), (11, 8), (12, 4), (13, 9), (15, 17, 12), (15, 4),
          (16, 4), (17, 4), (18, 20, 12), (18, 4), (19, 4), (20, 4), (21, 4), (22, 4), (23, 4),
          (24, 4), (27, 9), (28, 9), (29, 9), (30, 4)], "the letter x in every cell"),
        (report(42, {5: "ア" * 51, 9: "99901010", 10: "住" * 81, 12: "1" * 14, 14: "題" * 61,
                     23: "1" * 13}),
         [(5, 7), (9, 8), (10, 7), (12, 8), (14, 7), (23, 8)], "each one too long by one"),
        (report(43, {**abroad(), 25: "4", 26: "A" * 21}), [(26, 8)], "a treaty of 21 bytes"),
        (report(44, {3: "100", 7: "ｱ", 10: "ｱ", 12: spoilt_tail(kojin("81123450044")), 31: "ｱ"}),
         [(3, 9), (7, 6), (10, 6), (12, 10), (31, 6)],
         "year 100; half-width kana; personal number with a wrong check digit"),
        (report(45, {12: spoilt_tail(hojin("960000000025")), 27: "2"}), [(12, 10), (27, 9)],
         "corporate number with a wrong check digit; 2 is neither 0 nor 1"),
        (report(34), [], "right"),
    ]

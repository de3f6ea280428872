"""Trust accounts (type id 115): 39 columns, one record per trust and beneficiary."""

from sample_forms.common import (
    PAYERS, complete, date, hojin, kojin, name, no_date, office, place, spoilt_tail,
)

FORM = "PGE2150"


def report(index, changes=None):
    """One right record of a trust for its own giver, by column number from 1. `changes` replaces
    cells."""
    kanji, kana = name(index + 6)
    zip_code, address = place(index + 7)
    office_name, office_code = office(index + 7)
    assets, earnings, costs = 9000000 + index * 1234567, 400000 + index * 3210, 12000 + index * 77
    record = {
        1: "115", **date(2, 5, 2 + index % 6, 4, 1), **date(6, 5, 3 + index % 6, 3, 31),
        10: kana, 11: kanji, 12: zip_code, 13: address,
        14: kojin(f"{83123450000 + index * 2203:011d}"),
        15: "1", 16: "", 17: "", 18: "", 19: "", 20: "",
        21: "1", 22: str(1 + index % 4),
        23: "123"[index % 3], 24: "1", 25: "01"[index % 2], 26: "", 27: "",
        28: str(assets), 29: str(index * 5000), 30: str(earnings), 31: str(costs),
        32: "1", 33: str(earnings - costs), 34: str((earnings - costs) * 1021 // 10000),
        35: f"TR-{index % 90 + 10}/{2020 + index % 7}", 36: ("見本本店", "墨壺信託営業部")[index % 2],
        37: office_name, 38: office_code, 39: "",
    }
    return complete(record, changes, 39)


def beneficiary(index):
    """Cells of a beneficiary who is not the giver."""
    kanji, kana = name(index + 13)
    zip_code, address = place(index + 2)
    return {15: "2", 16: kana, 17: kanji, 18: zip_code, 19: address,
            20: kojin(f"{84123450000 + index * 1009:011d}")}


def loss(amount):
    """Cells of a loss: no tax."""
    return {32: "2", 33: str(amount), 34: ""}


def passing():
    payer, payer_address, payer_number = PAYERS[3]
    return [
        report(0),
        report(1, beneficiary(1)),
        report(2, loss(55000)),
        # Companies on both sides; no numbers
        report(3, {10: "ノウリツケンキュウショ", 11: payer, 13: payer_address, 14: payer_number,
                   **beneficiary(3), 17: PAYERS[2][0], 20: PAYERS[2][2]}),
        report(4, {14: "", **beneficiary(4), 20: ""}),
        report(5, {14: "0" + kojin("83123459999")}),
        # The first and the last day that count; a period of two days
        report(6, {**date(2, 4, 27, 1, 1), **date(6, 4, 27, 12, 31)}),
        report(7, {**date(2, 5, 13, 1, 1), **date(6, 5, 13, 12, 31)}),
        report(8, {**date(2, 5, 6, 2, 28), **date(6, 5, 6, 2, 29)}),
        # Over the change of era
        report(9, {**date(2, 4, 30, 10, 1), **date(6, 5, 1, 9, 30)}),
        report(10, {**date(2, 4, 31, 5, 1), **date(6, 4, 32, 3, 31)}),
        # Part of the trust; other property, in words
        report(11, {**beneficiary(11), 21: "00001", 22: "00003"}),
        report(12, {21: "0", 24: "0", 25: "0", 26: "0", 27: "著作権－３件"}),
        report(13, {24: "", 25: "", 26: "1"}),
        report(14, {28: "0000012345", 29: "", 30: "0", 31: "000", 33: "000", 34: "0"}),
        # As long as it may be
        report(15, {**beneficiary(15), 10: "ア" * 40, 11: "亜" * 40, 13: "見" * 60, 16: "イ" * 40,
                    17: "位" * 40, 19: "例" * 60, 21: "99999", 22: "99999", 27: "他" * 30,
                    28: "9" * 12, 29: "9" * 12, 30: "9" * 12, 31: "9" * 12, 33: "9" * 12,
                    34: "9" * 12, 35: "~" * 15, 36: "店" * 30, 39: "摘" * 150}),
        report(16, {11: "A&B <信託> \"甲\"", 13: "①番地～髙欄", 39: "'－'∥"}),
        None,
        report(17, {10: " ニワタリ　アメ　", 36: "　外苑支店 "}),
    ] + [report(index, (None, beneficiary(index), loss(index))[index % 3])
         for index in range(18, 36)]


def failing():
    return [
        (report(0), [], "right"),
        (report(1, {2: "3"}), [(2, 9)], "era 3: the end isn't compared with such a beginning"),
        (report(2, date(2, 4, 26, 12, 31)), [(2, 5, 10)],
         "the day before the first one that counts"),
        (report(3, {**date(2, 5, 13, 4, 1), **date(6, 5, 14, 3, 31)}), [(6, 9, 10)],
         "it ends after the last day that counts"),
        (report(4, {**date(2, 5, 7, 4, 1), **date(6, 5, 7, 4, 1)}), [(6, 9, 25)],
         "a period ends after its first day: `rangebasedate_2` without `include`"),
        (report(5, {**date(2, 5, 7, 2, 29), **date(6, 5, 7, 2, 28)}), [(2, 5, 12)],
         "29 February of a common year: the end isn't compared with it"),
        (report(6, no_date(6)), [(6, 1), (7, 1), (8, 1), (9, 1)], "no end"),
        (report(7, {10: "ﾊｼﾗ", 11: "ﾊｼﾗ"}), [(10, 3), (11, 6)], "half-width kana, twice"),
        (report(8, {12: "9999999", 13: ""}), [(12, 10), (13, 1)],
         "postal code of nines: `except` reports HE70010E in place of its own HE99999E; no "
         "address"),
        (report(9, {14: spoilt_tail(hojin("940000000017"))}), [(14, 10)],
         "corporate number with a wrong check digit"),
        (report(10, {15: "2"}), [(16, 1), (17, 1), (18, 1), (19, 1)],
         "another beneficiary of whom nothing is told; a number isn't wanted"),
        (report(11, {**beneficiary(11), 15: "1"}), [(16, 5), (17, 5), (18, 5), (19, 5), (20, 5)],
         "the giver is the beneficiary, who isn't told again"),
        (report(12, {**beneficiary(12), 15: "3"}), [(15, 9)],
         "unknown mark: the beneficiary is only looked at for the form"),
        (report(13, {**beneficiary(13), 16: "Taro", 18: "123456", 20: "1234"}),
         [(16, 3), (18, 8), (20, 8)], "letters; postal code of 6 digits; number of 4"),
        (report(14, {21: "", 22: "0"}), [(21, 1), (22, 10)],
         "no numerator; a denominator of 0: `except` reports HE70010E in place of its own "
         "HE99999E"),
        (report(15, {21: "1/2", 22: "123456"}), [(21, 4), (22, 8)],
         "a fraction in one column; denominator of 6 digits"),
        (None, [], "an empty line isn't stored"),
        (report(16, {23: "4", 24: "2"}), [(23, 9), (24, 9)],
         "unknown purpose; 2 is neither 0 nor 1: whether the trust holds anything isn't asked "
         "then"),
        (report(17, {24: "0", 25: "", 26: "0"}), [(27, 30)],
         "a trust that holds nothing: `anycontain` reports HE70030E in place of its own HE70009E"),
        (report(18, {27: "ｻｸﾋﾝ"}), [(27, 6)], "half-width kana"),
        (report(19, {28: "", 29: "５", 30: "-1"}), [(28, 1), (29, 4), (30, 4)],
         "no assets; full-width digit; sign"),
        (report(20, {31: "1234567890123", 32: "0"}), [(31, 8), (32, 9)],
         "costs of 13 digits; neither profit nor loss, so tax is neither wanted nor forbidden"),
        (report(21, {33: "", 34: ""}), [(33, 1), (34, 1)], "a profit without its sum and its tax"),
        (report(22, {32: "2"}), [(34, 5)], "tax on a loss"),
        (report(23, {35: "TR－１", 36: "本店B"}), [(35, 35), (36, 6)],
         "full-width characters; a half-width letter, for which `multibyte` reports HE70006E in "
         "place of its own HE99999E"),
        (report(24, {35: "T" * 16}), [(35, 8)], "contract of 16 bytes"),
        (report(25, {37: "帳面坂", 38: "90101"}), [(37, 38, 2)], "another office's name"),
        (report(26, {38: "90600"}), [(38, 11)], "the code of a regional office"),
        (report(27, {39: "摘" * 150 + "a"}), [(39, 8)], "remarks of 301 bytes"),
        (report(28, {10: "", 15: "", 23: "", 28: "x", 32: "", 36: ""}),
         [(10, 1), (15, 1), (23, 1), (28, 4), (32, 1), (36, 1)],
         "six errors, in the order of the form"),
        (report(40, dict.fromkeys(range(2, 40), "")),
         [(column, 1) for column in (*range(2, 14), 15, 21, 22, 23)] + [(27, 30)]
         + [(column, 1) for column in (28, 30, 32, 33, 35, 36, 37, 38)], "nothing but the type id"),
        (report(41, dict.fromkeys(range(2, 40), "x")),
         [(2, 9), (3, 4), (4, 4), (5, 4), (6, 9), (7, 4), (8, 4), (9, 4), (10, 3), (12, 4), (14, 4),
          (15, 9), (16, 3), (18, 4), (20, 4), (21, 4), (22, 4), (23, 9), (24, 9), (25, 9), (26, 9),
          (28, 4), (29, 4), (30, 4), (31, 4), (32, 9), (33, 4), (34, 4), (36, 6), (38, 4)],
         "the letter x in every cell"),
        (report(42, {
            **beneficiary(42), 10: "ア" * 41, 11: "亜" * 41, 12: "99901010", 13: "住" * 61,
            14: "1" * 14, 16: "ア" * 41, 17: "亜" * 41, 19: "住" * 61, 20: "1" * 14, 21: "1" * 6,
            27: "他" * 31, 28: "1" * 13, 29: "1" * 13, 30: "1" * 13, 33: "1" * 13, 34: "1" * 13,
            36: "店" * 31, 37: "局" * 16, 38: "901010",
        }), [(10, 7), (11, 7), (12, 8), (13, 7), (14, 8), (16, 7), (17, 7), (19, 7), (20, 8),
             (21, 8), (27, 7), (28, 8), (29, 8), (30, 8), (33, 8), (34, 8), (36, 7), (37, 7),
             (38, 8)], "each one too long by one"),
        (report(43, {
            **beneficiary(43), 3: "100", 4: "13", 5: "32", 6: "3", 7: "0", 8: "0", 9: "0", 13: "ｱ",
            14: "12345678901", 17: "ｱ", 19: "ｱ", 20: "0" + spoilt_tail(kojin("84123450043")),
            25: "2", 26: "2", 37: "ｱ", 39: "ｱ",
        }), [(3, 9), (4, 9), (5, 9), (6, 9), (7, 9), (8, 9), (9, 9), (13, 6), (14, 8), (17, 6),
             (19, 6), (20, 10), (25, 9), (26, 9), (37, 6), (39, 6)],
         "beyond the range; half-width kana; 13 digits with a leading 0 are a personal number"),
        (report(44, {**beneficiary(44), **date(2, 4, 31, 4, 1), **date(6, 4, 32, 4, 1),
                     14: spoilt_tail(kojin("83123450044")),
                     20: spoilt_tail(kojin("84123450044"))}), [(6, 9, 12), (14, 10), (20, 10)],
         "an era is carried over until March of its year 32 only; wrong check digits"),
        (report(45, {**beneficiary(45), **date(2, 4, 32, 4, 1), **date(6, 5, 3, 3, 31),
                     14: "0" + spoilt_tail(kojin("83123450045")),
                     20: spoilt_tail(hojin("940000000028"))}), [(2, 5, 12), (14, 10), (20, 10)],
         "the same with the beginning; wrong check digits of the other kinds"),
        (report(29), [], "right"),
    ]

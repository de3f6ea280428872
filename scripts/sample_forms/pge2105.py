"""Lump sums paid from insurance contracts (type id 110): 34 columns, one record per payment."""

from sample_forms.common import complete, date, kojin, name, no_date, place, spoilt_tail

FORM = "PGE2105"

DEATH, MATURITY, CANCELLED = "1", "2", "3"


def report(index, reason=MATURITY, changes=None):
    """One right record, by column number from 1. The contract is the recipient's own.
    `changes` replaces cells."""
    kanji, kana = name(index + 4)
    insured_kanji, insured_kana = name(index + (11 if reason == DEATH else 4))
    zip_code, address = place(index + 2)
    paid = 1500000 + index * 87650
    record = {
        1: "110", 2: f"LF#{index * 91 + 2000}/{index % 7}",
        **date(3, 4, 5 + index % 25, 1 + index % 12, 1 + index * 7 % 28),
        7: ("11", "12", "21", "29")[index % 4],
        8: kana, 9: kanji, 10: zip_code, 11: address,
        12: kojin(f"{50123450000 + index * 4813:011d}"),
        13: "1", 14: "", 15: "",
        16: insured_kana, 17: insured_kanji,
        **date(18, 3, 20 + index * 5 % 40, 1 + index * 3 % 12, 1 + index % 28),
        22: "9" if reason == MATURITY else "1234"[index % 4],
        **date(23, 5, 2 + index % 6, 1 + index * 5 % 12, 1 + index * 11 % 28),
        27: reason, 28: str(paid), 29: "", 30: str(index * 311), 31: str(paid + index * 311),
        32: "" if reason == DEATH else str(paid * 9 // 10),
        33: "", 34: "",
    }
    return complete(record, changes, 34)


def other_person(index):
    """Cells of a contract that is not the recipient's."""
    kanji, kana = name(index + 7)
    return {13: "2", 14: kana, 15: kanji}


def passing():
    return [
        report(0),
        report(1, DEATH),
        report(2, CANCELLED),
        report(3, DEATH, other_person(3)),
        report(4, MATURITY, {**other_person(4), 12: ""}),
        # Paid on the day of the contract, for somebody born on that day
        report(5, DEATH, {**date(3, 5, 3, 4, 5), **date(18, 5, 3, 4, 5), **date(23, 5, 3, 4, 5)}),
        # The first and the last day that count
        report(6, MATURITY, date(23, 4, 31, 5, 1)),
        report(7, MATURITY, date(23, 5, 13, 12, 31)),
        report(8, CANCELLED, date(23, 5, 1, 5, 1)),
        # 120 years old at the end of the year of the payment
        report(9, DEATH, {**date(18, 1, 38, 1, 2), **date(23, 5, 7, 6, 30)}),
        # The last and the first day of an era
        report(10, MATURITY, date(18, 2, 15, 12, 24)),
        report(11, MATURITY, date(18, 3, 64, 1, 7)),
        report(12, CANCELLED, {**date(3, 4, 20, 5, 5), **date(18, 4, 1, 1, 8)}),
        report(13, CANCELLED, {**date(3, 3, 64, 1, 7), **date(18, 3, 3, 2, 29)}),
        # Half-width and full-width letters in the name of the insured
        report(14, DEATH, {16: "MIHON Ａｎｎａ（ミホン）", 17: "見本　ＡＮＮＡ"}),
        report(15, MATURITY, {28: "000001500000", 29: "000", 30: "0", 31: "000001500000"}),
        report(16, DEATH, {33: "見本中央支店", 34: "<満期> & '割増' \"特約\""}),
        report(17, MATURITY, {2: "~!@$%^*()_+|{}[]:;?", 34: "①髙欄支店～Ⅳ"}),
        report(18, DEATH, {2: "A", 8: "ア" * 30, 9: "亜" * 30, 11: "見" * 60, 16: "A" * 30,
                           17: "墨" * 30, 28: "999999999999", 30: "", 33: "店" * 30,
                           34: "摘" * 80}),
        None,
        report(19, CANCELLED, {32: "0"}),
        report(20, DEATH, {32: "1234567"}),
    ] + [report(index, "123"[index % 3], other_person(index) if index % 4 == 0 else None)
         for index in range(21, 36)]


def failing():
    return [
        (report(0), [], "right"),
        (report(1, DEATH, {2: ""}), [(2, 1)], "no number of the policy"),
        (report(2, MATURITY, {2: "証券２"}), [(2, 35)], "full-width characters in the number"),
        (report(3, MATURITY, {2: "LF#123456789012345678"}), [(2, 8)], "number of 21 bytes"),
        (report(4, MATURITY, date(3, 4, 31, 2, 29)), [(3, 6, 12)],
         "29 February of a common year; the birth isn't compared with it then"),
        (report(5, CANCELLED, {3: "2"}), [(3, 9)],
         "a contract that old isn't taken: era 2 is not in the list"),
        (report(6, MATURITY, {7: "1"}), [(7, 9)], "1 is part of 11 and 12, but none of the kinds"),
        (report(7, DEATH, {8: "ｷｮｳ", 9: "KYO"}), [(8, 3), (9, 6)], "half-width letters"),
        (report(8, DEATH, {10: "999-010", 11: "ﾐﾎﾝ"}), [(10, 4), (11, 6)],
         "hyphen in the postal code; half-width kana in the address"),
        (report(9, DEATH, {12: "9800000000"}), [(12, 8)], "personal number of 10 digits"),
        (report(10, MATURITY, {12: spoilt_tail(kojin("50123459999"))}), [(12, 10)],
         "personal number with a wrong check digit"),
        (report(11, CANCELLED, {13: "2"}), [(14, 1), (15, 1)],
         "another person's contract without that person's names"),
        (report(12, CANCELLED, {**other_person(12), 13: "1"}), [(14, 5), (15, 5)],
         "names, but the contract is the recipient's own"),
        (report(13, DEATH, {13: "3", 14: "ミホン"}), [(13, 9)],
         "neither own nor another's: the name that stands there is only looked at for its form"),
        (report(14, DEATH, {16: "ﾐﾎﾝ", 17: "見本@"}), [(16, 34), (17, 6)],
         "half-width kana; half-width sign"),
        (report(15, MATURITY, date(18, 3, 64, 1, 8)), [(18, 21, 12)],
         "the day after an era's last one"),
        (report(16, MATURITY, date(18, 4, 31, 5, 1)), [(18, 21, 12)],
         "a birth has to be told in the era that it lies in: `existdate_2` carries nothing over"),
        (report(17, CANCELLED, {**date(3, 4, 10, 6, 7), **date(18, 4, 10, 6, 8)}), [(18, 21, 25)],
         "born on the day after the contract"),
        (report(18, DEATH, {**date(18, 1, 37, 12, 31), **date(23, 5, 7, 6, 30)}), [(18, 21, 10)],
         "121 years old at the end of the year of the payment"),
        (None, [], "an empty line isn't stored"),
        (report(19, DEATH, {**date(18, 1, 30, 1, 1), 23: "6"}), [(23, 9)],
         "born in 1897, but no age is reckoned from a payment in no era"),
        (report(20, DEATH, {19: "0", 22: "5"}), [(19, 9), (22, 9)],
         "year 0: the whole date isn't looked at then; unknown relation"),
        (report(21, MATURITY, date(23, 4, 31, 4, 30)), [(23, 26, 10)],
         "the day before the first one that counts"),
        (report(22, CANCELLED, date(23, 5, 14, 1, 1)), [(23, 26, 10)],
         "the day after the last one that counts"),
        (report(23, DEATH, date(23, 4, 33, 1, 1)), [(23, 26, 12)],
         "year 33 of an era that ended in its year 31"),
        (report(24, CANCELLED, {**date(3, 5, 6, 7, 8), **date(23, 5, 6, 7, 7)}), [(23, 26, 25)],
         "paid on the day before the contract"),
        (report(25, MATURITY, {**date(3, 5, 6, 2, 30), **date(23, 5, 5, 1, 1)}), [(3, 6, 12)],
         "the contract isn't on a day, so the payment isn't compared with it"),
        (report(26, "5"), [(27, 9)], "unknown reason"),
        (report(27, MATURITY, {28: "0", 31: ""}), [(28, 9), (31, 1)],
         "nothing paid, and no sum of it"),
        (report(28, MATURITY, {29: "-1", 30: "1234567890123"}), [(29, 4), (30, 8)],
         "sign; amount of 13 digits"),
        (report(29, CANCELLED, {32: ""}), [(32, 1)], "the premiums are wanted but for a death"),
        (report(30, DEATH, {32: "１０"}), [(32, 4)], "full-width digits"),
        (report(31, DEATH, {33: "Mihon", 34: "摘" * 80 + "a"}), [(33, 6), (34, 8)],
         "`multibyte` reports HE70006E in place of its own HE99999E; remarks of 161 bytes"),
        (report(32, MATURITY, {7: "", **no_date(18), 27: "", 32: ""}),
         [(7, 1), (18, 1), (19, 1), (20, 1), (21, 1), (27, 1)],
         "six empty cells; without a reason the premiums may be empty"),
        (report(40, MATURITY, dict.fromkeys(range(2, 35), "")),
         [(column, 1) for column in (2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 13, 16, 17, 18, 19, 20, 21, 22,
                                     23, 24, 25, 26, 27, 28, 31)], "nothing but the type id"),
        (report(41, MATURITY, dict.fromkeys(range(2, 35), "x")),
         [(3, 9), (4, 4), (5, 4), (6, 4), (7, 9), (8, 3), (9, 6), (10, 4), (12, 4), (13, 9),
          (14, 3), (15, 6), (17, 6), (18, 9), (19, 4), (20, 4), (21, 4), (22, 9), (23, 9),
          (24, 4), (25, 4), (26, 4), (27, 9), (28, 4), (29, 4), (30, 4), (31, 4), (32, 4),
          (33, 6)],
         "the letter x in every cell"),
        (report(42, MATURITY, {
            8: "ア" * 31, 9: "亜" * 31, 10: "99901010", 11: "住" * 61, 13: "2", 14: "ア" * 31,
            15: "亜" * 31, 16: "A" * 31, 17: "亜" * 31, 28: "1" * 13, 29: "1" * 13, 31: "1" * 13,
            32: "1" * 13, 33: "店" * 31,
        }), [(8, 7), (9, 7), (10, 8), (11, 7), (14, 7), (15, 7), (16, 7), (17, 7), (28, 8), (29, 8),
             (31, 8), (32, 8), (33, 7)], "each one too long by one"),
        (report(43, DEATH, {
            4: "100", 5: "13", 6: "32", 10: "0000000", 18: "6", 20: "0", 21: "32", 24: "0",
            25: "13", 26: "0", 34: "ｱ",
        }), [(4, 9), (5, 9), (6, 9), (10, 10), (18, 9), (20, 9), (21, 9), (24, 9), (25, 9), (26, 9),
             (34, 6)], "beyond the range, so none of the three dates is looked at as a whole"),
        (report(33), [], "right"),
    ]

"""Rent of real estate (type id 112): 37 columns, one record per property and payee."""

from sample_forms.common import (
    PAYERS, complete, date, hojin, kojin, name, no_date, office, place, spoilt_tail,
)

FORM = "PGE2125"


def report(index, changes=None):
    """One right record without an agent, by column number from 1. `changes` replaces cells."""
    kanji, kana = name(index + 8)
    zip_code, address = place(index + 4)
    _, property_address = place(index + 1)
    office_name, office_code = office(index + 3)
    paid = 720000 + index * 36500
    record = {
        1: "112", 2: "1234"[index % 4], 3: "", 4: kana, 5: kanji, 6: zip_code, 7: address,
        8: kojin(f"{61123450000 + index * 2803:011d}"),
        9: property_address, 10: ("土地", "建物")[index % 2], 11: str(30 + index * 17),
        12: f"{index * 13 % 100:02d}", 13: "12345"[index % 5],
        **date(14, 5, 2 + index % 6, 1, 1), **date(18, 5, 2 + index % 6, 12, 31),
        22: str(paid), 23: str(paid * 1021 // 10000), 24: "", 25: "",
        26: "0", 27: "", 28: "", 29: "", **no_date(30), 34: "",
        35: office_name, 36: office_code, 37: "",
    }
    return complete(record, changes, 37)


def agent(index):
    """Cells of an agent."""
    payer, address, number = PAYERS[index % len(PAYERS)]
    return {26: "1", 27: payer, 28: address, 29: number,
            **date(30, 5, 3 + index % 5, 1 + index % 12, 1 + index * 5 % 28),
            34: str(55000 + index)}


def passing():
    return [
        report(0),
        report(1, agent(1)),
        # Half-width characters are taken in this form's names
        report(2, {4: "A&B HOLDINGS", 5: PAYERS[2][0], 7: PAYERS[2][1], 8: PAYERS[2][2]}),
        report(3, {2: "9", 3: "礼金"}),
        # A ship has no area; no period at all; only its beginning; only its end
        report(4, {10: "船舶", 11: "", 12: ""}),
        report(5, {**no_date(14), **no_date(18)}),
        report(6, no_date(18)),
        report(7, no_date(14)),
        # A period of one day; over the change of era
        report(8, {**date(14, 5, 6, 2, 29), **date(18, 5, 6, 2, 29)}),
        report(9, {**date(14, 4, 30, 11, 1), **date(18, 5, 1, 10, 31)}),
        report(10, {**date(14, 4, 31, 5, 1), **date(18, 4, 32, 3, 31)}),
        # Not yet paid: all of it
        report(11, {22: "600000", 23: "61260", 24: "600000", 25: "61260"}),
        report(12, {8: "", 12: "", 13: "", 23: ""}),
        report(13, {8: "0" + kojin("61123459999"), 11: "0000045", 22: "0000", 24: "000"}),
        report(14, {**agent(14), 34: "0"}),
        # As long as it may be
        report(15, {2: "9", 3: "他" * 20, 4: "ア" * 40, 5: "亜" * 40, 7: "見" * 60, 9: "物" * 60,
                    11: "9999999", 22: "999999999999", 23: "999999999999", 37: "摘" * 100}),
        report(16, {**agent(0), 27: "名" * 40, 28: "所" * 60, 34: "999999999999"}),
        report(17, {7: "<1-2-3> \"A&B\" '館'", 9: "①号室～Ⅳ号室", 37: "－∥"}),
        None,
        report(18, {5: " 余白　健　", 10: " 土地 ", 37: "　敷地内の駐車場を含む "}),
    ] + [report(index, agent(index) if index % 3 == 0 else None) for index in range(19, 36)]


def failing():
    return [
        (report(0), [], "right"),
        (report(1, {2: "5", 3: "他"}), [(2, 9)],
         "unknown kind, which neither wants nor forbids words"),
        (report(2, {2: "9", 3: ""}), [(3, 1)], "kind 9 without words"),
        (report(3, {2: "1", 3: "地代"}), [(3, 5)], "words for a kind that needs none"),
        (report(4, {2: "9", 3: "Reikin"}), [(3, 6)], "half-width letters"),
        (report(5, {4: "フセン　ｱｶﾈ", 5: "ﾌｾﾝ"}), [(4, 34), (5, 6)],
         "half-width kana, twice"),
        (report(6, {6: "", 7: "住" * 61}), [(6, 1), (7, 7)],
         "no postal code; address of 61 characters"),
        (report(7, {8: "99000000002X"}), [(8, 4)], "letter in the number"),
        (report(8, {8: spoilt_tail(hojin("990000000028"))}), [(8, 10)],
         "corporate number with a wrong check digit"),
        (report(9, {9: "物" * 60 + "a"}), [(9, 8)], "place of 121 bytes"),
        (report(10, {10: "土"}), [(10, 9)],
         "part of a word in the list; whether an area is wanted isn't known then"),
        (report(11, {10: "建物", 11: ""}), [(11, 1), (12, 5)],
         "a building without an area, and decimal places of none"),
        (report(12, {10: "船舶", 12: ""}), [(11, 5)], "a ship has no area"),
        (report(13, {12: "5"}), [(12, 8)], "one decimal place"),
        (report(14, {13: "6"}), [(13, 9)], "unknown use"),
        (report(15, {14: "", 17: ""}), [(14, 1), (17, 1)],
         "half a date: all its columns are wanted; the end isn't compared with it then"),
        (report(16, {15: "100", 19: "0"}), [(15, 9), (19, 9)], "no years of an era"),
        (report(17, date(18, 5, 7, 4, 31)), [(18, 21, 12)], "31 April"),
        (report(18, {**date(14, 5, 6, 4, 1), **date(18, 5, 6, 3, 31)}), [(18, 21, 25)],
         "the end before the beginning"),
        (report(19, {**date(14, 5, 7, 2, 29), **date(18, 5, 7, 1, 1)}), [(14, 17, 12)],
         "29 February of a common year: the end isn't compared with it"),
        (None, [], "an empty line isn't stored"),
        (report(20, {22: "", 23: "１"}), [(22, 1), (23, 4)], "nothing paid; full-width digit"),
        (report(21, {24: "", 25: "100"}), [(25, 5)], "tax that isn't paid yet, of nothing"),
        (report(22, {26: "2", 27: "例"}), [(26, 9)],
         "unknown mark: the agent's columns are only looked at for their form"),
        (report(23, {26: "1"}),
         [(27, 1), (28, 1), (29, 1), (30, 1), (31, 1), (32, 1), (33, 1), (34, 1)],
         "an agent of whom nothing is told"),
        (report(24, {**agent(0), 26: "0"}),
         [(27, 5), (28, 5), (29, 5), (30, 5), (31, 5), (32, 5), (33, 5), (34, 5)],
         "all of an agent, but there was none"),
        (report(25, {**agent(1), 29: spoilt_tail(hojin("970000000033")), **date(30, 5, 1, 4, 30)}),
         [(29, 10), (30, 33, 12)], "wrong check digit; the day before an era's first one"),
        (report(26, {**agent(2), 30: "3", 34: "x"}), [(30, 9), (34, 4)], "era 3; letter"),
        (report(27, {35: "", 36: ""}), [(35, 1), (36, 1)], "no tax office"),
        (report(28, {35: "硯ヶ池", 36: "90209"}), [(35, 36, 2)], "another office's name"),
        (report(29, {37: "ﾀﾞ"}), [(37, 6)], "half-width kana in the remarks"),
        (report(40, dict.fromkeys(range(2, 38), "")),
         [(column, 1) for column in (2, 4, 5, 6, 7, 9, 10, 22, 26, 35, 36)],
         "nothing but the type id"),
        (report(41, dict.fromkeys(range(2, 38), "x")),
         [(2, 9), (3, 6), (6, 4), (8, 4), (10, 9), (11, 4), (12, 4), (13, 9), (14, 9), (15, 4),
          (16, 4), (17, 4), (18, 9), (19, 4), (20, 4), (21, 4), (22, 4), (23, 4), (24, 4), (25, 4),
          (26, 9), (29, 4), (30, 9), (31, 9), (32, 9), (33, 9), (34, 4), (36, 4)],
         "the letter x in every cell"),
        (report(42, {
            **agent(0), 2: "9", 3: "他" * 21, 4: "ア" * 41, 5: "亜" * 41, 6: "99901010", 8: "1" * 14,
            11: "1" * 8, 22: "1" * 13, 23: "1" * 13, 24: "1" * 13, 25: "1" * 13, 27: "名" * 41,
            28: "所" * 61, 34: "1" * 13, 35: "局" * 16, 36: "901010", 37: "摘" * 100 + "a",
        }), [(3, 7), (4, 7), (5, 7), (6, 8), (8, 8), (11, 8), (22, 8), (23, 8), (24, 8), (25, 8),
             (27, 7), (28, 7), (34, 8), (35, 7), (36, 8), (37, 8)], "each one too long by one"),
        (report(43, {
            **agent(1), 6: "9999999", 7: "ｱ", 8: "12345678901", 9: "ｱ", 14: "3", 16: "13", 17: "32",
            18: "3", 20: "0", 21: "0", 27: "ｱ", 28: "ｱ", 31: "0", 32: "13", 33: "32", 35: "ｱ",
            36: "90200",
        }), [(6, 10), (7, 6), (8, 8), (9, 6), (14, 9), (16, 9), (17, 9), (18, 9), (20, 9), (21, 9),
             (27, 6), (28, 6), (31, 9), (32, 9), (33, 9), (35, 6), (36, 11)],
         "half-width kana; beyond the range; the code of a regional bureau"),
        (report(44, {8: spoilt_tail(kojin("61123450044")), 15: "", 16: "", 18: "", 19: "", 20: ""}),
         [(8, 10), (15, 1), (16, 1), (18, 1), (19, 1), (20, 1)],
         "wrong check digit; era and day of a beginning; the day of an end"),
        (report(45, {8: "0" + spoilt_tail(kojin("61123450055")), **no_date(14), 21: ""}),
         [(8, 10), (21, 1)],
         "13 digits with a leading 0 are a personal number; an end without a day"),
        (report(46, {**no_date(14), **date(18, 5, 7, 4, 31)}), [(18, 21, 12)],
         "31 April, without a beginning to compare it with"),
        (report(30), [], "right"),
    ]

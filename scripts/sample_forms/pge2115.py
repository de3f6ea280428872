"""Remittances to and from abroad (type id 111): record 1 is the covering letter (20 columns),
record 2 its sums (9 columns), each record from 3 on one remittance (19 columns)."""

from sample_forms.common import (
    ElsewhereEntry, complete, date, hojin, kojin, name, place, seiri, spoilt_tail,
)

FORM = "PGE2115"

PARTNERS = ("SPECIMEN TRADING INC.", "ACME & SONS", "J. DOE", "Papierhaus Muster GmbH",
            "EXAMPLE/FOUNDATION (2)")
COUNTRIES = ("ZZ", "XA", "XB", "QM")
CURRENCIES = ("XTS", "XXA", "XXB")


def letter(count, changes=None):
    """The covering letter of `count` remittances."""
    zip_code, address = place(1)
    record = {
        1: "111", 2: "1", 3: "5", 4: "7", 5: seiri("2500000011100"),
        6: "ミホンギンコウ", 7: "株式会社見本銀行", 8: zip_code, 9: address,
        10: hojin("970000000011"), 11: "本店外為部", 12: "0999123456", **date(13, 5, 7, 12, 20),
        17: "見本中央", 18: "90101", 19: str(count), 20: "",
    }
    return complete(record, changes, 20)


def sums(sent, received, changes=None):
    """The sums: how many went out and how many came in."""
    record = {
        1: "2", 2: str(sent), 3: str(sent * 2500000), 4: str(received), 5: str(received * 3100000),
        6: "外為部", 7: "例田　花子", 8: "0999123457", 9: "remit@bank.example",
    }
    return complete(record, changes, 9)


def remittance(number, changes=None):
    """One right remittance; `number` is its number in the file, from 1."""
    kanji, kana = name(number + 5)
    _, address = place(number)
    record = {
        1: str(number), 2: str(1 + number % 2),
        **date(3, 5, 7, 1 + number % 12, 1 + number * 3 % 20),
        7: kana, 8: kanji, 9: address, 10: kojin(f"{40123450000 + number * 3301:011d}"),
        11: PARTNERS[number % 5], 12: COUNTRIES[number % 4], 13: f"BANK NO. {number % 9}",
        14: CURRENCIES[number % 3], 15: str(12000 + number * 333), 16: f"{number * 7 % 100:02d}",
        17: str(1800000 + number * 49950), 18: "1234"[number % 4], 19: "",
    }
    return complete(record, changes, 19)


def passing():
    # 22 remittances: five pages of 4 and one of 2
    return [
        letter(22, {20: "<外為> & \"取次\" ①～Ⅳ"}),
        sums(11, 11, {3: "0027500000", 6: "", 9: ""}),
        remittance(1),
        # On the day of the letter; the first day of the rules, told in the era before
        remittance(2, date(3, 5, 7, 12, 20)),
        remittance(3, date(3, 4, 31, 5, 1)),
        remittance(4, {**date(3, 4, 30, 2, 28), 2: "1"}),
        # A company; a personal number of 13 digits; no number
        remittance(5, {7: "ボクコカイウン", 8: "墨壺海運株式会社", 10: hojin("970000000022")}),
        remittance(6, {10: "0" + kojin("40123459999")}),
        remittance(7, {10: ""}),
        None,
        # Another purpose is told in words
        remittance(8, {18: "9", 19: "留学中の家族の生活費（－学費～家賃）"}),
        # No decimal places; the smallest amount; leading zeros
        remittance(9, {16: "", 17: "1000001"}),
        remittance(10, {1: "010", 15: "000012000", 16: "00", 17: "0001800000"}),
        remittance(11, {13: ""}),
        remittance(12, {11: "A<B> & \"C\" 'D'; #1", 12: "zz", 14: "xts"}),
        remittance(13, date(3, 5, 6, 2, 29)),
        # As long as it may be
        remittance(14, {7: "ア" * 30, 8: "亜" * 30, 9: "見" * 60, 11: "P" * 60, 13: "B" * 40,
                        15: "9" * 12, 17: "9" * 12, 18: "9", 19: "用" * 40}),
        remittance(15, {9: " 綴県背表紙市見返里９　", 11: "  PARTNER  "}),
    ] + [remittance(number) for number in range(16, 23)]


def more():
    """The shortest file, and two pages that are full."""
    return {
        "_short.csv": [letter(1, {2: "2"}), sums(0, 1, {2: "", 3: ""}), remittance(1)],
        "_full.csv": [letter(8), sums(4, 4)] + [remittance(number) for number in range(23, 31)],
    }


def failing():
    def received(number, changes):
        return remittance(number, {2: "2", **changes})

    def sent(number, changes):
        return remittance(number, {2: "1", **changes})

    old_letter = ElsewhereEntry(1, (13, 16, 25))
    corporate = hojin("970000000011")
    return [
        (letter(19, {2: "3", 3: "4", 4: "31", 5: spoilt_tail(seiri("2500000011100")), 6: "ﾐﾎﾝ",
                     7: "見本－銀行", 8: "9999999", 10: str(int(corporate[0]) % 9 + 1) + corporate[1:],
                     11: "本店Ａ部b", 12: "9990001", **date(13, 4, 31, 4, 30), 17: "見本北",
                     19: "999", 20: "ﾃｷﾖｳ"}),
         [(2, 9), (5, 10), (6, 34), (7, 6), (8, 10), (10, 10), (11, 36), (12, 10), (17, 18, 2),
          (19, 9), (20, 6)],
         "the letter: unknown kind, wrong check digits, half-width kana, a full-width hyphen in a "
         "name, a postal code of nines, a half-width letter (`multibyte` with its own HE99999E), a "
         "telephone number that doesn't begin with 0, another office's name, too many remittances; "
         "its day is right in itself"),
        (sums(0, 0, {1: "3", 2: "", 3: "5", 4: "", 5: "", 7: "", 8: "x", 9: "ﾒｰﾙ"}),
         [(2, 1), (1, 9), (3, 5), (7, 1), (8, 4), (9, 35)],
         "neither sent nor received: the check of the group comes before those of its columns; an "
         "amount without a number"),
        (received(1, date(3, 5, 1, 5, 1)), [(3, 6, 25)], "on the day after the letter's"),
        (sent(2, date(3, 4, 31, 4, 30)), [old_letter],
         "right in itself; money was sent with a letter from before 1 May 2019, which is reported "
         "for record 1"),
        (received(3, {}), [],
         "years after the letter's day, but there is an error at that day by now"),
        (sent(4, {1: "1234"}), [(1, 8), old_letter],
         "number of 4 digits; the entry for record 1 stands once in the table"),
        (sent(5, {2: "0", **date(3, 5, 7, 2, 29)}), [(2, 9), (3, 6, 12)],
         "unknown direction; 29 February of a common year"),
        (sent(6, {3: "3", 7: "ミホン タロウ", 8: "ＭＩＨＯＮ－"}), [(3, 9), (7, 3), (8, 6)],
         "era 3, so the letter isn't looked at; half-width blank; full-width hyphen"),
        (None, [], "an empty line isn't stored"),
        (received(7, {9: "", 10: spoilt_tail(kojin("40123451111"))}), [(9, 1), (10, 10)],
         "no address; wrong check digit"),
        (received(8, {3: "", 10: "0" + spoilt_tail(kojin("40123452222"))}), [(3, 1), (10, 10)],
         "no era; 13 digits with a leading 0 are a personal number"),
        (received(9, {4: "", 11: "見本商会"}), [(4, 1), (11, 35)], "no year; full-width characters"),
        (received(10, {5: "0", 12: "JP"}), [(5, 9), (12, 10)],
         "month 0; the country at home: `except` reports HE70010E in place of its own HE99999E"),
        (received(11, {6: "32", 12: "Z9"}), [(6, 9), (12, 32)],
         "day 32; digit in the country: `alphabet` reports HE70032E in place of its own HE70006E"),
        (received(12, {12: "ZZZ", 13: "B" * 41}), [(12, 8), (13, 8)],
         "country of 3 letters; bank of 41 bytes"),
        (received(13, {14: "US$", 15: ""}), [(14, 32), (15, 1)], "a currency's sign; no amount"),
        (received(14, {14: "XT", 15: "1.5", 16: "5"}), [(14, 8), (15, 4), (16, 8)],
         "currency of 2 letters; decimal point; one decimal place"),
        (received(15, {17: "1000000", 18: "9"}), [(17, 9), (19, 1)],
         "one yen too little to be reported; another purpose without words"),
        (received(16, {17: "", 18: "1", 19: "学費"}), [(17, 1), (19, 5)],
         "no amount in yen; words for a purpose that needs none"),
        (received(17, {18: "5", 19: "ｶﾞｸﾋ"}), [(18, 9), (19, 6)],
         "unknown purpose; half-width kana"),
        (received(18, {18: "9", 19: "用" * 40 + "a"}), [(19, 8)], "81 bytes of words"),
        (received(20, dict.fromkeys((*range(1, 17), 18, 19), "")),
         [(column, 1) for column in (1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 14, 15, 18)],
         "nothing but the yen; a conversion would drop it, as its first column is empty"),
        (received(21, dict.fromkeys(range(1, 20), "x")),
         [(1, 4), (2, 9), (3, 9), (4, 4), (5, 4), (6, 4), (7, 3), (8, 6), (10, 4), (12, 8), (14, 8),
          (15, 4), (16, 4), (17, 9), (18, 9)], "the letter x in every cell"),
        (received(22, {7: "ア" * 31, 8: "亜" * 31, 9: "住" * 61, 10: "1" * 14, 11: "P" * 61,
                       15: "1" * 13}),
         [(7, 7), (8, 7), (9, 7), (10, 8), (11, 8), (15, 8)], "each one too long by one"),
        (received(23, {4: "100", 9: "ｱ", 10: "12345678901", 13: "ｱ"}),
         [(4, 9), (9, 6), (10, 8), (13, 35)], "year 100; half-width kana; number of 11 digits"),
        (received(24, {10: spoilt_tail(hojin("970000000033"))}), [(10, 10)],
         "corporate number with a wrong check digit"),
        (received(19, {}), [], "right"),
    ]

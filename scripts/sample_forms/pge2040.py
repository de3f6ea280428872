"""Dividend statements (type id 104): one record per shareholder and kind of share."""

from sample_forms.common import (
    company, complete, date, hojin, kojin, name, no_date, office, place, seiri, spoilt_tail,
)

FORM = "PGE2040"

NO_SHARES = {21: "4", 22: "", 23: ""}


def report(index, changes=None):
    """One right record, by column number from 1. `changes` replaces cells."""
    kind = "1213"[index % 4]
    kanji, kana, number = company(index) if kind != "1" else (
        *name(index + 4), kojin(f"{30123450000 + index * 907:011d}"))
    zip_code, address = place(index + 2)
    office_name, office_code = office(index)
    year, day = 6 + index % 2, 1 + index * 3 % 28
    amount = 1000 + index * 4321
    record = {
        1: "104", 2: seiri(f"{index * 7919 + 12345:013d}") if index % 2 else "", 3: kind,
        4: kana, 5: kanji, 6: zip_code, 7: address,
        8: number if kind != "3" else "" if index % 8 == 3 else hojin("960000000017"),
        **date(9, 5, year, 5 + index % 3, day), **date(13, 5, year, 8, day), 17: "5", 18: str(year),
        19: f"{10000 + index * 37 % 90000}", 20: ("見本製紙　普通株式", "墨壺興業　優先株式")[index % 2],
        **(NO_SHARES if index % 5 == 4 else
           {21: str(1 + index % 3), 22: str(100 + index * 10), 23: str(500 + index)}),
        24: str(amount), 25: ("2042", "1531", "0")[index % 3],
        26: "" if index % 3 == 2 else str(amount // 5), 27: str(amount // 20) if index % 2 else "",
        28: office_name, 29: office_code, 30: "",
    }
    return complete(record, changes, 30)


def passing():
    return [
        report(0),
        report(1),
        report(2),
        # Another body without a number
        report(3),
        # Paid on the day on which it was decided, and on the business year's first and last day
        report(4, {**date(9, 5, 7, 6, 1), **date(13, 5, 7, 6, 1), 17: "5", 18: "7"}),
        report(5, {**date(9, 5, 6, 9, 1), **date(13, 5, 6, 10, 1), 17: "5", 18: "7"}),
        report(6, {**date(9, 5, 7, 9, 1), **date(13, 5, 7, 9, 30), 17: "5", 18: "7"}),
        # The first day that counts, in the era before; May of that year under either era
        report(7, {**date(9, 4, 31, 4, 1), **date(13, 4, 31, 4, 30), 17: "5", 18: "1"}),
        report(8, {**date(9, 4, 31, 5, 1), **date(13, 5, 1, 5, 1), 17: "5", 18: "01"}),
        report(9, {**date(9, 4, 32, 3, 31), **date(13, 5, 2, 3, 31), 17: "5", 18: "2"}),
        None,
        report(10, NO_SHARES),
        # Leading zeros are suppressed in the shares and in the amount
        report(11, {21: "1", 22: "000000000100", 23: "0050", 24: "000000500000", 25: "0",
                    26: "000"}),
        report(12, {2: seiri("0000000000000"), 22: "", 23: ""}),
        report(13, {2: seiri("9999999999999"), 30: "<配当> \"中間\" & '期末'"}),
        report(14, {20: "①㈱髙欄Ⅱ種～第３回", 30: "①㈱髙欄 No.3－2"}),
        report(15, {4: "ア" * 40, 5: "亜" * 40, 7: "町" * 60, 20: "銘" * 30, 30: "摘" * 60}),
        report(16, {25: "02042", 26: "0"}),
        report(17, {25: "1", 26: "99999999999", 27: "99999999999", 24: "999999999999"}),
        report(18, {19: "A-1 z"}),
        report(19, {28: "髙欄", 29: "90707"}),
        report(20, {5: " 　奥付会　 "}),
    ] + [report(index) for index in range(21, 57)]


def failing():
    return [
        (report(0), [], "right"),
        (report(1, {2: spoilt_tail(seiri("1234567890123"))}), [(2, 10)], "wrong check digit"),
        (report(2, {2: "1234567890123"}), [(2, 8)], "reference number of 13 digits"),
        (report(3, {2: "1234-67890123X"}), [(2, 4)], "not only digits, which is found first"),
        (report(4, {3: "", 8: ""}), [(3, 1)], "no kind: a number isn't asked for then"),
        (report(5, {4: "カブ）ミホン", 5: "ﾐﾎﾝｾｲｼ"}), [(4, 3), (5, 6)],
         "bracket, which is no kana; half-width kana"),
        (report(6, {6: "", 7: "見本市1丁目"}), [(6, 1), (7, 6)],
         "no postal code; half-width digit: `multibyte` reports HE70006E in place of its own "
         "HE99999E"),
        (report(8, {8: ""}), [(8, 1)], "a person without a number"),
        (report(9, {3: "2", 8: kojin("30123459999")}), [(8, 8)],
         "a company with a person's number: 12 digits in place of 13"),
        (report(11, {3: "3", 8: spoilt_tail(hojin("960000000017"))}), [(8, 10)],
         "another body's number may be missing, but not wrong"),
        (None, [], "not a record"),
        (report(12, {**date(9, 4, 31, 3, 31), **date(13, 4, 31, 3, 30), 17: "5", 18: "1"}),
         [(9, 12, 10)],
         "decided the day before the first that counts; that it was paid before isn't asked then"),
        (report(13, date(9, 5, 7, 6, 31)), [(9, 12, 12)], "31 June"),
        (report(14, {10: "100", 11: "0"}), [(10, 9), (11, 9)], "year 100; month 0"),
        (report(15, {**date(9, 5, 7, 6, 2), **date(13, 5, 7, 6, 1), 17: "5", 18: "7"}),
         [(13, 16, 25)],
         "paid the day before it was decided"),
        (report(16, {**date(9, 5, 7, 9, 1), **date(13, 5, 7, 10, 1), 17: "5", 18: "7"}),
         [(13, 16, 25)], "paid on the day after the business year"),
        (report(17, {**date(9, 5, 6, 9, 1), **date(13, 5, 6, 9, 30), 17: "5", 18: "7"}),
         [(13, 16, 25)], "paid on the day before the business year"),
        (report(18, {**date(13, 5, 7, 10, 1), 18: ""}), [(18, 1)],
         "no business year: the payment isn't compared with it"),
        (report(19, {17: "3", 16: ""}), [(17, 9), (16, 1)],
         "unknown era; no day: column 16 stands behind column 17 in the form"),
        (report(20, date(13, 4, 32, 4, 1)), [(13, 16, 12)], "a date of the old era after its end"),
        (report(21, no_date(13)), [(13, 1), (14, 1), (15, 1), (16, 1)], "no day of payment"),
        (report(22, {19: "1234", 20: "Share"}), [(19, 8), (20, 6)],
         "code of 4 bytes; half-width letters"),
        (report(23, {19: "12#45", 20: "銘" * 31}), [(19, 6), (20, 7)],
         "number sign; name of 31 characters"),
        (report(24, {21: "5", 22: "10", 23: "10"}), [(21, 9)], "unknown kind"),
        (report(25, {**NO_SHARES, 22: "10", 23: "10"}), [(22, 5), (23, 5)],
         "a payment that isn't counted by shares"),
        (report(26, {21: "1", 22: "10", 23: ""}), [(23, 1)], "shares without an amount for each"),
        (report(27, {21: "1", 22: "1.5", 23: "1234567890"}), [(22, 4), (23, 8)],
         "decimal point; 10 digits"),
        (None, [], "not a record"),
        (report(28, {24: "", 25: "2043", 26: ""}), [(24, 1), (25, 9)],
         "no amount; rate above the limit, which asks for no tax"),
        (report(29, {25: "", 26: ""}), [(25, 1)], "no rate"),
        (report(30, {25: "1", 26: "", 27: "12a"}), [(26, 1), (27, 4)],
         "a rate, but no tax; letter"),
        (report(31, {28: "見本", 29: "90101"}), [(28, 29, 2)], "a tax office's name cut short"),
        (report(32, {28: "", 29: "99999"}), [(28, 1), (29, 11)],
         "no name; unknown office; name and code aren't compared then"),
        (report(33, {29: "9010", 30: "ﾊｲﾄｳ"}), [(29, 8), (30, 6)],
         "code of 4 digits; half-width kana"),
        (report(34, {30: "摘" * 61}), [(30, 8)], "remarks of 122 bytes"),
        (report(36, {column: "" for column in range(2, 31)}),
         [(3, 1), (4, 1), (5, 1), (6, 1), (7, 1), (9, 1), (10, 1), (11, 1), (12, 1), (17, 1),
          (18, 1), (13, 1), (14, 1), (15, 1), (16, 1), (19, 1), (20, 1), (21, 1), (24, 1), (25, 1),
          (28, 1), (29, 1)], "nothing but the type id"),
        (report(37, {3: "9", 6: "x", 8: "x", 9: "3", 10: "x", 11: "x", 12: "x", 13: "3", 14: "x",
                     15: "x", 16: "x", 18: "x", 21: "1", 22: "x", 23: "x", 24: "x", 25: "x",
                     26: "x", 27: "x", 29: "x"}),
         [(3, 9), (6, 4), (8, 4), (9, 9), (10, 4), (11, 4), (12, 4), (18, 4), (13, 9), (14, 4),
          (15, 4), (16, 4), (22, 4), (23, 4), (24, 4), (25, 4), (26, 4), (27, 4), (29, 4)],
         "letters in place of numbers; unknown kind; eras that aren't allowed"),
        (report(38, {3: "1", 4: "ア" * 41, 5: "亜" * 41, 6: "123456", 7: "町" * 61,
                     8: spoilt_tail(kojin("30123459999")), 12: "32", 14: "100", 15: "13", 16: "32",
                     18: "100", 21: "1", 22: "1" * 13, 23: "5", 24: "1" * 13, 25: "0", 26: "1" * 12,
                     27: "1" * 12, 28: "税務署" * 6}),
         [(4, 7), (5, 7), (6, 8), (7, 7), (8, 10), (12, 9), (18, 9), (14, 9), (15, 9), (16, 9),
          (22, 8), (24, 8), (26, 8), (27, 8), (28, 7)], "too long or too great; wrong check digit"),
        (report(39, {6: "9999999", 28: "ﾐﾎﾝ"}), [(6, 10), (28, 6)],
         "postal code of nines: `except` reports HE70010E in place of its own HE99999E; half-width "
         "kana"),
        (report(40, {**date(9, 4, 32, 4, 1), **date(13, 5, 2, 5, 1), 17: "5", 18: "2"}),
         [(9, 12, 12)], "decided on a date of the old era after its end"),
        (report(35), [], "right"),
    ]

"""Samples of the list of payments, PGE1640: a head, lines, their sum and a confirmation make one
list. Only the first record's first column has to be filled."""

from sample_forms.common import (
    PAYERS, complete, date, hojin, kojin, name, office, place, seiri, spoilt_tail,
)

FORM = "PGE1640"


def head(changes=None):
    zip_code, _ = place(0)
    payer, address, number = PAYERS[0]
    office_name, office_code = office(0)
    record = {
        1: "202", 2: "1", 3: "1", **date(4, 4, 31, 1, 1), **date(8, 5, 1, 12, 31), 12: "",
        13: "ミホンセイシ", 14: payer, 15: zip_code, 16: address, 17: number, 18: "0999000123",
        19: office_name, 20: office_code, 21: "1", 22: "00A-17", 23: "見本　太郎", 24: "",
    }
    return complete(record, changes, 24)


def line(index, changes=None):
    """The payment at this place of the list, from 0."""
    kanji, kana = name(index)
    zip_code, address = place(index)
    numbers = ("", kojin(f"{80123450000 + index * 3571:011d}"),
               hojin(f"{980000000100 + index * 7:012d}"))
    amount = 10000 + index * 33333
    record = {
        1: ("", "202")[index % 5 == 4], 2: "2", 3: f"{index + 1:04d}", 4: kana, 5: kanji,
        6: zip_code if index % 4 else "", 7: address, 8: numbers[index % 3],
        9: str(1 + index % 6), **date(10, 5, 1, 5 + index % 8, 1 + index * 3 % 28),
        14: f"{amount:012d}" if index % 3 == 2 else str(amount), 15: str(amount * 1021 // 10000),
        16: ("", "<前払> & 精算", "①月分")[index % 3 if index % 2 else 0], 17: "",
    }
    return complete(record, changes, 17)


def total_of(lines, column):
    return str(sum(int(record[column]) for record in lines))


def sum_line(lines, changes=None):
    record = {column: "" for column in range(1, 17 + 1)}
    record.update({2: "8", 14: total_of(lines, 14), 15: total_of(lines, 15), 17: str(len(lines))})
    return complete(record, changes, 17)


def confirmation(lines, changes=None):
    kanji, kana = name(len(lines))
    record = {
        1: "", 2: "9", 3: f"{len(lines):03d}", 4: total_of(lines, 14), 5: total_of(lines, 15),
        6: kana, 7: kanji, **date(8, 5, 2, 1, 20), 12: "0999000124", 13: "",
    }
    return complete(record, changes, 13)


def whole_list(lines, head_changes=None, confirmation_changes=None):
    return [head(head_changes), *lines, sum_line(lines), confirmation(lines, confirmation_changes)]


def passing():
    """22 lines: three full pages, and four lines and the trailer on the fourth."""
    lines = [line(index) for index in range(22)]
    lines[6] = line(6, {1: "202", 14: "0", 15: "0", 16: ""})
    lines[7] = line(7, {**date(10, 4, 31, 4, 30), 16: "摘" * 40})
    lines[8] = line(8, {**date(10, 4, 31, 5, 1), 4: "PAPER & INK (TOKYO)"})
    records = whole_list(lines, None, {13: "\"合計\"は<円>単位"})
    return records[:10] + [None] + records[10:] + [None]


def more():
    """Three lines on one page; two pages of six lines each, the trailer on the second."""
    short = [line(index + 30) for index in range(3)]
    full = [line(index + 40) for index in range(12)]
    return {
        "_short.csv": whole_list(
            short, {3: "2", 12: seiri("5000000000017"), 22: "", 23: "", 24: "備考　ー"},
            {12: "", 13: "連絡なし"}),
        "_full.csv": whole_list(full, {3: "3", 12: seiri("5000000000020"), 21: "2"}),
    }


def failing():
    lines = [line(index) for index in range(4)]
    return [
        (None, [], "an empty line isn't stored"),
        (head({3: "2", **date(8, 4, 30, 12, 31), 15: "999010", 22: "A_1"}),
         [(12, 1), (8, 11, 25), (15, 8), (22, 6)],
         "the head: a correction without the earlier reference number; the last day before the "
         "first; postal code of 6 digits; underscore"),
        (line(1, {2: "8", 17: "1"}), [(2, 9), (17, 5)],
         "the first line can't be the sum; only the sum has a count"),
        (line(2), [], "right"),
        (line(3, {1: "203"}), [(1, 9)],
         "a first column that is filled must be the type id, which isn't asked for while reading"),
        ({column: "" for column in range(1, 18)}, [(2, 1), (14, 1), (15, 1)],
         "a record of commas is a record here; without a kind the other columns may be empty, but "
         "both amounts are always wanted"),
        (None, [], "an empty line isn't stored"),
        (line(4, {3: ""}), [(3, 1)], "no number of the line"),
        (line(5, {3: "00012"}), [(3, 8)], "number of the line of 5 digits"),
        (line(6, {4: "ﾐﾎﾝ", 5: ""}), [(4, 34), (5, 1)], "half-width kana; no name"),
        (line(7, {5: "見本－太郎"}), [(5, 6)],
         "the full-width hyphen-minus of code page 932 is no character of this family's `istring`"),
        (line(8, {6: "999-0101"}), [(6, 4)], "hyphen in a postal code"),
        (line(9, {6: "9999999"}), [(6, 10)], "postal code of nines"),
        (line(10, {7: "墨" * 61}), [(7, 7)], "address of 61 characters"),
        (line(11, {8: "80123450000"}), [(8, 8)], "number of 11 digits"),
        (line(12, {8: "98000000000123"}), [(8, 8)], "number of 14 digits"),
        (line(13, {8: spoilt_tail(hojin("980000000100"))}), [(8, 10)],
         "corporate number with a wrong check digit"),
        (line(14, {9: "7"}), [(9, 9)], "unknown kind of income"),
        (line(15, date(10, 4, 33, 1, 1)), [(10, 13, 12)],
         "year 33 of an era whose year 32 ended in March"),
        (line(16, {10: "", 11: "0"}), [(10, 1), (11, 9)], "date without an era; year 0"),
        (line(17, {14: "1000円", 15: "12345678901"}), [(14, 4), (15, 8)],
         "letter in an amount; tax of 11 digits"),
        (line(18, {16: "摘" * 41}), [(16, 7)], "remarks of 41 characters"),
        (line(19, {17: "1"}), [(17, 5)], "a payment has no count"),
        (sum_line(lines, {5: "見本　太郎", 17: ""}), [(5, 5), (17, 1)],
         "a sum with a name and without a count; that it isn't at its place isn't seen"),
        (line(20, {2: "9"}), [(2, 9)],
         "unknown kind: neither a payment's nor a sum's columns are wanted or unwanted"),
        (sum_line(lines, {17: "998"}), [(17, 9)], "more lines than a file can hold"),
        (confirmation(lines, {2: "8", 3: "0", 8: "4", 12: "999000124", 13: "ﾅｼ"}),
         [(2, 9), (3, 9), (8, 9), (12, 10), (13, 6)],
         "the last record is checked as the confirmation, whatever its kind: no lines; made in era "
         "4; telephone number that doesn't begin with 0; half-width kana"),
    ]

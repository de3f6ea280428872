"""Samples of the statement of transfers abroad, PGE1650. Values may be quoted."""

from sample_forms.common import (
    complete, date, hojin, kojin, name, office, place, quoted, seiri, spoilt_tail,
)

FORM = "PGE1650"

# Parties, addresses, banks abroad: all invented
ABROAD = [
    ("PAPER AND INK CO", "1 SAMPLE STREET", "XA", "FIRST BANK OF SAMPLE", "MAIN BRANCH"),
    (quoted("Paper, Ink & Co."), quoted("12 Quill Lane,\r\nInkwell 4000"), "XB",
     quoted("Bank of Blotting, Ltd."), ""),
    (quoted('The "Bookmark" Society'), quoted("Suite 5\r\n77 Margin Road\r\nFootnote"), "XC",
     quoted('"Ledger" Savings'), quoted("Margin, North")),
    ("O'Folio <Trading>", "P.O. Box 9; Vellum", "XD", "VELLUM TRUST", "No. 7"),
]


def transfer(index, changes=None):
    """One right record."""
    kanji, kana = name(index)
    zip_code, address = place(index)
    party, party_address, country, bank, branch = ABROAD[index % len(ABROAD)]
    office_name, office_code = office(index)
    is_first = index % 3 != 1
    reason = 1 + index % 5
    amount = 1000 + index * 777
    record = {
        1: "301", 2: "1" if is_first else "23"[index % 2],
        3: "" if is_first else seiri(f"{3000000000000 + index * 911:013d}"), 4: "12"[index % 2],
        **date(5, 5, 2 + index % 6, 1 + index % 12, 1 + index * 3 % 28),
        9: kana, 10: kanji, 11: zip_code, 12: address,
        13: ("", kojin(f"{70223450000 + index * 4177:011d}"),
             hojin(f"{980000000200 + index * 3:012d}"))[index % 3],
        14: "1239"[index % 4],
        15: party, 16: party_address, 17: country, 18: bank, 19: branch,
        20: f"{country}BKSAMP" if index % 2 else "",
        21: ("見本銀行", "墨壺信用金庫")[index % 2], 22: ("", "帳面坂支店")[index % 2], 23: "129"[index % 3],
        24: f"{2000000 + index * 1357}", 25: ("XYA", "XYB")[index % 2], 26: f"{amount:09d}",
        27: str(amount * 150), 28: str(reason),
        29: quoted("見本, 雛形の購入\r\n（\"試作\"を含む）") if reason == 5 else "",
        30: office_name, 31: office_code, 32: kanji, 33: "", 34: f"K-{index}",
    }
    return complete(record, changes, 34)


def passing():
    return [
        transfer(0),
        # Quotes around every value
        {column: quoted(cell) if not cell.startswith('"') else cell
         for column, cell in transfer(1).items()},
        transfer(2),
        None,
        # An empty quoted value; one whose line ends and blanks at the edges go away; one with text
        # behind its quotes; a quotation mark that isn't at the beginning
        transfer(3, {33: quoted("")}),
        transfer(4, {33: quoted("\r\n 前後の空白と改行は残らない \r\n")}),
        transfer(5, {33: quoted("引用,") + "の後"}),
        transfer(6, {33: "寸法は5\"x7\""}),
        # Line ends of each kind inside a value
        transfer(7, {33: quoted("一行目\r\n二行目\n三行目\r四行目")}),
        transfer(8, {16: quoted("A\r\nB\r\nC\r\nD"), 33: quoted("\"\"")}),
        transfer(9, {33: quoted("a,b"), 34: quoted("社内,\"甲\"")}),
        # The first day that counts; the change of era
        transfer(10, date(5, 4, 25, 1, 1)),
        transfer(11, date(5, 4, 31, 4, 30)),
        transfer(12, date(5, 5, 1, 5, 1)),
        transfer(13, {9: "PAPER & INK (TOKYO)", 26: "0000", 27: "0"}),
        transfer(14, {12: "①髙欄ビル－９", 33: "<&>'\""}),
        transfer(15),
    ] + [transfer(index) for index in range(16, 28)]


def failing():
    return [
        (transfer(0), [], "right"),
        (transfer(1, {2: "4", 3: ""}), [(2, 9)],
         "unknown kind: the reference number is neither wanted nor unwanted"),
        (transfer(2, {2: "2"}), [(3, 1)], "a correction without the earlier reference number"),
        (transfer(3, {3: seiri("3000000000001")}), [(3, 5)],
         "a first statement has no earlier reference number"),
        (None, [], "an empty line isn't stored"),
        (transfer(4, {3: spoilt_tail(seiri("3000000000012")), 4: quoted("1,2")}), [(3, 10), (4, 9)],
         "wrong check digit; a comma inside quotes belongs to the value"),
        (transfer(5, date(5, 4, 24, 12, 31)), [(5, 8, 10)], "the day before the first allowed"),
        (transfer(6, date(5, 4, 31, 5, 1)), [(5, 8, 12)],
         "the first day of the new era written in the old one"),
        (transfer(8, {9: quoted("PAPER, INK"), 10: quoted("見本\r\n太郎")}), [(9, 34), (10, 6)],
         "the comma is the one printable character that this kana check refuses; a line end in a "
         "name"),
        (transfer(9, {11: "999010"}), [(11, 8)], "postal code of 6 digits"),
        (transfer(10, {12: quoted("紙原県\r\n見本市")}), [(12, 6)], "a line feed in the address"),
        (transfer(11, {13: "802234500001"[:11]}), [(13, 8)], "number of 11 digits"),
        (transfer(12, {14: "4", 15: quoted("見本, Ltd.")}), [(14, 9), (15, 35)],
         "unknown way of confirmation; Japanese in the name abroad"),
        (transfer(13, {16: quoted("A\r\n" * 47)}), [],
         "141 bytes, of which the trim takes the last two"),
        (transfer(14, {16: quoted("A\r\n" * 46 + "ABC")}), [(16, 8)],
         "address of 141 bytes: each line end counts two"),
        (transfer(15, {17: "X1", 20: "XA_BK"}), [(17, 32), (20, 6)],
         "country with a digit: `alphabet` reports HE70032E in place of its own HE70006E; "
         "underscore"),
        (transfer(16, {17: quoted("XAB"), 18: ""}), [(17, 8), (18, 1)],
         "country of 3 letters; no bank abroad"),
        (transfer(17, {21: quoted("見本,銀行")}), [(21, 6)],
         "half-width comma: `multibyte` reports HE70006E in place of its own HE99999E"),
        (transfer(18, {23: "3", 24: quoted("12345\"7")}), [(23, 9), (24, 4)],
         "unknown kind of account; a doubled quotation mark is one character of the value"),
        (transfer(19, {25: "XXX"}), [(25, 10)],
         "no currency: `except` reports HE70010E in place of its own HE99999E"),
        (transfer(20, {26: quoted("1,000"), 27: "-1"}), [(26, 4), (27, 4)],
         "a quoted comma is no digit; a sign"),
        (transfer(24, {29: quoted("")}), [(29, 1)], "another reason that isn't told: empty quotes"),
        (transfer(21, {28: "2", 29: quoted("理由")}), [(29, 5)],
         "a listed reason isn't told in words"),
        (transfer(22, {30: "見本北", 31: "90101"}), [(30, 31, 2)],
         "another office's name: the error covers both columns"),
        (transfer(23, {33: quoted("余" * 99 + "\r\n白")}), [(33, 7)],
         "remarks of 102 characters, the line end among them"),
        (transfer(25, {34: quoted("甲\r\n乙")}), [(34, 6)], "a line feed where one line is wanted"),
        (transfer(26, {34: "\"閉じない引用\r\n301,最後まで"}), [(34, 6)],
         "a quote that isn't closed takes the rest of the file, whose line feed is refused; the "
         "last line end is trimmed"),
    ]

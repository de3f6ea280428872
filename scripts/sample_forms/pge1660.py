"""Samples of the statement of securities moved abroad, PGE1660. Values may be quoted."""

from sample_forms.common import (
    complete, date, hojin, kojin, name, no_date, office, place, quoted, seiri, spoilt_tail,
)

FORM = "PGE1660"

# Securities and firms abroad: all invented
SECURITIES = [
    ("1", "余白鉱業", "XA0000000017"), ("2", quoted("2030年満期, 利率1.5%"), "XB0000000025"),
    ("3", quoted("\"栞\"投信（為替ヘッジ有, 毎月）"), "XC0000000033"),
    ("4", "VELLUM 'B' <PREF>", "XD0000000041"),
]
FIRMS = [
    ("INKWELL SECURITIES", "3 QUILL SQUARE", "XA"),
    (quoted("Blotter, Sand & Sons"), quoted("40 Blotter Row,\r\nInkwell 4000"), "XB"),
    (quoted('"Folio" Brokers, Inc.'), quoted("Floor 2\r\n8 Vellum Way,\r\nFootnote"), "XC"),
]


def move(index, changes=None):
    """One right record."""
    kanji, kana = name(index)
    zip_code, address = place(index)
    kind, security, code = SECURITIES[index % len(SECURITIES)]
    firm, firm_address, country = FIRMS[index % len(FIRMS)]
    office_name, office_code = office(index)
    is_person = index % 4 != 3
    filing = 1 + index % 3
    is_confirmed = index % 2 == 0
    record = {
        1: "302", 2: str(filing), 3: "12"[index % 2],
        **date(4, 5, 2 + index % 6, 1 + index % 12, 1 + index * 5 % 28),
        8: "" if filing == 1 else seiri(f"{6000000000000 + index * 733:013d}"),
        9: "1" if is_person else "2", 10: kana if is_person else "ヨハク（カ）",
        11: kanji if is_person else "余白株式会社", 12: zip_code, 13: address,
        14: kojin(f"{60323450000 + index * 2711:011d}") if is_person
        else hojin(f"{980000000300 + index * 9:012d}"),
        **(date(15, 3 + index % 2, 5 + index % 20, 1 + index * 7 % 12, 1 + index * 3 % 28)
           if is_person else no_date(15)),
        19: kind, 20: security, 21: code, 22: f"{100 + index:06d}", 23: str(50000 + index * 1111),
        24: ("XYA", "XYB")[index % 2], 25: firm, 26: firm_address, 27: country,
        28: f"AC-{index * 7919:08d}",
        29: str(2020 + index % 6) if is_confirmed else "",
        30: str(1 + index % 12) if is_confirmed else "",
        31: str(1 + index % 28) if is_confirmed else "",
        32: ("見本営業所", "帳面坂営業所")[index % 2], 33: office_name, 34: office_code,
        35: "0999123456" if index % 5 else "", 36: "",
    }
    return complete(record, changes, 36)


def passing():
    return [
        move(0),
        move(1),
        {column: quoted(cell) if not cell.startswith('"') else cell
         for column, cell in move(2).items()},
        None,
        move(3, {36: quoted("法人, \"生年月日\"なし")}),
        # The first day that counts; the change of era
        move(4, date(4, 4, 27, 1, 1)),
        move(5, date(4, 4, 31, 4, 30)),
        move(6, date(4, 5, 1, 5, 1)),
        # Born the day before; in an early era
        move(8, {**date(4, 5, 6, 7, 8), **date(15, 5, 6, 7, 7)}),
        move(9, date(15, 2, 15, 12, 24)),
        move(10, date(15, 3, 64, 1, 7)),
        # Leap day, zeros before numbers, no number
        move(12, {29: "2024", 30: "2", 31: "29", 14: "", 22: "0000000001", 23: "000000000000000"}),
        move(13, {36: quoted("一行目,\r\n二行目")}),
        move(14, {20: quoted("㈱余白, 優先「Ａ」"), 36: "<br/> & \"x\""}),
    ] + [move(index) for index in range(15, 32)]


def failing():
    return [
        (move(0), [], "right"),
        (move(1, {2: "", 3: quoted("1\r\n2")}), [(2, 1), (3, 9)],
         "no kind of filing; a line end inside quotes belongs to the value"),
        (move(2, date(4, 4, 26, 12, 31)), [(4, 7, 10)],
         "the day before the first allowed; the day of birth isn't compared with it then"),
        (move(3, {8: seiri("6000000000001")}), [(8, 5)],
         "a first statement has no earlier reference number"),
        (None, [], "an empty line isn't stored"),
        (move(4, {8: spoilt_tail(seiri("6000000000012"))}), [(8, 10)], "wrong check digit"),
        (move(5, {9: "3", 10: quoted("Paper, Ink")}), [(9, 9), (10, 34)],
         "neither person nor company: the day of birth is neither wanted nor unwanted; a comma"),
        (move(6, {11: quoted('"見本"')}), [(11, 6)], "half-width quotation marks in the name"),
        (move(7, {14: spoilt_tail(hojin("980000000301"))}), [(14, 10)],
         "corporate number with a wrong check digit"),
        (move(8, {12: quoted("9999,999"), 13: ""}), [(12, 4), (13, 1)],
         "comma in a postal code; no address"),
        (move(9, {**date(4, 5, 6, 7, 8), **date(15, 5, 6, 7, 8)}), [(15, 18, 25)],
         "born on the day of the transfer"),
        (move(10, no_date(15)), [(15, 1)], "a person without a day of birth"),
        (move(11, date(15, 3, 50, 1, 1)), [(15, 5)],
         "a company with a date of birth: reported for its era"),
        (move(12, {18: ""}), [(18, 12)], "a date of birth without the day"),
        (move(13, date(15, 3, 64, 1, 8)), [(15, 18, 12)], "the day after the last of its era"),
        (move(14, {19: "5", 20: quoted("余白\n鉱業"), 21: "XA000000001"}), [(19, 9), (20, 6), (21, 8)],
         "unknown kind; a line feed in the name; code of 11 characters"),
        (move(15, {22: quoted("1,000"), 23: "1" * 16}), [(22, 4), (23, 8)],
         "a quoted comma is no digit; value of 16 digits"),
        (move(16, {24: "XY"}), [(24, 8)], "currency of 2 letters"),
        (move(17, {25: quoted("余白 Securities"), 27: "X-"}), [(25, 35), (27, 32)],
         "Japanese in the firm's name; a hyphen in the country"),
        (move(18, {28: quoted("AC\"1\"")}), [(28, 6)], "quotation marks in the account"),
        (move(20, {29: "2023", 30: "2", 31: "29"}), [(29, 31, 12)], "no leap year"),
        (move(22, {29: "99", 30: "2", 31: "1"}), [(29, 31, 12)],
         "a year of two digits is no year of the Western calendar"),
        (move(24, {29: "2023", 30: ""}), [(29, 31, 12)], "a day of confirmation without the month"),
        (move(26, {29: "令5"}), [(29, 4)], "not a number: the date isn't checked then"),
        (move(28, {32: "見本office"}), [(32, 6)],
         "half-width letters: `multibyte` reports HE70006E in place of its own HE99999E"),
        (move(29, {34: "90600"}), [(34, 11)],
         "the code of a regional office is no tax office's; name and code aren't compared then"),
        (move(30, {35: "12345", 36: quoted("ﾃｷﾖｳ,\r\n")}), [(35, 10), (36, 6)],
         "telephone number that doesn't begin with 0; half-width kana"),
        (move(31), [], "right"),
    ]

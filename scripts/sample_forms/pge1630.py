"""Samples of the notice of electronic filing, PGE1630: a file holds one record."""

from sample_forms.common import complete, date, hojin, name, office, place, seiri, spoilt_tail

FORM = "PGE1630"


def notice(changes=None):
    """A right record, a withdrawal, with all its columns filled."""
    zip_code, address = place(1)
    office_name, office_code = office(2)
    kanji, kana = name(3)
    record = {
        1: "201", 2: "3", **date(3, 5, 7, 4, 1), 7: seiri("1234567890123"),
        8: "Ａ＆Ｂ　ミホンセイシ（Ltd）", 9: "Ａ＆Ｂ見本製紙株式会社",
        10: hojin("980000000051"), 11: zip_code, 12: address, 13: "0999123456",
        14: office_name, 15: office_code,
        16: "2", 17: "1", 18: "003",
        **date(19, 5, 7, 4, 1), **date(23, 5, 8, 3, 31),
        27: "1", 28: "0", 29: "1", 30: "0", 31: "1", 32: "余白調書",
        33: "総務部帳票課", 34: kana, 35: kanji, 36: "0999654321", 37: "007",
        38: "<①> & \"髙欄\" 支店を含む",
    }
    return complete(record, changes, 38)


def passing():
    return [None, notice(), None]


def failing():
    changes = {
        2: "4", **date(3, 5, 7, 2, 30), 7: "12345",
        21: "13", 23: "", 8: "ﾐﾎﾝ", 9: "A&B製紙", 10: spoilt_tail(hojin("980000000051")),
        11: "0000000", 12: "ﾐﾎﾝ市", 13: "0999-1234", 14: "見本北", 15: "90101",
        17: "", 18: "000", 27: "0", 29: "0", 31: "0", 33: "Tax課", 34: "ﾕｳ", 35: "", 36: "+99",
        37: "1000", 38: "余" * 101,
    }
    entries = [
        (2, 9), (3, 6, 12), (7, 8), (21, 9), (23, 12), (8, 34), (9, 6), (10, 10), (11, 10),
        (12, 6), (13, 4), (14, 15, 2), (17, 1), (18, 9), (27, 30), (32, 5), (33, 6), (34, 3),
        (35, 1), (36, 4), (37, 8), (38, 7),
    ]
    why = ("unknown kind of notice, so the reference number (5 digits) and the day of a "
           "withdrawal (without an era) are neither wanted nor unwanted; 30 February; month "
           "13: that date isn't compared with the first then; half-width kana; half-width "
           "letters; wrong check digit; postal code of zeros; half-width kana in the address; "
           "hyphen in a telephone number; another office's name; a disc without a kind; no "
           "discs; no statement chosen: `anycontain` reports HE70030E in place of its own "
           "HE70009E; a name for other statements where there are none; letters, half-width "
           "kana and no name for whom to ask; a sign; four digits; 101 characters")
    return [(None, [], "an empty line isn't stored"), (notice(changes), entries, why)]

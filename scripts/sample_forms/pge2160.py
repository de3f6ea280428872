"""Correction of a summary of payment records (type id 116): 41 columns, one record a file."""

from sample_forms.common import complete, date
from sample_forms.pge2080 import sums

FORM = "PGE2160"


def correction(changes=None):
    """The right record, by column number from 1. `changes` replaces cells."""
    record = {
        1: "116", **sums(), 2: "3", **date(6, 5, 8, 4, 30), **date(33, 5, 8, 1, 31),
        37: "20260131123456789012", 38: "1", 39: "", 40: "445778901", 41: "",
    }
    return complete(record, changes, 41)


def passing():
    # Corrected on the day itself, for a reason that is told in words; nothing but one kind
    return [correction({
        2: "4", 3: "4", 4: "31", **date(6, 5, 7, 12, 31), 10: "", 12: "",
        14: "", 15: "", 16: "", 17: "", 18: "", 19: "", 20: "000", 21: "", 22: "0",
        26: "7", 27: "1400000", 28: "142940", 29: "0", 30: "",
        **date(33, 5, 7, 12, 31), 38: "9", 39: "支払先の合併－承継　①②", 40: "0001400000",
        41: "～再提出～",
    })]


def failing():
    return [
        (correction({
            2: "1", 3: "5", 4: "14", **date(6, 5, 1, 12, 31), 12: "1999123456",
            13: "tax＠payer.example", 14: "1234567", 17: "00", 18: "", 23: "", 24: "", 29: "x",
            30: "９", 31: "", 32: "9070", **date(33, 5, 2, 1, 1), 37: "2026013112345678901",
            38: "1", 39: "誤り", 40: "00445778900", 41: "ﾃｲｾｲ",
        }), [
            (2, 9), (3, 4, 25), (6, 9, 10), (12, 10), (13, 35), (14, 8), (25, 5), (29, 9), (30, 4),
            (31, 1), (32, 8), (37, 8), (39, 5), (40, 31), (41, 6),
        ],
            "kind of a first summary; year 2032; a day before 2020, which spares the comparison "
            "with the later day in columns 33 to 36; telephone number that doesn't begin with 0; "
            "full-width sign; 7 digits; tax of a kind without a number; unknown mark, for which "
            "the branches are only looked at for their form; no office, whose code of 4 digits "
            "isn't compared with it; receipt number of 19 digits; words for a reason that needs "
            "none; the sum that was wrong is the right one: `exceptcolumn` reports HE70031E in "
            "place of its own HE70010E; half-width kana"),
    ]

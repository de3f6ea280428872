"""Summary of a year's payment records (type id 108): 33 columns, one record a file."""

from sample_forms.common import complete, date

FORM = "PGE2080"


def sums():
    """The columns that the summary shares with its correction: 2 to 32."""
    return {
        2: "1", 3: "5", 4: "7", 5: "14", **date(6, 5, 8, 1, 31),
        10: "経理部－税務課", 11: "例田　花子", 12: "0999123456", 13: "tax@payer.example",
        14: "000120", 15: "0345678900", 16: "",
        17: "45", 18: "98700000", 19: "1234500",
        20: "0", 21: "", 22: "",
        23: "7", 24: "1400000", 25: "142940",
        26: "172", 27: "00445778900", 28: "1377440",
        29: "1", 30: "12", 31: "髙欄", 32: "90707",
    }


def summary(changes=None):
    """The right record, by column number from 1. `changes` replaces cells."""
    return complete({1: "108", **sums(), 33: "<合計> & '支店分'"}, changes, 33)


def passing():
    return [summary()]


def failing():
    return [
        (summary({
            2: "3", 4: "１", 5: "1", 6: "4", 11: "例田－花子", 12: "", 13: "", 15: "", 19: "-5",
            20: "", 21: "500", 22: "0", 24: "12345678901234", 26: "0", 27: "4億", 28: "",
            30: "", 31: "見本中央", 33: "合" * 60 + "a",
        }), [
            (2, 9), (4, 4), (5, 9), (6, 9), (12, 1), (11, 6), (15, 1), (19, 4), (21, 5), (22, 5),
            (24, 8), (26, 9), (27, 4), (28, 1), (30, 1), (31, 32, 2), (33, 8),
        ],
            "kind of a correction; full-width digit in the year; half of a medium's number; era "
            "4, in which nothing is handed in; full-width hyphen in a name; neither telephone "
            "nor mail, found before the columns of that group; records without a sum; a sign; "
            "sum and tax of a kind without a number; a sum of 14 digits; no records in all; a "
            "sum in words; no tax in all; no number of branches; another office's name; remarks "
            "of 121 bytes"),
    ]

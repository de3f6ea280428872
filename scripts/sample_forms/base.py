"""Samples of the base family: one form a definition, one record a line, empty lines counted."""

from sample_forms.common import (
    PAYERS, ElsewhereEntry, complete, date, hojin, kojin, name, no_date, office, place, seiri,
    spoilt_tail,
)


# --- form 001 ---------------------------------------------------------------------------------

def report_001(index, junior, changes=None):
    """One right record, by column number from 1. `changes` replaces cells."""
    kanji, kana = name(index)
    giver_kanji, giver_kana = name(index + 9)
    zip_code, address = place(index)
    giver_zip, giver_address = place(index + 3)
    office_name, office_code = office(index)
    month, day = 1 + index % 12, 1 + index * 5 % 28
    contract = (5, 4 + index % 4) if junior else (4, 26 + index % 5)
    record = {
        1: "001", **date(2, *contract, month, day),
        6: kana, 7: kanji, 8: zip_code, 9: address,
        **date(10, 4, 10 + index % 12, 1 + index * 7 % 12, 1 + index * 3 % 28),
        14: kojin(f"{70123450000 + index * 5107:011d}"), 15: "1239"[index % 4],
        16: giver_kana, 17: giver_kanji, 18: giver_zip, 19: giver_address,
        20: ("見本信託銀行", "墨壺信用金庫", "升目銀行帳面坂支店")[index % 3],
        21: office_name, 22: office_code,
        23: "" if junior else f"OLD-{index * 7193 % 1000000:06d}",
        24: "" if junior else str(2013 + index % 9),
        25: str(500000 + index * 12345), 26: str(1 + index % 2),
        **date(27, contract[0], contract[1] + 1, month, day),
        31: "",
    }
    return complete(record, changes, 31)


def passing_001():
    return [
        report_001(0, False),
        report_001(1, True),
        # The last day of the old scheme; the same day without an approval is the new scheme's
        report_001(2, False, {**date(2, 5, 3, 3, 31), **date(27, 5, 3, 4, 1)}),
        report_001(3, True, {**date(2, 5, 3, 3, 31), **date(27, 5, 3, 4, 1)}),
        report_001(4, True, {**date(2, 5, 3, 4, 1), **date(27, 5, 3, 4, 1)}),
        # The change of era: a date of the old era after its end
        report_001(5, False, {**date(2, 4, 31, 4, 30), **date(27, 4, 31, 5, 1)}),
        report_001(6, False, {**date(2, 4, 31, 12, 31), **date(27, 4, 32, 3, 31)}),
        report_001(7, False, {**date(2, 5, 1, 5, 1), **date(27, 5, 1, 5, 1)}),
        # The first day that counts
        report_001(8, False, {**date(2, 4, 25, 4, 1), **date(27, 4, 25, 4, 1)}),
        # Born on the day of the contract; 29 years old on 1 April, 30 on the 2nd
        report_001(9, True, {**date(2, 5, 5, 6, 7), **date(10, 5, 5, 6, 7), **date(27, 5, 5, 6, 7)}),
        report_001(10, True, {**date(2, 5, 7, 4, 1), **date(10, 4, 7, 4, 2), **date(27, 5, 7, 4, 1)}),
        report_001(11, True, date(10, 4, 12, 2, 29)),
        # No personal number; zeros before the amount
        report_001(12, False, {14: "", 25: "0000750000"}),
        report_001(13, True, {25: "0", 31: "<信託> & \"追加\"", 20: "余白銀行"}),
        report_001(14, False, {4: "09", 5: "01", 31: "①髙﨑支店扱い"}),
    ] + [report_001(index, index % 3 == 1) for index in range(15, 52)]


def failing_001():
    return [
        (report_001(0, False), [], "right"),
        (report_001(1, True, {2: "3"}), [(2, 9)],
         "contract in era 3; nothing is compared with a contract that is wrong"),
        (report_001(2, False, date(2, 4, 26, 2, 30)), [(2, 5, 12)],
         "30 February: the record is a senior one all the same, which doesn't ask for a real date"),
        (report_001(3, True, date(2, 4, 25, 3, 31)), [(2, 5, 10)],
         "the day before the first allowed"),
        (report_001(4, False, date(2, 4, 33, 1, 1)), [(2, 5, 12)],
         "year 33 of an era whose year 32 ended in March"),
        (report_001(5, True, {6: "ﾁｮｳｱｲ", 7: ""}), [(6, 3), (7, 1)],
         "half-width kana; no name in kanji"),
        (report_001(6, False, {8: "9999999"}), [(8, 10)],
         "postal code of nines: `except` reports HE70010E in place of its own HE99999E"),
        (report_001(7, True, date(10, 5, 7, 8, 9)), [(10, 13, 25)],
         "born on the day after the contract"),
        (report_001(8, True, date(10, 4, 4, 4, 1)), [(10, 13, 10)],
         "30 years old on 1 April of the contract's year, which is the birthday itself"),
        (report_001(9, False, {12: "13"}), [(12, 9)],
         "month 13: the birth isn't checked as a date then"),
        (report_001(10, False, {14: spoilt_tail(kojin("70123459999"))}), [(14, 10)],
         "personal number with a wrong check digit"),
        (report_001(11, True, {14: "70123459999"}), [(14, 8)], "personal number of 11 digits"),
        (report_001(12, True, {15: "5", 16: "レイダ ハナコ"}), [(15, 9), (16, 3)],
         "unknown relation; half-width blank in the giver's kana name"),
        (None, [], "an empty line counts as a record and isn't checked"),
        (report_001(13, False, {17: "A", 19: "墨" * 61}), [(17, 6), (19, 7)],
         "half-width letter in the giver's name; address of 61 characters"),
        (report_001(14, False, {20: "見本Bank"}), [(20, 6)],
         "half-width letters: `multibyte` reports HE70006E in place of its own HE99999E"),
        (report_001(15, True, {21: "見本北", 22: "90101"}), [(21, 22, 2)],
         "another office's name: the error covers both columns"),
        (report_001(16, True, {23: "OLD-000001"}), [(23, 5)],
         "a contract of the new scheme has no number of an approval"),
        (report_001(17, False, {23: "OLD-1"}), [(23, 8)], "number of the approval of 5 bytes"),
        (report_001(18, False, {24: "2022"}), [(24, 9)], "approved after the end of the old scheme"),
        (report_001(19, False, {25: "-500", 26: "3"}), [(25, 4), (26, 9)],
         "a sign is no digit; unknown kind of receipts"),
        (report_001(20, True, {27: ""}), [(27, 30, 12)],
         "declared in no era: the check of the whole date reports it for four columns"),
        (report_001(21, False, date(27, 4, 25, 3, 31)), [(27, 30, 10)],
         "declared before the first day allowed: whether the contract is earlier isn't asked then"),
        (report_001(22, True, date(27, 5, 6, 1, 1)), [(27, 30, 25)], "declared before the contract"),
        (report_001(23, True, {30: "x"}), [(30, 4)], "letter in the day of the declaration"),
        (report_001(24, False, {31: "ﾃｷﾖｳ"}), [(31, 6)], "half-width kana in the remarks"),
        (report_001(25, True), [], "right"),
    ]


# --- form 002 ---------------------------------------------------------------------------------

def report_002(index, junior, changes=None):
    """One right record, by column number from 1. `changes` replaces cells."""
    kanji, kana = name(index)
    zip_code, address = place(index)
    office_name, office_code = office(index)
    opened = 2010 + index % 14
    gain, dividends = 120000 + index * 98765, index * 4321
    record = {
        1: "002", 2: str(1 + index % 3), 3: "5", 4: "7",
        5: kana, 6: kanji, 7: zip_code, 8: address,
        9: "5" if junior else "34"[index % 2], 10: str(2 + index % 6 if junior else 22 + index % 10),
        11: str(1 + index % 12), 12: str(1 + index * 5 % 28),
        13: kojin(f"{90123450000 + index * 7919:011d}"), 14: f"0999{index * 1237 % 1000000:06d}",
        15: "1", 16: "",
        17: office_name, 18: office_code,
        19: seiri(f"{4 + index % 6}{index * 9176 + 310:012d}") if junior else "",
        20: "", 21: "", 22: "",
        23: str(1 + index % 3), 24: f"K-{index * 37 % 900 + 100}", 25: f"{1000001 + index * 54321:07d}",
        26: str(opened), 27: "",
        28: "1", 29: str(gain), 30: str(dividends),
        31: str((gain + dividends) * 15315 // 100000), 32: str((gain + dividends) * 5 // 100),
        33: "1", 34: "01"[index % 2], 35: "",
        36: "",
    }
    if junior:
        parent_kanji, parent_kana = name(index + 7)
        record.update({20: parent_kana, 21: parent_kanji, 22: "1239"[index % 4], 27: str(opened + 5)})
    record.update(changes or {})
    assert sorted(record) == list(range(1, 37))
    return record


def passing_002():
    return [
        report_002(0, False),
        report_002(1, True),
        # A company: corporate number, no sum for dividends, traded only bonds
        report_002(2, False, {5: "カブシキガイシャ　ヒナガタブンコ", 6: "株式会社雛形文庫", 9: "4", 10: "12",
                              13: hojin("990000000017"), 30: "", 33: "0", 34: "0", 35: "1"}),
        # Personal number in 13 digits, its leading 0 isn't written
        report_002(3, False, {13: "0" + kojin("90123459999")}),
        # Leading zeros of the two amounts are suppressed, not those of the taxes
        report_002(4, True, {29: "000000012500", 30: "000", 31: "00001875", 32: "0"}),
        # A senior may have a reference number, beginning with 0 to 3
        report_002(5, False, {19: seiri("1000000004321")}),
        # Blanks around values, half-width and full-width, are trimmed
        report_002(6, True, {6: "　罫野　すみれ ", 8: " 紙原県見本市例町９番　", 36: "  住所変更の届出あり　"}),
        # Abroad
        report_002(7, False, {15: "2", 16: "ZZ", 14: ""}),
        report_002(8, True, {36: "<特定口座> \"源泉\" & '一般' の合算"}),
        # Code page 932 beyond JIS: only the remarks take it
        report_002(9, False, {36: "①髙﨑支店扱い～Ⅳ期分－∥㈱"}),
        # The last day of an era; a 29 February with its leading zero
        report_002(10, False, {9: "3", 10: "64", 11: "1", 12: "7"}),
        report_002(11, False, {9: "2", 10: "13", 11: "02", 12: "29"}),
        report_002(12, True, {22: "9"}),
        # No personal number, no telephone
        report_002(13, False, {13: "", 14: ""}),
        # A loss, no dividends
        report_002(14, False, {28: "2", 29: "5400300", 30: "", 31: "0", 32: "0"}),
        # Dividends alone
        report_002(15, True, {28: "", 29: "", 30: "80000"}),
        report_002(16, False, {19: seiri("3141592653589")}),
        # As long as it may be: 30 characters of name, 60 of address, 200 bytes of remarks
        report_002(17, False, {5: "ア" * 30, 6: "亜" * 30, 8: "見" * 60, 36: "摘" * 100}),
        report_002(18, True, {2: "3", 36: "取消"}),
        report_002(19, False, {24: "AB 12-zZ", 25: "0000001"}),
        report_002(20, False, {33: "", 34: "1", 35: ""}),
        report_002(21, True, {19: seiri("9999999999999")}),
        report_002(22, False, {29: "999999999999", 30: "999999999999", 31: "99999999999",
                               32: "99999999999"}),
        report_002(23, True, {3: "4", 4: "31", 26: "2019", 27: "2024"}),
    ] + [report_002(index, index % 3 == 1) for index in range(24, 52)]


def failing_002():
    return [
        (report_002(0, True), [], "right"),
        (report_002(1, False, {2: "4"}), [(2, 9)], "report kind 4 isn't in the list 1 2 3"),
        (report_002(2, True, {2: ""}), [(2, 1)],
         "report kind missing: `exist` stops the column's checks, so `contain` adds nothing"),
        (report_002(3, False, {5: "ｵﾓﾃﾉ ﾖｼｺ"}), [(5, 3)], "name in half-width kana"),
        (report_002(4, True, {6: "髙﨑　ソノ", 7: "999010"}), [(6, 6), (7, 8)],
         "two errors: name with characters beyond JIS X 0208; postal code of 6 digits"),
        (report_002(5, False, {7: "0000000"}), [(7, 10)],
         "postal code of zeros: `except` reports HE70010E in place of its own HE99999E"),
        (report_002(6, False, {8: "墨" * 61}), [(8, 7)], "address of 61 characters"),
        (report_002(7, False, {9: "4", 10: "7", 11: "2", 12: "30"}), [(9, 12, 12)],
         "30 February: the check of the whole date covers its four columns"),
        (report_002(8, True, {9: "6", 11: "4", 12: "31"}), [(9, 9)],
         "era 6; 31 April stands behind it, but the date as a whole is checked only when its four "
         "columns are right"),
        (report_002(9, False, {9: "3", 10: "65", 11: "3", 12: "3"}), [(9, 12, 12)],
         "year 65 of an era of 64 years"),
        (report_002(10, False, {13: spoilt_tail(kojin("90123456789"))}), [(13, 10)],
         "personal number with a wrong check digit"),
        (report_002(11, False, {13: "90123456789", 14: "1399990001"}), [(13, 8), (14, 10)],
         "two errors: number of 11 digits; telephone number that doesn't begin with 0"),
        (report_002(12, False, {13: spoilt_tail(hojin("990000000024"))}), [(13, 10)],
         "corporate number with a wrong check digit"),
        (None, [], "an empty line counts as a record and isn't checked"),
        (report_002(13, True, {13: "0" + spoilt_tail(kojin("90123451111"))}), [(13, 10)],
         "13 digits with a leading 0: a personal number, wrong check digit"),
        (report_002(14, False, {15: "2", 16: ""}), [(16, 1)], "a holder abroad without a country"),
        (report_002(15, False, {15: "1", 16: "ZZ"}), [(16, 5)], "a resident with a country"),
        (report_002(16, False, {15: "2", 16: "Z1"}), [(16, 32)],
         "country with a digit: `alphabet` reports HE70032E in place of its own HE70006E"),
        (report_002(17, False, {18: "90200"}), [(18, 11)],
         "the code of a regional bureau is no tax office's; as the code failed, name and code "
         "aren't compared"),
        (report_002(18, False, {17: "見本北", 18: "90101"}), [(17, 18, 2)],
         "another office's name: the error covers both columns"),
        (report_002(19, True, {19: spoilt_tail(seiri("5000000000019"))}),
         [(19, 10), (20, 5), (21, 5), (22, 5), (27, 5)],
         "reference number with a wrong check digit: that makes the record a senior one, for which "
         "the parent and the year of maturity are not wanted"),
        (report_002(20, True, {20: "", 22: "5"}), [(20, 1), (22, 9)],
         "junior without the parent's kana name and with an unknown relation"),
        (report_002(21, False, {23: "9", 24: "AB_1"}), [(23, 9), (24, 6)],
         "account kind 9; underscore in the account's mark"),
        (report_002(22, False, {25: "123456"}), [(25, 8)], "account number of 6 digits"),
        (report_002(23, True, {26: "2020", 27: "2024"}), [(27, 25)],
         "maturity 4 years after opening in place of 5"),
        (report_002(24, True, {26: "20X0", 27: "2024"}), [(26, 4)],
         "the year of opening isn't a number; the year of maturity isn't compared with it then"),
        (report_002(25, False, {28: "", 29: "", 30: ""}), [(29, 1)],
         "neither gain nor dividends; the group's check comes before those of its columns"),
        (report_002(26, False, {28: "", 30: "1234567890123"}), [(28, 1), (30, 8)],
         "an amount without gain or loss; dividends of 13 digits"),
        (report_002(27, False, {31: "-5", 32: "１００"}), [(31, 4), (32, 4)],
         "a sign and full-width digits are no half-width digits"),
        (report_002(28, False, {33: "0", 34: "0", 35: "0"}), [(33, 30)],
         "nothing traded: `anycontain` reports HE70030E in place of its own HE70009E"),
        (report_002(29, False, {33: "0", 34: "2", 35: "0"}), [(34, 9)],
         "2 is neither 0 nor 1; whether anything was traded isn't asked then"),
        (report_002(30, False, {36: "ﾐﾎﾝ"}), [(36, 6)], "half-width kana in the remarks"),
        (report_002(31, False, {36: "摘" * 100 + "a"}), [(36, 8)], "remarks of 201 bytes"),
        (report_002(32, True, {2: "x", 6: "MIHON", 18: "9010", 32: ""}),
         [(2, 9), (6, 6), (18, 8), (32, 1)],
         "four errors in one record, in the order of the form"),
        (report_002(33, False, {19: seiri("2222222222222")[:13]}), [(19, 8)],
         "reference number of 13 digits"),
        (report_002(34, False), [], "right"),
    ]


# --- form 003 ---------------------------------------------------------------------------------

def report_003(index, changes=None):
    """One right record, by column number from 1. `changes` replaces cells."""
    kanji, kana = name(index + 2)
    zip_code, address = place(index + 1)
    office_name, office_code = office(index + 2)
    year = 2 + index % 6
    retired = (5, year - 1, 10 + index % 3) if index % 3 == 0 else (5, year, 1 + index % 9)
    amount = 3000000 + index * 234567
    record = {
        1: "003", 2: str(1 + index % 3), 3: "5", 4: str(year), 5: kana, 6: kanji,
        **date(7, *retired, 1 + index * 5 % 28),
        **(no_date(11) if index % 2 else date(11, 4, 10 + index % 15, 1 + index % 12, 1 + index % 28)),
        **date(15, 4, 26 + index % 4, 4, 1 + index % 30),
        19: kojin(f"{60123450000 + index * 4409:011d}"), 20: zip_code, 21: address,
        22: office_name, 23: office_code, 24: str(4 + index % 30),
        25: str(amount), 26: str(amount // 50), 27: str(amount // 100), 28: str(1 + index % 2),
        29: str(1950 + index % 40), 30: str(1 + index * 7 % 12), 31: str(1 + index * 11 % 28),
        32: "",
    }
    return complete(record, changes, 32)


def passing_003():
    return [
        report_003(0),
        report_003(1),
        # The first and the last day of the business year
        report_003(2, {4: "4", **date(7, 5, 3, 10, 1)}),
        report_003(3, {4: "4", **date(7, 5, 4, 9, 30)}),
        report_003(4, {3: "4", 4: "30", **date(7, 4, 29, 10, 1), **no_date(11)}),
        # The change of era: the business year counts by its Western year
        report_003(5, {3: "5", 4: "1", **date(7, 4, 31, 4, 30)}),
        report_003(6, {3: "4", 4: "31", **date(7, 5, 1, 5, 1)}),
        report_003(7, {3: "4", 4: "32", **date(7, 4, 32, 3, 31)}),
        # Started on the day of the retirement; the day after an earlier retirement
        report_003(8, {4: "5", **date(7, 5, 5, 4, 4), **no_date(11), **date(15, 5, 5, 4, 4)}),
        report_003(9, {**date(11, 3, 64, 1, 7), **date(15, 4, 1, 1, 8)}),
        # Birth unknown; a leap day
        report_003(10, {29: "", 30: "", 31: ""}),
        report_003(11, {29: "2000", 30: "02", 31: "29"}),
        report_003(12, {19: "", 27: "", 25: "00012345"}),
        report_003(13, {32: "勧奨退職 <再提出> & '控え'"}),
    ] + [report_003(index) for index in range(14, 52)]


def failing_003():
    return [
        (report_003(0), [], "right"),
        (report_003(1, {2: ""}), [(2, 1)], "no kind of declaration"),
        (report_003(2, {3: "3"}), [(3, 9)],
         "business year in era 3; the retirement isn't compared with it then"),
        (report_003(3, {3: "4", 4: "28"}), [(3, 4, 25)],
         "a year that isn't in the list: the error covers era and year"),
        (report_003(4, date(7, 5, 6, 10, 1)), [(7, 10, 25)],
         "retired on the day after the business year"),
        (report_003(5, date(7, 5, 6, 9, 30)), [(7, 10, 25)],
         "retired on the day before the business year"),
        (report_003(6, date(7, 5, 2, 2, 30)), [(7, 10, 12)],
         "30 February; neither of the other dates is compared with it"),
        (report_003(7, {10: ""}), [(10, 1)], "retirement without a day"),
        (report_003(8, {14: ""}), [(11, 14, 12)],
         "three of the four columns of the earlier retirement: all or none"),
        (report_003(9, {12: "5"}), [(11, 14, 12)], "its year alone"),
        (report_003(10, date(11, 4, 10, 2, 30)), [(11, 14, 12)], "earlier retirement on 30 February"),
        (report_003(11, date(11, 5, 7, 3, 28)), [(11, 14, 25)],
         "earlier retirement on the very day of the present one"),
        (report_003(12, date(15, 5, 1, 10, 6)), [(15, 18, 25)], "started after the retirement"),
        (report_003(13, {**date(11, 4, 25, 3, 31), **date(15, 4, 25, 3, 31)}), [(15, 18, 25)],
         "started on the day of the earlier retirement"),
        (report_003(14, {19: spoilt_tail(kojin("60123450001"))}), [(19, 10)],
         "personal number with a wrong check digit"),
        (report_003(15, {20: "99901", 21: ""}), [(20, 8), (21, 1)],
         "postal code of 5 digits; no address"),
        (None, [], "an empty line counts as a record and isn't checked"),
        (report_003(16, {29: "2001", 30: "2", 31: "29"}), [(29, 31, 12)],
         "no leap year: the error covers year to day"),
        (report_003(17, {31: ""}), [(29, 31, 12)], "birth without a day: empty only as a whole"),
        (report_003(18, {29: "99", 30: "1", 31: "1"}), [(29, 31, 12)], "year of two digits"),
        (report_003(19, {29: "19X5"}), [(29, 4)], "letter in the year of birth"),
        (report_003(20, {22: "", 23: "90101"}), [(22, 1)],
         "no name of the tax office; name and code aren't compared then"),
        (report_003(21, {24: "61"}), [(24, 9)], "61 years of service"),
        (report_003(22, {24: "0", 25: ""}), [(24, 9), (25, 1)], "no year of service, no amount"),
        (report_003(23, {26: "1000000000000", 27: "x"}), [(26, 8), (27, 4)],
         "tax of 13 digits; a letter in the other"),
        (report_003(24, {28: "3", 32: "摘" * 101}), [(28, 9), (32, 8)],
         "unknown kind of payment; remarks of 202 bytes"),
        (report_003(25, date(11, 2, 15, 1, 1)), [(11, 9)],
         "earlier retirement in era 2; the start isn't compared with it then"),
        (report_003(26), [], "right"),
    ]


# --- form 004 ---------------------------------------------------------------------------------

def report_004(index, changes=None):
    """One right record, by column number from 1. `changes` replaces cells."""
    kanji, kana = name(index + 4)
    zip_code, address = place(index + 2)
    office_name, office_code = office(index + 4)
    year = 2 + index % 6
    amount = 600000 + index * 34567
    record = {
        1: "004", 2: str(1 + index % 3), 3: kana, 4: kanji,
        **date(5, 3, 15 + index % 20, 1 + index * 5 % 12, 1 + index * 7 % 28),
        9: zip_code, 10: address, 11: kojin(f"{50123450000 + index * 3301:011d}"),
        12: str(amount), 13: str(amount // 20), 14: "01"[index % 2],
        **(no_date(15) if index % 5 else date(15, 5, year, 1, 5 + index % 20)),
        19: "5", 20: str(year), 21: "5", 22: str(year - 1), 23: office_name, 24: office_code,
        **date(25, 5, year, 2 + index % 6 * 2, 13 + index % 3),
        29: f"{2000001 + index * 43210:07d}", 30: f"0997{index * 1777 % 1000000:06d}", 31: "",
    }
    return complete(record, changes, 31)


def passing_004():
    return [
        report_004(0),
        report_004(1),
        # The change of era in the years
        report_004(2, {19: "5", 20: "1", 21: "4", 22: "30"}),
        report_004(3, {19: "4", 20: "31", 21: "4", 22: "30", **date(25, 4, 31, 4, 15)}),
        report_004(4, {19: "5", 20: "2", 21: "4", 22: "31", **date(25, 4, 32, 2, 13)}),
        # 40 years old on the last day of the year
        report_004(5, {**date(5, 3, 60, 12, 31), 20: "7", 22: "6"}),
        # The last days of eras, which count as they stand
        report_004(6, date(5, 3, 1, 1, 1) | {6: "2"}),
        report_004(7, date(5, 2, 15, 12, 24)),
        # Died on the first day that counts
        report_004(8, date(15, 4, 28, 1, 1)),
        report_004(9, date(15, 5, 1, 5, 1)),
        report_004(10, {13: "", 14: "", 30: ""}),
        report_004(11, {3: "ソロバン　タマミ Ａ１", 11: ""}),
        report_004(12, {12: "000000650000", 31: "振込先変更 <旧口座> & '解約'"}),
        report_004(13, date(5, 3, 3, 2, 29)),
    ] + [report_004(index) for index in range(14, 52)]


def failing_004():
    return [
        (report_004(0), [], "right"),
        (report_004(1, {2: "4"}), [(2, 9)], "unknown kind of pension"),
        (report_004(2, {20: "0"}), [(20, 9)],
         "year 0; neither the year before nor the age is asked then"),
        (report_004(3, {20: "14"}), [(19, 20, 25)], "a year behind the end of the list"),
        (report_004(4, {22: "4"}), [(21, 22, 25)], "two years before in place of one"),
        (report_004(5, {21: "6"}), [(21, 9)], "era 6"),
        (report_004(6, {3: "ﾓｸｼﾞ"}), [(3, 34)], "half-width kana"),
        (report_004(7, date(5, 3, 64, 1, 8)), [(5, 8, 12)], "born on the day after an era's last"),
        (report_004(8, date(5, 4, 31, 5, 1)), [(5, 8, 12)],
         "the same: this date's era counts as it stands"),
        (report_004(9, date(5, 3, 59, 1, 1)), [(5, 8, 10)],
         "39 years old on the last day of the year"),
        (report_004(10, date(5, 1, 26, 1, 1)), [(5, 8, 10)], "131 years old"),
        (report_004(11, {9: "0000000", 10: ""}), [(9, 10), (10, 1)],
         "postal code of zeros; no address"),
        (report_004(12, {15: "5"}), [(15, 18, 12)], "the era of the death alone: all or none"),
        (None, [], "an empty line counts as a record and isn't checked"),
        (report_004(13, date(15, 5, 3, 4, 31)), [(15, 18, 12)], "died on 31 April"),
        (report_004(14, date(15, 4, 27, 12, 31)), [(15, 18, 10)],
         "died before the first day allowed"),
        (report_004(15, {20: "14", **date(5, 4, 30, 1, 1), **date(15, 4, 29, 1, 1)}),
         [(19, 20, 25), (15, 18, 25)],
         "died before the birth; the wrong year of payment keeps the age from being asked"),
        (report_004(16, {12: "", 13: "10000000000"}), [(12, 1), (13, 9)],
         "no amount; tax above the limit"),
        (report_004(17, {14: "2"}), [(14, 9)], "2 is neither 0 nor 1"),
        (report_004(18, {24: "90100"}), [(24, 11)],
         "the code of a regional bureau is no tax office's"),
        (report_004(19, date(25, 5, 3, 2, 12)), [(25, 28, 10)], "paid on the 12th"),
        (report_004(20, {27: "3"}), [(25, 28, 10)], "paid in March"),
        (report_004(21, date(25, 5, 5, 2, 30)), [(25, 28, 12)], "paid on 30 February"),
        (report_004(22, date(25, 4, 28, 12, 15)), [(25, 28, 25)],
         "paid in a year that isn't in the list: four columns are marked, not era and year alone"),
        (report_004(23, {25: ""}), [(25, 28, 12)], "paid in no era"),
        (report_004(24, {29: "123456", 30: "1234"}), [(29, 8), (30, 10)],
         "account of 6 digits; telephone number that doesn't begin with 0"),
        (report_004(25, {23: "ＡＢＣ", 31: "ｶﾅ"}), [(23, 24, 2), (31, 6)],
         "name of no tax office; half-width kana in the remarks"),
        (report_004(26), [], "right"),
    ]


# --- form 005 ---------------------------------------------------------------------------------

def report_005(index, changes=None):
    """One right record, by column number from 1. `changes` replaces cells."""
    kanji, kana = name(index + 6)
    insured_kanji, insured_kana = name(index + 13)
    zip_code, address = place(index + 4)
    office_name, office_code = office(index + 5)
    year, reason = 2 + index % 5, 1 + index % 3
    paid = (5, year + 1, 11) if index % 2 else (5, year, 9)
    record = {
        1: "005", 2: str(1 + index % 4), 3: kana, 4: kanji, 5: zip_code, 6: address,
        7: kojin(f"{40123450000 + index * 2203:011d}"), 8: "1",
        9: insured_kana, 10: insured_kanji, 11: f"P{index * 8111 % 100000:05d}-{index % 10}",
        12: str(2000000 + index * 50000), 13: str(800000 + index * 1000), 14: "",
        15: str(reason), 16: "1239"[index % 4],
        **(date(17, 5, year, 1 + index % 8, 1 + index % 28) if reason == 1 else no_date(17)),
        **date(21, 4, 5 + index % 20, 1 + index * 5 % 12, 1 + index * 3 % 28),
        **date(25, *paid, 1 + index * 9 % 28),
        29: "5", 30: str(paid[1] + index % 2), 31: office_name, 32: office_code, 33: "",
    }
    return complete(record, changes, 33)


def passing_005():
    return [
        report_005(0),
        report_005(1),
        # A company, two sums open
        report_005(2, {3: "カブシキガイシャ　メジロ", 4: "株式会社目次路", 7: hojin("960000000011"), 8: "2",
                       13: "", 14: "204200"}),
        # Insured, died and was paid on one day, the last of the business year
        report_005(3, {15: "1", **date(17, 5, 4, 9, 30), **date(21, 5, 4, 9, 30),
                       **date(25, 5, 4, 9, 30), 30: "4"}),
        # The first day of the ranges
        report_005(4, {**no_date(17), **date(21, 3, 25, 1, 1), **date(25, 4, 28, 1, 1), 15: "2",
                       29: "4", 30: "28"}),
        # The change of era: the payment's era counts as it stands, the event's date moves on
        report_005(5, {**date(17, 4, 31, 5, 1), **date(25, 5, 1, 5, 1), 29: "5", 30: "1"}),
        report_005(6, {**no_date(17), **date(25, 4, 31, 4, 30), 15: "3", 29: "4", 30: "31"}),
        report_005(7, {**date(21, 3, 64, 1, 7), 16: ""}),
        report_005(8, {7: "", 33: "契約者変更あり <前契約者> & 'うつし'"}),
        # The year of payment may be left open
        report_005(9, {**date(17, 5, 3, 2, 28), **date(25, 5, 3, 12, 31), 29: "5", 30: "4"}),
        report_005(10, date(21, 4, 12, 2, 29)),
    ] + [report_005(index) for index in range(11, 52)]


def failing_005():
    return [
        (report_005(0), [], "right"),
        (report_005(1, {2: "5"}), [(2, 9)], "unknown kind of insurance"),
        (report_005(2, {3: "ﾍﾞﾗ", 4: "髙"}), [(3, 34), (4, 6)],
         "half-width kana; a character beyond JIS X 0208"),
        (report_005(3, {5: ""}), [(5, 1)], "no postal code"),
        (report_005(4, {7: "x1", 8: "3"}), [(8, 9), (7, 4)],
         "neither person nor company; letter in the number, which stands behind it in the form"),
        (report_005(5, {8: "2"}), [(7, 8)], "a company with a personal number"),
        (report_005(6, {7: spoilt_tail(kojin("40123459999"))}), [(7, 10)],
         "personal number with a wrong check digit"),
        (report_005(7, {11: "P_1"}), [(11, 6)], "underscore in the policy's number"),
        (report_005(8, date(21, 4, 33, 1, 1)), [(21, 24, 12)], "contract in a year beyond its era"),
        (report_005(9, date(21, 3, 24, 12, 31)), [(21, 24, 10)],
         "contract before the first day allowed; the event isn't compared with it then"),
        (report_005(10, date(21, 5, 14, 1, 1)), [(21, 24, 10)],
         "contract after the last day allowed"),
        (report_005(11, {15: "4"}), [(15, 9)], "unknown reason"),
        (report_005(12, no_date(17)), [(17, 12)],
         "a death without its date: `exist` reports HE70012E in place of its own HE70001E"),
        (None, [], "an empty line counts as a record and isn't checked"),
        (report_005(13, {17: "5", 18: "3"}), [(17, 20, 12)],
         "era and year of the event alone: all or none"),
        (report_005(15, date(17, 5, 2, 4, 31)), [(17, 20, 12)], "event on 31 April"),
        (report_005(18, date(17, 4, 20, 1, 1)), [(17, 20, 25)], "event before the contract"),
        (report_005(16, {12: "", 13: "1.0"}), [(12, 1), (13, 4)],
         "no amount; a decimal point is no digit"),
        (report_005(17, date(25, 4, 31, 5, 1)), [(25, 28, 12)],
         "paid after the end of the era: this date's era counts as it stands"),
        (report_005(19, date(25, 4, 27, 12, 31)), [(25, 28, 10)],
         "paid before the first day allowed; its business year isn't asked then"),
        (report_005(21, date(25, 5, 3, 6, 21)), [(17, 20, 25)],
         "paid on the day before the event: the event's columns are marked"),
        (report_005(20, {30: "1"}), [(29, 30, 25)],
         "paid after the business year: its era and year are marked"),
        (report_005(22, {29: "", 30: ""}), [(29, 1), (30, 1)], "no business year"),
        (report_005(23, {31: "見本南"}), [(31, 32, 2)], "another office's name"),
        (report_005(25, {26: "0", 28: "32"}), [(26, 9), (28, 9)], "year 0 and day 32"),
        (report_005(26, {16: "4", 33: "ｱ"}), [(16, 9), (33, 6)],
         "unknown relation; half-width kana in the remarks"),
        (report_005(28), [], "right"),
    ]


# --- form 006 ---------------------------------------------------------------------------------

def report_006(index, changes=None):
    """One right record, by column number from 1. `changes` replaces cells."""
    payer, payer_address, payer_number = PAYERS[index % len(PAYERS)]
    office_name, office_code = office(index + 6)
    year = 2 + index % 5
    record = {
        1: "006", 2: str(1 + index % 4), 3: "5", 4: str(year),
        5: "5" if index % 2 else "", 6: str(year - 1) if index % 2 else "",
        7: payer, 8: ("カ）ミホンセイシ", "スミツボコウギョウ　カ", "A&Bホールデイングス", "ソロバンノウリツ")[index % 4],
        9: place(index)[0], 10: place(index)[1], 11: payer_number,
        12: f"0996{index * 2399 % 1000000:06d}", 13: name(index + 8)[0],
        14: office_name, 15: office_code,
        16: str(index * 3), 17: str(index * 4321000), 18: str(index * 43210),
        19: str(index % 7), 20: str(index % 7 * 150000), 21: str(index % 7 * 15315),
        22: str(1 + index % 2), 23: "1", 24: "01"[index % 2], 25: "",
        **date(26, 5, year + 1, 1, 5 + index % 27),
        30: str(2019 + year), 31: "1", 32: str(1 + index % 5), 33: "",
    }
    return complete(record, changes, 33)


def passing_006():
    return [
        report_006(0),
        report_006(1),
        # The first and the last day of handing in
        report_006(2, date(26, 5, 5, 1, 1)),
        report_006(3, date(26, 5, 6, 1, 31)),
        # The change of era: January of its last, short year
        report_006(4, {3: "4", 4: "30", 5: "", 6: "", **date(26, 4, 31, 1, 31)}),
        report_006(5, {3: "4", 4: "31", 5: "4", 6: "30", **date(26, 4, 32, 1, 10)}),
        report_006(6, {3: "5", 4: "1", 5: "4", 6: "30", **date(26, 5, 2, 1, 6)}),
        # A person hands it in, by 12 and by 13 digits
        report_006(7, {7: "見本　太郎", 8: "ミホン　タロウ", 11: kojin("30123450007"), 13: ""}),
        report_006(8, {7: "例田　花子", 8: "レイダ　ハナコ", 11: "0" + kojin("30123450008"), 12: ""}),
        # On paper alone; no day of making
        report_006(9, {23: "0", 24: "0", 25: "1"}),
        report_006(10, {30: "", 31: "", 32: ""}),
        report_006(11, {30: "2024", 31: "02", 32: "29"}),
        report_006(12, {16: "0", 17: "0", 18: "", 19: "0", 20: "0", 21: ""}),
        report_006(13, {33: "本店一括提出 <支店> & '分'"}),
    ] + [report_006(index) for index in range(14, 52)]


def failing_006():
    return [
        (report_006(0), [], "right"),
        (report_006(1, {2: "0"}), [(2, 9)], "unknown kind of summary"),
        (report_006(2, {3: "4", 4: "28"}), [(3, 4, 25)],
         "a year that isn't in the list; nothing is compared with it then"),
        (report_006(3, {4: "x"}), [(4, 4)], "letter in the year"),
        (report_006(4, {5: "5"}), [(5, 6, 12)], "era without a year: both or neither"),
        (report_006(5, {5: ""}), [(5, 6, 12)], "year without an era"),
        (report_006(7, {6: "4"}), [(5, 6, 25)], "the same year in place of the one before"),
        (report_006(6, {7: "", 8: "ｼﾞ"}), [(8, 34), (7, 1)],
         "half-width kana; no name, which stands behind it in the form"),
        (report_006(8, {11: "0" + spoilt_tail(kojin("30123450008"))}), [(11, 10)],
         "13 digits with a leading 0: a personal number, wrong check digit"),
        (report_006(9, {11: spoilt_tail(hojin("980000000012"))}), [(11, 10)],
         "corporate number with a wrong check digit"),
        (report_006(10, {11: "12345"}), [(11, 8)], "number of 5 digits"),
        (report_006(11, {12: "9998", 13: "A太郎"}), [(12, 10), (13, 6)],
         "telephone number that doesn't begin with 0; half-width letter"),
        (None, [], "an empty line counts as a record and isn't checked"),
        (report_006(12, {15: "9010X"}), [(15, 4)], "letter in the tax office's code"),
        (report_006(13, {16: "100000", 17: ""}), [(16, 9), (17, 1)], "too many people; no amount"),
        (report_006(14, {18: "1e3", 19: "", 20: "1234567890123"}), [(18, 4), (19, 1), (20, 8)],
         "three errors: an exponent, nobody, an amount of 13 digits"),
        (report_006(15, {22: "", 23: "0", 24: "0"}), [(22, 1), (23, 30)],
         "handed in in no way: `anycontain` reports HE70030E in place of its own HE70009E"),
        (report_006(16, {24: "3"}), [(24, 9)],
         "3 is neither 0 nor 1; whether any way is chosen isn't asked then"),
        (report_006(17, date(26, 5, 5, 2, 1)), [(26, 29, 10)], "handed in in February"),
        (report_006(18, {29: "32"}), [(26, 29, 12)], "handed in on 32 January"),
        (report_006(19, date(26, 5, 6, 1, 20)), [(26, 27, 25)],
         "handed in in the summary's own year: the error covers era and year"),
        (report_006(20, {28: ""}), [(26, 29, 12)], "handed in in no month"),
        (report_006(21, {31: "13"}), [(30, 32, 10)],
         "month 13: `existdateYYYYMMDD` reports HE70010E in place of its own HE70012E"),
        (report_006(22, {30: "", 31: "", 32: "5"}), [(30, 32, 10)],
         "day alone: empty only as a whole"),
        (report_006(23, {32: "1a"}), [(32, 4)], "letter in the day of making"),
        (report_006(24, {33: "摘" * 101}), [(33, 8)], "remarks of 202 bytes"),
        (report_006(25), [], "right"),
    ]


# --- form 007 ---------------------------------------------------------------------------------

def report_007(index, junior, changes=None):
    """One right record, by column number from 1. `changes` replaces cells."""
    kanji, kana = name(index + 11)
    zip_code, address = place(index + 5)
    office_name, office_code = office(index + 7)
    taken_over = not junior and index % 2
    record = {
        1: "007", 2: str(1 + index % 3), 3: kana, 4: kanji, 5: zip_code, 6: address,
        7: "" if junior else PAYERS[index % 4][0],
        **date(8, *((4, 20 + index % 10) if junior else (3, 40 + index % 20)), 1 + index % 12,
               1 + index * 5 % 28),
        12: kojin(f"{20123450000 + index * 1907:011d}"), 13: f"0995{index * 3119 % 1000000:06d}",
        14: office_name, 15: office_code, 16: "1239"[index % 4] if junior else "",
        17: ("見本信託銀行", "墨壺信用金庫", "升目銀行帳面坂支店")[index % 3], 18: PAYERS[index % 4][2],
        **(no_date(19) if junior else date(19, 4, 5 + index % 20, 1 + index % 12, 1 + index % 28)),
        23: str(1000000 + index % 5 * 1000000),
        24: seiri(f"{(4 + index % 6) if junior else index % 4}{index * 6271 + 17:012d}"),
        25: str(index * 10007),
        26: "5" if index % 3 else "", 27: str(8 + index % 20) if index % 3 else "",
        28: seiri(f"0{index * 5003 + 7:012d}") if taken_over else "", 29: "2" if taken_over else "",
        30: f"Z-{index * 13 % 900 + 100}", 31: f"{3000001 + index * 32109:07d}",
        **date(32, 5, 2 + index % 6, 1 + index * 7 % 12, 1 + index * 3 % 28), 36: "",
    }
    return complete(record, changes, 36)


def passing_007():
    return [
        report_007(0, False),
        report_007(1, True),
        # 19 years old on the last day of the year; 15 on the same day
        report_007(2, True, {**date(8, 4, 12, 1, 1), **date(32, 5, 1, 5, 1)}),
        report_007(3, False, {**date(8, 4, 22, 12, 31), **date(32, 5, 7, 6, 1)}),
        report_007(4, False, {**date(8, 4, 10, 4, 30), **date(32, 5, 13, 12, 31)}),
        # The number of a minor, but with an employer: an adult's record
        report_007(5, False, {24: seiri("4000000000055")}),
        report_007(6, False, {24: "", 28: "", 29: ""}),
        # The first days that count, and the last of an era
        report_007(7, False, date(19, 3, 63, 4, 1)),
        report_007(8, False, {**date(19, 4, 31, 4, 30), **date(32, 5, 1, 5, 1)}),
        report_007(9, False, {**date(19, 3, 64, 1, 7), **date(32, 4, 31, 5, 1)}),
        report_007(10, True, {12: "", 13: "", 25: "", 26: "", 27: ""}),
        report_007(11, True, {23: "0005500000", 36: "祖父母の申出 <写し> & '控え'"}),
        report_007(12, False, date(8, 2, 15, 12, 24)),
    ] + [report_007(index, index % 3 == 1) for index in range(13, 52)]


def failing_007():
    taken_over = seiri("0000000000227")
    return [
        (report_007(0, False), [], "right"),
        (report_007(1, True, {2: "9"}), [(2, 9)], "unknown kind of declaration"),
        (report_007(2, False, {3: "", 4: "ABC"}), [(3, 1), (4, 6)],
         "no kana name; half-width letters"),
        (report_007(3, True, date(8, 4, 15, 12, 31)), [(8, 11, 10)],
         "a minor who is 20 on the last day of the declaration's year"),
        (report_007(4, False, date(8, 4, 22, 1, 1)), [(8, 11, 10)], "an adult of 14 years"),
        (report_007(5, True, {10: "2", 11: "30"}), [(8, 11, 12)], "born on 30 February"),
        (report_007(6, False, {8: "0"}), [(8, 9)], "era 0"),
        (report_007(7, False, {7: ""}), [(7, 1)],
         "no employer: the contract's date alone makes the record a senior one"),
        (report_007(8, True, {16: ""}), [(16, 1)], "a minor without a relation"),
        (report_007(9, False, {16: "1"}), [(16, 5)], "an adult with one"),
        (report_007(10, True, {12: spoilt_tail(kojin("20123459999")), 13: "09-1"}),
         [(12, 10), (13, 4)], "wrong check digit; hyphen in the telephone number"),
        (report_007(11, False, {14: "見本中央", 15: "00000"}), [(15, 11)],
         "unknown tax office; name and code aren't compared then"),
        (None, [], "an empty line counts as a record and isn't checked"),
        (report_007(12, True, {17: "Bank", 18: ""}), [(17, 6), (18, 1)],
         "half-width letters; no corporate number"),
        (report_007(13, False, {24: spoilt_tail(seiri("1234567890123"))}), [(24, 10)],
         "reference number with a wrong check digit"),
        (report_007(14, True, {24: spoilt_tail(seiri("5000000000141"))}),
         [(8, 11, 10), (7, 1), (16, 5), (24, 10), (19, 1), (20, 1), (21, 1), (22, 1)],
         "the same for a minor: that makes the record a senior one, too young, without an employer "
         "and a contract date, with a relation that isn't wanted"),
        (report_007(15, False, {19: "2"}), [(19, 9)], "contract in era 2"),
        (report_007(16, False, date(19, 4, 31, 5, 1)), [(19, 22, 12)],
         "contract after the end of the era: this date's era counts as it stands"),
        (report_007(17, False, date(19, 3, 63, 3, 31)), [(19, 22, 10)],
         "contract before the first day allowed"),
        (report_007(18, False, {23: "", 25: "1x"}), [(23, 1), (25, 4)],
         "no limit; letter in the balance"),
        (report_007(19, True, {26: "5", 27: ""}), [(26, 27, 12)],
         "era of maturity without a year: both or neither"),
        (report_007(20, True, {26: "", 27: "9"}), [(26, 27, 12)], "year without an era"),
        (report_007(21, False, {29: ""}), [(28, 29, 12)],
         "number taken over without a reason: reported as the same check reports dates"),
        (report_007(22, False, {24: taken_over, 28: taken_over, 29: "1"}), [(28, 10)],
         "the number taken over is the present one"),
        (report_007(23, False, {29: "9"}), [(29, 9)], "unknown reason"),
        (report_007(24, True, {30: "", 31: "12"}), [(30, 1), (31, 8)],
         "no mark of the account; number of 2 digits"),
        (report_007(25, True, date(32, 4, 31, 4, 30)), [(32, 35, 10)],
         "declared before the first day allowed"),
        (report_007(26, False, date(32, 5, 3, 11, 31)), [(32, 35, 12)],
         "declared on 31 November; the age isn't asked then"),
        (report_007(28, False, {36: "ﾃｷﾖｳ"}), [(36, 6)], "half-width kana in the remarks"),
        (report_007(29, False), [], "right"),
    ]


# --- form 008 ---------------------------------------------------------------------------------

def report_008(index, junior, changes=None):
    """One right record, by column number from 1. `changes` replaces cells."""
    kanji, kana = name(index * 5 + 3)
    zip_code, address = place(index + 2)
    payer, payer_address, payer_number = PAYERS[index % len(PAYERS)]
    office_name, office_code = office(index * 3 + 1)
    amount = (1000 + index * 100) * 55
    record = {
        1: "008", 2: "" if junior else str(1 + index % 3),
        3: payer, 4: payer_address, 5: payer_number,
        6: kana, 7: kanji, 8: zip_code, 9: address,
        10: kojin(f"{80123450000 + index * 6131:011d}"), 11: "1",
        12: office_name, 13: office_code,
        14: "" if junior else "4", 15: "" if junior else str(2 + index % 28),
        16: "" if junior else str(1 + index * 7 % 12), 17: "" if junior else str(1 + index * 3 % 28),
        18: "", 19: seiri(f"{(4 + index % 6) if junior else index % 4}{index * 7411 + 29:012d}"),
        20: "5", 21: "7", 22: str(1 + index % 12), 23: str(10 + index % 18),
        24: f"Z{1000 + index * 17}", 25: "見本製紙普通株式", 26: str(amount // 55), 27: "55",
        28: str(amount), 29: str(amount * 15315 // 100000), 30: "1239"[index % 4],
        31: "", 32: "",
        33: f"user{index:02d}@example.invalid", 34: f"0998{index * 3571 % 1000000:06d}",
        35: "1", 36: "", 37: str(amount),
        38: "",
    }
    record.update(changes or {})
    assert sorted(record) == list(range(1, 39))
    return record


def passing_008():
    return [
        report_008(0, False),
        report_008(1, True),
        # A company: katakana beside letters and digits of both widths, corporate number
        report_008(2, False, {6: "カ）Ａ＆Ｂショウジ 2", 7: "株式会社Ａ＆Ｂ商事", 10: hojin("970000000018"),
                              11: "2"}),
        # Personal number in 13 digits, its leading 0 isn't written
        report_008(3, True, {10: "0" + kojin("80123459999")}),
        # Tax withheld abroad
        report_008(4, False, {31: "1234", 32: "ZZD"}),
        # No tax office of the payer, no postal code, no number of the recipient
        report_008(5, True, {8: "", 10: "", 12: "", 13: ""}),
        report_008(6, False, {26: "000001000", 27: "0", 28: "0000088000", 37: "88000"}),
        # The reference number of a minor, but with a kind of contract: a senior record
        report_008(7, False, {19: seiri("4000000000077"), 14: "", 15: "", 16: "", 17: ""}),
        # A number that replaces an older one
        report_008(8, True, {18: seiri("1000000000088")}),
        report_008(9, False, {18: seiri("2000000000099"), 19: ""}),
        report_008(10, False, {38: "<再発行> \"控え\" & 'うつし'"}),
        None,
        report_008(11, True, {38: "①②㈱髙架分～－Ⅱ"}),
        report_008(12, False, {14: "3", 15: "64", 16: "1", 17: "7"}),
        report_008(13, False, {20: "4", 21: "31", 22: "4", 23: "30"}),
        report_008(14, True, {35: "", 36: "1"}),
        report_008(15, False, {35: "1", 36: "1", 34: "", 33: ""}),
        report_008(16, True, {12: "髙欄", 13: "90707"}),
        report_008(17, False, {3: "見" * 40, 4: "本" * 60, 25: "銘" * 30, 38: "摘" * 100}),
        # Nothing was withheld; number of shares and price unknown
        report_008(18, False, {26: "", 27: "", 29: "0", 30: "9"}),
        report_008(19, True, {6: "ソモジ　ゼン", 7: "十字紙　禅",
                               9: "綴県目次ノ森市能書１－２－３　表通ビル"}),
        report_008(20, False, {7: " 　附箋　あかね　 ", 38: "　二回目の支払 "}),
        report_008(21, True, {28: "999999999999", 37: "999999999999", 29: "9999999999"}),
        report_008(22, False, {24: "ABC-12 Z", 33: "a!#$%&'*+-/=?^_{|}~@example.invalid"}),
        report_008(23, True, {16: "", 21: "6", 22: "02", 23: "29"}),
        report_008(24, False, {6: "イチケイカイ", 7: "一罫会", 10: "", 11: "2"}),
    ] + [report_008(index, index % 3 == 1) for index in range(25, 52)]


def failing_008():
    return [
        (report_008(0, True), [], "right"),
        (report_008(1, False, {2: ""}), [(2, 1)],
         "senior, because of the contract date, without a kind of contract"),
        (report_008(2, False, {3: "", 5: spoilt_tail(PAYERS[2][2])}), [(3, 1), (5, 10)],
         "two errors: no payer; corporate number with a wrong check digit"),
        (report_008(3, True, {5: "98000000004X"}), [(5, 4)],
         "letter in the payer's number: reported before its length"),
        (report_008(4, False, {5: PAYERS[0][2][:12], 6: "ﾖﾊｸ ｹﾝ"}), [(5, 8), (6, 34)],
         "corporate number of 12 digits; half-width kana"),
        (report_008(5, False, {7: "①号組合", 8: "ABCDEFG"}), [(7, 6), (8, 4)],
         "circled digit, which is beyond JIS X 0208; letters in the postal code"),
        (report_008(6, True, {8: "9999999"}), [(8, 10)],
         "postal code of nines: `except` reports HE70010E in place of its own HE99999E"),
        (report_008(7, False, {10: spoilt_tail(kojin("80123451234"))}), [(10, 10)],
         "personal number with a wrong check digit"),
        (report_008(8, False, {10: "1" + kojin("80123451234")}), [(10, 10)],
         "a person's number of 13 digits must begin with 0"),
        (report_008(9, False, {10: kojin("80123451234"), 11: "2"}), [(10, 8)],
         "a company with a personal number: 12 digits in place of 13"),
        (report_008(10, False, {10: "123", 11: "3"}), [(11, 9)],
         "neither person nor company: what the number must look like isn't asked then, although "
         "it is far too short"),
        (report_008(11, True, {10: "12345678901234"}), [(10, 8)], "number of 14 digits"),
        (None, [], "an empty line counts as a record and isn't checked"),
        (report_008(12, False, {12: ""}), [(12, 13, 2)],
         "code of a tax office without its name: the error covers both columns"),
        (report_008(13, False, {13: ""}), [(13, 1)], "name of a tax office without its code"),
        (report_008(14, True, {12: "見本中央", 13: "99999"}), [(13, 11)],
         "unknown tax office; name and code aren't compared then"),
        (report_008(15, False, {16: ""}), [(16, 12)],
         "contract date without its month: `exist` reports HE70012E in place of its own HE70001E"),
        (report_008(16, False, {14: ""}), [(14, 12)], "contract date without its era"),
        (report_008(17, False, {16: "13", 17: ""}), [(16, 9)],
         "month 13; that the day is missing is asked only when the columns themselves are right"),
        (report_008(18, False, {16: "11", 17: "31"}), [(14, 17, 12)], "31 November"),
        (report_008(19, True, {18: seiri("4000000000198"), 19: seiri("4000000000198")}), [(18, 10)],
         "the old reference number is the present one"),
        (report_008(20, False, {18: "1234", 19: "12345678901234x"}), [(19, 4), (18, 8)],
         "both reference numbers wrong; column 19 stands before column 18 in the form"),
        (report_008(21, True, {34: ""}), [(34, 1)], "junior without a telephone number"),
        (report_008(22, True, {34: "11111"}), [(34, 10)],
         "junior: the telephone number must begin with 0"),
        (report_008(23, False, {34: "11111"}), [], "senior: the same telephone number is right"),
        (report_008(24, False, {22: "6", 23: "31"}), [(20, 23, 12)], "paid on 31 June"),
        (report_008(25, True, {20: "3", 24: "Z#100"}), [(20, 9), (24, 6)],
         "era 3 isn't allowed for a payment; number sign in the issue's code"),
        (report_008(26, False, {24: "Z100000000000", 25: "見本ABC"}), [(24, 8), (25, 6)],
         "issue's code of 13 bytes; half-width letters in its name: `multibyte` reports HE70006E "
         "in place of its own HE99999E"),
        (report_008(27, False, {26: "1.5", 25: "銘" * 31}), [(25, 7), (26, 4)],
         "name of 31 characters; a decimal point is no digit"),
        (report_008(28, False, {28: "100000", 37: "100001"}), [(37, 10)],
         "the two amounts differ: `containcolumn` reports HE70010E in place of its own HE70025E"),
        (report_008(29, True, {28: "1234567890123", 37: "5"}), [(28, 8)],
         "amount of 13 digits; the second amount isn't compared with a wrong first"),
        (report_008(30, False, {28: "", 37: ""}), [(28, 1), (37, 1)], "no amount at all"),
        (report_008(31, False, {29: "10000000000", 30: "5"}), [(29, 9), (30, 9)],
         "tax above the limit; unknown tax rate"),
        (report_008(32, False, {31: "100"}), [(32, 1)], "tax abroad without its currency"),
        (report_008(33, True, {32: "ZZD"}), [(32, 5)], "currency without tax abroad"),
        (report_008(34, False, {31: "100", 32: "Z1D"}), [(32, 32)],
         "currency with a digit: `alphabet` reports HE70032E in place of its own HE70006E"),
        (report_008(35, False, {31: "100", 32: "ZZ"}), [(32, 8)], "currency of two letters"),
        (report_008(36, True, {33: "見本@example.invalid"}), [(33, 35)],
         "full-width characters in a mail address"),
        (report_008(37, False, {35: "", 36: ""}), [(35, 1)], "no way of payment"),
        (report_008(38, False, {35: "0", 36: "x", 38: "ｼｷｭｳ"}), [(35, 9), (36, 9), (38, 6)],
         "ways of payment other than 1; half-width kana in the remarks"),
        (report_008(39, False), [], "right"),
    ]


# --- form 009 ---------------------------------------------------------------------------------

def report_009(index, kind, changes=None):
    """One right record of kind 1 (the first), 2 or 9 (the last), by column number from 1. `changes`
    replaces cells."""
    kanji, kana = name(index + 3)
    zip_code, address = place(index + 6)
    office_name, office_code = office(index + 8)
    paid = (5, 7, 1 + index % 12, 1 + index * 5 % 28)
    record = {
        1: "009", 2: str(kind),
        **(date(3, 5, 7, 1, 1) if kind == 1 else no_date(3)),
        **(date(7, 5, 7, 12, 31) if kind == 1 else no_date(7)),
        11: kanji, 12: kana, 13: kojin(f"{10123450000 + index * 1301:011d}"),
        14: zip_code, 15: address, 16: "5" if index % 2 else "", 17: "6" if index % 2 else "",
        18: ("ZZD", "ZZE", "zzf")[index % 3], 19: str(1000 + index * 37),
        20: str(150000 + index * 5550),
        21: str(index * 111), 22: office_name, 23: office_code, **date(24, *paid),
        28: f"user{index:02d}@example.invalid", 29: ("見本外債", "墨海国債", "升目投資口")[index % 3],
        **(date(30, *paid) if index % 4 == 0 else no_date(30)),
        34: "14500000" if kind == 9 else "", 35: "",
    }
    return complete(record, changes, 35)


def passing_009():
    return [
        report_009(0, 1),
        report_009(1, 2),
        # The first and the last day of the period
        report_009(2, 2, date(24, 5, 7, 1, 1)),
        report_009(3, 2, date(24, 5, 7, 12, 31)),
        report_009(4, 2, date(30, 4, 31, 5, 1)),
        # A company; a period of its own is read, but not written
        report_009(5, 2, {11: "株式会社見本", 12: "カブシキガイシャ　ミホン", 13: hojin("950000000013")}),
        report_009(6, 2, {**date(3, 5, 7, 2, 1), **date(7, 5, 7, 2, 28)}),
        report_009(7, 2, {13: "0" + kojin("10123459999")}),
        # One of the two amounts will do for the foreign one's check
        report_009(8, 2, {19: "", 20: "00000150", 21: "", 28: ""}),
        report_009(9, 2, {35: "換算率変更 <再送> & '訂正'"}),
        None,
    ] + [report_009(index, 2) for index in range(10, 51)] + [report_009(51, 9)]


def failing_009():
    return [
        (report_009(0, 1, date(30, 4, 31, 4, 30)), [],
         "its day for the rate is before the first allowed: found with the last record"),
        (report_009(1, 2, {2: "3"}), [(2, 9)], "unknown kind of record"),
        (report_009(2, 1, no_date(3)), [(3, 12)],
         "a first record's kind without the period's begin: `exist` reports HE70012E in place of "
         "its own HE70001E; the end isn't compared with it"),
        (report_009(3, 2, date(3, 5, 7, 2, 30)), [(3, 6, 12)],
         "begin on 30 February: read although it isn't needed here"),
        (report_009(4, 2, {**date(3, 5, 7, 4, 1), **date(7, 5, 7, 4, 1)}), [(7, 10, 25)],
         "a period that ends on the day on which it begins"),
        (report_009(5, 2, {9: "x"}), [(9, 4)], "letter in the month"),
        (report_009(6, 2, {11: "", 12: "ｶﾅ"}), [(12, 34), (11, 1)],
         "half-width kana; no name, which stands behind it in the form"),
        (report_009(7, 2, {13: spoilt_tail(hojin("950000000013"))}), [(13, 10)],
         "corporate number with a wrong check digit"),
        (report_009(8, 2, {14: "123", 15: "ﾁﾊﾞ"}), [(14, 8), (15, 6)],
         "postal code of 3 digits; half-width kana"),
        (report_009(9, 2, {28: "あ@example.invalid"}), [(28, 35)],
         "full-width character in a mail address"),
        (report_009(10, 2, date(24, 5, 6, 12, 31)), [(24, 27, 25)],
         "paid on the day before the period of record 1"),
        (report_009(11, 2, date(24, 5, 8, 1, 1)), [(24, 27, 25)],
         "paid on the day after it; the year before isn't compared with a wrong date"),
        (None, [], "an empty line counts as a record and isn't checked"),
        (report_009(12, 2, {24: ""}), [(24, 27, 12)], "paid in no era"),
        (report_009(13, 2, {27: "０１"}), [(27, 4)], "full-width digits"),
        (report_009(14, 2, {16: "5"}), [(16, 17, 12)], "era without a year: both or neither"),
        (report_009(15, 2, {17: ""}), [(16, 17, 12)], "the same"),
        (report_009(17, 2, {17: "5"}), [(16, 17, 25)], "two years before in place of one"),
        (report_009(16, 2, date(30, 5, 7, 6, 31)), [(30, 33, 12)], "rate of 31 June"),
        (report_009(18, 2, {18: "ZZ1", 29: ""}), [(29, 1), (18, 32)],
         "no issue; `alphabet` reports HE70032E in place of its own HE70006E"),
        (report_009(19, 2, {18: "ZZ", 19: "1.5"}), [(18, 8), (19, 4)],
         "currency of two letters; a decimal point is no digit"),
        (report_009(20, 2, {19: "", 20: ""}), [(19, 1), (20, 1)], "no amount at all"),
        (report_009(21, 2, {21: "-1"}), [(21, 4)], "a sign is no digit"),
        (report_009(22, 2, {22: "見本", 23: "90101"}), [(22, 23, 2)], "a tax office's name cut short"),
        (report_009(23, 2, {34: "100"}), [(34, 5)], "a total that isn't the last record's"),
        (report_009(24, 2, {35: "摘" * 101}), [(35, 8)], "remarks of 202 bytes"),
        (report_009(25, 2), [], "right"),
        (report_009(26, 9, {34: ""}), [ElsewhereEntry(1, (30, 33, 25)), (34, 1)],
         "with the total the first record's day for the rate is tested, and reported there; no "
         "total"),
    ]


FORMS = (
    ("PGE5010", passing_001, failing_001),
    ("PGE5020", passing_002, failing_002),
    ("PGE5030", passing_003, failing_003),
    ("PGE5040", passing_004, failing_004),
    ("PGE5050", passing_005, failing_005),
    ("PGE5060", passing_006, failing_006),
    ("PGE5070", passing_007, failing_007),
    ("PGE5080", passing_008, failing_008),
    ("PGE5090", passing_009, failing_009),
)

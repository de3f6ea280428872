#!/usr/bin/env python3
"""Writes the samples: for each form a passing and a failing CSV, the detail table that the failing
one must give, and the notes that explain each of its entries.

The expected errors are stated here by hand, row by row, next to the cell that is spoilt; nothing is
taken from the library's output. All persons, companies, places and numbers are invented; only the
check digits are real arithmetic.

    scripts/make_samples.py             write the files in samples/
    scripts/make_samples.py --check     write nothing; exit 1 if a file differs

Needs Python 3.9 or newer and nothing else.
"""

import sys
from pathlib import Path

SAMPLES = Path(__file__).resolve().parent.parent / "samples"


# --- numbers with a check digit ---------------------------------------------------------------

def kojin(digits):
    """Personal number: 11 digits and their check digit behind them."""
    assert len(digits) == 11
    weights = (6, 5, 4, 3, 2, 7, 6, 5, 4, 3, 2)
    rest = sum(int(d) * w for d, w in zip(digits, weights)) % 11
    return digits + str(0 if rest < 2 else 11 - rest)


def hojin(digits):
    """Corporate number: 12 digits and their check digit before them."""
    assert len(digits) == 12
    return str(9 - sum(int(d) * w for d, w in zip(digits, (2, 1) * 6)) % 9) + digits


def seiri(digits):
    """Reference number: 13 digits and their check digit behind them."""
    assert len(digits) == 13
    rest = sum(int(d) * w for d, w in zip(digits, range(14, 1, -1))) % 11
    return digits + str((11 - rest) % 10)


def spoilt_tail(number):
    """The number with another last digit: right in length, wrong in its check digit."""
    return number[:-1] + str((int(number[-1]) + 1) % 10)


# --- people and places, all invented ----------------------------------------------------------

PEOPLE = [
    ("見本　太郎", "ミホン　タロウ"), ("例田　花子", "レイダ　ハナコ"),
    ("雛形　一郎", "ヒナガタ　イチロウ"), ("表野　能子", "オモテノ　ヨシコ"),
    ("紙縒　ソノ", "コヨリ　ソノ"), ("帳合　正", "チョウアイ　タダシ"),
    ("罫野　すみれ", "ケイノ　スミレ"), ("余白　健", "ヨハク　ケン"),
    ("綴川　美和", "ツヅリカワ　ミワ"), ("句点　誠", "クテン　マコト"),
    ("脚注　実", "キャクチュウ　ミノル"), ("索引　まり", "サクイン　マリ"),
    ("栞　遥", "シオリ　ハルカ"), ("奥付　剛", "オクヅケ　ツヨシ"),
    ("附箋　あかね", "フセン　アカネ"), ("硯　墨雄", "スズリ　スミオ"),
    ("筆塚　文", "フデヅカ　フミ"), ("算盤　珠美", "ソロバン　タマミ"),
    ("伝票　繁", "デンピョウ　シゲル"), ("目次　順", "モクジ　ジュン"),
    ("欄外　渚", "ランガイ　ナギサ"), ("段落　渉", "ダンラク　ワタル"),
    ("升目　薫", "マスメ　カオル"), ("文鎮　ヴェラ", "ブンチン　ヴェラ"),
]

PLACES = [
    ("9990101", "紙原県見本市例町１丁目２番３号"), ("9990102", "紙原県雛形市折目坂４－５－６"),
    ("9990201", "墨海県硯ヶ池市筆塚町７番地"), ("9990203", "墨海県表紙郡裏表紙町大字能書１０"),
    ("9990305", "罫野県升目市算盤通８丁目９番"), ("9990410", "句点県読点市括弧谷１１番地の２"),
    ("9990502", "綴県背表紙市見返里２－１４　栞ハイツ３０５号"), ("9990777", "欄外県予備欄村空欄ヶ原１"),
]

OFFICES = [
    ("見本中央", "90101"), ("紙魚野", "90104"), ("硯ヶ池", "90203"), ("表紙浦", "90209"),
    ("算盤通", "90307"), ("濁点崎", "90403"), ("脚注浦", "90508"), ("ソロバン島", "90607"),
    ("十字紙", "90608"), ("髙欄", "90707"),
]


def name(index):
    return PEOPLE[index % len(PEOPLE)]


def place(index):
    return PLACES[index % len(PLACES)]


def office(index):
    return OFFICES[index % len(OFFICES)]


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
        9: "5" if junior else "34"[index % 2], 10: str(1 + index % 6 if junior else 22 + index % 10),
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
    ]


# A row of a failing file: the record (None for an empty line), the entries that it must give in the
# order in which they are found, and what a reader should know. An entry is (column, code) or
# (first column, last column, code); the code is its two digits.

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
        (report_002(7, False, {9: "4", 10: "7", 11: "2", 12: "30"}), [(12, 12)],
         "30 February: the check of the whole date, whose `range` reports HE70012E"),
        (report_002(8, True, {9: "6", 11: "4", 12: "31"}), [(9, 9)],
         "era 6; 31 April stands behind it, but the date as a whole is checked only when its four "
         "columns are right"),
        (report_002(9, False, {9: "3", 10: "65", 11: "3", 12: "3"}), [(10, 12)],
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


# --- form 008 ---------------------------------------------------------------------------------

PAYERS = [
    ("株式会社見本製紙", "紙原県見本市紙魚野１番１号", hojin("980000000012")),
    ("墨壺興業株式会社", "墨海県硯ヶ池市水滴谷２０", hojin("980000000023")),
    ("A&Bホールディングス（株）", "罫野県升目市帳面坂３－３", hojin("980000000034")),
    ("合同会社ソロバン能率研究所", "欄外県予備欄村十字紙５", hojin("980000000045")),
]


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
        14: "" if junior else "4", 15: "" if junior else str(1 + index % 30),
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
        report_008(23, True, {16: "", 22: "02", 23: "29"}),
        report_008(24, False, {6: "イチケイカイ", 7: "一罫会", 10: "", 11: "2"}),
    ]


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
        (report_008(18, False, {16: "11", 17: "31"}), [(17, 12)], "31 November"),
        (report_008(19, True, {18: seiri("4000000000198"), 19: seiri("4000000000198")}), [(18, 10)],
         "the old reference number is the present one"),
        (report_008(20, False, {18: "1234", 19: "12345678901234x"}), [(19, 4), (18, 8)],
         "both reference numbers wrong; column 19 stands before column 18 in the form"),
        (report_008(21, True, {34: ""}), [(34, 1)], "junior without a telephone number"),
        (report_008(22, True, {34: "11111"}), [(34, 10)],
         "junior: the telephone number must begin with 0"),
        (report_008(23, False, {34: "11111"}), [], "senior: the same telephone number is right"),
        (report_008(24, False, {22: "6", 23: "31"}), [(23, 12)], "paid on 31 June"),
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


# --- files ------------------------------------------------------------------------------------

def csv_bytes(records):
    lines = ["" if r is None else ",".join(r[c] for c in sorted(r)) for r in records]
    return "".join(line + "\r\n" for line in lines).encode("cp932")


def entry_text(record, entry):
    *columns, code = entry
    position = f"{columns[0]:05d}" if len(columns) == 1 else f"{columns[0]:02d}:{columns[1]:02d}"
    return f"{record:04d}-{position}-HE700{code:02d}E"


def detail_text(rows):
    return ",".join(entry_text(number, entry)
                    for number, (_, entries, _) in enumerate(rows, 1) for entry in entries) + "\n"


def notes_text(form, rows):
    lines = [
        f"# What {form}_fail.csv must give",
        "",
        f"`{form}_fail.detail` is the exact detail table. Each line here explains one record of the",
        "file. Records and columns count from 1.",
        "",
        "| Record | Errors | Why |",
        "|---|---|---|",
    ]
    for number, (_, entries, why) in enumerate(rows, 1):
        errors = " ".join(f"`{entry_text(number, entry)}`" for entry in entries) or "none"
        lines.append(f"| {number} | {errors} | {why} |")
    return "\n".join(lines) + "\n"


def all_files():
    files = {}
    for form, passing, failing in (("PGE5020", passing_002(), failing_002()),
                                   ("PGE5080", passing_008(), failing_008())):
        files[f"{form}_pass.csv"] = csv_bytes(passing)
        files[f"{form}_fail.csv"] = csv_bytes([record for record, _, _ in failing])
        files[f"{form}_fail.detail"] = detail_text(failing).encode()
        files[f"{form}_fail.notes.md"] = notes_text(form, failing).encode()
    return files


def main():
    check = sys.argv[1:] == ["--check"]
    if sys.argv[1:] and not check:
        sys.exit(__doc__)
    differing = []
    for file_name, content in all_files().items():
        path = SAMPLES / file_name
        if check:
            if not path.is_file() or path.read_bytes() != content:
                differing.append(file_name)
        else:
            path.write_bytes(content)
            print(f"samples/{file_name}: {len(content)} bytes")
    if differing:
        sys.exit("differs from what this script makes: " + ", ".join(differing))


if __name__ == "__main__":
    main()

"""What the forms' samples share: numbers with right check digits, invented people, companies,
places and tax offices, and helpers that make a record.

A form's module makes two lists. The passing one holds records, None for an empty line. A row of the
failing one is the record (None for an empty line), the entries that it must give in the order in
which they are found, and what a reader should know. An entry is (column, code) or (first column,
last column, code); the code is its two digits. A record is a dict of cells by column number from 1.
"""

from typing import NamedTuple


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


PAYERS = [
    ("株式会社見本製紙", "紙原県見本市紙魚野１番１号", hojin("980000000012")),
    ("墨壺興業株式会社", "墨海県硯ヶ池市水滴谷２０", hojin("980000000023")),
    ("A&Bホールディングス（株）", "罫野県升目市帳面坂３－３", hojin("980000000034")),
    ("合同会社ソロバン能率研究所", "欄外県予備欄村十字紙５", hojin("980000000045")),
]

COMPANIES = [
    ("株式会社見本製紙", "カブシキガイシャ　ミホンセイシ"), ("墨壺興業（株）", "スミツボコウギョウ"),
    ("A&Bホールディングス", "エーアンドビーホールディングス"), ("合同会社栞文庫", "ゴウドウガイシャ　シオリブンコ"),
    ("一般財団法人奥付会", "オクヅケカイ"), ("欄外運輸㈱", "ランガイウンユ"),
]


def company(index):
    """Name in kanji and kana, corporate number."""
    return (*COMPANIES[index % len(COMPANIES)], hojin(f"97{index * 31 + 10:010d}"))


def name(index):
    return PEOPLE[index % len(PEOPLE)]


def place(index):
    return PLACES[index % len(PLACES)]


def office(index):
    return OFFICES[index % len(OFFICES)]


def date(column, era, year, month, day):
    """Cells of a date in four columns."""
    return {column: str(era), column + 1: str(year), column + 2: str(month), column + 3: str(day)}


def no_date(column):
    """Cells of a date that isn't filled."""
    return date(column, "", "", "", "")


def quoted(value):
    """A cell in quotation marks, as the CrossBorder family reads it."""
    return '"' + value.replace('"', '""') + '"'


def complete(record, changes, column_count):
    """The record with its cells replaced by `changes`; it has all its columns then."""
    record.update(changes or {})
    assert sorted(record) == list(range(1, column_count + 1))
    return record


# --- expected errors -------------------------------------------------------------------------

class ElsewhereEntry(NamedTuple):
    """An entry that is reported for another record than the one that gives it."""

    record: int
    entry: tuple

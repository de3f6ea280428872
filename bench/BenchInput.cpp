#include "BenchInput.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <string_view>

#include "text/ShiftJis.h"

namespace BenchInput {

namespace {

/// How the clean cell of a column comes about.
enum class Fill
{
    FIXED,      // one of three values in turn
    AMOUNT,     // a number that differs from record to record
    REFERENCE,  // 14 digits with their check digit
    CORPORATE,  // 13 digits with their check digit
    PADDED,     // one of three values in turn, and a share of the padding
};

struct Column
{
    const char* szItem;    // attributes of the item but its column
    const char* szChecks;  // its valid elements
    Fill eFill;
    std::array<const char*, 3> clean;
    const char* szWrong;
};

/// Column 2 and those behind it. Each wrong cell is refused by exactly one check of its column.
constexpr std::array<Column, COLUMN_COUNT - 1> COLUMNS = {{
    {R"(id="gen:era" parent="GEZ00210" type="Kubun")",
     R"(<valid id="exist"/><valid id="contain" value="1 2 3 4 5"/>)",
     Fill::FIXED,
     {"5", "4", "5"},
     "9"},
    {R"(id="gen:yy" parent="GEZ00210" type="Normal")",
     R"(<valid id="exist"/><valid id="number"/><valid id="range" min="1" max="99"/>)",
     Fill::FIXED,
     {"3", "12", "6"},
     "元"},
    {R"(id="gen:mm" parent="GEZ00210" type="Normal")",
     R"(<valid id="exist"/><valid id="number"/><valid id="range" min="1" max="12"/>)",
     Fill::FIXED,
     {"1", "12", "9"},
     "13"},
    {R"(id="gen:dd" parent="GEZ00210" type="Normal")",
     R"(<valid id="exist"/><valid id="number"/><valid id="range" min="1" max="31"/>)",
     Fill::FIXED,
     {"31", "8", "15"},
     "32"},
    {R"(id="gen:zeimusho_NM" parent="GEZ00220" type="Normal")",
     R"(<valid id="exist"/><valid id="lvystring"/><valid id="length" max="40"/>)",
     Fill::FIXED,
     {"青葉台東", "白浜", "緑ヶ丘"},
     "ｱｵﾊﾞ"},
    {R"(id="gen:zeimusho_CD" parent="GEZ00220" type="Normal")",
     R"(<valid id="exist"/><valid id="number"/><valid id="length" value="5"/><valid id="taxoffice"/>)",
     Fill::FIXED,
     {"90101", "90102", "90103"},
     "99999"},
    {R"(id="GEZ00231" parent="GEZ00230" type="Normal")",
     R"(<valid id="number"><outer id="exist" column="8"/></valid><valid id="length" value="16"/>)",
     Fill::FIXED,
     {"1234567890123456", "6543210987654321", "1111222233334444"},
     "12345"},
    {R"(id="GEZ00232" parent="GEZ00230" type="Normal")",
     R"(<valid id="exist"/><valid id="istring"/><valid id="length" max="60"/>)",
     Fill::FIXED,
     {"山田　太郎", "長谷川　美智子", "株式会社青葉商事"},
     "山田ﾀﾛｳ"},
    {R"(id="GEZ00233" parent="GEZ00230" type="Normal")",
     R"(<valid id="exist"/><valid id="multikana"/><valid id="length" max="60"/>)",
     Fill::FIXED,
     {"ヤマダ　タロウ", "ハセガワ　ミチコ", "カブシキガイシャアオバショウジ"},
     "やまだ　たろう"},
    {R"(id="GEZ00234" parent="GEZ00230" type="Zip")",
     R"(<valid id="exist"/><valid id="number"/><valid id="length" value="7"/>)",
     Fill::FIXED,
     {"1000001", "5300001", "9800811"},
     "100-0001"},
    {R"(id="GEZ00235" parent="GEZ00230" type="Normal")",
     R"(<valid id="exist"/><valid id="istring"/>)",
     Fill::PADDED,
     {"青葉市中央一丁目二番三号", "白浜町大字北浜字松原四五六番地", "緑ヶ丘市南町七丁目八番"},
     "青葉市中央２℃"},
    {R"(id="GEZ00236" parent="GEZ00230" type="Normal")",
     R"(<valid id="multikana_2"/><valid id="length" max="120"/>)",
     Fill::FIXED,
     {"アオバシチュウオウ１－２－３", "シラハママチキタハマ 456", "ミドリガオカシミナミマチ"},
     "ｱｵﾊﾞｼ"},
    {R"(id="GEZ00237" parent="GEZ00230" type="Normal")",
     R"(<valid id="alnum"/><valid id="length" max="15"/>)",
     Fill::FIXED,
     {"00-1234-5678", "0000-12-3456", "000 1234 5678"},
     "00_1234_5678"},
    {R"(id="GEZ00238" parent="GEZ00230" type="Bango")",
     R"(<valid id="number"/><valid id="checkdigit" value="hojin"><outer id="exist" column="15"/></valid>)",
     Fill::CORPORATE,
     {},
     "0000000000001"},
    {R"(id="GEZ00241" parent="GEZ00240" type="Normal" zeroSuppress="true")",
     R"(<valid id="exist"/><valid id="number"/><valid id="range" min="0" max="999999999999"/>)",
     Fill::AMOUNT,
     {},
     "-100"},
    {R"(id="GEZ00242" parent="GEZ00240" type="Kubun")",
     R"(<valid id="exist"/><valid id="contain" value="1 2 3"/>)",
     Fill::FIXED,
     {"1", "2", "3"},
     "7"},
    {R"(id="GEZ00243" parent="GEZ00240" type="Normal")",
     R"(<valid id="lvystring"/>)",
     Fill::PADDED,
     {"前年分から変更なし。", "申請書の控えを添付（2通）", "特になし"},
     "変更ﾅｼ"},
    {R"(id="GEZ00244" parent="GEZ00240" type="Normal")",
     R"(<valid id="exist"/><valid id="number"/><valid id="length" value="14"/>)"
     R"(<valid id="checkdigit" value="seiri"/>)",
     Fill::REFERENCE,
     {},
     "12345678901230"},
    {R"(id="GEZ00251" parent="GEZ00250" type="Normal")",
     R"(<valid id="istring"/><valid id="length" max="60"/>)",
     Fill::FIXED,
     {"佐藤　花子", "鈴木　一郎", "高橋　健二"},
     "佐藤 花子"},
    {R"(id="GEZ00252" parent="GEZ00250" type="Normal")",
     R"(<valid id="lvystring"/>)",
     Fill::PADDED,
     {"青葉市西町10番地", "白浜町字東浜1-2-3", "緑ヶ丘市北町4-5 メゾン緑201"},
     "青葉市ﾆｼ町"},
    {R"(id="GEZ00253" parent="GEZ00250" type="Normal" zeroSuppress="true")",
     R"(<valid id="number"/><valid id="range" min="0" max="999999999999"/>)",
     Fill::AMOUNT,
     {},
     "１５"},
    {R"(id="GEZ00254" parent="GEZ00250" type="Normal")",
     R"(<valid id="number"/><valid id="range" min="0" max="999999999999"/>)",
     Fill::AMOUNT,
     {},
     "十万"},
    {R"(id="GEZ00261" parent="GEZ00260" type="Normal")",
     R"(<valid id="alphabet"/><valid id="length" max="10"/>)",
     Fill::FIXED,
     {"ABC", "JPY", "xyz"},
     "A1"},
    {R"(id="GEZ00262" parent="GEZ00260" type="Normal")",
     R"(<valid id="alnumsbl"/><valid id="length" max="50"/>)",
     Fill::FIXED,
     {"taro@mail.example", "office+tax@mail.example", "m_h@mail.example"},
     "ｔａｒｏ"},
    {R"(id="GEZ00263" parent="GEZ00260" type="Normal")",
     R"(<valid id="multibyte"/><valid id="length" max="40"/>)",
     Fill::FIXED,
     {"普通預金", "定期積立", "外貨預金"},
     "a預金"},
    {R"(id="GEZ00264" parent="GEZ00260" type="Normal")",
     R"(<valid id="number"/><valid id="length" value="3"/>)",
     Fill::FIXED,
     {"001", "123", "987"},
     "12"},
    {R"(id="GEZ00265" parent="GEZ00260" type="Normal")",
     R"(<valid id="containcolumn" value="27"/>)",
     Fill::FIXED,
     {"001", "123", "987"},
     "99"},
    {R"(id="GEZ00266" parent="GEZ00260" type="Kubun")",
     R"(<valid id="contain" value="普通 当座 貯蓄"/>)",
     Fill::FIXED,
     {"普通", "当座", "貯蓄"},
     "別段"},
    {R"(id="GEZ00267" parent="GEZ00260" type="Normal")",
     R"(<valid id="lvystring"/><valid id="charlength" max="40"><outer id="exist" column="30"/></valid>)",
     Fill::FIXED,
     {"記載事項に相違ありません。", "口座番号は別紙", "（控）"},
     "ｷｻｲ"},
}};

constexpr std::size_t PADDED_COLUMNS = [] {
    std::size_t nCount = 0;
    for (const Column& column : COLUMNS)
        nCount += column.eFill == Fill::PADDED ? 1 : 0;
    return nCount;
}();

/// The groups in front of their items. The one with two generations holds its items in both.
constexpr const char* GROUPS = R"(
<item id="GEZ00200" parent="GEZ002" type="TAG"/>
<item id="GEZ00210" parent="GEZ00200" type="Date"/>
<item id="GEZ00220" parent="GEZ00200" type="Zeimusho">
<valid id="taxofficenm" column="6"/>
</item>
<item id="GEZ00230" parent="GEZ00200" type="TAG"/>
<item id="GEZ00240" parent="GEZ00200" type="TAG"/>
<item id="GEZ00245" parent="GEZ00200" type="Normal"/>
<item id="GEZ00250" parent="GEZ00245" type="Normal" generation="junior"/>
<item id="GEZ00250" parent="GEZ00245" type="Normal" generation="senior"/>
<item id="GEZ00260" parent="GEZ00200" type="TAG"/>
)";

std::string Digits(std::size_t nNumber, std::size_t nWidth)
{
    const std::string strDigits = std::to_string(nNumber);
    return std::string(nWidth - std::min(nWidth, strDigits.size()), '0') + strDigits;
}

int Digit(char cDigit)
{
    return cDigit - '0';
}

/// A reference number; its first digit runs from 1 to 9, so that both generations occur.
std::string ReferenceNumber(std::size_t nRecord)
{
    std::string strNumber = std::to_string(nRecord % 9 + 1) + Digits(nRecord * 7919, 12);
    int nSum = 0;
    for (std::size_t i = 0; i < strNumber.size(); ++i)
        nSum += Digit(strNumber[i]) * static_cast<int>(14 - i);
    return strNumber + std::to_string((11 - nSum % 11) % 10);
}

std::string CorporateNumber(std::size_t nRecord)
{
    const std::string strNumber = Digits(nRecord * 104729 + 700000000000, 12);
    int nSum = 0;
    for (std::size_t i = 0; i < strNumber.size(); ++i)
        nSum += Digit(strNumber[i]) * (i % 2 == 0 ? 2 : 1);
    return std::to_string(9 - nSum % 9) + strNumber;
}

/// Kanji of three bytes each, and ASCII for what is left.
std::string PaddingText(std::size_t nBytes)
{
    std::string strText;
    for (std::size_t i = 0; i < nBytes / 3; ++i)
        strText += "亜";
    return strText + std::string(nBytes % 3, 'x');
}

/// The share of one of nParts in nTotal; the first parts take what doesn't divide.
std::size_t Share(std::size_t nTotal, std::size_t nParts, std::size_t nPart)
{
    return nTotal / nParts + (nPart < nTotal % nParts ? 1 : 0);
}

std::string CleanCell(const Column& column, std::size_t nRecord, std::size_t nPadding)
{
    const char* szFixed = column.clean[nRecord % column.clean.size()];
    switch (column.eFill) {
        case Fill::FIXED:
            return szFixed;
        case Fill::AMOUNT:
            return std::to_string(nRecord * 12345 + 1000);
        case Fill::REFERENCE:
            return ReferenceNumber(nRecord);
        case Fill::CORPORATE:
            return CorporateNumber(nRecord);
        case Fill::PADDED:
            return szFixed + PaddingText(nPadding);
    }
    throw std::logic_error("a column without a rule");
}

std::string RecordText(const CsvShape& shape, std::size_t nRecord)
{
    const std::size_t nPadding = Share(shape.nPadding, shape.nRecords, nRecord);
    std::size_t nPadded = 0;
    std::string strRecord = shape.szTypeId;
    for (const Column& column : COLUMNS) {
        strRecord += ',';
        if (shape.eCells == Cells::WRONG) {
            strRecord += column.szWrong;
            continue;
        }
        const bool bPadded = column.eFill == Fill::PADDED;
        strRecord +=
            CleanCell(column, nRecord, bPadded ? Share(nPadding, PADDED_COLUMNS, nPadded) : 0);
        nPadded += bPadded ? 1 : 0;
    }
    return strRecord + "\r\n";
}

std::string ItemsText()
{
    std::string strText = GROUPS;
    std::size_t nColumn = 2;
    for (const Column& column : COLUMNS) {
        strText += std::string("<item ") + column.szItem + R"( column=")" +
                   std::to_string(nColumn++) + R"(">)" + column.szChecks + "</item>\n";
    }
    return strText;
}

std::string ToShiftJis(std::string_view strText)
{
    const auto strUnits = Utf8::Decode(strText);
    const auto strBytes = strUnits ? ShiftJis::Encode(*strUnits) : std::nullopt;
    if (!strBytes)
        throw std::logic_error("a cell that Shift_JIS doesn't hold");
    return *strBytes;
}

}  // namespace

std::string DefinitionText()
{
    return std::string(R"(<?xml version="1.0" encoding="UTF-8"?><DEFINE><report id=")") + TYPE_ID +
           R"(" columnNum=")" + std::to_string(COLUMN_COUNT) + R"(" procId=")" + PROCEDURE_ID +
           R"(" procVR="1.0" reportId="GEZ002" reportVR="2.0">)" + ItemsText() + "</report>" +
           DateReportText() + "</DEFINE>\n";
}

std::string FinanceDefinitionText(const char* szProcedureId, const char* szRows)
{
    std::string strItems = ItemsText();
    // The family has no generations: what belongs to one would be left out.
    for (const char* szGeneration : {R"( generation="junior")", R"( generation="senior")"})
        strItems.erase(strItems.find(szGeneration), std::strlen(szGeneration));
    return std::string(R"(<?xml version="1.0" encoding="UTF-8"?><DEFINE><report procId=")") +
           szProcedureId + R"(" columnNum=")" + std::to_string(COLUMN_COUNT) +
           R"(" procVR="1.0" reportId="GEZ002" reportVR="2.0" )" + szRows + ">" + strItems +
           "</report></DEFINE>\n";
}

std::string TaxOfficesText()
{
    // As many offices as a country has, the ones in use behind the others.
    std::string strText = R"(<?xml version="1.0" encoding="UTF-8"?><TaxOffices>)";
    for (std::size_t i = 0; i < 520; ++i) {
        strText += R"(<TaxOffice OfficeType="5" OfficeCode=")" + Digits(10000 + i, 5) +
                   R"(" OfficeName="第)" + std::to_string(i) + "\"/>\n";
    }
    strText += R"(<TaxOffice OfficeType="5" OfficeCode="90101" OfficeName="青葉台東"/>
<TaxOffice OfficeType="5" OfficeCode="90102" OfficeName="白浜"/>
<TaxOffice OfficeType="5" OfficeCode="90103" OfficeName="緑ヶ丘"/>
</TaxOffices>
)";
    return strText;
}

std::string CsvText(const CsvShape& shape)
{
    std::string strText;
    for (std::size_t i = 0; i < shape.nRecords; ++i)
        strText += ToShiftJis(RecordText(shape, i));
    return strText;
}

void WriteFile(const std::filesystem::path& path, const std::string& strBytes)
{
    std::ofstream file(path, std::ios::binary);
    file.write(strBytes.data(), static_cast<std::streamsize>(strBytes.size()));
    file.close();
    if (!file)
        throw std::runtime_error("can't write " + path.string());
}

Folder::Folder()
{
    std::string strTemplate =
        (std::filesystem::temp_directory_path() / "kzekamok-bench-XXXXXX").string();
    if (mkdtemp(strTemplate.data()) == nullptr)
        throw std::runtime_error("can't make a temporary folder");
    m_path = strTemplate;
    const std::filesystem::path bundle = Path("KZEkaMok.bundle");
    std::filesystem::create_directory(bundle);
    WriteFile(bundle / "KZEkaDefine.xml", DefinitionText());
    WriteFile(bundle / "TaxOffices.xml", TaxOfficesText());
    const std::filesystem::path finance = bundle / "Finance";
    std::filesystem::create_directory(finance);
    for (const char* szEnding : {"_vld.xml", "_tpl.xml"}) {
        WriteFile(finance / (std::string(FINANCE_PROCEDURE_ID) + szEnding),
                  FinanceDefinitionText(FINANCE_PROCEDURE_ID, ""));
        WriteFile(
            finance / (std::string(PAGED_PROCEDURE_ID) + szEnding),
            FinanceDefinitionText(PAGED_PROCEDURE_ID, R"(startRow="1" endRow="-1" stepRow="6")"));
    }
    setenv("KZEKAMOK_BUNDLE", bundle.c_str(), 1);
}

Folder::~Folder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::string Folder::WriteCsv(const std::string& strName, const CsvShape& shape) const
{
    const std::filesystem::path path = Path(strName);
    WriteFile(path, CsvText(shape));
    return path.string();
}

}  // namespace BenchInput

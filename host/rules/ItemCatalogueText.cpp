#include "rules/ItemCatalogueText.h"

#include <algorithm>
#include <cctype>
#include <vector>

#include "base/Language.h"
#include "rules/CheckShape.h"

namespace host {
namespace {

constexpr const char* SEPARATOR = ", ";

void Append(std::string& strList, std::string_view strText)
{
    if (!strList.empty())
        strList += SEPARATOR;
    strList += strText;
}

Text PlaceText(ErrorPlace ePlace)
{
    switch (ePlace) {
        case ErrorPlace::None:
            return {"no error", "エラーなし"};
        case ErrorPlace::Cell:
            return {"the column", "その項目"};
        case ErrorPlace::Pair:
            return {"2 columns", "2項目"};
        case ErrorPlace::Date:
            return {"4 columns", "4項目"};
        case ErrorPlace::PairOrColumn:
            return {"2 columns, or 4 from errcolumn", "2項目、またはerrcolumnからの4項目"};
        case ErrorPlace::DateOrColumn:
            return {"4 columns, from errcolumn if given", "4項目（errcolumnがあればそこから）"};
        case ErrorPlace::DateOrCell:
            return {"4 columns, from errcolumn and in the record errrow if given",
                    "4項目（errcolumnがあればそこから、errrowがあればそのレコード）"};
        case ErrorPlace::GroupOfKind:
            return {"4 or 2 columns", "4項目または2項目"};
        case ErrorPlace::CellOrDate:
            return {"the column, or 4 with days", "その項目、またはdaysがあれば4項目"};
        case ErrorPlace::YearOfMax:
            return {"2 columns from that in max", "maxの項目からの2項目"};
        case ErrorPlace::ColumnsOfValue:
            return {"the first to the last column in value", "valueの最初から最後までの項目"};
    }
    return {"", ""};
}

bool IsBefore(const CatalogueItem* pFirst, const CatalogueItem* pSecond)
{
    return std::ranges::lexicographical_compare(
        pFirst->strKeyword, pSecond->strKeyword, [](unsigned char cFirst, unsigned char cSecond) {
            return std::tolower(cFirst) < std::tolower(cSecond);
        });
}

}  // namespace

std::string ItemAttributes(const CatalogueItem& item)
{
    std::string strAttributes;
    for (const Attribute eAttribute : ATTRIBUTES)
        if (ShapeOf(item, eAttribute).IsRead())
            Append(strAttributes, AttributeName(eAttribute));
    return strAttributes;
}

std::string ItemCodes(const CatalogueItem& item)
{
    std::string strCodes;
    for (const KZCEkaMessage_t eMessage : item.messages)
        Append(strCodes, EkaMsgTable[eMessage].szCode);
    return strCodes;
}

std::string ItemPlace(const CatalogueItem& item)
{
    return Say(PlaceText(item.shape.ePlace));
}

std::string ItemDescription(const CatalogueItem& item)
{
    return Say({item.description.szEnglish, item.description.szJapanese});
}

void WriteItemCatalogue(std::ostream& stream)
{
    stream << Say({"# Check items\n\n"
                   "The keywords that `valid` and `outer` elements of a definition file may have "
                   "as their `id`, what\n"
                   "each of them checks, the attributes that it reads, the codes that it reports, "
                   "and the columns\n"
                   "that its error covers. A `valid` element's attribute `message` puts another "
                   "code in their place.\n\n"
                   "| Keyword | Checks | Attributes | Codes | Error covers |\n",
                   "# チェック項目\n\n"
                   "定義ファイルの`valid`要素と`outer`要素の`id`に書けるキーワードです。"
                   "チェックの内容、読み取る属性、\n"
                   "エラーコード、エラーが付く項目を示します。`valid`要素の属性`message`があれば、"
                   "そのコードに置き換わります。\n\n"
                   "| キーワード | 内容 | 属性 | コード | エラーの位置 |\n"})
           << "|---|---|---|---|---|\n";
    std::vector<const CatalogueItem*> vecItem;
    for (const CatalogueItem& item : ItemCatalogue())
        vecItem.push_back(&item);
    std::ranges::sort(vecItem, IsBefore);
    for (const CatalogueItem* pItem : vecItem)
        stream << "| `" << pItem->strKeyword << "` | " << ItemDescription(*pItem) << " | "
               << ItemAttributes(*pItem) << " | " << ItemCodes(*pItem) << " | " << ItemPlace(*pItem)
               << " |\n";
}

}  // namespace host

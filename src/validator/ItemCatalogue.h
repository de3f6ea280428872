// The check items as data: keyword, attributes, messages, and the rule in words.
//
// Words are templates for people who write CSV files. A template is plain text with
//
//   {name}        a parameter as it is written; name is value, min or max
//   {name:kind}   the parameter in the form of a kind, see below; name may be column as well: the
//                 item's own column
//   {name=word}   writes nothing; usable if the parameter is exactly that word
//   [a|b|c]       the first alternative whose placeholders are all usable; nothing if there is none
//
// A placeholder is usable if the parameter isn't empty and, with a kind, has the form that the kind
// wants. Alternatives hold no brackets of their own.
//
// Kinds of numbers and texts:
//   s             the English plural: "s" unless the number is 1
//   list          the texts of a list: 「1」「2」 / "1" or "2"
//   one-of        the same, in Japanese with のいずれか if they are several
//   years         Western years of a list, runs of them joined: 2017、2019～2031
//   range         both limits, min and max, one that is left out being 0: 1以上5以下 / 1 to 5
//   positions     a list of positions: 1文字目 / character 1
//   characters    as list, of the first character of each text; one-of-characters as one-of
// Kinds of columns, each with its label if it has one:
//   column        項目3「氏名」 / column 3 "氏名"
//   columns       a list of columns, runs of three or more joined
//   numbers       the same without labels, for columns of another record
//   any-of        as columns: one of them
//   year-column   two columns from that one: era and year
//   date-column   four columns from that one: era, year, month, day
//   own           as many columns from that one as the item looks at
//   cell          a date in another record, "row_col" of its first cell; without labels
//   source        a date-column, or a cell if it is written so
//   sum           of min or max: the number in the column of value plus min less max
//   year-sum      of value: the year in that column plus max less min
// Kinds of dates:
//   date          eight characters YYYYMMDD: 2013（平成25）年4月1日 / 1 April 2013 (Heisei 25)
//   western       the same of YYYY/MM/DD
//   periods       of min: the ranges of the lists in min and max; **** is any year
//   first-period  the first of these
//   birth         of value: the date in the column of the first word
//   age-day       of value: the reference day that its second to fifth word make
#pragma once

#include <span>
#include <string_view>

#include "EkaMsgTable.h"
#include "validator/ItemShape.h"

/// The same words in both languages, in UTF-8.
struct ItemWords
{
    const char* szEnglish = "";
    const char* szJapanese = "";
};

struct CatalogueItem
{
    std::string_view strKeyword;
    ItemShape shape;                            ///< attributes without a shape are dropped
    std::span<const KZCEkaMessage_t> messages;  ///< its own, in the order of their codes
    ItemWords rule;                             ///< template: what a cell must be
    ItemWords description;  ///< sentences, names and words of parameters in `backquotes`
    /// Template: the rule as a condition, a clause without its "if". Empty if the rule itself can
    /// be said of a column.
    ItemWords condition;
};

/// Every check item once, in the order of the factory.
std::span<const CatalogueItem> ItemCatalogue();
/// The item of a keyword, or null.
const CatalogueItem* FindCatalogueItem(std::string_view strKeyword);

#include "rules/Advice.h"

#include "base/Language.h"

namespace host {
namespace {

struct AdviceRow
{
    KZCEkaMessage_t eMessage;
    Text advice;
};

constexpr AdviceRow ADVICE[EKA_MSG_COUNT] = {
    {MSG_NONE,
     {"This program has no text for the code. Use the library and the program of one release.",
      "このコードの説明はこのプログラムにありません。ライブラリとプログラムを同じリリースのものにし"
      "てください。"}},
    {HE70001E,
     {"No value is given where one is needed. Fill it in.",
      "必要な値がありません。入力してください。"}},
    {HE70002E,
     {"No tax office has this name. Write the office's name as the table of tax offices has it.",
      "この名称の税務署はありません。税務署名の一覧にあるとおりに書いてください。"}},
    {HE70003E,
     {"Only full-width katakana may stand here. Replace every other character.",
      "全角カタカナだけが使えます。ほかの文字を直してください。"}},
    {HE70004E,
     {"Only the half-width digits 0 to 9 may stand here. Replace every other character.",
      "半角数字（0～9）だけが使えます。ほかの文字を直してください。"}},
    {HE70005E,
     {"No value may stand here. Empty it.", "ここには値を入れられません。空にしてください。"}},
    {HE70006E,
     {"A character is not allowed here. Replace it by an allowed one.",
      "使えない文字があります。使える文字に直してください。"}},
    {HE70007E,
     {"The value has too many characters. Shorten it.", "文字数が多すぎます。短くしてください。"}},
    {HE70008E,
     {"The value has the wrong length. Give it the number of digits that is asked for.",
      "桁数が違います。決められた桁数にしてください。"}},
    {HE70009E,
     {"The value is not one of the allowed ones. Give one that is.",
      "決められた値のどれでもありません。決められた値にしてください。"}},
    {HE70010E,
     {"The value is not a valid one; its check digit, for example, may be wrong. Correct it.",
      "正しい値ではありません。検査用数字の誤りなどを確認して直してください。"}},
    {HE70011E,
     {"No tax office has this number. Write the office's 5-digit number.",
      "この番号の税務署はありません。税務署の5桁の番号を書いてください。"}},
    {HE70012E,
     {"There is no such date. Correct the era, year, month or day.",
      "存在しない日付です。元号、年、月、日を確認して直してください。"}},
    {HE70013E,
     {"The file does not exist. Check its name and folder.",
      "ファイルがありません。ファイル名とフォルダーを確認してください。"}},
    {HE70014E,
     {"The file may not be read. Ask its owner for the right to read it.",
      "ファイルを読む権限がありません。所有者に読み取りの許可を求めてください。"}},
    {HE70015E,
     {"The file name has the wrong ending. Rename it: .csv, .CSV, .txt or .TXT.",
      "ファイル名の末尾が違います。.csv、.CSV、.txt、.TXT のどれかに変えてください。"}},
    {HE70016E,
     {"The document could not be made from these values. Correct the values that can't stand in "
      "XML.",
      "これらの値から文書を作れませんでした。XMLに入れられない値を直してください。"}},
    {HE70017E,
     {"The library refused without a reason. Report this as a fault of the program.",
      "ライブラリが理由を示さずに拒否しました。プログラムの不具合として報告してください。"}},
    {HE70018E,
     {"Something broke down that has nothing to do with the values of the file.",
      "ファイルの値とは関係のない障害が起きました。"}},
    {HE70019E,
     {"A record has the wrong number of columns. Add or remove commas until it fits its form.",
      "項目数の違うレコードがあります。カンマを増減して、帳票の項目数に合わせてください。"}},
    {HE70020E,
     {"The file has more than 5000 records, blank lines included. Split it into smaller files.",
      "空行を含めて5000件を超えるレコードがあります。ファイルを分けてください。"}},
    {HE70021E,
     {"The type id in the first column is unknown or differs between records. Give all records one "
      "known id.",
      "先頭の項目の申請区分が、定義にないものか、レコードによって異なっています。すべてのレコードを"
      "、定義にある1つの申請区分にそろえてください。"}},
    {HE70022E,
     {"There are more errors than the library lists. Correct these and check the file again.",
      "ライブラリが示せる件数を超えるエラーがあります。示されたものを直してから、もう一度チェックし"
      "てく"
      "ださい。"}},
    {HE70023E,
     {"The document would be larger than 10 MB. Split the file into smaller ones.",
      "文書が10MBを超えます。ファイルを分けてください。"}},
    {HE70024E,
     {"The file holds no record. Write at least one.",
      "レコードがありません。1件以上書いてください。"}},
    {HE70025E,
     {"The dates don't fit each other. Correct the one that is wrong.",
      "日付の前後関係が合いません。誤っているほうを直してください。"}},
    {HE70026E,
     {"The file may not be accessed. Ask its owner for the right to.",
      "ファイルへのアクセスが許可されていません。所有者に許可を求めてください。"}},
    {HE70027E,
     {"The folder of the output does not exist. Make it, or name another one.",
      "出力先のフォルダーがありません。作るか、別の出力先にしてください。"}},
    {HE70028E,
     {"The file could not be written. Check its folder's permissions and the free space.",
      "ファイルに書き込めませんでした。フォルダーの権限と空き容量を確認してください。"}},
    {HE70029E,
     {"The file has more records than its form allows. Split it into smaller files.",
      "帳票で認められた件数を超えるレコードがあります。ファイルを分けてください。"}},
    {HE70030E,
     {"One of these columns has to be 1. Set the one that applies.",
      "これらの項目のどれかを1にする必要があります。該当するものを1にしてください。"}},
    {HE70031E,
     {"The value stands more than once. Keep it in one place.",
      "同じ値が2か所以上にあります。1か所だけに残してください。"}},
    {HE70032E,
     {"Only half-width letters may stand here. Replace every other character.",
      "半角英字だけが使えます。ほかの文字を直してください。"}},
    {HE70033E,
     {"The form needs a second record. Add it.",
      "この帳票には2件目のレコードが必要です。追加してください。"}},
    {HE70034E,
     {"There is a character that is no full-width katakana, letter or digit. Replace it.",
      "全角カタカナ・英数字ではない文字があります。直してください。"}},
    {HE70035E,
     {"Only half-width letters and digits may stand here. Replace every other character.",
      "半角の英字と数字だけが使えます。ほかの文字を直してください。"}},
    {HE99999E,
     {"The value is not allowed here. Correct it.",
      "ここでは認められない値です。直してください。"}},
};

static_assert(
    [] {
        for (int nRow = 0; nRow < EKA_MSG_COUNT; ++nRow)
            if (ADVICE[nRow].eMessage != nRow)
                return false;
        return true;
    }(),
    "each row stands at its message's index");

}  // namespace

const char* AdviceFor(KZCEkaMessage_t eMessage)
{
    return Say(ADVICE[eMessage].advice);
}

}  // namespace host

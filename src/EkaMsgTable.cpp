#include "EkaMsgTable.h"

#include <algorithm>

constexpr EkaMsgRow EkaMsgTable[EKA_MSG_COUNT] = {
    {MSG_NONE, "", ""},
    {HE70001E, "HE70001E", "値が入力されていません。"},
    {HE70002E, "HE70002E", "入力された局署名称は正しくありません。"},
    {HE70003E, "HE70003E", "全角カタカナ以外の文字が含まれています。"},
    {HE70004E, "HE70004E", "半角数字以外の文字が含まれています。"},
    {HE70005E, "HE70005E", "入力が不要な項目です。"},
    {HE70006E, "HE70006E", "使用できない文字が含まれています。"},
    {HE70007E, "HE70007E", "入力できる文字数を超えています。"},
    {HE70008E, "HE70008E", "入力された桁数が正しくありません。"},
    {HE70009E, "HE70009E", "値の範囲外です。"},
    {HE70010E, "HE70010E", "入力内容が正しくありません。"},
    {HE70011E, "HE70011E", "入力された局署番号は正しくありません。"},
    {HE70012E, "HE70012E", "入力された日付は実在しません。"},
    {HE70013E, "HE70013E", "ファイルが存在しません。"},
    {HE70014E, "HE70014E", "ファイルにアクセス権がありません。"},
    {HE70015E, "HE70015E", "拡張子が正しくありません。"},
    {HE70016E, "HE70016E", "mokファイルの作成に失敗しました。"},
    {HE70017E, "HE70017E", "詳細エラー情報が存在しません。"},
    {HE70018E, "HE70018E", "想定しないエラーが発生しました。"},
    {HE70019E, "HE70019E", "申請区分に対するCSVのフォーマットが正しくありません。"},
    {HE70020E, "HE70020E",
     "作成可能なデータ数(5000件)を超えてしまうため、読み込むことができません。"},
    {HE70021E, "HE70021E", "CSVファイルに異なる申請区分の情報が含まれています。"},
    {HE70022E, "HE70022E", "詳細エラー情報が100,000件を超えています。"},
    {HE70023E, "HE70023E", "変換後のファイルサイズが10MBを超えています。"},
    {HE70024E, "HE70024E", "空のCSVファイルです。"},
    {HE70025E, "HE70025E", "入力された日付の関連性が正しくありません。"},
    {HE70026E, "HE70026E", "ファイルへのアクセス権がありません。"},
    {HE70027E, "HE70027E", "出力先フォルダーが存在しません。"},
    {HE70028E, "HE70028E", "ファイルの書き込みに失敗しました。"},
    {HE70029E, "HE70029E", "作成可能なCSVレコード数を超えてしまうため、読み込むことができません。"},
    {HE70030E, "HE70030E", "いずれかの項目に1を設定してください。"},
    {HE70031E, "HE70031E", "値が重複しています。"},
    {HE70032E, "HE70032E", "半角英字以外の文字が含まれています。"},
    {HE70033E, "HE70033E", "2レコード目以降の入力が必要です。"},
    {HE70034E, "HE70034E", "全角カタカナ及び英数字以外の文字が含まれています。"},
    {HE70035E, "HE70035E", "半角英数字以外の文字が含まれています。"},
    {HE99999E, "HE99999E", "エラーが発生しました。"},
};

static_assert(
    [] {
        for (int nRow = 0; nRow < EKA_MSG_COUNT; ++nRow)
            if (EkaMsgTable[nRow].eMessage != nRow)
                return false;
        return true;
    }(),
    "each row stands at its own index");

KZCEkaMessage_t FindEkaMessage(std::string_view strCode)
{
    if (strCode.empty())
        return MSG_NONE;
    const auto* pRow = std::ranges::find(EkaMsgTable, strCode, &EkaMsgRow::szCode);
    return pRow != std::end(EkaMsgTable) ? pRow->eMessage : MSG_NONE;
}

#include "Leftovers.h"

#include <cstddef>

#include "Complain.h"
#include "Language.h"
#include "SafeText.h"
#include "SourceFile.h"
#include "files/FilePlace.h"
#include "files/PrivateFolder.h"

namespace host {

void RemoveLeftoversBeside(const std::string& strPath)
{
    FilePlace place;
    if (FindPlace(AbsolutePath(strPath), place) != 0)
        return;
    const std::size_t nRemoved = RemoveDeadFolders(place.folder.Get());
    if (nRemoved > 0)
        Complain(Say({"beside {1} runs that were ended had left unfinished files: {2}. They were "
                      "removed.",
                      "{1} の場所に、途中で終了した実行の書きかけのファイルが{2}件ありました。"
                      "削除しました。"},
                     {MakeSafe(strPath), std::to_string(nRemoved)}));
}

}  // namespace host

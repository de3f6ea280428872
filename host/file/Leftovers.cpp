#include "file/Leftovers.h"

#include <cstddef>

#include "base/Complain.h"
#include "base/Language.h"
#include "base/SafeText.h"
#include "file/FilePlace.h"
#include "file/PrivateFolder.h"
#include "file/SourceFile.h"

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

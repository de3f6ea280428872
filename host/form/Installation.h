// Finds out what of the installation is missing.
#pragma once

#include <string>

#include "base/Language.h"
#include "form/Family.h"

namespace host {

/// A sentence that says what is wrong with the resource folder and what to do, or the empty text if
/// nothing is found to be wrong. Looks at what every family needs and at the base family's file.
std::string InstallationProblem();
/// The same for files of one type id: looks at the two definition files of their procedure in place
/// of the base family's.
std::string InstallationProblem(Family eFamily, const std::string& strTypeId);

/// How to get at the library's log, for a fault without a visible reason.
inline constexpr Text LOG_ADVICE = {
    "Run it again as `env KZLuviaZEKA.DebugOutput=1 kzekamok ...` and read the log that the "
    "library "
    "then writes in your home folder.",
    "`env KZLuviaZEKA.DebugOutput=1 kzekamok ...` としてもう一度実行し、ホームフォルダーに書かれる"
    "ライブラリのログを確認してください。"};

}  // namespace host

// Bounds of our own on definitions: no real file comes near them, and without them a hostile one
// would keep a load or a document from ever ending. Lint tells them before a request meets them.
#pragma once

#include <cstddef>
#include <cstdint>

/// The message of a tree that can't be built or written.
inline constexpr const char* BROKEN_TREE = "定義体の帳票タグ階層定義が不正です。";

namespace DefinitionLimits {

/// Levels of items below a report.
inline constexpr int TREE_DEPTH = 500;

/// Nodes that one search for an item's parent passes.
inline constexpr long SEARCH_STEPS = 100000;

/// The rows of a head lie between the negative of this and this.
inline constexpr std::int64_t HEAD_ROW = 1000000;

/// Nodes that the heads of all pages of a document write, once for each row that they are asked
/// for.
inline constexpr std::int64_t HEAD_NODES = 100000000;

/// Bytes that the heads of all pages of a document write. Far more than a document may have,
/// however much shorter it is when its escapes are resolved.
inline constexpr std::size_t HEAD_BYTES = 67108864;

}  // namespace DefinitionLimits

// The parts of the page of a batch that are always the same.
#pragma once

namespace host {

/// Marks a page as one of a batch, so that it may be replaced. Stands near its beginning.
inline constexpr const char* PAGE_MARK = R"(<meta name="generator" content="kzekamok batch">)";

/// A style sheet for light and dark, for wide and narrow.
extern const char* const PAGE_STYLE;
/// Filters and sorts the table of files. Without it the page is whole, too.
extern const char* const PAGE_SCRIPT;

}  // namespace host

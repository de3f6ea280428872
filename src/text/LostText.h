// Texts that had to be left empty for want of memory.
#pragma once

/// Some operations promise the empty text rather than an exception. A step that uses them must not
/// take such a text for the filer's: it asks here before it tells a verdict.
namespace LostText {

/// A text was lost.
void Note();

/// What a step begins with.
void Forget();

/// Throws FAULT if a text was lost since Forget.
void Check();

}  // namespace LostText

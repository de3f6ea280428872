// How much an XML document may ask for. A document of a definition's size that keeps to these costs
// time and memory in proportion to its bytes; most of what the library does beyond them grows with
// the square of something.
#pragma once

#include <cstddef>

namespace XmlLimits {

/// Elements inside one another: a prefix is looked up from the innermost element outwards.
inline constexpr std::size_t ELEMENT_DEPTH = 1000;
/// Attributes of one element, those that the grammar adds included: the library finds the place of
/// each by looking at all. The grammar can't declare more for one element either.
inline constexpr std::size_t ATTRIBUTES = 256;
/// Namespace declarations of the open elements together, for the same reason as the depth.
inline constexpr std::size_t OPEN_NAMESPACES = 250;
/// Different names of elements and different names of attributes: the library's tables of names
/// don't grow with their contents.
inline constexpr std::size_t NAMES = 5000;

/// Characters of the grammar inside a document.
inline constexpr std::size_t GRAMMAR_SIZE = 262144;
/// Elements, attributes, entities and notations that it declares, repeated ones too.
inline constexpr std::size_t DECLARATIONS = 10000;
/// Attributes declared for an element, summed up over the document's elements: each time all are
/// looked through for the ones that are missing.
inline constexpr std::size_t DECLARED_ATTRIBUTES = 10000000;
/// Attributes that the grammar adds to the elements of a document: so many, and one for each so
/// many bytes of it.
inline constexpr std::size_t ADDED_ATTRIBUTES = 10000;
inline constexpr std::size_t BYTES_PER_ADDED_ATTRIBUTE = 10;
/// References to entities, those inside entities included.
inline constexpr std::size_t ENTITY_REFERENCES = 10000;
/// Characters of an entity without markup: any number of references to it may stand in one
/// attribute, which is told only when it is whole.
inline constexpr std::size_t ENTITY_SIZE = 1024;
/// Characters that entities and attributes may make of a document beyond its own size in bytes.
inline constexpr std::size_t ADDED_SIZE = 1048576;

}  // namespace XmlLimits

// The memory of one XML parser.
#pragma once

#include <cstddef>

#include <xercesc/framework/MemoryManager.hpp>

/// Gives back what the library forgets: it loses parts of a document's grammar when it gives up in
/// the middle of it. Outlives the parser that it is given to.
class XercesMemory final : public xercesc::MemoryManager
{
public:
    XercesMemory() = default;
    ~XercesMemory() override;
    XercesMemory(const XercesMemory&) = delete;
    XercesMemory& operator=(const XercesMemory&) = delete;

    /// Throws xercesc::OutOfMemoryException.
    void* allocate(XMLSize_t nSize) override;
    /// \param pMemory  From allocate, or null.
    void deallocate(void* pMemory) override;
    /// Exceptions may live longer than the parser.
    xercesc::MemoryManager* getExceptionMemoryManager() override;

private:
    /// Stands before each piece of memory, with the alignment that any type needs.
    struct alignas(std::max_align_t) Header
    {
        Header* pPrevious = this;
        Header* pNext = this;
    };

    Header m_ring;  ///< all that is allocated, in a ring
};

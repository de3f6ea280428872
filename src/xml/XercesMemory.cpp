#include "xml/XercesMemory.h"

#include <new>

#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

XercesMemory::~XercesMemory()
{
    while (m_ring.pNext != &m_ring)
        deallocate(m_ring.pNext + 1);
}

void* XercesMemory::allocate(XMLSize_t nSize)
{
    void* pRaw = ::operator new(sizeof(Header) + nSize, std::nothrow);
    if (pRaw == nullptr)
        throw xercesc::OutOfMemoryException();
    auto* pHeader = ::new (pRaw) Header{&m_ring, m_ring.pNext};
    m_ring.pNext->pPrevious = pHeader;
    m_ring.pNext = pHeader;
    return pHeader + 1;
}

void XercesMemory::deallocate(void* pMemory)
{
    if (pMemory == nullptr)
        return;
    auto* pHeader = static_cast<Header*>(pMemory) - 1;
    pHeader->pPrevious->pNext = pHeader->pNext;
    pHeader->pNext->pPrevious = pHeader->pPrevious;
    ::operator delete(pHeader);
}

xercesc::MemoryManager* XercesMemory::getExceptionMemoryManager()
{
    return xercesc::XMLPlatformUtils::fgMemoryManager;
}

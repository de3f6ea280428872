#include "xml/XercesMemory.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "KZCXDom.h"
#include "support/ResetState.h"

namespace {

TEST(XercesMemory, GivesMemoryThatAnyTypeFits)
{
    XercesMemory memory;
    for (const XMLSize_t nSize : {XMLSize_t{0}, XMLSize_t{1}, XMLSize_t{24}, XMLSize_t{4097}}) {
        void* pMemory = memory.allocate(nSize);
        ASSERT_NE(pMemory, nullptr);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(pMemory) % alignof(std::max_align_t), 0U);
        std::memset(pMemory, 1, nSize);
        memory.deallocate(pMemory);
    }
}

TEST(XercesMemory, TakesBackInAnyOrder)
{
    XercesMemory memory;
    void* pFirst = memory.allocate(10);
    void* pSecond = memory.allocate(20);
    void* pThird = memory.allocate(30);
    memory.deallocate(pSecond);
    memory.deallocate(pFirst);
    memory.deallocate(pThird);
    memory.deallocate(nullptr);
}

// The sanitizer build sees what stays behind, here and below.
TEST(XercesMemory, GivesBackWhatIsForgotten)
{
    XercesMemory memory;
    EXPECT_NE(memory.allocate(1000), nullptr);
    EXPECT_NE(memory.allocate(1), nullptr);
}

class XercesMemoryOfParser : public ResetState
{};

TEST_F(XercesMemoryOfParser, KeepsNothingOfAGrammarThatBreaksOff)
{
    KZCXDom dom;
    ASSERT_TRUE(dom.Initialize());
    EXPECT_FALSE(dom.Parse("<!DOCTYPE a [<!ELEMENT a (b,(c,d),(e|f)+,(g,h", "torn", nullptr));
    EXPECT_FALSE(dom.Parse("<!DOCTYPE a [<!ELEMENT a ((((b)*)+)?,(c", "torn", nullptr));
    EXPECT_TRUE(dom.Parse("<a/>", "whole", nullptr));
    dom.Terminate();
}

}  // namespace

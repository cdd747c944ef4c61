#include <gtest/gtest.h>

#include "platform/zvcom/ZvUvException.h"

TEST(ZvUvException, TellsKindMessageSourceAndLine) {
    const CZvUvException fault(6, "Can't Read File x. ", "ZvDisplayList", 973);
    EXPECT_EQ(fault.GetKind(), 6);
    EXPECT_EQ(fault.GetMessage(), "Can't Read File x. ");
    EXPECT_EQ(fault.GetSource(), "ZvDisplayList");
    EXPECT_EQ(fault.GetLine(), 973);
}

TEST(ZvUvException, IsCaughtAsAStandardExceptionWithItsMessage) {
    try {
        throw CZvUvException(6, "full", "ZvDisplayList", 1125);
    } catch (const std::exception& fault) {
        EXPECT_STREQ(fault.what(), "full");
    }
}

#include "platform/INativeFont.h"

#include <gtest/gtest.h>

namespace {

TEST(NativeFontRecord, CutsNoCharacterApart) {
    SNativeFontRecord record;
    const std::string thirty(30, 'a');
    copyNativeFaceName(record.faceName, (thirty + "\u00e9").c_str());
    EXPECT_EQ(record.faceName, thirty);
    copyNativeFaceName(record.faceName, (thirty.substr(1) + "\u00e9").c_str());
    EXPECT_EQ(record.faceName, thirty.substr(1) + "\u00e9");
    copyNativeFaceName(record.faceName, (thirty + "b" + thirty).c_str());
    EXPECT_EQ(record.faceName, thirty + "b");
}

}  // namespace

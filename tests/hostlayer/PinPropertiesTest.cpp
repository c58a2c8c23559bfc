#include "hostlayer/PinProperties.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string_view>

TEST(PinProperties, FillsEightyBytesAndLeavesTheRestAlone) {
    VstPinProperties pin;
    std::memset(&pin, 0x5A, sizeof pin);
    fillPinProperties(pin, "Left input", "L in", kVstPinIsActive | kVstPinIsStereo);
    EXPECT_STREQ(pin.label, "Left input");
    EXPECT_EQ(pin.flags, 3);
    EXPECT_EQ(pin.arrangementType, 1);
    EXPECT_STREQ(pin.shortLabel, "L in");
    const std::string_view future(pin.future, sizeof pin.future);
    EXPECT_EQ(future.find_first_not_of('\x5A'), std::string_view::npos);
}

TEST(PinProperties, PadsTheLabelsWithZeros) {
    VstPinProperties pin;
    std::memset(&pin, 0x5A, sizeof pin);
    fillPinProperties(pin, "", "", kVstPinIsActive);
    EXPECT_EQ(std::string_view(pin.label, 64).find_first_not_of('\0'), std::string_view::npos);
    EXPECT_EQ(std::string_view(pin.shortLabel, 8).find_first_not_of('\0'), std::string_view::npos);
    EXPECT_EQ(pin.arrangementType, 0);
}

TEST(PinProperties, CutsLongLabelsToThePublishedLengths) {
    VstPinProperties pin{};
    fillPinProperties(pin, std::string(80, 'x').c_str(), "12345678", kVstPinIsActive);
    EXPECT_EQ(pin.label, std::string(63, 'x'));
    EXPECT_STREQ(pin.shortLabel, "1234567");
}

#include "platform/PictureFile.h"

#include "CTemporaryFolder.h"
#include "PictureBytes.h"

#include <gtest/gtest.h>

namespace {

class PictureFile : public testing::Test {
protected:
    std::optional<EPictureFormat> format(const std::string &bytes) {
        writeBytes(path, bytes);
        return pictureFormat(path);
    }
    bool isPicture(const std::string &bytes) { return format(bytes).has_value(); }
    bool isPicture(const SPng &file) { return isPicture(file.bytes()); }
    bool isPicture(const SJpeg &file) { return isPicture(file.bytes()); }

    CTemporaryFolder folder;
    std::string path = (folder / "picture").string();
    SPng png;
    SJpeg jpeg;
};

std::string kind(int depth, int colourType) {
    return {static_cast<char>(depth), static_cast<char>(colourType)};
}

TEST_F(PictureFile, IsKnownByItsContents) {
    EXPECT_EQ(format(png.bytes()), EPictureFormat::PNG);
    EXPECT_EQ(format(jpeg.bytes()), EPictureFormat::JPEG);
}

TEST_F(PictureFile, MayBeFollowedByOtherBytes) {
    EXPECT_TRUE(isPicture(png.bytes() + "more"));
    EXPECT_TRUE(isPicture(jpeg.bytes() + "more"));
}

TEST_F(PictureFile, OtherFilesAreNoPictures) {
    EXPECT_FALSE(isPicture(""));
    EXPECT_FALSE(isPicture("\x89"));
    EXPECT_FALSE(isPicture("<start_skin>\n<end_skin>\n"));
    EXPECT_FALSE(isPicture(std::string(1000, '\xff')));
    EXPECT_FALSE(pictureFormat((folder / "none").string()));
    EXPECT_FALSE(pictureFormat(folder.path().string()));
}

TEST_F(PictureFile, ThePngHeaderHasTheSize) {
    const SPictureSize size = {1, 1};
    const std::string bytes = png.bytes();
    constexpr std::size_t headerEnd = 33;
    for (const std::size_t length : {bytes.size(), headerEnd}) {
        writeBytes(path, bytes.substr(0, length));
        EXPECT_EQ(pngSize(path), size) << length;
    }
    for (const std::string &other : {bytes.substr(0, headerEnd - 1), jpeg.bytes(), std::string()}) {
        writeBytes(path, other);
        EXPECT_EQ(pngSize(path), std::nullopt);
    }
    EXPECT_EQ(pngSize((folder / "none").string()), std::nullopt);
}

TEST_F(PictureFile, EveryShorterPngIsRefused) {
    const std::string bytes = png.bytes();
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(isPicture(bytes.substr(0, length))) << length;
}

TEST_F(PictureFile, EveryShorterJpegIsRefused) {
    const std::string bytes = jpeg.bytes();
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(isPicture(bytes.substr(0, length))) << length;
}

TEST_F(PictureFile, APngNeedsItsSignatureAndHeader) {
    const std::string bytes = png.bytes();
    for (std::size_t place = 0; place < 16; ++place) {
        std::string wrong = bytes;
        wrong[place] = static_cast<char>(wrong[place] ^ 1);
        EXPECT_FALSE(isPicture(wrong)) << place;
    }
}

TEST_F(PictureFile, APngMayHaveEveryKindOfPixel) {
    const std::pair<int, std::string> depths[] = {
        {0, "\1\2\4\x8\x10"}, {2, "\x8\x10"}, {3, "\1\2\4\x8"}, {4, "\x8\x10"}, {6, "\x8\x10"}};
    png.rows = std::string(1 + 8, '\0');
    int found = 0;
    for (int colourType = 0; colourType <= 8; ++colourType)
        for (int depth = 0; depth <= 17; ++depth) {
            png.kind = kind(depth, colourType);
            bool isKnown = false;
            for (const auto &[type, allowed] : depths)
                if (type == colourType)
                    isKnown = allowed.find(static_cast<char>(depth)) != std::string::npos;
            EXPECT_EQ(isPicture(png), isKnown) << colourType << ", depth " << depth;
            found += isKnown ? 1 : 0;
        }
    EXPECT_EQ(found, 15);
}

TEST_F(PictureFile, APngWithAnUnknownMethodIsRefused) {
    for (const std::size_t place : {26, 27, 28}) {  // compression, filter, interlacing
        std::string wrong = png.bytes();
        wrong[place] = '\2';
        EXPECT_FALSE(isPicture(wrong)) << place;
    }
    png.isInterlaced = true;
    EXPECT_TRUE(isPicture(png));
}

TEST_F(PictureFile, AChunkThatIsLongerThanTheFileIsRefused) {
    for (const std::uint32_t length : {1000u, 0x7fffffffu, 0x80000000u, 0xffffffffu})
        EXPECT_FALSE(isPicture(png.bytes().substr(0, 33) + bigEndian(length) + "IDAT" +
                               png.bytes().substr(33)))
            << length;
}

TEST_F(PictureFile, APngWithoutRowsIsRefused) {
    EXPECT_FALSE(isPicture(png.bytes().substr(0, 33) + pngChunk("IEND", "")));
}

TEST_F(PictureFile, BothSidesAreAtMost32767) {
    png.rows = std::string(32768 * 5, '\0');
    jpeg.extra = jpegSegment(0xfe, "comment");
    for (const std::uint32_t side : {0u, 1u, 32767u, 32768u, 65535u}) {
        const bool isAllowed = side == 1 || side == 32767;
        png.width = jpeg.width = side;
        png.height = jpeg.height = 1;
        EXPECT_EQ(isPicture(png), isAllowed) << side;
        EXPECT_EQ(isPicture(jpeg), isAllowed) << side;
        std::swap(png.width, png.height);
        std::swap(jpeg.width, jpeg.height);
        EXPECT_EQ(isPicture(png), isAllowed) << side;
        EXPECT_EQ(isPicture(jpeg), isAllowed) << side;
    }
    png.width = 0x80000001;
    EXPECT_FALSE(isPicture(png));
}

TEST_F(PictureFile, APngHoldsAtLeastAByteForEach1032) {
    png.kind = kind(1, 0);                   // one bit per pixel
    png.rows = std::string(100 - 11, '\0');  // the stream is 11 bytes longer
    png.width = 32767;                       // 4097 bytes each
    png.height = 25;
    EXPECT_TRUE(isPicture(png));
    png.height = 26;
    EXPECT_FALSE(isPicture(png));
}

TEST_F(PictureFile, AJpegHoldsAtLeastABitForEachBlock) {
    const auto withBytes = [&](std::size_t count) {
        return jpeg.head() + std::string(count, '\0') + "\xff\xd9";
    };
    jpeg.width = 32767;  // 4096 blocks
    jpeg.height = 9;     // in two rows
    EXPECT_TRUE(isPicture(withBytes(1024)));
    EXPECT_FALSE(isPicture(withBytes(900)));
    // Two of these components have half as many samples in both directions.
    jpeg.components = "\3\1\x22" + std::string(1, '\0') + "\2\x11" + std::string(1, '\0') +
                      "\3\x11" + std::string(1, '\0');
    EXPECT_TRUE(isPicture(withBytes(1536)));
    EXPECT_FALSE(isPicture(withBytes(1400)));
    // The same in one direction only
    jpeg.components[2] = '\x21';
    EXPECT_TRUE(isPicture(withBytes(2048)));
    EXPECT_FALSE(isPicture(withBytes(1900)));
}

TEST_F(PictureFile, AJpegMayHaveOneOfThreeKindsOfFrames) {
    for (int frame = 0xc0; frame <= 0xcf; ++frame) {
        jpeg.frame = static_cast<std::uint8_t>(frame);
        EXPECT_EQ(isPicture(jpeg), frame <= 0xc2) << frame;
    }
}

TEST_F(PictureFile, AJpegHasOneFrame) {
    jpeg.extra = jpegSegment(0xc0, "\x8" + bigEndian(0x0008'0008) + jpeg.components);
    EXPECT_FALSE(isPicture(jpeg));
    jpeg.frame = 0xfe;
    EXPECT_TRUE(isPicture(jpeg)) << "the second frame is now a comment";
}

TEST_F(PictureFile, AFrameThatDecodersCannotReadIsRefused) {
    jpeg.depth = "\xc";
    EXPECT_FALSE(isPicture(jpeg)) << "twelve bits";
    jpeg.depth = "\x8";
    for (const char *factors : {"\x01", "\x10", "\x15", "\x51", "\xff"}) {
        jpeg.components = "\1\1" + std::string(factors) + std::string(1, '\0');
        EXPECT_FALSE(isPicture(jpeg)) << "factors";
    }
    std::string components;
    for (char count = 1; count <= 5; ++count) {
        components += std::string("\1\x11") + std::string(1, '\0');
        jpeg.components = count + components;
        EXPECT_EQ(isPicture(jpeg), count != 2 && count != 5) << int{count};
        jpeg.components += '\0';
        EXPECT_FALSE(isPicture(jpeg)) << "too long";
    }
}

TEST_F(PictureFile, AJpegNeedsAScanAfterItsFrame) {
    const std::string bytes = jpeg.bytes();
    const std::size_t scan = bytes.find("\xff\xda");
    EXPECT_FALSE(isPicture(bytes.substr(0, scan) + "\xff\xd9"));
    jpeg.extra = bytes.substr(scan, 10);
    EXPECT_FALSE(isPicture(jpeg)) << "a scan before the frame";
}

TEST_F(PictureFile, AJpegMayHaveAHundredScans) {
    const std::string bytes = jpeg.bytes();
    const std::string head = bytes.substr(0, bytes.find("\xff\xda"));
    const std::string scan = bytes.substr(head.size(), bytes.size() - head.size() - 2);
    std::string scans;
    for (int i = 0; i < 100; ++i)
        scans += scan;
    EXPECT_TRUE(isPicture(head + scans + "\xff\xd9"));
    EXPECT_FALSE(isPicture(head + scans + scan + "\xff\xd9"));
}

TEST_F(PictureFile, RestartsAndEscapesAreNoMarkers) {
    EXPECT_TRUE(isPicture(jpeg.head() + std::string("a\xff\0b\xff\xd0\xff\xd7\xff\xff\xd9", 11)));
    EXPECT_FALSE(isPicture(jpeg.head() + std::string("a\xff\0\xd9", 4)));
}

TEST_F(PictureFile, ASegmentThatIsLongerThanTheFileIsRefused) {
    jpeg.extra = "\xff\xfe\xff\xff";
    EXPECT_FALSE(isPicture(jpeg));
    jpeg.extra = std::string("\xff\xfe\0\1", 4);
    EXPECT_FALSE(isPicture(jpeg)) << "shorter than its own length";
    jpeg.extra = "\xff\xd8";
    EXPECT_FALSE(isPicture(jpeg)) << "a second start";
}

}  // namespace

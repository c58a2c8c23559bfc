#pragma once

#include <csetjmp>
#include <cstdint>
#include <cstdio>
#include <jpeglib.h>

/// Reads a JPEG file into rows of blue, green, red and 255. The orientation that cameras add is
/// ignored, and so are colour profiles. [any thread]
class CJpegReader {
public:
    /// @param file  not owned, positioned at its start.
    explicit CJpegReader(std::FILE *file) : m_file(file) {}
    CJpegReader(const CJpegReader &) = delete;
    CJpegReader &operator=(const CJpegReader &) = delete;
    ~CJpegReader() { jpeg_destroy_decompress(&m_jpeg); }

    // After one of these has returned false, only the destructor may be called.
    bool readHeader();
    /// Reads the next row, from the top.
    /// @param row  width * 4 bytes.
    bool readRow(std::uint8_t *row);
    bool readEnd();  ///< after the last row; false if data of any row was missing or damaged

    std::uint32_t getWidth() const { return m_jpeg.output_width; }
    std::uint32_t getHeight() const { return m_jpeg.output_height; }
    static int getPasses() { return 1; }

private:
    struct SErrors : jpeg_error_mgr {
        std::jmp_buf jump;
        bool isDataLost = false;
    };

    [[noreturn]] static void leave(j_common_ptr jpeg);
    static void noteWarning(j_common_ptr jpeg, int level);
    void mixInks(std::uint8_t *row) const;

    std::FILE *m_file;
    jpeg_decompress_struct m_jpeg{};
    SErrors m_errors{};
};

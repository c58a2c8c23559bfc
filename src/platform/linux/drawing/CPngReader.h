#pragma once

#include <cstdint>
#include <cstdio>
#include <png.h>

/// Reads a PNG file into rows of blue, green, red and alpha, one byte each, not premultiplied. The
/// colours are those of the file: corrections such as gamma are ignored. [any thread]
class CPngReader {
public:
    /// @param file  not owned, positioned at its start.
    explicit CPngReader(std::FILE *file);
    CPngReader(const CPngReader &) = delete;
    CPngReader &operator=(const CPngReader &) = delete;
    ~CPngReader() { png_destroy_read_struct(&m_png, &m_info, nullptr); }

    // After one of these has returned false, only the destructor may be called.
    bool readHeader();
    /// Reads the next row: all rows from the top, as many times as getPasses() says. In a later
    /// pass, the row must still have what the earlier ones have left there.
    /// @param row  width * 4 bytes.
    bool readRow(std::uint8_t *row);
    bool readEnd();  ///< after the last row

    std::uint32_t getWidth() const { return png_get_image_width(m_png, m_info); }
    std::uint32_t getHeight() const { return png_get_image_height(m_png, m_info); }
    int getPasses() const { return m_passes; }  ///< more than 1 if interlaced

private:
    std::FILE *m_file;
    png_structp m_png;
    png_infop m_info = nullptr;
    int m_passes = 0;
};

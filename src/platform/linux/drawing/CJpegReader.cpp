#include "platform/linux/drawing/CJpegReader.h"

#include <jerror.h>

// libjpeg must not return from an error, so leave() jumps to the last setjmp(). Each operation
// below calls setjmp() itself and has no local object, so the jump skips no destructor.

void CJpegReader::leave(j_common_ptr jpeg) {
    std::longjmp(static_cast<SErrors *>(jpeg->err)->jump, 1);
}

// libjpeg fills gaps with grey and goes on. It also warns of harmless oddities.
void CJpegReader::noteWarning(j_common_ptr jpeg, int level) {
    const int code = jpeg->err->msg_code;
    if (level < 0 && (code == JWRN_HIT_MARKER || code == JWRN_JPEG_EOF ||
                      code == JWRN_HUFF_BAD_CODE || code == JWRN_MUST_RESYNC))
        static_cast<SErrors *>(jpeg->err)->isDataLost = true;
}

bool CJpegReader::readHeader() {
    m_jpeg.err = jpeg_std_error(&m_errors);
    m_errors.error_exit = leave;
    m_errors.emit_message = noteWarning;
    if (setjmp(m_errors.jump) != 0)
        return false;
    jpeg_create_decompress(&m_jpeg);
    jpeg_stdio_src(&m_jpeg, m_file);
    jpeg_read_header(&m_jpeg, TRUE);
    if (m_jpeg.out_color_space != JCS_CMYK)
        m_jpeg.out_color_space = JCS_EXT_BGRA;
    return jpeg_start_decompress(&m_jpeg) != FALSE;
}

bool CJpegReader::readRow(std::uint8_t *row) {
    if (setjmp(m_errors.jump) != 0)
        return false;
    jpeg_read_scanlines(&m_jpeg, &row, 1);
    if (m_jpeg.out_color_space == JCS_CMYK)
        mixInks(row);
    return true;
}

bool CJpegReader::readEnd() {
    if (setjmp(m_errors.jump) != 0)
        return false;
    return jpeg_finish_decompress(&m_jpeg) != FALSE && !m_errors.isDataLost;
}

// Cyan, magenta, yellow and black to blue, green, red and 255.
void CJpegReader::mixInks(std::uint8_t *row) const {
    // Files with an Adobe marker store 255 for no ink, others 0.
    const unsigned inverted = m_jpeg.saw_Adobe_marker != FALSE ? 0 : 255;
    for (std::uint8_t *pixel = row; pixel != row + std::size_t{getWidth()} * 4; pixel += 4) {
        const unsigned black = pixel[3] ^ inverted;
        const auto mixed = [&](std::uint8_t ink) {
            return static_cast<std::uint8_t>(((ink ^ inverted) * black + 127) / 255);
        };
        const std::uint8_t red = mixed(pixel[0]), green = mixed(pixel[1]), blue = mixed(pixel[2]);
        pixel[0] = blue;
        pixel[1] = green;
        pixel[2] = red;
        pixel[3] = 255;
    }
}

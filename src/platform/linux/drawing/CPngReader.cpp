#include "platform/linux/drawing/CPngReader.h"

// libpng reports an error by longjmp() to the last setjmp(). Each operation below calls setjmp()
// itself and has no local object, so the jump skips no destructor.

namespace {

[[noreturn]] void leave(png_structp png, png_const_charp) {
    png_longjmp(png, 1);
}

void ignore(png_structp, png_const_charp) {}

}  // namespace

CPngReader::CPngReader(std::FILE *file)
    : m_file(file), m_png(png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, leave, ignore)) {
    if (m_png != nullptr)
        m_info = png_create_info_struct(m_png);
}

bool CPngReader::readHeader() {
    if (m_info == nullptr || setjmp(png_jmpbuf(m_png)) != 0)
        return false;
    png_init_io(m_png, m_file);
    png_read_info(m_png, m_info);
    png_set_expand(
        m_png);  // a palette to colours, one bit to a byte, a transparent colour to alpha
    png_set_strip_16(m_png);  // 16 bits to the upper eight, as GDI+ does
    png_set_gray_to_rgb(m_png);
    png_set_bgr(m_png);
    png_set_add_alpha(m_png, 255, PNG_FILLER_AFTER);  // if there is none yet
    m_passes = png_set_interlace_handling(m_png);
    png_read_update_info(m_png, m_info);
    return true;
}

bool CPngReader::readRow(std::uint8_t *row) {
    if (setjmp(png_jmpbuf(m_png)) != 0)
        return false;
    png_read_row(m_png, row, nullptr);
    return true;
}

bool CPngReader::readEnd() {
    if (setjmp(png_jmpbuf(m_png)) != 0)
        return false;
    png_read_end(m_png, nullptr);
    return true;
}

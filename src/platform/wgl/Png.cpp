#include <png.h>

#include <string>

#include "platform/Error.h"
#include "platform/wgl/Wgl.h"
#include "platform/win/Files.h"

namespace zv {

namespace {

struct PngOut {
    std::string bytes;
    std::string reason;
};

void Append(png_structp png, png_bytep data, png_size_t size) {
    auto& out = *static_cast<PngOut*>(png_get_io_ptr(png));
    out.bytes.append(reinterpret_cast<const char*>(data), size);
}

void Ignore(png_structp) {}

void Fail(png_structp png, png_const_charp reason) {
    static_cast<PngOut*>(png_get_error_ptr(png))->reason = reason;
    png_longjmp(png, 1);
}

void Warn(png_structp, png_const_charp) {}

/// The frame that libpng jumps back to: nothing in it has a destructor. False with the reason set.
bool Encode(PngOut& out, const std::uint8_t* bgra, unsigned width, unsigned height) {
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, &out, Fail, Warn);
    png_infop info = png ? png_create_info_struct(png) : nullptr;
    if (!info || setjmp(png_jmpbuf(png))) {
        png_destroy_write_struct(&png, &info);
        return false;
    }
    png_set_write_fn(png, &out, Append, Ignore);
    png_set_IHDR(png, info, width, height, 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    png_set_filler(png, 0, PNG_FILLER_AFTER); // the alpha byte is left out
    png_set_bgr(png);
    for (unsigned y = 0; y < height; ++y)
        png_write_row(png, const_cast<png_bytep>(bgra + std::size_t{y} * width * 4));
    png_write_end(png, nullptr);
    png_destroy_write_struct(&png, &info);
    return true;
}

} // namespace

void WritePng(const std::string& path, std::span<const std::uint8_t> bgra, int width, int height) {
    const auto pixels = static_cast<std::size_t>(width > 0 ? width : 0) *
                        static_cast<std::size_t>(height > 0 ? height : 0);
    if (pixels == 0 || bgra.size() != pixels * 4)
        throw DataError(path, "", "the picture has no pixels or not as many as its size tells");
    PngOut out;
    if (!Encode(out, bgra.data(), static_cast<unsigned>(width), static_cast<unsigned>(height)))
        throw DataError(path, "", "PNG: " + (out.reason.empty() ? "no memory" : out.reason));
    WriteFileAtomically(path, out.bytes);
}

} // namespace zv

#include "tvok/host/desktop/pixels/Png.h"

#include <bit>
#include <cerrno>
#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <memory>

#include <png.h>

#include "tvok/records/Error.h"

namespace tvok::soft {

namespace {

constexpr std::uint64_t pixelLimit = 64'000'000;

[[noreturn]] void Fail(const std::string& file, const std::string& why) {
    throw FileError(file + ": " + why);
}

/// libpng's one-call reader; frees what it holds in every case.
struct Reader {
    Reader() {
        std::memset(&image, 0, sizeof image);
        image.version = PNG_IMAGE_VERSION;
    }
    ~Reader() { png_image_free(&image); }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    png_image image;
};

struct Writer {
    ~Writer() { png_destroy_write_struct(&png, &info); }

    png_structp png = nullptr;
    png_infop info = nullptr;
};

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

void KeepReason(png_structp png, png_const_charp reason) {
    *static_cast<std::string*>(png_get_error_ptr(png)) = reason;
    png_longjmp(png, 1);
}

void IgnoreWarning(png_structp /*png*/, png_const_charp /*text*/) {}

void ToRgb(const Pixel* pixels, std::vector<std::uint8_t>& row) {
    for (std::size_t i = 0; i < row.size() / 3; ++i) {
        row[3 * i] = static_cast<std::uint8_t>(pixels[i] >> 16);
        row[3 * i + 1] = static_cast<std::uint8_t>(pixels[i] >> 8);
        row[3 * i + 2] = static_cast<std::uint8_t>(pixels[i]);
    }
}

/// False when libpng gave up. libpng leaves by `longjmp`, so nothing in here has a destructor.
bool WriteRows(const Writer& writer, std::FILE* file, const Surface& surface,
               std::vector<std::uint8_t>& row) {
    if (setjmp(png_jmpbuf(writer.png))) return false; // NOLINT(cert-err52-cpp): libpng's way
    png_init_io(writer.png, file);
    png_set_IHDR(writer.png, writer.info, static_cast<png_uint_32>(surface.Width()),
                 static_cast<png_uint_32>(surface.Height()), 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_compression_level(writer.png, 1);
    png_set_filter(writer.png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_write_info(writer.png, writer.info);
    for (std::int32_t y = 0; y < surface.Height(); ++y) {
        ToRgb(surface.Row(y), row);
        png_write_row(writer.png, row.data());
    }
    png_write_end(writer.png, writer.info);
    return true;
}

/// Empty when all went well, else the reason.
std::string TryWrite(const std::string& file, const Surface& surface) {
    File stream(std::fopen(file.c_str(), "wb"));
    if (!stream) return std::strerror(errno);
    std::string reason;
    Writer writer;
    writer.png = png_create_write_struct(PNG_LIBPNG_VER_STRING, &reason, KeepReason, IgnoreWarning);
    if (writer.png) writer.info = png_create_info_struct(writer.png);
    if (!writer.info) return "out of memory";
    std::vector<std::uint8_t> row(3 * static_cast<std::size_t>(surface.Width()));
    const bool written = WriteRows(writer, stream.get(), surface, row);
    const bool closed = std::fclose(stream.release()) == 0;
    if (written && !closed) reason = std::strerror(errno);
    if (!written || !closed) std::remove(file.c_str());
    return reason;
}

} // namespace

Image ReadPng(const std::string& file) {
    Reader reader;
    if (!png_image_begin_read_from_file(&reader.image, file.c_str())) Fail(file, reader.image.message);
    if (std::uint64_t{reader.image.width} * reader.image.height > pixelLimit) Fail(file, "too large");
    reader.image.format = std::endian::native == std::endian::little ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;
    Image image{
        static_cast<std::int32_t>(reader.image.width), static_cast<std::int32_t>(reader.image.height), {}};
    image.pixels.resize(std::size_t{reader.image.width} * reader.image.height);
    if (!png_image_finish_read(&reader.image, nullptr, image.pixels.data(), 0, nullptr))
        Fail(file, reader.image.message);
    return image;
}

void WritePng(const std::string& file, const Surface& surface) {
    if (surface.Width() == 0 || surface.Height() == 0) Fail(file, "there are no pixels to write");
    const std::string reason = TryWrite(file, surface);
    if (!reason.empty()) Fail(file, reason);
}

} // namespace tvok::soft

/// Form files: what a form holds, as TOML text.
///
///     [form]
///     caption = "Stock"
///     width = 480
///     height = 360
///
///     [[control]]
///     type = "qRoster"
///     name = "list1"
///     left = 8
///     top = 8
///     width = 464
///     height = 344
///     [control.settings]
///     xn = 3
///     SelectedColor = 0x8000000D
///
/// Settings are the keys that the control itself writes and reads; one that has its default is left out.
/// Colours and other large numbers are written in hexadecimal, and whole numbers up to 0xFFFFFFFF are read as
/// 32 bits. A font is a table with the keys Name, Size, Bold, Italic, Underline and Strikethrough.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tvok/host/MemoryBag.h"
#include "tvok/host/desktop/Form.h"

namespace tvok {

/// A control of a form file.
struct FormFileControl {
    std::string type;         ///< As registered.
    std::string name;         ///< As `Form::Find` takes it.
    Placement place;          ///< In pixels of the client area.
    host::MemoryBag settings; ///< What the control reads.
    friend bool operator==(const FormFileControl&, const FormFileControl&) = default;
};

/// All that a form file holds.
struct FormFile {
    std::string caption;
    std::int32_t width = 640; ///< Client size in pixels, 1 to 8192.
    std::int32_t height = 480;
    std::vector<FormFileControl> controls; ///< In the order of Tab.
    friend bool operator==(const FormFile&, const FormFile&) = default;
};

/// Reads and checks a whole file: types that are known, names that are there once, keys that the control
/// reads or writes, values of their type and range, and settings that the control takes. Throws `FileError`
/// with `fileName`, the line and the key. Makes controls of the types named, for which a platform has to be
/// set.
FormFile ParseFormFile(std::string_view text, const std::string& fileName);

/// Bytes that are not UTF-8 are written as U+FFFD.
std::string FormFileText(const FormFile& file);

FormFile LoadFormFile(const std::string& file); ///< Throws `FileError`, also where it cannot be read.
/// Puts the file in its place when it is wholly written. Throws `FileError`.
void SaveFormFile(const FormFile& content, const std::string& file);

} // namespace tvok

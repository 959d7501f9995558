#include "tvok/host/desktop/shell/FormFile.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "tvok/host/desktop/ControlTypes.h"
#include "tvok/records/Error.h"

namespace tvok {

namespace {

std::string ReadAll(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw FileError(file + ": cannot be read: " + std::strerror(errno));
    std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (stream.bad()) throw FileError(file + ": cannot be read to its end");
    return text;
}

/// Writes beside the file and puts it in its place when it is whole.
void WriteAll(const std::string& file, const std::string& text) {
    const std::string part = file + ".part";
    std::ofstream stream(part, std::ios::binary);
    if (!stream) throw FileError(file + ": cannot be written: " + std::strerror(errno));
    stream << text;
    stream.close();
    std::error_code error;
    if (stream) std::filesystem::rename(part, file, error);
    if (stream && !error) return;
    std::filesystem::remove(part, error);
    throw FileError(file + ": cannot be written");
}

[[noreturn]] void ThrowUnknownType(const std::string& file, const std::string& name) {
    throw FileError(file + ": the type of control \"" + name + "\" is not registered");
}

} // namespace

void Form::Save(const std::string& file) const {
    soft::FormFile content{Caption(), Width(), Height(), {}};
    for (const std::string& name : Names()) {
        host::Control& control = *Find(name);
        soft::FormFileControl entry{ControlTypeName(control), name, PlacementOf(control), {}};
        if (entry.type.empty()) ThrowUnknownType(file, name);
        control.WriteProperties(entry.settings);
        content.controls.push_back(std::move(entry));
    }
    WriteAll(file, soft::FormFileText(content));
}

void Form::Load(const std::string& file) {
    if (!Names().empty()) throw FileError(file + ": the form that is to be loaded is not empty");
    soft::FormFile content = soft::ParseFormFile(ReadAll(file), file);
    try {
        for (soft::FormFileControl& control : content.controls)
            Adopt(control.name, control.place, MakeControl(control.type), &control.settings);
    } catch (...) {
        for (const std::string& name : Names()) Remove(*Find(name));
        throw;
    }
    Caption(content.caption);
    Size(content.width, content.height);
}

} // namespace tvok

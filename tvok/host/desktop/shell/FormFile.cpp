#include "tvok/host/desktop/FormFile.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "tvok/host/desktop/ControlTypes.h"
#include "tvok/host/desktop/windows/FormWindow.h"
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

FormFileControl Form::ContentOf(const host::Control& control) const {
    const auto& entry = window_->EntryOf(control);
    FormFileControl content{ControlTypeName(control), entry.name, PlacementOf(control), {}};
    entry.control->WriteProperties(content.settings);
    return content;
}

FormFile Form::Content() const {
    FormFile content{Caption(), Width(), Height(), {}};
    for (const std::string& name : Names()) content.controls.push_back(ContentOf(*Find(name)));
    return content;
}

host::Control& Form::Add(const FormFileControl& content) {
    auto control = MakeControl(content.type);
    if (!control) throw Error("there is no control type \"" + content.type + "\"");
    host::Control& result = *control;
    host::MemoryBag settings = content.settings;
    Adopt(content.name, content.place, std::move(control), &settings);
    return result;
}

void Form::Content(const FormFile& content) {
    if (!Names().empty()) throw Error("the form that is to be filled is not empty");
    try {
        for (const FormFileControl& control : content.controls) Add(control);
    } catch (...) {
        for (const std::string& name : Names()) Remove(*Find(name));
        throw;
    }
    Caption(content.caption);
    Size(content.width, content.height);
}

void Form::Save(const std::string& file) const {
    const FormFile content = Content();
    for (const FormFileControl& control : content.controls)
        if (control.type.empty()) ThrowUnknownType(file, control.name);
    SaveFormFile(content, file);
}

void Form::Load(const std::string& file) {
    if (!Names().empty()) throw FileError(file + ": the form that is to be loaded is not empty");
    Content(LoadFormFile(file));
}

void SaveFormFile(const FormFile& content, const std::string& file) {
    WriteAll(file, FormFileText(content));
}

FormFile LoadFormFile(const std::string& file) {
    return ParseFormFile(ReadAll(file), file);
}

} // namespace tvok

/// The services of the software desktop.
#pragma once

#include <memory>
#include <string>

#include "tvok/host/Services.h"

namespace tvok::soft {

class World;

class SoftServices final : public host::Services, private host::Screen {
public:
    SoftServices(World& world, const std::string& language);
    ~SoftServices() override;

    std::unique_ptr<host::MessageHook> CreateMessageHook() override;
    std::unique_ptr<host::WindowHook> CreateWindowHook() override;
    const host::Screen& Screen() const override { return *this; }
    const host::StringResources& StringResources() const override { return *strings_; }
    host::TemporaryFiles& TemporaryFiles() override { return *files_; }
    host::ColorPicker& ColorPicker() override { return *colors_; }
    const host::Language& Language() const override { return *language_; }
    std::int32_t ThreadID() const override;

private:
    float TwipsPerPixelX() const override;
    float TwipsPerPixelY() const override;
    float Width() const override;
    float Height() const override;

    World& world_;
    std::unique_ptr<host::StringResources> strings_;
    std::unique_ptr<host::TemporaryFiles> files_;
    std::unique_ptr<host::ColorPicker> colors_;
    std::unique_ptr<host::Language> language_;
};

} // namespace tvok::soft

#include "tvok/host/desktop/windows/SoftServices.h"

#include "tvok/host/desktop/shell/ColorDialog.h"
#include "tvok/host/desktop/shell/Language.h"
#include "tvok/host/desktop/shell/StringTable.h"
#include "tvok/host/desktop/shell/TemporaryFiles.h"
#include "tvok/host/desktop/windows/Geometry.h"
#include "tvok/host/desktop/windows/SoftHooks.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::soft {

SoftServices::SoftServices(World& world, const std::string& language)
    : world_(world), strings_(MakeStringResources(language)), files_(MakeTemporaryFiles()),
      colors_(MakeColorPicker(world.desktop)), language_(MakeLanguage(language)) {}

SoftServices::~SoftServices() = default;

std::unique_ptr<host::MessageHook> SoftServices::CreateMessageHook() {
    return std::make_unique<SoftMessageHook>(world_);
}

std::unique_ptr<host::WindowHook> SoftServices::CreateWindowHook() {
    return std::make_unique<SoftWindowHook>(world_);
}

std::int32_t SoftServices::ThreadID() const {
    return kThreadID;
}

float SoftServices::TwipsPerPixelX() const {
    return world_.TwipsPerPixel();
}
float SoftServices::TwipsPerPixelY() const {
    return world_.TwipsPerPixel();
}
float SoftServices::Width() const {
    return static_cast<float>(WidthOf(world_.display->Screen())) * world_.TwipsPerPixel();
}
float SoftServices::Height() const {
    return static_cast<float>(HeightOf(world_.display->Screen())) * world_.TwipsPerPixel();
}

} // namespace tvok::soft

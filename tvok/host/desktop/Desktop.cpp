#include "tvok/host/desktop/Desktop.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "tvok/host/desktop/Form.h"
#include "tvok/host/desktop/pixels/Png.h"
#include "tvok/host/desktop/shell/Clipboard.h"
#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"
#include "tvok/records/Error.h"
#include "tvok/records/Variant.h"

namespace tvok {

namespace {

using Kind = DesktopOptions::Display;

constexpr float cLeastScale = 0.5F, cMostScale = 4;

std::unique_ptr<soft::Display> OpenDisplay(const DesktopOptions& options) {
    const float scale = std::clamp(options.scale, cLeastScale, cMostScale);
    std::string why = "this build has no window display";
    if (options.display != Kind::Headless) {
#ifdef TVOK_SDL
        if (auto display = soft::MakeSdlDisplay(scale, why)) return display;
#endif
        if (options.display == Kind::Window) throw ResourceError("no window can be shown: " + why);
        std::fprintf(stderr, "tvok: running headless: %s\n", why.c_str());
    }
    return soft::MakeHeadlessDisplay(options.screenWidth, options.screenHeight, scale);
}

/// Draws a surface onto another with its left top at (x, y).
void Copy(const soft::Surface& from, soft::Surface& to, std::int32_t x, std::int32_t y) {
    const tvok_Rect part = soft::Intersection(soft::BoundsOf(to), soft::Moved(soft::BoundsOf(from), x, y));
    for (std::int32_t row = part.Top; row < part.bottom; ++row)
        std::copy_n(from.Row(row - y) + (part.Left - x), soft::WidthOf(part), to.Row(row) + part.Left);
}

} // namespace

Desktop::Desktop() : Desktop(DesktopOptions{}) {}

Desktop::Desktop(const DesktopOptions& options) : Desktop(options, OpenDisplay(options)) {}

Desktop::Desktop(const DesktopOptions& options, std::unique_ptr<soft::Display> display)
    : world_(std::make_unique<soft::World>(*this, options, std::move(display))),
      platformBefore_(host::SetPlatform(&world_->platform)),
      servicesBefore_(host::SetServices(&world_->services)) {}

Desktop::~Desktop() {
    world_.reset();
    host::SetPlatform(platformBefore_);
    host::SetServices(servicesBefore_);
}

Form& Desktop::AddForm(std::string_view caption, std::int32_t width, std::int32_t height) {
    auto window = std::make_unique<soft::FormWindow>(*world_, caption, width, height);
    return world_->AddForm(std::unique_ptr<Form>(new Form(std::move(window))));
}

const std::vector<std::unique_ptr<Form>>& Desktop::Forms() const {
    return world_->forms;
}

int Desktop::Run() {
    using std::chrono::milliseconds;
    if (IsHeadless()) {
        while (ProcessEvents(milliseconds{0}) && world_->loop.HasQueued()) {
        }
        return world_->ExitCode();
    }
    constexpr milliseconds kLong{60000};
    while (ProcessEvents(kLong)) {
    }
    return world_->ExitCode();
}

void Desktop::Quit(int code) {
    world_->Quit(code);
}

bool Desktop::ProcessEvents(std::chrono::milliseconds timeout) {
    return world_->ProcessEvents(timeout);
}

void Desktop::Post(std::function<void()> task) {
    if (!task) return;
    world_->loop.Post(std::move(task));
    world_->display->Wake();
}

bool Desktop::IsHeadless() const {
    return world_->display->IsHeadless();
}

const Theme& Desktop::CurrentTheme() const {
    return world_->theme;
}

void Desktop::SetTheme(const Theme& theme) {
    world_->SetTheme(theme);
}

float Desktop::Scale() const {
    return world_->display->Scale();
}

void Desktop::Scale(float scale) {
    if (!(scale >= cLeastScale && scale <= cMostScale)) // which also no NaN is
        throw Error("the scale has to be from 0.5 to 4, and is " +
                    Variant(static_cast<double>(scale)).AsText());
    world_->Scale(scale);
}

std::int32_t Desktop::LoadImageList(const std::vector<std::string>& pngFiles, std::int32_t size) {
    return world_->AddImages(soft::ImageList::FromPngs(pngFiles, size));
}

std::int32_t Desktop::AddImageList(const std::vector<std::uint32_t>& pixels, std::int32_t size) {
    return world_->AddImages(soft::ImageList(pixels, size));
}

void Desktop::SaveScreen(const std::string& pngFile) {
    SaveScreen(pngFile, world_->display->Screen());
}

void Desktop::SaveScreen(const std::string& pngFile, const tvok_Rect& part) {
    world_->Present();
    soft::Surface picture(soft::WidthOf(part), soft::HeightOf(part));
    soft::Fill(picture, soft::BoundsOf(picture), soft::PixelOf(world_->theme.colors[host::COLOR_BACKGROUND]));
    const auto& tops = world_->windows.tops();
    for (auto top = tops.rbegin(); top != tops.rend(); ++top) {
        const tvok_Rect& place = (*top)->rect();
        if ((*top)->shown())
            Copy((*top)->top()->surface, picture, place.Left - part.Left, place.Top - part.Top);
    }
    soft::WritePng(pngFile, picture);
}

void Desktop::SaveForm(const Form& form, const std::string& pngFile) {
    world_->Present();
    const soft::TopLevel* top = form.window().window().top();
    if (!top) throw ObjectError("the form is closed");
    soft::WritePng(pngFile, top->surface);
}

std::string Desktop::ClipboardText() const {
    return soft::clipboard().Text();
}

void Desktop::ClipboardText(std::string_view text) {
    soft::clipboard().Text(text);
}

std::size_t Desktop::ClipboardCapacity() const {
    return soft::clipboard().Capacity();
}

desktop::Input& Desktop::Input() {
    return world_->input;
}

void Desktop::InterposePlatform(host::Platform* platform) {
    host::SetPlatform(platform ? platform : &world_->platform);
}

host::Platform& Desktop::OwnPlatform() {
    return world_->platform;
}

} // namespace tvok

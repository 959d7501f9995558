/// The display that `Embedding` is for the desktop: it keeps what a program shows, and tells it of windows.
#pragma once

#include <atomic>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "tvok/host/desktop/Embedding.h"
#include "tvok/host/desktop/displays/Display.h"

namespace tvok::soft {

class World;

class EmbeddedDisplay final : public Display {
public:
    EmbeddedDisplay(Embedding::Layout layout, std::int32_t width, std::int32_t height, EmbeddingCalls calls);

    bool IsHeadless() const override { return !calls_.wait; }
    bool DecoratesWindows() const override { return layout_ == Embedding::Layout::Windows; }
    tvok_Rect Screen() const override { return screen_; }
    float Scale() const override { return memory_->Scale(); }
    void Scale(float scale, DisplayEvents& events) override { memory_->Scale(scale, events); }
    void Open(const DisplayWindow& window) override;
    void Change(const DisplayWindow& window) override;
    void Raise(host::Handle id) override;
    void Close(host::Handle id) override;
    void Present(host::Handle id, const Surface& surface, const Region& damage) override;
    void Wait(std::chrono::milliseconds timeout, DisplayEvents& events) override;
    void Wake() override;
    void Pointer(std::int16_t mousePointer) override;
    void Capture(host::Handle) override {} // outer windows have it while a button is held
    std::string ClipboardText() override;
    void ClipboardText(std::string_view utf8) override;

    // For `Embedding`.

    void Resize(std::int32_t width, std::int32_t height); ///< The screen.
    bool HasNotices() const { return !notices_.empty(); }
    void TellNotices();
    const EmbeddedWindow* Find(host::Handle id) const; ///< As told to the program; null where there is none.
    void SetRect(host::Handle id, const tvok_Rect& rect); ///< The outer window was placed by the user.
    bool HasPopup() const;
    std::vector<tvok_Rect> TakeDamage(host::Handle id, const World& world);
    EmbeddedPixels Pixels(host::Handle id) const;

private:
    /// The pixels of an outer window, and what of them is out of date.
    struct Picture {
        std::vector<Pixel> pixels;
        std::int32_t width = 0;
        std::int32_t height = 0;
        Region damage;

        void Resize(std::int32_t newWidth, std::int32_t newHeight);
        std::vector<tvok_Rect> TakeDamage(); ///< What is to be copied now.
        void Fill(Pixel color, const tvok_Rect& part);
        void Copy(const Surface& from, host::Point place, const tvok_Rect& part);
    };
    struct Entry {
        EmbeddedWindow window;
        Picture picture; ///< Only in the layout `Windows`.
    };

    bool IsOneSurface() const { return layout_ == Embedding::Layout::OneSurface; }
    bool HasOuterClipboard() const { return calls_.readClipboard && calls_.writeClipboard; }
    void Damage(const EmbeddedWindow& window);
    std::vector<tvok_Rect> TakeSurfaceDamage(host::Handle id, const World& world);
    std::vector<tvok_Rect> TakeWindowDamage(host::Handle id, const World& world);
    void DamageReordered(std::vector<host::Handle> order);
    void Notice(std::function<void()> call);

    Embedding::Layout layout_;
    tvok_Rect screen_;
    EmbeddingCalls calls_;
    std::unique_ptr<Display>
        memory_; ///< Waits, and keeps a clipboard and the scale, for a program that does not.
    std::map<host::Handle, Entry> entries_;
    Picture surface_;                 ///< Only in the layout `OneSurface`.
    std::vector<host::Handle> order_; ///< Of the surface's windows when it was drawn last, from the back.
    std::deque<std::function<void()>> notices_;
    std::atomic<bool> woken_ = false; ///< The program knows, and has taken no turn since.
};

} // namespace tvok::soft

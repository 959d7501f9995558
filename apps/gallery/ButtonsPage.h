/// Page "buttons": `xbutton` strips, one of them with a setting text that can be edited.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "apps/gallery/Hands.h"
#include "apps/gallery/Page.h"
#include "apps/gallery/drawing.h"

namespace gallery {

/// What is typed into the text field is the setting text of the strip beside it; another strip makes it
/// higher and lower. Below stands one strip in three heights. Every event of every strip goes to a list.
class ButtonsPage : public Page {
public:
    ButtonsPage(tvok::Desktop& desktop, tvok::Form& form);
    void Layout(const tvok::tvok_Rect& area) override;
    void Paint(tvok::host::Handle hDC) override;
    std::vector<Scene> Scenes() override;

    tvok::xbutton& strip() { return strip_; }
    tvok::xbutton& sizer() { return sizer_; }
    tvok::TextBox& text() { return text_; }
    tvok::qRoster& log() { return log_; } ///< The newest event first.

private:
    struct Places;

    void SetUp(tvok::xbutton& strip, const char* name, std::int32_t icons);
    void Tell(const std::string& line);
    void Resize(const std::string& key);

    // For the scenes.
    tvok::host::Point MiddleOf(const tvok::xbutton& strip, std::int32_t button) const;
    void Click(const tvok::xbutton& strip, std::int32_t button);
    void Hold(const tvok::xbutton& strip, std::int32_t button);

    tvok::Desktop& desktop_;
    tvok::Form& form_;
    Hands hands_;
    Fonts fonts_;
    tvok::tvok_Rect area_;
    std::int32_t side_ = 32; ///< Height of the edited strip.
    tvok::TextBox& text_;
    tvok::xbutton& strip_;
    tvok::xbutton& sizer_;
    std::array<tvok::xbutton*, 3> sizes_{};
    tvok::qRoster& log_;
};

} // namespace gallery

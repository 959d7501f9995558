/// Page "colors": the colours of a list, each chosen with a `ucColorSelector`.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "apps/gallery/Page.h"
#include "apps/gallery/drawing.h"
#include "apps/gallery/packages.h"

namespace gallery {

/// A selector has no events, so the page looks at its colours whenever it is turned, and the list follows:
/// also while a popup previews, and back when it is cancelled.
class ColorsPage : public Page {
public:
    enum Use : std::size_t { Text, Background, GridLines, SelectedRow, Band };
    static constexpr std::size_t UseCount = 5;

    ColorsPage(tvok::Desktop& desktop, tvok::Form& form); ///< Of what this machine has.
    ColorsPage(tvok::Desktop& desktop, tvok::Form& form, const Collection& collection);
    void Layout(const tvok::tvok_Rect& area) override;
    void Paint(tvok::host::Handle hDC) override;
    void ThemeChanged() override;
    bool IsLive() const override { return true; }
    void Turn(std::chrono::milliseconds) override { Follow(); }
    std::vector<Scene> Scenes() override;

    tvok::ucColorSelector& selector(Use use) { return *fields_[use].selector; }
    tvok::qRoster& list() { return list_; }
    /// Gives the list each colour that is another one than at the last look.
    void Follow();
    /// The list's colours as a program would write them, one line each.
    std::string Code(Use use) const;

private:
    struct Field {
        tvok::ucColorSelector* selector = nullptr;
        tvok::OLE_COLOR applied = 0;
    };

    void Fill(const Collection& collection);
    void Apply(Use use, tvok::OLE_COLOR color);
    void ColorItems();
    tvok::Placement PlaceOf(std::size_t use) const;
    tvok::tvok_Rect CodeBox() const;

    // For the scenes.
    tvok::host::Point OnScreen(Use use, std::int32_t x, std::int32_t y);
    void Press(Use use, std::int32_t button); // from the left, 0 first; and holds it
    void DragTo(Use use, std::int32_t x, std::int32_t y);
    void LetGo();
    void Key(std::int32_t key);
    void Process();

    tvok::Desktop& desktop_;
    tvok::Form& form_;
    Fonts fonts_;
    tvok::tvok_Rect area_;
    std::array<Field, UseCount> fields_;
    tvok::qRoster& list_;
};

} // namespace gallery

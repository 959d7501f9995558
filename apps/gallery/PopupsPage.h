/// Page "popups": everything that `xPopup` drops out of a form, opened by the buttons of `xbutton` strips.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "apps/gallery/Hands.h"
#include "apps/gallery/Page.h"
#include "apps/gallery/SwitchPanel.h"
#include "apps/gallery/drawing.h"

namespace gallery {

/// A popup opens on the press, so a user drags from the button into it and lets go. Its field follows each
/// `Change`, and takes its old value back when the popup is cancelled. Every event goes to a list.
class PopupsPage : public Page {
public:
    enum Kind : std::size_t { Color, Number, Stored, Virtual };
    static constexpr std::size_t KindCount = 4;
    static constexpr std::int32_t Entries = 1'000'000; ///< Of the virtual list, in the order of their texts.

    PopupsPage(tvok::Desktop& desktop, tvok::Form& form);
    void Layout(const tvok::tvok_Rect& area) override;
    void Paint(tvok::host::Handle hDC) override;
    std::vector<Scene> Scenes() override;

    tvok::xPopup& popup(Kind kind) { return *fields_[kind].popup; }
    tvok::xbutton& strip(Kind kind) { return *fields_[kind].strip; }
    const std::string& Text(Kind kind) const { return fields_[kind].value.text; } ///< What the field shows.
    tvok::OLE_COLOR ChosenColor() const { return fields_[Color].value.IconBackColor; }
    tvok::qRoster& log() { return log_; } ///< The newest event first.
    SwitchPanel& switches() { return switches_; }

    static std::string EntryText(std::int32_t index);
    static std::int32_t FirstEntry(char letter); ///< With this capital letter; 0 where there is none.

private:
    struct Field {
        const char* name = nullptr;
        tvok::xbutton* strip = nullptr;
        tvok::xPopup* popup = nullptr;
        tvok::Placement place; // of the box; its strip is below or at its right
        tvok::qrosterdata value;
        tvok::qrosterdata before; // what a cancelled popup puts back
        std::int32_t indexBefore = 0;
    };

    void AddField(tvok::Form& form, Kind kind, const char* name, const std::string& buttons);
    void Hear(Field& field);
    void FillStored(tvok::xPopup& popup);
    void SetUpVirtual(tvok::xPopup& popup);
    void SetUpSwitches();
    void Open(Kind kind, const std::string& key);
    void FillColors(const std::string& key);
    void ListenToLetters();
    void TakeBack(Field& field);
    void Show(Field& field, const tvok::qrosterdata& item);
    void Tell(const std::string& line, Icon icon);

    static tvok::tvok_Rect BoxOf(const Field& field);
    void PaintField(tvok::host::Handle hDC, const Field& field);
    void PaintSwatch(tvok::host::Handle hDC, const Field& field);

    // For the scenes.
    void Press(Kind kind, std::int32_t button); // and holds it
    void DragTo(std::int32_t x, std::int32_t y);

    tvok::Desktop& desktop_;
    tvok::Form& form_;
    Hands hands_;
    Fonts fonts_;
    tvok::tvok_Rect area_;
    std::int32_t icons_;
    std::array<Field, KindCount> fields_;
    tvok::qRoster& log_;
    SwitchPanel switches_;
    std::shared_ptr<tvok::host::WindowHook> letters_;
    bool open_ = false;
    bool hotTrack_ = true;
    bool atPointer_ = false;
};

} // namespace gallery

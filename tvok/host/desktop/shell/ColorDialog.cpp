#include "tvok/host/desktop/shell/ColorDialog.h"

#include <algorithm>
#include <array>
#include <string>

#include "tvok/engine/dgi.h"
#include "tvok/host/desktop/Desktop.h"
#include "tvok/host/desktop/Form.h"
#include "tvok/host/desktop/TextBox.h"
#include "tvok/host/desktop/shell/ColorSpace.h"
#include "tvok/host/desktop/shell/DialogControls.h"
#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"
#include "tvok/records/Error.h"
#include "tvok/records/numeric.h"

namespace tvok::soft {

namespace {

using namespace host;

constexpr std::int32_t DialogWidth = 460;
constexpr std::int32_t DialogHeight = 252;
constexpr std::int32_t SwatchColumns = 8;
constexpr OLE_COLOR NoColor = -1;

struct Label {
    tvok_Rect place;
    std::string_view text;
};

constexpr std::array<Label, 6> Labels{{{{12, 8, 200, 24}, "Basic colors"},
                                       {{220, 8, 420, 24}, "Hue and saturation"},
                                       {{220, 164, 248, 186}, "Red"},
                                       {{294, 164, 334, 186}, "Green"},
                                       {{380, 164, 412, 186}, "Blue"},
                                       {{12, 164, 90, 186}, "Your color"}}};

/// Rows of one lightness each, with a grey at the end.
std::vector<OLE_COLOR> BasicColors() {
    std::vector<OLE_COLOR> colors;
    const std::array<double, 6> lightness{0.85, 0.7, 0.5, 0.4, 0.3, 0.18};
    for (std::size_t row = 0; row < lightness.size(); ++row) {
        for (const double degrees : {0.0, 30.0, 60.0, 120.0, 180.0, 240.0, 300.0})
            colors.push_back(FromHsl({degrees / 360, 1, lightness[row]}));
        colors.push_back(FromHsl({0, 0, 1 - static_cast<double>(row) / 5}));
    }
    return colors;
}

/// A form with everything on it, and the colour that it shows.
class ColorForm {
public:
    ColorForm(Form& form, OLE_COLOR first);
    ~ColorForm(); ///< The form and its controls live on, without its handlers.
    ColorForm(const ColorForm&) = delete;
    ColorForm& operator=(const ColorForm&) = delete;

    bool IsDone() const { return done_; }
    OLE_COLOR Chosen() const { return chosen_; } ///< `NoColor` where the user cancelled.

private:
    TextBox& AddComponentBox(std::string_view name, std::int32_t left);
    void HandleEvents();
    void HandleKey(std::int16_t keyCode);
    void DrawLabels() const;
    void Show(OLE_COLOR color, HslColor hsl);
    void ReadBoxes();
    void Finish(OLE_COLOR chosen);

    Form& form_;
    SwatchGrid& swatches_;
    HueField& field_;
    LightnessBar& bar_;
    ColorSample& sample_;
    std::array<TextBox*, 3> boxes_; ///< Red, green and blue.
    PushButton& accept_;
    PushButton& cancel_;
    OLE_COLOR color_ = 0;
    HslColor hsl_;
    bool showing_ = false; ///< The boxes change because the colour did.
    bool done_ = false;
    OLE_COLOR chosen_ = NoColor;
};

ColorForm::ColorForm(Form& form, OLE_COLOR first)
    : form_(form), swatches_(form.Add<SwatchGrid>("basic", {8, 26, 192, 132}, BasicColors(), SwatchColumns)),
      field_(form.Add<HueField>("hue", {220, 28, 180, 124})),
      bar_(form.Add<LightnessBar>("lightness", {412, 28, 36, 124})),
      sample_(form.Add<ColorSample>("sample", {92, 164, 108, 22})), boxes_{&AddComponentBox("red", 250),
                                                                           &AddComponentBox("green", 336),
                                                                           &AddComponentBox("blue", 414)},
      accept_(form.Add<PushButton>("accept", {272, 212, 84, 28}, "OK")),
      cancel_(form.Add<PushButton>("cancel", {364, 212, 84, 28}, "Cancel")) {
    Show(first, ToHsl(first));
    HandleEvents();
    form.ComponentOf(accept_).SetFocus();
}

TextBox& ColorForm::AddComponentBox(std::string_view name, std::int32_t left) {
    TextBox& box = form_.Add<TextBox>(name, {left, 162, 34, 24});
    box.MaxLength(3);
    return box;
}

void ColorForm::HandleEvents() {
    form_.events.Paint = [this] { DrawLabels(); };
    form_.events.KeyDown = [this](std::int16_t& keyCode, std::int16_t&) { HandleKey(keyCode); };
    form_.events.Closing = [this](bool& keep) {
        keep = true; // until the dialog is over, which closes it
        Finish(NoColor);
    };
    swatches_.Pick = [this](OLE_COLOR color) { Show(color, ToHsl(color)); };
    field_.Pick = [this](double hue, double saturation) {
        // From white, black or the dark no hue can be seen: choosing one chooses a lightness where it shows.
        const bool visible = hsl_.lightness > 0.05 && hsl_.lightness < 0.95;
        const HslColor picked{hue, saturation, visible ? hsl_.lightness : 0.5};
        Show(FromHsl(picked), picked);
    };
    bar_.Pick = [this](double lightness) {
        const HslColor picked{hsl_.hue, hsl_.saturation, lightness};
        Show(FromHsl(picked), picked);
    };
    for (TextBox* box : boxes_) box->events.Change = [this] { ReadBoxes(); };
    accept_.Click = [this] { Finish(color_); };
    cancel_.Click = [this] { Finish(NoColor); };
}

ColorForm::~ColorForm() {
    form_.events.Paint = nullptr;
    form_.events.KeyDown = nullptr;
    form_.events.Closing = nullptr;
    swatches_.Pick = nullptr;
    field_.Pick = nullptr;
    bar_.Pick = nullptr;
    for (TextBox* box : boxes_) box->events.Change = nullptr;
    accept_.Click = nullptr;
    cancel_.Click = nullptr;
}

void ColorForm::HandleKey(std::int16_t keyCode) {
    if (keyCode == VK_ESCAPE) Finish(NoColor);
    const bool onCancel = platform().GetFocus() == form_.ComponentOf(cancel_).hWnd();
    if (keyCode == VK_RETURN && !onCancel) Finish(color_);
}

void ColorForm::DrawLabels() const {
    const std::int32_t color = platform().SetTextColor(form_.hDC(), dgi::TranslateColor(cButtonText));
    const std::int32_t mode = platform().SetBkMode(form_.hDC(), TRANSPARENT_BK);
    for (const Label& label : Labels) {
        tvok_Rect place = label.place;
        platform().DrawTextA(form_.hDC(), label.text.data(), static_cast<std::int32_t>(label.text.size()),
                             place, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    }
    platform().SetBkMode(form_.hDC(), mode);
    platform().SetTextColor(form_.hDC(), color);
}

void ColorForm::Show(OLE_COLOR color, HslColor hsl) {
    if (showing_) return;
    showing_ = true;
    color_ = color;
    hsl_ = hsl;
    field_.Show(hsl.hue, hsl.saturation);
    bar_.Show(hsl);
    sample_.Show(color);
    const std::array<std::int32_t, 3> components{RedOf(color), GreenOf(color), BlueOf(color)};
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const std::string text = std::to_string(components[i]);
        if (boxes_[i]->Text() != text) boxes_[i]->Text(text);
    }
    showing_ = false;
}

void ColorForm::ReadBoxes() {
    if (showing_) return;
    std::array<std::int32_t, 3> components{};
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        components[i] = std::clamp(TruncateToInt32(ScanNumber(boxes_[i]->Text())), 0, 255);
    color_ = FromRgb(components[0], components[1], components[2]);
    hsl_ = ToHsl(color_);
    field_.Show(hsl_.hue, hsl_.saturation);
    bar_.Show(hsl_);
    sample_.Show(color_);
}

void ColorForm::Finish(OLE_COLOR chosen) {
    chosen_ = chosen;
    done_ = true;
}

/// Takes the input away from other forms. In the end gives it back to the form that had it, and closes its
/// own.
class ModalForm {
public:
    ModalForm(World& world, Form& form, Handle before)
        : world_(world), form_(form), before_(before), modalBefore_(world.Modal(&form.window())) {}
    ~ModalForm() {
        world_.Modal(modalBefore_);
        form_.events.Closing = nullptr;
        quietly([&] { ActivateBefore(); }, [&] { form_.Close(); });
    }
    ModalForm(const ModalForm&) = delete;
    ModalForm& operator=(const ModalForm&) = delete;

private:
    void ActivateBefore() {
        const Window* window = world_.windows.Find(before_);
        if (FormWindow* form = window != nullptr ? world_.FormOf(*window) : nullptr)
            world_.focus.Activate(form);
    }

    World& world_;
    Form& form_;
    Handle before_;
    FormWindow* modalBefore_;
};

class DialogPicker : public host::ColorPicker {
public:
    explicit DialogPicker(Desktop& desktop) : desktop_(desktop) {}

    std::int32_t PickColor(Handle owner) override {
        World& world = desktop_.world();
        const Handle before =
            world.focus.active() != nullptr ? world.focus.active()->window().handle() : owner;
        Form& form = desktop_.AddForm("Color", DialogWidth, DialogHeight);
        form.Resizable(false);
        const ModalForm modal(world, form, before);
        PlaceOver(form, owner);
        ColorForm dialog(form, last_);
        while (!dialog.IsDone() && MayGoOn()) {
        }
        if (dialog.Chosen() != NoColor) last_ = dialog.Chosen();
        return dialog.Chosen();
    }

private:
    /// False where the desktop is over, and where it has no user and nothing waits that could end the dialog.
    bool MayGoOn() {
        if (desktop_.IsHeadless() && !desktop_.world().loop.HasQueued()) return false;
        return desktop_.ProcessEvents(std::chrono::milliseconds(60000));
    }

    void PlaceOver(Form& form, Handle owner) const {
        tvok_Rect under;
        if (!platform().GetWindowRect(owner, under)) return;
        form.Move(std::max((under.Left + under.Right - DialogWidth) / 2, 0),
                  std::max((under.Top + under.bottom - DialogHeight) / 2, 0));
    }

    Desktop& desktop_;
    OLE_COLOR last_ = 0x00FFFFFF; ///< What was chosen last, to begin with.
};

} // namespace

std::unique_ptr<host::ColorPicker> MakeColorPicker(Desktop& desktop) {
    return std::make_unique<DialogPicker>(desktop);
}

} // namespace tvok::soft

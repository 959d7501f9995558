#include "tests/support/PopupTestDesktop.h"

namespace tvok::test {

PopupDesktop::PopupDesktop(const std::vector<std::string>& texts)
    : owner(desktop.form().Add<Recorder>("owner", {20, 20, 100, 30})),
      popup(&desktop.form().Add<xPopup>("popup1", {200, 20, 50, 50})) {
    desktop.form().Add<Recorder>("other", {20, 100, 100, 30});
    desktop.Focus(owner);
    popup->SetParentRect(cParent);
    NoteEvents();
    Add(texts);
}

void PopupDesktop::NoteEvents() {
    popup->events.Change = [this](std::int32_t index, qrosterdata& item) {
        story.push_back("Change " + std::to_string(index) + " " + item.text);
    };
    popup->events.Click = [this](std::int32_t index, qrosterdata& item, bool canceled) {
        story.push_back("Click " + std::to_string(index) + " " + item.text + (canceled ? " canceled" : ""));
    };
}

void PopupDesktop::Add(const std::vector<std::string>& texts) {
    for (const std::string& text : texts) popup->AddItem({.text = text});
}

void PopupDesktop::Open() {
    popup->Popup(false, true);
    desktop.Pump();
    story.clear();
}

std::vector<std::string> PopupDesktop::Texts() const {
    std::vector<std::string> texts;
    for (std::int32_t i = 1; i <= popup->Count(); ++i) texts.push_back(Data(i).text);
    return texts;
}

qrosterdata PopupDesktop::Data(std::int32_t index) const {
    qrosterdata data;
    popup->GetData(index, data);
    return data;
}

std::vector<std::int32_t> PopupDesktop::Selected() const {
    std::vector<std::int32_t> selected;
    for (std::int32_t i = 1; i <= popup->Count(); ++i)
        if ((Data(i).vflag & vflag::Selected) != 0) selected.push_back(i);
    return selected;
}

std::vector<std::string> Lines(std::int32_t count) {
    std::vector<std::string> texts;
    for (std::int32_t i = 1; i <= count; ++i) texts.push_back("item " + std::to_string(i));
    return texts;
}

} // namespace tvok::test

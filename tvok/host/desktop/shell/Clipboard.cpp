#include "tvok/host/desktop/shell/Clipboard.h"

#include <utility>

#include "tvok/host/desktop/displays/Display.h"

namespace tvok::soft {

namespace {

class MemoryClipboard : public Clipboard {
public:
    std::string Text() override { return text_; }
    void Text(std::string_view utf8) override { text_ = utf8; }

private:
    std::string text_;
};

thread_local Clipboard* current = nullptr;

} // namespace

std::string DisplayClipboard::Text() {
    return display_.ClipboardText();
}

void DisplayClipboard::Text(std::string_view utf8) {
    if (utf8.size() <= Capacity()) display_.ClipboardText(utf8);
}

std::size_t DisplayClipboard::Capacity() const {
    return display_.ClipboardCapacity();
}

Clipboard& clipboard() {
    thread_local MemoryClipboard memory;
    return current != nullptr ? *current : memory;
}

Clipboard* SetClipboard(Clipboard* clipboard) {
    return std::exchange(current, clipboard);
}

} // namespace tvok::soft

#include "apps/gallery/design/CommandBar.h"

#include <utility>

namespace gallery {

CommandBar::CommandBar(tvok::qRoster& list) : list_(list) {
    list_.FixedHeight(false);
    list_.ItemHeight(Height - 2);
    list_.ItemWidth(CommandWidth);
    list_.CX_TEXT(10);
    list_.HotTrack(true);
    list_.events.MouseDown = [this](auto&...) { pressed_ = list_.ListIndex(); };
    list_.events.Click = [this](std::int32_t index, tvok::qrosterdata&) {
        // Arrow keys raise Click, too, and so does a drag onto another command.
        if (index == std::exchange(pressed_, 0)) Run(index);
    };
    list_.events.DblClick = [this](std::int32_t index, tvok::qrosterdata&) {
        Run(index); // the second of two quick clicks
    };
    list_.events.KeyDown = [this](std::int16_t& code, std::int16_t&) {
        if (code != tvok::host::VK_SPACE && code != tvok::host::VK_RETURN) return;
        code = 0;
        Run(list_.ListIndex());
    };
}

void CommandBar::Add(BarCommand command) {
    list_.AddItem(0, {.text = command.name, .key = command.name, .bColor = tvok::cButtonFace});
    commands_.push_back(std::move(command));
    list_.xn(static_cast<std::int32_t>(commands_.size()));
    Update();
}

std::int32_t CommandBar::Width() const {
    return CommandWidth * static_cast<std::int32_t>(commands_.size()) + 3;
}

void CommandBar::Update() {
    for (std::size_t i = 0; i < commands_.size(); ++i) {
        tvok::qrosterdata item;
        const auto number = static_cast<std::int32_t>(i) + 1;
        list_.GetData(number, item);
        const bool possible = !commands_[i].possible || commands_[i].possible();
        item.fcolor = possible ? tvok::cButtonText : tvok::SystemColor(tvok::host::COLOR_GRAYTEXT);
        list_.SetData(number, item, false);
    }
    list_.Refresh();
}

void CommandBar::Run(std::int32_t number) {
    if (number < 1 || number > static_cast<std::int32_t>(commands_.size())) return;
    const BarCommand command = commands_[static_cast<std::size_t>(number) - 1];
    if (!command.possible || command.possible()) command.run();
    Update();
}

} // namespace gallery

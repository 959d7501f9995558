/// A row of commands in a flat list of one row: a click, Enter or the space bar runs one.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "tvok/tvok.h"

namespace gallery {

struct BarCommand {
    std::string name;
    std::function<void()> run;
    std::function<bool()> possible{}; ///< Empty: always.
};

class CommandBar {
public:
    static constexpr std::int32_t Height = 24, CommandWidth = 58;

    explicit CommandBar(tvok::qRoster& list);

    void Add(BarCommand command); ///< Behind those that are there.
    std::int32_t Width() const;   ///< That it needs, in pixels.
    void Update();                ///< Greys what is not possible now.
    tvok::qRoster& list() { return list_; }

private:
    void Run(std::int32_t number);

    tvok::qRoster& list_;
    std::vector<BarCommand> commands_;
    std::int32_t pressed_ = 0; ///< The number of the command that the mouse went down on.
};

} // namespace gallery

/// The text that is copied from one place and pasted in another.
#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

namespace tvok::soft {

class Display;

class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual std::string Text() = 0;               ///< UTF-8; empty where there is none.
    virtual void Text(std::string_view utf8) = 0; ///< Of more bytes than the capacity: changes nothing.
    virtual std::size_t Capacity() const { return std::numeric_limits<std::size_t>::max(); }
};

/// The screen's clipboard. `display` has to outlive it.
class DisplayClipboard : public Clipboard {
public:
    explicit DisplayClipboard(Display& display) : display_(display) {}
    std::string Text() override;
    void Text(std::string_view utf8) override;
    std::size_t Capacity() const override;

private:
    Display& display_;
};

/// The thread's clipboard: one in memory while none has been set.
Clipboard& clipboard();

/// Sets the thread's clipboard and gives the one before; null for the one in memory. It has to outlive its
/// being set.
Clipboard* SetClipboard(Clipboard* clipboard);

} // namespace tvok::soft

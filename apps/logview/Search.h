/// Finding a text in a log, forwards or backwards, on a thread of its own.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

#include "apps/logview/LogFile.h"

namespace logview {

/// The first place of `text` in `bytes`, or npos; case of ASCII letters ignored where it has no capital
/// letter.
std::size_t FindIn(std::string_view bytes, std::string_view text);
std::size_t FindLastIn(std::string_view bytes, std::string_view text);

/// One search at a time: a new one ends the one before.
class Search {
public:
    enum class Direction { Forward, Backward };
    /// The byte where the text was found, or nothing. Called on the search's thread.
    using Found = std::function<void(std::optional<std::uint64_t> offset)>;

    explicit Search(std::shared_ptr<const LogFile> file) : file_(std::move(file)) {}
    ~Search() { Cancel(); }
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;

    /// Looks from `offset` on to the end, or from before `offset` back to the beginning; where `until` is
    /// given, a little beyond that place at most. An empty text finds nothing.
    void Start(std::string text, std::uint64_t offset, Direction direction, Found found,
               std::optional<std::uint64_t> until = {});
    void Cancel(); ///< Waits for the thread; `found` is not called any more.
    bool IsBusy() const { return busy_; }
    std::uint64_t Place() const {
        return place_;
    } ///< The byte that it has come to, for telling how far it is.

private:
    std::optional<std::uint64_t> Forward(const std::string& text, std::uint64_t offset, std::uint64_t until);
    std::optional<std::uint64_t> Backward(const std::string& text, std::uint64_t offset, std::uint64_t until);

    std::shared_ptr<const LogFile> file_;
    std::thread thread_;
    std::atomic<std::uint64_t> place_ = 0;
    std::atomic<bool> stop_ = false;
    std::atomic<bool> busy_ = false;
};

} // namespace logview

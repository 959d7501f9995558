/// Page "feed": a live feed into two `qRosterex`, one with the newest row at the top, one at the bottom.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include "apps/gallery/Hands.h"
#include "apps/gallery/Page.h"
#include "apps/gallery/SwitchPanel.h"
#include "apps/gallery/drawing.h"
#include "apps/gallery/market.h"

namespace gallery {

/// Every trade goes to both lists. Neither they nor the page keep it: its number gives it, and the list's
/// file keeps when it came. What is far from the newest row costs nothing, and stays where it is.
class FeedPage : public Page {
public:
    enum Switch : std::size_t { Feed, BufAddItemOnly, LockedPaint, ViewMode, Rate, Newest };

    FeedPage(tvok::Desktop& desktop, tvok::Form& form);
    void Layout(const tvok::tvok_Rect& area) override;
    void Paint(tvok::host::Handle hDC) override;
    bool IsLive() const override { return true; }
    /// Lets the trades of this time arrive. A long gap counts as a quarter of a second.
    void Turn(std::chrono::milliseconds elapsed) override;
    std::vector<Scene> Scenes() override;

    tvok::qRosterex& left() { return sides_[0].list; }
    tvok::qRosterex& right() { return sides_[1].list; }
    SwitchPanel& switches() { return switches_; }
    std::int32_t Fed() const { return fed_; }               ///< Trades so far.
    const std::string& Figures() const { return figures_; } ///< The line under the title.
    /// What stands above a list: which end is the newest, and what its reader has not seen.
    std::string Heading(const tvok::qRosterex& list) const;
    std::string News(const tvok::qRosterex& list) const;

private:
    struct Side {
        tvok::qRosterex& list;
        std::int64_t asked = 0;  // `EnumDATA` calls since the last figures
        std::int32_t newest = 0; // the newest row that was painted
    };
    struct Places;

    void SetUp(Side& side, std::int32_t icons);
    void SetUpSwitches();
    const Side& SideOf(const tvok::qRosterex& list) const;

    void GiveRow(Side& side, std::int32_t row, tvok::qrosterdata& record);
    void Add(std::int32_t timeOfDay, bool last);
    void ShowNewest();
    void TurnRound();
    void ShowEverything();

    void PlaceList(const Side& side, const tvok::Placement& place);
    void TakeFigures();
    void RepaintText();
    std::string ModeWords() const;

    // For the scenes.
    void Play(std::int32_t turns);
    void ClickSwitch(Switch which);
    void ScrollAway();

    tvok::Desktop& desktop_;
    tvok::Form& form_;
    Hands hands_;
    Fonts fonts_;
    tvok::tvok_Rect area_;
    std::array<Side, 2> sides_;
    SwitchPanel switches_;
    Arrivals arrivals_;
    bool running_ = true;
    bool onlyBuffer_ = false;
    bool locked_ = false;
    std::size_t rate_ = 1;
    std::int32_t fed_ = 0;
    std::chrono::milliseconds time_; // of the day, on the market
    std::chrono::milliseconds sinceFigures_{};
    std::int32_t fedAtFigures_ = 0;
    std::string figures_;
};

} // namespace gallery

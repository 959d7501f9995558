/// Page "lists": three `qRoster` over the packages of this machine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "apps/gallery/Hands.h"
#include "apps/gallery/Page.h"
#include "apps/gallery/drawing.h"
#include "apps/gallery/packages.h"

namespace gallery {

/// `details` shows the packages in tab columns with icons, `names` the same in three grid columns; the two
/// move together. `sections` is a multi-selection with a head band that the page draws: what is chosen there
/// decides what the other two show.
class ListsPage : public Page {
public:
    ListsPage(tvok::Desktop& desktop, tvok::Form& form); ///< Of what this machine has.
    ListsPage(tvok::Desktop& desktop, tvok::Form& form, Collection collection);
    void Layout(const tvok::tvok_Rect& area) override;
    void Paint(tvok::host::Handle hDC) override;
    std::vector<Scene> Scenes() override;

    tvok::qRoster& details() { return details_; }
    tvok::qRoster& names() { return names_; }
    tvok::qRoster& sections() { return sections_; }
    const std::string& Status() const { return status_; } ///< The line that tells the current package.
    const std::string& Summary() const { return summary_; }

private:
    struct Places; // where everything stands in an area

    void SetUp(tvok::qRoster& list);
    void SetUpDetails();
    void SetUpNames();
    void SetUpSections();
    void CountSections();

    void SetTabStops();
    void PaintHeadings(tvok::host::Handle hDC, const Places& places);
    void Repaint();

    std::vector<std::string> ChosenSections() const;
    void Filter();
    void FillLists();
    void ShowCurrent(std::int32_t index);
    void Summarise();

    void ClickItem(tvok::qRoster& list, std::int32_t index, std::int32_t heldKey = 0);

    tvok::Form& form_;
    Hands hands_;
    tvok::tvok_Rect area_;
    Fonts fonts_;
    Collection collection_;
    std::map<std::string, std::int32_t> sectionCounts_;
    std::vector<std::size_t> shown_; // places in the collection, in the order of the lists
    std::vector<std::string> chosen_;
    std::string status_;
    std::string summary_;
    std::vector<std::int32_t> tabStops_;
    tvok::qRoster& details_;
    tvok::qRoster& names_;
    tvok::qRoster& sections_;
};

} // namespace gallery

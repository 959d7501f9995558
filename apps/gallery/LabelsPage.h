/// Page "labels": labels with icons, one for each thing that a label can do.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "apps/gallery/Hands.h"
#include "apps/gallery/Page.h"
#include "apps/gallery/drawing.h"

namespace gallery {

/// Tab goes from label to label; what the one with the focus hears stands in the line under the title.
class LabelsPage : public Page {
public:
    LabelsPage(tvok::Desktop& desktop, tvok::Form& form);
    void Layout(const tvok::tvok_Rect& area) override;
    void Paint(tvok::host::Handle hDC) override;
    void ThemeChanged() override;
    std::vector<Scene> Scenes() override;

    tvok::iLabel& label(std::size_t place) { return *entries_.at(place).label; }
    std::size_t Count() const { return entries_.size(); }
    const std::string& LastEvent() const { return lastEvent_; }

private:
    struct Entry {
        std::string heading; ///< The properties that make the label what it is.
        tvok::iLabel* label;
    };

    tvok::iLabel& Add(const std::string& heading, const std::string& caption, Icon icon);
    void AddPlainOnes();
    void AddFramedOnes();
    void AddTexts();
    void Hear(tvok::iLabel& label, const std::string& name);
    void Tell(const std::string& event);
    tvok::Placement PlaceOf(std::size_t place) const;

    tvok::Desktop& desktop_;
    tvok::Form& form_;
    Hands hands_;
    Fonts fonts_;
    std::int32_t icons_;
    std::vector<Entry> entries_;
    tvok::iLabel* colored_ = nullptr; // the one whose text is not in the window's colour
    std::string lastEvent_ = "Press a label, or go from one to the next with Tab";
    tvok::tvok_Rect area_;
};

} // namespace gallery

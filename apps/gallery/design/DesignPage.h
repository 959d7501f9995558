/// Page "design": a form as it looks at design time, to be arranged, edited, saved to a file and run.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "apps/gallery/Hands.h"
#include "apps/gallery/Page.h"
#include "apps/gallery/Workbench.h"
#include "apps/gallery/design/CommandBar.h"
#include "apps/gallery/design/DesignArea.h"
#include "apps/gallery/design/Designer.h"
#include "apps/gallery/drawing.h"

namespace gallery {

/// At the left are the types of controls: a double click adds one, a drag puts it where it ends. The commands
/// above the form work on the file whose path stands beside them, and the name of the selected control can be
/// edited there. What cannot be done is said below the form.
class DesignPage : public Page {
public:
    DesignPage(tvok::Desktop& desktop, tvok::Form& form);

    void Layout(const tvok::tvok_Rect& area) override;
    void Paint(tvok::host::Handle hDC) override;
    void Attach(Workbench& bench) override;
    std::optional<std::vector<Subject>> Subjects() override;
    void Selected(const std::string& name) override;
    void PropertyChanged(const PropertyChange& change) override;
    std::vector<Scene> Scenes() override;

    Designer& designer() { return designer_; }
    const std::string& Message() const { return message_; } ///< The line below the form.

    void New();
    void Open();
    void Save();
    /// Shows the form as its file would be in a window of its own, in run mode. It closes with the gallery's.
    void Run();
    const std::vector<tvok::Form*>& Running() const { return running_; }

private:
    struct Places;

    tvok::Form& MakeForm();
    void SetUpPalette();
    void SetUpCommands();
    void HearDesigner();
    std::string PaletteType() const; ///< Empty where none is chosen.
    bool OverForm(tvok::host::Point& point) const;
    tvok::host::Point OnArea(tvok::host::Point point) const;
    PropertyGroup FormProperties();
    void PutBack(const PropertyChange& change);
    void Rename();
    void SelectionChanged();
    void ContentChanged();
    void Try(const std::string& done, const std::function<void()>& action);
    void Tell(const std::string& text, bool wrong = false);
    void TellSelection();
    void CloseRunning();

    tvok::Desktop& desktop_;
    tvok::Form& form_;
    Hands hands_;
    Fonts fonts_;
    std::int32_t icons_;
    tvok::qRoster& palette_;
    CommandBar commands_;
    tvok::TextBox& path_;
    tvok::TextBox& name_;
    DesignArea& area_;
    Designer designer_;
    Workbench* bench_ = nullptr;
    tvok::tvok_Rect page_;
    std::string message_;
    bool wrong_ = false;  ///< The message says what could not be done.
    std::string dragged_; ///< The type that is dragged out of the palette.
    std::vector<tvok::Form*> running_;
    std::vector<std::pair<std::string, tvok::host::Control*>> offered_; ///< To the inspector.
};

} // namespace gallery

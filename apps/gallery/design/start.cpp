#include "apps/gallery/design/start.h"

namespace gallery {

namespace {

// As a file that was written by hand: what it leaves out has its default.
constexpr const char* Text = R"([form]
caption = "Orders"
width = 456
height = 344

[[control]]
type = "TextBox"
name = "filter"
left = 8
top = 48
width = 280
height = 24
[control.settings]
Text = "Type to filter"

[[control]]
type = "xbutton"
name = "actions"
left = 296
top = 48
width = 120
height = 24
[control.settings]
ButtonSettingsStr = "0|list|2|...|more|0|2|clear|2"

[[control]]
type = "pcols"
name = "columns"
left = 8
top = 80
width = 280
height = 24

[[control]]
type = "qRoster"
name = "orders"
left = 8
top = 104
width = 280
height = 200

[[control]]
type = "gList"
name = "details"
left = 296
top = 80
width = 152
height = 224

[[control]]
type = "ucColorSelector"
name = "mark"
left = 8
top = 312
width = 280
height = 24

[[control]]
type = "iLabel"
name = "state"
left = 296
top = 312
width = 152
height = 24

[[control]]
type = "TextBox"
name = "title"
left = 8
top = 8
width = 440
height = 32
[control.settings]
Text = "Orders of the day"
BorderStyle = 0
ReadOnly = true
BackColor = 0x8000000f
Font = { Name = "DejaVu Sans", Size = 13.0, Bold = true }
)";

} // namespace

tvok::FormFile StartForm() {
    return tvok::ParseFormFile(Text, "the form to begin with");
}

} // namespace gallery

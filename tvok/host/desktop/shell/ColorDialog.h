/// The modal colour dialog.
#pragma once

#include <memory>

#include "tvok/host/Services.h"

namespace tvok {
class Desktop;
}

namespace tvok::soft {

/// `PickColor` shows a form above the owner's and runs the desktop's events until the user has chosen a
/// colour or cancelled; other forms take no input meanwhile. `desktop` has to outlive it.
std::unique_ptr<host::ColorPicker> MakeColorPicker(Desktop& desktop);

} // namespace tvok::soft

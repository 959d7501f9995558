/// What an inspector shows of a control: most of its properties, in groups by their sense.
#pragma once

#include <vector>

#include "apps/gallery/Workbench.h"
#include "apps/gallery/properties.h"

namespace gallery {

/// "Appearance", "Behaviour", "Content", "Font" and, for a control on a form, "Place", as far as there are
/// such properties; the groups' keys are their titles. None for a type of control that has no table.
std::vector<PropertyGroup> GroupsOf(const Subject& subject);

} // namespace gallery

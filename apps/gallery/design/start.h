/// The form that the designer begins with.
#pragma once

#include "tvok/tvok.h"

namespace gallery {

tvok::FormFile StartForm();

} // namespace gallery

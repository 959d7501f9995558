/// The viewer's own colours, for a light and for a dark window.
#pragma once

#include "apps/logview/Columns.h"
#include "tvok/tvok.h"

namespace logview::colors {

tvok::OLE_COLOR Of(Severity severity); ///< Of a line's text.
tvok::OLE_COLOR Mark();
tvok::OLE_COLOR Progress();

} // namespace logview::colors

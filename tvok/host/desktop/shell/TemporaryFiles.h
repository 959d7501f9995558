/// Temporary files that nobody else uses.
#pragma once

#include <memory>

#include "tvok/host/Services.h"

namespace tvok::soft {

/// Names are the prefix, some random letters, a point and the extension; an empty extension has no point. A
/// prefix or an extension with a "/" or a zero byte in it is refused.
std::unique_ptr<host::TemporaryFiles> MakeTemporaryFiles();

} // namespace tvok::soft

/// The version of these headers, by semantic versioning. While the first number is 0, the second one rises
/// with every change that breaks programs, in source or in binary form; the third with every other. Programs
/// that were built with 0.1.x run with every libtvok_core.so.0.1.
#pragma once

#define TVOK_VERSION_MAJOR 0
#define TVOK_VERSION_MINOR 1
#define TVOK_VERSION_PATCH 0

#define TVOK_VERSION "0.1.0" ///< The three of them as a text.

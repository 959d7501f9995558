/// The types of controls that the designer offers.
#pragma once

#include <string>
#include <vector>

#include "apps/gallery/icons.h"
#include "tvok/tvok.h"

namespace gallery {

struct DesignType {
    const char* name;     ///< In form files.
    tvok::Placement size; ///< That a new one gets.
    Icon icon;
    const char* description;
};

const std::vector<DesignType>& DesignTypes();
tvok::Placement UsualSize(const std::string& type); ///< Of another type, that of any placement.

} // namespace gallery

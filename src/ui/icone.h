#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace telva {

// The picture of a tool-bar key, or of the program for "Telva": lato*lato pixels 0xAARRGGBB with
// premultiplied alpha, rows from the top, crisp at any side of 16 pixels and more. An unknown key
// gives transparent pixels; a side below 1 gives none.
std::vector<std::uint32_t> DisegnaIcona(std::string_view chiave, int lato);

} // namespace telva

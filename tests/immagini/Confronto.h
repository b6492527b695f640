#pragma once
// Pictures to compare with: the PNG files in this folder.

#include "platform/superficie.h"

#include <string>

namespace telva::prove {

// Fails unless the picture is, pixel by pixel, the one in NOME.png. What was drawn and the same
// with the difference marked are then left in the folder `immagini` of the build. With
// TELVA_RINNOVA in the environment the drawn picture takes the place of the old one instead.
void ConfrontaImmagine(const Superficie &disegnata, const std::string &nome);

} // namespace telva::prove

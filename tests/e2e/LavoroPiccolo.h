#pragma once
// A small job whose every property is known.
#include "Prove.h"

namespace telva::prove {

// Makes the job: nodes 1 to 4 and 20, bars 7, 8, 9, 12, 14, shells 31 to 38, continuous elements
// 101 to 103; coordinates are whole, so that all lie inside the rounded coordinate intervals.
std::filesystem::path LavoroPiccolo(const Ambiente &amb, const std::string &codice = "prova1");

} // namespace telva::prove

#pragma once
// The pick-aperture dialog.

#include <cstdint>

namespace telva {

void CollegaFormOptInt();
// Shows the present aperture and runs the dialog.
void ApriFormOptInt();
// Takes the text box into OpzInt 1; `ok` is 0 when the aperture is now 0.
void AggiornaOpzioniInterne_(std::int16_t &ok);
// Menu caption with the present aperture.
void MostraTrappola();

} // namespace telva

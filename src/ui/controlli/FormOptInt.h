#pragma once
// Controls of the pick-aperture dialog.

#include "platform/controlli.h"

namespace telva {

struct ModuloOptInt : Modulo {
    ModuloOptInt();

    Cornice Frame1{this, "Frame1"};
    CasellaTesto TextTrappola{this, "TextTrappola", &Frame1};
    Etichetta Label1{this, "Label1", &Frame1};
    Pulsante Command1{this, "Command1", &Frame1};
};

extern ModuloOptInt FormOptInt;

} // namespace telva

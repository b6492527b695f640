#pragma once
// What a window shows as a whole: how its controls are laid out, and what each of them says.
#include "Prove.h"

#include <span>

namespace telva::prove {

// The visible controls of a window that leave it, meet a sibling or have no name for a reader, by
// name; empty when all is well.
std::string FuoriPosto(const Programma &p, HWND cima);
// The same and those that cut their text. Not for a window that a small screen has laid out
// smaller: the texts are measured at the system's size.
std::string Difetti(const Programma &p, HWND cima);

RECT AreaDiLavoro();
RECT Rettangolo(HWND finestra);
// Whether a window is seen whole.
bool SiVedeIntera(HWND finestra);

// A control as it has to be. `letto` is the name of a text box for a screen reader: the label made
// before it (other controls are read by their caption).
struct ControlloAtteso {
    std::string nome, didascalia{}, suggerimento{}, letto{};
};

// Compares every control of a window with the table, which names them all.
void VerificaControlli(const Programma &p, HWND cima, std::span<const ControlloAtteso> attesi);

} // namespace telva::prove

#pragma once
// What a window shows as a whole: how its controls are laid out, and what each of them says.
#include "Prove.h"

#include <span>

namespace telva::prove {

// Smallest outer height of the main window, in twips (1440 to the inch).
inline constexpr LONG kAltezzaMinima = 7120;

// The visible controls of a window that leave it, meet a sibling, cut their text or have no name
// for a reader, by name; empty when all is well.
std::string Difetti(const Programma &p, HWND cima);

// What a text takes in the system's own font, on lines not wider than that.
SIZE Ingombro(const std::string &testo, LONG larghezza, LONG peso = FW_NORMAL);
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

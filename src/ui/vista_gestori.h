#pragma once
// The view commands, the wheel and the keys of the view: whatever ends in a new picture. Other
// handlers redraw through here.

#include <cstdint>

namespace telva {

void Ottimizza_Click();
void Ridis_Click();
void VisAssi_Click();
// "Tutto" beside an interval: the whole extent of axis 1 = X, 2 = Y, 3 = Z.
void IntervalloIntero(std::uint8_t asse);

// Tells each interval that is no number and gives its box the last one back.
void ControllaIntervalli();

// The drawing's box has another size: fits and draws again. Nothing is told about texts that are
// still being typed.
void RidisegnaAllaMisura();

void WheelCatcher1_Rotella(int passi);
// Keys with Ctrl: arrows move the view, + and - are wheel steps; true when it was one of them.
bool Vista_KeyDown(int tasto);

} // namespace telva

#pragma once
// The pointer on the drawing, and the commands that arm it.

#include <cstdint>

namespace telva {

extern std::int16_t UltimoTasto; // button of the last press: 1 left, 2 right, 4 middle

void Disegno_MouseDown(int button, int shift, double x, double y);
void Disegno_MouseMove(int button, int shift, double x, double y);
void Disegno_MouseUp(int button, int shift, double x, double y);
void Disegno_DblClick();
void Disegno_CatturaPersa();
void Disegno_MouseLeave();

void Finestra_Click();
void ZoomIn_Click();
void Sposta_Click();

// Gives up a begun selection rectangle; an automatic one goes back to direct pick.
void ChiudiFinestraInCorso();

// As at program start.
void AzzeraPuntatore();

} // namespace telva

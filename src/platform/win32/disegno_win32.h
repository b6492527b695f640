#pragma once
// The native picture box: shows the finished surface and forwards the mouse.

#include "platform/disegno.h"
#include "platform/win32/base_win32.h"

namespace telva {

void RegistraDisegno();
HWND CreaDisegno(RiquadroDisegno &disegno, const Nascita &nascita);
// Shows a new picture at once; MostraElastici at the next painting.
void MostraImmagine(HWND disegno);
void MostraElastici(HWND disegno);

} // namespace telva

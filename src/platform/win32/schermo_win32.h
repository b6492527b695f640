#pragma once
// DPI, the sizes of windows and their frames, and the monitors they stand on.

#include "platform/controlli.h"
#include "platform/win32/base_win32.h"

namespace telva {

// DPI of the monitor a window stands on; of the system before there is a window.
UINT DpiDi(HWND finestra);
// Height of a check mark in the menus of such a window, in pixels.
int AltezzaSpuntaMenu(UINT dpi);
// Outer size of a window with this inner size.
SIZE MisuraEsterna(SIZE interna, DWORD stile, DWORD stileEsteso, bool menu, UINT dpi);
// Rectangle of a top-level window as it is seen, without the invisible part of its frame.
RECT RettangoloVisibile(HWND finestra);
// How much wider and higher a window is than it is seen.
SIZE OltreIlVisibile(HWND finestra);
// Twips to pixels upwards, so that a smallest size is never undercut by a fraction of a pixel.
LONG APixelInSu(double twip, double dpi);

// The largest DPI, up to `dpi`, at which the smallest size of a main window finds room in an area.
double DpiCheMostra(const Modulo &modulo, const RECT &area, double dpi);

// Work area of the monitor nearest to a rectangle; the rectangle itself when the system cannot
// tell.
RECT AreaDiLavoro(const RECT &r);
// Brings a rectangle into the work area of its nearest monitor: moved first, then made smaller.
void PortaNelloSchermo(RECT &r);
// Where a dialog of this outer size stands: in the middle of its owner, seen whole.
RECT InMezzoA(HWND proprietaria, SIZE esterna);
// Moves and sizes a top-level window.
void Colloca(HWND finestra, const RECT &dove);

} // namespace telva

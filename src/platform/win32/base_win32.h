#pragma once
// What every file of the window system shares: the Windows headers, texts, results, DPI.

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#include <commctrl.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace telva {

std::wstring ALargo(std::string_view utf8);
std::string DaLargo(std::wstring_view largo);
// Text of a native window.
std::string TestoFinestra(HWND finestra);

// A Windows call that cannot be done without: on failure a Guasto names it and its error number.
template <class T>
T Richiesto(T risultato, const char *chiamata);
[[noreturn]] void GuastoWindows(const char *chiamata);
template <class T>
T Richiesto(T risultato, const char *chiamata) {
    if (!risultato) GuastoWindows(chiamata);
    return risultato;
}

// What a child window is born with. Made as it is to be, it needs no further call.
struct Nascita {
    HWND genitore;
    RECT dove;
    DWORD stile; // shown, disabled, first of a group
    int id;
    HWND Crea(const wchar_t *classe, const std::wstring &testo, DWORD altroStile,
              DWORD esteso = 0) const;
};

// DPI of the monitor a window stands on; of the system before there is a window.
UINT DpiDi(HWND finestra);
// Outer size of a window with this inner size.
SIZE MisuraEsterna(SIZE interna, DWORD stile, DWORD stileEsteso, bool menu, UINT dpi);
// Rectangle of a top-level window as it is seen, and how far the invisible part of its frame
// reaches beyond it.
RECT RettangoloVisibile(HWND finestra);

// Brightness of a colour, 0..255; the order of red and blue hardly matters.
int Luce(std::uint32_t rgb);
// Whether the window's face is dark, as high-contrast colours have it.
bool FacciaScura();

// A control's name, on its native window, for tools that look at the program from outside.
void AssegnaNome(HWND finestra, const std::string &nome);
void TogliNome(HWND finestra);

// Work area of the monitor nearest to a rectangle; the rectangle itself when the system cannot
// tell.
RECT AreaDiLavoro(const RECT &r);
// Brings a rectangle into the work area of its nearest monitor: moved first, then made smaller.
void PortaNelloSchermo(RECT &r);

} // namespace telva

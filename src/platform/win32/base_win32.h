#pragma once
// What every file of the window system shares: the Windows headers, texts, results, windows.

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
#include <vector>

namespace telva {

std::wstring ALargo(std::string_view utf8);
std::string DaLargo(std::wstring_view largo);
// Text of a native window.
std::string TestoFinestra(HWND finestra);
// Shows a text in it, if it is another one; true when it was.
bool MostraTesto(HWND finestra, const std::string &testo);

// What a row of so many pixels can show of a text: all of it, or its items up to a comma, and an
// ellipsis. `dc` has the font.
std::wstring InUnaRiga(HDC dc, const std::wstring &testo, int larghezza);

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

// Classes of the main window and of the dialogs.
inline constexpr const wchar_t *kClasseFinestra = L"TelvaFinestra",
                               *kClasseDialogo = L"TelvaDialogo";
// Registers a window class, to which the size and the program's instance are added; once is
// enough, more do no harm.
void RegistraClasse(WNDCLASSEXW classe);
// Sets or clears bits of a window's style.
void CambiaStile(HWND finestra, LONG_PTR stile, bool acceso);

// Brightness of a colour, 0..255; the order of red and blue hardly matters.
int Luce(std::uint32_t rgb);
// Whether the window's face is dark, as high-contrast colours have it.
bool FacciaScura();

// A bitmap of these pixels (0xAARRGGBB), row by row from the top; the caller deletes it.
HBITMAP CreaBitmap(const std::vector<std::uint32_t> &pixel, int larghezza, int altezza);

// A control's name, on its native window, for tools that look at the program from outside.
void AssegnaNome(HWND finestra, const std::string &nome);
void TogliNome(HWND finestra);

} // namespace telva

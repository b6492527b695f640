#pragma once
// Drives a program's real window from outside: starts it, presses keys and mouse buttons, reads
// what it shows. Texts are UTF-8, positions are pixels. Nothing here waits for a time: each step
// polls for its condition, and after a minute fails with what was awaited and what was seen.
#include "Base.h"
#include "Ingressi.h"
#include "Schermo.h"

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace telva::prove {

// A message box; `icona` is a name of NomeIcona, or empty when the box has none.
struct Riquadro {
    HWND finestra = nullptr;
    std::string titolo, testo, icona;
};

// What the process holds now: GDI objects, USER objects (windows only, where the system does not
// count the others), and the largest working set so far in bytes.
struct Risorse {
    DWORD gdi = 0, utente = 0;
    std::size_t piccoByte = 0;
};

// A program under test. The destructor ends it if it still runs.
class Programma {
  public:
    // Starts `eseguibile`; `argomenti` follows its quoted path and a blank, untouched. Where the
    // user left its window is forgotten before, unless `ricorda`.
    Programma(const std::wstring &eseguibile, const std::wstring &argomenti, bool ricorda = false);
    ~Programma();
    Programma(const Programma &) = delete;
    Programma &operator=(const Programma &) = delete;

    // Waits for a visible top-level window whose class begins so, and until it can take input.
    HWND Principale(const std::wstring &classe = L"TelvaFinestra");
    // Waits for a visible top-level window with exactly this caption, and until it can take input.
    HWND Dialogo(const std::string &titolo);
    // Waits for a message box and reads it.
    Riquadro AttendiRiquadro();
    // The same, then closes it with a key and waits until it is gone (or the program has ended).
    Riquadro ChiudiRiquadro(const std::string &tasto = "Invio");
    // Waits for the end of the program; its exit code.
    DWORD AttendiFine();
    bool Finito() const { return WaitForSingleObject(processo_, 0) == WAIT_OBJECT_0; }

    // The control of that name ("Risposta", "OptElem(3)"), front window first; nullptr if none.
    HWND Trova(const std::string &nome) const;
    // The same, waiting until it exists.
    HWND Controllo(const std::string &nome) const;
    std::string Testo(HWND finestra) const;
    std::string Testo(const std::string &nome) const { return Testo(Controllo(nome)); }
    bool Spuntato(const std::string &nome) const;
    bool Abilitato(const std::string &nome) const { return IsWindowEnabled(Controllo(nome)); }
    bool Visibile(const std::string &nome) const { return IsWindowVisible(Controllo(nome)); }
    bool HaFuoco(const std::string &nome) const;
    // What has the focus in the front window.
    HWND Fuoco() const;
    // Middle of a control, and a place told in thousandths of its width and height, in its own
    // client coordinates.
    static POINT Centro(HWND controllo) { return InMillesimi(controllo, 500, 500); }
    static POINT InMillesimi(HWND controllo, LONG x, LONG y);
    // Middle of a tool-bar button (separators count), in client coordinates of the bar.
    POINT CentroBottone(HWND barra, int indice) const;
    // The name a control was given, empty when none.
    static std::string Nome(HWND controllo);
    // The tips that the controls of a window would show, read without waiting for them.
    std::map<HWND, std::string> Suggerimenti(HWND cima) const;
    // Text of the tool tip shown now, empty when none is.
    std::string Suggerimento() const;
    // Colour on the screen at a client position, 0x00RRGGBB.
    std::uint32_t Pixel(HWND finestra, POINT dove) const;
    Risorse LeggiRisorse() const;

    // Presses one key or chord in the front window: "Ctrl+Shift+A", "Invio", "x".
    void Premi(const std::string &tasti);
    // Types into whatever has the focus.
    void Digita(const std::string &testo);
    // Waits until the control has the focus, types, and waits until its text ends in `testo`.
    void Scrivi(const std::string &nome, const std::string &testo);
    // The same in place of what a text box holds, which a click gives the focus.
    void Riscrivi(const std::string &nome, const std::string &testo);
    // Opens a menu ("Alt+S") and presses keys in it ("O", "C B", "Giu Giu Invio"); waits until it
    // is left. A greyed item runs nothing and may leave the menu too: look at the effect.
    void Menu(const std::string &apri, const std::string &tasti);

    // Waits until the thread of a top-level window has no key, no move and no painting left to do.
    void Smaltisci(HWND cima) const;
    // Moves the pointer to a client position, once no other window covers it; gives the screen
    // position.
    POINT Punta(HWND finestra, POINT dove);
    void Clic(HWND finestra, POINT dove, Bottone bottone = Bottone::Sinistro, int volte = 1);
    void Clic(const std::string &nome) { Clic(Controllo(nome), Centro(Controllo(nome))); }
    // Drags in a few steps; `inMezzo` runs at the far end with the button still down.
    void Trascina(HWND finestra, POINT da, POINT a, Bottone bottone = Bottone::Sinistro,
                  const std::function<void()> &inMezzo = {});
    // Turns the wheel over a position; positive away from the user.
    void Rotella(HWND finestra, POINT dove, int scatti);
    // Sets the outer size of a top-level window.
    void Dimensiona(HWND finestra, int larghezza, int altezza);
    // Tells one that it has come to a monitor of this DPI, where it may stay as large as it is.
    void CambiaDpi(HWND finestra, UINT dpi);

    // Polls until `fatto` is true; fails at the limit, or as soon as the program has ended without
    // it. The failure names `cosa`, `visto()` and the state of the windows.
    void Aspetta(const std::string &cosa, const std::function<bool()> &fatto,
                 const std::function<std::string()> &visto = {}) const;

  private:
    bool Sua(HWND finestra) const;
    std::vector<HWND> Cime(const std::wstring &classe = {}) const;
    std::string Stato() const;
    bool InMenu() const;
    bool Pronta(HWND finestra) const;
    void Muovi(HWND cima, POINT schermo) const;
    void Stabile(HWND finestra = nullptr);

    HANDLE processo_ = nullptr;
    DWORD pid_ = 0;
    HWND stabile_ = nullptr; // the window last seen ready without a break
};

// Writes lines (LF in `utf8`) as Windows-1252 with CR LF; makes the folders on the way.
void ScriviFile(const std::filesystem::path &file, const std::string &utf8);
// Every byte of a file; nothing when it does not exist.
std::optional<std::string> LeggiByte(const std::filesystem::path &file);
// Writes TelvaIn.txt into a job folder and removes an old TelvaOut.txt.
void ScriviIngresso(const std::filesystem::path &lavoro, const std::string &titolo,
                    const std::string &selezione, int genere);

} // namespace telva::prove

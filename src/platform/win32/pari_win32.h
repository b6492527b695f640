#pragma once
// What shows a control on the screen: one class for each kind of native control, each in the file
// of its name. It makes the native control, shows its properties, takes its notifications and says
// its colours. Which class a control gets stands in pari_crea_win32.cpp.

#include "platform/win32/ospite_win32.h"

namespace telva {

// Colours of the system, COLOR_...
struct Tinte {
    int sfondo = COLOR_BTNFACE, testo = COLOR_BTNTEXT;
};

class PariWin32 : public Pari {
  public:
    PariWin32(Controllo &controllo, OspiteWin32 &finestra)
        : finestra_(finestra), questo_(controllo) {}
    ~PariWin32() override { questo_.pari = nullptr; }
    PariWin32(const PariWin32 &) = delete;

    // Makes the native control; `precedente` is the one made before it in the same window.
    void Nasci(const PariWin32 *precedente, int id);
    HWND Maniglia() const { return hwnd_; }
    // Its place in the window, in pixels.
    RECT Rettangolo() const;
    void Cambia(Controllo &controllo, Campo campo) override;
    virtual void AggiornaFont(bool ridisegna);

    // ---- What the window passes on
    virtual void Comando([[maybe_unused]] WORD codice, [[maybe_unused]] WORD id) {}
    // True when the notification was for this control.
    virtual bool Notifica([[maybe_unused]] const NMHDR &notifica) { return false; }
    virtual void Disegna([[maybe_unused]] const DRAWITEMSTRUCT &d) const {}
    // A key in this control that the window has no use for; then Enter, after that: true when the
    // control has a use for it.
    virtual void Tasto([[maybe_unused]] int tasto) {}
    virtual bool Invio() { return false; }
    virtual void Spostato() {}
    virtual void DpiCambiato() {}
    virtual void ColoriCambiati() { SendMessageW(hwnd_, WM_SYSCOLORCHANGE, 0, 0); }
    // Around wheel steps that come together.
    virtual void InizioRotella() {}
    virtual void FineRotella() {}
    virtual void VoceCambiata([[maybe_unused]] const VoceMenu &voce) {}

    // ---- What the window asks
    virtual Tinte Colori() const { return {}; }
    virtual Puntatore FormaPuntatore() const { return Puntatore::Predefinito; }
    // Covers the window's background with its own.
    virtual bool CopreSfondo() const { return true; }
    // Ctrl and a letter belong to its text.
    virtual bool TieneTasti() const { return false; }
    virtual bool PrendeRotella() const { return false; }

  protected:
    virtual HWND Crea(const Nascita &nascita) = 0;
    // Shows a property that not every control has.
    virtual void Mostra([[maybe_unused]] Campo campo) {}
    // Arrow keys move among neighbours of this kind, when they have the same parent.
    virtual bool FaGruppo() const { return false; }
    virtual StileFont FontProprio() const { return StileFont::Normale; }
    virtual std::wstring TestoSuggerito() const;
    void AggiornaSuggerimento() { finestra_.Suggerisci(hwnd_, TestoSuggerito()); }

    OspiteWin32 &finestra_;
    HWND hwnd_ = nullptr;

  private:
    Controllo &questo_;
};

// The same, knowing its control by its kind.
template <class C>
class PariDi : public PariWin32 {
  public:
    PariDi(C &controllo, OspiteWin32 &finestra)
        : PariWin32(controllo, finestra), controllo_(controllo) {}

  protected:
    C &controllo_;
};

// The peer of a native control, or nullptr.
PariWin32 *PariDiNativo(HWND nativo);
// Paints a native control that leaves it to its peer.
void DisegnaNativo(const DRAWITEMSTRUCT &d);
// Answers WM_CTLCOLOR... of a native control.
LRESULT ColoraNativo(HDC dc, HWND nativo);

} // namespace telva

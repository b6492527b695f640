#pragma once
// One shown window: the native controls of a module's controls, their events and their changes.

#include "platform/controlli.h"
#include "platform/disegno.h"
#include "platform/win32/barra_win32.h"
#include "platform/win32/base_win32.h"
#include "platform/win32/menu_win32.h"
#include "platform/win32/posto_win32.h"

#include <functional>
#include <memory>
#include <unordered_map>
#include <unordered_set>

namespace telva {

class FinestraWin32 : public Pari {
  public:
    // Makes the native window, hidden; `proprietaria` owns it when it is a dialog.
    FinestraWin32(Modulo &modulo, HWND proprietaria);
    ~FinestraWin32() override;
    FinestraWin32(const FinestraWin32 &) = delete;

    void Mostra(int comando);
    // Brings the outer corner there, or as near as the screen allows.
    void Sposta(LONG left, LONG top);
    // Where the window stands, or will stand once it is neither minimised nor maximised.
    PostoFinestra Posto() const;
    // Gives back what AssegnaNome has taken from the system.
    void TogliNomi() const;
    HWND Maniglia() const { return hwnd_; }
    Modulo &DelModulo() const { return modulo_; }
    void MostraPopup(VoceMenu &menu);
    void Cambia(Controllo &controllo, Campo campo) override;

    // Keys and wheel before they reach a native control; true when the message is done with.
    bool PreTraduci(MSG &messaggio);

    // The window that a native one belongs to, or nullptr.
    static FinestraWin32 *Di(HWND finestra);
    // Registers the window classes.
    static void RegistraClassi();

  private:
    static LRESULT CALLBACK Procedura(HWND, UINT, WPARAM, LPARAM);
    LRESULT Messaggio(UINT messaggio, WPARAM w, LPARAM l);
    LRESULT Notifica(const NMHDR &notifica, LPARAM l);
    void Evento(const std::function<void()> &evento);

    // Making (finestra_crea_win32.cpp)
    void CreaControlli();
    HWND CreaControllo(Controllo &c, const Nascita &nascita);
    void CreaFont();
    void CreaSuggerimenti();
    void AggiornaFont(Controllo &c, HWND h);

    // Changes
    HWND Nativo(const Controllo &c) const;
    Controllo *DaNativo(HWND h) const;
    void CambiaVisibile(Controllo &c);
    void CambiaAbilitato(Controllo &c);
    void CambiaSpunta(Controllo &c);
    void CambiaTesto(HWND h, const std::string &testo);
    void CambiaSuggerimento(Controllo &c);
    void CambiaPuntatore();
    void PortaFuoco(Controllo &c);
    void LasciaFuoco(HWND h);
    void ApplicaPosizioni();
    void ApplicaMisuraFinestra();
    RECT RettangoloPixel(const Controllo &c) const;
    std::vector<Controllo *> ConFigli(Controllo &c) const;

    // Events
    void Ridimensionata(WPARAM modo, bool forza = false);
    void MisuraMinima(MINMAXINFO &info) const;
    void DpiCambiato(UINT dpi, const RECT &proposto);
    void Comando(HWND nativo, WORD codice, WORD id);
    LRESULT ColoreControllo(HDC dc, HWND nativo);
    void DisegnaCentrata(const DRAWITEMSTRUCT &d) const;
    void DisegnaCampione(const DRAWITEMSTRUCT &d);
    void CancellaSfondo(HDC dc) const;
    bool Tasto(MSG &messaggio);
    bool Rotella(const MSG &messaggio);

    Modulo &modulo_;
    HWND hwnd_ = nullptr;
    HWND suggerimenti_ = nullptr;
    HFONT font_ = nullptr;
    HFONT fontPiccolo_ = nullptr;
    std::unordered_map<const Controllo *, HWND> nativi_;
    std::unordered_set<Controllo *> daPosizionare_;
    std::unordered_map<const Controllo *, std::wstring> testiSuggeriti_;
    std::unique_ptr<MenuWin32> menu_;
    std::unique_ptr<BarraWin32> barra_;
    RaccoltaRotella rotella_;
    HWND ultimoFuoco_ = nullptr;
    double larghezzaNormale_ = 0, altezzaNormale_ = 0; // neither minimised nor maximised, twips
    bool escPremuto_ = false;
    bool creata_ = false;
};

// What stands in the window for a control: its caption or its text.
std::string TestoDi(const Controllo &c);
// A swatch, not the frame around one.
bool DaScegliere(const Controllo &c);
// Pointer shape of the window system.
HCURSOR Cursore(Puntatore puntatore);

} // namespace telva

#pragma once
// One shown window: what the system sends it goes to the controls' peers, the menu, the keyboard
// and the measures, each in a class of its own; the focus is kept here.

#include "platform/win32/controlli_win32.h"
#include "platform/win32/font_win32.h"
#include "platform/win32/menu_win32.h"
#include "platform/win32/misura_win32.h"
#include "platform/win32/puntatore_win32.h"
#include "platform/win32/suggerimenti_win32.h"
#include "platform/win32/tastiera_win32.h"

#include <memory>

namespace telva {

class FinestraWin32 : public Pari, public OspiteWin32 {
  public:
    // Makes the native window, hidden; `proprietaria` owns it when it is a dialog.
    FinestraWin32(Modulo &modulo, HWND proprietaria);
    ~FinestraWin32() override;
    FinestraWin32(const FinestraWin32 &) = delete;

    void Mostra(int comando);
    // Where it stands.
    MisuraWin32 &Misura() { return misura_; }
    // Gives back what AssegnaNome has taken from the system.
    void TogliNomi() const;
    Modulo &DelModulo() const { return modulo_; }
    void MostraPopup(VoceMenu &menu);
    // Keys and wheel before they reach a native control; true when the message is done with.
    bool PreTraduci(MSG &messaggio);
    // The window that a native one belongs to, or nullptr.
    static FinestraWin32 *Di(HWND finestra);

    void Cambia(Controllo &controllo, Campo campo) override;
    HWND Maniglia() const override { return hwnd_; }
    double Dpi() const override { return modulo_.dpi; }
    HFONT Font(StileFont c) const override { return font_[c]; }
    void Evento(const std::function<void()> &evento) override;
    void DaPosizionare(PariWin32 &pari) override { controlli_.Sposta(pari); }
    void ApplicaPosizioni() override { controlli_.ApplicaPosizioni(hwnd_); }
    bool PortaFuoco(HWND nativo) override;
    void LasciaFuoco(HWND nativo) override;
    void AggiornaPuntatore() override { RinnovaPuntatore(hwnd_); }
    void Suggerisci(HWND nativo, std::wstring testo) override;
    void VoceCambiata(const VoceMenu &voce) override;

  private:
    static LRESULT CALLBACK Procedura(HWND, UINT, WPARAM, LPARAM);
    LRESULT Messaggio(UINT messaggio, WPARAM w, LPARAM l);
    static void RegistraClassi();
    std::string Titolo() const;
    void CreaNativa(HWND proprietaria);
    void CreaControlli();
    void Comando(HWND nativo, WORD codice, WORD id);
    void DpiCambiato(UINT dpi, const RECT &proposto);
    void Attivata(bool si);
    void Distrai();
    void FuocoAllaFinestra() const;

    Modulo &modulo_;
    HWND hwnd_ = nullptr;
    FontWin32 font_;
    SuggerimentiWin32 suggerimenti_;
    std::unique_ptr<MenuWin32> menu_;
    ControlliWin32 controlli_;
    MisuraWin32 misura_;
    TastieraWin32 tastiera_;
    HWND ultimoFuoco_ = nullptr;
};

} // namespace telva

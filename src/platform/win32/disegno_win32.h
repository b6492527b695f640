#pragma once
// Picture box: shows the finished surface and forwards the mouse.

#include "platform/disegno.h"
#include "platform/win32/pari_win32.h"

namespace telva {

class DisegnoWin32 : public PariDi<RiquadroDisegno> {
  public:
    using PariDi::PariDi;

    Puntatore FormaPuntatore() const override { return controllo_.MousePointer; }
    bool PrendeRotella() const override { return true; }
    void InizioRotella() override { controllo_.Trattieni(); }
    void FineRotella() override { controllo_.Rilascia(); }

  protected:
    HWND Crea(const Nascita &nascita) override;
    void Mostra(Campo campo) override;

  private:
    using GestoreMouse = std::function<void(int, int, double, double)>;
    static LRESULT CALLBACK Procedura(HWND hwnd, UINT messaggio, WPARAM w, LPARAM l);
    LRESULT Messaggio(UINT messaggio, WPARAM w, LPARAM l);
    void Dipingi() const;
    void DipingiImmagine(HDC dc, const std::vector<ZonaPixel> &zone) const;
    void Invalida(const std::vector<ZonaPixel> &zone) const;
    void AggiornaElastici();
    LPARAM PostoPiuRecente(WPARAM w, LPARAM l) const;
    void Mouse(const GestoreMouse &gestore, int tasti, WPARAM w, LPARAM l);
    void Mosso(WPARAM w, LPARAM l);
    void TastoPremuto(int tasto, WPARAM w, LPARAM l);
    void TastoLasciato(int tasto, WPARAM w, LPARAM l);
    void Evento(const std::function<void()> &gestore);

    std::vector<ZonaPixel> elastici_; // where something is shown over the picture
    bool sopra_ = false;              // the pointer, and its leaving will be told
};

} // namespace telva

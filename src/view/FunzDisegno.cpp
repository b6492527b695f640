#include "view/FunzDisegno.h"

#include "model/elementi.h"
#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "platform/numeri.h"
#include "ui/controlli/FormTelva.h"
#include "view/assi.h"
#include "view/colori.h"
#include "view/etichette.h"
#include "view/posti.h"
#include "view/proiezione.h"
#include "view/retini.h"
#include "view/tipi_linea.h"
#include "view/visibile.h"

#include <algorithm>
#include <array>
#include <vector>

namespace telva {
namespace {

// Width of a pen in pixels at 100 %.
int Penna(int opzione) {
    return static_cast<int>(
        std::clamp(ArrotondaPari(OpzioneNumero(opzione)), 1.0, double(Superficie::kPennaMassima)));
}

constexpr int kTipiLinea = 5;

// How elements are drawn, from the options and the window's scale, once for a whole picture.
struct Stile {
    const RiquadroDisegno &d = FormTelva.Disegno;
    bool evidenziaSel = OpzioneAttiva(kOpzColoreSel);
    int pennaSel = Penna(kOpzPennaSel), pennaNonSel = Penna(kOpzPennaNonSel);
    int pixelSel = d.PennaOpzione(pennaSel), pixelNonSel = d.PennaOpzione(pennaNonSel);
    std::array<Trattini, kTipiLinea> trattini;

    Stile() {
        for (int tipo = 0; tipo < kTipiLinea; ++tipo)
            trattini[static_cast<std::size_t>(tipo)] = TrattiniLinea(tipo, d.PixelOpzione(1));
    }
    // With the option off the two roles are exchanged on purpose.
    std::uint32_t Colore(bool sel, int codice) const {
        return sel == evidenziaSel ? kColoreEvidenza : ColoreRGB(codice);
    }
    int Larghezza(bool sel) const { return sel ? pixelSel : pixelNonSel; }
    // Only a pen of one pixel, at whatever scale, shows the line type.
    const Trattini &TrattiniAsta(bool sel, int tipo) const {
        const bool tipizzata = (sel ? pennaSel : pennaNonSel) == 1 && tipo > 0 && tipo < kTipiLinea;
        return trattini[tipizzata ? static_cast<std::size_t>(tipo) : 0];
    }
};

// Bars of selected continuous elements are drawn as selected.
std::vector<bool> AsteEvidenziate() {
    std::vector<bool> aste(kAste, false);
    for (int b = 0; b < NumAste; ++b) aste[static_cast<std::size_t>(b)] = SelAsta[b] == 1;
    const Elementi &e = ElementiDi(kElContTipo);
    for (int k = 0; k < NumElCont; ++k)
        if (e.Selezionato(k))
            e.OgniParte(k, [&](int b) {
                aste[static_cast<std::size_t>(b)] = true;
                return true;
            });
    return aste;
}

// The selected elements come after the others: nothing of their own kind lies over them.
template <class Disegnato, class Selezionato, class Disegna>
void SelezionatiPerUltimi(int numero, Disegnato disegnato, Selezionato selezionato,
                          Disegna disegna) {
    std::vector<int> ultimi;
    for (int i = 0; i < numero; ++i) {
        if (!disegnato(i)) continue;
        if (selezionato(i))
            ultimi.push_back(i);
        else
            disegna(i, false);
    }
    for (const int i : ultimi) disegna(i, true);
}

void DisegnaAste(const Stile &stile, const PostiNodi &posti) {
    RiquadroDisegno &d = FormTelva.Disegno;
    const std::vector<bool> evidenziate = AsteEvidenziate();
    const auto disegna = [&](int b, bool sel) {
        d.DrawWidth = stile.Larghezza(sel);
        posti.Linea(NodoIAsta[b], NodoJAsta[b], stile.Colore(sel, ColAsta[b]),
                    stile.TrattiniAsta(sel, TipoLinAsta[b]));
    };
    SelezionatiPerUltimi(
        NumAste, AstaDisegnata, [&](int b) { return evidenziate[static_cast<std::size_t>(b)]; },
        disegna);
}

void DisegnaGusci(const Stile &stile, const PostiNodi &posti) {
    RiquadroDisegno &d = FormTelva.Disegno;
    const Retini retini(d.PixelOpzione(1), d.PennaOpzione(1));
    const auto disegna = [&](int s, bool sel) {
        const std::uint32_t colore = stile.Colore(sel, ColGuscio[s]);
        const auto &nodi = NodiGuscio[s];
        const auto angoli = static_cast<std::size_t>(NumeroAngoli(s));
        retini.Disegna(s, colore, posti);
        d.DrawWidth = stile.Larghezza(sel);
        for (std::size_t c = 0; c < angoli; ++c)
            posti.Linea(nodi[c], nodi[c + 1 < angoli ? c + 1 : 0], colore);
    };
    SelezionatiPerUltimi(
        NumGusci, GuscioDisegnato, [](int s) { return SelGuscio[s] == 1; }, disegna);
}

void DisegnaNodi(const Stile &stile, const PostiNodi &posti) {
    RiquadroDisegno &d = FormTelva.Disegno;
    const int raggio =
        d.RaggioInPixel(d.PixelOpzione(OpzioneNumero(kOpzRaggioNodo)) * d.UnitaPerPixel());
    const auto disegna = [&](int i, bool sel) {
        const std::optional<Pixel> centro = posti.InPixel(i);
        if (!centro) return; // far outside
        d.DrawWidth = stile.Larghezza(sel);
        d.Circle(*centro, raggio, stile.Colore(sel, ColNodo[i]));
    };
    SelezionatiPerUltimi(
        NumNodi, NodoDisegnato, [](int i) { return SelNodo[i] == 1; }, disegna);
}

} // namespace

void DisegnaStruttura() {
    RiquadroDisegno &d = FormTelva.Disegno;
    if (d.Rimandata()) return;
    const Stile stile;
    d.Cls();
    if (!Proiettata()) {
        d.Presenta();
        return;
    }
    if (FormTelva.VisAssi.Checked) DisegnaAssi();
    const PostiNodi posti(d);
    DisegnaAste(stile, posti);
    DisegnaGusci(stile, posti);
    DisegnaNodi(stile, posti);
    DisegnaEtichette();
    d.DrawWidth = 1;
    d.Presenta();
}

} // namespace telva

#include "view/etichette.h"

#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "model/tabelle_cond.h"
#include "platform/numeri.h"
#include "platform/testo.h"
#include "ui/controlli/FormTelva.h"
#include "view/FunzDisegno.h"
#include "view/proiezione.h"
#include "view/salva_dis_cond.h"

#include <algorithm>
#include <cmath>

namespace telva {
namespace {

void Parte(std::string &etichetta, int opzione, char lettera, int numero) {
    if (!OpzioneAttiva(opzione)) return;
    if (!etichetta.empty()) etichetta += ' ';
    etichetta += lettera;
    etichetta += TestoNumero(numero);
}

// Text size, distance and colour of a picture's labels, and what part of it is visible.
struct Scrittura {
    RiquadroDisegno &d = FormTelva.Disegno;
    double base = OpzioneNumero(kOpzBaseTesto);
    double altezza = OpzioneNumero(kOpzAltezzaTesto);
    double distanza = OpzioneNumero(kOpzDistanzaTesto);
    std::int16_t colore =
        static_cast<std::int16_t>(std::clamp(std::trunc(OpzioneNumero(kOpzColoreTesto)), -1.0, 10.0));

    // Room that a text of n characters may take up around (x, y), in any direction.
    bool InVista(double x, double y, std::size_t n) const {
        const double raggio = std::abs(base) * static_cast<double>(n) + std::abs(altezza) +
                              std::abs(distanza);
        return x + raggio >= d.ScaleLeft && x - raggio <= d.ScaleLeft + d.ScaleWidth &&
               y - raggio <= d.ScaleTop && y + raggio >= d.ScaleTop + d.ScaleHeight;
    }
    void Scrivi(const std::string &testo, double x, double y) const {
        DisTesto(testo, x, y, 0, base, altezza, colore, &d);
    }
};

// Longest label there can be, for rejecting before the text is made.
constexpr std::size_t kCaratteriEtichetta = 40;

double LarghezzaTesto(const Scrittura &s, const std::string &testo) {
    std::size_t caratteri = 0;
    for (std::size_t posto = 0; posto < testo.size(); ++caratteri) ProssimoCarattere(testo, posto);
    return static_cast<double>(caratteri) * s.base;
}

// Beside the middle of a bar, on the side where the text leaves the line free: to the right of a
// steep one, above a flat one.
void ScriviAsta(const Scrittura &s, int b, const std::string &testo, bool sotto) {
    const int i = NodoIAsta[b], j = NodoJAsta[b];
    const double mx = (XNodo(i) + XNodo(j)) / 2, my = (YNodo(i) + YNodo(j)) / 2;
    const double dx = XNodo(j) - XNodo(i), dy = YNodo(j) - YNodo(i);
    const double lunghezza = std::hypot(dx, dy);
    const double larghezza = LarghezzaTesto(s, testo);
    if (lunghezza == 0) {
        s.Scrivi(testo, mx + s.distanza, my + (sotto ? -s.distanza - s.altezza : s.distanza));
        return;
    }
    // Unit normal pointing upwards (to the right for an upright bar); `sotto` takes the other side.
    double nx = -dy / lunghezza, ny = dx / lunghezza;
    if (ny < 0 || (ny == 0 && nx < 0)) nx = -nx, ny = -ny;
    if (sotto) nx = -nx, ny = -ny;
    // Centre of the text box, moved out until the whole box stands clear of the line.
    const double scarto = s.distanza + (std::abs(nx) * larghezza + std::abs(ny) * s.altezza) / 2;
    s.Scrivi(testo, mx + nx * scarto - larghezza / 2, my + ny * scarto - s.altezza / 2);
}

void EtichetteElCont(const Scrittura &s) {
    if (!OpzioneAttiva(kOpzTestiElCont) || !OpzioneAttiva(kOpzNomeElCont)) return;
    for (int k = 0; k < NumElCont; ++k) {
        if (NumAsteElCont[k] == 0 || NumeroElCont[k] <= 0) continue;
        const int b = AsteElCont(k, 0);
        if (!AstaDisegnata(b)) continue;
        const std::string testo = EtichettaElCont(k);
        const int i = NodoIAsta[b], j = NodoJAsta[b];
        if (s.InVista((XNodo(i) + XNodo(j)) / 2, (YNodo(i) + YNodo(j)) / 2, testo.size()))
            ScriviAsta(s, b, testo, true);
    }
}

void EtichetteGusci(const Scrittura &s) {
    if (!OpzioneAttiva(kOpzTestiGusci)) return;
    for (int g = 0; g < NumGusci; ++g) {
        if (!GuscioDisegnato(g)) continue;
        const int angoli = NumeroAngoli(g);
        double x = 0, y = 0;
        for (int c = 0; c < angoli; ++c) {
            x += XNodo(NodiGuscio[g][static_cast<std::size_t>(c)]) / angoli;
            y += YNodo(NodiGuscio[g][static_cast<std::size_t>(c)]) / angoli;
        }
        if (!s.InVista(x, y, kCaratteriEtichetta)) continue;
        const std::string testo = EtichettaGuscio(g);
        s.Scrivi(testo, x - LarghezzaTesto(s, testo) / 2, y - s.altezza / 2);
    }
}

void EtichetteAste(const Scrittura &s) {
    if (!OpzioneAttiva(kOpzTestiAste)) return;
    for (int b = 0; b < NumAste; ++b) {
        if (!AstaDisegnata(b)) continue;
        const int i = NodoIAsta[b], j = NodoJAsta[b];
        if (s.InVista((XNodo(i) + XNodo(j)) / 2, (YNodo(i) + YNodo(j)) / 2, kCaratteriEtichetta))
            ScriviAsta(s, b, EtichettaAsta(b), false);
    }
}

void EtichetteNodi(const Scrittura &s) {
    if (!OpzioneAttiva(kOpzTestiNodi)) return;
    const double raggio = OpzioneNumero(kOpzRaggioNodo) * s.d.UnitaPerPixel();
    const double scarto = (raggio + s.distanza) * std::sqrt(0.5);
    for (int i = 0; i < NumNodi; ++i)
        if (NodoDisegnato(i) && s.InVista(XNodo(i), YNodo(i), kCaratteriEtichetta))
            s.Scrivi(EtichettaNodo(i), XNodo(i) + scarto, YNodo(i) + scarto);
}

} // namespace

std::string EtichettaNodo(int i) {
    std::string e;
    Parte(e, kOpzPartiNodi, 'N', NomeNodo[i]);
    Parte(e, kOpzPartiNodi + 1, 'V', VincoloNodo[i]);
    return e;
}

std::string EtichettaAsta(int b) {
    std::string e;
    Parte(e, kOpzPartiAste, 'A', NomeAsta[b]);
    Parte(e, kOpzPartiAste + 1, 'M', MaterialeSezione(SezioneAsta[b]));
    Parte(e, kOpzPartiAste + 2, 'S', SezioneAsta[b]);
    Parte(e, kOpzPartiAste + 3, 'O', OrientAsta[b]);
    Parte(e, kOpzPartiAste + 4, 'C', SvincoloAsta[b]);
    return e;
}

std::string EtichettaGuscio(int s) {
    std::string e;
    Parte(e, kOpzPartiGusci, 'G', NomeGuscio[s]);
    Parte(e, kOpzPartiGusci + 1, 'M', MaterialeSpessore(SpessoreGuscio[s]));
    Parte(e, kOpzPartiGusci + 2, 'S', SpessoreGuscio[s]);
    return e;
}

std::string EtichettaElCont(int k) {
    return TestoNumero(NumeroElCont[k]) + " - " + std::string(Rifila(NomeElCont[k]));
}

void DisegnaEtichette() {
    const Scrittura s;
    if (s.base == 0 || s.altezza == 0) return;
    s.d.DrawWidth = 1;
    EtichetteElCont(s);
    EtichetteGusci(s);
    EtichetteAste(s);
    EtichetteNodi(s);
}

} // namespace telva

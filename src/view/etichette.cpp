#include "view/etichette.h"

#include "model/elementi.h"
#include "model/opzioni_cond.h"
#include "model/tabelle_cond.h"
#include "platform/mostrabile.h"
#include "platform/numeri.h"
#include "platform/testo.h"
#include "ui/controlli/FormTelva.h"
#include "view/colori.h"
#include "view/proiezione.h"
#include "view/salva_dis_cond.h"
#include "view/visibile.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <vector>

namespace telva {
namespace {

void Parte(std::string &etichetta, int opzione, char lettera, int numero) {
    if (!OpzioneAttiva(opzione)) return;
    if (!etichetta.empty()) etichetta += ' ';
    etichetta += lettera;
    etichetta += TestoNumero(numero);
}

constexpr double kPixelLeggibili = 6; // height from which a text can be read, at 100 %

// Text size, distance and colour of a picture's labels, and what part of it is visible.
struct Scrittura {
    RiquadroDisegno &d = FormTelva.Disegno;
    double base = OpzioneNumero(kOpzBaseTesto);
    double altezza = OpzioneNumero(kOpzAltezzaTesto);
    double distanza = OpzioneNumero(kOpzDistanzaTesto);
    std::int16_t colore = CodiceDaNumero(OpzioneNumero(kOpzColoreTesto));
    // Outlines are for reading: around texts too small for that they would only rub out the bars.
    bool leggibile = std::abs(altezza) >= d.PixelOpzione(kPixelLeggibili) * d.UnitaPerPixel();

    // Room that a text of n characters may take up around (x, y), in any direction.
    bool InVista(double x, double y, std::size_t n) const {
        const double raggio =
            std::abs(base) * static_cast<double>(n) + std::abs(altezza) + 1.5 * std::abs(distanza);
        return x + raggio >= d.ScaleLeft && x - raggio <= d.ScaleLeft + d.ScaleWidth &&
               y - raggio <= d.ScaleTop && y + raggio >= d.ScaleTop + d.ScaleHeight;
    }
    void Scrivi(const std::string &testo, double x, double y, std::int16_t gradi = 0) const {
        if (leggibile)
            DisTestoContornato(testo, x, y, gradi, base, altezza, colore, d);
        else
            DisTesto(testo, x, y, gradi, base, altezza, colore, &d);
    }
};

// Longest label there can be, for rejecting before the text is made.
constexpr std::size_t kCaratteriEtichetta = 40;
constexpr double kCaratteriNodo = 4; // of a node's label, usually
constexpr double kQuasiRitta = 0.02; // sine of the lean up to which a bar counts as upright
constexpr double kPendenza = 0.3;    // sine beyond which it is neither level nor upright

double LarghezzaTesto(const Scrittura &s, const std::string &testo) {
    std::size_t caratteri = 0;
    for (std::size_t posto = 0; posto < testo.size(); ++caratteri) ProssimoCarattere(testo, posto);
    return static_cast<double>(caratteri) * s.base;
}

// The middle of a bar on the screen and the unit normal to the side of its label: above a flat bar,
// to the right of an upright one. Of two braces that cross, the falling one has it below, or the
// rising one to the left. The name of a continuous element stands on the other side.
struct MezzoAsta {
    double x, y, nx = 0, ny = 0;
    bool diPunta; // seen from its end

    MezzoAsta(const Scrittura &s, int b) {
        const int i = NodoIAsta[b], j = NodoJAsta[b];
        x = (XNodo(i) + XNodo(j)) / 2;
        y = (YNodo(i) + YNodo(j)) / 2;
        const double dx = XNodo(j) - XNodo(i), dy = YNodo(j) - YNodo(i);
        const double lunghezza = std::sqrt(dx * dx + dy * dy);
        diPunta = lunghezza < s.d.UnitaPerPixel();
        if (diPunta) return;
        nx = -dy / lunghezza;
        ny = dx / lunghezza;
        if (Piatta() ? ny < 0 : nx < 0) nx = -nx, ny = -ny;
        if (Piatta() ? nx > kPendenza : ny < -kPendenza) nx = -nx, ny = -ny;
    }
    bool Piatta() const { return std::abs(ny) >= std::abs(nx); }
};

// Straight above, below or beside the middle, as far out as the whole text box needs to stand clear
// of the bar: right in the opening between two braces that cross.
void ScriviAsta(const Scrittura &s, const MezzoAsta &m, const std::string &testo) {
    const double larghezza = LarghezzaTesto(s, testo);
    const double x = m.x - larghezza / 2, y = m.y - s.altezza / 2;
    const double ingombro =
        s.distanza + (std::abs(m.nx) * larghezza + std::abs(m.ny) * s.altezza) / 2;
    if (m.diPunta) // to the left, for the nodes' labels stand to the right
        s.Scrivi(testo, m.x - s.distanza - larghezza, m.y + s.distanza);
    else if (m.Piatta())
        s.Scrivi(testo, x, y + ingombro / m.ny);
    else
        s.Scrivi(testo, x + ingombro / m.nx, y);
}

// Names are long: they run along the bar, to be read from below or from the right.
void ScriviNome(const Scrittura &s, const MezzoAsta &m, const std::string &testo) {
    const double larghezza = LarghezzaTesto(s, testo);
    if (m.diPunta) {
        s.Scrivi(testo, m.x - s.distanza - larghezza, m.y - s.distanza - s.altezza);
        return;
    }
    const bool ritta = std::abs(m.ny) < kQuasiRitta;
    const double verso = m.ny < 0 ? -1 : 1; // makes the text run to the right
    const double inclinata = std::atan2(-m.nx * verso, m.ny * verso) * 180 / std::numbers::pi;
    const double gradi = ritta ? 90 : std::round(inclinata);
    const double c = std::cos(gradi * std::numbers::pi / 180);
    const double n = std::sin(gradi * std::numbers::pi / 180);
    const double scarto = s.distanza + s.altezza / 2;
    s.Scrivi(testo, m.x - m.nx * scarto - (c * larghezza - n * s.altezza) / 2,
             m.y - m.ny * scarto - (n * larghezza + c * s.altezza) / 2,
             static_cast<std::int16_t>(gradi));
}

// The corners around the nodes, bit by bit: 1 right above, 2 left above, 4 right below, 8 left
// below. Where a bar or a side of a shell passes, a label would lie across it.
class AngoliNodi {
  public:
    // A label stands `scarto` from its node both ways and is about `larghezza` x `altezza`.
    AngoliNodi(double scarto, double larghezza, double altezza)
        : scarto_(scarto), largo_(scarto + larghezza), alto_(scarto + altezza) {
        for (int b = 0; b < NumAste; ++b)
            if (AstaDisegnata(b)) Occupa(NodoIAsta[b], NodoJAsta[b]);
        for (int g = 0; g < NumGusci; ++g) {
            if (!GuscioDisegnato(g)) continue;
            const auto angoli = static_cast<std::size_t>(NumeroAngoli(g));
            for (std::size_t c = 0; c < angoli; ++c)
                Occupa(NodiGuscio[g][c], NodiGuscio[g][(c + 1) % angoli]);
        }
    }
    // A free corner of the node (bit number), right before left; the first when none is free.
    int Libero(int nodo) const {
        for (const int k : {0, 2, 1, 3})
            if ((occupati_[static_cast<std::size_t>(nodo)] >> k & 1) == 0) return k;
        return 0;
    }

  private:
    void Occupa(int i, int j) {
        const double dx = XNodo(j) - XNodo(i), dy = YNodo(j) - YNodo(i);
        const double ax = std::abs(dx), ay = std::abs(dy);
        if (ay * largo_ <= ax * scarto_ || ax * alto_ <= ay * scarto_) return; // passes beside it
        const int k = (dx < 0 ? 1 : 0) + (dy < 0 ? 2 : 0);
        occupati_[static_cast<std::size_t>(i)] |= static_cast<std::uint8_t>(1 << k);
        occupati_[static_cast<std::size_t>(j)] |= static_cast<std::uint8_t>(1 << (3 - k));
    }

    std::vector<std::uint8_t> occupati_ = std::vector<std::uint8_t>(kNodi);
    double scarto_, largo_, alto_;
};

void EtichetteElCont(const Scrittura &s) {
    if (!OpzioneAttiva(kOpzTestiElCont) || !OpzioneAttiva(kOpzNomeElCont)) return;
    const Elementi &e = ElementiDi(kElContTipo);
    for (int k = 0; k < NumElCont; ++k) {
        if (NumAsteElCont[k] == 0 || NumeroElCont[k] <= 0 || !e.Intero(k)) continue;
        const int b = AsteElCont(k, 0);
        if (b >= NumAste || !AstaDisegnata(b)) continue; // a name that no bar has
        const std::string testo = EtichettaElCont(k);
        const MezzoAsta mezzo(s, b);
        if (s.InVista(mezzo.x, mezzo.y, testo.size())) ScriviNome(s, mezzo, testo);
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
        const MezzoAsta mezzo(s, b);
        if (s.InVista(mezzo.x, mezzo.y, kCaratteriEtichetta))
            ScriviAsta(s, mezzo, EtichettaAsta(b));
    }
}

void EtichetteNodi(const Scrittura &s) {
    if (!OpzioneAttiva(kOpzTestiNodi)) return;
    const double raggio = s.d.PixelOpzione(OpzioneNumero(kOpzRaggioNodo)) * s.d.UnitaPerPixel();
    const double scarto = (raggio + s.distanza) * std::sqrt(0.5);
    const AngoliNodi angoli(scarto, kCaratteriNodo * s.base, s.altezza);
    for (int i = 0; i < NumNodi; ++i) {
        if (!NodoDisegnato(i) || !s.InVista(XNodo(i), YNodo(i), kCaratteriEtichetta)) continue;
        const std::string testo = EtichettaNodo(i);
        const int k = angoli.Libero(i);
        s.Scrivi(testo, XNodo(i) + (k & 1 ? -scarto - LarghezzaTesto(s, testo) : scarto),
                 YNodo(i) + (k & 2 ? -scarto - s.altezza : scarto));
    }
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
    return TestoNumero(NumeroElCont[k]) + " - " + Mostrabile(Rifila(NomeElCont[k]), kCaratteriNome);
}

void DisegnaEtichette() {
    const Scrittura s;
    if (s.base == 0 || s.altezza == 0) return;
    s.d.DrawWidth = s.d.PennaOpzione(1);
    EtichetteElCont(s);
    EtichetteGusci(s);
    EtichetteAste(s);
    EtichetteNodi(s);
}

} // namespace telva

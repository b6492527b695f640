#include "selection/trappola.h"

#include "model/opzioni_cond.h"
#include "platform/numeri.h"
#include "selection/selezione.h"
#include "ui/controlli/FormTelva.h"
#include "view/proiezione.h"

#include <algorithm>
#include <cmath>

namespace telva {

double TrappolaDis = 0;

namespace {

constexpr double kAstaNulla = 0.0001; // squared projected length
constexpr double kLatoNullo = 0.0001; // extent in one direction

// Colour 0 and names below 1 cannot be picked.
bool Candidabile(const Elementi &e, int i) {
    return e.colori[i] >= 1 && e.nomi[i] >= 1 && e.attivi[i] == 1;
}

bool FuoriIngombro(double p, double estremoI, double estremoJ) {
    const double ampiezza = std::abs(estremoJ - estremoI);
    return std::abs(p - estremoI) - ampiezza >= TrappolaDis ||
           std::abs(p - estremoJ) - ampiezza >= TrappolaDis;
}

// Farther from both ends, in one direction, than a point of the side can be.
bool Discosto(double p, double estremo1, double estremo2) {
    constexpr double kDiscosto = 2 * kLatoNullo; // rounding covered
    return p < std::min(estremo1, estremo2) - kDiscosto ||
           p > std::max(estremo1, estremo2) + kDiscosto;
}

// On the side from (x1, y1) to (x2, y2), its ends included.
bool SulLato(double x, double y, double x1, double y1, double x2, double y2) {
    if (Discosto(x, x1, x2) || Discosto(y, y1, y2)) return false; // nearly all: without a division
    const double dx = x2 - x1, dy = y2 - y1;
    const double l2 = dx * dx + dy * dy;
    const double t = l2 > 0 ? std::clamp(((x - x1) * dx + (y - y1) * dy) / l2, 0.0, 1.0) : 0;
    const double scartoX = x - x1 - t * dx, scartoY = y - y1 - t * dy;
    return scartoX * scartoX + scartoY * scartoY < kLatoNullo * kLatoNullo;
}

// True when the side crosses the horizontal ray from (x, y) to the right. A side with next to no
// extent in x counts as upright; a level one has both ends on the same side of the ray.
bool AttraversaRaggio(double x, double y, double x1, double y1, double x2, double y2) {
    if ((y1 > y) == (y2 > y)) return false;
    if (std::abs(x2 - x1) < kLatoNullo) return x1 > x;
    return x1 + (y - y1) / (y2 - y1) * (x2 - x1) > x;
}

// The elements hit (nodes, bars or shells), in the order of the tables.
template <class Colpo>
std::vector<Candidato> Cerca(TipoElemento tipo, std::size_t massimo, Colpo colpo) {
    const Elementi &e = ElementiDi(tipo);
    std::vector<Candidato> trovati;
    double d = 0;
    for (int i = 0; i < e.numero && trovati.size() < massimo; ++i)
        if (Candidabile(e, i) && colpo(i, d)) trovati.push_back({static_cast<std::int16_t>(i), d});
    return trovati;
}

// Number of the continuous element hit last: unlike shells, the later one wins. Every bar that is
// hit counts as a candidate.
std::int16_t UltimoElCont(double x, double y) {
    const Elementi &elementi = ElementiDi(kElContTipo), &aste = ElementiDi(kAsteTipo);
    std::int16_t nome = 0;
    int trovati = 0;
    for (int k = 0; k < elementi.numero && trovati < kCandidati; ++k) {
        int colpi = 0;
        double d = 0;
        const bool intero = elementi.OgniParte(k, [&](int b) {
            if (Candidabile(aste, b) && PickAsta(b, x, y, d) == 1) ++colpi;
            return true;
        });
        if (!intero || colpi == 0) continue;
        trovati += colpi;
        nome = elementi.nomi[k];
    }
    return nome;
}

} // namespace

void CalcolaTrappola() {
    const RiquadroDisegno &d = FormTelva.Disegno;
    TrappolaDis = std::abs(d.PixelOpzione(OpzInt[kOpzTrappola]) * d.UnitaPerPixel());
}

int PickNodo(int i, double x, double y, double &distanza) {
    const double dx = x - XNodo(i), dy = y - YNodo(i);
    if (std::abs(dx) >= TrappolaDis || std::abs(dy) >= TrappolaDis) return 0;
    const double d = std::sqrt(dx * dx + dy * dy);
    if (!(d < TrappolaDis)) return 0;
    distanza = d;
    return 1;
}

int PickAsta(int b, double x, double y, double &distanza) {
    const double xI = XNodo(NodoIAsta[b]), yI = YNodo(NodoIAsta[b]);
    const double xJ = XNodo(NodoJAsta[b]), yJ = YNodo(NodoJAsta[b]);
    const double dx = xJ - xI, dy = yJ - yI;
    const double l2 = dx * dx + dy * dy;
    if (!(l2 > kAstaNulla)) return 0;
    if (FuoriIngombro(x, xI, xJ) || FuoriIngombro(y, yI, yJ)) return 0;
    // Distance from the infinite line a*x + b*y + c = 0 through both ends.
    const double d = std::abs(dy * (x - xI) - dx * (y - yI)) / std::sqrt(l2);
    if (d >= TrappolaDis) return 0;
    distanza = d;
    return 1;
}

// A fourth corner of 0 makes a triangle here; the window selection sees a quadrilateral in it.
int PickGuscio(int s, double x, double y) {
    const auto &nodi = NodiGuscio[s];
    const std::size_t angoli = nodi[3] > 0 ? 4 : 3;
    bool dentro = false;
    double x1 = XNodo(nodi[angoli - 1]), y1 = YNodo(nodi[angoli - 1]);
    for (std::size_t c = 0; c < angoli; ++c) {
        const double x2 = XNodo(nodi[c]), y2 = YNodo(nodi[c]);
        if (SulLato(x, y, x1, y1, x2, y2)) return 1;
        if (AttraversaRaggio(x, y, x1, y1, x2, y2)) dentro = !dentro;
        x1 = x2;
        y1 = y2;
    }
    return dentro ? 1 : 0;
}

std::int16_t ScegliCandidato(std::vector<Candidato> candidati, int tipo) {
    // Neighbours are exchanged until nothing moves. The distance that moves down loses its fraction
    // on the way, and which of several close elements a click takes depends on that.
    for (bool scambiato = true; scambiato;) {
        scambiato = false;
        for (std::size_t i = 1; i < candidati.size(); ++i) {
            if (!(candidati[i - 1].distanza > candidati[i].distanza)) continue;
            std::swap(candidati[i - 1], candidati[i]);
            candidati[i].distanza =
                std::min(ArrotondaPari(candidati[i].distanza), double(INT16_MAX));
            scambiato = true;
        }
    }
    const Elementi &e = ElementiDi(tipo);
    const bool cercato = CodFunAttiva != kAggiungi; // the state that the function changes
    for (const Candidato &c : candidati)
        if (e.Selezionato(c.indice) == cercato) return e.nomi[c.indice];
    return e.nomi[candidati.front().indice];
}

std::int16_t SelezioneDiretta(double x, double y) {
    CalcolaTrappola();
    if (TrappolaDis == 0) return 0; // shells too: without an aperture there is no pick
    const int tipo = FormTelva.TipoElemento();
    std::vector<Candidato> candidati;
    switch (tipo) {
    case kNodiTipo:
        candidati = Cerca(kNodiTipo, kCandidati,
                          [&](int i, double &d) { return PickNodo(i, x, y, d) == 1; });
        break;
    case kAsteTipo:
        candidati = Cerca(kAsteTipo, kCandidati,
                          [&](int b, double &d) { return PickAsta(b, x, y, d) == 1; });
        break;
    case kGusciTipo: // the first one only: overlapping shells do not compete
        candidati = Cerca(kGusciTipo, 1, [&](int s, double &) { return PickGuscio(s, x, y) > 0; });
        break;
    case kElContTipo: return UltimoElCont(x, y);
    default: break;
    }
    return candidati.empty() ? std::int16_t{0} : ScegliCandidato(std::move(candidati), tipo);
}

int NodoSottoPuntatore(double x, double y) {
    CalcolaTrappola();
    const auto trovati =
        Cerca(kNodiTipo, 1, [&](int i, double &d) { return PickNodo(i, x, y, d) == 1; });
    return trovati.empty() ? -1 : trovati.front().indice;
}

} // namespace telva

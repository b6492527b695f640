#include "ui/icone.h"

#include <cmath>
#include <span>

#include "platform/pennello_icona.h"

namespace telva {

namespace {

enum class Specie {
    Spezzata, // open polyline
    Chiusa,   // outline of a polygon
    Pieno,    // polygon with its outline, in one colour
    Segmenti, // each two points a segment
    Dischi,   // a disc of diameter `larghezza` at each point
    Arco      // {centre}, {radius, unused}, {from, to} in degrees
};

enum class Modo {
    Agganciato, // snapped to the pixels
    Alone,      // snapped, with a transparent rim that parts it from what lies below
    Libero      // true to the grid, for large curves and tiles
};

// One stroke of an icon; coordinates and width in units of the 16-unit grid.
struct Forma {
    Specie specie;
    std::uint32_t colore;
    double larghezza;
    std::vector<PuntoIcona> punti;
    Modo modo = Modo::Agganciato;
};

struct Icona {
    std::string_view chiave;
    int latoMinimo; // the last row of a key that fits the side is used
    std::vector<Forma> forme;
};

// Mid tones on purpose: at least 3:1 against a light tool bar as well as a dark one.
constexpr std::uint32_t kTintaLinea = 0xFF626C7B;
constexpr std::uint32_t kTintaCarta = 0xFFFFFFFF;
constexpr std::uint32_t kTintaVetro = 0xFFE6F1FC;
constexpr std::uint32_t kTintaVerde = 0xFF1E9148; // adds, accepts
constexpr std::uint32_t kTintaRosso = 0xFFD6363A; // removes, leaves
constexpr std::uint32_t kTintaBlu = 0xFF1F78D1;   // view
constexpr std::uint32_t kTintaAmbra = 0xFFCA7600; // interrupts
constexpr std::uint32_t kTintaCiano = 0xFF0C95AD; // selected
constexpr std::uint32_t kTintaTessera = 0xFF1D2B3A, kTintaTelaio = 0xFFB9C6D3,
                        kTintaFondo = 0xFF6C8197, kTintaScelta = 0xFF22D3EE;

using enum Specie;
using enum Modo;

// Long only by the rows of its table.
const std::vector<Icona> &Icone() {
    // clang-format off
    static const std::vector<Icona> icone = {
        {"AggiornaEsci", 0, {
            {Pieno, kTintaCarta, 1, {{1.5, 0.5}, {7.5, 0.5}, {10.5, 3.5}, {10.5, 14.5}, {1.5, 14.5}}},
            {Spezzata, kTintaLinea, 1, {{10.5, 8.5}, {10.5, 3.5}, {7.5, 0.5}, {1.5, 0.5}, {1.5, 14.5},
                       {10.5, 14.5}}},
            {Spezzata, kTintaVerde, 1.5, {{3.6, 6.2}, {5.4, 8.0}, {8.6, 4.4}}, Libero},
            {Spezzata, kTintaVerde, 1, {{5.5, 11.5}, {13.5, 11.5}}},
            {Pieno, kTintaVerde, 1, {{14.5, 11.5}, {12.0, 9.5}, {12.0, 13.5}}},
        }},
        {"Esci", 0, {
            {Spezzata, kTintaLinea, 1, {{9.5, 4.5}, {9.5, 0.5}, {1.5, 0.5}, {1.5, 14.5}, {9.5, 14.5}, {9.5, 10.5}}},
            {Spezzata, kTintaRosso, 1, {{5.5, 7.5}, {13.5, 7.5}}},
            {Pieno, kTintaRosso, 1, {{14.5, 7.5}, {11.5, 4.5}, {11.5, 10.5}}},
        }},
        {"Ottimizza", 0, {
            {Chiusa, kTintaLinea, 1, {{5.5, 5.5}, {9.5, 5.5}, {9.5, 9.5}, {5.5, 9.5}}},
            {Spezzata, kTintaBlu, 1, {{0.5, 4.5}, {0.5, 0.5}, {4.5, 0.5}}},
            {Spezzata, kTintaBlu, 1, {{10.5, 0.5}, {14.5, 0.5}, {14.5, 4.5}}},
            {Spezzata, kTintaBlu, 1, {{14.5, 10.5}, {14.5, 14.5}, {10.5, 14.5}}},
            {Spezzata, kTintaBlu, 1, {{4.5, 14.5}, {0.5, 14.5}, {0.5, 10.5}}},
            {Segmenti, kTintaBlu, 1, {{0.5, 0.5}, {3.5, 3.5}, {14.5, 0.5}, {11.5, 3.5}}},
            {Segmenti, kTintaBlu, 1, {{14.5, 14.5}, {11.5, 11.5}, {0.5, 14.5}, {3.5, 11.5}}},
        }},
        {"Zoom", 0, {
            {Segmenti, kTintaLinea, 1, {{0.5, 0.5}, {2.5, 0.5}, {4.5, 0.5}, {6.5, 0.5}, {8.5, 0.5}, {10.5, 0.5}}},
            {Segmenti, kTintaLinea, 1, {{0.5, 0.5}, {0.5, 2.5}, {0.5, 4.5}, {0.5, 6.5}, {0.5, 8.5}, {0.5, 10.5}}},
            {Segmenti, kTintaLinea, 1, {{0.5, 10.5}, {2.5, 10.5}, {10.5, 0.5}, {10.5, 2.5}}},
            {Dischi, kTintaVetro, 9, {{8.5, 8.5}}, Alone},
            {Arco, kTintaBlu, 1, {{8.5, 8.5}, {4, 0}, {0, 360}}},
            {Spezzata, kTintaBlu, 2, {{12, 12}, {14.5, 14.5}}, Libero},
        }},
        {"Sposta", 0, {
            {Segmenti, kTintaLinea, 1, {{7.5, 2.5}, {7.5, 12.5}, {2.5, 7.5}, {12.5, 7.5}}},
            {Pieno, kTintaBlu, 1, {{7.5, 0.5}, {5.5, 3.0}, {9.5, 3.0}}},
            {Pieno, kTintaBlu, 1, {{7.5, 14.5}, {5.5, 12.0}, {9.5, 12.0}}},
            {Pieno, kTintaBlu, 1, {{0.5, 7.5}, {3.0, 5.5}, {3.0, 9.5}}},
            {Pieno, kTintaBlu, 1, {{14.5, 7.5}, {12.0, 5.5}, {12.0, 9.5}}},
        }},
        {"Ridisegna", 0, {
            {Arco, kTintaBlu, 1.6, {{7, 8.5}, {5.7, 0}, {0, 275}}, Libero},
            {Pieno, kTintaBlu, 0.6, {{8.3, 0.4}, {8.3, 5.6}, {12.6, 3.0}}, Libero},
        }},
        {"Aggiungi", 0, {
            {Spezzata, kTintaLinea, 1.4, {{2.5, 11.5}, {11.5, 2.5}}, Libero},
            {Dischi, kTintaLinea, 3.6, {{2.5, 11.5}, {11.5, 2.5}}, Libero},
            {Segmenti, kTintaVerde, 2, {{11, 8}, {11, 14}, {8, 11}, {14, 11}}, Alone},
        }},
        {"Rimuovi", 0, {
            {Spezzata, kTintaLinea, 1.4, {{2.5, 11.5}, {11.5, 2.5}}, Libero},
            {Dischi, kTintaLinea, 3.6, {{2.5, 11.5}, {11.5, 2.5}}, Libero},
            {Segmenti, kTintaRosso, 2, {{8, 11}, {14, 11}}, Alone},
        }},
        {"RimuoviTutto", 0, {
            {Chiusa, kTintaLinea, 1, {{1.5, 10.5}, {1.5, 1.5}, {10.5, 1.5}}},
            {Dischi, kTintaLinea, 3, {{1.5, 10.5}, {1.5, 1.5}, {10.5, 1.5}}},
            {Segmenti, kTintaRosso, 2, {{9, 9}, {14, 14}, {14, 9}, {9, 14}}, Alone},
        }},
        {"InvertiSel", 0, {
            {Pieno, kTintaCiano, 1, {{0.5, 0.5}, {6.5, 0.5}, {6.5, 6.5}, {0.5, 6.5}}},
            {Chiusa, kTintaLinea, 1, {{0.5, 0.5}, {6.5, 0.5}, {6.5, 6.5}, {0.5, 6.5}}},
            {Pieno, kTintaCarta, 1, {{8.5, 8.5}, {14.5, 8.5}, {14.5, 14.5}, {8.5, 14.5}}},
            {Chiusa, kTintaLinea, 1, {{8.5, 8.5}, {14.5, 8.5}, {14.5, 14.5}, {8.5, 14.5}}},
            {Spezzata, kTintaLinea, 1, {{8.5, 1.5}, {11.5, 1.5}, {11.5, 4.5}}},
            {Pieno, kTintaLinea, 1, {{11.5, 6.5}, {9.5, 4.5}, {13.5, 4.5}}},
            {Spezzata, kTintaLinea, 1, {{6.5, 13.5}, {3.5, 13.5}, {3.5, 10.5}}},
            {Pieno, kTintaLinea, 1, {{3.5, 8.5}, {1.5, 10.5}, {5.5, 10.5}}},
        }},
        {"Interrompi", 0, {
            {Pieno, kTintaAmbra, 1, {{4.5, 0.5}, {10.5, 0.5}, {14.5, 4.5}, {14.5, 10.5}, {10.5, 14.5},
                       {4.5, 14.5}, {0.5, 10.5}, {0.5, 4.5}}},
            {Segmenti, kTintaCarta, 1.8, {{4.8, 4.8}, {10.2, 10.2}, {10.2, 4.8}, {4.8, 10.2}}, Libero},
        }},
        {"AggiungiBarraLat", 0, {
            {Pieno, kTintaCarta, 1, {{0.5, 1.5}, {14.5, 1.5}, {14.5, 13.5}, {0.5, 13.5}}},
            {Pieno, kTintaBlu, 1, {{9.5, 4.5}, {14.5, 4.5}, {14.5, 13.5}, {9.5, 13.5}}},
            {Chiusa, kTintaLinea, 1, {{0.5, 1.5}, {14.5, 1.5}, {14.5, 13.5}, {0.5, 13.5}}},
            {Segmenti, kTintaLinea, 1, {{0.5, 4.5}, {14.5, 4.5}}},
        }},
        {"Telva", 0, {
            {Pieno, kTintaTessera, 6, {{3, 3}, {13, 3}, {13, 13}, {3, 13}}, Libero},
            {Segmenti, kTintaFondo, 0.6, {{2.5, 6.5}, {6.5, 2.5}, {9.5, 6.5}, {13.5, 2.5}, {9.5, 10.5},
                       {13.5, 6.5}}},
            {Segmenti, kTintaFondo, 0.6, {{6.5, 2.5}, {13.5, 2.5}, {13.5, 2.5}, {13.5, 9.5}}},
            {Segmenti, kTintaTelaio, 1, {{2.5, 6.5}, {9.5, 6.5}, {2.5, 6.5}, {2.5, 13.5}, {9.5, 6.5}, {9.5, 13.5}}},
            {Spezzata, kTintaScelta, 2, {{3, 10}, {9, 10}}},
        }},
        {"Telva", 32, {
            {Pieno, kTintaTessera, 6, {{3, 3}, {13, 3}, {13, 13}, {3, 13}}, Libero},
            {Segmenti, kTintaFondo, 0.6, {{6.5, 3}, {6.5, 10}, {13.5, 3}, {13.5, 10}, {6.5, 3}, {13.5, 3},
                       {6.5, 6.5}, {13.5, 6.5}}},
            {Segmenti, kTintaFondo, 0.6, {{2.5, 6}, {6.5, 3}, {9.5, 6}, {13.5, 3}, {2.5, 9.5}, {6.5, 6.5},
                       {9.5, 9.5}, {13.5, 6.5}}},
            {Segmenti, kTintaTelaio, 0.9, {{2.5, 6}, {2.5, 13}, {9.5, 6}, {9.5, 13}, {2.5, 6}, {9.5, 6}}},
            {Dischi, kTintaTelaio, 1.8, {{2.5, 6}, {9.5, 6}, {2.5, 13}, {9.5, 13}}, Libero},
            {Segmenti, kTintaScelta, 1.6, {{2.5, 9.5}, {9.5, 9.5}}, Libero},
            {Dischi, kTintaScelta, 2.6, {{2.5, 9.5}, {9.5, 9.5}}, Libero},
        }},
    };
    // clang-format on
    return icone;
}

std::vector<PuntoIcona> Punti(const Forma &forma, const GrigliaIcona &griglia) {
    std::vector<PuntoIcona> punti;
    for (const PuntoIcona p : forma.punti)
        punti.push_back(forma.modo == Libero ? PuntoIcona{griglia.Pixel(p.x), griglia.Pixel(p.y)}
                                             : PuntoIcona{griglia.Aggancia(p.x, forma.larghezza),
                                                          griglia.Aggancia(p.y, forma.larghezza)});
    return punti;
}

// Gathers the form in the painter's mask, its pen widened by `giunta` pixels.
void Traccia(PennelloIcona &pennello, const Forma &forma, const GrigliaIcona &griglia,
             double giunta) {
    std::vector<PuntoIcona> punti = Punti(forma, griglia);
    const bool libero = forma.modo == Libero;
    const double larghezza =
        giunta + (libero ? griglia.Pixel(forma.larghezza) : griglia.Larghezza(forma.larghezza));
    const std::span<const PuntoIcona> tutti = punti;
    if (forma.specie == Arco) {
        const double raggio = griglia.Pixel(forma.punti[1].x);
        pennello.Arco(punti[0], libero ? raggio : std::round(raggio), forma.punti[2].x,
                      forma.punti[2].y, larghezza);
    } else if (forma.specie == Dischi || forma.specie == Segmenti) {
        const std::size_t passo = forma.specie == Dischi ? 1 : 2;
        for (std::size_t k = 0; k + passo <= tutti.size(); k += passo)
            pennello.Spezzata(tutti.subspan(k, passo), larghezza);
    } else {
        if (forma.specie == Pieno) pennello.Poligono(tutti);
        if (forma.specie != Spezzata) punti.push_back(punti.front());
        pennello.Spezzata(punti, larghezza);
    }
}

} // namespace

std::vector<std::uint32_t> DisegnaIcona(std::string_view chiave, int lato) {
    PennelloIcona pennello(lato);
    const Icona *scelta = nullptr;
    for (const Icona &icona : Icone())
        if (icona.chiave == chiave && lato >= icona.latoMinimo) scelta = &icona;
    if (scelta == nullptr || lato < 1) return pennello.Pixel();
    const GrigliaIcona griglia(lato);
    for (const Forma &forma : scelta->forme) {
        if (forma.modo == Alone) {
            Traccia(pennello, forma, griglia, 2 * griglia.Larghezza(1));
            pennello.Sottrai();
        }
        Traccia(pennello, forma, griglia, 0);
        pennello.Stendi(forma.colore);
    }
    return pennello.Pixel();
}

} // namespace telva

#include "ui/figure_menu.h"

#include "platform/disegno.h"
#include "selection/attributi_sel.h"
#include "ui/controlli/FormTelva.h"
#include "view/colori.h"
#include "view/retini.h"
#include "view/tipi_linea.h"

#include <array>
#include <vector>

namespace telva {
namespace {

using Genere = FiguraVoce::Genere;

constexpr std::uint32_t kOpaco = 0xFF000000;
constexpr std::uint32_t kBordo = 0x808080; // is seen on light menus and on dark ones
constexpr std::uint32_t kSegno = APixelRGB(ColoreRGB(kBianco));
constexpr int kLarghezze = 3;    // of a piece of line, in heights: its pattern repeats
constexpr double kStretto = 0.4; // hatches are closer here: some lines of each are seen

void Incornicia(Superficie &s, int spessore) {
    const int destra = s.Larghezza() - 1, fondo = s.Altezza() - 1;
    for (int k = 0; k < spessore; ++k) {
        s.Linea({k, k}, {destra - k, k}, kBordo);
        s.Linea({k, fondo - k}, {destra - k, fondo - k}, kBordo);
        s.Linea({k, k}, {k, fondo - k}, kBordo);
        s.Linea({destra - k, k}, {destra - k, fondo - k}, kBordo);
    }
}

// One colour, or all that the menu names, in as many rows as columns; squares to spare go round to
// the first colours.
void DisegnaColori(Superficie &s, int codice) {
    constexpr int kMostrati = kNumeroColori - kBianco;
    int lato = 1;
    while (lato * lato < kMostrati) ++lato;
    for (int y = 0; y < s.Altezza(); ++y)
        for (int x = 0; x < s.Larghezza(); ++x) {
            const int casella = y * lato / s.Altezza() * lato + x * lato / s.Larghezza();
            s.Riga(y)[x] = APixelRGB(
                ColoreRGB(codice == kOgniColore ? kBianco + casella % kMostrati : codice));
        }
}

// One line type in the middle, or the first ones, one below the other: more of them would run
// together.
void DisegnaLinee(Superficie &s, int codice, double quanto, int penna) {
    const bool tutte = codice == kOgniLinea;
    const int prima = tutte ? 0 : codice, quante = tutte ? 3 : 1;
    for (int k = 0; k < quante; ++k) {
        const int y = (2 * k + 1) * s.Altezza() / (2 * quante);
        s.Traccia({2 * penna, y}, {s.Larghezza() - 1 - 2 * penna, y}, penna, kSegno,
                  TrattiniLinea(prima + k, quanto));
    }
}

// One hatch, or three that differ at a glance, side by side.
void DisegnaRetini(Superficie &s, int codice, double quanto, int penna) {
    const bool tutti = codice == kOgniRetino;
    const std::vector<int> tipi = tutti ? std::vector{2, 3, 7} : std::vector{codice};
    const int quanti = static_cast<int>(tipi.size());
    const Retini retini(kStretto * quanto, penna);
    for (int k = 0; k < quanti; ++k) {
        const int da = k * s.Larghezza() / quanti, a = (k + 1) * s.Larghezza() / quanti;
        const std::array<Pixel, 4> angoli = {
            {{da, 0}, {a, 0}, {a, s.Altezza()}, {da, s.Altezza()}}};
        retini.Riempi(s, angoli, tipi[static_cast<std::size_t>(k)], kSegno);
    }
}

} // namespace

// Opaque, ground and all: nothing of it depends on the colour of the menu or of the chosen item.
Figura DisegnaFigura(const FiguraVoce &voce, int altezza, double quanto) {
    if (voce.genere == Genere::Nessuna) return {};
    const bool colore = voce.genere == Genere::Colore;
    const int larghezza = colore ? altezza : kLarghezze * altezza;
    const int penna = RiquadroDisegno::PennaIntera(quanto);
    Superficie s;
    s.Ridimensiona(larghezza, altezza);
    s.Riempi(APixelRGB(FormTelva.Disegno.BackColor));
    if (colore) DisegnaColori(s, voce.codice);
    if (voce.genere == Genere::Linea) DisegnaLinee(s, voce.codice, quanto, penna);
    if (voce.genere == Genere::Retino) DisegnaRetini(s, voce.codice, quanto, penna);
    Incornicia(s, penna);
    Figura figura{larghezza, altezza, {s.Riga(0), s.Riga(altezza)}};
    for (std::uint32_t &p : figura.pixel) p |= kOpaco;
    return figura;
}

} // namespace telva

#include "ui/figure_menu.h"

#include "platform/disegno.h"
#include "platform/interi.h"
#include "ui/controlli/FormTelva.h"
#include "view/colori.h"
#include "view/retini.h"
#include "view/tratti.h"

#include <algorithm>
#include <array>

namespace telva {
namespace {

using Genere = FiguraVoce::Genere;

constexpr std::uint32_t kOpaco = 0xFF000000;
constexpr std::uint32_t kBordo = 0x808080; // is seen on light menus and on dark ones
constexpr int kLarghezze = 3;              // of a piece of line, in heights: its pattern repeats
constexpr double kStretto = 0.4;           // hatches are closer here: some lines of each are seen

void Incornicia(Superficie &s, int spessore) {
    const int destra = s.Larghezza() - 1, fondo = s.Altezza() - 1;
    for (int k = 0; k < spessore; ++k) {
        s.Linea({k, k}, {destra - k, k}, kBordo);
        s.Linea({k, fondo - k}, {destra - k, fondo - k}, kBordo);
        s.Linea({k, k}, {k, fondo - k}, kBordo);
        s.Linea({destra - k, k}, {destra - k, fondo - k}, kBordo);
    }
}

} // namespace

// Opaque, ground and all: nothing of it depends on the colour of the menu or of the chosen item.
Figura DisegnaFigura(const FiguraVoce &voce, int altezza, double quanto) {
    if (voce.genere == Genere::Nessuna) return {};
    const int larghezza = voce.genere == Genere::Colore ? altezza : kLarghezze * altezza;
    const int penna = std::max(InteroVicino(quanto), 1), mezzo = altezza / 2;
    const std::uint32_t segno = APixelRGB(ColoreRGB(kBianco));
    Superficie s;
    s.Ridimensiona(larghezza, altezza);
    s.Riempi(APixelRGB(voce.genere == Genere::Colore ? ColoreRGB(voce.codice)
                                                     : FormTelva.Disegno.BackColor));
    if (voce.genere == Genere::Retino) {
        const std::array<Pixel, 4> angoli = {
            {{0, 0}, {larghezza, 0}, {larghezza, altezza}, {0, altezza}}};
        RiempiRetino(s, angoli, voce.codice, segno, kStretto * quanto, penna);
    }
    if (voce.genere == Genere::Tratto)
        s.Traccia({2 * penna, mezzo}, {larghezza - 1 - 2 * penna, mezzo}, penna, segno,
                  TrattoLinea(voce.codice, quanto));
    Incornicia(s, penna);
    Figura figura{larghezza, altezza, {s.Riga(0), s.Riga(altezza)}};
    for (std::uint32_t &p : figura.pixel) p |= kOpaco;
    return figura;
}

} // namespace telva

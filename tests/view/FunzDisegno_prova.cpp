#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "sostegno/Banco.h"
#include "ui/controlli/FormTelva.h"
#include "view/FunzDisegno.h"
#include "view/inquadra.h"
#include "view/visibile.h"
#include <set>
using namespace telva;
using namespace telva::prove;
using Zona = std::vector<std::uint32_t>;

// Draws only the kinds asked for (N, A, G, X for the triad); the lit pixels of a rectangle, or all.
static Zona Dipingi(char tipo, double x0 = -1e6, double y0 = -1e6, double x1 = 1e6, double y1 = 1e6,
                    bool tutti = false) {
    RiquadroDisegno &d = FormTelva.Disegno;
    FormTelva.NodiAtt.Value = tipo == 'N', FormTelva.AsteAtt.Value = tipo == 'A';
    FormTelva.GusciAtt.Value = tipo == 'G', FormTelva.VisAssi.Checked = tipo == 'X';
    Opzioni[kOpzTestiElCont] = 0.0, CalcolaAttivi(), DisegnaStruttura();
    bool fuori = false;
    const Pixel a = d.InPixel(x0, y1, fuori), b = d.InPixel(x1, y0, fuori);
    Zona zona;
    for (int y = std::max(a.y, 0); y <= std::min(b.y, d.AltezzaPixel() - 1); ++y)
        for (int x = std::max(a.x, 0); x <= std::min(b.x, d.LarghezzaPixel() - 1); ++x)
            if (const auto p = d.Immagine().Leggi(x, y); p != 0 || tutti) zona.push_back(p);
    return zona;
}
TEST_F(Banco, ColoriSpessoriAssiERetini) {
    Apri(Telaio());
    TrattGuscio[0] = 0;
    for (const int caso : {0, 1, 2, 3}) { // option, selected
        SelNodo[0] = SelAsta[0] = SelGuscio[0] = caso & 1 ? 1 : 0;
        Opzioni[kOpzColoreSel] = double(caso / 2);
        const bool suo = caso == 1 || caso == 2;
        EXPECT_EQ(Dipingi('A', 50, -8, 50, 8), Zona(caso & 1 ? 4 : 1, suo ? 0xFFFFFF : 0xFFFF));
        EXPECT_EQ(Dipingi('G', 50, -8, 50, 8), Zona(caso & 1 ? 4 : 1, suo ? 0xFF0000 : 0xFFFF));
        EXPECT_EQ(Dipingi('N', 0, 0, 8, 0)[0], suo ? 0xFFFFFFu : 0xFFFFu);
    }
    SelElCont[1] = 1; // its bars count as selected
    EXPECT_EQ(Dipingi('A', 50, 92, 50, 108), Zona(4, 0x00FFFF));
    ColAsta[0] = ColNodo[1] = 10, NomeAsta[1] = 0, NodiGuscio[0][3] = -1, SpessoreGuscio[3] = 3;
    EXPECT_EQ(Dipingi('A', 9, 0, 90, 0).size() + Dipingi('A', 110, 0, 190, 0).size(), 0u);
    EXPECT_EQ(Dipingi('N', 90, -9, 110, 9).size() + Dipingi('G', 0, 50, 9, 90).size(), 0u);
    EXPECT_EQ(Dipingi('G', 9, 200, 90, 200).size(), 0u);    // thin
    EXPECT_GT(Dipingi('G', 110, 200, 190, 200).size(), 9u); // of a card that does not exist
    ColAsta[0] = 1, SelAsta[0] = 0;
    std::set<Zona> sottili, larghe; // wide pens draw continuous lines
    for (TipoLinAsta[0] = 0; TipoLinAsta[0] < 5; ++TipoLinAsta[0]) {
        Opzioni[kOpzPennaNonSel] = 1.0, sottili.insert(Dipingi('A', 0, 0, 100, 0, true));
        Opzioni[kOpzPennaNonSel] = 2.0, larghe.insert(Dipingi('A', 0, 0, 100, 0, true));
    }
    EXPECT_EQ(sottili.size() * 10 + larghe.size(), 51u);
    const double destra = FormTelva.Disegno.XDaPixel(80), alto = -22 + 80 / 580.0 * 242;
    const std::size_t assi = Dipingi('X').size() + Dipingi('0').size();
    EXPECT_EQ(Dipingi('X', -1e6, -1e6, destra, alto),
              Zona(std::max(assi, std::size_t{80}), 0xFFFF00));
    OpzInt[2] = 0;
    EXPECT_EQ(Dipingi('X').size(), 0u);
    NumGusci = 1; // the triangle (0,0) (100,0) (100,100)
    std::set<Zona> vicini, lontani;
    for (TrattGuscio[0] = 0; TrattGuscio[0] < 10; ++TrattGuscio[0]) {
        vicini.insert(Dipingi('G', 0, 0, 100, 100, true));
        EXPECT_EQ(Dipingi('G', -1e6, -1e6, 1e6, -1).size() + Dipingi('G', -1e6, 50, 48).size(), 0u);
    }
    FinestraZoom = {2180, -2180, 2180, -2180}, Adatta(); // eleven pixels: too small for a hatch
    while (--TrattGuscio[0] >= 0) lontani.insert(Dipingi('G', 0, 0, 100, 100, true));
    EXPECT_EQ(vicini.size() * 10 + lontani.size(), 91u);
}

// Direct pick, at one drawing unit a pixel with an aperture of 5.
#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "selection/selezione.h"
#include "selection/trappola.h"
#include "sostegno/Banco.h"
#include "ui/controlli/FormTelva.h"
#include <sstream>

namespace telva::prove {
TEST_F(Banco, SelezioneDirettaColpisceESceglie) {
    LavoroProva l;
    const auto nodo = [&](double x, double y, int nome) {
        l.punti.push_back({x, 0, y});
        l.nodi.push_back({static_cast<int>(l.punti.size()) - 1, nome});
        return static_cast<int>(l.nodi.size()) - 1;
    };
    // Groups of nodes around x = 100, named from 1: one group a line of the drawing.
    std::istringstream nodi(R"(103 20 97 20 103 40 101 40 105 60 104.99 80 101 100 101 100 101 100
        103 100 101.4 120 101.2 120 102.5 140 102.25 140 103.5 160 103.25 160 102.75 180 101.25 180
        102.875 180)"),
        aste(R"(100 500 130 500 400 500 430 530 50 20 50.0099 20 50 6 50 6.0101 700 0 700 40
        701 0 701 40 702 0 702 40)"),
        clic(R"(0 100 20 1 0 100 40 4 0 100 60 0 0 100 80 6 0 100 100 10 0 100 120 11 0 100 140 13
        0 100 160 16 0 100 180 18 0 100 200 20 1 115 504.9 1 1 115 505 0 1 134.9 500 1 1 135 500 0
        1 95.1 503 1 1 95 500 0 1 434.9 534.9 2 1 435 535 0 1 418 512 2 1 419 511 0 1 50 20 0
        1 50 6 4 1 700 20 5 2 40 20 1 2 20 20 1 2 60 40 1 2 60.001 20 0 2 40 40.001 0 2 10 40 0
        2 40 4e-5 1 2 70 4e-5 0 2 10 4e-5 0 2 230 10 2 2 220 20 2 2 210 30 0 2 330 10 4 2 310 30 0
        3 700 20 20 3 115 500 0 4 40 20 0)"); // kind, place, who is taken
    double x = 0, y = 0, xJ = 0, yJ = 0;
    for (int nome = 1; nodi >> x >> y; ++nome) nodo(x, y, nome);
    for (int nome = 20; nome < 71; ++nome) nodo(nome < 70 ? 103 : 101, 200, nome);
    for (int nome = 1; aste >> x >> y >> xJ >> yJ; ++nome)
        l.aste.push_back({nodo(x, y, 0), nodo(xJ, yJ, 0), nome});
    l.gusci = {{{nodo(20, 0, 0), nodo(60, 8e-5, 0), nodo(60, 40, 0), nodo(20, 40, 0)}, 1},
               {{nodo(200, 0, 0), nodo(240, 0, 0), nodo(240, 40, 0), -1}, 2},
               {{nodo(200, 0, 0), nodo(240, 0, 0), nodo(240, 40, 0), -1}, 3},
               {{nodo(300, 0, 0), nodo(340, 0, 0), nodo(340, 40, 0), 0}, 4}}; // 0: a triangle here
    for (int k = 5; k < 8; ++k) l.elementi.push_back({10 * k - 40, "", {k}});
    Apri(l);
    FormTelva.Disegno.Width = FormTelva.Disegno.Height = 15000;
    FormTelva.Disegno.Scale(0, 1000, 1000, 0);
    OpzInt[1] = 5;
    AttNodo[6] = ColNodo[7] = NomeNodo[8] = AttAsta[6] = 0;
    CodFunAttiva = kAggiungi;
    for (int tipo = 0, atteso = 0; clic >> tipo >> x >> y >> atteso;) {
        FormTelva.OptElem[tipo].Seleziona();
        EXPECT_EQ(SelezioneDiretta(x, y), atteso) << tipo << " " << x << " " << y;
        OpzInt[1] = 0;
        EXPECT_EQ(SelezioneDiretta(x, y), 0) << "without an aperture";
        OpzInt[1] = 5;
    }
    FormTelva.OptElem[0].Seleziona();
    SelNodo[0] = 1;
    EXPECT_EQ(SelezioneDiretta(100, 20), 2) << "what is left to add";
    CodFunAttiva = kRimuovi;
    EXPECT_EQ(SelezioneDiretta(100, 20), 1) << "what can be removed";
    EXPECT_EQ(SelezioneDiretta(100, 40), 4) << "the nearest when nothing can";
}
} // namespace telva::prove

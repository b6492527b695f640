// Direct pick, at one drawing unit a pixel with an aperture of 5.
#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "selection/selezione.h"
#include "selection/trappola.h"
#include "sostegno/Banco.h"
#include "ui/controlli/FormTelva.h"

namespace telva::prove {

struct TrappolaProva : Banco {
    LavoroProva lavoro;

    struct Luogo {
        double x, y;
    };
    // Nodes that are only ends have no name.
    int Nodo(Luogo dove, int nome = 0) {
        const auto punto = static_cast<int>(lavoro.punti.size());
        lavoro.punti.push_back({dove.x, 0, dove.y});
        lavoro.nodi.push_back({.punto = punto, .nome = nome});
        return punto;
    }
    void Asta(Luogo i, Luogo j) {
        const int nodoI = Nodo(i), nodoJ = Nodo(j);
        lavoro.aste.push_back(
            {.i = nodoI, .j = nodoJ, .nome = static_cast<int>(lavoro.aste.size()) + 1});
    }
    enum class Quarto { Quadrilatero, Nessuno, Zero }; // what the fourth corner of a shell says
    void Guscio(Luogo a, Luogo b, Luogo c, Luogo d, Quarto quarto) {
        const int nodi[] = {Nodo(a), Nodo(b), Nodo(c)};
        const int ultimo = quarto == Quarto::Quadrilatero ? Nodo(d)
                           : quarto == Quarto::Zero       ? 0
                                                          : -1;
        lavoro.gusci.push_back({.nodi = {nodi[0], nodi[1], nodi[2], ultimo},
                                .nome = static_cast<int>(lavoro.gusci.size()) + 1});
    }
    void ApriAlPixel() {
        Apri(lavoro);
        FormTelva.Disegno.Width = FormTelva.Disegno.Height = 15000; // 1000 pixels
        FormTelva.Disegno.Scale(0, 1000, 1000, 0);
        OpzInt[1] = 5;
        CodFunAttiva = kAggiungi;
    }
    int Preso(int tipo, Luogo dove) {
        FormTelva.OptElem[tipo].Seleziona();
        return SelezioneDiretta(dove.x, dove.y);
    }
    struct Clic {
        Luogo dove;
        int preso; // its name, 0 for none
    };
    void Controlla(int tipo, const std::vector<Clic> &clic) {
        for (const auto &[dove, preso] : clic) {
            OpzInt[1] = 5;
            EXPECT_EQ(Preso(tipo, dove), preso) << "at " << dove.x << ", " << dove.y;
            OpzInt[1] = 0;
            EXPECT_EQ(Preso(tipo, dove), 0) << "without an aperture";
        }
    }
};

TEST_F(TrappolaProva, DiUnNodoContaLaDistanzaEPoiLOrdine) {
    const std::vector<std::pair<Luogo, int>> nodi = {
        {{103, 20}, 1},      {{97, 20}, 2},     // equally far: the first one
        {{103, 40}, 3},      {{101, 40}, 4},    // the nearest
        {{105, 60}, 5},      {{104.99, 80}, 6}, // exactly at the aperture is outside
        {{101, 100}, 7},     {{101, 100}, 8},     {{101, 100}, 9},
        {{103, 100}, 10},    {{101.4, 120}, 11},  {{101.2, 120}, 12}, // moved back, 1.4 counts as 1
        {{102.5, 140}, 13},  {{102.25, 140}, 14},                     // 2.5 as 2
        {{103.5, 160}, 15},  {{103.25, 160}, 16},                     // 3.5 as 4
        {{102.75, 180}, 17}, {{101.25, 180}, 18}, {{102.875, 180}, 19}};
    for (const auto &[dove, nome] : nodi) Nodo(dove, nome);
    ApriAlPixel();
    AttNodo[6] = 0;  // 7 is not shown
    ColNodo[7] = 0;  // 8 has no colour
    NomeNodo[8] = 0; // 9 is absent
    Controlla(kNodiTipo, {{.dove = {100, 20}, .preso = 1},
                          {.dove = {100, 40}, .preso = 4},
                          {.dove = {100, 60}, .preso = 0},
                          {.dove = {100, 80}, .preso = 6},
                          {.dove = {100, 100}, .preso = 10},
                          {.dove = {100, 120}, .preso = 11},
                          {.dove = {100, 140}, .preso = 13},
                          {.dove = {100, 160}, .preso = 16},
                          {.dove = {100, 180}, .preso = 18}});
}

TEST_F(TrappolaProva, ConcorronoSoloIPrimiCinquanta) {
    for (int nome = 1; nome <= 49; ++nome) Nodo({103, 200}, nome);
    Nodo({102, 200}, 50);
    Nodo({101, 200}, 51);
    ApriAlPixel();
    EXPECT_EQ(Preso(kNodiTipo, {100, 200}), 50) << "51 is nearer, but comes too late";
}

TEST_F(TrappolaProva, UnAstaSiPrendeLungoLaSuaLineaEUnPoOltre) {
    Asta({100, 500}, {130, 500});
    Asta({400, 500}, {430, 530});
    Asta({50, 20}, {50.0099, 20}); // seen from its end: a length below 0.01 is none
    Asta({50, 6}, {50.0101, 6});
    ApriAlPixel();
    Controlla(kAsteTipo, {{.dove = {115, 504.9}, .preso = 1},
                          {.dove = {115, 505}, .preso = 0},
                          {.dove = {134.9, 500}, .preso = 1},
                          {.dove = {135, 500}, .preso = 0},
                          {.dove = {95.1, 503}, .preso = 1},
                          {.dove = {95, 500}, .preso = 0},
                          {.dove = {434.9, 534.9}, .preso = 2},
                          {.dove = {435, 535}, .preso = 0},
                          {.dove = {418, 512}, .preso = 2},
                          {.dove = {419, 511}, .preso = 0},
                          {.dove = {50, 20}, .preso = 0},
                          {.dove = {50, 6}, .preso = 4}});
}

TEST_F(TrappolaProva, DiUnElementoContinuoContaLUltimaAstaToccata) {
    Asta({700, 0}, {700, 40});
    Asta({701, 0}, {701, 40});
    Asta({702, 0}, {702, 40});
    Asta({100, 500}, {130, 500}); // of no element
    for (const int asta : {1, 2, 3})
        lavoro.elementi.push_back({.numero = asta * 10, .nome = "", .aste = {asta}});
    ApriAlPixel();
    AttAsta[2] = 0;
    EXPECT_EQ(Preso(kAsteTipo, {700, 20}), 1);
    Controlla(kElContTipo, {{.dove = {700, 20}, .preso = 20}, {.dove = {115, 500}, .preso = 0}});
}

TEST_F(TrappolaProva, UnGuscioSiPrendeDaDentro) {
    Nodo({0, 0}); // node 0, that only a fourth corner names
    Guscio({20, 0}, {60, 8e-5}, {60, 40}, {20, 40}, Quarto::Quadrilatero);
    Guscio({200, 0}, {240, 0}, {240, 40}, {}, Quarto::Nessuno);
    Guscio({200, 0}, {240, 0}, {240, 40}, {}, Quarto::Nessuno); // over the second
    Guscio({300, 0}, {340, 0}, {340, 40}, {}, Quarto::Zero);    // picked as a triangle
    ApriAlPixel();
    Controlla(kGusciTipo, {{.dove = {40, 20}, .preso = 1},
                           {.dove = {20, 20}, .preso = 1},
                           {.dove = {60, 40}, .preso = 1},
                           {.dove = {60.001, 20}, .preso = 0},
                           {.dove = {40, 40.001}, .preso = 0},
                           {.dove = {10, 40}, .preso = 0},
                           {.dove = {40, 4e-5}, .preso = 1}, // an edge this flat is level
                           {.dove = {70, 4e-5}, .preso = 0},
                           {.dove = {10, 4e-5}, .preso = 0},
                           {.dove = {230, 10}, .preso = 2},
                           {.dove = {220, 20}, .preso = 2},
                           {.dove = {210, 30}, .preso = 0},
                           {.dove = {330, 10}, .preso = 4},
                           {.dove = {310, 30}, .preso = 0}});
    EXPECT_EQ(Preso(kParetiTipo, {40, 20}), 0);
}

TEST_F(TrappolaProva, SiPrendeCioCheLaFunzioneCambia) {
    Nodo({103, 20}, 1);
    Nodo({97, 20}, 2);
    Nodo({103, 40}, 3);
    Nodo({101, 40}, 4);
    ApriAlPixel();
    EXPECT_EQ(Preso(kNodiTipo, {100, 20}), 1);
    SelNodo[0] = 1;
    EXPECT_EQ(Preso(kNodiTipo, {100, 20}), 2) << "what is left to add";
    SelNodo[1] = 1;
    EXPECT_EQ(Preso(kNodiTipo, {100, 20}), 1) << "nothing is left: the nearest";
    SelNodo[0] = 0;
    CodFunAttiva = kRimuovi;
    EXPECT_EQ(Preso(kNodiTipo, {100, 20}), 2) << "what can be removed";
    EXPECT_EQ(Preso(kNodiTipo, {100, 40}), 4) << "the nearest when nothing can";
}

} // namespace telva::prove

// Direct pick to the very edge, at one drawing unit a pixel with an aperture of 5.
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
        Nota(Scritto("Nodo", dove.x, dove.y, nome));
        return punto;
    }
    void NodiDa(int primo, const std::vector<Luogo> &luoghi) {
        for (const Luogo &dove : luoghi) Nodo(dove, primo++);
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
        OpzInt[kOpzTrappola] = 5;
        CodFunAttiva = kAggiungi;
    }
    int Preso(int tipo, Luogo dove) {
        Nota(Scritto("Preso", tipo, dove.x, dove.y, OpzInt[kOpzTrappola]));
        FormTelva.OptElem[tipo].Seleziona();
        return SelezioneDiretta(dove.x, dove.y);
    }
    // A click at each of these places takes `nome`, 0 for nothing; none does without an aperture.
    void Prende(int tipo, int nome, const std::vector<Luogo> &luoghi) {
        for (const Luogo &l : luoghi) {
            OpzInt[kOpzTrappola] = 5;
            EXPECT_EQ(Preso(tipo, l), nome) << "at " << l.x << ", " << l.y;
            OpzInt[kOpzTrappola] = 0;
            EXPECT_EQ(Preso(tipo, l), 0) << "without an aperture";
        }
    }
};

TEST_F(TrappolaProva, DiUnNodoContaLaDistanzaEPoiLOrdine) {
    constexpr int kNascosto = 7, kSenzaColore = 8, kAssente = 9;
    NodiDa(1, {{103, 20}, {97, 20}});     // equally far: the first one
    NodiDa(3, {{103, 40}, {101, 40}});    // the nearest
    NodiDa(5, {{105, 60}, {104.99, 80}}); // exactly at the aperture is outside
    NodiDa(kNascosto, {{101, 100}, {101, 100}, {101, 100}, {103, 100}});
    NodiDa(11, {{101.4, 120}, {101.2, 120}});  // moved back, 1.4 counts as 1
    NodiDa(13, {{102.5, 140}, {102.25, 140}}); // 2.5 as 2
    NodiDa(15, {{103.5, 160}, {103.25, 160}}); // 3.5 as 4
    NodiDa(17, {{102.75, 180}, {101.25, 180}, {102.875, 180}});
    ApriAlPixel();
    AttNodo[kNascosto - 1] = 0; // the name of each node is its place, from 1
    ColNodo[kSenzaColore - 1] = 0;
    NomeNodo[kAssente - 1] = 0;
    Prende(kNodiTipo, 1, {{100, 20}});
    Prende(kNodiTipo, 4, {{100, 40}});
    Prende(kNodiTipo, 0, {{100, 60}});
    Prende(kNodiTipo, 6, {{100, 80}});
    Prende(kNodiTipo, 10, {{100, 100}});
    Prende(kNodiTipo, 11, {{100, 120}});
    Prende(kNodiTipo, 13, {{100, 140}});
    Prende(kNodiTipo, 16, {{100, 160}});
    Prende(kNodiTipo, 18, {{100, 180}});
}

TEST_F(TrappolaProva, ContanoICinquantaPrimi) {
    const auto fino = [&](const auto &aggiungi) { // the 50th is near, the one after it nearest
        for (int k = 1; k < 50; ++k) aggiungi(4);
        aggiungi(2);
        aggiungi(0);
    };
    fino([&](int lontano) {
        NodiDa(static_cast<int>(lavoro.nodi.size()) + 1, {{100.0 + lontano, 20}});
    });
    fino([&](int lontano) { Asta({100, 500.0 + lontano}, {130, 500.0 + lontano}); });
    ApriAlPixel();
    Prende(kNodiTipo, 50, {{100, 20}});
    Prende(kAsteTipo, 50, {{115, 500}});
}

TEST_F(TrappolaProva, LaTrappolaCresceConLaFinestra) {
    Nodo({100, 20}, 1);
    ApriAlPixel();
    for (const double dpi : {96.0, 144.0, 192.0}) { // as many units: more pixels
        FormTelva.dpi = dpi;
        FormTelva.Disegno.Cls();
        Prende(kNodiTipo, 1, {{104.9, 20}});
        Prende(kNodiTipo, 0, {{105.1, 20}});
    }
    FormTelva.dpi = 96;
}

TEST_F(TrappolaProva, UnAstaSiPrendeLungoLaSuaLineaEUnPoOltre) {
    Asta({100, 500}, {130, 500});
    Asta({400, 500}, {430, 530});
    Asta({50, 20}, {50.0099, 20}); // seen from its end: a length below 0.01 is none
    Asta({50, 6}, {50.0101, 6});
    lavoro.elementi = {{.numero = 7, .nome = "Intero", .aste = {1}},
                       {.numero = 8, .nome = "Rotto", .aste = {1, 20001}}}; // no bar has that name
    ApriAlPixel();
    Prende(kElContTipo, 7, {{115, 500}});
    Prende(kAsteTipo, 1, {{115, 504.9}, {134.9, 500}, {95.1, 503}});
    Prende(kAsteTipo, 0, {{115, 505}, {135, 500}, {95, 500}});
    Prende(kAsteTipo, 2, {{434.9, 534.9}, {418, 512}});
    Prende(kAsteTipo, 0, {{435, 535}, {419, 511}, {50, 20}});
    Prende(kAsteTipo, 4, {{50, 6}});
}

TEST_F(TrappolaProva, UnGuscioSiPrendeDaDentro) {
    Nodo({0, 0}); // node 0, that only a fourth corner names
    Guscio({20, 0}, {60, 8e-5}, {60, 40}, {20, 40}, Quarto::Quadrilatero);
    Guscio({200, 0}, {240, 0}, {240, 40}, {}, Quarto::Nessuno);
    Guscio({200, 0}, {240, 0}, {240, 40}, {}, Quarto::Nessuno); // over the second
    Guscio({300, 0}, {340, 0}, {340, 40}, {}, Quarto::Zero);    // picked as a triangle
    ApriAlPixel();
    // An edge as flat as the first one of shell 1 is level.
    Prende(kGusciTipo, 1, {{40, 20}, {20, 20}, {60, 40}, {40, 4e-5}});
    Prende(kGusciTipo, 0, {{60.001, 20}, {40, 40.001}, {10, 40}, {70, 4e-5}, {10, 4e-5}});
    Prende(kGusciTipo, 2, {{230, 10}, {220, 20}});
    Prende(kGusciTipo, 0, {{210, 30}, {310, 30}});
    Prende(kGusciTipo, 4, {{330, 10}});
}

} // namespace telva::prove

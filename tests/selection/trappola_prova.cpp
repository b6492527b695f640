// Direct pick, at one drawing unit a pixel with an aperture of 5.
#include "sostegno/Banco.h"

#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "selection/selezione.h"
#include "selection/trappola.h"
#include "ui/controlli/FormTelva.h"
#include "view/proiezione.h"

namespace telva::prove {
namespace {

struct Punto {
    double x, y;
};

struct TrappolaProva : Banco {
    TrappolaProva() {
        FormTelva.Disegno.Width = 1500;
        FormTelva.Disegno.Height = 1500;
        FormTelva.Disegno.Scale(0, 100, 100, 0);
        OpzInt[1] = 5;
        CodFunAttiva = kAggiungi;
        CalcolaTrappola();
    }
    // A node on a point of its own, named from 1; the tables of a test start empty.
    static std::int16_t Nodo(Punto p, int sel = 0, int colore = 1, int att = 1) {
        const std::int16_t i = NumNodi++;
        PuntoNodo[i] = i;
        XDis[i] = p.x;
        YDis[i] = p.y;
        NomeNodo[i] = NumNodi;
        SelNodo[i] = static_cast<std::int16_t>(sel);
        ColNodo[i] = static_cast<std::int16_t>(colore);
        AttNodo[i] = static_cast<std::int16_t>(att);
        return i;
    }
    static std::int16_t Asta(Punto i, Punto j) {
        const std::int16_t b = NumAste++;
        NodoIAsta[b] = Nodo(i);
        NodoJAsta[b] = Nodo(j);
        NomeAsta[b] = NumAste;
        ColAsta[b] = AttAsta[b] = 1;
        return b;
    }
    static void Guscio(const std::vector<Punto> &angoli, std::int16_t quarto) {
        const std::int16_t s = NumGusci++;
        NodiGuscio[s][3] = quarto;
        for (std::size_t c = 0; c < angoli.size(); ++c) NodiGuscio[s][c] = Nodo(angoli[c]);
        NomeGuscio[s] = NumGusci;
        ColGuscio[s] = AttGuscio[s] = 1;
    }
};

TEST_F(TrappolaProva, SceltaTraINodi) {
    struct Caso {
        std::vector<std::array<double, 4>> nodi; // distance from the click, flag, colour, active
        int aggiungi, rimuovi;                   // names
    };
    static const Caso kCasi[] = {
        {{}, 0, 0},
        {{{3, 0, 1, 1}, {-3, 0, 1, 1}}, 1, 1},
        {{{3, 0, 1, 1}, {1, 0, 1, 1}}, 2, 2},
        {{{5, 0, 1, 1}}, 0, 0}, // the aperture itself is outside
        {{{4.99, 0, 1, 1}}, 1, 1},
        {{{1, 1, 1, 1}, {3, 0, 1, 1}}, 2, 1},
        {{{1, 1, 1, 1}, {3, 1, 1, 1}}, 1, 1},
        {{{1, 0, 0, 1}, {2, 0, 1, 0}, {3, 0, 10, 1}}, 3, 3},
        // The distance that moves down loses its fraction, halves to the even number.
        {{{1.4, 0, 1, 1}, {1.2, 0, 1, 1}}, 1, 1},
        {{{2.5, 0, 1, 1}, {2.25, 0, 1, 1}}, 1, 1},
        {{{3.5, 0, 1, 1}, {3.25, 0, 1, 1}}, 2, 2},
        {{{2.75, 0, 1, 1}, {1.25, 0, 1, 1}, {2.875, 0, 1, 1}}, 2, 2}};
    for (const auto &c : kCasi)
        for (const Funzione f : {kAggiungi, kRimuovi}) {
            NumNodi = 0;
            CodFunAttiva = f;
            for (const auto &[d, sel, colore, att] : c.nodi)
                Nodo({50 + d, 50}, int(sel), int(colore), int(att));
            EXPECT_EQ(SelezioneDiretta(50, 50), f == kAggiungi ? c.aggiungi : c.rimuovi)
                << &c - kCasi;
        }
    NumNodi = 0; // only the first fifty compete; an absent one is none of them
    for (int k = 0; k < 52; ++k) Nodo({50 + (k < 51 ? 3 : 1), 50}, k < 50);
    NomeNodo[0] = 0;
    EXPECT_EQ(SelezioneDiretta(50, 50), 2); // all selected: the nearest of nodes 2..51 but 51
    SelNodo[50] = 1;
    EXPECT_EQ(SelezioneDiretta(50, 50), 2);
}

TEST_F(TrappolaProva, AstaDentroLaTrappola) {
    static const struct {
        Punto i, j, click;
        int preso;
    } kCasi[] = {{{20, 50}, {50, 50}, {35, 54.9}, 1},     {{20, 50}, {50, 50}, {35, 55}, 0},
                 {{20, 50}, {50, 50}, {54.9, 50}, 1},     {{20, 50}, {50, 50}, {55, 50}, 0},
                 {{20, 50}, {50, 50}, {15.1, 47}, 1},     {{50, 50}, {20, 50}, {15, 50}, 0},
                 {{0, 0}, {30, 30}, {34.9, 34.9}, 1},     {{0, 0}, {30, 30}, {35, 35}, 0},
                 {{0, 0}, {30, 30}, {18, 12}, 1},         {{0, 0}, {30, 30}, {19, 11}, 0},
                 {{50, 50}, {50.0099, 50}, {50, 50}, 0}, {{50, 50}, {50, 50.0101}, {50, 50}, 1}};
    for (const auto &c : kCasi) {
        NumNodi = NumAste = 0;
        double d = -1;
        EXPECT_EQ(PickAsta(Asta(c.i, c.j), c.click.x, c.click.y, d), c.preso) << &c - kCasi;
        EXPECT_EQ(d >= 0, c.preso == 1);
    }
}

TEST_F(TrappolaProva, PuntoNelGuscio) {
    const std::vector<Punto> quadrato = {{20, 20}, {60, 20}, {60, 60}, {20, 60}},
                             triangolo = {{20, 20}, {60, 20}, {60, 60}},
                             quasiPiano = {{20, 20}, {60, 20.00008}, {60, 60}, {20, 60}};
    const struct {
        const std::vector<Punto> &angoli;
        Punto click;
        int preso;
    } casi[] = {{quadrato, {40, 40}, 1},     {quadrato, {20, 40}, 1},
                {quadrato, {40, 20}, 1},     {quadrato, {60, 60}, 1},
                {quadrato, {60.001, 40}, 0}, {quadrato, {10, 20}, 0},
                {quadrato, {10, 60}, 0},     {quadrato, {40, 60.001}, 0},
                {triangolo, {50, 30}, 1},    {triangolo, {40, 40}, 1},
                {triangolo, {30, 50}, 0},    {quasiPiano, {40, 20.00004}, 1},
                {quasiPiano, {70, 20.00004}, 0}, {quasiPiano, {10, 20.00004}, 0}};
    for (const std::int16_t quarto : {-1, 0}) // both make a triangle here
        for (const auto &c : casi) {
            NumNodi = NumGusci = 0;
            Guscio(c.angoli, quarto);
            EXPECT_EQ(PickGuscio(0, c.click.x, c.click.y), c.preso)
                << &c - casi << " (" << c.click.x << ", " << c.click.y << ")";
        }
}

TEST_F(TrappolaProva, GusciIlPrimoElementiContinuiLUltimo) {
    Guscio({{0, 0}, {9, 0}, {9, 9}, {0, 9}}, -1);
    for (int k = 0; k < 2; ++k) Guscio({{20, 20}, {60, 20}, {60, 60}, {20, 60}}, -1);
    FormTelva.OptElem[kGusciTipo].Seleziona();
    SelGuscio[1] = 1; // no preference for what could still be added
    EXPECT_EQ(SelezioneDiretta(40, 40), 2);
    EXPECT_EQ(SelezioneDiretta(15, 40), 0);
    FormTelva.OptElem[kElContTipo].Seleziona();
    for (std::int16_t k = 0; k < 3; ++k) {
        NumeroElCont[k] = static_cast<std::int16_t>(10 * k + 10);
        NumAsteElCont[k] = 1;
        AsteElCont(k, 0) = Asta({20, 20}, {20.0 + k, 60});
    }
    NumElCont = 3;
    EXPECT_EQ(SelezioneDiretta(20, 40), 30); // though another one is nearer
    AttAsta[2] = 0;
    EXPECT_EQ(SelezioneDiretta(20, 40), 20);
    FormTelva.OptElem[kParetiTipo].Seleziona();
    EXPECT_EQ(SelezioneDiretta(40, 40), 0);
}

TEST_F(TrappolaProva, TrappolaNullaNonPrendeNiente) {
    Guscio({{20, 20}, {60, 20}, {60, 60}, {20, 60}}, -1);
    AsteElCont(NumElCont++, 0) = Asta({0, 40}, {90, 40});
    NumeroElCont[0] = NumAsteElCont[0] = 1;
    for (int tipo = 0; tipo < 4; ++tipo) {
        FormTelva.OptElem[tipo].Seleziona();
        OpzInt[1] = 5;
        EXPECT_EQ(SelezioneDiretta(20, 40), tipo == kNodiTipo ? 0 : 1);
        OpzInt[1] = 0;
        EXPECT_EQ(SelezioneDiretta(20, 40), 0) << tipo;
    }
}

} // namespace
} // namespace telva::prove

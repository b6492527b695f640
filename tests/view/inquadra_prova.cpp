#include "model/struttura.h"
#include "sostegno/Banco.h"
#include "ui/controlli/FormTelva.h"
#include "view/inquadra.h"
#include <numeric>
using namespace telva;
using namespace telva::prove;

TEST_F(Banco, AdattaERotella) {
    Apri(Telaio());
    RiquadroDisegno &d = FormTelva.Disegno;
    const auto adatta = [&](FinestraDisegno zoom, double larghezza, std::array<double, 4> attesa) {
        d.Width = larghezza, d.Height = 6000, FinestraZoom = zoom, Adatta();
        const double vista[] = {d.ScaleLeft, d.ScaleTop, d.ScaleWidth, d.ScaleHeight};
        for (std::size_t n = 0; n < 4; ++n) EXPECT_NEAR(vista[n], attesa[n], 1e-9) << n;
    };
    adatta({100, 0, 10, 0}, 6000, {-11, 65.45, 121, -121}); // 100 + 10 + 11
    adatta({10, 0, 100, 0}, 9000, {4.95 - 90.75, 110, 181.5, -121});
    const auto gira = [](FinestraDisegno zoom, int passi, bool ridisegna, FinestraDisegno attesa) {
        FormTelva.Ottimizza.Click(), FinestraZoom = zoom, FormTelva.Rotella(passi);
        EXPECT_EQ(FinestraZoom, attesa);
        EXPECT_EQ(FinestraVista == attesa, ridisegna);
    };
    gira({}, 1, true, {180, 20, 180, 20});
    gira({100, 0, 50, 0}, -1, true, {110, -10, 55, -5});
    gira({100, 0, 0.09, 0}, 2, true, {160, 40, 160, 40});
    gira({0.1, 0, 50, 0}, 1, false, {0.1 - 0.1 * 0.1, 0.1 * 0.1, 45, 5});
    adatta({}, 6000, {-22, 220, 242, -242});
    adatta(FinestraVista, 6000, {-22, 220, 242, -242}); // taken over, it shows the same picture
    FormTelva.IntZ[1].Text = "0"; // one row of the frame: no area, so the scale stays
    for (const FinestraDisegno &piatta : {FinestraDisegno{}, {100, 0, 5, 5}, {0.001, 0, 0.01, 0}})
        adatta(piatta, 6000, {-22, 220, 242, -242});
}
TEST_F(Banco, AttiviEdEstensione) {
    Apri(Telaio());
    NodiGuscio[0][3] = -1; // of a triangle only three corners count
    const auto somma = [](auto &flag, int n) { return std::accumulate(&flag[0], &flag[n], 0); };
    const auto prova = [&](std::string min, std::string max, std::vector<int> attesi) {
        FormTelva.IntX[0].Text = min, FormTelva.IntX[1].Text = max, Adatta();
        const int nodi = somma(AttNodo, NumNodi), aste = somma(AttAsta, NumAste);
        EXPECT_EQ((std::vector{nodi, aste, somma(AttGuscio, NumGusci)}), attesi);
    };
    prova("0", "200", {9, 12, 4});
    prova("0", "99.5", {6, 7, 2});
    prova("100.5", "199", {3, 2, 0});
    SelNodo[1] = SelAsta[2] = SelGuscio[3] = 1, FormTelva.ElSelez.Value = false;
    prova("0", "200", {8, 11, 3});
    FormTelva.ElSelez.Value = true, FormTelva.ElNonSelez.Value = FormTelva.NodiAtt.Value = false;
    ColNodo[0] = 10, PrimoPuntoContato = 5; // seed (200, 100), as node 0 is hidden; shell 3 is thin
    prova("0", "200", {0, 1, 1});
    EXPECT_EQ(FinestraVista, (FinestraDisegno{200, 0, 100, 100}));
    ColNodo[0] = 9, SpessoreGuscio[3] = 3, Adatta(); // seed (0, 0); no such card
    EXPECT_EQ(FinestraVista, (FinestraDisegno{200, 0, 200, 0}));
}
TEST_F(Banco, RidimensionareNonInterrompeChiScrive) {
    Apri(Telaio());
    FormTelva.IntX[0].Text = "abc";
    FormTelva.Resize();
    EXPECT_TRUE(messaggi.empty());
    EXPECT_EQ(FormTelva.IntX[0].Text(), "abc");
    EXPECT_EQ(std::accumulate(&AttNodo[0], &AttNodo[NumNodi], 0), 9);
    FormTelva.IntX[0].KeyDown(13);
    const Messaggio atteso{"Intervallo di coordinate non valido: abc", Icona::Critica, "ERRORE"};
    EXPECT_EQ(messaggi, std::vector{atteso});
    EXPECT_EQ(FormTelva.IntX[0].Text(), "0");
}

#include "model/legfont_cond.h"
#include "sostegno/Banco.h"
#include "view/salva_dis_cond.h"
#include <array>

namespace telva::prove {

struct SalvaDis : Banco {
    void Avvisa(const char *testo) {
        EXPECT_EQ(messaggi, (std::vector<Messaggio>{{testo, Gravita::Esclamazione, "Problema"}}));
        messaggi.clear();
    }
};

TEST_F(SalvaDis, PuntiPiuViciniDiUnDecimillesimoSonoLoStesso) {
    DisLinea(5, 5, 5.00009, 5.00009);
    EXPECT_EQ(NumElemDis, 0) << "nothing to record";
    DisLinea(5, 5, 5.00011, 5);
    DisLinea(5, 5, 5, 4.99989);
    EXPECT_EQ(NumElemDis, 2);
    AzzeraDisegno();
    DisLinea(0, 0, 1, 0);
    DisLinea(1, 0.00009, 0.00009, 0); // back
    EXPECT_EQ(NumElemDis, 2);
    EXPECT_EQ(NumCoordDis, 2) << "the ends are shared";
    EXPECT_EQ(ElemDisIni[1], ElemDisFin[0]);
    EXPECT_EQ(ElemDisFin[1], ElemDisIni[0]);
    DisLinea(0.00011, 0, 1, 0);
    EXPECT_EQ(NumCoordDis, 3);
}

TEST_F(SalvaDis, UnSegmentoHaColoreTipoEScostamentoCorrenti) {
    ColoreDisCorrente = 4, TipoDisCorrente = 2, OffsetDisX = 10, OffsetDisY = 20;
    DisLinea(1, 2, 3, 4);
    DisLinea(1, 2, 3, 4, std::int16_t{7});
    EXPECT_EQ(ElemDisColore[0], 4);
    EXPECT_EQ(ElemDisColore[1], 7);
    EXPECT_EQ(ElemDisTipo[0], 2);
    EXPECT_EQ(CoordDisX[ElemDisIni[0]], 11);
    EXPECT_EQ(CoordDisY[ElemDisIni[0]], 22);
    EXPECT_EQ(CoordDisX[ElemDisFin[0]], 13);
    EXPECT_EQ(CoordDisY[ElemDisFin[0]], 24);
}

TEST_F(SalvaDis, UnPuntoSiCercaFraGliUltimiTrentuno) {
    for (int n = 0; n <= 30; ++n) AggiungiCoordinata(n, 0);
    EXPECT_EQ(AggiungiCoordinata(0, 0), 0) << "the first of 31";
    AggiungiCoordinata(31, 0);
    EXPECT_EQ(AggiungiCoordinata(0, 0), 32) << "no longer found";
}

TEST_F(SalvaDis, LaTabellaDelleCoordinatePienaSiAvvisaERifiuta) {
    for (int n = 0; n < 49999; ++n) ASSERT_EQ(AggiungiCoordinata(n, 0), n);
    EXPECT_EQ(messaggi, std::vector<Messaggio>());
    EXPECT_EQ(AggiungiCoordinata(49999, 0), 49999) << "the last place";
    Avvisa(" Numero eccessivo di coordinate ");
    EXPECT_EQ(AggiungiCoordinata(-1, 0), -1);
    EXPECT_EQ(AggiungiCoordinata(49999, 0), 49999) << "a known point";
    DisLinea(49999, 0, -1, 0);
    EXPECT_EQ(NumElemDis, 0) << "its second point is refused";
}

TEST_F(SalvaDis, LaTabellaDegliElementiPienaSiAvvisaERifiuta) {
    for (int n = 0; n < 49999; ++n) DisLinea(n % 2, 0, 2, 0);
    EXPECT_EQ(messaggi, std::vector<Messaggio>());
    DisLinea(0, 0, 2, 0);
    Avvisa(" Numero eccessivo di elementi di disegno ");
    DisLinea(0, 0, 2, 0);
    EXPECT_EQ(NumElemDis, 50000);
    EXPECT_EQ(messaggi, std::vector<Messaggio>()) << "told once";
}

TEST_F(SalvaDis, ITestiSiRegistranoFinchePossono) {
    ModoDisTesto = "gendis";
    OffsetDisX = 5, OffsetDisY = 6;
    DisTesto("Prova", 1, 2, 0, 10, 20);
    ASSERT_EQ(TestiDis.size(), 1u);
    EXPECT_EQ(TestiDis[0].testo, "Prova");
    EXPECT_EQ(TestiDis[0].x, 6);
    EXPECT_EQ(TestiDis[0].y, 8);
    EXPECT_EQ(NumElemDis, 0) << "no strokes";
    for (int n = 1; n < 14999; ++n) DisTesto("a", 1, 2, 0, 10, 20);
    EXPECT_EQ(messaggi, std::vector<Messaggio>());
    DisTesto("ultimo", 1, 2, 0, 10, 20);
    Avvisa(" Numero eccessivo di testi ");
    DisTesto("oltre", 1, 2, 0, 10, 20);
    EXPECT_EQ(TestiDis.size(), 15000u);
    EXPECT_EQ(TestiDis.back().testo, "ultimo");
}

// A glyph of one stroke, from the base line at the left to the upper right corner of its cell.
struct TestiProva : SalvaDis {
    TestiProva() {
        SpazioFont = 50; // narrows the glyph, not the step
        NumPtFont['A'] = 2;
        FontX('A', 0) = 0, FontY('A', 0) = 30;
        FontX('A', 1) = 99, FontY('A', 1) = 99;
    }
    using Punti = std::vector<std::array<double, 2>>;
    struct Scritta {
        const char *testo;
        std::int16_t angolo = 0;
        double base = 10, altezza = 20;
    };
    static void Scrive(const char *che, const Scritta &s, const Punti &attesi) {
        AzzeraDisegno();
        DisTesto(s.testo, 100.001, 200.001, s.angolo, s.base, s.altezza);
        ASSERT_EQ(NumCoordDis, static_cast<int>(attesi.size())) << che;
        for (int k = 0; k < NumCoordDis; ++k) {
            EXPECT_NEAR(CoordDisX[k], attesi[static_cast<std::size_t>(k)][0] + 0.001, 1e-9) << che;
            EXPECT_NEAR(CoordDisY[k], attesi[static_cast<std::size_t>(k)][1] + 0.001, 1e-9) << che;
        }
    }
};

TEST_F(TestiProva, OgniCarattereAvanzaDiUnaBase) {
    Scrive("level", {.testo = "AA"}, {{100, 200}, {105, 220}, {110, 200}, {115, 220}});
    Scrive("upwards", {.testo = "AA", .angolo = 90},
           {{100, 200}, {80, 205}, {100, 210}, {80, 215}});
    Scrive("without width", {.testo = "A", .base = 0}, {});
    Scrive("without height", {.testo = "A", .altezza = 0}, {});
}

TEST_F(TestiProva, UnCarattereSenzaTrattiAvanzaEUnoFuoriPaginaFinisce) {
    Scrive("accented and control", {.testo = "\u00E0\x01\x41"}, {{120, 200}, {125, 220}});
    Scrive("no character of the page", {.testo = "\u0416\x41"}, {});
    Scrive("up to there", {.testo = "A\u0416\x41"}, {{100, 200}, {105, 220}});
}

} // namespace telva::prove

#include "model/legfont_cond.h"
#include "sostegno/Banco.h"
#include "view/salva_dis_cond.h"
using namespace telva;
using namespace telva::prove;

TEST_F(Banco, ListaDiDisegnoETesti) {
    const auto avviso = [this](const char *t) {
        EXPECT_EQ(messaggi, (std::vector<Messaggio>{{t, Icona::Esclamazione, "Problema"}}));
        messaggi.clear();
    };
    DisLinea(0, 0, 1, 0, std::int16_t{7});
    DisLinea(0.00009, 0, 1, 0.00009);
    DisLinea(5, 5, 5.00009, 5.00009); // nothing
    DisLinea(0.00011, 0, 1, 0);
    EXPECT_EQ(NumElemDis * 100 + NumCoordDis * 10 + ElemDisColore[0], 337);
    for (const auto &[distanza, posto] : {std::pair{30, 0}, {31, 32}, {40, 41}}) {
        AzzeraDisegno();
        for (int n = 0; n <= distanza; ++n) AggiungiCoordinata(n, 0);
        EXPECT_EQ(AggiungiCoordinata(0, 0), posto);
    }
    for (int n = NumCoordDis; n < 49999; ++n)
        ASSERT_TRUE(AggiungiCoordinata(n, 0) == n && messaggi.empty());
    EXPECT_EQ(AggiungiCoordinata(49999, 0), 49999);
    avviso(" Numero eccessivo di coordinate ");
    DisLinea(49999, 0, -1, 0); // its second point is refused
    DisLinea(-1, 0, 49999, 0); // only its first
    EXPECT_EQ(NumElemDis * 10 + ElemDisIni[0], 9);
    AzzeraDisegno();
    for (int n = 0; n < 50010; ++n) DisLinea(n % 2, 0, 2, 0);
    EXPECT_EQ(NumElemDis, 50000);
    avviso(" Numero eccessivo di elementi di disegno ");
    SpazioFont = 50; // narrows the glyph, not the step
    NumPtFont['A'] = 2, FontX('A', 0) = 0, FontX('A', 1) = FontY('A', 1) = 99, FontY('A', 0) = 30;
    const auto testo = [](const char *t, std::int16_t angolo, double base, double altezza) {
        std::string punti;
        AzzeraDisegno(), DisTesto(t, 100.001, 200.001, angolo, base, altezza);
        for (int c = 0; c < 2 * NumCoordDis; ++c)
            punti += std::to_string((c % 2 ? CoordDisY : CoordDisX)[c / 2]).substr(0, 5) + " ";
        return punti;
    };
    EXPECT_EQ(testo("AA", 0, 10, 20), "100.0 200.0 105.0 220.0 110.0 200.0 115.0 220.0 ");
    EXPECT_EQ(testo("AA", 90, 10, 20), "100.0 200.0 80.00 205.0 100.0 210.0 80.00 215.0 ");
    EXPECT_EQ(testo("\xC3\xA0\x01\x41", 0, 10, 20), "120.0 200.0 125.0 220.0 "); // steps
    EXPECT_EQ(testo("\xD0\x96\x41", 0, 10, 20), ""); // not in the code page: the end
    EXPECT_EQ(testo("A", 0, 0, 20) + testo("A", 0, 10, 0), "");
}

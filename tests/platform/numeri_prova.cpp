#include "platform/numeri.h"
#include <gtest/gtest.h>
#include <limits>

namespace telva::prove {

TEST(Numeri, ValoreNumericoLeggeIlPrefissoENumeroStrettoSoloIlTuttoNumero) {
    constexpr double kMassimo = std::numeric_limits<double>::max();
    struct Caso {
        const char *testo;
        double prefisso;
        bool tuttoNumero;
    };
    for (const Caso &c : {Caso{.testo = "", .prefisso = 0, .tuttoNumero = false},
                          {.testo = "-", .prefisso = 0, .tuttoNumero = false},
                          {.testo = "nan", .prefisso = 0, .tuttoNumero = false},
                          {.testo = "+-1", .prefisso = 0, .tuttoNumero = false},
                          {.testo = "12", .prefisso = 12, .tuttoNumero = true},
                          {.testo = " 12.5\t", .prefisso = 12.5, .tuttoNumero = true},
                          {.testo = "-.5", .prefisso = -0.5, .tuttoNumero = true},
                          {.testo = "1d3", .prefisso = 1000, .tuttoNumero = true},
                          {.testo = "1D+2", .prefisso = 100, .tuttoNumero = true},
                          {.testo = "2e+", .prefisso = 2, .tuttoNumero = false},
                          {.testo = "1 2\t3", .prefisso = 123, .tuttoNumero = false},
                          {.testo = "- .5x", .prefisso = -0.5, .tuttoNumero = false},
                          {.testo = "0x10", .prefisso = 0, .tuttoNumero = false},
                          {.testo = "1,5", .prefisso = 1, .tuttoNumero = false},
                          {.testo = "1e-400", .prefisso = 0, .tuttoNumero = true},
                          {.testo = "1e999", .prefisso = kMassimo, .tuttoNumero = false},
                          {.testo = "1e-99999999999", .prefisso = 0, .tuttoNumero = true}}) {
        EXPECT_EQ(ValoreNumerico(c.testo), c.prefisso) << "prefix of \"" << c.testo << '"';
        const std::optional<double> stretto = NumeroStretto(c.testo);
        EXPECT_EQ(stretto.has_value(), c.tuttoNumero) << "the whole of \"" << c.testo << '"';
        if (stretto && c.tuttoNumero) {
            EXPECT_EQ(*stretto, c.prefisso) << "the whole of \"" << c.testo << '"';
        }
    }
}

TEST(Numeri, LeMetaSiArrotondanoAlPariELaParteInteraScende) {
    struct Caso {
        double valore, vicino, sotto;
    };
    for (const Caso &c : {Caso{.valore = 0.5, .vicino = 0, .sotto = 0},
                          {.valore = 1.5, .vicino = 2, .sotto = 1},
                          {.valore = 2.5000001, .vicino = 3, .sotto = 2},
                          {.valore = 0.49999999999999994, .vicino = 0, .sotto = 0},
                          {.valore = -0.5, .vicino = 0, .sotto = -1},
                          {.valore = -2.5, .vicino = -2, .sotto = -3}}) {
        EXPECT_EQ(ArrotondaPari(c.valore), c.vicino) << "nearest to " << c.valore;
        EXPECT_EQ(ParteIntera(c.valore), c.sotto) << "integer part of " << c.valore;
    }
}

TEST(Numeri, SediciBitFinoAgliEstremi) {
    EXPECT_EQ(Intero16(32767), std::int16_t{32767});
    EXPECT_EQ(Intero16(-32768), std::int16_t{-32768});
    for (const double v : {32768.0, -32769.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(Intero16(v), std::nullopt) << v;
}

TEST(Numeri, UnNumeroSiScriveInDecimaliESenzaEsponente) {
    EXPECT_EQ(TestoNumero(-0.0), "0");
    EXPECT_EQ(TestoNumero(12.5), "12.5");
    EXPECT_EQ(TestoNumero(0.1), "0.1");
    EXPECT_EQ(TestoNumero(-1e-7), "-0.0000001");
    EXPECT_EQ(TestoNumero(1e21), "1000000000000000000000");
}

} // namespace telva::prove

// Rounding to whole numbers: the same as the C library's for every double that an int can name, and
// its own rule beyond.
#include "platform/interi.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace telva::prove {
namespace {

constexpr double kMassimo = 2147483647.0, kMinimo = -2147483648.0;
constexpr int kIntMassimo = 2147483647, kIntMinimo = -2147483647 - 1;
constexpr double kInfinito = std::numeric_limits<double>::infinity();

struct Arrotondamento {
    double valore;
    int basso, alto, vicino;
};

constexpr Arrotondamento kTabella[] = {
    {.valore = 0.0, .basso = 0, .alto = 0, .vicino = 0},
    {.valore = -0.0, .basso = 0, .alto = 0, .vicino = 0},
    {.valore = 0.5, .basso = 0, .alto = 1, .vicino = 1},
    {.valore = -0.5, .basso = -1, .alto = 0, .vicino = 0},
    {.valore = 1.5, .basso = 1, .alto = 2, .vicino = 2},
    {.valore = -1.5, .basso = -2, .alto = -1, .vicino = -1},
    {.valore = -2.0, .basso = -2, .alto = -2, .vicino = -2},
    {.valore = 0.49999999999999989, .basso = 0, .alto = 1, .vicino = 0},
    {.valore = -1e-300, .basso = -1, .alto = 0, .vicino = 0},
    {.valore = 1e-300, .basso = 0, .alto = 1, .vicino = 0},
    {.valore = kMassimo, .basso = kIntMassimo, .alto = kIntMassimo, .vicino = kIntMassimo},
    {.valore = kMassimo - 0.5,
     .basso = kIntMassimo - 1,
     .alto = kIntMassimo,
     .vicino = kIntMassimo},
    {.valore = kMassimo + 1, .basso = kIntMassimo, .alto = kIntMassimo, .vicino = kIntMassimo},
    {.valore = 1e300, .basso = kIntMassimo, .alto = kIntMassimo, .vicino = kIntMassimo},
    {.valore = kInfinito, .basso = kIntMassimo, .alto = kIntMassimo, .vicino = kIntMassimo},
    {.valore = kMinimo, .basso = kIntMinimo, .alto = kIntMinimo, .vicino = kIntMinimo},
    {.valore = kMinimo + 0.5, .basso = kIntMinimo, .alto = kIntMinimo + 1, .vicino = -kIntMassimo},
    {.valore = kMinimo - 1, .basso = kIntMinimo, .alto = kIntMinimo, .vicino = kIntMinimo},
    {.valore = -kInfinito, .basso = kIntMinimo, .alto = kIntMinimo, .vicino = kIntMinimo},
    {.valore = std::numeric_limits<double>::quiet_NaN(),
     .basso = kIntMinimo,
     .alto = kIntMinimo,
     .vicino = kIntMinimo},
};

TEST(Interi, MezziNegativiLimitiECioCheNonENumero) {
    for (const Arrotondamento &a : kTabella) {
        EXPECT_EQ(InteroBasso(a.valore), a.basso) << "down: " << a.valore;
        EXPECT_EQ(InteroAlto(a.valore), a.alto) << "up: " << a.valore;
        EXPECT_EQ(InteroVicino(a.valore), a.vicino) << "nearest: " << a.valore;
    }
}

TEST(Interi, ComeLaLibreriaC) {
    std::mt19937 sorte(7);
    for (int giro = 0; giro < 20000; ++giro) {
        const double grandezza = std::ldexp(1.0, static_cast<int>(sorte() % 31u));
        const double quarti = std::uniform_int_distribution(-4, 4)(sorte) / 4.0;
        const double libero = std::uniform_real_distribution(-1.0, 1.0)(sorte);
        // Around whole numbers and halves of any size, and anywhere.
        for (const double v : {std::floor(libero * grandezza) + quarti, libero * grandezza}) {
            if (!(v >= kMinimo + 2 && v <= kMassimo - 2)) continue;
            EXPECT_EQ(InteroBasso(v), static_cast<int>(std::floor(v))) << v;
            EXPECT_EQ(InteroAlto(v), static_cast<int>(std::ceil(v))) << v;
            EXPECT_EQ(InteroVicino(v), static_cast<int>(std::floor(v + 0.5))) << v;
        }
    }
}

} // namespace
} // namespace telva::prove

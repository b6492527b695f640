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

TEST(Interi, OltreILimitiValeIlLimite) {
    for (const double v : {kMassimo, kMassimo + 1, 1e300, kInfinito}) {
        EXPECT_EQ(InteroBasso(v), kIntMassimo) << v;
        EXPECT_EQ(InteroAlto(v), kIntMassimo) << v;
        EXPECT_EQ(InteroVicino(v), kIntMassimo) << v;
    }
    for (const double v : {kMinimo, kMinimo - 1, -kInfinito, std::nan("")}) {
        EXPECT_EQ(InteroBasso(v), kIntMinimo) << v;
        EXPECT_EQ(InteroAlto(v), kIntMinimo) << v;
        EXPECT_EQ(InteroVicino(v), kIntMinimo) << v;
    }
    EXPECT_EQ(InteroBasso(kMassimo - 0.5), kIntMassimo - 1);
    EXPECT_EQ(InteroAlto(kMinimo + 0.5), kIntMinimo + 1);
}

TEST(Interi, ComeLaLibreriaC) {
    std::mt19937 sorte(7);
    for (int giro = 0; giro < 20000; ++giro) {
        const double grandezza = std::ldexp(1.0, static_cast<int>(sorte() % 31u));
        const double quarti = std::uniform_int_distribution(-4, 4)(sorte) / 4.0;
        const double libero = std::uniform_real_distribution(-1.0, 1.0)(sorte);
        // Around whole numbers and halves of any size, and anywhere.
        for (const double v : {std::floor(libero * grandezza) + quarti, libero * grandezza, -0.5,
                               0.49999999999999989, -1e-300, 1e-300}) {
            if (!(v >= kMinimo + 2 && v <= kMassimo - 2)) continue;
            EXPECT_EQ(InteroBasso(v), static_cast<int>(std::floor(v))) << v;
            EXPECT_EQ(InteroAlto(v), static_cast<int>(std::ceil(v))) << v;
            EXPECT_EQ(InteroVicino(v), static_cast<int>(std::floor(v + 0.5))) << v;
        }
    }
}

} // namespace
} // namespace telva::prove

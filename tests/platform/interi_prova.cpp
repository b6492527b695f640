// Rounding to whole numbers, where an int ends. Elsewhere every picture shows it.
#include "platform/interi.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

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

} // namespace
} // namespace telva::prove

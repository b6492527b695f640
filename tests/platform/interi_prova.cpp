// Rounding to whole numbers: halves, negative numbers, and where an int ends.
#include "platform/interi.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace telva::prove {
namespace {

constexpr int kMassimo = 2147483647, kMinimo = -2147483647 - 1;
constexpr double kInfinito = std::numeric_limits<double>::infinity();

TEST(Interi, VersoIlBassoLAltoEIlVicino) {
    const struct {
        double valore;
        int basso, alto, vicino;
    } kCasi[] = {
        {2.25, 2, 3, 2},
        {2.5, 2, 3, 3},
        {-2.5, -3, -2, -2},
        {-2.75, -3, -2, -3},
        {-3, -3, -3, -3},
        {kMassimo - 0.5, kMassimo - 1, kMassimo, kMassimo},
        {kMinimo + 0.5, kMinimo, kMinimo + 1, kMinimo + 1},
        {1e300, kMassimo, kMassimo, kMassimo},
        {kInfinito, kMassimo, kMassimo, kMassimo},
        {-kInfinito, kMinimo, kMinimo, kMinimo},
        {std::nan(""), kMinimo, kMinimo, kMinimo},
    };
    for (const auto &caso : kCasi) {
        EXPECT_EQ(InteroBasso(caso.valore), caso.basso) << caso.valore;
        EXPECT_EQ(InteroAlto(caso.valore), caso.alto) << caso.valore;
        EXPECT_EQ(InteroVicino(caso.valore), caso.vicino) << caso.valore;
    }
}

} // namespace
} // namespace telva::prove

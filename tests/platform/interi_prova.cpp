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
        {.valore = 2.25, .basso = 2, .alto = 3, .vicino = 2},
        {.valore = 2.5, .basso = 2, .alto = 3, .vicino = 3},
        {.valore = -2.5, .basso = -3, .alto = -2, .vicino = -2},
        {.valore = -2.75, .basso = -3, .alto = -2, .vicino = -3},
        {.valore = -3, .basso = -3, .alto = -3, .vicino = -3},
        {.valore = kMassimo - 0.5, .basso = kMassimo - 1, .alto = kMassimo, .vicino = kMassimo},
        {.valore = kMinimo + 0.5, .basso = kMinimo, .alto = kMinimo + 1, .vicino = kMinimo + 1},
        {.valore = 1e300, .basso = kMassimo, .alto = kMassimo, .vicino = kMassimo},
        {.valore = kInfinito, .basso = kMassimo, .alto = kMassimo, .vicino = kMassimo},
        {.valore = -kInfinito, .basso = kMinimo, .alto = kMinimo, .vicino = kMinimo},
        {.valore = std::nan(""), .basso = kMinimo, .alto = kMinimo, .vicino = kMinimo},
    };
    for (const auto &caso : kCasi) {
        EXPECT_EQ(InteroBasso(caso.valore), caso.basso) << caso.valore;
        EXPECT_EQ(InteroAlto(caso.valore), caso.alto) << caso.valore;
        EXPECT_EQ(InteroVicino(caso.valore), caso.vicino) << caso.valore;
    }
}

} // namespace
} // namespace telva::prove

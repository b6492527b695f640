// The icons: every key has a picture of its own, at every size. How they look stands in the
// pictures to compare with.
#include "ui/icone.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

namespace telva::prove {
namespace {

using Pixel = std::uint32_t; // 0xAARRGGBB, premultiplied

constexpr const char *kChiavi[] = {"AggiornaEsci", "Esci",       "Ottimizza",  "Zoom",
                                   "Sposta",       "Ridisegna",  "Aggiungi",   "Rimuovi",
                                   "RimuoviTutto", "InvertiSel", "Interrompi", "AggiungiBarraLat",
                                   "Telva"};

std::uint32_t Opacita(Pixel p) { return p >> 24; }

bool Premoltiplicato(Pixel p) {
    return std::max({p & 0xFFu, p >> 8 & 0xFFu, p >> 16 & 0xFFu}) <= Opacita(p);
}

} // namespace

class IconeProva : public ::testing::TestWithParam<int> {}; // side in pixels

INSTANTIATE_TEST_SUITE_P(Lato, IconeProva, ::testing::Values(16, 20, 24, 32, 48),
                         ::testing::PrintToStringParamName());

TEST_P(IconeProva, OgniChiaveHaUnDisegnoSuo) {
    const int lato = GetParam();
    std::set<std::vector<Pixel>> diverse;
    for (const char *chiave : kChiavi) {
        SCOPED_TRACE(chiave);
        const std::vector<Pixel> pixel = DisegnaIcona(chiave, lato);
        ASSERT_EQ(pixel.size(), static_cast<std::size_t>(lato * lato));
        const auto opaco = [](Pixel p) { return Opacita(p) > 127; };
        EXPECT_GT(std::ranges::count_if(pixel, opaco), lato) << "more than a stroke";
        EXPECT_TRUE(std::ranges::all_of(pixel, Premoltiplicato));
        EXPECT_TRUE(diverse.insert(pixel).second) << "the picture of another key";
    }
}

TEST_P(IconeProva, UnaChiaveIgnotaEVuota) {
    const int lato = GetParam();
    for (const char *ignota : {"", "esci", "Esc"})
        EXPECT_EQ(DisegnaIcona(ignota, lato),
                  std::vector<Pixel>(static_cast<std::size_t>(lato * lato)))
            << ignota;
}

// No half-covered pixel across the middle of the window that this icon shows.
TEST_P(IconeProva, LeLineeVerticaliSonoNette) {
    const int lato = GetParam();
    const std::vector<Pixel> pixel = DisegnaIcona("AggiungiBarraLat", lato);
    const auto meta = static_cast<std::size_t>(lato * lato / 2);
    for (std::size_t k = 0; k < static_cast<std::size_t>(lato * lato / 16); ++k)
        EXPECT_TRUE(Opacita(pixel[meta + k]) == 0 || Opacita(pixel[meta + k]) == 255) << k;
}

} // namespace telva::prove

#include "ui/icone.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <span>

namespace {

constexpr const char *Chiavi[] = {"AggiornaEsci", "Esci",       "Ottimizza",  "Zoom",
                                  "Sposta",       "Ridisegna",  "Aggiungi",   "Rimuovi",
                                  "RimuoviTutto", "InvertiSel", "Interrompi", "AggiungiBarraLat",
                                  "Telva"};

bool Premoltiplicato(std::uint32_t p) {
    return std::max({p & 0xFFu, p >> 8 & 0xFFu, p >> 16 & 0xFFu}) <= p >> 24;
}

TEST(Icone, OgniChiaveHaUnDisegnoSuo) {
    for (const int lato : {16, 20, 24, 32, 48}) {
        std::set<std::vector<std::uint32_t>> diverse;
        for (const char *chiave : Chiavi) {
            const auto pixel = telva::DisegnaIcona(chiave, lato);
            ASSERT_EQ(pixel.size(), static_cast<std::size_t>(lato * lato));
            EXPECT_GT(std::ranges::count_if(pixel, [](auto p) { return p >> 31 != 0; }), lato)
                << chiave << " " << lato;
            EXPECT_TRUE(std::ranges::all_of(pixel, Premoltiplicato)) << chiave << " " << lato;
            EXPECT_TRUE(diverse.insert(pixel).second) << chiave << " " << lato;
        }
        for (const char *ignota : {"", "esci", "Esc"})
            EXPECT_EQ(std::ranges::count(telva::DisegnaIcona(ignota, lato), 0u), lato * lato);
        // Vertical lines stay sharp: no half-covered pixel across the window's middle.
        const auto finestra = telva::DisegnaIcona("AggiungiBarraLat", lato);
        for (const auto p : std::span(finestra).subspan(finestra.size() / 2, finestra.size() / 16))
            EXPECT_TRUE(p >> 24 == 0 || p >> 24 == 255) << lato;
    }
}

} // namespace

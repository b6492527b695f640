// Typed lists: the parser and what it refuses.
#include "selection/schede_sel.h"

#include <gtest/gtest.h>

namespace telva::prove {

using Numeri = std::vector<std::int16_t>;

TEST(ElencoProva, UnElencoSiLeggeNumeroPerNumero) {
    struct Caso {
        const char *testo;
        Numeri numeri;
    };
    const Caso casi[] = {{.testo = "", .numeri = {}},
                         {.testo = "1,4-6,9", .numeri = {1, 4, 5, 6, 9}},
                         {.testo = "8-5", .numeri = {}},
                         {.testo = "7-,3", .numeri = {3}},
                         {.testo = "-3", .numeri = {0, 1, 2, 3}},
                         {.testo = "1-3-5", .numeri = {3, 4, 5}},
                         {.testo = "2,,4", .numeri = {2, 0, 4}},
                         {.testo = "abc", .numeri = {0}},
                         {.testo = "1 2", .numeri = {12}},
                         {.testo = "2.9", .numeri = {2}},
                         {.testo = "12x,3", .numeri = {12, 3}},
                         {.testo = "1,-1", .numeri = {1, 0, 1}},
                         {.testo = "32767", .numeri = {32767}}};
    for (const auto &[testo, numeri] : casi) {
        Numeri letti;
        EXPECT_EQ(LeggiLista(testo, kCapacitaSchede, letti), EsitoLista::Riuscita) << testo;
        EXPECT_EQ(letti, numeri) << testo;
    }
}

TEST(ElencoProva, UnElencoTroppoLungoOFuoriDaiLimitiSiRifiuta) {
    struct Caso {
        const char *testo;
        int capacita;
        EsitoLista esito;
    };
    const Caso casi[] = {
        {.testo = "1-100", .capacita = kCapacitaSchede, .esito = EsitoLista::Riuscita},
        {.testo = "0-100", .capacita = kCapacitaSchede, .esito = EsitoLista::Troppi},
        {.testo = "1-20000", .capacita = kCapacitaNomi, .esito = EsitoLista::Riuscita},
        {.testo = "0-20000", .capacita = kCapacitaNomi, .esito = EsitoLista::Troppi},
        {.testo = "32768", .capacita = kCapacitaSchede, .esito = EsitoLista::FuoriLimiti},
        {.testo = "1-32768", .capacita = kCapacitaSchede, .esito = EsitoLista::FuoriLimiti},
        {.testo = "99999-1", .capacita = kCapacitaSchede, .esito = EsitoLista::FuoriLimiti}};
    for (const auto &[testo, capacita, esito] : casi) {
        Numeri letti;
        EXPECT_EQ(LeggiLista(testo, capacita, letti), esito) << testo;
    }
}

} // namespace telva::prove

#include "platform/mostrabile.h"

#include <gtest/gtest.h>

using namespace telva;

TEST(Mostrabile, UnTestoLungoFinisceConIPuntiniEUnoBreveRestaIntero) {
    const struct {
        std::string testo;
        std::size_t caratteri;
        std::string mostrato;
    } casi[] = {
        {.testo = "trave", .caratteri = 5, .mostrato = "trave"},
        {.testo = "travi", .caratteri = 4, .mostrato = "tra…"},
        {.testo = "àèìò", .caratteri = 4, .mostrato = "àèìò"},
        {.testo = "àèìòù", .caratteri = 4, .mostrato = "àèì…"},
        {.testo = "ab", .caratteri = 1, .mostrato = "…"},
        {.testo = std::string(4000000, 'x'), .caratteri = 3, .mostrato = "xx…"},
    };
    for (const auto &c : casi)
        EXPECT_EQ(Mostrabile(c.testo, c.caratteri), c.mostrato)
            << c.testo.substr(0, 20) << " in " << c.caratteri;
}

TEST(Mostrabile, SoloLeParolePiuLungheDiUnaRigaSiSpezzano) {
    const struct {
        std::string testo, righe;
    } casi[] = {
        {.testo = "uno due tre", .righe = "uno due tre"},
        {.testo = "abcde fghij", .righe = "abcde fghij"},
        {.testo = "abcdefghijkl", .righe = "abcde\r\nfghij\r\nkl"},
        {.testo = "ab àèìòùà", .righe = "ab àèìòù\r\nà"},
        {.testo = "abcd\r\nefgh", .righe = "abcd\r\nefgh"},
    };
    for (const auto &c : casi) EXPECT_EQ(ConRigheBrevi(c.testo, 5), c.righe);
}
TEST(ElencoInRighe, FinisceConUnaVoceIntera) {
    const std::string elenco = "1-5,7,12-20,33,47,101-105";
    const struct {
        std::size_t colonne, righe;
        const char *atteso;
    } casi[] = {
        {.colonne = 80, .righe = 3, .atteso = "1-5,7,12-20,33,47,101-105"},
        {.colonne = 12, .righe = 9, .atteso = "1-5,7,12-20,\r\n33,47,\r\n101-105"},
        {.colonne = 12, .righe = 2, .atteso = "1-5,7,12-20,\r\n…"},
        {.colonne = 13, .righe = 2, .atteso = "1-5,7,12-20,\r\n33,47,101-105"}, // it still fits
        {.colonne = 3, .righe = 9, .atteso = "1-5,\r\n7,\r\n12-20,\r\n33,\r\n47,\r\n101-105"},
    };
    for (const auto &caso : casi)
        EXPECT_EQ(ElencoInRighe(elenco, caso.colonne, caso.righe, "…"), caso.atteso)
            << caso.colonne << " columns, " << caso.righe << " lines";
    EXPECT_EQ(ElencoInRighe("", 10, 2, "…"), "");
}

#include "platform/mostrabile.h"

#include <gtest/gtest.h>

using namespace telva;

TEST(Mostrabile, UnTestoLungoFinisceConIPuntiniEUnoBreveRestaIntero) {
    const struct {
        std::string testo;
        std::size_t caratteri;
        std::string mostrato;
    } casi[] = {
        {.testo = "", .caratteri = 5, .mostrato = ""},
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

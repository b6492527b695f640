#include "platform/testo.h"
#include <gtest/gtest.h>

namespace telva::prove {
namespace {

std::string TuttiIByte() {
    std::string tutti;
    for (int b = 0; b < 256; ++b) tutti += static_cast<char>(b);
    return tutti;
}

} // namespace

TEST(Testo, OgniByteTornaUguale) {
    for (const char b : TuttiIByte()) {
        const std::string byte(1, b);
        EXPECT_EQ(AWindows1252(DaWindows1252(byte)), byte) << "byte " << (b & 0xFF);
    }
}

TEST(Testo, UnCarattereFuoriDallaPaginaDiventaUnPuntoInterrogativo) {
    EXPECT_EQ(AWindows1252("citt\u00E0"), "citt\xE0");
    EXPECT_EQ(AWindows1252("\u20AC"), "\x80");
    EXPECT_EQ(AWindows1252("\u03A9"), "?");
    EXPECT_EQ(AWindows1252("\U0001F600"), "?");
}

TEST(Testo, OgniCarattereSiScriveInUtf8ESiRilegge) {
    struct Caso {
        char32_t carattere;
        const char *utf8;
    };
    for (const Caso &c : {Caso{.carattere = 'A', .utf8 = "A"},
                          {.carattere = 0x7F, .utf8 = "\x7F"},
                          {.carattere = 0x80, .utf8 = "\xC2\x80"},
                          {.carattere = 0x7FF, .utf8 = "\xDF\xBF"},
                          {.carattere = 0x800, .utf8 = "\xE0\xA0\x80"},
                          {.carattere = 0xD7FF, .utf8 = "\xED\x9F\xBF"},
                          {.carattere = 0xE000, .utf8 = "\xEE\x80\x80"},
                          {.carattere = 0xFFFF, .utf8 = "\xEF\xBF\xBF"},
                          {.carattere = 0x10000, .utf8 = "\xF0\x90\x80\x80"},
                          {.carattere = 0x10FFFF, .utf8 = "\xF4\x8F\xBF\xBF"}}) {
        const unsigned numero = c.carattere;
        std::string scritto;
        AggiungiCarattere(scritto, c.carattere);
        EXPECT_EQ(scritto, c.utf8) << "writing " << std::hex << numero;
        std::size_t posto = 0;
        EXPECT_EQ(ProssimoCarattere(c.utf8, posto), c.carattere) << "reading " << numero;
        EXPECT_EQ(posto, std::string_view(c.utf8).size()) << "reading " << numero;
    }
}

TEST(Testo, QuelCheNonEUtf8SiLeggeByteAByte) {
    struct Caso {
        const char *che, *byte;
    };
    for (const Caso &c : {Caso{.che = "a start without its rest", .byte = "\xE2\x82"},
                          {.che = "a rest without its start", .byte = "\x82x"},
                          {.che = "longer than need be", .byte = "\xC1\x81"},
                          {.che = "three bytes for two", .byte = "\xE0\x9F\xBF"},
                          {.che = "first surrogate", .byte = "\xED\xA0\x80"},
                          {.che = "last surrogate", .byte = "\xED\xBF\xBF"},
                          {.che = "beyond the last character", .byte = "\xF4\x90\x80\x80"},
                          {.che = "no start at all", .byte = "\xF5\x80\x80\x80"}}) {
        std::size_t posto = 0;
        EXPECT_EQ(ProssimoCarattere(c.byte, posto), static_cast<unsigned char>(c.byte[0])) << c.che;
        EXPECT_EQ(posto, 1u) << c.che;
    }
}

TEST(Testo, MaiuscoleEMinuscoleDiTutteLeLettereDellaPagina) {
    EXPECT_EQ(Minuscole("ABZ[\u00C0\u00C8\u00DE\u0152\u0160\u0178\u017D"),
              "abz[\u00E0\u00E8\u00FE\u0153\u0161\u00FF\u017E");
    EXPECT_EQ(Maiuscole("abz{\u00E0\u00E8\u00FE\u0153\u0161\u00FF\u017E"),
              "ABZ{\u00C0\u00C8\u00DE\u0152\u0160\u0178\u017D");
}

TEST(Testo, CioCheNonEUnaLetteraResta) {
    for (const char *testo : {"\u00D7", "\u00F7", "\u00DF", "@[`{|", "0", "\xC8", "\xE8"}) {
        EXPECT_EQ(Minuscole(testo), testo);
        EXPECT_EQ(Maiuscole(testo), testo);
    }
    const std::string tutto = DaWindows1252(TuttiIByte()); // paths are cut at byte places
    EXPECT_EQ(Maiuscole(tutto).size(), tutto.size());
    EXPECT_EQ(Minuscole(tutto).size(), tutto.size());
}

TEST(Testo, SiRifilanoGliSpaziENonITabulatori) {
    EXPECT_EQ(Rifila("  a b "), "a b");
    EXPECT_EQ(Rifila("\t x\t"), "\t x\t");
    EXPECT_EQ(Rifila("   "), "");
}

} // namespace telva::prove

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
    for (char32_t c = 0; c <= 0x10FFFF; c += c == 0xD7FF ? 0x801 : 1) { // without the surrogates
        const std::size_t byte = c < 0x80 ? 1 : c < 0x800 ? 2 : c < 0x10000 ? 3 : 4;
        std::string scritto;
        AggiungiCarattere(scritto, c);
        std::size_t posto = 0;
        ASSERT_EQ(ProssimoCarattere(scritto, posto), c);
        ASSERT_EQ(std::pair(scritto.size(), posto), std::pair(byte, byte)) << "character " << +c;
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

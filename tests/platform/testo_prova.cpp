#include "platform/testo.h"

#include <gtest/gtest.h>

namespace telva::prove {
namespace {

TEST(Testo, OgniByteTornaUguale) {
    for (int b = 0; b < 256; ++b) {
        const std::string byte(1, static_cast<char>(b));
        EXPECT_EQ(AWindows1252(DaWindows1252(byte)), byte) << b;
    }
    EXPECT_EQ(DaWindows1252("\x80 \xE8"), "€ è");
    EXPECT_EQ(AWindows1252("Ω–😀è"), "?\x96?\xE8");
}

TEST(Testo, MaiuscoleEMinuscoleLasciaranoIByteAlLoroPosto) {
    const std::pair<std::string, std::string> casi[] = {
        {"ÀÈŠŒŽŸ×AZ", "àèšœžÿ×az"}, {"ßµ÷1|", "ßµ÷1|"}, {"\xE8 A", "\xE8 a"}};
    for (const auto &[testo, minuscole] : casi) {
        EXPECT_EQ(Minuscole(testo), minuscole);
        EXPECT_EQ(Maiuscole(minuscole), testo == "\xE8 A" ? testo : Maiuscole(testo));
        EXPECT_EQ(Maiuscole(testo).size(), testo.size()) << testo;
    }
    EXPECT_EQ(Rifila("  \ta b\t "), "\ta b\t");
}

TEST(Testo, ByteCheNonSonoUtf8EsconoUnoAllaVolta) {
    const std::pair<std::string, std::u32string> casi[] = {
        {"è€😀", U"è€😀"}, {"\xE2\x82", U"\xE2\x82"}, {"\x82" "a", U"\x82" U"a"},
        {"\xC0\x80", U"\xC0\x80"}, {"\xFF\x80\x80\x80", U"\xFF\x80\x80\x80"}};
    for (const auto &[testo, attesi] : casi) {
        std::u32string letti;
        for (std::size_t posto = 0; posto < testo.size();)
            letti += ProssimoCarattere(testo, posto);
        EXPECT_TRUE(letti == attesi) << testo;
    }
}

} // namespace
} // namespace telva::prove

#include "model/legfont_cond.h"
#include "sostegno/Banco.h"
#include "startup/direttori_cond.h"
namespace telva::prove {
TEST_F(Banco, OgniRigaDelFontEUnCarattereDiTrattiDaOtto) {
    DirRoot = Radice();
    DirProgra = Radice() + "\\progra";
    LeggiFont();
    EXPECT_EQ(messaggi.at(0).testo, "File " + DirProgra + "\\font.001 inesistente!");
    std::string s =
        "20 resto\r\nA\r\nB 1 2 3 499-56 7\r\nC102030405060\r\nD1020\r\n 01020304 \r\n\xE8";
    for (int k = 0; k < 60; ++k) s += "01020304";
    Scrivi("font.001", s); // stands in for the one of DirProgra
    LeggiFont();
    s.clear();
    for (const char c : {'A', 'B', 'C', 'D', ' ', 'a'}) {
        s += c + std::to_string(NumPtFont[c]) + ":";
        for (int k = 0; k < NumPtFont[c]; ++k)
            s += std::to_string(FontX(c, k)) + "," + std::to_string(FontY(c, k)) + " ";
    }
    EXPECT_EQ(s, "A0:B4:1,2 3,4 99,-5 6,7 C4:10,20 30,40 50,60 0,0 D0: 2:1,2 3,4 a-1:");
    EXPECT_TRUE(SpazioFont == 20 && CarFont[0xE8] == "è" && NumPtFont[0xE8] == 100);
    for (const char *testo : {"", "x\r\nA01020304\r\n", "0\nA01020304\nB0102x304\nC01020304\n"}) {
        Scrivi("progra/font.001", testo);
        LeggiFont();
        const std::string errore = "Errore in lettura del file " + DirProgra + "\\font.001 !";
        EXPECT_EQ(messaggi.back(), (Messaggio{errore, Icona::Critica, "Problema"}));
    }
    EXPECT_TRUE(NumPtFont['A'] == 2 && NumPtFont['C'] == -1 && messaggi.size() == 4);
}

TEST_F(Banco, IlFontInUtf8HaGliStessiCodici) {
    DirProgra = Radice();
    Scrivi("font.001", "\xEF\xBB\xBF"
                       "20\r\nè01020304\r\n€0102030405060708\r\nΩ01020304\r\nB01020304");
    LeggiFont();
    EXPECT_EQ(NumPtFont[0xE8], 2) << "è";
    EXPECT_EQ(CarFont[0xE8], "è");
    EXPECT_EQ(NumPtFont[0x80], 4) << "€";
    EXPECT_EQ(NumPtFont['B'], -1) << "a character beyond the table ends the font";
    EXPECT_EQ(messaggi.size(), 0u);
}
} // namespace telva::prove

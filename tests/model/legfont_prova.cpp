#include "model/legfont_cond.h"

#include "sostegno/Banco.h"
#include "startup/direttori_cond.h"

namespace telva::prove {

struct LegFont : Banco {
    LegFont() {
        DirRoot = Radice();
        DirProgra = Radice() + "\\progra";
    }
    static std::vector<int> Punti(int codice) {
        std::vector<int> punti;
        for (int k = 0; k < NumPtFont[codice]; ++k) punti.insert(punti.end(), {FontX(codice, k), FontY(codice, k)});
        return punti;
    }
};

TEST_F(LegFont, OgniRigaEUnCarattereDiTrattiDaOtto) {
    std::string molti = "M";
    for (int k = 0; k < 60; ++k) molti += "01020304";
    Scrivi("progra/font.001", "20 resto\r\nA\r\nB 1 2 3 499-56 7\r\nC102030405060\r\nD1020\r\n\xE8" "10203040 \r\n 01020304\r\n" + molti);
    LeggiFont();
    EXPECT_TRUE(messaggi.empty());
    EXPECT_EQ(SpazioFont, 20);
    const std::pair<int, std::vector<int>> casi[] = {{'A', {}}, {'B', {1, 2, 3, 4, 99, -5, 6, 7}}, {'C', {10, 20, 30, 40, 50, 60, 0, 0}}, {'D', {}}, {0xE8, {10, 20, 30, 40}}, {' ', {1, 2, 3, 4}}};
    for (const auto &[codice, punti] : casi) EXPECT_EQ(Punti(codice), punti) << codice;
    EXPECT_EQ((std::vector<int>{NumPtFont['A'], NumPtFont['M'], NumPtFont['a']}), (std::vector<int>{0, 100, -1}));
    EXPECT_EQ(CarFont[0xE8], "è");
}

TEST_F(LegFont, UnFileAssenteOErratoSiDiceERestaQuelCheSiELetto) {
    const std::string percorso = Radice() + "\\progra\\font.001";
    const std::string errato = "Errore in lettura del file " + percorso + " !";
    const std::pair<const char *, std::string> casi[] = {{nullptr, "File " + percorso + " inesistente!"}, {"", errato}, {"x\r\nA01020304\r\n", errato}, {"0\r\nA01020304\r\nB0102x304\r\nC01020304\r\n", errato}};
    for (const auto &[testo, atteso] : casi) {
        if (testo) Scrivi("progra/font.001", testo);
        messaggi.clear();
        LeggiFont();
        ASSERT_EQ(messaggi.size(), 1u);
        EXPECT_EQ(messaggi[0].testo, atteso);
        EXPECT_EQ(messaggi[0].icona, Icona::Critica);
    }
    EXPECT_EQ((std::vector<int>{NumPtFont['A'], NumPtFont['C']}), (std::vector<int>{2, -1}));
    Cancella("progra");
    Scrivi("font.001", "5\nZ01020304\n");
    messaggi.clear();
    LeggiFont();
    EXPECT_TRUE(messaggi.empty() && NumPtFont['Z'] == 2);
}

TEST_F(LegFont, IlFontFornitoScriveNomiENumeri) {
    Installa();
    LeggiFont();
    EXPECT_TRUE(messaggi.empty());
    for (const char c : std::string("0123456789NVAMSOCGXYZ-"))
        for (EXPECT_GE(NumPtFont[c], 2) << c; int v : Punti(c)) EXPECT_TRUE(v >= 0 && v <= 99) << c;
}

} // namespace telva::prove

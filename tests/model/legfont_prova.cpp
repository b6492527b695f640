#include "model/legfont_cond.h"
#include "platform/citazione.h"
#include "sostegno/Banco.h"
#include "startup/direttori_cond.h"

namespace telva::prove {

using Punti = std::vector<std::array<int, 2>>;

struct Legfont : Banco {
    Legfont() {
        DirRoot = RadiceLunga();
        DirProgra = DirRoot + "\\progra";
    }
    void LeggiRighe(const std::string &righe) {
        Scrivi("progra/font.001", righe);
        LeggiFont();
    }
    static Punti PuntiDi(unsigned char codice) {
        Punti punti;
        for (int k = 0; k < NumPtFont[codice]; ++k)
            punti.push_back({FontX(codice, k), FontY(codice, k)});
        return punti;
    }
    static std::string File() { return CitaPercorso(DirProgra + "\\font.001"); }
    static Messaggio ErroreInLettura() {
        return {"Errore in lettura del file " + File() + " !", Gravita::Critica, "Problema"};
    }
};

TEST_F(Legfont, OgniRigaEUnCarattereDiTrattiDaOttoCifre) {
    struct Caso {
        const char *riga;
        Punti attesi;
    };
    const Caso casi[] = {
        {.riga = "A", .attesi = {}},
        {.riga = "A10203040", .attesi = {{10, 20}, {30, 40}}},
        {.riga = "B 1 2 3 499-56 7", .attesi = {{1, 2}, {3, 4}, {99, -5}, {6, 7}}},
        {.riga = "C102030405060", .attesi = {{10, 20}, {30, 40}, {50, 60}, {0, 0}}},
        {.riga = "D1020", .attesi = {}}, // half a stroke rounds to none
        {.riga = " 01020304   ", .attesi = {{1, 2}, {3, 4}}},
        {.riga = "\xE8\x30\x31\x30\x32\x30\x33\x30\x34", .attesi = {{1, 2}, {3, 4}}}}; // è01020304
    for (const auto &[riga, attesi] : casi) {
        LeggiRighe("20 resto\r\n" + std::string(riga) + "\r\n");
        EXPECT_EQ(PuntiDi(static_cast<unsigned char>(riga[0])), attesi) << '"' << riga << '"';
        EXPECT_EQ(SpazioFont, 20) << '"' << riga << '"';
        EXPECT_EQ(NumPtFont['z'], -1) << "not in the file";
        EXPECT_TRUE(messaggi.empty()) << '"' << riga << '"';
    }
    EXPECT_EQ(CarFont[0xE8], "\u00E8");
}

TEST_F(Legfont, UnCarattereHaAlPiuCentoPunti) {
    std::string riga = "A";
    for (int k = 0; k < 60; ++k) riga += "01020304";
    LeggiRighe("0\n" + riga + "\nB01020304\n");
    EXPECT_EQ(NumPtFont['A'], 100);
    EXPECT_EQ(NumPtFont['B'], 2);
}

TEST_F(Legfont, DiUnCarattereGuastoRestanoITrattiInteri) {
    struct Caso {
        const char *riga;
        int punti; // that are left
    };
    for (const Caso &c : {Caso{.riga = "Bx1020304", .punti = 0},
                          {.riga = "B010203x4", .punti = 0},
                          {.riga = "B01020304x5060708", .punti = 2},
                          {.riga = "B010203040506070x", .punti = 2}}) {
        messaggi.clear();
        LeggiRighe("0\nA01020304\n" + std::string(c.riga) + "\nC01020304\n");
        EXPECT_EQ(NumPtFont['B'], c.punti) << c.riga;
        EXPECT_EQ(NumPtFont['A'], 2) << "read before " << c.riga;
        EXPECT_EQ(NumPtFont['C'], -1) << "after " << c.riga;
        EXPECT_EQ(messaggi, std::vector{ErroreInLettura()}) << c.riga;
    }
}

TEST_F(Legfont, SenzaUnNumeroInTestaIlFileEErrato) {
    for (const char *testo : {"", "x\r\nA01020304\r\n", "99999\nA01020304\n"}) {
        messaggi.clear();
        LeggiRighe(testo);
        EXPECT_EQ(messaggi, std::vector{ErroreInLettura()}) << '"' << testo << '"';
        EXPECT_EQ(NumPtFont['A'], -1) << '"' << testo << '"';
    }
}

TEST_F(Legfont, SiCercaNellaCartellaDeiProgrammiPoiInQuellaDiBase) {
    LeggiFont();
    EXPECT_EQ(messaggi, (std::vector<Messaggio>{
                            {"File " + File() + " inesistente!", Gravita::Critica, "Problema"}}));
    Scrivi("font.001", "0\nA01020304\n");
    LeggiFont();
    EXPECT_EQ(NumPtFont['A'], 2) << "from the root";
    LeggiRighe("0\nA0102030405060708\n");
    EXPECT_EQ(NumPtFont['A'], 4) << "from the programs' folder";
}

TEST_F(Legfont, InUtf8ICodiciSonoGliStessi) {
    LeggiRighe("\xEF\xBB\xBF"
               "20\r\n\u00E801020304\r\n\u20AC0102030405060708\r\n\u03A901020304\r\nB01020304");
    EXPECT_EQ(NumPtFont[0xE8], 2) << "\u00E8";
    EXPECT_EQ(CarFont[0xE8], "\u00E8");
    EXPECT_EQ(NumPtFont[0x80], 4) << "\u20AC";
    EXPECT_EQ(NumPtFont['B'], -1) << "a character beyond the table ends the font";
    EXPECT_EQ(messaggi.size(), 0u);
}

} // namespace telva::prove

#include "model/tabelle_cond.h"

#include "model/struttura.h"
#include "sostegno/Banco.h"
#include "startup/basCommon_cond.h"
#include "startup/direttori_cond.h"

namespace telva::prove {

struct Tabelle : Banco {
    Tabelle() {
        DirLavoro = Radice();
        CaricaMessaggi();
    }
};

TEST_F(Tabelle, OltreIlLimiteSiAvvisaESiLeggonoLePrime) {
    struct {
        const char *file, *scheda;
        std::string (*leggi)();
        std::int16_t *numero;
        int limite;
        const char *messaggio;
    } casi[] = {{"spessori", "9 7 \"x y\" 2.5 z\n", LeggiSpessori, &NumSpessori, 100, " Troppe schede di spessore "},
                {"sezioni_", "1,2\n7\n1 2 3\n4 5 6,7 8 9,0 \"x,y\" 0\n", LeggiSezioni, &NumSezioni, 99, " Troppe schede di sezione "},
                {"el_conti.tmp", "7 0 \"a, b\"\n0\n", LeggiElCont, &NumElCont, 2000, " Troppi elementi continui "}};
    for (const auto &c : casi) {
        for (int numero : {c.limite, c.limite + 1, 0}) {
            std::string testo = std::to_string(numero) + "\n";
            for (int n = 0; n < numero; ++n) testo += c.scheda;
            Scrivi(c.file, testo);
            messaggi.clear();
            EXPECT_EQ(c.leggi(), "");
            EXPECT_EQ(*c.numero, std::min(numero, c.limite));
            EXPECT_EQ(messaggi, numero > c.limite ? std::vector<Messaggio>({{c.messaggio, Icona::Critica, "Problema"}}) : std::vector<Messaggio>());
            if (numero == 0) continue;
            EXPECT_EQ((std::vector<int>{MatSpessore[99], MatSpessore[100], MatSezione[98], MatSezione[99]}), (std::vector<int>{7, 0, c.limite == 100 ? 0 : 7, 0}));
        }
        EXPECT_EQ(MatSpessore[99], 0);
        Cancella(c.file);
        EXPECT_EQ(c.leggi(), " Impossibile leggere il file " + Radice() + "\\" + c.file);
    }
    EXPECT_TRUE(ValSpessore[99] == 2.5 && NumeroElCont[1999] == 7 && NomeElCont[1999] == "a, b");
}

TEST_F(Tabelle, UnValoreErratoDiSchedaSiSalta) {
    Scrivi("spessori", "2\n1 x 0 2.5 0\n2 4 0 y 0\n");
    Scrivi("sezioni_", "3\n1 0 x 0 0 0 0 0 0 0 0 0 0 0 0\n2 0 5 0 0 0 0 0 0 0 0 0 0 0 0\n3 0");
    EXPECT_EQ(LeggiSpessori() + LeggiSezioni(), "");
    EXPECT_EQ((std::vector<double>{double(MatSpessore[0]), ValSpessore[0], double(MatSpessore[1]), ValSpessore[1]}), (std::vector<double>{0, 2.5, 4, 0}));
    const std::pair<int, int> sezioni[] = {{-1, 0}, {0, 0}, {1, 0}, {2, 5}, {3, 0}, {4, 0}, {30000, 0}};
    for (const auto &[scheda, materiale] : sezioni) EXPECT_EQ(MaterialeSezione(scheda), materiale) << scheda;
    EXPECT_EQ(MaterialeSpessore(2), 4);
    EXPECT_EQ(MaterialeSpessore(3), 0);
}

TEST_F(Tabelle, UnElementoContinuoErratoEUnGuasto) {
    std::string trecento = "300";
    for (int n = 1; n <= 300; ++n) trecento += "\n" + std::to_string(n);
    Scrivi("el_conti.tmp", "3\n10,1,\"Trave, citt\xE0\" 2 5\n6\n11 2 Trave alta \n0\n12,3,,\n" + trecento);
    EXPECT_EQ(LeggiElCont(), "");
    EXPECT_EQ(NomeElCont[0] + "|" + NomeElCont[1] + "|" + NomeElCont[2], "Trave, città|Trave alta|");
    EXPECT_EQ((std::vector<int>{DatoElCont2[0], AsteElCont(0, 1), NumAsteElCont[1], NumeroElCont[2], AsteElCont(2, 299)}), (std::vector<int>{1, 6, 0, 12, 300}));
    const std::pair<std::string, int> guasti[] = {
        {"", 1}, {"x", 1}, {"1\n1 0 a\n2 7\n", 4}, {"1\nx 0 a\n0\n", 2}, {"1\n1 0 a\n1\n40000", 4}, {"1\n1 0 a\n1 b", 3}, {"1\n1 0 a\n301", 3}, {"1\n1 0", 3}};
    for (const auto &[testo, riga] : guasti) {
        Scrivi("el_conti.tmp", testo);
        messaggi.clear();
        EXPECT_FALSE(Esegui([] { LeggiElCont(); })) << testo;
        ASSERT_EQ(messaggi.size(), 1u);
        EXPECT_TRUE(codiceFine == 1 && messaggi[0].titolo == "ERRORE" && messaggi[0].icona == Icona::Critica);
        EXPECT_TRUE(messaggi[0].testo.starts_with("File " + Radice() + "\\el_conti.tmp, riga " + std::to_string(riga) + ": ")) << messaggi[0].testo << testo;
    }
}

} // namespace telva::prove

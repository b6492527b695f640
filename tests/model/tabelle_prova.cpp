#include "model/struttura.h"
#include "model/tabelle_cond.h"
#include "sostegno/Banco.h"
#include "startup/basCommon_cond.h"
#include "startup/direttori_cond.h"
namespace telva::prove {
TEST_F(Banco, OltreIlLimiteSiAvvisaESiLeggonoLePrimeSchede) {
    DirLavoro = Radice();
    CaricaMessaggi();
    std::vector<Messaggio> attesi;
    const auto prova = [&](std::string file, auto leggi, auto &letti, int limite, auto voce) {
        EXPECT_EQ(leggi(), " Impossibile leggere il file " + DirLavoro + "\\" + file);
        for (const int numero : {0, limite, limite + 1}) {
            EXPECT_EQ(messaggi, attesi) << file;
            std::string testo = std::to_string(numero);
            for (int n = 0; n < numero; ++n) testo += voce;
            Scrivi(file, testo);
            EXPECT_TRUE(leggi() == "" && letti == std::min(numero, limite)) << file << numero;
        }
    };
    prova("spessori", LeggiSpessori, NumSpessori, 100, "\n9 7 \"x y\" 2.5 z");
    attesi.push_back({" Troppe schede di spessore ", Icona::Critica, "Problema"});
    prova("sezioni_", LeggiSezioni, NumSezioni, 99, "\n1,2\n7\n1 2 3\n4 5 6,7 8 9,0 \"x,y\" 0");
    attesi.push_back({" Troppe schede di sezione ", Icona::Critica, "Problema"});
    prova("el_conti.tmp", LeggiElCont, NumElCont, 2000, "\n7 0 \"a, b\"\n0");
    attesi.push_back({" Troppi elementi continui ", Icona::Critica, "Problema"});
    EXPECT_EQ(messaggi, attesi);
    EXPECT_TRUE(MatSpessore[99] == 7 && ValSpessore[99] == 2.5 && NomeElCont[1999] == "a, b");
    EXPECT_EQ(MaterialeSezione(0) + MaterialeSezione(99) + MaterialeSezione(100), 7);
    Scrivi("spessori", "2\n1 x 0 2 0\n2 4 0 y 0\n"); // a broken value stays as it was
    EXPECT_TRUE(LeggiSpessori() == "" && MatSpessore[0] == 7 && MatSpessore[1] == 4);
    std::string righe;
    for (const char *e : {"", "1\nx 0 a\n0\n", "1\n1 0 a\n1\n40000", "1\n1 0 a\n301", "1\n1 0"}) {
        Scrivi("el_conti.tmp", e);
        EXPECT_TRUE(!Esegui(LeggiElCont) && codiceFine == 1) << e;
        righe += messaggi.back().testo.substr(("File \\el_conti.tmp, riga " + Radice()).size(), 2);
    }
    EXPECT_EQ(righe, "1:2:4:3:3:");
}
} // namespace telva::prove

#include "model/opzioni_cond.h"
#include "sostegno/Banco.h"
#include "sostegno/DiscoGuasto.h"
#include "startup/basCommon_cond.h"
#include "startup/direttori_cond.h"
namespace telva::prove {
TEST_F(Banco, QuelCheSiScriveNelleOpzioniSiRilegge) {
    DirCustom = Radice();
    LeggiOpzioni();                 // no file: the defaults
    EXPECT_EQ(ScriviOpzioni(), ""); // the message table is still empty
    std::string predefinite = Leggi("TelOpzio.txt");
    std::erase(predefinite, '\r');
    EXPECT_EQ(predefinite, "1\n1\n1\n4\n\n1\n5\n0\n0\n0\n5\n5\n1\n5\n"
                           "1\n1\n1\n1\n1\n1\n1\n1\n1\n1\n1\n1\n\n\n\n\n");
    Scrivi("TelOpzio.txt", "0\r\n 12.5 ,\"a,b\"\r\n\r\ncitt\xE0\r\n\"due\r\nrighe\"");
    LeggiOpzioni();
    CaricaMessaggi();
    const auto scritte = Opzioni;
    EXPECT_EQ(ScriviOpzioni(), " Opzioni salvate ");
    EXPECT_EQ(Leggi("TelOpzio.txt").find("0\r\n12.5\r\n\"a,b\"\r\n\r\ncitt\xE0\r\n"), 0u);
    DiscoGuasto disco;
    disco.spazio = 0;
    EXPECT_EQ(ScriviOpzioni(), " Problemi nel salvataggio delle opzioni ");
    AzzeraOpzioni();
    LeggiOpzioni();
    for (int voce = 0; voce < 30; ++voce) EXPECT_EQ(Opzioni[voce], scritte[voce]) << voce;
}

TEST_F(Banco, LeOpzioniInterneSonoLePrimeCinqueRigheGiuste) {
    std::string letti;
    DirCustom = Radice();
    for (const char *testo :
         {"", "7.5|pc1|\r\n12 x|Pc 2|x|\n1e1|PC5.9|", "7|PX1|\n7|PC6|\n3|PC2\n3|PC0|",
          "1|PC1|\n2|PC4|\n3|PC1|\n\n4|PC3|\n5|PC2|\n"}) {
        if (*testo) Scrivi("TelOpInt.txt", testo);
        LeggiOpzInt();
        for (int n = 1; n < 6; ++n) letti += std::to_string(int(10 * OpzInt[n])) + " ";
    }
    EXPECT_EQ(letti, "0 0 0 0 0 75 120 0 0 100 0 0 0 0 0 30 0 40 20 0 ");
}
} // namespace telva::prove

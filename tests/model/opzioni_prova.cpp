#include "model/opzioni_cond.h"

#include "platform/archivio_prova.h"
#include "sostegno/Banco.h"
#include "startup/basCommon_cond.h"
#include "startup/direttori_cond.h"

namespace telva::prove {

struct OpzioniFile : Banco {
    OpzioniFile() { DirCustom = Radice(); }
    static std::vector<Valore> Tutte() { return {Opzioni.Dati(), Opzioni.Dati() + 30}; }
};

TEST_F(OpzioniFile, SenzaFileValgonoLePredefinite) {
    LeggiOpzioni();
    std::vector<Valore> attese(26, 1.0);
    for (const auto &[voce, valore] : {std::pair{3, 4.0}, {6, 5.0}, {7, 0.0}, {8, 0.0}, {9, 0.0}, {10, 5.0}, {11, 5.0}, {13, 5.0}})
        attese[static_cast<std::size_t>(voce)] = valore;
    attese[4] = Valore{};
    attese.resize(30);
    EXPECT_EQ(Tutte(), attese);
    EXPECT_TRUE(messaggi.empty());
}

TEST_F(OpzioniFile, QuelCheSiScriveSiRilegge) {
    Scrivi("TelOpzio.txt", "1\r\n 12.5 ,\"a,b\"\r\n\r\ncitt\xE0\r\n");
    Opzioni[4] = 8.0;
    Opzioni[6] = 7.0;
    LeggiOpzioni();
    EXPECT_EQ(Opzioni[2], Valore{"a,b"});
    EXPECT_EQ(Opzioni[6], Valore{7.0}); // beyond the file's end: as it was
    Opzioni[28] = "due\r\nrighe";
    const std::vector<Valore> scritte = Tutte();
    EXPECT_EQ(ScriviOpzioni(), ""); // the message table is still empty
    CaricaMessaggi();
    EXPECT_EQ(ScriviOpzioni(), " Opzioni salvate ");
    EXPECT_TRUE(Leggi("TelOpzio.txt").starts_with("1\r\n12.5\r\n\"a,b\"\r\n\r\ncitt\xE0\r\n\r\n7\r\n\r\n"));
    AzzeraOpzioni();
    LeggiOpzioni();
    EXPECT_EQ(Tutte(), scritte);
    const std::string prima = Leggi("TelOpzio.txt");
    GuastoScrittura().scritturaPiena = true;
    Opzioni[0] = 0.0;
    EXPECT_EQ(ScriviOpzioni(), " Problemi nel salvataggio delle opzioni ");
    EXPECT_EQ(Leggi("TelOpzio.txt"), prima);
}

TEST_F(OpzioniFile, LeInterneSonoLePrimeCinqueRigheGiuste) {
    const std::pair<const char *, std::vector<double>> casi[] = {
        {"7.5|pc1|\r\n12 px|Pc 2|apertura|x\n1e1|PC5.9|", {0, 7.5, 12, 0, 0, 10}}, {"7.5|PX1|\n7.5|PC6|\n3|PC2\n3|PC0|\n3|PC|\n", {0, 0, 0, 0, 0, 0}},
        {"3||PC1|\n3|P|C1|\n3\n3|PC-1|\n|PC1|", {0, 0, 0, 0, 0, 0}}, {"1|PC1|\n2|PC4|\n3|PC1|\n\n4|PC3|\n5|PC2|\n", {0, 3, 0, 4, 2, 0}}};
    for (const auto &[testo, attese] : casi) {
        Scrivi("TelOpInt.txt", testo);
        for (int n = 1; n < 6; ++n) OpzInt[n] = 99;
        LeggiOpzInt();
        EXPECT_EQ(std::vector(OpzInt.Dati(), OpzInt.Dati() + 6), attese) << testo;
    }
    Cancella("TelOpInt.txt");
    LeggiOpzInt();
    EXPECT_EQ(OpzInt[1], 0);
}

} // namespace telva::prove

#include "model/opzioni_cond.h"
#include "sostegno/Banco.h"
#include "sostegno/DiscoGuasto.h"
#include "startup/basCommon_cond.h"
#include "startup/direttori_cond.h"

namespace telva::prove {

struct OpzioniProva : Banco {
    OpzioniProva() {
        DirCustom = Radice();
        CaricaMessaggi();
    }
};

TEST_F(OpzioniProva, SenzaFileValgonoLePredefinite) {
    LeggiOpzioni();
    struct Caso {
        const char *che;
        int voce;
        double atteso;
    };
    for (const Caso &c :
         {Caso{.che = "thin shells hidden", .voce = kOpzNascondiSottili, .atteso = 1},
          {.che = "thickness limit", .voce = kOpzSpessoreMinimo, .atteso = 1},
          {.che = "pen", .voce = kOpzPennaNonSel, .atteso = 1},
          {.che = "pen of the selected", .voce = kOpzPennaSel, .atteso = 4},
          {.che = "colour of the selected", .voce = kOpzColoreSel, .atteso = 1},
          {.che = "node radius", .voce = kOpzRaggioNodo, .atteso = 5},
          {.che = "nodes' labels", .voce = kOpzTestiNodi, .atteso = 0},
          {.che = "bars' labels", .voce = kOpzTestiAste, .atteso = 0},
          {.che = "shells' labels", .voce = kOpzTestiGusci, .atteso = 0},
          {.che = "text width", .voce = kOpzBaseTesto, .atteso = 5},
          {.che = "text height", .voce = kOpzAltezzaTesto, .atteso = 5},
          {.che = "text colour", .voce = kOpzColoreTesto, .atteso = 1},
          {.che = "text distance", .voce = kOpzDistanzaTesto, .atteso = 5}})
        EXPECT_EQ(Opzioni[c.voce], telva::Valore{c.atteso}) << c.che;
    for (int voce = kOpzPartiNodi; voce <= kOpzNomeElCont; ++voce)
        EXPECT_EQ(Opzioni[voce], telva::Valore{1.0}) << "part " << voce << " of the labels";
    for (const int voce : {4, 26, 27, 28, 29}) EXPECT_EQ(Opzioni[voce], telva::Valore{}) << voce;
}

TEST_F(OpzioniProva, QuelCheSiScriveSiRilegge) {
    Scrivi("TelOpzio.txt", "0\r\n 12.5 ,\"a,b\"\r\n\r\ncitt\xE0\r\n\"due\r\nrighe\"\r\n\"7\"\r\n");
    LeggiOpzioni();
    const auto lette = Opzioni;
    EXPECT_EQ(ScriviOpzioni(), " Opzioni salvate ");
    EXPECT_TRUE(
        Leggi("TelOpzio.txt")
            .starts_with("0\r\n12.5\r\n\"a,b\"\r\n\r\ncitt\xE0\r\n\"due\r\nrighe\"\r\n\"7\""))
        << Leggi("TelOpzio.txt");
    AzzeraOpzioni();
    LeggiOpzioni();
    for (int voce = 0; voce < 30; ++voce) EXPECT_EQ(Opzioni[voce], lette[voce]) << voce;
}

TEST_F(OpzioniProva, SeNonSiPossonoScrivereLoSiDiceEIlFileResta) {
    Scrivi("TelOpzio.txt", "0\r\n");
    DiscoGuasto disco;
    disco.spazio = 0;
    EXPECT_EQ(ScriviOpzioni(), " Problemi nel salvataggio delle opzioni ");
    EXPECT_EQ(Leggi("TelOpzio.txt"), "0\r\n");
}

TEST_F(OpzioniProva, UnTestoValePerIlSuoNumero) {
    struct Caso {
        telva::Valore valore;
        double numero;
        bool attiva;
    };
    for (const Caso &c : {Caso{.valore = 1.0, .numero = 1, .attiva = true},
                          {.valore = 2.0, .numero = 2, .attiva = false},
                          {.valore = {}, .numero = 0, .attiva = false},
                          {.valore = "1 pixel", .numero = 1, .attiva = true},
                          {.valore = "abc", .numero = 0, .attiva = false}}) {
        Opzioni[9] = c.valore;
        EXPECT_EQ(OpzioneNumero(9), c.numero);
        EXPECT_EQ(OpzioneAttiva(9), c.attiva) << "worth " << c.numero;
    }
}

TEST_F(OpzioniProva, LeOpzioniInterneSonoLePrimeCinqueRigheGiuste) {
    using Lette = std::array<double, 5>; // PC1 to PC5
    struct Caso {
        const char *che, *testo;
        Lette attese;
    };
    for (const Caso &c : {Caso{.che = "no file", .testo = "", .attese = {0, 0, 0, 0, 0}},
                          {.che = "anything behind, other letters, fractions of the place",
                          .testo = "7.5|pc1|\r\n12 x|Pc 2|x|\n1e1|PC5.9|",
                          .attese = {7.5, 12, 0, 0, 10}},
                          {.che = "other keys and places",
                          .testo = "7|PX1|\n7|PC6|\n3|PC2\n3|PC0|\n3|PC|",
                          .attese = {0, 0, 0, 0, 0}},
                          {.che = "the later one counts, five lines at most",
                          .testo = "1|PC1|\n2|PC4|\n3|PC1|\n\n4|PC3|\n5|PC2|\n",
                          .attese = {3, 0, 4, 2, 0}}}) {
        if (*c.testo) Scrivi("TelOpInt.txt", c.testo);
        LeggiOpzInt();
        for (int n = 1; n <= 5; ++n)
            EXPECT_EQ(OpzInt[n], c.attese[static_cast<std::size_t>(n - 1)])
                << "PC" << n << ": " << c.che;
    }
}

} // namespace telva::prove

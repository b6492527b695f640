#include "model/opzioni_cond.h"

#include "ScriviLavoro.h"
#include "sostegno/Banco.h"
#include "startup/basCommon_cond.h"
#include "startup/direttori_cond.h"

#include <algorithm>
#include <map>

namespace telva::prove {

struct OpzioniProva : Banco {
    OpzioniProva() {
        DirCustom = Radice();
        CaricaMessaggi();
    }
};

TEST_F(OpzioniProva, SenzaFileValgonoLePredefinite) {
    Scrivi("TelOpzio.txt.~1", "of a program that was killed");
    LeggiOpzioni();
    EXPECT_EQ(Leggi("TelOpzio.txt.~1"), "<assente>");
    for (const int voce :
         {kOpzNascondiSottili, kOpzSpessoreMinimo, kOpzPennaNonSel, kOpzColoreSel, kOpzColoreTesto})
        EXPECT_EQ(Opzioni[voce], telva::Valore{1.0}) << voce;
    for (const int voce : {kOpzRaggioNodo, kOpzBaseTesto, kOpzAltezzaTesto, kOpzDistanzaTesto})
        EXPECT_EQ(Opzioni[voce], telva::Valore{5.0}) << voce;
    for (const int voce : {kOpzTestiNodi, kOpzTestiAste, kOpzTestiGusci})
        EXPECT_EQ(Opzioni[voce], telva::Valore{0.0}) << voce;
    EXPECT_EQ(Opzioni[kOpzPennaSel], telva::Valore{4.0});
    for (int voce = kOpzPartiNodi; voce <= kOpzNomeElCont; ++voce)
        EXPECT_EQ(Opzioni[voce], telva::Valore{1.0}) << "part " << voce << " of the labels";
    for (const int voce : {4, 26, 27, 28, 29}) EXPECT_EQ(Opzioni[voce], telva::Valore{}) << voce;
}

TEST_F(OpzioniProva, QuelleDelCampioneMostranoLaSelezioneAncheSuiContorni) {
    std::string cartella = Radice();
    std::ranges::replace(cartella, '\\', '/');
    generatore::ScriviInstallazione(cartella, "dimo01", {}, cartella);
    DirCustom = Radice() + "\\custom";
    LeggiOpzioni();
    EXPECT_EQ(OpzioneNumero(kOpzPennaSel), 5);
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

TEST_F(OpzioniProva, UnTestoValePerIlSuoNumero) {
    struct Caso {
        telva::Valore valore;
        double numero;
    };
    for (const Caso &c : {Caso{.valore = 1.0, .numero = 1},
                          {.valore = 2.0, .numero = 2},
                          {.valore = {}, .numero = 0},
                          {.valore = "1 pixel", .numero = 1},
                          {.valore = "abc", .numero = 0}}) {
        Opzioni[kOpzTestiGusci] = c.valore;
        EXPECT_EQ(OpzioneNumero(kOpzTestiGusci), c.numero);
        EXPECT_EQ(OpzioneAttiva(kOpzTestiGusci), c.numero == 1) << "worth " << c.numero;
    }
}

TEST_F(OpzioniProva, LeOpzioniInterneSonoLePrimeCinqueRigheGiuste) {
    struct Caso {
        const char *testo;
        std::map<int, double> attese; // by the number behind PC; 0 where none stands
    };
    const Caso casi[] = {
        {.testo = "7.5|pc1|\r\n12 x|Pc 2|x|\n1e1|PC5.9|", .attese = {{1, 7.5}, {2, 12}, {5, 10}}},
        {.testo = "7|PX1|\n7|PC6|\n3|PC2\n3|PC0|\n3|PC|", .attese = {}},
        {.testo = "1|PC1|\n2|PC4|\n3|PC1|\n\n4|PC3|\n5|PC2|\n",
         .attese = {{1, 3}, {3, 4}, {4, 2}}}};
    for (Caso c : casi) {
        Scrivi("TelOpInt.txt", c.testo);
        LeggiOpzInt();
        for (int n = 1; n <= 5; ++n)
            EXPECT_EQ(OpzInt[n], c.attese[n]) << "PC" << n << " of " << c.testo;
    }
    Cancella("TelOpInt.txt");
    LeggiOpzInt();
    EXPECT_EQ(OpzInt[kOpzTrappola], 0) << "no file";
}

} // namespace telva::prove

#include "model/legfont_cond.h"
#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "selection/selezione.h"
#include "sostegno/Banco.h"
#include "startup/avvio.h"
#include "ui/controlli/FormTelva.h"
namespace telva::prove {
TEST_F(Banco, LaFinestraSiApreConTitoloTrappolaEListaInIngresso) {
    std::string liste; // of each case: kind, incoming list
    for (const std::string caso : {"00", "20", "30", "7 0 ", "02-4,9", "112,3", "320", "43", "2"}) {
        const int tipo = caso[0] - '0';
        AzzeraProgramma();
        ScriviIngresso("  Palazzo ", caso.substr(1), tipo);
        Apri(Telaio());
        liste += Lista() + "|";
        EXPECT_TRUE(FormTelva.TipoElemento() == tipo % 7 && CodFunAttiva == kNessunaFunzione);
    }
    EXPECT_EQ(liste, "1,1-9|1,1-4|10,10,20|1,1-9|2-4,9|3,12|20|||");
    EXPECT_EQ(FormTelva.Caption(), "Palazzo - " + Radice() + "\\lavori\\prova1");
    EXPECT_EQ(FormTelva.Trappola.Caption(), "Trappola (8)...");
    EXPECT_EQ(FormTelva.MousePointer(), Puntatore::Predefinito);
}

// The same job, as other programs may write its files.
TEST_F(Banco, UnLavoroScrittoDaAltriProgrammiSiLeggeUguale) {
    const auto conFine = [](std::string testo, const std::string &fineRiga) {
        std::string riscritto;
        for (const char c : testo)
            if (c == '\n')
                riscritto += fineRiga;
            else if (c != '\r')
                riscritto += c;
        return riscritto;
    };
    const auto utf16 = [](const std::string &testo) {
        std::string byte = "\xFF\xFE";
        for (const char c : testo) (byte += c) += '\0';
        return byte;
    };
    const struct {
        const char *come;
        std::function<std::string(const std::string &)> riscrivi;
    } casi[] = {
        {"CR", [&](const std::string &testo) { return conFine(testo, "\r"); }},
        {"LF", [&](const std::string &testo) { return conFine(testo, "\n"); }},
        {"UTF-8", [](const std::string &testo) { return "\xEF\xBB\xBF" + testo; }},
        {"UTF-16", utf16},
        {"1A", [](const std::string &testo) { return testo + "\x1A 1 2 3"; }},
    };
    for (const auto &caso : casi) {
        AzzeraProgramma();
        Installa();
        ScriviLavoro(Telaio());
        ScriviIngresso("Palazzo", "2-4,9", 1);
        for (const char *file :
             {"impostazioni/dirlav", "impostazioni/lavoro", "progra/font.001",
              "custom/TelOpInt.txt", "lavori/prova1/STRUTTUR.STR", "lavori/prova1/spessori",
              "lavori/prova1/sezioni_", "lavori/prova1/el_conti.tmp", "lavori/prova1/TelvaIn.txt"})
            Scrivi(file, caso.riscrivi(Leggi(file)));
        messaggi.clear();
        EXPECT_TRUE(Avvia()) << caso.come;
        EXPECT_TRUE(messaggi.empty()) << caso.come << ": " << messaggi[0].testo;
        EXPECT_EQ(FormTelva.Caption(), "Palazzo - " + Radice() + "\\lavori\\prova1") << caso.come;
        EXPECT_EQ(Lista(), "2-4,9") << caso.come;
        EXPECT_EQ(NumGusci, 4) << caso.come;
        EXPECT_EQ(NomeElCont[1], "Trave media") << caso.come;
        EXPECT_EQ(OpzInt[3], 12) << caso.come;
        EXPECT_GT(NumPtFont['A'], 0) << caso.come;
    }
}

TEST_F(Banco, IFileCheMancanoSiDiconoInOrdineESiProsegue) {
    Installa();
    Cancella("progra");
    EXPECT_TRUE(Avvia());
    const std::string manca = " Impossibile leggere il file " + Radice() + "\\lavori\\prova1\\";
    std::vector<Messaggio> attesi(
        7, {"Errore nella lettura della struttura", Icona::Critica, "Problema"});
    attesi[0].testo = "File " + Radice() + "\\progra\\font.001 inesistente!";
    for (std::size_t k = 1; const char *file : {"spessori", "sezioni_", "el_conti.tmp"})
        attesi[k++].testo = manca + file;
    attesi[5] = {"Nome nodo maggiore di 32000.", Icona::Esclamazione, "ERRORE IN STRUTTUR.STR"};
    LavoroProva l = Telaio();
    l.nodi[3].nome = 32001;
    Installa();
    ScriviLavoro(l);
    EXPECT_TRUE(Avvia());
    EXPECT_EQ(messaggi, attesi);
    FormTelva.Resize(); // half a structure is not drawn
    const Superficie &d = FormTelva.Disegno.Immagine();
    EXPECT_EQ(std::count(d.Riga(0), d.Riga(d.Altezza() - 1), 0U),
              d.Riga(d.Altezza() - 1) - d.Riga(0));
}
} // namespace telva::prove

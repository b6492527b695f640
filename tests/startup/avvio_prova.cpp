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

// The start: what the window shows first, and what a missing file brings.
#include "model/elementi.h"
#include "sostegno/Utente.h"
#include "startup/avvio.h"
#include "ui/controlli/FormTelva.h"

#include <algorithm>

namespace telva::prove {

struct AvvioProva : Utente {};

TEST_F(AvvioProva, IFileCheMancanoSiDiconoInOrdineESiProsegue) {
    Installa();
    Cancella("progra");
    EXPECT_TRUE(Avvia());
    const std::string lavoro = Radice() + "\\lavori\\prova1\\";
    const std::string manca = " Impossibile leggere il file " + lavoro;
    const std::vector<Messaggio> attesi = {
        {"File " + Radice() + "\\progra\\font.001 inesistente!", Gravita::Critica, "Problema"},
        {manca + "spessori", Gravita::Critica, "Problema"},
        {manca + "sezioni_", Gravita::Critica, "Problema"},
        {manca + "el_conti.tmp", Gravita::Critica, "Problema"},
        {"Errore nella lettura della struttura", Gravita::Critica, "Problema"}};
    EXPECT_EQ(messaggi, attesi);
}

TEST_F(AvvioProva, MezzaStrutturaNonSiDisegna) {
    LavoroProva l = Telaio();
    l.nodi[3].nome = 32001;
    Installa();
    ScriviLavoro(l);
    EXPECT_TRUE(Avvia());
    const std::vector<Messaggio> attesi = {
        {"Nome nodo maggiore di 32000.", Gravita::Esclamazione, "ERRORE IN STRUTTUR.STR"},
        {"Errore nella lettura della struttura", Gravita::Critica, "Problema"}};
    EXPECT_EQ(messaggi, attesi);
    Ridimensiona(15000, 11400);
    const Superficie &s = FormTelva.Disegno.Immagine();
    const std::uint32_t *inizio = s.Riga(0), *fine = inizio + s.Larghezza() * s.Altezza();
    EXPECT_EQ(std::count(inizio, fine, 0U), fine - inizio);
}

TEST_F(AvvioProva, SenzaStrutturaLaListaDelChiamanteTornaIntera) {
    for (const int tipo : {+kNodiTipo, +kAsteTipo, +kElContTipo, 7}) {
        AzzeraProgramma();
        Installa();
        ScriviLavoro(Telaio());
        ScriviIngresso("Palazzo", "2-4,9", tipo);
        Cancella("lavori/prova1/STRUTTUR.STR");
        Avvia();
        Detto();
        EXPECT_EQ(FormTelva.Caption(), "Palazzo - " + Radice() + "\\lavori\\prova1");
        Passo("Ridis", [] { FormTelva.Ridis.Click(); });
        EXPECT_EQ(Lista(), "2-4,9") << "kind " << tipo;
        Passo("Salva", [] { FormTelva.Salva.Click(); });
        EXPECT_EQ(Leggi("lavori/prova1/TelvaOut.txt"), "2-4,9\r\n") << "kind " << tipo;
    }
}

} // namespace telva::prove

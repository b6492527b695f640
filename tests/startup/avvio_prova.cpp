// The start: what the window shows first, and what a missing file brings.
#include "model/legfont_cond.h"
#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "selection/selezione.h"
#include "sostegno/Utente.h"
#include "startup/avvio.h"
#include "ui/controlli/FormTelva.h"

#include <algorithm>

namespace telva::prove {

struct AvvioProva : Utente {};

TEST_F(AvvioProva, LaFinestraSiApreConTitoloETrappola) {
    ScriviIngresso("  Palazzo ", "", 0);
    Apri(Telaio());
    EXPECT_EQ(FormTelva.Caption(), "Palazzo - " + Radice() + "\\lavori\\prova1");
    EXPECT_EQ(FormTelva.Trappola.Caption(), "Trappola (8)...");
    EXPECT_EQ(FormTelva.MousePointer(), Puntatore::Predefinito);
    EXPECT_EQ(Funzione(), "");
}

TEST_F(AvvioProva, IlTipoELaListaSonoQuelliInIngresso) {
    struct Caso {
        int tipo;
        const char *ingresso, *lista;
        int mostrato; // kind
    };
    const Caso casi[] = {
        // "0" is everything.
        {.tipo = kNodiTipo, .ingresso = "0", .lista = "1,1-9", .mostrato = kNodiTipo},
        {.tipo = kGusciTipo, .ingresso = "0", .lista = "1,1-4", .mostrato = kGusciTipo},
        {.tipo = kElContTipo, .ingresso = "0", .lista = "10,10,20", .mostrato = kElContTipo},
        {.tipo = kNodiTipo, .ingresso = " 0 ", .lista = "1,1-9", .mostrato = kNodiTipo},
        // A kind that there is not is nodes.
        {.tipo = 7, .ingresso = " 0 ", .lista = "1,1-9", .mostrato = kNodiTipo},
        {.tipo = kNodiTipo, .ingresso = "2-4,9", .lista = "2-4,9", .mostrato = kNodiTipo},
        {.tipo = kAsteTipo, .ingresso = "12,3", .lista = "3,12", .mostrato = kAsteTipo},
        {.tipo = kElContTipo, .ingresso = "20", .lista = "20", .mostrato = kElContTipo},
        {.tipo = kParetiTipo, .ingresso = "3", .lista = "", .mostrato = kParetiTipo},
        {.tipo = kGusciTipo, .ingresso = "", .lista = "", .mostrato = kGusciTipo}};
    for (const auto &[tipo, ingresso, lista, mostrato] : casi) {
        SCOPED_TRACE(std::string("handed in \"") + ingresso + "\"");
        AzzeraProgramma();
        ScriviIngresso("Titolo", ingresso, tipo);
        Apri(Telaio());
        EXPECT_EQ(Lista(), lista);
        EXPECT_EQ(FormTelva.TipoElemento(), mostrato);
        EXPECT_EQ(Funzione(), "");
        EXPECT_EQ(SottoFunzione(), "");
        EXPECT_EQ(SelezioniPossibili(), "");
    }
}

// The same job, as other programs may write its files.
TEST_F(AvvioProva, UnLavoroScrittoDaAltriProgrammiSiLeggeUguale) {
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
        EXPECT_EQ(Detto(), "") << caso.come;
        EXPECT_EQ(FormTelva.Caption(), "Palazzo - " + Radice() + "\\lavori\\prova1") << caso.come;
        EXPECT_EQ(Lista(), "2-4,9") << caso.come;
        EXPECT_EQ(NumGusci, 4) << caso.come;
        EXPECT_EQ(NomeElCont[1], "Trave media") << caso.come;
        EXPECT_EQ(OpzInt[3], 12) << caso.come;
        EXPECT_GT(NumPtFont['A'], 0) << caso.come;
    }
}

TEST_F(AvvioProva, IFileCheMancanoSiDiconoInOrdineESiProsegue) {
    Installa();
    Cancella("progra");
    EXPECT_TRUE(Avvia());
    const std::string lavoro = Radice() + "\\lavori\\prova1\\";
    const std::string manca = " Impossibile leggere il file " + lavoro;
    const std::vector<Messaggio> attesi = {
        {"File " + Radice() + "\\progra\\font.001 inesistente!", Icona::Critica, "Problema"},
        {manca + "spessori", Icona::Critica, "Problema"},
        {manca + "sezioni_", Icona::Critica, "Problema"},
        {manca + "el_conti.tmp", Icona::Critica, "Problema"},
        {"Errore nella lettura della struttura", Icona::Critica, "Problema"}};
    EXPECT_EQ(messaggi, attesi);
}

TEST_F(AvvioProva, MezzaStrutturaNonSiDisegna) {
    LavoroProva l = Telaio();
    l.nodi[3].nome = 32001;
    Installa();
    ScriviLavoro(l);
    EXPECT_TRUE(Avvia());
    const std::vector<Messaggio> attesi = {
        {"Nome nodo maggiore di 32000.", Icona::Esclamazione, "ERRORE IN STRUTTUR.STR"},
        {"Errore nella lettura della struttura", Icona::Critica, "Problema"}};
    EXPECT_EQ(messaggi, attesi);
    Ridimensiona(15000, 11400);
    const Superficie &s = FormTelva.Disegno.Immagine();
    const std::uint32_t *inizio = s.Riga(0), *fine = inizio + s.Larghezza() * s.Altezza();
    EXPECT_EQ(std::count(inizio, fine, 0U), fine - inizio);
}

TEST_F(AvvioProva, SenzaStrutturaLaListaDelChiamanteTornaIntera) {
    for (const int tipo : {+kNodiTipo, +kAsteTipo, +kElContTipo}) {
        AzzeraProgramma();
        Installa();
        ScriviLavoro(Telaio());
        ScriviIngresso("Palazzo", "2-4,9", tipo);
        Cancella("lavori/prova1/STRUTTUR.STR");
        Avvia();
        Detto();
        Passo("Ridis", [] { FormTelva.Ridis.Click(); });
        EXPECT_EQ(Lista(), "2-4,9") << "kind " << tipo;
        Passo("Salva", [] { FormTelva.Salva.Click(); });
        EXPECT_EQ(Leggi("lavori/prova1/TelvaOut.txt"), "2-4,9\r\n") << "kind " << tipo;
    }
}

// --- the bench itself

TEST_F(AvvioProva, UnAvvioFallitoFermaLaProvaConLaSuaCausa) {
    LavoroProva l = Telaio();
    l.nodi[3].nome = 32001;
    try {
        Apri(l);
        FAIL() << "the start has failed, and the test goes on";
    } catch (const std::runtime_error &causa) {
        EXPECT_NE(std::string(causa.what()).find("Nome nodo maggiore di 32000."), std::string::npos)
            << causa.what();
    }
}

} // namespace telva::prove

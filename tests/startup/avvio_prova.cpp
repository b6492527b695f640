// Whole start-ups: what is shown, reported and selected when the window opens.
#include "model/scambio_cond.h"
#include "platform/testo.h"
#include "selection/selezione.h"
#include "sostegno/Banco.h"
#include "startup/basCommon_cond.h"
#include "ui/controlli/FormTelva.h"

namespace telva::prove {

using Avvio = Banco;

TEST_F(Avvio, LaFinestraSiApreConTitoloETrappola) {
    ScriviIngresso("  Palazzo ", "", 2);
    Apri(Telaio());
    EXPECT_EQ(FormTelva.Caption(), "Palazzo - " + Radice() + "\\lavori\\prova1");
    EXPECT_EQ(FormTelva.Trappola.Caption(), "Trappola (8)...");
    EXPECT_EQ(FormTelva.TipoElemento(), 2);
    EXPECT_TRUE(FormTelva.MousePointer() == Puntatore::Predefinito && FormTelva.FunAttiva.Caption() == "");
    Scrivi("custom/TelOpInt.txt", "7.5|PC1|");
    Cancella("lavori/prova1/TelvaIn.txt");
    EXPECT_TRUE(Avvia(Argomento() + "|LAVORO=prova1|"));
    EXPECT_EQ(FormTelva.Caption() + FormTelva.Trappola.Caption(), " - " + Radice() + "\\lavori\\prova1Trappola (7.5)...");
}

TEST_F(Avvio, LaListaInIngressoSiSeleziona) {
    struct {
        const char *lista;
        int tipo;
        const char *attesa;
    } casi[] = {{"0", 0, "1,1-9"}, {"0", 1, "1,1-12"}, {"0", 2, "1,1-4"}, {"0", 3, "10,10,20"}, {" 0 ", 7, "1,1-9"}, {"2-4,9", 0, "2-4,9"}, {"12,3", 1, "3,12"}, {"20", 3, "20"}, {"3", 4, ""}, {"5", -2, "5"}};
    for (const auto &c : casi) {
        ScriviIngresso("", c.lista, c.tipo);
        Apri(Telaio());
        EXPECT_EQ(Lista(), c.attesa) << c.lista << " " << c.tipo;
        EXPECT_EQ(CodFunAttiva, kNessunaFunzione);
    }
}

TEST_F(Avvio, IFileCheMancanoSiDiconoInOrdineESiProsegue) {
    Installa();
    Cancella("progra");
    const std::string lavoro = Radice() + "\\lavori\\prova1", manca = " Impossibile leggere il file " + lavoro;
    std::vector<Messaggio> attesi;
    for (const std::string &testo : {"File " + Radice() + "\\progra\\font.001 inesistente!", manca + "\\spessori", manca + "\\sezioni_", manca + "\\el_conti.tmp", std::string("Errore nella lettura della struttura")})
        attesi.push_back({testo, Icona::Critica, "Problema"});
    EXPECT_TRUE(Avvia());
    EXPECT_EQ(messaggi, attesi);
    EXPECT_EQ(FormTelva.MousePointer(), Puntatore::Predefinito);
    messaggi.clear();
    Installa();
    LavoroProva l = Telaio();
    l.nodi[3].nome = 32001;
    ScriviLavoro(l);
    EXPECT_TRUE(Avvia());
    EXPECT_EQ(messaggi, (std::vector<Messaggio>{{"Nome nodo maggiore di 32000.", Icona::Esclamazione, "ERRORE IN STRUTTUR.STR"}, attesi.back()}));
}

TEST_F(Avvio, UnGuastoFinisceSenzaScrivere) {
    Installa();
    LavoroProva l = Telaio();
    l.elementi[0].aste.assign(301, 1);
    ScriviLavoro(l);
    EXPECT_FALSE(Avvia());
    EXPECT_EQ(codiceFine, 1);
    ASSERT_EQ(messaggi.size(), 1u);
    EXPECT_TRUE(messaggi[0].icona == Icona::Critica && messaggi[0].titolo == "ERRORE");
    EXPECT_EQ(Leggi("lavori/prova1/TelvaOut.txt") + Leggi("custom/TelOpzio.txt"), "<assente><assente>");
}

TEST_F(Avvio, IRifiutiDiSelezioneDiconoProprietaETipo) {
    CaricaMessaggi();
    struct {
        int indice;
        const char *proprieta, *tipo;
    } casi[] = {{3, "materiale", "i nodi"}, {7, "sezione", "i nodi"}, {8, "spessore", "i nodi"}, {9, "svincolo", "i nodi"}, {10, "orientamento", "i nodi"}, {11, "sezione", "i gusci"}, {12, "svincolo", "i gusci"},
                {13, "orientamento", "i gusci"}, {14, "vincolo", "i gusci"}, {15, "vincolo", "le aste"}, {16, "spessore", "le aste"}, {20, "spessore", "gli elementi continui"}, {21, "svincolo", "gli elementi continui"}, {22, "vincolo", "gli elementi continui"}};
    for (const auto &c : casi) EXPECT_EQ(Messaggi[c.indice], std::string(" La selezione per ") + c.proprieta + " non è possibile per " + c.tipo + " ");
    EXPECT_EQ(Messaggi[17], " Se la dimensione della trappola è nulla la selezione diretta non è possibile ");
    EXPECT_EQ(Messaggi[18], " La stringa di selezione comprende troppi elementi ");
    EXPECT_THROW(Messaggi[23], Guasto);
}

} // namespace telva::prove

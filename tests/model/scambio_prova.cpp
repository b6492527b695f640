#include "model/scambio_cond.h"

#include "platform/archivio_prova.h"
#include "sostegno/Banco.h"
#include "startup/basCommon_cond.h"
#include "startup/direttori_cond.h"
#include "ui/FormTelva_gestori.h"
#include "ui/controlli/FormTelva.h"

namespace telva::prove {

struct Scambio : Banco {
    Scambio() {
        DirLavoro = Radice();
        CaricaMessaggi();
    }
};

TEST_F(Scambio, LIngressoSceglieIlTipoERicordaLaLista) {
    struct {
        const char *file, *titolo, *lista;
        int tipo, ricordata; // -1 = list kept nowhere
    } casi[] = {{"Citt\xE0, alta\r\n  1-5 , 7 \r\n0\r\n", "Città, alta", "1-5 , 7", 0, 0}, {"T\n3\n1\n", "T", "3", 1, 1}, {" T \n3\n 2 , x", " T ", "3", 2, 2},
                {"T\n3\n3\n", "T", "3", 3, -1}, {"T\n3\n4\n", "T", "3", 4, -1}, {"T\n3\n5\n", "T", "3", 0, -1}, {"T\n3\n-1\n", "T", "3", 0, -1}, {"T\n3\n70000\n", "T", "3", 0, -1},
                {"T\n3\nuno\n", "T", "3", 0, -1}, {"T\n3\n", "T", "3", 0, -1}, {"T", "T", "prima", 0, -1}, {"", "", "prima", 0, -1}, {nullptr, "", "prima", 0, -1}};
    for (const auto &c : casi) {
        if (c.file) Scrivi("TelvaIn.txt", c.file);
        else Cancella("TelvaIn.txt");
        for (int k = 0; k < 5; ++k) StrSel(k).clear();
        FormTelva.OptElem[c.tipo == 0 ? 1 : 0].Seleziona();
        FormTelva.StringaSel.Caption = "9";
        std::string lista = "prima";
        LeggiIngresso(lista);
        EXPECT_EQ(TitoloIn + "|" + lista, std::string(c.titolo) + "|" + c.lista) << c.file;
        EXPECT_EQ(FormTelva.TipoElemento(), c.tipo) << c.file;
        for (int k = 0; k < 5; ++k) EXPECT_EQ(StrSel(k), k == c.ricordata ? c.lista : "") << c.file << k;
        if (!c.file) EXPECT_EQ(Lista(), "");
    }
    EXPECT_TRUE(messaggi.empty());
}

TEST_F(Scambio, LUscitaEUnaRigaEIlProgrammaFinisceComunque) {
    struct {
        const char *lista, *file;
        GuastiScrittura guasti;
    } casi[] = {{" 1-5,7 ", "1-5,7\r\n", {}}, {"", " \r\n", {}}, {"  ", " \r\n", {}}, {"1", nullptr, {.scritturaPiena = true}}, {"1", "1\r\n", {.nessunFileNuovo = true}}};
    for (const auto &c : casi) {
        Scrivi("TelvaOut.txt", "vecchia lista\r\n");
        GuastoScrittura() = c.guasti;
        FormTelva.StringaSel.Caption = c.lista;
        messaggi.clear();
        codiceFine = -1;
        EXPECT_FALSE(Esegui(Salva_Click));
        EXPECT_EQ(codiceFine, 0);
        EXPECT_EQ(Leggi("TelvaOut.txt"), c.file ? c.file : "vecchia lista\r\n");
        EXPECT_EQ(messaggi, c.file ? std::vector<Messaggio>() : std::vector<Messaggio>({{" Non è possibile scrivere il file di uscita ", Icona::Critica, "Problema"}}));
    }
    GuastoScrittura() = {};
    Cancella("TelvaOut.txt");
    EXPECT_FALSE(Esegui(Esci_Click));
    EXPECT_EQ(Leggi("TelvaOut.txt"), "<assente>");
}

} // namespace telva::prove

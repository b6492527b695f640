#include "model/scambio_cond.h"
#include "sostegno/Banco.h"
#include "sostegno/DiscoGuasto.h"
#include "startup/basCommon_cond.h"
#include "startup/direttori_cond.h"
#include "ui/FormTelva_gestori.h"
#include "ui/controlli/FormTelva.h"
namespace telva::prove {
TEST_F(Banco, SiLeggeLIngressoESiScriveLUscita) {
    DirLavoro = Radice();
    CaricaMessaggi();
    std::string letti; // title, list, kind, kept lists
    for (const char *file :
         {"", "Citt\xE0, alta\r\n  1-5 , 7 \r\n0\r\n", "T\n3\n1\n", " T \n3\n 2 , x", "T\n3\n3\n",
          "T\n3\n4\n", "T\n3\n7\n", "T\n3\nuno\n", "T\n3\n", "T"}) {
        StrSelNodi = StrSelAste = StrSelGusci = "";
        FormTelva.OptElem[1].Seleziona();
        std::string lista = "prima";
        if (*file) Scrivi("TelvaIn.txt", file); // the first time there is none
        LeggiIngresso(lista);
        letti += TitoloIn + "|" + lista + "|" + std::to_string(FormTelva.TipoElemento()) + "|" +
                 StrSelNodi + "|" + StrSelAste + "|" + StrSelGusci + StrSelElCont + StrSelPareti +
                 "\n";
    }
    EXPECT_EQ(letti, "|prima|0|||\nCittà, alta|1-5 , 7|0|1-5 , 7||\nT|3|1||3|\n T |3|2|||3\n"
                     "T|3|3|||\nT|3|4|||\nT|3|0|||\nT|3|0|||\nT|3|0|||\nT|prima|0|||\n");
    DiscoGuasto disco;
    for (const char *lista : {" 1-5,7 ", "  ", "", "disco pieno"}) {
        if (*lista == 'd') disco.spazio = 0;
        FormTelva.StringaSel.Caption = lista;
        EXPECT_TRUE(!Esegui(Salva_Click) && codiceFine == 0);
        EXPECT_EQ(Leggi("TelvaOut.txt"), lista == std::string(" 1-5,7 ") ? "1-5,7\r\n" : " \r\n");
    }
    const std::string testo = " Non è possibile scrivere il file di uscita ";
    EXPECT_EQ(messaggi, std::vector({Messaggio{testo, Icona::Critica, "Problema"}}));
}
} // namespace telva::prove

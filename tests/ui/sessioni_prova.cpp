// Whole sessions, from the caller's exchange file to the one that it gets back.
#include "sostegno/Recita.h"
#include "startup/avvio.h"
#include "ui/controlli/FormTelva.h"
#include <sstream>

namespace telva::prove {

struct SessioniProva : Banco { // exit code and file of the program's end, if it comes
    std::string Fine(const std::string &copione) {
        if (Esegui([&] { Recita(messaggi, copione); })) return "";
        return std::to_string(codiceFine) + Leggi("lavori/prova1/TelvaOut.txt");
    }
};

TEST_F(SessioniProva, OgniTipoConElementiNascosti) {
    // By kind: handed in; comes out when all that is shown is added, removed, inverted.
    std::istringstream casi(R"(2,5,8 2,4-9 2 2,4,6-7,9   1,5 1,1,3-6,8,10,12 1,1 1,1,3-4,6,8,10,12
        1,4 1,1,3-4 1,1 1,1,3   10,20 10,10,20 10,10 10,10   * * * *)");
    std::string ingresso, liste[3];
    for (int tipo = 0; casi >> ingresso >> liste[0] >> liste[1] >> liste[2]; ++tipo)
        for (const std::string copione :
             {"0 Aggiungi Tutto", "0 Aggiungi Nome =1-99", "1 Rimuovi Tutto",
              "1 Rimuovi Nome =1-99", "1 RimTutto", "2 Inverti"}) {
            AzzeraProgramma();
            ScriviIngresso("Titolo", tipo == 4 ? "" : ingresso, tipo);
            Apri(Telaio());
            const std::string &lista = liste[copione[0] - '0'];
            EXPECT_EQ(Fine("z100 " + copione.substr(2) + " Salva"),
                      "0" + (lista == "*" ? " " : lista) + "\r\n");
        }
}

TEST_F(SessioniProva, InterrompiDaOvunqueEEsciSenzaScrivere) {
    ModuloTelva &f = FormTelva;
    ScriviIngresso("", "0", 0);
    Apri(Telaio());
    Recita(messaggi, "s0,0 #0400000 >1,1-9"); // no function is running: nothing is picked
    for (VoceMenu *voce : f.voci) {
        if (!voce->Click || voce == &f.Salva || voce == &f.Esci) continue;
        Recita(messaggi, "Aggiungi " + voce->NomeControllo() + " s50,50");
        const std::string lista = Lista();
        Recita(messaggi, "27 =9999 #0000000 \" %------------- !");
        EXPECT_EQ(Lista() + f.FunAttiva.Caption() + f.Domanda.Caption(), lista);
        EXPECT_FALSE(f.Risposta.Enabled || f.Interrompi.Enabled);
        EXPECT_EQ(f.Disegno.MousePointer(), Puntatore::Predefinito);
    }
    EXPECT_EQ(Fine("Esci"), "0<assente>");
}

TEST_F(SessioniProva, UnGuastoFinisceConUnoENonScrive) {
    LavoroProva lavoro = Telaio();
    lavoro.elementi.push_back({30, "Rotto", {25000}}); // a bar that is neither a name nor a place
    Apri(lavoro);
    EXPECT_EQ(Fine("k3 Aggiungi Tutto Salva"), "1<assente>");
    ASSERT_EQ(messaggi.size(), 1u);
    EXPECT_TRUE(messaggi[0].icona == Icona::Critica && messaggi[0].titolo == "ERRORE");
    lavoro.aste.push_back({0, 25000, 13});
    ScriviLavoro(lavoro);
    EXPECT_FALSE(Avvia());
    EXPECT_EQ(codiceFine * 10 + static_cast<int>(messaggi.size()), 12);
}
} // namespace telva::prove

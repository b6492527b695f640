#include "startup/basCommon_cond.h"

namespace telva {

Tabella<std::string, kNumeroMessaggi> Messaggi{"Messaggi"};

void CaricaMessaggi() {
    static constexpr struct {
        IndiceMessaggio indice;
        const char *testo;
    } kTesti[] = {
        {kMsgTroppiSpessori, " Troppe schede di spessore "},
        {kMsgTroppeSezioni, " Troppe schede di sezione "},
        {kMsgFileIllegibile, " Impossibile leggere il file "},
        {kMsgMaterialeNodi, " La selezione per materiale non è possibile per i nodi "},
        {kMsgOpzioniNonSalvate, " Problemi nel salvataggio delle opzioni "},
        {kMsgOpzioniSalvate, " Opzioni salvate "},
        {kMsgUscitaNonScritta, " Non è possibile scrivere il file di uscita "},
        {kMsgSezioneNodi, " La selezione per sezione non è possibile per i nodi "},
        {kMsgSpessoreNodi, " La selezione per spessore non è possibile per i nodi "},
        {kMsgSvincoloNodi, " La selezione per svincolo non è possibile per i nodi "},
        {kMsgOrientamentoNodi, " La selezione per orientamento non è possibile per i nodi "},
        {kMsgSezioneGusci, " La selezione per sezione non è possibile per i gusci "},
        {kMsgSvincoloGusci, " La selezione per svincolo non è possibile per i gusci "},
        {kMsgOrientamentoGusci, " La selezione per orientamento non è possibile per i gusci "},
        {kMsgVincoloGusci, " La selezione per vincolo non è possibile per i gusci "},
        {kMsgVincoloAste, " La selezione per vincolo non è possibile per le aste "},
        {kMsgSpessoreAste, " La selezione per spessore non è possibile per le aste "},
        {kMsgTrappolaNulla,
         " Se la dimensione della trappola è nulla la selezione diretta non è possibile "},
        {kMsgTroppiNumeri, " La stringa di selezione comprende troppi elementi "},
        {kMsgTroppiElCont, " Troppi elementi continui "},
        {kMsgSpessoreElCont,
         " La selezione per spessore non è possibile per gli elementi continui "},
        {kMsgSvincoloElCont,
         " La selezione per svincolo non è possibile per gli elementi continui "},
        {kMsgVincoloElCont, " La selezione per vincolo non è possibile per gli elementi continui "},
    };
    for (const auto &[indice, testo] : kTesti) Messaggi[indice] = testo;
}

} // namespace telva

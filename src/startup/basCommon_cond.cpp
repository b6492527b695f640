#include "startup/basCommon_cond.h"

namespace telva {

Tabella<std::string, 23> Messaggi{"Messaggi"};

void CaricaMessaggi() {
    static constexpr const char *kTesti[] = {
        " Troppe schede di spessore ",
        " Troppe schede di sezione ",
        " Impossibile leggere il file ",
        " La selezione per materiale non è possibile per i nodi ",
        " Problemi nel salvataggio delle opzioni ",
        " Opzioni salvate ",
        " Non è possibile scrivere il file di uscita ",
        " La selezione per sezione non è possibile per i nodi ",
        " La selezione per spessore non è possibile per i nodi ",
        " La selezione per svincolo non è possibile per i nodi ",
        " La selezione per orientamento non è possibile per i nodi ",
        " La selezione per sezione non è possibile per i gusci ",
        " La selezione per svincolo non è possibile per i gusci ",
        " La selezione per orientamento non è possibile per i gusci ",
        " La selezione per vincolo non è possibile per i gusci ",
        " La selezione per vincolo non è possibile per le aste ",
        " La selezione per spessore non è possibile per le aste ",
        " Se la dimensione della trappola è nulla la selezione diretta non è possibile ",
        " La stringa di selezione comprende troppi elementi ",
        " Troppi elementi continui ",
        " La selezione per spessore non è possibile per gli elementi continui ",
        " La selezione per svincolo non è possibile per gli elementi continui ",
        " La selezione per vincolo non è possibile per gli elementi continui ",
    };
    int i = 0;
    for (const char *testo : kTesti) Messaggi[i++] = testo;
}

} // namespace telva

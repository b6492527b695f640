// The line of state and the outline of what the next click takes, while the pointer wanders.
#include "Sessione.h"

using namespace telva::prove;

namespace {

void RigheDiventano(Sessione &s, const std::string &adesso, const std::string &poi) {
    s.TestoDiventa("LabStato", poi.empty() ? adesso : adesso + "\r\n" + poi);
}

} // namespace

SCENARIO(stato_dice_che_cosa_prende_il_clic) {
    Sessione s(amb, Genere::Nodi);
    RigheDiventano(s, "nessun nodo selezionato", "Ctrl+A aggiunge, Ctrl+T rimuove");
    s.Premi("Ctrl+A");
    s.FunzioneDiventa("Aggiungi selezione");
    s.Clic("StringaSel"); // the pointer is not on the drawing
    RigheDiventano(s, "nessun nodo selezionato", "");
    s.Fotografa("Disegno");
    s.Punta(Nodo(3));
    RigheDiventano(s, "nessun nodo selezionato", "clic: nodo 3");
    s.FotoDiversa(); // its outline
    s.Punta(Vuoto());
    RigheDiventano(s, "nessun nodo selezionato", "clic: apre una finestra");
    s.FotoUguale();
    s.Punta(Nodo(3));
    s.FotoDiversa();
    s.Clic("StringaSel"); // it leaves the drawing
    s.FotoUguale();
    s.Clic(Nodo(3));
    s.ListaDiventa("3");
    RigheDiventano(s, "1 nodo selezionato", "clic: nodo 3");
}

SCENARIO(stato_dice_che_cosa_e_nascosto_e_richiesto) {
    Sessione s(amb, Genere::Aste, "7-8");
    RigheDiventano(s, "2 aste selezionate", "Ctrl+A aggiunge, Ctrl+T rimuove");
    s.Spazio("AsteAtt");
    RigheDiventano(s, "2 aste selezionate, di cui 2 nascoste; vista filtrata",
                   "Ctrl+A aggiunge, Ctrl+T rimuove");
    s.Spazio("AsteAtt");
    s.Scegli(Genere::Nodi);
    RigheDiventano(s, "richieste: aste; nessun nodo selezionato",
                   "Ctrl+A aggiunge, Ctrl+T rimuove");
}

#include "startup/avvio.h"

#include "model/legfont_cond.h"
#include "model/leggstr_cond.h"
#include "model/opzioni_cond.h"
#include "model/scambio_cond.h"
#include "model/struttura.h"
#include "model/tabelle_cond.h"
#include "platform/messaggi.h"
#include "platform/testo.h"
#include "selection/attributi_sel.h"
#include "selection/schede_sel.h"
#include "selection/selezione.h"
#include "startup/basCommon_cond.h"
#include "startup/direttori_cond.h"
#include "ui/Disegno_gestori.h"
#include "ui/FormOptInt_gestori.h"
#include "ui/FormOpt_gestori.h"
#include "ui/FormTelva_gestori.h"
#include "ui/comandi.h"
#include "ui/controlli/FormTelva.h"
#include "ui/stato.h"
#include "view/FunzDisegno.h"
#include "view/inquadra.h"
#include "view/proiezione.h"
#include "view/salva_dis_cond.h"

namespace telva {
namespace {

void MostraProblema(const std::string &testo) {
    if (!testo.empty()) MostraMessaggio(testo, Gravita::Critica, "Problema");
}

// Sets the view up and draws, or applies what the caller wants selected.
void PrimaVista(const std::string &ingresso) {
    FormTelva.Disegno.Scale(0, 0, 1, 1); // none yet
    ConvertiAsteElCont();
    ProiettaNodi();
    AggiornaIntervalli(4);
    Adatta();
    if (ingresso.empty()) {
        DisegnaStruttura();
        return;
    }
    if (Rifila(ingresso) == "0")
        SelezionaPerColore(kOgniColore, Segno::Messo);
    else if (!SelezionaElementoPerNome(ingresso, Segno::Messo))
        MostraSelezione(); // a list that cannot be taken: the job is shown with nothing selected
}

// Without a structure nothing can be checked or selected: what the caller had goes back as it came.
void ConservaIngresso(const std::string &ingresso) {
    const int tipo = FormTelva.TipoElemento();
    StrSel(tipo) = ingresso;
    MostraStringaSel(tipo);
}

void LeggiTabelle() {
    MostraProblema(LeggiSpessori());
    MostraProblema(LeggiSezioni());
    MostraProblema(LeggiElCont());
}

} // namespace

void Avvia() {
    CostruisciComandi();
    CollegaFormTelva();
    CollegaFormOpt();
    CollegaFormOptInt();
    AzzeraVista();
    FormTelva.FunAttiva.Caption = "";
    AzzeraPuntatore();
    FormTelva.Prepara();
    Form_Resize(); // gives the drawing its size; there is nothing to see yet
    FormTelva.MousePointer = Puntatore::Clessidra;
    Direttori();
    LavoroDaArgomento();
    LeggiOpzioni();
    LeggiOpzInt();
    CaricaMessaggi();
    std::string ingresso;
    LeggiIngresso(ingresso);
    FormTelva.Caption = std::string(Rifila(TitoloIn)) + " - " + DirLavoro;
    MostraTrappola();
    LeggiFont();
    LeggiTabelle();
    std::int16_t ok = 0;
    LeggiStruttura(ok);
    if (ok == 1) {
        PrimaVista(ingresso);
    } else {
        ConservaIngresso(ingresso);
        MostraProblema("Errore nella lettura della struttura");
    }
    FormTelva.MousePointer = Puntatore::Predefinito;
    AggiornaStato();
}

void AzzeraProgramma() {
    AzzeraStruttura();
    AzzeraTabelle();
    AzzeraOpzioni();
    AzzeraFont();
    AzzeraProiezione();
    AzzeraDisegno();
    AzzeraVista();
    AzzeraSelezione();
    AzzeraPuntatore();
    Messaggi.Azzera();
    FormTelva.Inizio();
    for (auto *testo : {&ArgomentoAvvio, &DirRoot, &DirLavoro, &NomeLavoro, &DirProgra, &DirDriver,
                        &DirCustom, &TitoloIn})
        testo->clear();
}

} // namespace telva

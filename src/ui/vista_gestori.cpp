#include "ui/vista_gestori.h"

#include "platform/citazione.h"
#include "platform/messaggi.h"
#include "platform/tasti.h"
#include "selection/selezione.h"
#include "ui/controlli/FormTelva.h"
#include "view/FunzDisegno.h"
#include "view/inquadra.h"
#include "view/proiezione.h"

#include <cmath>

namespace telva {

namespace {

// A text that is no number is told and gives way to the last one that was, which stands ready to be
// typed over; not in a bar that has just gone, where keys would be lost.
bool Controlla(CasellaNumero &casella, const char *messaggio, const char *consiglio = "") {
    if (casella.Valida() || casella.Text == casella.Accolto()) return true;
    const std::string testo = casella.Text;
    casella.Ripristina();
    MostraMessaggio(messaggio + Cita(testo) + consiglio, Gravita::Critica, "ERRORE");
    if (casella.VisibileDavvero()) casella.SetFocus();
    return false;
}

// Projects by the typed angles; false when one is wrong, and the view stays as it was.
bool Proietta() {
    bool validi = true;
    for (CasellaNumero &angolo : FormTelva.Angolo)
        validi =
            Controlla(angolo, "Angolo di vista non valido: ", " (usare cifre, ad esempio 22.5)") &&
            validi;
    return validi && ProiettaNodi();
}

} // namespace

void ControllaIntervalli() {
    for (auto *campi : {&FormTelva.IntX, &FormTelva.IntY, &FormTelva.IntZ})
        for (CasellaNumero &casella : *campi)
            Controlla(casella, "Intervallo di coordinate non valido: ");
}

void Ottimizza_Click() {
    if (!Proietta()) return;
    ControllaIntervalli();
    AdattaTutto();
    DisegnaStruttura();
}

void Ridis_Click() {
    Proietta();
    ControllaIntervalli();
    Adatta();
    MostraSelezione();
}

void VisAssi_Click() {
    FormTelva.VisAssi.Checked = !FormTelva.VisAssi.Checked;
    Ridis_Click();
}

// Like every other command of the view it is seen at once.
void IntervalloIntero(std::uint8_t asse) {
    AggiornaIntervalli(asse);
    Ridis_Click();
}

void RidisegnaAllaMisura() {
    Adatta();
    DisegnaStruttura();
}

void WheelCatcher1_Rotella(int passi) {
    if (ApplicaRotella(passi)) Ridis_Click();
}

bool Vista_KeyDown(int tasto) {
    const RiquadroDisegno &d = FormTelva.Disegno;
    // A tenth of the box, in whole pixels, towards what lies there.
    const double dx = d.LarghezzaPixel() / 10 / std::abs(d.ScalaX());
    const double dy = d.AltezzaPixel() / 10 / std::abs(d.ScalaY());
    const auto guarda = [](double x, double y) {
        SpostaVista(FinestraVista, -x, -y);
        Ridis_Click();
    };
    switch (tasto) {
    case kTastoSinistra: guarda(-dx, 0); break;
    case kTastoSu: guarda(0, dy); break;
    case kTastoDestra: guarda(dx, 0); break;
    case kTastoGiu: guarda(0, -dy); break;
    case kTastoPiu:
    case kTastoPiuCifre: WheelCatcher1_Rotella(1); break;
    case kTastoMeno:
    case kTastoMenoCifre: WheelCatcher1_Rotella(-1); break;
    default: return false;
    }
    return true;
}

} // namespace telva

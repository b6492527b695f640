#include "ui/FormOptInt_gestori.h"

#include "model/opzioni_cond.h"
#include "platform/citazione.h"
#include "platform/messaggi.h"
#include "platform/numeri.h"
#include "platform/tasti.h"
#include "startup/basCommon_cond.h"
#include "ui/controlli/FormOptInt.h"
#include "ui/controlli/FormTelva.h"

#include <cmath>

namespace telva {
namespace {

void Command1_Click() {
    std::int16_t ok = 0;
    AggiornaOpzioniInterne_(ok);
    if (ok == 0) MostraMessaggio(Messaggi[kMsgTrappolaNulla], Gravita::Esclamazione, "ATTENZIONE");
    MostraTrappola();
    FormOptInt.Chiudi();
}

} // namespace

void AggiornaOpzioniInterne_(std::int16_t &ok) {
    const std::string &testo = FormOptInt.TextTrappola.Text;
    OpzInt[kOpzTrappola] =
        testo.empty() ? 0 : std::abs(ParteIntera(ValoreNumerico(ConPunto(testo))));
    ok = OpzInt[kOpzTrappola] == 0 ? 0 : 1;
}

void MostraTrappola() {
    FormTelva.Trappola.Caption = "Trappola (" + CitaNumero(OpzInt[kOpzTrappola]) + ")...";
}

void ApriFormOptInt() {
    FormOptInt.TextTrappola.Text = CitaNumero(OpzInt[kOpzTrappola]);
    FormOptInt.fuoco = &FormOptInt.TextTrappola;
    FormOptInt.MostraModale();
}

void CollegaFormOptInt() {
    FormOptInt.Command1.Click = Command1_Click;
    FormOptInt.TextTrappola.KeyDown = [](int tasto) {
        if (tasto == kTastoInvio) Command1_Click();
    };
    FormOptInt.KeyUp = [](int tasto) {
        if (tasto == kTastoEsc) FormOptInt.Chiudi();
    };
}

} // namespace telva

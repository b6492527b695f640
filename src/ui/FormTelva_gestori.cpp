#include "ui/FormTelva_gestori.h"

#include "model/opzioni_cond.h"
#include "model/scambio_cond.h"
#include "platform/messaggi.h"
#include "platform/tasti.h"
#include "selection/attributi_sel.h"
#include "selection/schede_sel.h"
#include "selection/selezione.h"
#include "ui/Disegno_gestori.h"
#include "ui/FormOptInt_gestori.h"
#include "ui/FormOpt_gestori.h"
#include "ui/controlli/FormTelva.h"
#include "ui/gesto.h"
#include "ui/preda.h"
#include "ui/stato.h"
#include "ui/vista_gestori.h"
#include "view/FunzDisegno.h"

#include <algorithm>

namespace telva {
namespace {

void IniziaFunzione(Funzione funzione, const char *titolo) {
    FinisciGesti();
    AzzeraInput();
    CodFunAttiva = funzione;
    CodSottoFun = kDiretta;
    AbilitaComandi();
    FormTelva.FunAttiva.Caption = titolo;
    FormTelva.SottoFunAttiva.Caption = "Selezione diretta";
    FormTelva.Interrompi.Enabled = true;
}

void Ridisegna_SuInvio(int tasto) {
    if (tasto == kTastoInvio) Ridis_Click();
}

// A bar has come or gone.
void RidisegnaDisposta() {
    FormTelva.Disponi();
    ControllaIntervalli();
    RidisegnaAllaMisura();
}

} // namespace

void Salva_Click() {
    ScriviUscita();
    FineProgramma();
}

void Esci_Click() { FineProgramma(); }

void Aggiungi_Click() { IniziaFunzione(kAggiungi, "Aggiungi selezione"); }
void Rimuovi_Click() { IniziaFunzione(kRimuovi, "Rimuovi selezione"); }

// A property selection goes on after it: its prompt and the text being typed come back.
void RimTutto_Click() {
    const bool inAttesa = FormTelva.Risposta.Enabled;
    const std::string domanda = FormTelva.Domanda.Caption, risposta = FormTelva.Risposta.Text;
    const std::uint8_t sottoFunzione = CodSottoFun;
    SelezionaPerColore(kOgniColore, Segno::Tolto);
    CodSottoFun = sottoFunzione;
    if (CodFunAttiva != kNessunaFunzione) AbilitaComandi();
    if (inAttesa) AttendiRisposta(domanda, risposta);
    FormTelva.SottoFunAttiva.Caption = "Selezione diretta"; // whatever the sub-function is
}

void Inverti_Click() {
    InvertiSelezione();
    MostraSelezione();
}

void Interrompi_Click() {
    CodFunAttiva = kNessunaFunzione;
    FinisciGesti();
    AzzeraInput();
    DisabilitaComandi();
    FormTelva.Interrompi.Enabled = false;
    FormTelva.FunAttiva.Caption = "";
}

void VisCoord_Click() {
    FormTelva.VisCoord.Checked = !FormTelva.VisCoord.Checked;
    FormTelva.LabCoord.Caption = "";
    FormTelva.FrameCoord.Visible = FormTelva.VisCoord.Checked;
    FormTelva.Disponi(); // the line of state takes its room, or gives it back
}

void BarraLat_Click() {
    const bool mostra = !FormTelva.BarraLat.Checked;
    FormTelva.FrameSel.Visible = mostra;
    FormTelva.FrameAtt.Visible = mostra;
    FormTelva.Toolbar1.Suggerimento("AggiungiBarraLat", mostra ? "Toglie la barra laterale"
                                                               : "Aggiunge la barra laterale");
    FormTelva.BarraLat.Checked = mostra;
    RidisegnaDisposta();
}

void BarraIcone_Click() {
    const bool mostra = !FormTelva.Toolbar1.Visible;
    FormTelva.Toolbar1.Visible = mostra;
    FormTelva.BarraIcone.Checked = mostra;
    RidisegnaDisposta();
}

void Trappola_Click() { ApriFormOptInt(); }

void Rappresentazione_Click() {
    ChiudiFinestraInCorso();
    ApriFormOpt();
}

void OptElem_Click(int indice) {
    if (CodFunAttiva != kNessunaFunzione) AbilitaComandi();
    MostraStringaSel(indice);
}

void Form_Resize() {
    ModuloTelva &f = FormTelva;
    if (f.ridotta) return;
    const double w = f.Width, h = f.Height;
    if (w < f.larghezzaMinima || h < f.altezzaMinima) {
        f.Width = std::max(w, f.larghezzaMinima);
        f.Height = std::max(h, f.altezzaMinima);
        return; // the resize that this causes lays the window out
    }
    f.Disponi();
    RidisegnaAllaMisura();
}

void CollegaFormTelva() {
    ModuloTelva &f = FormTelva;
    for (int k = 0; k < f.OptElem.Numero(); ++k) f.OptElem[k].Click = [k] { OptElem_Click(k); };
    for (CasellaSpunta *c : {&f.NodiAtt, &f.AsteAtt, &f.GusciAtt, &f.ElSelez, &f.ElNonSelez})
        c->Click = Ridis_Click;
    for (auto *campi : {&f.IntX, &f.IntY, &f.IntZ})
        for (CasellaTesto &casella : *campi) casella.KeyDown = Ridisegna_SuInvio;
    for (CasellaTesto &casella : f.Angolo) casella.KeyDown = Ridisegna_SuInvio;
    f.TuttoX.Click = [] { IntervalloIntero(1); };
    f.TuttoY.Click = [] { IntervalloIntero(2); };
    f.TuttoZ.Click = [] { IntervalloIntero(3); };
    f.Risposta.KeyDown = [](int tasto) {
        if (tasto == kTastoInvio) EseguiRisposta();
    };
    f.KeyPress = [](int carattere) {
        if (carattere == kCarattereEsc) Interrompi_Click();
    };
    f.KeyDown = Vista_KeyDown;
    f.Resize = Form_Resize;
    f.Unload = ChiudiFormOpt;
    f.Rotella = WheelCatcher1_Rotella;
    f.Disegno.MouseDown = Disegno_MouseDown;
    f.Disegno.MouseMove = Disegno_MouseMove;
    f.Disegno.MouseUp = Disegno_MouseUp;
    f.Disegno.DblClick = Disegno_DblClick;
    f.Disegno.CatturaPersa = Disegno_CatturaPersa;
    f.Disegno.MouseLeave = Disegno_MouseLeave;
    f.Distratta = PuntatoreFuori;
    f.DopoEvento = AggiornaStato;
    f.Disegno.Ridisegna = DisegnaStruttura;
}

} // namespace telva

#include "ui/controlli/FormTelva.h"

namespace telva {

ModuloTelva FormTelva;

ModuloTelva::ModuloTelva() : Modulo("FormTelva") {
    ridimensionabile = true;
    larghezzaMinima = 5550;
    altezzaMinima = 7120;
    Frame2.bordo = false;
    FrameInput.bordo = false;
    FrameCoord.bordo = false;
    Domanda.stile = StileEtichetta::ADestra;
    LabCoord.stile = StileEtichetta::SuPiuRighe;
    Label6.stile = StileEtichetta::SuPiuRighe;
    StringaSel.stile = StileEtichetta::Riassunto;
    LabStato.stile = StileEtichetta::Stato;
    for (Etichetta &e : Label2) e.stile = StileEtichetta::Pedice;
    for (CasellaNumero &c : Angolo) {
        c.stretta = true;
        c.limite /= 3.1416; // its radians too are to be finite, and the way to them
    }
    Inizio();
}

int ModuloTelva::TipoElemento() {
    for (int k = 0; k < OptElem.Numero(); ++k)
        if (OptElem[k].Value) return k;
    return 0;
}

// Everything that stands once for each axis.
void ModuloTelva::TestiDegliAssi() {
    static constexpr const char *kAssi[] = {"X", "Y", "Z"};
    static constexpr const char *kAngoli[] = {"30", "30", "0"};
    for (int k = 0; k < 3; ++k) {
        LabelAsse[k].Caption = kAssi[k];
        Label1[k].Caption = "α";
        Label2[k].Caption = kAssi[k];
        Angolo[k].Parti(kAngoli[k]);
        Angolo[k].ToolTipText = std::string("Angolo di vista attorno all'asse ") + kAssi[k] +
                                ", in gradi (INVIO ridisegna)";
    }
    int asse = 0;
    for (auto *campi : {&IntX, &IntY, &IntZ}) {
        const std::string coda = std::string(kAssi[asse++]) + " mostrata (INVIO ridisegna)";
        for (CasellaNumero &casella : *campi) casella.Parti("");
        (*campi)[0].ToolTipText = "Minima coordinata " + coda;
        (*campi)[1].ToolTipText = "Massima coordinata " + coda;
    }
    asse = 0;
    for (Pulsante *p : {&TuttoX, &TuttoY, &TuttoZ}) {
        p->Caption = "Tutto";
        p->ToolTipText =
            std::string("Riporta l'intervallo ") + kAssi[asse++] + " all'intera struttura";
    }
}

void ModuloTelva::TestiIniziali() {
    FrameSel.Caption = "Elementi da selezionare";
    FrameAtt.Caption = "Elementi attivati";
    static constexpr const char *kTipi[] = {"Nodi", "Aste", "Gusci", "Elementi continui", "Pareti"};
    for (int k = 0; k < 5; ++k) {
        OptElem[k].Caption = kTipi[k];
        OptElem[k].Value = k == 0;
    }
    NodiAtt.Caption = "Nodi";
    AsteAtt.Caption = "Aste";
    GusciAtt.Caption = "Gusci";
    ElSelez.Caption = "Elementi selezionati";
    ElNonSelez.Caption = "Elementi non selezionati";
    for (CasellaSpunta *c : {&NodiAtt, &AsteAtt, &GusciAtt, &ElSelez, &ElNonSelez}) c->Value = true;
    LabelInt.Caption = "Intervalli di coordinate";
    Label5.Caption = "Risultato della selezione:";
    Label6.Caption = "Coordinate:";
    for (Etichetta *e : {&Domanda, &StringaSel, &FunAttiva, &SottoFunAttiva, &LabStato, &LabCoord})
        e->Caption = "";
}

void ModuloTelva::Inizio() {
    Width = 15000;
    Height = 11400;
    Caption = "Telva";
    MousePointer = Puntatore::Predefinito;
    Disegno.Scale(0, 0, 1, 1);
    TestiIniziali();
    TestiDegliAssi();
    Risposta.Text = "";
    Risposta.Enabled = false;
    Risposta.BackColor = kColoreFaccia;
    for (Cornice *c : {&FrameInput, &FrameSel, &FrameAtt, &Frame2, &FrameCoord}) c->Visible = true;
    Toolbar1.Visible = true;
    Disponi();
}

} // namespace telva

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
    Domanda.stile = StileEtichetta::Centrata;
    LabCoord.stile = StileEtichetta::SuPiuRighe;
    Label6.stile = StileEtichetta::SuPiuRighe;
    StringaSel.stile = StileEtichetta::Riassunto;
    for (Etichetta &e : Label2) e.stile = StileEtichetta::Pedice;
    for (CasellaTesto &c : Angolo) c.stretta = true;
    Inizio();
}

int ModuloTelva::TipoElemento() {
    for (int k = 0; k < OptElem.Numero(); ++k)
        if (OptElem[k].Value) return k;
    return 0;
}

namespace {

// Places that the resize rules leave open; all in twips, at the size the window opens with.
void Disponi(ModuloTelva &f) {
    f.Width = 15000;
    f.Height = 11400;
    f.Toolbar1.Posiziona(0, 0, 0, 400);
    f.FrameInput.Posiziona(30, 405, 0, 600);
    f.Domanda.Posiziona(60, 0, 0, 600);
    f.Risposta.Posiziona(0, 150, 2570, 300);
    f.Disegno.Posiziona(0, 1010, 0, 0);
    f.FrameSel.Posiziona(0, 1010, 2790, 1640);
    for (int k = 0; k < 5; ++k) f.OptElem[k].Posiziona(120, 255 + k * 265, 2550, 245);
    f.FrameAtt.Posiziona(0, 2690, 2790, 2720);
    CasellaSpunta *caselle[] = {&f.NodiAtt, &f.AsteAtt, &f.GusciAtt, &f.ElSelez, &f.ElNonSelez};
    double top = 245;
    for (CasellaSpunta *c : caselle) {
        c->Posiziona(120, top, 2550, 235);
        top += 252;
    }
    f.LabelInt.Posiziona(120, 1525, 2550, 225);
    Schiera<CasellaTesto, 2> *campi[] = {&f.IntX, &f.IntY, &f.IntZ};
    Pulsante *tutto[] = {&f.TuttoX, &f.TuttoY, &f.TuttoZ};
    for (int k = 0; k < 3; ++k) {
        const double riga = 1765 + k * 310;
        f.LabelAsse[k].Posiziona(120, riga + 30, 150, 225);
        (*campi[k])[0].Posiziona(300, riga, 800, 290);
        (*campi[k])[1].Posiziona(1130, riga, 800, 290);
        tutto[k]->Posiziona(1960, riga - 5, 740, 300);
    }
    f.Label5.Posiziona(30, 0, 2155, 285);
    f.StringaSel.Posiziona(2200, 0, 0, 290);
    for (int k = 0; k < 3; ++k) {
        f.Label1[k].Posiziona(0, 0, 115, 285);
        f.Label2[k].Posiziona(0, 0, 90, 200);
        f.Angolo[k].Posiziona(0, 0, 465, 300);
    }
    f.Frame2.Posiziona(30, 0, 2610, 465);
    f.FunAttiva.Posiziona(30, 0, 2580, 225);
    f.SottoFunAttiva.Posiziona(30, 230, 2580, 235);
    // Its labels reach out of this frame on both sides: it has no width at the smallest size.
    f.FrameCoord.Posiziona(4700, 0, 0, 465);
    f.Label6.Posiziona(0, 15, 1000, 235);
    f.LabCoord.Posiziona(0, 15, 1690, 460);
}

} // namespace

void ModuloTelva::Inizio() {
    Disponi(*this);
    Caption = "Telva";
    MousePointer = Puntatore::Predefinito;
    Disegno.MousePointer = Puntatore::Predefinito;
    Disegno.Scale(0, 0, 1, 1);
    Disegno.Shape.Visible = false;
    Disegno.LineSposta.Visible = false;
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
    static constexpr const char *kAssi[] = {"X", "Y", "Z"};
    static constexpr const char *kAngoli[] = {"30", "30", "0"};
    for (int k = 0; k < 3; ++k) {
        LabelAsse[k].Caption = kAssi[k];
        Label1[k].Caption = "α";
        Label2[k].Caption = kAssi[k];
        Angolo[k].Text = kAngoli[k];
        Angolo[k].ToolTipText = std::string("Angolo di vista attorno all'asse ") + kAssi[k] +
                                ", in gradi (INVIO ridisegna)";
    }
    int asse = 0;
    for (auto *campi : {&IntX, &IntY, &IntZ}) {
        const std::string coda = std::string(kAssi[asse++]) + " mostrata (INVIO ridisegna)";
        (*campi)[0].Text = "";
        (*campi)[1].Text = "";
        (*campi)[0].ToolTipText = "Minima coordinata " + coda;
        (*campi)[1].ToolTipText = "Massima coordinata " + coda;
    }
    asse = 0;
    for (Pulsante *p : {&TuttoX, &TuttoY, &TuttoZ}) {
        p->Caption = "Tutto";
        p->ToolTipText =
            std::string("Riporta l'intervallo ") + kAssi[asse++] + " all'intera struttura";
    }
    Label5.Caption = "Risultato della selezione:";
    Label6.Caption = "Coordinate:";
    for (Etichetta *e : {&Domanda, &StringaSel, &FunAttiva, &SottoFunAttiva, &LabCoord})
        e->Caption = "";
    Risposta.Text = "";
    Risposta.Enabled = false;
    Risposta.BackColor = kColoreFaccia;
    for (Cornice *c : {&FrameInput, &FrameSel, &FrameAtt, &Frame2, &FrameCoord}) c->Visible = true;
    Toolbar1.Visible = true;
}

} // namespace telva

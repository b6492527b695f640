// Where everything stands in the main window: all in twips, from its outer size and from which of
// the two bars are shown.

#include "ui/controlli/FormTelva.h"

#include <algorithm>

namespace telva {
namespace {

constexpr double kAltezzaBarra = 400;
constexpr double kDistanzaStato = 90, kStatoMinimo = 900;

// Inside the two frames of the side bar, whose size never changes: as far from the lower edge as
// from the sides.
void DisponiBarraLaterale(ModuloTelva &f) {
    for (int k = 0; k < f.OptElem.Numero(); ++k)
        f.OptElem[k].Posiziona(120, 245 + k * 258, 2550, 245);
    CasellaSpunta *caselle[] = {&f.NodiAtt, &f.AsteAtt, &f.GusciAtt, &f.ElSelez, &f.ElNonSelez};
    double top = 245;
    for (CasellaSpunta *c : caselle) {
        c->Posiziona(120, top, 2550, 235);
        top += 244;
    }
    f.LabelInt.Posiziona(120, 1460, 2550, 225);
    Schiera<CasellaNumero, 2> *campi[] = {&f.IntX, &f.IntY, &f.IntZ};
    Pulsante *tutto[] = {&f.TuttoX, &f.TuttoY, &f.TuttoZ};
    for (int k = 0; k < 3; ++k) {
        const double riga = 1690 + k * 310;
        f.LabelAsse[k].Posiziona(120, riga, 150, 290);
        (*campi[k])[0].Posiziona(300, riga, 800, 290);
        (*campi[k])[1].Posiziona(1130, riga, 800, 290);
        tutto[k]->Posiziona(1960, riga, 710, 290);
    }
}

} // namespace

void ModuloTelva::Disponi() {
    const double w = Width, h = Height;
    const double su = Toolbar1.Visible ? 0 : kAltezzaBarra; // the room that the bar leaves free
    Toolbar1.Posiziona(0, 0, w - 180, kAltezzaBarra);
    FrameInput.Posiziona(30, 405 - su, w - 180, 600);
    Risposta.Posiziona(FrameInput.Width - 2600, 150, 2570, 300);
    Domanda.Posiziona(60, 0, Risposta.Left - 160, 600);

    Disegno.Posiziona(0, 1010 - su, w - (FrameSel.Visible ? 3024 : 124), h - 2700 + su);
    const double lato = Disegno.Left + Disegno.Width + 50;
    FrameSel.Posiziona(lato, 1010 - su, 2790, 1640);
    FrameAtt.Posiziona(lato, 2690 - su, 2790, 2720);
    DisponiBarraLaterale(*this);

    const double riga = Disegno.Top + Disegno.Height + 80;
    Label5.Posiziona(30, riga, 2155, 285);
    StringaSel.Posiziona(2200, riga, w - 4464, 290);
    for (int k = 0; k < 3; ++k) {
        const double left = w - 2235 + k * 705;
        Label1[k].Posiziona(left, riga, 115, 290);
        Label2[k].Posiziona(left + 120, riga + 100, 90, 200);
        Angolo[k].Posiziona(left + 210, riga, 465, 290);
    }

    const double fondo = riga + StringaSel.Height + 50;
    Frame2.Posiziona(30, fondo, 2610, 465);
    FunAttiva.Posiziona(30, 0, 2580, 225);
    SottoFunAttiva.Posiziona(30, 230, 2580, 235);
    // Its labels reach out of this frame on both sides: it has no width at the smallest size.
    FrameCoord.Posiziona(4700, fondo, w - 5550, 465);
    LabCoord.Posiziona(FrameCoord.Width - 1000, 15, 1690, 460);
    Label6.Posiziona(LabCoord.Left - 1045, 15, 1000, 235);

    // Between the two, as far as there is room for a word.
    const double prima = Frame2.Left + Frame2.Width + kDistanzaStato;
    const double fine = FrameCoord.Visible ? FrameCoord.Left + Label6.Left - kDistanzaStato
                                           : w - kDistanzaStato - 180;
    LabStato.Posiziona(prima, fondo, std::max(fine - prima, 0.0), 465);
    LabStato.Visible = fine - prima >= kStatoMinimo;
}

} // namespace telva

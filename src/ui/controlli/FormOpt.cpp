#include "ui/controlli/FormOpt.h"

namespace telva {

ModuloOpt FormOpt;

namespace {

constexpr double kRiga = 330;

// A label and its box on one row of a frame; the boxes stand in one column.
void Riga(Etichetta &etichetta, const char *testo, CasellaTesto &casella, double top,
          double left = 180) {
    constexpr double kColonna = 5340;
    etichetta.Caption = testo;
    etichetta.Posiziona(left, top, kColonna - left - 90, 300);
    casella.Posiziona(kColonna, top, 900, 300);
}

void DisponiElementi(ModuloOpt &f) {
    f.FrameElementi.Caption = "Elementi";
    f.FrameElementi.Posiziona(120, 60, 9000, 2400);
    f.CheckSpGus.Caption = "Non disegnare i gusci sottili";
    f.CheckSpGus.Posiziona(180, 285, 2900, 270);
    Riga(f.LabelSpMinGus, "Spessore minimo [cm]:", f.SpMinGus, 270, 3150);
    Riga(f.LabelSpNonSel, "Spessore degli elementi non selezionati [pixel]:", f.SpNonSel,
         270 + kRiga);
    Riga(f.LabelSpSel, "Spessore degli elementi selezionati [pixel]:", f.SpSel, 270 + 2 * kRiga);
    Riga(f.LabelRaggio, "Raggio di rappresentazione del nodo [pixel]:", f.Raggio, 270 + 3 * kRiga);
    f.EvColSel.Caption = "Cambia colore agli elementi selezionati";
    f.EvColSel.Posiziona(180, 1680, 8000, 270);
    f.EvColNonSel.Caption = "Cambia colore agli elementi non selezionati";
    f.EvColNonSel.Posiziona(180, 1980, 8000, 270);
}

void DisponiParti(ModuloOpt &f) {
    const auto gruppo = [](CasellaSpunta &capo, const char *testo, double top) {
        capo.Caption = testo;
        capo.Posiziona(180, top, 1850, 270);
    };
    static constexpr double kColonne[] = {2070, 3150, 4920, 6600, 9000};
    const auto parti = [](auto &caselle, std::initializer_list<const char *> testi, double top) {
        int k = 0;
        for (const char *testo : testi) {
            const int colonna = k < 4 ? k : k - 3; // the first column is a narrow one
            caselle[k].Caption = testo;
            caselle[k].Posiziona(kColonne[colonna], top + (k / 4) * 280,
                                 kColonne[colonna + 1] - kColonne[colonna] - 60, 270);
            ++k;
        }
    };
    gruppo(f.CheckTxtNodi, "Nodi", 300);
    parti(f.TxtNodi, {"Nome", "Vincolo (V)"}, 300);
    gruppo(f.CheckTxtAste, "Aste", 640);
    parti(f.TxtAste, {"Nome", "Materiale (M)", "Sezione (S)", "Orientamento (O)", "Svincolo (C)"},
          640);
    gruppo(f.CheckTxtGusci, "Gusci", 1260);
    parti(f.TxtGusci, {"Nome", "Materiale (M)", "Spessore (S)"}, 1260);
    gruppo(f.CheckTxtElCont, "Elementi continui", 1600);
    f.TxtElCont.Caption = "Nome";
    f.TxtElCont.Posiziona(kColonne[0], 1600, 1000, 270);
}

void DisponiTesti(ModuloOpt &f) {
    Riga(f.LabelBaseTxt, "Base testo [unità disegno]:", f.BaseTxt, 2010);
    Riga(f.LabelAltezzaTxt, "Altezza testo [unità disegno]:", f.AltezzaTxt, 2010 + kRiga);
    Riga(f.LabelDistTxt, "Distanza tra testo ed elemento [unità disegno]:", f.DistTxt,
         2010 + 2 * kRiga);
    f.LabelColoreTxt.Caption = "Colore testo:";
    f.LabelColoreTxt.Posiziona(180, 3090, 1600, 225);
    for (int k = 0; k < f.LabelCol.Numero(); ++k) {
        f.LabelBordCol[k].Posiziona(2070 + k * 465, 3030, 405, 345);
        f.LabelCol[k].Posiziona(2070 + k * 465 + 45, 3075, 315, 255);
    }
}

} // namespace

ModuloOpt::ModuloOpt() : Modulo("FormOpt") {
    Caption = "Opzioni di rappresentazione";
    Width = 9240;
    Height = 6705;
    DisponiElementi(*this);
    FrameNum.Caption = "Numerazione";
    FrameNum.Posiziona(120, 2550, 9000, 3510);
    DisponiParti(*this);
    DisponiTesti(*this);
    Salva.Caption = "Salva";
    Salva.Posiziona(6180, 6195, 1410, 390);
    Chiudi_.Caption = "Chiudi";
    Chiudi_.Posiziona(7710, 6195, 1410, 390);
}

} // namespace telva

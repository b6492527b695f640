#pragma once
// Controls of the representation-options dialog.

#include "platform/controlli.h"

namespace telva {

struct ModuloOpt : Modulo {
    static constexpr int kCampioni = 10; // one for each colour of the program

    ModuloOpt();

    Cornice FrameElementi{this, "FrameElementi"};
    CasellaSpunta CheckSpGus{this, "CheckSpGus", &FrameElementi};
    Etichetta LabelSpMinGus{this, "LabelSpMinGus", &FrameElementi};
    CasellaTesto SpMinGus{this, "SpMinGus", &FrameElementi};
    Etichetta LabelSpNonSel{this, "LabelSpNonSel", &FrameElementi};
    CasellaTesto SpNonSel{this, "SpNonSel", &FrameElementi};
    Etichetta LabelSpSel{this, "LabelSpSel", &FrameElementi};
    CasellaTesto SpSel{this, "SpSel", &FrameElementi};
    BottoneOpzione EvColSel{this, "EvColSel", &FrameElementi};
    BottoneOpzione EvColNonSel{this, "EvColNonSel", &FrameElementi};
    Etichetta LabelRaggio{this, "LabelRaggio", &FrameElementi};
    CasellaTesto Raggio{this, "Raggio", &FrameElementi};

    Cornice FrameNum{this, "FrameNum"};
    CasellaSpunta CheckTxtNodi{this, "CheckTxtNodi", &FrameNum};
    Schiera<CasellaSpunta, 2> TxtNodi{this, "TxtNodi", &FrameNum};
    CasellaSpunta CheckTxtAste{this, "CheckTxtAste", &FrameNum};
    Schiera<CasellaSpunta, 5> TxtAste{this, "TxtAste", &FrameNum};
    CasellaSpunta CheckTxtGusci{this, "CheckTxtGusci", &FrameNum};
    Schiera<CasellaSpunta, 3> TxtGusci{this, "TxtGusci", &FrameNum};
    CasellaSpunta CheckTxtElCont{this, "CheckTxtElCont", &FrameNum};
    CasellaSpunta TxtElCont{this, "TxtElCont", &FrameNum};
    Etichetta LabelBaseTxt{this, "LabelBaseTxt", &FrameNum};
    CasellaTesto BaseTxt{this, "BaseTxt", &FrameNum};
    Etichetta LabelAltezzaTxt{this, "LabelAltezzaTxt", &FrameNum};
    CasellaTesto AltezzaTxt{this, "AltezzaTxt", &FrameNum};
    Etichetta LabelDistTxt{this, "LabelDistTxt", &FrameNum};
    CasellaTesto DistTxt{this, "DistTxt", &FrameNum};
    Etichetta LabelColoreTxt{this, "LabelColoreTxt", &FrameNum};
    Schiera<Campione, kCampioni> LabelCol{this, "LabelCol", &FrameNum};
    Schiera<Campione, kCampioni> LabelBordCol{this, "LabelBordCol", &FrameNum};

    Pulsante Salva{this, "Salva"};
    Pulsante Chiudi_{this, "Chiudi"};
};

extern ModuloOpt FormOpt;

} // namespace telva

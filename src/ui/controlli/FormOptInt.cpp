#include "ui/controlli/FormOptInt.h"

namespace telva {

ModuloOptInt FormOptInt;

ModuloOptInt::ModuloOptInt() : Modulo("FormOptInt") {
    Caption = "Opzioni";
    Width = 4170;
    Height = 1470;
    Frame1.Posiziona(120, 60, 3930, 780);
    Label1.Caption = "Dimensione della trappola:";
    Label1.Posiziona(180, 330, 2250, 225);
    TextTrappola.Posiziona(2460, 300, 1260, 300);
    TextTrappola.ToolTipText = "Lato della zona di selezione attorno al puntatore, in pixel";
    Command1.Caption = "Chiudi";
    Command1.Posiziona(2700, 975, 1350, 375);
}

} // namespace telva

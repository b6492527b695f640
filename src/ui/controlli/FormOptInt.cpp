#include "ui/controlli/FormOptInt.h"

namespace telva {

ModuloOptInt FormOptInt;

ModuloOptInt::ModuloOptInt() : Modulo("FormOptInt") {
    Caption = "Opzioni";
    Width = 4170;
    Height = 1470;
    Frame1.Posiziona(120, 60, 3930, 1290);
    Label1.Caption = "Dimensione della trappola:";
    Label1.Posiziona(180, 300, 2700, 300);
    TextTrappola.Posiziona(2910, 300, 840, 300);
    TextTrappola.ToolTipText = "Raggio della zona di selezione attorno al puntatore, in pixel";
    Command1.Caption = "Chiudi";
    Command1.Posiziona(2400, 750, 1350, 375);
}

} // namespace telva

#pragma once
// The representation-options dialog.

namespace telva {

void CollegaFormOpt();
// Shows the present options and runs the dialog; the drawing follows when it has closed.
void ApriFormOpt();
void ChiudiFormOpt();
// Shows the entries of Opzioni in the controls.
void MostraOpzioni();
// Takes the controls into Opzioni.
void AggiornaOpzioni();
// Enables the label parts and text controls as the numbering check boxes say.
void ControllaNumerazioneAtt();
// Marks the swatch of the chosen text colour.
void EvidColAtt();

} // namespace telva

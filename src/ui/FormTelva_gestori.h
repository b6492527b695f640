#pragma once
// What the main window does: the handlers of its commands and controls.

namespace telva {

// Wires the controls of FormTelva to their handlers (the commands have theirs from their table).
void CollegaFormTelva();

void Salva_Click();
void Esci_Click();
void Aggiungi_Click();
void Rimuovi_Click();
void RimTutto_Click();
void Inverti_Click();
void Interrompi_Click();
void VisCoord_Click();
void BarraLat_Click();
void BarraIcone_Click();
void Trappola_Click();
void Rappresentazione_Click();
void OptElem_Click(int indice);
void Form_Resize();

} // namespace telva

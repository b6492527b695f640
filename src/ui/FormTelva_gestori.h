#pragma once
// What the main window does: the handlers of its commands and controls.

#include "view/inquadra.h"

#include <cstdint>

namespace telva {

// Wires the controls of FormTelva, its menus and its tool bar to their handlers.
void CollegaFormTelva();

void Salva_Click();
void Esci_Click();
void Ottimizza_Click();
void ZoomIn_Click();
void Sposta_Click();
void Ridis_Click();
void Aggiungi_Click();
void Rimuovi_Click();
void RimTutto_Click();
void Inverti_Click();
void Interrompi_Click();
// The command Selezioni > Finestra; Finestra_Click is its part that the pick shares.
void FinestraComando_Click();
void Finestra_Click();
void VisCoord_Click();
void VisAssi_Click();
void BarraLat_Click();
void BarraIcone_Click();
void Trappola_Click();
void Rappresentazione_Click();
void OptElem_Click(int indice);
void Form_Resize();

// Before a selection by display attributes: ends what the mouse has begun.
void IniziaAttributo();

// The pointer on the drawing (Disegno_gestori.cpp).
extern std::int16_t PrimoAngolo, SpostaInCorso, ModoZoom, ModoSposta, UltimoTasto,
    FinestraAutomatica;
void Disegno_MouseDown(int button, int shift, float x, float y);
void Disegno_MouseMove(int button, int shift, float x, float y);
void Disegno_MouseUp(int button, int shift, float x, float y);
void Disegno_DblClick();
void Disegno_CatturaPersa();
void WheelCatcher1_Rotella(int passi);
// Keys with Ctrl: arrows move the view, + and - are wheel steps; true when it was one of them.
bool Vista_KeyDown(int tasto);
// Hides the rubber bands and forgets a begun rectangle, zoom or pan.
void AnnullaElastici();
// Gives up a begun selection rectangle; an automatic one goes back to direct pick.
void ChiudiFinestraInCorso();
void AzzeraPuntatore();

} // namespace telva

#pragma once
// The user's settings: representation options (read and written) and internal options (read).

#include "platform/file_testo.h"
#include "platform/tabella.h"

#include <string>

namespace telva {

// Places in Opzioni. Pixels are those of a window at 100 %.
enum Opzione {
    kOpzNascondiSottili = 0, // 1 = shells thinner than kOpzSpessoreMinimo are not drawn
    kOpzSpessoreMinimo = 1,  // cm
    kOpzPennaNonSel = 2,     // pixels
    kOpzPennaSel = 3,        // pixels
    kOpzColoreSel = 5,       // 1 = selected elements change colour, else the others do
    kOpzRaggioNodo = 6,      // pixels
    kOpzTestiNodi = 7,
    kOpzTestiAste = 8,
    kOpzTestiGusci = 9,
    kOpzBaseTesto = 10,    // drawing units
    kOpzAltezzaTesto = 11, // drawing units
    kOpzColoreTesto = 12,
    kOpzDistanzaTesto = 13, // drawing units
    kOpzPartiNodi = 14,     // 14, 15
    kOpzPartiAste = 16,     // 16..20
    kOpzPartiGusci = 21,    // 21..23
    kOpzTestiElCont = 24,
    kOpzNomeElCont = 25
};

// Places in OpzInt, which begin at 1.
enum OpzioneInterna {
    kOpzTrappola = 1,      // pixels: how near a click has to come
    kOpzLunghezzaAssi = 2, // pixels
    kOpzLettereAssi = 3,   // pixels
    kOpzColoreAssi = 5
};

extern Tabella<Valore, 30> Opzioni;
extern Tabella<double, 6> OpzInt;

// The entry as a number (a text by its leading number, nothing as 0); equal to 1.
double OpzioneNumero(int voce);
bool OpzioneAttiva(int voce);

// Reads DirCustom\TelOpzio.txt, or sets the defaults when it cannot be opened.
void LeggiOpzioni();
// Reads DirCustom\TelOpInt.txt; zeros when it cannot be opened.
void LeggiOpzInt();
// Writes DirCustom\TelOpzio.txt; returns the message to show.
std::string ScriviOpzioni();

void AzzeraOpzioni();

} // namespace telva

#pragma once
// Start-up of the main window.

namespace telva {

// Everything from the argument string (ArgomentoAvvio) to the first picture; what is wrong is
// reported on the way. Returns when the main window is ready to be shown.
void Avvia();

// Puts every module back to program start, for the tests.
void AzzeraProgramma();

} // namespace telva

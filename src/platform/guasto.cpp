#include "platform/guasto.h"

#include "platform/citazione.h"
#include "platform/numeri.h"

namespace telva {

void GuastoInFile(const std::string &percorso, int riga, const std::string &motivo) {
    throw Guasto("File " + CitaPercorso(percorso) + ", riga " + TestoNumero(riga) + ": " + motivo);
}

void GuastoIndice(const char *tabella, long indice, long ultimo) {
    throw Guasto("Indice " + std::to_string(indice) + " fuori dalla tabella " + tabella + " (0.." +
                 std::to_string(ultimo) + ")");
}

} // namespace telva

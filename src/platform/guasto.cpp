#include "platform/guasto.h"

#include "platform/citazione.h"
#include "platform/numeri.h"

#include <new>

namespace telva {

std::string MotivoGuasto(const std::exception &e) {
    if (dynamic_cast<const Guasto *>(&e)) return e.what();
    if (dynamic_cast<const std::bad_alloc *>(&e)) return "Memoria insufficiente";
    return std::string("Errore interno: ") + e.what();
}

void GuastoInFile(const std::string &percorso, int riga, const std::string &motivo) {
    throw Guasto("File " + CitaPercorso(percorso) + ", riga " + TestoNumero(riga) + ": " + motivo);
}

void GuastoIndice(const char *tabella, long indice, long ultimo) {
    throw Guasto("Indice " + std::to_string(indice) + " fuori dalla tabella " + tabella + " (0.." +
                 std::to_string(ultimo) + ")");
}

} // namespace telva

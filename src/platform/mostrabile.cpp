#include "platform/mostrabile.h"

#include "platform/testo.h"

#include <algorithm>

namespace telva {

std::string Mostrabile(std::string_view testo, std::size_t caratteri) {
    std::size_t posto = 0, ultimo = 0;
    for (std::size_t n = 0; n < caratteri && posto < testo.size(); ++n) {
        ultimo = posto;
        ProssimoCarattere(testo, posto);
    }
    return posto == testo.size() ? std::string(testo) : std::string(testo.substr(0, ultimo)) + "…";
}

std::string ConRigheBrevi(std::string_view testo, std::size_t colonne) {
    std::string righe;
    std::size_t senzaSpazi = 0;
    for (std::size_t posto = 0; posto < testo.size();) {
        const std::size_t inizio = posto;
        const char32_t c = ProssimoCarattere(testo, posto);
        senzaSpazi = c == U' ' || c == U'\n' || c == U'\r' ? 0 : senzaSpazi + 1;
        if (senzaSpazi > colonne) {
            righe += "\r\n";
            senzaSpazi = 1;
        }
        righe += testo.substr(inizio, posto - inizio);
    }
    return righe;
}

std::string ElencoInRighe(std::string_view elenco, std::size_t colonne, std::size_t righe,
                          std::string_view coda) {
    std::string testo;
    std::size_t riga = 1, colonna = 0;
    while (!elenco.empty()) {
        const std::size_t fine = std::min(elenco.find(','), elenco.size() - 1) + 1;
        if (colonna > 0 && colonna + fine > colonne) {
            if (riga + 1 >= righe && elenco.size() > colonne)
                return testo.append("\r\n").append(coda);
            testo += "\r\n";
            ++riga;
            colonna = 0;
        }
        testo += elenco.substr(0, fine);
        colonna += fine;
        elenco.remove_prefix(fine);
    }
    return testo;
}

} // namespace telva

#include "platform/mostrabile.h"

#include "platform/testo.h"

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

} // namespace telva

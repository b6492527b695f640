#include "platform/citazione.h"

#include "platform/numeri.h"
#include "platform/testo.h"

#include <charconv>
#include <cmath>

namespace telva {
namespace {

// The first `inizio` and the last `fine` characters, "…" between them, when there are more than
// that and one.
std::string Taglia(std::string_view testo, std::size_t inizio, std::size_t fine) {
    std::string pulito = Utf8Risanato(testo);
    for (char &c : pulito)
        if (static_cast<unsigned char>(c) < ' ') c = ' ';
    const std::size_t caratteri = NumeroCaratteri(pulito);
    if (caratteri <= inizio + 1 + fine) return pulito;
    return pulito.substr(0, ByteDiCaratteri(pulito, inizio)) + "…" +
           pulito.substr(ByteDiCaratteri(pulito, caratteri - fine));
}

} // namespace

std::string Cita(std::string_view testo) { return Taglia(testo, 59, 0); }

std::string CitaPercorso(std::string_view percorso) { return Taglia(percorso, 100, 159); }

std::string CitaNumero(double numero) {
    if (!(std::abs(numero) > 1e15)) return TestoNumero(numero);
    char testo[32];
    return std::string(testo, std::to_chars(testo, testo + sizeof testo, numero).ptr);
}

} // namespace telva

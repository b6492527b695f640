#include "platform/numeri.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace telva {
namespace {

bool Cifra(char c) { return c >= '0' && c <= '9'; }
bool Vuoto(char c) { return c == ' ' || c == '\t'; }

// Worth of a number that no double can hold: infinite or 0, by the place of its first digit.
double FuoriPortata(std::string_view numero) {
    const double segno = numero[0] == '-' ? -1.0 : 1.0;
    const std::size_t e = std::min(numero.find_first_of("eE"), numero.size());
    std::int64_t grandezza = 0;
    bool punto = false, trovata = false;
    for (const char c : numero.substr(0, e)) {
        if (c == '.') punto = true;
        if (!Cifra(c)) continue;
        trovata = trovata || c != '0';
        if (punto ? !trovata : trovata) grandezza += punto ? -1 : 1;
    }
    std::int32_t esponente = 0;
    if (e < numero.size()) {
        std::string_view cifre = numero.substr(e + 1);
        const bool negativo = cifre.starts_with('-');
        if (negativo || cifre.starts_with('+')) cifre.remove_prefix(1);
        if (std::from_chars(cifre.data(), cifre.data() + cifre.size(), esponente).ec != std::errc())
            esponente = INT32_MAX; // more digits than any exponent needs
        if (negativo) esponente = -esponente;
    }
    return grandezza + esponente > 0 ? segno * std::numeric_limits<double>::infinity() : 0;
}

// Reads the longest number at the front of a text without blanks; returns its length (0 = none)
// and, in `valore`, what it is worth.
std::size_t Prefisso(std::string_view t, double &valore) {
    std::size_t i = 0;
    if (i < t.size() && (t[i] == '+' || t[i] == '-')) ++i;
    const std::size_t inizio = t[0] == '+' ? 1 : 0;
    std::size_t cifre = 0;
    while (i < t.size() && Cifra(t[i])) ++i, ++cifre;
    if (i < t.size() && t[i] == '.') {
        ++i;
        while (i < t.size() && Cifra(t[i])) ++i, ++cifre;
    }
    if (cifre == 0) return 0;
    const std::size_t mantissa = i;
    std::size_t esponente = i;
    if (i < t.size() && (t[i] == 'e' || t[i] == 'E' || t[i] == 'd' || t[i] == 'D')) {
        ++i;
        if (i < t.size() && (t[i] == '+' || t[i] == '-')) ++i;
        const std::size_t prima = i;
        while (i < t.size() && Cifra(t[i])) ++i;
        esponente = i > prima ? i : mantissa;
    }
    std::string_view numero = t.substr(inizio, esponente - inizio);
    std::string copia; // only for the exponent letter D, which from_chars does not know
    if (esponente > mantissa && (t[mantissa] == 'd' || t[mantissa] == 'D')) {
        copia = numero;
        copia[mantissa - inizio] = 'e';
        numero = copia;
    }
    const auto esito = std::from_chars(numero.data(), numero.data() + numero.size(), valore);
    if (esito.ec == std::errc::result_out_of_range) valore = FuoriPortata(numero);
    return esponente;
}

} // namespace

double ValoreNumerico(std::string_view testo) {
    std::string pulito;
    std::string_view t = testo;
    while (!t.empty() && Vuoto(t.front())) t.remove_prefix(1);
    if (t.find_first_of(" \t") != std::string_view::npos) {
        for (char c : t)
            if (!Vuoto(c)) pulito += c;
        t = pulito;
    }
    double valore = 0;
    if (t.empty() || Prefisso(t, valore) == 0) return 0;
    if (std::isinf(valore)) return std::copysign(std::numeric_limits<double>::max(), valore);
    return valore;
}

std::optional<double> NumeroStretto(std::string_view testo) {
    while (!testo.empty() && Vuoto(testo.front())) testo.remove_prefix(1);
    while (!testo.empty() && Vuoto(testo.back())) testo.remove_suffix(1);
    double valore = 0;
    if (testo.empty() || Prefisso(testo, valore) != testo.size() || std::isinf(valore))
        return std::nullopt;
    return valore;
}

std::string ConPunto(std::string_view testo) {
    std::string numero(testo);
    std::ranges::replace(numero, ',', '.');
    return numero;
}

double ArrotondaPari(double valore) {
    const double basso = std::floor(valore);
    const double resto = valore - basso;
    if (resto < 0.5) return basso;
    if (resto > 0.5) return basso + 1;
    return std::fmod(basso, 2) == 0 ? basso : basso + 1;
}

double ParteIntera(double valore) { return std::floor(valore); }

std::optional<std::int16_t> Intero16(double valore) {
    if (!(valore >= -32768.0 && valore <= 32767.0)) return std::nullopt;
    return static_cast<std::int16_t>(valore);
}

std::string TestoNumero(double valore) {
    if (valore == 0) return "0"; // also for minus zero
    char testo[400];
    const auto esito = std::to_chars(testo, testo + sizeof testo, valore, std::chars_format::fixed);
    return std::string(testo, esito.ptr);
}

std::string TestoNumero(int valore) { return std::to_string(valore); }

} // namespace telva

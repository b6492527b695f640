#include "platform/testo.h"

#include <array>

namespace telva {
namespace {

// Characters of the codes 0x80..0x9F; the five codes without a character map to themselves.
constexpr std::array<char32_t, 32> kAlti = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

char32_t Minuscola(char32_t c) {
    if ((c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7)) return c + 32;
    if (c == 0x0152 || c == 0x0160 || c == 0x017D) return c + 1;
    return c == 0x0178 ? 0xFF : c;
}

char32_t Maiuscola(char32_t c) {
    if ((c >= 'a' && c <= 'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7)) return c - 32;
    if (c == 0x0153 || c == 0x0161 || c == 0x017E) return c - 1;
    return c == 0xFF ? 0x0178 : c;
}

std::string Trasforma(std::string_view testo, char32_t (*regola)(char32_t)) {
    std::string fuori;
    fuori.reserve(testo.size());
    for (std::size_t i = 0; i < testo.size();) {
        const std::size_t prima = i;
        const char32_t c = ProssimoCarattere(testo, i);
        if (const char32_t r = regola(c); r != c && !(i == prima + 1 && c >= 0x80))
            AggiungiCarattere(fuori, r);
        else
            fuori.append(testo.substr(prima, i - prima));
    }
    return fuori;
}

bool Seguito(std::string_view t, std::size_t i) {
    return i < t.size() && (static_cast<unsigned char>(t[i]) & 0xC0) == 0x80;
}

} // namespace

std::string_view Rifila(std::string_view testo) {
    while (!testo.empty() && testo.front() == ' ') testo.remove_prefix(1);
    while (!testo.empty() && testo.back() == ' ') testo.remove_suffix(1);
    return testo;
}

std::string Minuscole(std::string_view testo) { return Trasforma(testo, Minuscola); }
std::string Maiuscole(std::string_view testo) { return Trasforma(testo, Maiuscola); }

char32_t ProssimoCarattere(std::string_view testo, std::size_t &posto) {
    const auto byte = [&](std::size_t i) {
        return static_cast<char32_t>(static_cast<unsigned char>(testo[i]));
    };
    const char32_t c = byte(posto++);
    if (c < 0x80) return c;
    const std::size_t quanti = c >= 0xF5 ? 0 : c >= 0xF0 ? 3 : c >= 0xE0 ? 2 : c >= 0xC2 ? 1 : 0;
    char32_t valore = c & (0x3Fu >> quanti);
    for (std::size_t k = 0; k < quanti; ++k) {
        if (!Seguito(testo, posto + k)) return c;
        valore = (valore << 6) | (byte(posto + k) & 0x3F);
    }
    static constexpr char32_t kMinimo[] = {0, 0x80, 0x800, 0x10000}; // below: not the shortest form
    if (quanti == 0 || valore < kMinimo[quanti] || valore > 0x10FFFF ||
        (valore >= 0xD800 && valore < 0xE000))
        return c;
    posto += quanti;
    return valore;
}

std::size_t ByteDiCaratteri(std::string_view testo, std::size_t caratteri) {
    std::size_t posto = 0;
    while (caratteri-- > 0 && posto < testo.size()) ProssimoCarattere(testo, posto);
    return posto;
}

std::size_t NumeroCaratteri(std::string_view testo) {
    std::size_t numero = 0;
    for (std::size_t posto = 0; posto < testo.size(); ++numero) ProssimoCarattere(testo, posto);
    return numero;
}

void AggiungiCarattere(std::string &testo, char32_t c) {
    const auto metti = [&](char32_t b) {
        testo += static_cast<char>(static_cast<unsigned char>(b));
    };
    if (c < 0x80) {
        metti(c);
    } else if (c < 0x800) {
        metti(0xC0 | (c >> 6));
        metti(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        metti(0xE0 | (c >> 12));
        metti(0x80 | ((c >> 6) & 0x3F));
        metti(0x80 | (c & 0x3F));
    } else {
        metti(0xF0 | (c >> 18));
        metti(0x80 | ((c >> 12) & 0x3F));
        metti(0x80 | ((c >> 6) & 0x3F));
        metti(0x80 | (c & 0x3F));
    }
}

int CodiceAnsi(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<int>(c);
    for (std::size_t k = 0; k < kAlti.size(); ++k)
        if (kAlti[k] == c) return static_cast<int>(0x80 + k);
    return -1;
}

std::string DaWindows1252(std::string_view byte) {
    std::string testo;
    testo.reserve(byte.size());
    for (char b : byte) {
        const auto c = static_cast<char32_t>(static_cast<unsigned char>(b));
        AggiungiCarattere(testo, c >= 0x80 && c < 0xA0 ? kAlti[c - 0x80] : c);
    }
    return testo;
}

std::string DaUtf16(std::string_view byte, bool primaAlto) {
    std::string testo;
    testo.reserve(byte.size());
    const auto unita = [&](std::size_t i) {
        const auto b = [&](std::size_t k) {
            return static_cast<char32_t>(static_cast<unsigned char>(byte[k]));
        };
        return primaAlto ? b(i) << 8 | b(i + 1) : b(i + 1) << 8 | b(i);
    };
    for (std::size_t i = 0; i + 1 < byte.size(); i += 2) {
        char32_t c = unita(i);
        const char32_t seguente = i + 3 < byte.size() ? unita(i + 2) : 0;
        if (c >= 0xD800 && c < 0xDC00 && seguente >= 0xDC00 && seguente < 0xE000) {
            c = 0x10000 + ((c - 0xD800) << 10) + (seguente - 0xDC00);
            i += 2;
        } else if (c >= 0xD800 && c < 0xE000) {
            c = 0xFFFD;
        }
        AggiungiCarattere(testo, c);
    }
    return testo;
}

std::string Utf8Risanato(std::string_view testo) {
    std::string sano;
    sano.reserve(testo.size());
    for (std::size_t i = 0; i < testo.size();) {
        const std::size_t prima = i;
        const char32_t c = ProssimoCarattere(testo, i);
        const std::string_view letto = testo.substr(prima, i - prima);
        if (letto.size() == 1 && c >= 0x80)
            sano += DaWindows1252(letto);
        else
            sano += letto;
    }
    return sano;
}

std::string AWindows1252(std::string_view testo) {
    std::string byte;
    byte.reserve(testo.size());
    for (std::size_t i = 0; i < testo.size();) {
        const int codice = CodiceAnsi(ProssimoCarattere(testo, i));
        byte += codice < 0 ? '?' : static_cast<char>(static_cast<unsigned char>(codice));
    }
    return byte;
}

} // namespace telva

// genera_icona file.ico           writes the program's icon
// genera_icona --foglio file.ppm  writes every icon at tool-bar sizes, enlarged, on a light and a
// dark bar

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "ui/icone.h"

#include <png.h>

namespace {

using Byte = std::vector<char>;

constexpr std::array kLatiIco = {16, 20, 24, 32, 48, 64, 256};
constexpr std::array kLatiFoglio = {16, 20, 24, 32, 48};
constexpr std::array<std::string_view, 13> kChiavi = {
    "AggiornaEsci", "Esci",    "Ottimizza",    "Zoom",       "Sposta",     "Ridisegna",
    "Aggiungi",     "Rimuovi", "RimuoviTutto", "InvertiSel", "Interrompi", "AggiungiBarraLat",
    "Telva"};

void Metti(Byte &a, std::uint32_t valore, int byte) {
    for (int k = 0; k < byte; ++k) a.push_back(static_cast<char>(valore >> (8 * k) & 0xFFu));
}

// Icon files hold plain alpha, the painter gives premultiplied pixels.
std::uint32_t AlfaSemplice(std::uint32_t pixel) {
    const std::uint32_t alfa = pixel >> 24;
    if (alfa == 0) return 0;
    std::uint32_t risultato = alfa << 24;
    for (const int posto : {0, 8, 16})
        risultato |= (((pixel >> posto) & 0xFFu) * 255u + alfa / 2) / alfa << posto;
    return risultato;
}

// A BMP entry: header with doubled height, 32-bit rows from the bottom, then the 1-bit AND mask.
Byte VoceBmp(int lato) {
    const std::vector<std::uint32_t> pixel = telva::DisegnaIcona("Telva", lato);
    Byte voce;
    Metti(voce, 40, 4);
    Metti(voce, static_cast<std::uint32_t>(lato), 4);
    Metti(voce, static_cast<std::uint32_t>(2 * lato), 4);
    Metti(voce, 1, 2);
    Metti(voce, 32, 2);
    voce.resize(40, 0);
    Byte maschera;
    for (int y = lato - 1; y >= 0; --y) {
        std::uint32_t bit = 0;
        for (int x = 0; x < (lato + 31) / 32 * 32; ++x) {
            const std::uint32_t p = x < lato ? pixel[static_cast<std::size_t>(y * lato + x)] : 0;
            if (x < lato) Metti(voce, AlfaSemplice(p), 4);
            bit = bit << 1 | (p >> 24 == 0 ? 1u : 0u);
            if (x % 8 == 7) Metti(maschera, bit, 1);
        }
    }
    voce.insert(voce.end(), maschera.begin(), maschera.end());
    return voce;
}

// The largest entry as a PNG, as icon files have them since long before the oldest system that the
// program runs on: plain it would be a quarter of the program's file.
Byte VocePng(int lato) {
    std::vector<std::uint32_t> pixel = telva::DisegnaIcona("Telva", lato);
    for (std::uint32_t &p : pixel) p = AlfaSemplice(p);
    png_image immagine{};
    immagine.version = PNG_IMAGE_VERSION;
    immagine.width = immagine.height = static_cast<png_uint_32>(lato);
    immagine.format = PNG_FORMAT_BGRA;
    Byte voce(4 * pixel.size() + 4096);
    png_alloc_size_t byte = voce.size();
    if (!png_image_write_to_memory(&immagine, voce.data(), &byte, 0, pixel.data(), 0, nullptr)) {
        std::fprintf(stderr, "genera_icona: %s\n", immagine.message);
        std::exit(1);
    }
    voce.resize(byte);
    return voce;
}

Byte FileIco() {
    Byte indice, voci;
    Metti(indice, 0, 2);
    Metti(indice, 1, 2);
    Metti(indice, kLatiIco.size(), 2);
    const std::size_t inizio = indice.size() + 16 * kLatiIco.size();
    for (const int lato : kLatiIco) {
        const Byte voce = lato < 256 ? VoceBmp(lato) : VocePng(lato);
        for (int k = 0; k < 2; ++k) Metti(indice, static_cast<std::uint32_t>(lato % 256), 1);
        Metti(indice, 0, 2);
        Metti(indice, 1, 2);
        Metti(indice, 32, 2);
        Metti(indice, static_cast<std::uint32_t>(voce.size()), 4);
        Metti(indice, static_cast<std::uint32_t>(inizio + voci.size()), 4);
        voci.insert(voci.end(), voce.begin(), voce.end());
    }
    indice.insert(indice.end(), voci.begin(), voci.end());
    return indice;
}

struct Foglio {
    static constexpr int kIngrandimento = 4, kMargine = 4;
    int larghezza, altezza;
    std::vector<std::uint32_t> pixel;

    void Incolla(std::string_view chiave, int lato, int x0, int y0) {
        const std::vector<std::uint32_t> icona = telva::DisegnaIcona(chiave, lato);
        for (int y = 0; y < lato * kIngrandimento; ++y)
            for (int x = 0; x < lato * kIngrandimento; ++x) {
                const int da = y / kIngrandimento * lato + x / kIngrandimento;
                const std::uint32_t p = icona[static_cast<std::size_t>(da)];
                auto &q = pixel[static_cast<std::size_t>((y0 + y) * larghezza + x0 + x)];
                std::uint32_t nuovo = 0;
                for (const int posto : {0, 8, 16})
                    nuovo |= (((p >> posto) & 0xFFu) +
                              ((q >> posto) & 0xFFu) * (255u - (p >> 24)) / 255u)
                             << posto;
                q = nuovo;
            }
    }
};

// One row per size, twice: upper half on the light button face, lower half on a dark one.
Byte FilePpm() {
    int altezza = 0;
    for (const int lato : kLatiFoglio) altezza += lato * Foglio::kIngrandimento + Foglio::kMargine;
    const int passo = kLatiFoglio.back() * Foglio::kIngrandimento + Foglio::kMargine;
    Foglio foglio{passo * static_cast<int>(kChiavi.size()), 2 * altezza, {}};
    const auto meta = static_cast<std::size_t>(foglio.larghezza * altezza);
    foglio.pixel.assign(meta, 0xF0F0F0u);
    foglio.pixel.resize(2 * meta, 0x202020u);
    int y = 0;
    for (int giro = 0; giro < 2; ++giro)
        for (const int lato : kLatiFoglio) {
            for (std::size_t k = 0; k < kChiavi.size(); ++k)
                foglio.Incolla(kChiavi[k], lato, static_cast<int>(k) * passo, y);
            y += lato * Foglio::kIngrandimento + Foglio::kMargine;
        }
    const std::string testa = "P6\n" + std::to_string(foglio.larghezza) + " " +
                              std::to_string(foglio.altezza) + "\n255\n";
    Byte file(testa.begin(), testa.end());
    for (const std::uint32_t p : foglio.pixel)
        for (const int posto : {16, 8, 0}) Metti(file, p >> posto, 1);
    return file;
}

} // namespace

int main(int argc, char **argv) {
    const std::vector<std::string> argomenti(argv + 1, argv + argc);
    const bool foglio = argomenti.size() == 2 && argomenti[0] == "--foglio";
    if (!foglio && argomenti.size() != 1) {
        std::fputs("genera_icona file.ico | --foglio file.ppm\n", stderr);
        return 2;
    }
    const Byte contenuto = foglio ? FilePpm() : FileIco();
    std::ofstream file(argomenti.back(), std::ios::binary);
    file.write(contenuto.data(), static_cast<std::streamsize>(contenuto.size()));
    file.close();
    if (!file) std::fprintf(stderr, "%s: not written\n", argomenti.back().c_str());
    return file ? 0 : 1;
}

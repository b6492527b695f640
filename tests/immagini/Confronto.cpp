#include "immagini/Confronto.h"

#include <gtest/gtest.h>
#include <png.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <ios>
#include <iostream>

namespace telva::prove {
namespace {

constexpr png_uint_32 kFormato = PNG_FORMAT_BGRA; // the bytes of 0xAARRGGBB, lowest first
constexpr std::uint32_t kOpaco = 0xFF000000, kSegno = 0xFF00FF;

png_image Intestazione(const Superficie &s) {
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    png.format = kFormato;
    png.width = static_cast<png_uint_32>(s.Larghezza());
    png.height = static_cast<png_uint_32>(s.Altezza());
    return png;
}

// Transforms every pixel.
template <class Regola>
void Cambia(Superficie &s, Regola regola) {
    for (int y = 0; y < s.Altezza(); ++y)
        for (int x = 0; x < s.Larghezza(); ++x) s.Riga(y)[x] = regola(x, y);
}

void ScriviPng(const std::string &file, Superficie s) {
    Cambia(s, [&](int x, int y) { return s.Leggi(x, y) | kOpaco; });
    png_image png = Intestazione(s);
    ASSERT_TRUE(png_image_write_to_file(&png, file.c_str(), 0, s.Riga(0), 0, nullptr))
        << file << ": " << png.message;
}

// False when there is no such file.
bool LeggiPng(const std::string &file, Superficie &s) {
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&png, file.c_str())) return false;
    png.format = kFormato;
    s.Ridimensiona(static_cast<int>(png.width), static_cast<int>(png.height));
    const bool letta = png_image_finish_read(&png, nullptr, s.Riga(0), 0, nullptr) != 0;
    Cambia(s, [&](int x, int y) { return s.Leggi(x, y) & ~kOpaco; });
    return letta;
}

struct Differenze {
    int pixel = 0;
    Pixel prima, minimo{INT32_MAX, INT32_MAX}, massimo{-1, -1};
    Superficie segnate; // the drawn picture, darker, with the differences in a loud colour
};

Differenze Paragona(const Superficie &attesa, const Superficie &disegnata) {
    Differenze d;
    d.segnate = disegnata;
    Cambia(d.segnate, [&](int x, int y) {
        const std::uint32_t vista = disegnata.Leggi(x, y);
        if (attesa.Leggi(x, y) == vista) return vista >> 2 & 0x3F3F3F;
        if (d.pixel++ == 0) d.prima = {x, y};
        d.minimo = {std::min(d.minimo.x, x), std::min(d.minimo.y, y)};
        d.massimo = {std::max(d.massimo.x, x), std::max(d.massimo.y, y)};
        return kSegno;
    });
    return d;
}

} // namespace

void ConfrontaImmagine(const Superficie &disegnata, const std::string &nome) {
    const std::string file = TELVA_IMMAGINI "/" + nome + ".png";
    const std::string viste = std::filesystem::absolute(TELVA_IMMAGINI_VISTE).string();
    const std::string vista = viste + "/" + nome + ".png",
                      segnata = viste + "/" + nome + "_segnata.png";
    std::filesystem::remove(vista);
    std::filesystem::remove(segnata);
    Superficie attesa;
    const bool ceLAttesa = LeggiPng(file, attesa);
    const bool stessaMisura = ceLAttesa && attesa.Larghezza() == disegnata.Larghezza() &&
                              attesa.Altezza() == disegnata.Altezza();
    const Differenze d = stessaMisura ? Paragona(attesa, disegnata) : Differenze{};
    if (stessaMisura && d.pixel == 0) return;
    if (std::getenv("TELVA_RINNOVA") != nullptr) {
        ScriviPng(file, disegnata);
        std::cout << "rinnovata: " << nome << ".png\n";
        return;
    }
    std::filesystem::create_directories(viste);
    ScriviPng(vista, disegnata);
    if (!stessaMisura) {
        ADD_FAILURE() << "picture " << nome << ": expected "
                      << (ceLAttesa ? std::to_string(attesa.Larghezza()) + " x " +
                                          std::to_string(attesa.Altezza()) + " pixels"
                                    : "a file " + file)
                      << ", drawn " << disegnata.Larghezza() << " x " << disegnata.Altezza()
                      << ", left in " << vista;
        return;
    }
    ScriviPng(segnata, d.segnate);
    ADD_FAILURE() << "picture " << nome << ": " << d.pixel << " pixels differ, all from ("
                  << d.minimo.x << "," << d.minimo.y << ") to (" << d.massimo.x << ","
                  << d.massimo.y << "); the first at (" << d.prima.x << "," << d.prima.y
                  << "): expected " << std::hex << attesa.Leggi(d.prima.x, d.prima.y) << ", drawn "
                  << disegnata.Leggi(d.prima.x, d.prima.y) << "\nexpected " << file << "\ndrawn    "
                  << vista << "\nmarked   " << segnata;
}

} // namespace telva::prove

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

// What was drawn, darker, with the pixels that differ in a loud colour; their number.
int Segna(const Superficie &attesa, Superficie &disegnata) {
    int diversi = 0;
    Cambia(disegnata, [&](int x, int y) {
        const std::uint32_t vista = disegnata.Leggi(x, y);
        if (attesa.Leggi(x, y) == vista) return vista >> 2 & 0x3F3F3F;
        ++diversi;
        return kSegno;
    });
    return diversi;
}

} // namespace

void ConfrontaImmagine(const Superficie &disegnata, const std::string &nome) {
    namespace fs = std::filesystem;
    const std::string file = TELVA_IMMAGINI "/" + nome + ".png";
    const fs::path viste = fs::absolute(TELVA_IMMAGINI_VISTE);
    const std::string vista = (viste / (nome + ".png")).string(),
                      segnata = (viste / (nome + "_segnata.png")).string();
    fs::remove(vista);
    fs::remove(segnata);
    Superficie attesa;
    const bool paragonabili = LeggiPng(file, attesa) &&
                              attesa.Larghezza() == disegnata.Larghezza() &&
                              attesa.Altezza() == disegnata.Altezza();
    Superficie segnate = disegnata;
    const int diversi = paragonabili ? Segna(attesa, segnate) : 0;
    if (paragonabili && diversi == 0) return;
    if (std::getenv("TELVA_RINNOVA") != nullptr) {
        ScriviPng(file, disegnata);
        std::cout << "rinnovata: " << nome << ".png\n";
        return;
    }
    fs::create_directories(viste);
    ScriviPng(vista, disegnata);
    std::string che = "there is none of this size to compare with";
    if (paragonabili) {
        ScriviPng(segnata, segnate);
        che = std::to_string(diversi) + " pixels differ, as marked in " + segnata;
    }
    ADD_FAILURE() << "picture " << nome << ": " << che << "\nexpected " << file << "\ndrawn    "
                  << vista;
}

} // namespace telva::prove

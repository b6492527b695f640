#pragma once
// Pictures of the screen.
#include <windows.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace telva::prove {

// Pixels as 0x00RRGGBB, rows from the top.
struct Immagine {
    int larghezza = 0, altezza = 0;
    std::vector<std::uint32_t> pixel;
    // Throws when the position is outside.
    std::uint32_t In(int x, int y) const;
};

// A copy of a rectangle of the screen; of the whole primary screen without an argument.
Immagine Schermo(const RECT *zona = nullptr);

// Writes a 32-bit BMP; throws when the file cannot be written.
void ScriviBmp(const Immagine &immagine, const std::filesystem::path &file);

// Which message-box icon a window shows on the screen: "errore", "avviso", "informazione",
// "domanda", or empty when it looks like none of them (not painted yet, perhaps).
std::string NomeIcona(HWND icona);

} // namespace telva::prove

#pragma once

#include "view/posti.h"

#include <array>
#include <cstdint>
#include <span>

namespace telva {

// A sheaf of parallel lines a*x + b*y = n*passo, in whole pixels of the picture: shells
// of one type join up, and stacked ones (the floors of a building) do not add up to a solid colour.
// `punti` > 0 draws dots that far apart instead, every second row shifted by half.
struct Fascio {
    int a, b, passo, punti = 0;
    int penna = 1, punto = 2; // width of a line; length of a dot
};

struct Retino {
    int numero;
    Fascio fasci[2];
};

// The hatches at a window's scale, worked out once for a whole picture. Pen, spacing and the size
// of a shell that is too small for them grow with it.
class Retini {
  public:
    // `quanto` is the scale of the spacing (1 at 100 %), `penna` the lines' width in pixels.
    Retini(double quanto, int penna);

    // Hatch of a shell by its hatch type 1..8 (0 and any other: none), clipped to its outline, at
    // a fixed spacing in pixels; left out where the shell is too small on the screen.
    void Disegna(int guscio, std::uint32_t colore, const PostiNodi &posti) const;
    // The same hatch in a polygon of three or four corners, within +-2^28, of any size; `rgb` is a
    // surface's pixel.
    void Riempi(Superficie &s, std::span<const Pixel> angoli, int tipo, std::uint32_t rgb) const;

  private:
    double latoMinimo_; // pixels; below this a hatch would only fill the shell
    std::array<Retino, 9> retini_;
};

} // namespace telva

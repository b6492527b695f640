#pragma once
// The nodes' places in the picture that is being drawn, worked out once: most of them belong to a
// dozen lines.

#include "platform/disegno.h"

#include <optional>
#include <vector>

namespace telva {

// Valid as long as projection, scale and size of the drawing stay as they are.
class PostiNodi {
  public:
    explicit PostiNodi(RiquadroDisegno &d);

    // Nearest pixel of node i; nothing when whole pixels cannot name it.
    std::optional<Pixel> InPixel(int i) const;
    // The line between two nodes, as RiquadroDisegno::Line.
    void Linea(int i, int j, std::uint32_t colore, const Trattini &trattini = kContinuo) const;

  private:
    Pixel Calcola(int i) const;
    Pixel Leggi(int i) const;

    RiquadroDisegno &d_;
    std::vector<Pixel> posti_; // of the nodes that the structure has
};

} // namespace telva

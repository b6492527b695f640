#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace telva {

struct PuntoIcona {
    double x, y;
};

// The 16-unit design grid of an icon, fitted to a square of `lato` pixels (1 and more). Stroke
// widths become whole pixels and stroke centres move so that both stroke edges meet pixel edges:
// without it every horizontal and vertical would be blurred at 20 and 24 pixels.
class GrigliaIcona {
  public:
    static constexpr double kUnita = 16;

    explicit GrigliaIcona(int lato) : scala_(lato / kUnita) {}

    // Units to pixels, unsnapped.
    double Pixel(double unita) const { return unita * scala_; }
    // Pixel width of a stroke `unita` wide: whole, at least 1; odd widths keep the parity of the
    // one-unit line, so that a node stays centred on its bar.
    double Larghezza(double unita) const;
    // Pixel place of coordinate `unita` as the centre of a stroke `larghezza` units wide. Distances
    // are rounded from the middle of the grid, so mirror images stay mirror images.
    double Aggancia(double unita, double larghezza) const;

  private:
    double scala_;
};

// Anti-aliased painter of one icon. Shapes, in pixels, gather in a mask of 8x8 samples per pixel;
// Stendi or Sottrai then uses the mask up, so shapes of one colour join without seams.
class PennelloIcona {
  public:
    explicit PennelloIcona(int lato);

    // Inside of a polygon, even-odd; fewer than three points add nothing.
    void Poligono(std::span<const PuntoIcona> punti);
    // Polyline with round joins and ends; a single point gives a disc of diameter `larghezza`.
    void Spezzata(std::span<const PuntoIcona> punti, double larghezza);
    // Arc with round ends from `da` to `a` degrees (da < a), clockwise on the screen from the
    // right; 360 degrees give the whole ring.
    void Arco(PuntoIcona centro, double raggio, double da, double a, double larghezza);

    // Paints the gathered shapes in a colour 0xAARRGGBB (alpha not premultiplied).
    void Stendi(std::uint32_t colore);
    // Makes the gathered shapes transparent again.
    void Sottrai();

    // lato*lato pixels 0xAARRGGBB, alpha premultiplied, rows from the top.
    const std::vector<std::uint32_t> &Pixel() const { return pixel_; }

  private:
    template <class Dentro>
    void Segna(double x0, double y0, double x1, double y1, const Dentro &dentro);
    void Componi(std::uint32_t colore, bool togli);

    int lato_;
    std::vector<std::uint32_t> pixel_;
    std::vector<std::uint64_t> maschera_;
};

} // namespace telva

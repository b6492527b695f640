#pragma once
// The pixel surface of the picture box: integer lines, wide pens with round ends, circle outlines.
// Pixels are 0x00RRGGBB, row by row from the top. Coordinates are whole pixels, y downwards; what
// lies outside is clipped exactly, so a clipped line lights the same pixels as a whole one.

#include <array>
#include <bitset>
#include <cstdint>
#include <string_view>
#include <vector>

namespace telva {

struct Pixel {
    std::int32_t x = 0;
    std::int32_t y = 0;
    friend bool operator==(const Pixel &, const Pixel &) = default;
};

// A rectangle of pixels.
struct ZonaPixel {
    int x = 0, y = 0, larghezza = 0, altezza = 0;
    friend bool operator==(const ZonaPixel &, const ZonaPixel &) = default;
};

// Dash pattern of a line: bit i of `bit` says whether pixel i of the period is lit. Pixels are
// counted along the line's longer direction, from its left end, or the upper one when it is steep.
struct Trattini {
    static constexpr int kPeriodoMassimo = 256;
    std::bitset<kPeriodoMassimo> bit = 1;
    int periodo = 1; // 1..kPeriodoMassimo; 1 = a continuous line
    // The same with dashes and gaps so many times as long.
    Trattini Ingrandito(double quanto) const;
};
inline const Trattini kContinuo;

// Segments in pixels (fractions kept) from an origin; one that begins where the last one ended goes
// on from there. A glyph in its size is one of these, drawn thousands of times.
struct Tratti {
    struct Punto {
        double x, y;
        bool inizio; // nothing leads here from the point before
    };
    std::vector<Punto> punti;
    double minX = 0, maxX = 0, minY = 0, maxY = 0;
    void Aggiungi(double x1, double y1, double x2, double y2);

  private:
    void Aggiungi(Punto p);
};

// The pixels that such segments light, around their origin.
struct Timbro {
    std::vector<Pixel> pixel;
    Pixel minimo, massimo;
    // Of the segments with their origin at (x, y) within one pixel, drawn with this pen.
    void Riempi(const Tratti &tratti, double x, double y, int penna = 1);
    // The pixels around those of another, so many pixels wide: at most as wide as its pen.
    void Contorna(const Timbro &altro, int spessore = 1);
};

class Superficie {
  public:
    int Larghezza() const { return larghezza_; }
    int Altezza() const { return altezza_; }
    const std::uint32_t *Riga(int y) const;
    std::uint32_t *Riga(int y) { // to write there from outside
        ++giro_;
        return Scrivibile(y);
    }
    std::uint32_t Leggi(int x, int y) const { return Riga(y)[x]; }

    // New size (at least 1 x 1); the content is undefined until the next Riempi.
    void Ridimensiona(int larghezza, int altezza);
    void Riempi(std::uint32_t colore);
    // Takes over a zone of another surface, which lies wholly in it: size and pixels.
    void CopiaZona(const Superficie &altra, const ZonaPixel &zona);

    // Ends included. Coordinates may lie anywhere within +-2^28.
    void Linea(Pixel a, Pixel b, std::uint32_t colore);
    void LineaATrattini(Pixel a, Pixel b, std::uint32_t colore, const Trattini &trattini);
    // The segments with their origin at (x, y), which lies within +-2^19: each end goes to its
    // nearest pixel, then as Linea, or as LineaLarga with a wider pen.
    void LineeTratti(const Tratti &tratti, double x, double y, std::uint32_t colore, int penna = 1);
    void Timbra(const Timbro &timbro, Pixel origine, std::uint32_t colore);
    // Pen of `larghezza` pixels (2..kPennaMassima) with round ends.
    void LineaLarga(Pixel a, Pixel b, int larghezza, std::uint32_t colore);
    // The same with gaps: of its pixels those beside a lit one of the pattern.
    void LineaLargaATrattini(Pixel a, Pixel b, int larghezza, std::uint32_t colore,
                             const Trattini &trattini);
    // Any pen and pattern: one of the four lines above.
    void Traccia(Pixel a, Pixel b, int larghezza, std::uint32_t colore,
                 const Trattini &trattini = kContinuo) {
        if (larghezza > 1 && trattini.periodo > 1)
            LineaLargaATrattini(a, b, larghezza, colore, trattini);
        else if (larghezza > 1)
            LineaLarga(a, b, larghezza, colore);
        else if (trattini.periodo > 1)
            LineaATrattini(a, b, colore, trattini);
        else
            Linea(a, b, colore);
    }
    // Outline of the circle of radius `raggio` (>= 0) drawn with a pen of `larghezza` pixels.
    void Cerchio(Pixel centro, int raggio, int larghezza, std::uint32_t colore);

    static constexpr int kPennaMassima = 256;
    static constexpr int kRaggioMassimo = 4096;

  private:
    struct Corsa { // pixels xDa..xA of one row, relative to the centre
        int y, xDa, xA;
    };
    // A wide line in the colour that has not changed since: drawing it again would change nothing.
    struct Tracciata {
        std::uint32_t da = 0, fino = 0; // x in the lower half, y in the upper one
        int larghezza = 0;
        std::uint32_t giro = 0;
    };
    std::uint32_t *Scrivibile(int y);
    void Intingi(std::uint32_t colore);
    bool GiaTracciata(Pixel a, Pixel b, int larghezza);
    static void Stendi(std::uint32_t *da, std::ptrdiff_t quanti, std::uint32_t colore);
    void Orizzontale(int xDa, int xA, int y, std::uint32_t colore);
    template <class Scrivi>
    void Percorri(Pixel a, Pixel b, Scrivi scrivi);
    template <class Scrivi>
    void PercorriBanda(Pixel a, Pixel b, int larghezza, Scrivi riga);
    bool BandaInVista(Pixel a, Pixel b, int larghezza) const;
    const std::vector<Corsa> &Disco(int larghezza);
    const std::vector<Corsa> &Anello(int raggio, int larghezza);
    void TimbraForma(const std::vector<Corsa> &forma, Pixel centro, int ingombro,
                     std::uint32_t colore);

    int larghezza_ = 0;
    int altezza_ = 0;
    std::vector<std::uint32_t> pixel_;
    std::array<std::vector<Corsa>, kPennaMassima + 1> dischi_;
    std::vector<Corsa> anello_; // of the radius and pen used last: a picture uses few
    int raggioAnello_ = -1;
    int pennaAnello_ = -1;
    std::vector<Tracciata> tracciate_;
    std::uint32_t colore_ = 0, giro_ = 1; // what is drawn in now, and how often that has changed
};

} // namespace telva

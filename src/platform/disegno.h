#pragma once
// The picture box: a pixel surface of its own under a user scale set from two corners. Drawing
// coordinates meet pixels here and nowhere else.

#include "platform/controlli.h"
#include "platform/sagoma.h"
#include "platform/superficie.h"

#include <functional>
#include <span>
#include <vector>

namespace telva {

// 0x00BBGGRR to a surface's pixel.
constexpr std::uint32_t APixelRGB(std::uint32_t bgr) {
    return ((bgr & 0xFF) << 16) | (bgr & 0xFF00) | ((bgr >> 16) & 0xFF);
}

class RiquadroDisegno : public Controllo {
  public:
    RiquadroDisegno(Modulo *f, std::string nome);

    Proprieta<Puntatore> MousePointer;
    std::uint32_t BackColor = 0;
    int DrawWidth = 1; // pixels of the screen; below 1 counts as 1

    // button 1 left, 2 right, 4 middle (in MouseMove: the sum of those held); shift bits 1 Shift,
    // 2 Ctrl, 4 Alt; x and y in the user scale, as XEvento and YEvento tell them.
    std::function<void(int button, int shift, double x, double y)> MouseDown, MouseMove, MouseUp;
    std::function<void()> DblClick;
    std::function<void()> MouseLeave;   // the pointer has left the box
    std::function<void()> CatturaPersa; // the mouse left us with a button held

    // User scale: top-left and bottom-right corner. ScaleHeight is negative when y grows upwards.
    void Scale(double x1, double y1, double x2, double y2);
    double ScaleLeft = 0, ScaleTop = 0, ScaleWidth = 1, ScaleHeight = 1;
    bool ScalaImpostata() const { return ScaleHeight < 0; } // once y has grown upwards
    // Size in whole pixels, from Width, Height and the window's DPI; at least 1.
    int LarghezzaPixel() const;
    int AltezzaPixel() const;
    // Drawing units per pixel of the current scale (positive).
    double UnitaPerPixel() const;
    // A length that the user gives in pixels, which are those of a window at 100 %, in pixels of
    // this one; fractions kept. The same as a pen's width: whole, 1..Superficie::kPennaMassima.
    double PixelOpzione(double pixel) const;
    int PennaOpzione(double pixel) const;
    static int PennaIntera(double pixel); // of a width in pixels as they are

    // Position in pixels, fractions kept; pixel i has its centre at i.
    double XPixel(double x) const { return (x - ScaleLeft) * scalaX_; }
    double YPixel(double y) const { return (y - ScaleTop) * scalaY_; }
    // User position of a pixel's centre.
    double XDaPixel(double px) const { return ScaleLeft + px / scalaX_; }
    double YDaPixel(double py) const { return ScaleTop + py / scalaY_; }
    // A user position as an event tells it: in single precision, as long as that is within 1/64 of
    // a pixel (far from the origin it would be off by whole pixels).
    double XEvento(double x) const;
    double YEvento(double y) const;
    // Nearest pixel; positions beyond +-2^28 are brought to that limit and `fuori` is set.
    Pixel InPixel(double x, double y, bool &fuori) const;

    // Clears the picture in BackColor, at the present size.
    void Cls();
    void Line(double x1, double y1, double x2, double y2, std::uint32_t colore);
    void Line(double x1, double y1, double x2, double y2, std::uint32_t colore, const Trattini &t);
    void Circle(double x, double y, double raggio, std::uint32_t colore);
    // The same between pixels, for places and radii that many shapes share.
    void Line(Pixel a, Pixel b, std::uint32_t colore, const Trattini &t) {
        superficie_.Traccia(a, b, DrawWidth, APixelRGB(colore), t);
    }
    void Circle(Pixel centro, int raggio, std::uint32_t colore);
    // Radius of a circle in whole pixels, at most Superficie::kRaggioMassimo.
    int RaggioInPixel(double raggio) const;
    // Segments in pixels whose origin is the point (x, y).
    void LineeTratti(const Tratti &tratti, double x, double y, std::uint32_t colore);
    // Lit pixels around a pixel.
    void Timbra(const Timbro &timbro, Pixel origine, std::uint32_t colore) {
        superficie_.Timbra(timbro, origine, APixelRGB(colore));
    }
    // Pixels to the unit, with the sign of the axis.
    double ScalaX() const { return scalaX_; }
    double ScalaY() const { return scalaY_; }
    // Shows the finished picture.
    void Presenta() { Avvisa(Campo::Immagine); }

    Superficie &Immagine() { return superficie_; }
    const Superficie &Immagine() const { return superficie_; }

    // What is shown over the picture and never drawn into it: the rubber bands, and an outline
    // beforehand of what a click would take.
    Rettangolo Shape;
    Segmento LineSposta;
    Proprieta<Sagoma> Anteprima;
    bool ElasticiVisibili() const;
    // The zones of the picture that hold all their pixels; few and small.
    std::vector<ZonaPixel> ZoneElastici() const;
    // Each zone of the picture with them over it, as it is shown.
    using MostraParte = std::function<void(const Superficie &parte, const ZonaPixel &zona)>;
    void ComponiElastici(std::span<const ZonaPixel> zone, const MostraParte &mostra) const;

    // Between these two a picture that is asked for may be left out (Rimandata); the last Rilascia
    // asks Ridisegna for it. For events that come in a row, of which only the last one's picture is
    // seen. They may be nested.
    void Trattieni() { ++trattenuta_; }
    void Rilascia();
    // Asked by who is about to draw: true while pictures are held back, and then one is owed.
    bool Rimandata();
    std::function<void()> Ridisegna;

  private:
    void AggiornaScala();
    struct TrattoElastico;
    // Outline, rectangle and line, one upon the other.
    std::vector<std::vector<TrattoElastico>> TrattiElastici() const;
    // Ends of a segment in pixels; false when none of it can be seen.
    bool EstremiInPixel(double x1, double y1, double x2, double y2, Pixel &a, Pixel &b) const;
    bool RitagliaLontano(double &x1, double &y1, double &x2, double &y2) const;

    Superficie superficie_;
    mutable Superficie parte_;       // of ComponiElastici, kept: a new one makes its tables anew
    double scalaX_ = 1, scalaY_ = 1; // pixels per unit
    int trattenuta_ = 0;
    bool dovuta_ = false;
};

} // namespace telva

#include "platform/disegno.h"

#include "platform/interi.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace telva {
namespace {

constexpr double kLimitePixel = 1 << 28;

// Rubber bands: dashes of light over dark, to be seen on every colour of the drawing.
constexpr std::uint32_t kElasticoChiaro = 0xFFFFFF;
constexpr std::uint32_t kElasticoScuro = 0x202020;

struct Striscia {
    Pixel a, b;
};

// Light dashes on dark bands, which cut through whatever is drawn there.
void Elastici(Superficie &s, std::initializer_list<Striscia> strisce, int spessore) {
    for (const auto &[a, b] : strisce) s.LineaLarga(a, b, spessore + 4, kElasticoScuro);
    for (const auto &[a, b] : strisce) {
        const bool ripida = std::abs(b.y - a.y) > std::abs(b.x - a.x);
        for (int k = 0; k < spessore; ++k) { // side by side, in the middle
            const int kx = ripida ? k - spessore / 2 : 0, ky = ripida ? 0 : k - spessore / 2;
            s.LineaTratteggiata({a.x + kx, a.y + ky}, {b.x + kx, b.y + ky}, kElasticoChiaro,
                                {0xFF, 12});
        }
    }
}

} // namespace

RiquadroDisegno::RiquadroDisegno(Modulo *f, std::string nome)
    : Controllo(f, std::move(nome), Tipo::Disegno),
      MousePointer(*this, Campo::Puntatore, Puntatore::Predefinito), Shape(*this),
      LineSposta(*this) {}

int RiquadroDisegno::LarghezzaPixel() const {
    return std::max(1, APixel(Width, Proprietario()->dpi));
}
int RiquadroDisegno::AltezzaPixel() const {
    return std::max(1, APixel(Height, Proprietario()->dpi));
}

void RiquadroDisegno::AggiornaScala() {
    scalaX_ = LarghezzaPixel() / ScaleWidth;
    scalaY_ = AltezzaPixel() / ScaleHeight;
}

void RiquadroDisegno::Scale(double x1, double y1, double x2, double y2) {
    ScaleLeft = x1;
    ScaleTop = y1;
    ScaleWidth = x2 - x1;
    ScaleHeight = y2 - y1;
    AggiornaScala();
}

double RiquadroDisegno::UnitaPerPixel() const { return std::abs(1 / scalaX_); }

Pixel RiquadroDisegno::InPixel(double x, double y, bool &fuori) const {
    double px = XPixel(x), py = YPixel(y);
    if (!(std::abs(px) < kLimitePixel && std::abs(py) < kLimitePixel)) {
        fuori = true;
        const auto limita = [](double v) {
            return std::isnan(v) ? kLimitePixel : std::clamp(v, -kLimitePixel, kLimitePixel);
        };
        px = limita(px);
        py = limita(py);
    }
    return {InteroVicino(px), InteroVicino(py)};
}

void RiquadroDisegno::Cls() {
    const int l = LarghezzaPixel(), a = AltezzaPixel();
    if (l != superficie_.Larghezza() || a != superficie_.Altezza()) superficie_.Ridimensiona(l, a);
    AggiornaScala();
    superficie_.Riempi(APixelRGB(BackColor));
}

// Only for ends so far away that whole pixels cannot name them: cuts the segment, in pixels, to a
// box that still holds the visible window many times over. False when nothing is left.
bool RiquadroDisegno::RitagliaLontano(double &x1, double &y1, double &x2, double &y2) const {
    const double dx = x2 - x1, dy = y2 - y1;
    if (!std::isfinite(x1 + y1) || !std::isfinite(dx + dy)) return false;
    double da = 0, a = 1;
    const double limite = 1 << 20;
    for (const auto &[p, d] : {std::pair{x1, dx}, std::pair{y1, dy}}) {
        for (const double verso : {-1.0, 1.0}) {
            const double denominatore = verso * d, margine = limite - verso * p;
            if (denominatore == 0) {
                if (margine < 0) return false;
            } else if (denominatore > 0) {
                a = std::min(a, margine / denominatore);
            } else {
                da = std::max(da, margine / denominatore);
            }
        }
    }
    if (!(da <= a)) return false;
    // Between numbers of forty digits the cut itself is rounded away.
    const auto punto = [limite](double v) { return std::clamp(v, -limite, limite); };
    x2 = punto(x1 + a * dx);
    y2 = punto(y1 + a * dy);
    x1 = punto(x1 + da * dx);
    y1 = punto(y1 + da * dy);
    return true;
}

void RiquadroDisegno::Line(double x1, double y1, double x2, double y2, std::uint32_t colore) {
    Line(x1, y1, x2, y2, colore, Tratteggio{});
}

void RiquadroDisegno::Line(double x1, double y1, double x2, double y2, std::uint32_t colore,
                           Tratteggio t) {
    bool fuori = false;
    Pixel a = InPixel(x1, y1, fuori);
    Pixel b = InPixel(x2, y2, fuori);
    if (fuori) {
        double px1 = XPixel(x1), py1 = YPixel(y1), px2 = XPixel(x2), py2 = YPixel(y2);
        if (!RitagliaLontano(px1, py1, px2, py2)) return;
        a = {InteroVicino(px1), InteroVicino(py1)};
        b = {InteroVicino(px2), InteroVicino(py2)};
    }
    const std::uint32_t rgb = APixelRGB(colore);
    if (DrawWidth > 1)
        superficie_.LineaLarga(a, b, DrawWidth, rgb);
    else if (t.periodo > 1)
        superficie_.LineaTratteggiata(a, b, rgb, t);
    else
        superficie_.Linea(a, b, rgb);
}

void RiquadroDisegno::LineeTratti(const Tratti &t, double x, double y, std::uint32_t colore) {
    const double px = XPixel(x), py = YPixel(y);
    constexpr double kVicinanza = 1 << 19;
    const bool lontano = !(std::abs(px) + std::max(-t.minX, t.maxX) < kVicinanza &&
                           std::abs(py) + std::max(-t.minY, t.maxY) < kVicinanza);
    if (DrawWidth <= 1 && !lontano) {
        superficie_.LineeTratti(t, px, py, APixelRGB(colore));
        return;
    }
    const Tratti::Punto *da = nullptr;
    for (const Tratti::Punto &a : t.punti) {
        if (!a.inizio)
            Line(XDaPixel(px + da->x), YDaPixel(py + da->y), XDaPixel(px + a.x), YDaPixel(py + a.y),
                 colore);
        da = &a;
    }
}

void RiquadroDisegno::Circle(double x, double y, double raggio, std::uint32_t colore) {
    bool fuori = false;
    const Pixel centro = InPixel(x, y, fuori);
    if (fuori) return;
    const double r = std::min(raggio / UnitaPerPixel(), double{Superficie::kRaggioMassimo});
    superficie_.Cerchio(centro, InteroVicino(std::max(r, 0.0)), std::max(DrawWidth, 1),
                        APixelRGB(colore));
}

void RiquadroDisegno::ComponiElastici(Superficie &striscia, int daRiga, int righe) const {
    striscia.CopiaRighe(superficie_, daRiga, righe);
    const int spessore = std::max(1, InteroVicino(Proprietario()->dpi / 96));
    const auto punto = [&](double x, double y) {
        bool fuori = false;
        const Pixel p = InPixel(x, y, fuori);
        return Pixel{p.x, p.y - daRiga};
    };
    if (Shape.Visible) {
        const Pixel a = punto(Shape.Left, Shape.Top);
        const Pixel b = punto(Shape.Left + Shape.Width, Shape.Top - Shape.Height);
        const Pixel c{b.x, a.y}, e{a.x, b.y};
        Elastici(striscia, {{a, c}, {c, b}, {b, e}, {e, a}}, spessore);
    }
    if (LineSposta.Visible)
        Elastici(striscia,
                 {{punto(LineSposta.X1, LineSposta.Y1), punto(LineSposta.X2, LineSposta.Y2)}},
                 2 * spessore);
}

} // namespace telva

#include "platform/disegno.h"

#include "platform/interi.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace telva {
namespace {

constexpr double kLimitePixel = 1 << 28;

constexpr double kScartoEvento = 1.0 / 64; // pixels
constexpr double kDpiNormale = 96;         // of a window at 100 %

double PerEvento(double v, double scala) {
    if (!(std::abs(v) <= std::numeric_limits<float>::max())) return v;
    const double singola = static_cast<float>(v);
    return std::abs((singola - v) * scala) <= kScartoEvento ? singola : v;
}

} // namespace

RiquadroDisegno::RiquadroDisegno(Modulo *f, std::string nome)
    : Controllo(f, std::move(nome), Tipo::Disegno),
      MousePointer(*this, Campo::Puntatore, Puntatore::Predefinito), Shape(*this),
      LineSposta(*this), Anteprima(*this, Campo::Elastici) {}

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

double RiquadroDisegno::XEvento(double x) const { return PerEvento(x, scalaX_); }
double RiquadroDisegno::YEvento(double y) const { return PerEvento(y, scalaY_); }

double RiquadroDisegno::UnitaPerPixel() const { return std::abs(1 / scalaX_); }

double RiquadroDisegno::PixelOpzione(double pixel) const {
    return pixel * (Proprietario()->dpi / kDpiNormale);
}
int RiquadroDisegno::PennaIntera(double pixel) {
    return std::clamp(InteroVicino(pixel), 1, Superficie::kPennaMassima);
}
int RiquadroDisegno::PennaOpzione(double pixel) const { return PennaIntera(PixelOpzione(pixel)); }

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

bool RiquadroDisegno::EstremiInPixel(double x1, double y1, double x2, double y2, Pixel &a,
                                     Pixel &b) const {
    bool fuori = false;
    a = InPixel(x1, y1, fuori);
    b = InPixel(x2, y2, fuori);
    if (!fuori) return true;
    double px1 = XPixel(x1), py1 = YPixel(y1), px2 = XPixel(x2), py2 = YPixel(y2);
    if (!RitagliaLontano(px1, py1, px2, py2)) return false;
    a = {InteroVicino(px1), InteroVicino(py1)};
    b = {InteroVicino(px2), InteroVicino(py2)};
    return true;
}

void RiquadroDisegno::Line(double x1, double y1, double x2, double y2, std::uint32_t colore) {
    Line(x1, y1, x2, y2, colore, kContinuo);
}

void RiquadroDisegno::Line(double x1, double y1, double x2, double y2, std::uint32_t colore,
                           const Trattini &t) {
    Pixel a, b;
    if (EstremiInPixel(x1, y1, x2, y2, a, b)) Line(a, b, colore, t);
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
    if (!fuori) Circle(centro, RaggioInPixel(raggio), colore);
}

void RiquadroDisegno::Circle(Pixel centro, int raggio, std::uint32_t colore) {
    superficie_.Cerchio(centro, raggio, std::max(DrawWidth, 1), APixelRGB(colore));
}

int RiquadroDisegno::RaggioInPixel(double raggio) const {
    const double r = std::min(raggio / UnitaPerPixel(), double{Superficie::kRaggioMassimo});
    return InteroVicino(std::max(r, 0.0));
}

void RiquadroDisegno::Rilascia() {
    if (--trattenuta_ > 0 || !dovuta_) return;
    dovuta_ = false;
    if (Ridisegna) Ridisegna();
}

bool RiquadroDisegno::Rimandata() {
    if (trattenuta_ == 0) return false;
    dovuta_ = true;
    return true;
}

} // namespace telva
